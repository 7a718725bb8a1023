#include <gtest/gtest.h>

#include "core/failure.h"
#include "tests/catalogue/typing.h"

namespace numerello {
namespace {

TEST(CheckKey, WantsParenthesesClosedBeforeTheEqualSign) {
    Problem problem = Typed("Simplifying Polynomials", "(x+1");
    EXPECT_FALSE(CheckKey(problem, "="));
    EXPECT_EQ(problem.input.InputError,
              "You must close the parenthesis before typing the equal sign (=).");
    Type(problem, ")");
    EXPECT_TRUE(CheckKey(problem, "="));
    EXPECT_EQ(problem.input.InputError, "");
}

TEST(StoreDigitUnjudged, StoresADigitThatIsOneTooMany) {
    Problem problem = Typed("Prime/Composite", "12345");
    Type(problem, "6");
    EXPECT_FALSE(problem.input.KeyAccepted);
    EXPECT_EQ(problem.typed.ProblemText, "12345");
    StoreDigitUnjudged(problem, "6");
    EXPECT_TRUE(problem.input.KeyAccepted);
    EXPECT_EQ(problem.input.InputError, "");
    EXPECT_EQ(problem.typed.ProblemText, "123456");
    EXPECT_EQ(problem.typed.DisplayLine, "123456");
}

TEST(StoreDigitUnjudged, StoresNothingElse) {
    Problem problem = Typed("Prime/Composite", "1");
    for (const char* other : {"x", ")", "/", "", "12"}) {
        EXPECT_THROW(StoreDigitUnjudged(problem, other), Failure) << other;
    }
    EXPECT_EQ(problem.typed.ProblemText, "1");
}

}  // namespace
}  // namespace numerello
