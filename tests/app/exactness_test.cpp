#include <gtest/gtest.h>

#include "log_check.h"

/// Every line of the log of an invented problem has the value of the problem, and the last one is
/// worked out.
namespace numerello {
namespace {

#ifdef NDEBUG
constexpr int kProblems = 5000;
constexpr int kDecimalProblems = 1000;
#else
constexpr int kProblems = 1000;
constexpr int kDecimalProblems = 200;
#endif

/// Invents problems of a code and judges their logs.
template <class Judge>
void JudgeMany(int code, std::uint32_t seed, int count, bool UseFractions, Judge judge) {
    InventedProblems problems(code, seed);
    Findings findings;
    int judged = 0;
    WorkedProblem slowest;
    for (int i = 0; i < count; ++i) {
        WorkedProblem worked = problems.Next();
        worked.settings.UseFractions = UseFractions;
        Solve(worked);
        const Verdict verdict = judge(worked);
        judged += verdict.skipped ? 0 : 1;
        if (!verdict.wrong.empty()) {
            findings.Add(verdict.wrong, worked);
        }
        if (worked.seconds > slowest.seconds) {
            slowest = worked;
        }
    }
    ::testing::Test::RecordProperty("judged", judged);
    ::testing::Test::RecordProperty("slowest", slowest.typed);
    ::testing::Test::RecordProperty("slowest_ms", std::to_string(slowest.seconds * 1000));
    EXPECT_GE(judged, count * 7 / 10) << "too many problems tell nothing";
    EXPECT_TRUE(findings.None()) << "seed " << seed << findings.Report();
}

class Exactness : public ::testing::TestWithParam<int> {};

TEST_P(Exactness, OfEveryLineOfInventedProblems) {
    JudgeMany(GetParam(), 20264, kProblems, true, JudgeExactLines);
}

INSTANTIATE_TEST_SUITE_P(Topics, Exactness,
                         ::testing::Values(91, 121, 81, 102, 82, 83, 76, 150, 120, 103),
                         ::testing::PrintToStringParamName());

class Rounding : public ::testing::TestWithParam<int> {};

TEST_P(Rounding, GoesNoFurtherThanTheDigits) {
    JudgeMany(GetParam(), 20265, kDecimalProblems, false, JudgeRoundedLines);
}

INSTANTIATE_TEST_SUITE_P(Topics, Rounding, ::testing::Values(91, 121, 81, 102, 120),
                         ::testing::PrintToStringParamName());

}  // namespace
}  // namespace numerello
