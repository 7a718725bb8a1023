#include "cli/batch.h"

#include <istream>
#include <ostream>
#include <string>

#include "cli/request_line.h"
#include "cli/requests.h"

namespace numerello {

namespace {

constexpr std::size_t kLongestLine = std::size_t{1024} * 1024;
constexpr int kProgressEvery = 100;

/// Reads a line without its end, but keeps no more than one byte past the longest. False at the
/// end of the input.
bool ReadLine(std::istream& in, std::string& line) {
    line.clear();
    std::streambuf* buffer = in.rdbuf();
    constexpr int kEnd = std::char_traits<char>::eof();
    int next = buffer->sbumpc();
    const bool any = next != kEnd;
    for (; next != kEnd && next != '\n'; next = buffer->sbumpc()) {
        if (line.size() <= kLongestLine + 1) {
            line.push_back(static_cast<char>(next));
        }
    }
    if (line.ends_with('\r')) {
        line.pop_back();
    }
    return any;
}

Json AnswerLine(const std::string& line) {
    Json id;
    if (line.size() > kLongestLine) {
        return Refusal(id, "the line is longer than 1 MiB");
    }
    try {
        Json request;
        ReadRequestLine(line, request, id);
        return Answer(request, id);
    } catch (const BadRequest& bad) {
        return Refusal(id, bad.what());
    }
}

}  // namespace

void RunBatch(std::istream& in, std::ostream& out, std::ostream* progress) {
    std::string line;
    int answered = 0;
    bool first = true;
    while (ReadLine(in, line)) {
        if (first && line.starts_with("\xEF\xBB\xBF")) {
            line.erase(0, 3);
        }
        first = false;
        if (line.find_first_not_of(" \t") == std::string::npos) {
            continue;
        }
        out << JsonLine(AnswerLine(line)) << '\n' << std::flush;
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
