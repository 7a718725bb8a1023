#pragma once

#include <gtest/gtest.h>

#include "log_check.h"

namespace numerello {

#ifdef NDEBUG
constexpr int kInventedProblems = 5000;
#else
constexpr int kInventedProblems = 1000;
#endif

/// Invents problems of a code and judges their logs. At least seven in ten have to tell something.
template <class Judge>
void JudgeMany(int code, std::uint32_t seed, int count, const AnswerSettings& settings,
               Judge judge) {
    InventedProblems problems(code, seed);
    Findings findings;
    int judged = 0;
    SolvedProblem slowest;
    for (int i = 0; i < count; ++i) {
        SolvedProblem worked = problems.Next();
        worked.settings = settings;
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
    EXPECT_GE(judged, count * 7 / 10);
    EXPECT_TRUE(findings.None()) << "seed " << seed << findings.Report();
}

}  // namespace numerello
