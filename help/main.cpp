#include <iostream>
#include <string>

#include "core/disk.h"
#include "core/text.h"
#include "help/help_book.h"

/// help_pages SOURCES FOLDER: writes the help into the folder, a file a page, with its contents,
/// the problem files of topics in no tree, and the list of all files that the resource compiler
/// asks for.
int main(int argc, char** argv) {
    using namespace numerello;  // NOLINT(google-build-using-namespace)
    if (argc != 3) {
        std::cerr << "usage: help_pages SOURCES FOLDER\n";
        return 2;
    }
    constexpr std::size_t kLongest = 1 << 20;
    const std::string sources = argv[1];
    const std::string folder = argv[2];
    try {
        const HelpBook book = MakeHelpBook([&sources](const std::string& file) {
            return ReadFile(Text(sources, "/", file), kLongest);
        });
        MakeFolder(folder);
        MakeFolder(Text(folder, "/examples"));
        WriteFile(Text(folder, "/contents.txt"), ContentsFile(book));
        std::string list = Text("    <file alias=\"topics.txt\">", sources, "/topics.txt</file>\n",
                                "    <file>contents.txt</file>\n");
        for (const HelpPage& page : book.pages) {
            WriteFile(Text(folder, "/", page.name, ".html"), page.html);
            list += Text("    <file>", page.name, ".html</file>\n");
            if (!page.example.empty()) {
                const std::string file = Text("examples/", ExampleFileName(page));
                WriteFile(Text(folder, "/", file), page.example);
                list += Text("    <file alias=\"", page.name, ".nrl\">", file, "</file>\n");
            }
        }
        WriteFile(Text(folder, "/help.qrc"), Text("<RCC>\n  <qresource prefix=\"/help\">\n", list,
                                                  "  </qresource>\n</RCC>\n"));
    } catch (const std::exception& error) {
        std::cerr << "help_pages: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
