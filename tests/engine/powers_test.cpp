#include <gtest/gtest.h>

#include "core/failure.h"
#include "engine_log.h"

namespace numerello {
namespace {

constexpr int kPolynomials = 102;

/// A line that was read, and what a pass makes of it.
class Powers : public testing::Test {
  protected:
    Engine& Line(std::string_view text, int code = kPolynomials) {
        problem = ProblemWith(text, code);
        engine.emplace(problem);
        engine->SetText(text);
        engine->RecordStep();
        return *engine;
    }

    std::string Last() const { return problem.log.StepText[problem.log.StepCount - 1]; }
    std::string LastNote() const { return problem.log.StepNote[problem.log.StepCount - 1]; }

    Problem problem;
    std::optional<Engine> engine;
};

TEST_F(Powers, AreWrittenOutOverAndUnderTheLine) {
    EXPECT_TRUE(Line("3^2/9").ExpandConstantTerms(0));
    EXPECT_EQ(engine->ExprToText(), "+(+3*3)/9");
    EXPECT_TRUE(Line("5/2^3").ExpandConstantTerms(0));
    EXPECT_EQ(engine->ExprToText(), "+5/(+2*2*2)");
    EXPECT_TRUE(Line("2^-3").ExpandConstantTerms(0));
    EXPECT_EQ(engine->ExprToText(), "+1/(+2*2*2)");
}

TEST_F(Powers, ThatAreNegativeStandBesideADenominatorAsAFraction) {
    EXPECT_TRUE(Line("8^-2/3x").ExpandConstantTerms(0));
    EXPECT_EQ(engine->ExprToText(), "+1/(+8*8)*1/3x");
    // 8 * 8 * 8 * 2 = 1024
    Line("8^-3/2").SimplifyExpression();
    EXPECT_EQ(Last(), "#1/1024#");
}

TEST_F(Powers, ThatAreZeroAreOne) {
    EXPECT_TRUE(Line("7-5^0").ExpandConstantTerms(0));
    EXPECT_EQ(engine->ExprToText(), "+7-1");
    EXPECT_EQ(LastNote(), "Any number raised to the 0th power is 1.");
}

TEST_F(Powers, RepeatANumberAHundredTimesAtMost) {
    EXPECT_NO_THROW(Line("1^100").ExpandConstantTerms(0));
    EXPECT_THROW(Line("1^101").ExpandConstantTerms(0), Failure);
    EXPECT_THROW(Line("1^99999999999").ExpandConstantTerms(0), Failure);
}

TEST_F(Powers, RepeatABracketFiftyOneTimesAtMost) {
    EXPECT_TRUE(Line("(x)^51").ExpandPower(0));
    EXPECT_THROW(Line("(x)^52").ExpandPower(0), Failure);
    EXPECT_THROW(Line("(x)^99999999999").ExpandPower(0), Failure);
    EXPECT_FALSE(Line("(x)").ExpandPower(0));
}

TEST_F(Powers, InFrontOfABracketKeepItAFactor) {
    EXPECT_TRUE(Line("2^-1(3)").ExpandFrontPower(0));
    EXPECT_EQ(engine->ExprToText(), "+1/(+2)*(+3)");
    Line("2^-1(3)").SimplifyExpression();
    EXPECT_EQ(Last(), "#3/2#");
}

TEST_F(Powers, LeaveARadicandWithDecimalsAlone) {
    constexpr int kRoots = 82;
    Line("~2.5", kRoots).SimplifyRoots();
    EXPECT_EQ(Last(), "~2.5~");
}

}  // namespace
}  // namespace numerello
