#include "help/help_book.h"

#include <algorithm>
#include <string_view>

#include "core/number.h"
#include "core/text.h"
#include "help/file_lines.h"
#include "help/help_error.h"
#include "help/page_text.h"
#include "help/set_text.h"
#include "help/topic_page.h"
#include "help/topic_texts.h"

namespace numerello {

namespace {

constexpr std::string_view kScheme = "help:";

void AddPage(HelpBook& book, std::string name, std::string_view body) {
    const std::string title = TitleOf(body);
    if (title.empty()) {
        throw HelpError(Text("the page \"", name, "\" has no heading"));
    }
    std::string html = Text("<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>",
                            Escaped(title), "</title></head>\n<body>\n", body, "</body></html>\n");
    book.pages.push_back({std::move(name), title, std::move(html), ""});
}

void AddGuide(HelpBook& book, const HelpSource& source) {
    book.contents.push_back({0, "", "Using Numerello"});
    const std::string contents = source("pages/contents.txt");
    for (const std::string_view line : LinesOf(contents)) {
        const std::string name(Trimmed(line));
        if (name.empty()) {
            continue;
        }
        AddPage(book, name, WithMath(source(Text("pages/", name, ".html"))));
        book.contents.push_back({1, name, book.pages.back().title});
    }
}

const TopicText& TextOf(const std::vector<TopicText>& texts, std::string_view caption) {
    const auto text = std::find_if(texts.begin(), texts.end(), [caption](const TopicText& each) {
        return each.caption == caption;
    });
    if (text == texts.end() || text->about.empty()) {
        throw HelpError(Text("\"", caption, "\" has no text"));
    }
    return *text;
}

void AddTopics(HelpBook& book, const HelpSource& source) {
    const std::vector<TopicText> texts = ReadTopicTexts(source("topics.txt"));
    for (const TopicText& text : texts) {
        if (FindTopic(text.caption) == nullptr) {
            throw HelpError(Text("there is a text for no topic: ", text.caption));
        }
    }
    for (const Topic& topic : Topics()) {
        const TopicText& text = TextOf(texts, topic.caption);
        AddPage(book, PageName(topic.caption), TopicPage(topic, text));
        if (topic.parent.empty()) {
            book.pages.back().example = ExampleFile(text);
        }
    }
    const std::vector<ContentsRow> rows = TopicRows();
    book.contents.insert(book.contents.end(), rows.begin(), rows.end());
}

const HelpPage* Find(const HelpBook& book, std::string_view name) {
    const auto page = std::find_if(book.pages.begin(), book.pages.end(),
                                   [name](const HelpPage& each) { return each.name == name; });
    return page == book.pages.end() ? nullptr : &*page;
}

bool LeadsSomewhere(std::string_view link, const HelpBook& book) {
    if (link.starts_with(kExampleScheme)) {
        const HelpPage* page = Find(book, link.substr(kExampleScheme.size()));
        return page != nullptr && !page->example.empty();
    }
    return link.starts_with(kScheme) && Find(book, link.substr(kScheme.size())) != nullptr;
}

void RequireLinks(const HelpBook& book) {
    for (const HelpPage& page : book.pages) {
        for (const std::string& link : LinksOf(page.html)) {
            if (!LeadsSomewhere(link, book)) {
                throw HelpError(Text("the page \"", page.name, "\" has a dead link: ", link));
            }
        }
    }
}

}  // namespace

HelpBook MakeHelpBook(const HelpSource& source) {
    HelpBook book;
    AddGuide(book, source);
    AddTopics(book, source);
    RequireLinks(book);
    return book;
}

std::string ExampleFileName(const HelpPage& page) {
    return Text(page.title, ".nrl");
}

std::string ContentsFile(const HelpBook& book) {
    std::string file;
    for (const ContentsRow& row : book.contents) {
        const HelpPage* page = Find(book, row.page);
        const std::string_view html = page != nullptr ? page->html : std::string_view();
        file += Text(WholeText(row.depth), "\t", row.page, "\t", row.title, "\t",
                     PlainText(html.substr(0, html.find(kSeeAlso))), "\n");
    }
    return file;
}

}  // namespace numerello
