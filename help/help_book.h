#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "help/contents.h"

namespace numerello {

struct HelpPage {
    std::string name;
    std::string title;
    std::string html;     ///< a whole document
    std::string example;  ///< of a topic in no tree: the text of a problem file; else empty
};

/// All pages, and the rows of the contents, which name each page once.
struct HelpBook {
    std::vector<HelpPage> pages;
    std::vector<ContentsRow> contents;
};

/// Gives the text of a file of docs/help, by its name there.
using HelpSource = std::function<std::string(const std::string& file)>;

/// Makes every page: those written by hand, which pages/contents.txt lists, then one for each
/// topic. Throws HelpError when a topic has no text, an example cannot be solved, or a link leads
/// nowhere.
HelpBook MakeHelpBook(const HelpSource& source);

/// The name of the problem file that a page's example is.
std::string ExampleFileName(const HelpPage& page);

/// The contents as a file: a row a line, depth, page, title and the words of the page between tabs.
std::string ContentsFile(const HelpBook& book);

}  // namespace numerello
