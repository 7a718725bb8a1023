#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sstream>

#include "cli/batch.h"
#include "cli/json.h"

/// Any bytes as a stream of requests: each line that is not blank gets one answer, an object that
/// says whether it is one.
namespace {

using namespace numerello;

void Expect(bool right, const char* wrong, const std::string& stream) {
    if (!right) {
        std::fprintf(stderr, "%s: %s\n", wrong, stream.c_str());
        std::abort();
    }
}

bool IsBlank(std::string line) {
    if (line.ends_with('\r')) {
        line.pop_back();
    }
    if (line.starts_with("\xEF\xBB\xBF")) {
        line.erase(0, 3);
    }
    return line.find_first_not_of(" \t") == std::string::npos;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const std::string stream(reinterpret_cast<const char*>(data), size);
    std::istringstream requests(stream);
    std::ostringstream answers;
    RunBatch(requests, answers, nullptr);

    std::istringstream asked(stream);
    std::istringstream given(answers.str());
    std::string line;
    std::string answer;
    while (std::getline(asked, line)) {
        if (IsBlank(line)) {
            continue;
        }
        Expect(static_cast<bool>(std::getline(given, answer)), "an answer is missing", stream);
        const Json read = Json::parse(answer, nullptr, false);
        Expect(read.is_object() && read.contains("id") && read.contains("ok") &&
                   read.at("ok").is_boolean() && read.at("ok") != read.contains("error"),
               "an answer is none", stream);
    }
    Expect(!std::getline(given, answer), "there is an answer too many", stream);
    return 0;
}
