#include "help/search.h"

#include <gtest/gtest.h>

#include "help/help_error.h"
#include "tests/help/book.h"

namespace numerello {

namespace {

constexpr std::string_view kContents =
    "0\t\tChapter\t\n"
    "1\tone\tThe Sheet\tThe Sheet Paper with steps, and one half.\n"
    "1\ttwo\tSteps\tSteps What a ladder has.\n"
    "0\t\tOther\t\n"
    "1\tthree\tA Long Way\tA Long Way Step by step, sheet after sheet.\n";

std::vector<std::string> Found(const HelpIndex& index, std::string_view query) {
    std::vector<std::string> pages;
    for (const int row : index.Search(query)) {
        pages.push_back(index.Rows()[static_cast<std::size_t>(row)].page);
    }
    return pages;
}

using Pages = std::vector<std::string>;

TEST(HelpSearch, PutsTitlesFirst) {
    const HelpIndex index(kContents);
    EXPECT_EQ(Found(index, "step"), (Pages{"two", "one", "three"}));
    EXPECT_EQ(Found(index, "sheet"), (Pages{"one", "three"}));
    EXPECT_EQ(Found(index, "the sh"), (Pages{"one"}));
}

TEST(HelpSearch, NeedsEveryWordInAnyOrder) {
    const HelpIndex index(kContents);
    EXPECT_EQ(Found(index, "half paper"), (Pages{"one"}));
    EXPECT_EQ(Found(index, "half ladder"), Pages{});
}

TEST(HelpSearch, LooksAtTheBeginningOfWordsWhateverTheCase) {
    const HelpIndex index(kContents);
    EXPECT_EQ(Found(index, "LAD"), (Pages{"two"}));
    EXPECT_EQ(Found(index, "adder"), Pages{});
}

TEST(HelpSearch, FindsNothingForNothing) {
    const HelpIndex index(kContents);
    EXPECT_EQ(Found(index, ""), Pages{});
    EXPECT_EQ(Found(index, "  ,."), Pages{});
    EXPECT_EQ(Found(index, "chapter"), Pages{});
}

TEST(HelpSearch, WalksFromPageToPage) {
    const HelpIndex index(kContents);
    EXPECT_EQ(index.PageBeside("two", 1), "three");
    EXPECT_EQ(index.PageBeside("three", -1), "two");
    EXPECT_EQ(index.PageBeside("one", 2), "three");
    EXPECT_EQ(index.PageBeside("one", -1), "");
    EXPECT_EQ(index.PageBeside("three", 1), "");
    EXPECT_EQ(index.PageBeside("attic", 1), "");
    EXPECT_EQ(index.RowOf("three"), 4);
    EXPECT_EQ(index.RowOf(""), std::nullopt);
}

TEST(HelpSearch, RefusesOtherTexts) {
    EXPECT_THROW(HelpIndex("no fields at all\n"), HelpError);
    EXPECT_THROW(HelpIndex("x\ta\tb\tc\n"), HelpError);
}

TEST(HelpSearch, FindsTopicsByWhatTheyAreAbout) {
    const HelpIndex index(ContentsFile(TheBook()));
    EXPECT_EQ(Found(index, "fraction ar").front(), "fraction-arithmetic");
    EXPECT_EQ(Found(index, "LCM").front(), "least-common-multiples");
    EXPECT_EQ(Found(index, "hypotenuse"), Pages{});
    EXPECT_EQ(Found(index, "borrows"), (Pages{"subtraction"}));
    EXPECT_EQ(Found(index, "answer key").front(), "practice-tests");
}

}  // namespace

}  // namespace numerello
