#include "core/problem_file.h"

#include <charconv>
#include <optional>
#include <vector>

#include "core/number.h"
#include "core/text.h"

namespace numerello {

namespace {

constexpr std::string_view kSeparator = " BB ";
constexpr std::size_t kFieldCount = 12;
constexpr std::size_t kFirstBox = 2;
constexpr std::size_t kFirstList = 8;
constexpr std::size_t kCode = 11;

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kReplacementCharacter = "\xEF\xBF\xBD";

std::vector<std::string_view> Fields(std::string_view text) {
    std::vector<std::string_view> fields;
    while (fields.size() < kFieldCount) {
        const std::size_t end = text.find(kSeparator);
        fields.push_back(text.substr(0, end));
        if (end == std::string_view::npos) {
            break;
        }
        text.remove_prefix(end + kSeparator.size());
    }
    return fields;
}

/// The text with bytes that are no character replaced.
std::string Decoded(std::string_view text) {
    std::string decoded;
    for (const std::string& character : Characters(text)) {
        const bool stray =
            character.size() == 1 && static_cast<unsigned char>(character.front()) >= 0x80;
        decoded += stray ? kReplacementCharacter : character;
    }
    return decoded;
}

std::string TwoDigits(int number) {
    const std::string digits = WholeText(number % 100);
    return digits.size() < 2 ? Text("0", digits) : digits;
}

std::optional<char> HexByte(std::string_view digits) {
    unsigned char value = 0;
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    const bool whole = digits.size() == 2 && end == digits.data() + digits.size();
    return whole && error == std::errc() ? std::optional(static_cast<char>(value)) : std::nullopt;
}

/// The text with each "%20" and its like as the byte that it stands for.
std::string PercentDecoded(std::string_view text) {
    std::string decoded;
    while (!text.empty()) {
        const std::optional<char> byte =
            text.front() == '%' ? HexByte(text.substr(1, 2)) : std::nullopt;
        decoded += byte.value_or(text.front());
        text.remove_prefix(byte ? 3 : 1);
    }
    return decoded;
}

}  // namespace

std::string ProblemLine(const Problem& problem) {
    std::string line = Text(problem.topic.TopicTitle, kSeparator, problem.typed.ProblemText);
    for (const std::string& text : problem.boxes.Text) {
        line.append(kSeparator).append(text);
    }
    for (const int index : problem.boxes.ListIndex) {
        line.append(kSeparator).append(WholeText(index));
    }
    return line.append(kSeparator).append(WholeText(problem.topic.ProblemType));
}

SavedProblem ReadProblemLine(std::string_view text) {
    text.remove_prefix(text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0);
    const std::vector<std::string_view> fields = Fields(text);
    if (fields.size() < kFieldCount) {
        throw FileError("has fewer than twelve fields");
    }
    const auto code = LeadingInteger16(fields[kCode]);
    if (!code) {
        throw FileError("has no topic code in its twelfth field");
    }
    SavedProblem saved;
    saved.TopicTitle = Decoded(fields[0]);
    saved.typed = Decoded(fields[1]);
    EntryBoxes& boxes = saved.boxes;
    for (std::size_t i = 0; i < boxes.Text.size(); ++i) {
        boxes.Text[i] = Decoded(fields[kFirstBox + i]);
    }
    for (std::size_t i = 0; i < boxes.ListIndex.size(); ++i) {
        boxes.ListIndex[i] = ReadInteger16(fields[kFirstList + i]).value_or(EntryBoxes::kNoChoice);
    }
    saved.ProblemType = *code;
    return saved;
}

std::string SuggestedName(std::string_view TopicTitle, const Date& today) {
    const std::string title = Replace(Replace(TopicTitle, "/", "-"), "*", "x");
    return Text(title, " ", TwoDigits(today.month), "-", TwoDigits(today.day), "-",
                TwoDigits(today.year));
}

std::string StartFilePath(std::string_view StartFile) {
    constexpr std::string_view kScheme = "file:";
    constexpr std::string_view kThisComputer = "//localhost/";
    std::string path = Replace(Trimmed(StartFile), "\"", "");
    if (!path.starts_with(kScheme)) {
        return path;
    }
    std::string_view url = std::string_view(path).substr(kScheme.size());
    if (url.starts_with(kThisComputer)) {
        url.remove_prefix(kThisComputer.size() - 1);
    } else if (url.starts_with("///")) {
        url.remove_prefix(2);
    }
    return PercentDecoded(url);
}

}  // namespace numerello
