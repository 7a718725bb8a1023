#include "log_check.h"

#include <gtest/gtest.h>

#include "equation_check.h"

/// The judges of logs find what is planted in logs written by hand.
namespace numerello {
namespace {

SolvedProblem Written(int code, std::string typed, std::vector<std::string> lines,
                      std::string lastNote = "A reason.") {
    SolvedProblem worked;
    worked.code = code;
    worked.typed = std::move(typed);
    worked.notes.assign(lines.size(), "A reason.");
    worked.notes.front().clear();
    worked.notes.back() = std::move(lastNote);
    worked.lines = std::move(lines);
    return worked;
}

TEST(JudgeExactLines, FindsWhatIsWrong) {
    EXPECT_EQ(JudgeExactLines(Written(91, "4+2*3", {"4+2*3", "4+6", "10"})).wrong, "");
    const SolvedProblem kWrong[] = {
        Written(91, "4+2*3", {"4+2*3", "4+5", "10"}),
        Written(91, "4+2*3", {"4+2*3", "4+6"}),
        Written(91, "4+2*3", {"4+3*2", "4+6", "11"}),
        Written(91, "4+2*3", {"4+2*3", "4+6", "4+6", "10"}),
        Written(91, "4+2*3", {"4+2*3", "", "10"}),
        Written(91, "4+2*3", {"4+2*3", "4+6", "10"}, ""),
        Written(91, "1/0", {"#1/0#", "0"}),
        Written(81, "0^0", {"0^0^", "1"}),
        Written(102, "x+x", {"x+x", "x^2^"}),
        Written(82, "~8~", {"~8~", "2~3~"}),
        Written(83, "12", {"12", "2^2^*4"}),
        Written(120, "|3-7|", {"|3-7|", "|-4|", "-4"}),
    };
    for (const SolvedProblem& worked : kWrong) {
        EXPECT_NE(JudgeExactLines(worked).wrong, "") << worked.Description();
    }
}

TEST(JudgeExactLines, FindsFailuresWithoutACause) {
    SolvedProblem worked = Written(91, "4+2", {"4+2"});
    for (const FailureKind kind :
         {FailureKind::Format, FailureKind::DivisionByZero, FailureKind::Overflow}) {
        worked.failure = kind;
        EXPECT_NE(JudgeExactLines(worked).wrong, "");
    }
}

TEST(JudgeExactLines, SkipsWhatSinglesDoNotHold) {
    EXPECT_TRUE(JudgeExactLines(Written(91, "16777216+1", {"16777216+1", "16777216"})).skipped);
}

TEST(JudgeRoundedLines, AllowsTheRoundingAlone) {
    const auto wrongWith = [](std::vector<std::string> lines) {
        SolvedProblem worked = Written(91, "1/3+1/3", std::move(lines));
        worked.settings.UseFractions = false;
        return JudgeRoundedLines(worked).wrong;
    };
    EXPECT_EQ(wrongWith({"#1/3#+#1/3#", "0.33+0.33", "0.66"}), "");
    EXPECT_NE(wrongWith({"#1/3#+#1/3#", "0.34+0.34", "0.68"}), "");
    EXPECT_NE(wrongWith({"#1/3#+#1/3#", "0.33+0.33", "0.67"}), "");
    EXPECT_NE(wrongWith({"#1/3#+#1/3#", "0.33+0.33"}), "");
}

TEST(JudgeEquation, FindsOtherSolutions) {
    EXPECT_EQ(JudgeEquation(Written(101, "2x=6", {"2x=6", "#2x/[2]#=#6/[2]#", "x=3"})).wrong, "");
    const std::string none = "Since 1 does not equal 2, this equation has no solutions.";
    EXPECT_EQ(JudgeEquation(Written(101, "x+1=x+2", {"x+1=x+2", "1$2"}, none)).wrong, "");
    const std::string any = "Since 3 equals 3 then x can be any real number.";
    EXPECT_EQ(JudgeEquation(Written(101, "x+3=x+3", {"x+3=x+3", "3=3"}, any)).wrong, "");
    const SolvedProblem kWrong[] = {
        Written(101, "2x=6", {"2x=6", "#2x/[2]#=#6/[2]#", "x=2"}),
        Written(101, "2x=6", {"2x=6", "x=4", "x=3"}),
        Written(101, "2x=6", {"2x=6", "3=x"}),
        Written(101, "x+1=x+2", {"x+1=x+2", "1=2"}),
        Written(101, "x+1=x+2", {"x+1=x+2", "2$1"}, none),
        Written(101, "x+3=x+3", {"x+3=x+3", "3$3"}, none),
        Written(105, "2x+3y=6", {"2x+3y=6", "x=-#3y/2#+3"}),
        Written(105, "2x+3y=6", {"2x+3y=6", "y=#2x/3#+2"}),
    };
    for (const SolvedProblem& worked : kWrong) {
        EXPECT_NE(JudgeEquation(worked).wrong, "") << worked.Description();
    }
}

}  // namespace
}  // namespace numerello
