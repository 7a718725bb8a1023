#include "help/search.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/text.h"
#include "help/file_lines.h"
#include "help/help_error.h"

namespace numerello {

namespace {

bool IsWordCharacter(char c) {
    const bool inMultibyte = static_cast<unsigned char>(c) >= 0x80;
    return inMultibyte || IsDigit(c) || IsLetter(c);
}

/// Small letters, and a blank before each word in place of all that is none.
std::string Folded(std::string_view text) {
    std::string folded = " ";
    for (const char c : text) {
        if (IsWordCharacter(c)) {
            folded += LowerCase(c);
        } else if (folded.back() != ' ') {
            folded += ' ';
        }
    }
    return folded;
}

/// The words, each with the blank before it, so that it is found where a word begins.
std::vector<std::string> WordsOf(const std::string& folded) {
    std::vector<std::string> words;
    for (const char c : folded) {
        if (c == ' ') {
            words.emplace_back();
        }
        words.back() += c;
    }
    std::erase(words, " ");
    return words;
}

bool HasAll(const std::string& folded, const std::vector<std::string>& words) {
    return std::all_of(words.begin(), words.end(), [&folded](const std::string& word) {
        return folded.find(word) != std::string::npos;
    });
}

constexpr std::size_t kFieldCount = 4;

std::array<std::string_view, kFieldCount> FieldsOf(std::string_view line) {
    std::array<std::string_view, kFieldCount> fields;
    for (std::size_t i = 0; i < kFieldCount; ++i) {
        const bool last = i + 1 == kFieldCount;
        const std::size_t end = last ? line.size() : line.find('\t');
        if (end == std::string_view::npos) {
            throw HelpError(Text("a line of the contents that has no four fields: ", line));
        }
        fields[i] = line.substr(0, end);
        line.remove_prefix(std::min(end + 1, line.size()));
    }
    return fields;
}

}  // namespace

HelpIndex::HelpIndex(std::string_view contentsFile) {
    for (const std::string_view line : LinesOf(contentsFile)) {
        const auto [depth, page, title, text] = FieldsOf(line);
        if (depth.size() != 1 || !IsDigit(depth)) {
            throw HelpError(Text("a line of the contents without its depth: ", title));
        }
        rows.push_back({depth.front() - '0', std::string(page), std::string(title)});
        words.push_back({Folded(title), Folded(Text(title, " ", text))});
    }
}

std::optional<int> HelpIndex::RowOf(std::string_view page) const {
    const auto row = std::find_if(rows.begin(), rows.end(), [page](const ContentsRow& each) {
        return each.page == page && !page.empty();
    });
    return row == rows.end() ? std::nullopt : std::optional(static_cast<int>(row - rows.begin()));
}

std::string HelpIndex::PageBeside(std::string_view page, int steps) const {
    const int direction = steps < 0 ? -1 : 1;
    const std::optional<int> start = RowOf(page);
    if (!start) {
        return "";
    }
    int row = *start;
    while (steps != 0) {
        row += direction;
        if (row < 0 || row >= static_cast<int>(rows.size())) {
            return "";
        }
        if (!rows[static_cast<std::size_t>(row)].page.empty()) {
            steps -= direction;
        }
    }
    return rows[static_cast<std::size_t>(row)].page;
}

std::vector<int> HelpIndex::Search(std::string_view query) const {
    const std::string folded = Folded(query);
    const std::vector<std::string> wanted = WordsOf(folded);
    std::array<std::vector<int>, 3> found;
    for (std::size_t i = 0; i < rows.size() && !wanted.empty(); ++i) {
        if (rows[i].page.empty()) {
            continue;
        }
        const int row = static_cast<int>(i);
        if (words[i].title.starts_with(std::string(Trimmed(folded)).insert(0, 1, ' '))) {
            found[0].push_back(row);
        } else if (HasAll(words[i].title, wanted)) {
            found[1].push_back(row);
        } else if (HasAll(words[i].all, wanted)) {
            found[2].push_back(row);
        }
    }
    for (std::size_t i = 1; i < found.size(); ++i) {
        found[0].insert(found[0].end(), found[i].begin(), found[i].end());
    }
    return found[0];
}

}  // namespace numerello
