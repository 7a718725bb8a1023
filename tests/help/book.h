#pragma once

#include <algorithm>
#include <stdexcept>

#include "core/disk.h"
#include "core/text.h"
#include "help/help_book.h"
#include "help/topic_texts.h"

namespace numerello {

/// A file of docs/help.
inline std::string HelpFile(const std::string& name) {
    return ReadFile(Text(NUMERELLO_HELP_SOURCES, "/", name), 1 << 20);
}

/// The help as the program has it; made once.
inline const HelpBook& TheBook() {
    static const HelpBook book = MakeHelpBook(HelpFile);
    return book;
}

inline const HelpPage& PageOf(std::string_view name) {
    const auto& pages = TheBook().pages;
    const auto page = std::find_if(pages.begin(), pages.end(),
                                   [name](const HelpPage& each) { return each.name == name; });
    if (page == pages.end()) {
        throw std::runtime_error(Text("there is no page ", name));
    }
    return *page;
}

inline const std::vector<TopicText>& TheTexts() {
    static const std::vector<TopicText> texts = ReadTopicTexts(HelpFile("topics.txt"));
    return texts;
}

inline const TopicText& TextFor(std::string_view caption) {
    const auto& texts = TheTexts();
    const auto text = std::find_if(texts.begin(), texts.end(), [caption](const TopicText& each) {
        return each.caption == caption;
    });
    if (text == texts.end()) {
        throw std::runtime_error(Text("there is no text for ", caption));
    }
    return *text;
}

inline int CountOf(std::string_view text, std::string_view piece) {
    int count = 0;
    for (auto at = text.find(piece); at != std::string_view::npos; at = text.find(piece, at + 1)) {
        ++count;
    }
    return count;
}

}  // namespace numerello
