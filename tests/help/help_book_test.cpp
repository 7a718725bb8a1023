#include "help/help_book.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "catalogue/entry_layouts.h"
#include "catalogue/saved_problem.h"
#include "catalogue/topics.h"
#include "help/help_error.h"
#include "help/page_text.h"
#include "help/topic_page.h"
#include "help/worked_example.h"
#include "tests/help/book.h"

namespace numerello {

namespace {

constexpr int kPlotAPoint = 108;
constexpr int kLineThroughPoints = 106;

/// The sources with one file replaced.
HelpSource SourcesWith(const std::string& file, const std::string& text) {
    return [file, text](const std::string& name) { return name == file ? text : HelpFile(name); };
}

std::string WhyNot(const HelpSource& source) {
    try {
        MakeHelpBook(source);
    } catch (const HelpError& error) {
        return error.what();
    }
    return "";
}

TEST(HelpBook, HasAPageForEveryTopic) {
    EXPECT_EQ(Topics().size(), 105U);
    for (const Topic& topic : Topics()) {
        EXPECT_EQ(PageOf(PageName(topic.caption)).title, topic.caption);
    }
}

TEST(HelpBook, GivesEveryPageANameOfItsOwn) {
    std::set<std::string> names;
    for (const HelpPage& page : TheBook().pages) {
        EXPECT_TRUE(names.insert(page.name).second) << page.name;
    }
}

TEST(HelpBook, ListsEveryPageOnce) {
    std::map<std::string, int> rows;
    for (const ContentsRow& row : TheBook().contents) {
        ++rows[row.page];
    }
    rows.erase("");
    EXPECT_EQ(rows.size(), TheBook().pages.size());
    for (const auto& [page, count] : rows) {
        EXPECT_EQ(count, 1) << page;
    }
}

TEST(HelpBook, KeepsTheOrderOfTheTopicTree) {
    std::vector<std::string> around;
    for (const ContentsRow& row : TheBook().contents) {
        if (row.depth > 0 || !around.empty()) {
            around.push_back(row.title);
        }
    }
    const auto chapter = std::find(around.begin(), around.end(), "Fractions/Ratios");
    ASSERT_GE(around.end() - chapter, 8);
    const std::vector<std::string> expected{"Fractions/Ratios",
                                            "Fraction/Mixed Conversions",
                                            "Fraction To Mixed Notation",
                                            "Mixed To Fraction Notation",
                                            "Fraction To Decimal Notation",
                                            "Fraction To Percent Notation",
                                            "Simplifying Fractions",
                                            "Reciprocals"};
    EXPECT_EQ(std::vector<std::string>(chapter, chapter + 8), expected);
}

TEST(HelpBook, LeadsEveryLinkToAPage) {
    int links = 0;
    for (const HelpPage& page : TheBook().pages) {
        for (const std::string& link : LinksOf(page.html)) {
            ++links;
            if (link.starts_with(kExampleScheme)) {
                EXPECT_EQ(link, Text(kExampleScheme, page.name));
                EXPECT_FALSE(page.example.empty()) << page.name;
                continue;
            }
            ASSERT_EQ(link.substr(0, 5), "help:") << page.name;
            EXPECT_NO_THROW(PageOf(link.substr(5))) << page.name << " leads to " << link;
        }
    }
    EXPECT_GT(links, 105);
}

TEST(HelpBook, OffersTheExamplesOfTopicsInNoTree) {
    for (const Topic& topic : Topics()) {
        const HelpPage& page = PageOf(PageName(topic.caption));
        EXPECT_EQ(page.example.empty(), !topic.parent.empty()) << topic.caption;
        EXPECT_EQ(CountOf(page.html, Text("href=\"example:", page.name, "\"")),
                  topic.parent.empty() ? 1 : 0)
            << topic.caption;
        if (topic.parent.empty()) {
            const SavedProblem saved = ReadSavedProblem(page.example);
            EXPECT_EQ(saved.TopicTitle, topic.caption);
            EXPECT_EQ(saved.typed, TextFor(topic.caption).problem);
            EXPECT_EQ(ExampleFileName(page), Text(topic.caption, ".nrl"));
        }
    }
}

TEST(HelpBook, RefusesALinkThatLeadsNowhere) {
    const auto source = SourcesWith("pages/welcome.html",
                                    "<h1>Welcome</h1>\n<p><a href=\"help:attic\">Attic</a></p>\n");
    EXPECT_EQ(WhyNot(source), "the page \"welcome\" has a dead link: help:attic");
    const auto example = SourcesWith(
        "pages/welcome.html", "<h1>Welcome</h1>\n<p><a href=\"example:addition\">Add</a></p>\n");
    EXPECT_EQ(WhyNot(example), "the page \"welcome\" has a dead link: example:addition");
}

TEST(HelpBook, RefusesATopicWithoutText) {
    EXPECT_EQ(WhyNot(SourcesWith("topics.txt", "Addition\nabout: x\nbox 1: 2\nbox 2: 3\n")),
              "\"Subtraction\" has no text");
}

TEST(HelpBook, RefusesATextForNoTopic) {
    EXPECT_EQ(WhyNot(SourcesWith("topics.txt", "Juggling\nabout: x\n")),
              "there is a text for no topic: Juggling");
}

TEST(HelpBook, RefusesAPageWithoutHeading) {
    EXPECT_EQ(WhyNot(SourcesWith("pages/welcome.html", "<p>Hello</p>\n")),
              "the page \"welcome\" has no heading");
}

/// Every line of the solution stands on the page with its reason, in its own row.
TEST(HelpBook, ShowsTheSolutionOfEveryExample) {
    const PlainMetrics metrics;
    for (const Topic& topic : Topics()) {
        const std::string& html = PageOf(PageName(topic.caption)).html;
        const WorkedExample example(TextFor(topic.caption), metrics);
        const auto& steps = example.Steps();
        const bool graphAlone = topic.code == kPlotAPoint || topic.code == kLineThroughPoints;
        EXPECT_EQ(steps.empty(), graphAlone) << topic.caption;
        for (std::size_t i = 0; i < steps.size(); ++i) {
            EXPECT_EQ(CountOf(html, Text("<td class=\"margin\" width=\"28\">",
                                         std::to_string(i + 1), "</td>")),
                      1)
                << topic.caption;
        }
        EXPECT_EQ(CountOf(html, "<p class=\"reason\">"),
                  std::count_if(steps.begin(), steps.end(),
                                [](const auto& step) { return !step.reason.empty(); }))
            << topic.caption;
    }
}

TEST(HelpBook, TellsWhatToTypeIntoEveryBox) {
    for (const EntryLayout& layout : EntryLayouts()) {
        const Topic& topic = *FindTopicByCode(layout.code);
        const std::string& html = PageOf(PageName(topic.caption)).html;
        const std::size_t example = html.find("<h2>An example</h2>");
        ASSERT_NE(example, std::string::npos);
        const std::string_view entry = std::string_view(html).substr(example);
        EXPECT_EQ(CountOf(entry, "</code> into ") + CountOf(entry, "<li>Leave "),
                  static_cast<int>(layout.boxes.size()))
            << topic.caption;
    }
}

TEST(HelpBook, WorksFractionsAsPictures) {
    // 1/2 + 3/5 = 5/10 + 6/10 = 11/10
    const std::string text = PlainText(PageOf("fraction-arithmetic").html);
    EXPECT_NE(text.find("one half plus three fifths"), std::string::npos);
    EXPECT_NE(text.find("five tenths plus six tenths"), std::string::npos);
    EXPECT_NE(text.find("11 over 10"), std::string::npos);
}

TEST(HelpBook, DrawsColumns) {
    for (const char* page : {"addition", "subtraction", "multiplication", "division"}) {
        EXPECT_EQ(CountOf(PageOf(page).html, Text("src=\"working:", page, "\"")), 1);
        EXPECT_EQ(CountOf(PageOf(page).html, Text("src=\"entry:", page, "\"")), 1);
    }
}

TEST(HelpBook, WritesItsContentsLineByLine) {
    const std::string file = ContentsFile(TheBook());
    EXPECT_EQ(CountOf(file, "\n"), static_cast<int>(TheBook().contents.size()));
    EXPECT_EQ(CountOf(file, "\t"), static_cast<int>(TheBook().contents.size()) * 3);
    for (const char* mark : {"</", "<p", "&lt;", "&amp;"}) {
        EXPECT_EQ(file.find(mark), std::string::npos) << mark << " is left";
    }
}

}  // namespace

}  // namespace numerello
