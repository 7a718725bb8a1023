#include <gtest/gtest.h>

#include "catalogue/examples/example_click.h"
#include "equation_check.h"
#include "log_check.h"
#include "tests/catalogue/examples.h"
#include "tests/topics/solver_log.h"

/// Every example is worked, and where it can be told apart from the solvers, worked right.
namespace numerello {
namespace {

#ifdef NDEBUG
constexpr int kExamples = 500;
#else
constexpr int kExamples = 50;
#endif

/// Keeps the problem as it stands when it is to be solved.
class KeepingForm : public FillingForm {
  public:
    explicit KeepingForm(Problem& problem) : problem(problem) {}

    void ShowEntry() override {}
    void Form_KeyPress(std::string_view key) override { numerello::Form_KeyPress(problem, key); }
    void compute_Click() override {
        unsolved = problem;
        solved = true;
    }

    Problem unsolved;
    bool solved = false;

  private:
    Problem& problem;
};

/// A question for a letter's value gets a number, one for a letter a letter.
SolvedProblem Worked(const Problem& unsolved) {
    SolvedProblem worked;
    worked.code = unsolved.topic.ProblemType;
    worked.typed = unsolved.typed.ProblemText;
    worked.unsolved = unsolved;
    const std::string letters = LettersOf(worked.typed);
    for (std::size_t i = 0; worked.code == 103 && i < letters.size(); ++i) {
        worked.answers.push_back(std::to_string(static_cast<int>(i) - 2));
    }
    if (worked.code == 105 && !letters.empty()) {
        worked.answers.emplace_back(1, letters.back());
    }
    Solve(worked);
    return worked;
}

/// Whether a term of the equation holds two letters. No judge can solve such a one.
bool MultipliesLetters(std::string_view equation) {
    int letters = 0;
    for (const char character : equation) {
        const bool isLetter = character == 'x' || character == 'y';
        const bool endsTerm = character == '+' || character == '-' || character == '=';
        letters = endsTerm ? 0 : letters + (isLetter ? 1 : 0);
        if (letters > 1) {
            return true;
        }
    }
    return false;
}

/// Whether a fraction shows two bars, as when a fraction behind a bracket is divided once more. No
/// judge can read such a line.
bool ShowsTwoBars(std::string_view line) {
    bool within = false;
    int bars = 0;
    for (const char character : line) {
        within = within != (character == '#');
        bars = within ? bars + (character == '/' ? 1 : 0) : 0;
        if (bars > 1) {
            return true;
        }
    }
    return false;
}

/// Skipped where nothing tells the right lines.
Verdict Judged(const SolvedProblem& worked) {
    switch (worked.code) {
        case 76:
        case 81:
        case 82:
        case 83:
        case 91:
        case 120:
        case 150:
            return JudgeExactLines(worked);
        case 102:
        case 103:
        case 121:
            return ShowsTwoBars(worked.unsolved.typed.DisplayLine) ? Verdict{true, ""}
                                                                   : JudgeExactLines(worked);
        case 101:
        case 105:
            return MultipliesLetters(worked.typed) ? Verdict{true, ""} : JudgeEquation(worked);
        default:
            return {true, ""};
    }
}

/// Columns and points are drawn.
bool HasLines(int code) {
    return code < 200 && code != 106 && code != 108;
}

/// What tells right from wrong for so many of a thousand examples.
int LeastJudged(int code) {
    const std::map<int, int> kLeast{{76, 900},  {81, 900},  {82, 900},  {83, 900},
                                    {91, 900},  {120, 900}, {150, 900}, {102, 900},
                                    {103, 900}, {121, 900}, {101, 500}, {105, 100}};
    const auto found = kLeast.find(code);
    return found == kLeast.end() ? 0 : found->second;
}

class SolvedExamples : public ::testing::TestWithParam<std::string_view> {};

TEST_P(SolvedExamples, AreWorked) {
    Problem problem = Opened(GetParam());
    const int code = problem.topic.ProblemType;
    int judged = 0;
    Stage stage;
    Findings findings;
    for (const int ComplexEx : {0, 2}) {
        problem.settings.ComplexEx = ComplexEx;
        for (int i = 0; i < kExamples; ++i) {
            MomentDraws draws(MomentAt(i * 7 % kMoments), static_cast<std::uint32_t>(i));
            KeepingForm form(problem);
            example_Click(problem, stage, form, *draws);
            ASSERT_TRUE(form.solved) << problem.typed.ProblemText;
            const SolvedProblem worked = Worked(form.unsolved);
            const Verdict verdict = Judged(worked);
            judged += verdict.skipped ? 0 : 1;
            if (!verdict.wrong.empty()) {
                findings.Add(verdict.wrong, worked);
            }
            if (worked.failure && verdict.skipped) {
                findings.Add("a failure", worked);
            }
            if (!worked.failure && worked.lines.empty() == HasLines(code)) {
                findings.Add("no lines", worked);
            }
        }
    }
    EXPECT_GE(judged, LeastJudged(code) * kExamples / 500);
    EXPECT_TRUE(findings.None()) << findings.Report();
}

std::vector<std::string_view> AllCaptions() {
    std::vector<std::string_view> captions;
    for (const Topic& topic : Topics()) {
        captions.push_back(topic.caption);
    }
    return captions;
}

INSTANTIATE_TEST_SUITE_P(Topics, SolvedExamples, ::testing::ValuesIn(AllCaptions()));

}  // namespace
}  // namespace numerello
