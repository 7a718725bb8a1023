#include <gtest/gtest.h>

#include "app/solvers.h"
#include "bench/typed_problem.h"

namespace numerello {
namespace {

TEST(FractionArithmetic, TakesFractionsForItsSolveAlone) {
    SilentLearner learner;
    Stage stage;
    Problem problem = TypedProblemOf("Fraction Arithmetic", "1/4+1/4");
    problem.settings.UseFractions = false;
    EXPECT_EQ(compute_Click(problem, AllSolvers(), learner, stage), std::nullopt);
    EXPECT_EQ(problem.log.StepText[problem.log.StepCount - 1], "#1/2#");
    EXPECT_FALSE(problem.settings.UseFractions);

    Problem failing = TypedProblemOf("Fraction Arithmetic", "1/2/0/5");
    failing.settings.UseFractions = false;
    EXPECT_EQ(compute_Click(failing, AllSolvers(), learner, stage), FailureKind::DivisionByZero);
    EXPECT_FALSE(failing.settings.UseFractions);
}

}  // namespace
}  // namespace numerello
