#include "cli/batch.h"

#include <istream>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>

#include "cli/request_line.h"
#include "cli/requests.h"

namespace numerello {

namespace {

constexpr std::size_t kLongestRequest = std::size_t{1024} * 1024;
constexpr int kProgressEvery = 100;

struct Line {
    std::string text;
    bool tooLong = false;
};

/// A line without its end, carriage return and byte order mark. Of one that is too long nothing
/// more is kept than that. None at the end of the input.
std::optional<Line> ReadLine(std::istream& in) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    constexpr int kEnd = std::char_traits<char>::eof();
    const std::size_t most = kLongestRequest + kByteOrderMark.size() + 1;
    Line line;
    std::streambuf* buffer = in.rdbuf();
    int next = buffer->sbumpc();
    const bool any = next != kEnd;
    for (; next != kEnd && next != '\n'; next = buffer->sbumpc()) {
        if (line.text.size() < most) {
            line.text.push_back(static_cast<char>(next));
        } else {
            line.tooLong = true;
        }
    }
    if (line.text.ends_with('\r')) {
        line.text.pop_back();
    }
    if (line.text.starts_with(kByteOrderMark)) {
        line.text.erase(0, kByteOrderMark.size());
    }
    line.tooLong = line.tooLong || line.text.size() > kLongestRequest;
    return any ? std::optional(std::move(line)) : std::nullopt;
}

Json AnswerLine(const Line& line) {
    if (line.tooLong) {
        return Refusal(nullptr, "the line is longer than 1 MiB");
    }
    RequestLine read;
    try {
        read = ReadRequestLine(line.text);
        return read.trouble.empty() ? Answer(read.request, read.id)
                                    : Refusal(read.id, read.trouble);
    } catch (const std::exception&) {
        // One request must never end the stream.
        return Refusal(read.id, "the request could not be worked");
    }
}

}  // namespace

void RunBatch(std::istream& in, std::ostream& out, std::ostream* progress) {
    int answered = 0;
    while (out) {
        const std::optional<Line> line = ReadLine(in);
        if (!line) {
            break;
        }
        if (!line->tooLong && line->text.find_first_not_of(" \t") == std::string::npos) {
            continue;
        }
        out << JsonLine(AnswerLine(*line)) << '\n' << std::flush;
        ++answered;
        if (progress != nullptr && answered % kProgressEvery == 0) {
            *progress << '\r' << answered << " requests answered" << std::flush;
        }
    }
    if (progress != nullptr && answered >= kProgressEvery) {
        *progress << '\r' << answered << " requests answered\n" << std::flush;
    }
}

}  // namespace numerello
