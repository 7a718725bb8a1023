#include <gtest/gtest.h>

#include "app/solvers.h"
#include "core/silent_learner.h"
#include "tests/catalogue/typing.h"

namespace numerello {
namespace {

TEST(FractionArithmetic, TakesFractionsForItsSolveAlone) {
    SilentLearner learner;
    Stage stage;
    Problem problem = Typed("Fraction Arithmetic", "1/4+1/4");
    problem.settings.UseFractions = false;
    EXPECT_EQ(compute_Click(problem, AllSolvers(), learner, stage), std::nullopt);
    EXPECT_EQ(problem.log.StepText[problem.log.StepCount - 1], "#1/2#");
    EXPECT_FALSE(problem.settings.UseFractions);

    Problem failing = Typed("Fraction Arithmetic", "1/2/0/5");
    failing.settings.UseFractions = false;
    EXPECT_EQ(compute_Click(failing, AllSolvers(), learner, stage), FailureKind::DivisionByZero);
    EXPECT_FALSE(failing.settings.UseFractions);
}

TEST(FractionArithmetic, WorksWithNoFractionOverZero) {
    for (const char* typed : {"00/00+2", "2-00/00", "00/00-1/2+1/2", "3/00+1/2"}) {
        SilentLearner learner;
        Stage stage;
        Problem problem = Typed("Fraction Arithmetic", typed);
        EXPECT_EQ(compute_Click(problem, AllSolvers(), learner, stage), FailureKind::DivisionByZero)
            << typed;
    }
}

TEST(FractionArithmetic, EndsAQuotientThatIsPastFifteenDigits) {
    SilentLearner learner;
    Stage stage;
    Problem problem = Typed("Fraction Arithmetic", "1/99999/99999/1/99999/1/99999/1/2");
    EXPECT_EQ(compute_Click(problem, AllSolvers(), learner, stage), FailureKind::Overflow);
    EXPECT_LE(problem.log.StepCount, 10);
}

}  // namespace
}  // namespace numerello
