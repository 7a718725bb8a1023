#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <vector>

#include "app/solvers.h"
#include "catalogue/topics.h"
#include "typing.h"

/// Any problem of the expression topics: it is worked or it fails, within the bounds of the log.
/// The first byte picks the topic, the second the settings; then come the keys, and behind a line
/// break the answers to prompts, each on a line of its own.
namespace {

using namespace numerello;

constexpr int kCodes[] = {76, 81, 82, 83, 91, 101, 102, 103, 105, 120, 121, 150};

std::vector<Problem> OpenedForms() {
    std::vector<Problem> opened;
    for (const int code : kCodes) {
        opened.push_back(Opened(FindTopicByCode(code)->caption));
    }
    return opened;
}

AnswerSettings SettingsOf(unsigned char byte) {
    AnswerSettings settings;
    settings.UseFractions = byte % 2 == 0;
    settings.DetailLevel = 1 + byte / 2 % 3;
    settings.RoundDigits = 1 + byte / 8 % 5;
    return settings;
}

/// Answers with one line after the other, then cancels.
class LinesLearner : public Learner {
  public:
    explicit LinesLearner(std::string_view lines) : lines(lines) {}

    void MessageBox(std::string_view, std::string_view) override {}
    bool Confirm(std::string_view, std::string_view) override { return true; }
    std::optional<std::string> InputBox(std::string_view, std::string_view) override {
        if (lines.empty()) {
            return std::nullopt;
        }
        const std::size_t end = std::min(lines.find('\n'), lines.size());
        std::string answer(lines.substr(0, end));
        lines.remove_prefix(std::min(end + 1, lines.size()));
        return answer;
    }

  private:
    std::string_view lines;
};

void Expect(bool right, const char* wrong, const Problem& problem) {
    if (!right) {
        std::fprintf(stderr, "%d: %s: %s\n", problem.topic.ProblemType,
                     problem.typed.ProblemText.c_str(), wrong);
        std::abort();
    }
}

void ExpectWholeLog(const Problem& problem, bool worked) {
    const StepLog& log = problem.log;
    Expect(log.StepCount >= 1 && log.StepCount <= StepLog::kTopIndex + 1, "the log is too long",
           problem);
    Expect(!worked || log.StepCount > 1, "the log is empty", problem);
    for (int i = 1; i < log.StepCount; ++i) {
        Expect(!log.StepText[i].empty(), "a line is empty", problem);
        Expect(i == 1 || log.StepText[i] != log.StepText[i - 1] || problem.settings.DetailLevel > 1,
               "a line repeats the one before", problem);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    static const std::vector<Problem> kOpened = OpenedForms();
    if (size < 3) {
        return 0;
    }
    Problem problem = kOpened[data[0] % std::size(kCodes)];
    problem.settings = SettingsOf(data[1]);
    const std::string_view text(reinterpret_cast<const char*>(data) + 2, size - 2);
    const std::size_t end = std::min(text.find('\n'), text.size());
    Type(problem, text.substr(0, end));
    LinesLearner learner(text.substr(std::min(end + 1, text.size())));
    Stage stage;
    const bool worked = !compute_Click(problem, AllSolvers(), learner, stage);
    ExpectWholeLog(problem, worked);
    return 0;
}
