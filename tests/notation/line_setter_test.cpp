#include "notation/line_setter.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/failure.h"
#include "core/topic_codes.h"

namespace numerello {
namespace {

using Tokens = std::vector<std::string>;

std::string SetOut(const Tokens& tokens, int ProblemType = kSimplifyingPolynomials) {
    LineSetter setter(ProblemType);
    for (const std::string& token : tokens) {
        setter.Add(token);
    }
    setter.CloseAll();
    std::string line;
    for (const MarkedToken& token : setter.Line()) {
        line += token.before + token.text + token.after;
    }
    return line;
}

TEST(LineSetter, ClosesExponents) {
    EXPECT_EQ(SetOut({"x", "^", "2"}), "x^2^");
    EXPECT_EQ(SetOut({"x", "^", "2", "+", "3"}), "x^2^+3");
    EXPECT_EQ(SetOut({"x", "^", "-", "2", "y"}), "x^-2^y");
}

TEST(LineSetter, AsksForAnExponentThatIsNotThere) {
    EXPECT_EQ(SetOut({"x", "^"}), "x^?^");
}

TEST(LineSetter, OpensAFractionBeforeItsNumerator) {
    EXPECT_EQ(SetOut({"1/2"}), "#1/2#");
    EXPECT_EQ(SetOut({"1/2", "+", "x"}), "#1/2#+x");
    EXPECT_EQ(SetOut({"3", "+", "x", "/", "4", "-", "1"}), "3+#x/4#-1");
    EXPECT_EQ(SetOut({"(", "x", "+", "1", ")", "/", "2"}), "#(x+1)/2#");
    EXPECT_EQ(SetOut({"|", "x", "|", "/", "2"}), "#|x|/2#");
}

TEST(LineSetter, WritesFractionsWithinANumeratorPlainly) {
    EXPECT_EQ(SetOut({"(", "1/2", "+", "x", ")", "/", "3"}), "#(1/2+x)/3#");
}

TEST(LineSetter, DividesFractionsByEachOther) {
    EXPECT_EQ(SetOut({"1/2", "/", "3/4"}, kFractionArithmetic), "#1/2#{#3/4#");
}

TEST(LineSetter, ClosesRootsAndDropsAOneBeforeThem) {
    EXPECT_EQ(SetOut({"2", "~", "9", "+", "1"}), "2~9~+1");
    EXPECT_EQ(SetOut({"1", "~", "9"}), "~9~");
    EXPECT_EQ(SetOut({"~", "9", "=", "x"}), "~9~=x");
}

TEST(LineSetter, EndsWithinTheEmphasisWhatBeganThere) {
    EXPECT_EQ(SetOut({"2", "+", "[", "x", "^", "2", "]", "+", "1"}), "2+[x^2^]+1");
    EXPECT_EQ(SetOut({"[", "x", "^", "]", "+", "1"}), "[x^?^]+1");
    EXPECT_EQ(SetOut({"[", "2", "~", "9", "]", "+", "1"}), "[2~9~]+1");
    EXPECT_EQ(SetOut({"[", "x", "/", "2", "]", "+", "1"}), "[#x/2#]+1");
}

TEST(LineSetter, GoesOnBehindTheEmphasisWithWhatBeganBefore) {
    EXPECT_EQ(SetOut({"x", "/", "[", "2", "]", "+", "1"}), "#x/[2]#+1");
}

TEST(LineSetter, PassesOverAnEmphasisThatWasNotOpened) {
    EXPECT_EQ(SetOut({"]", "x", "]"}), "x");
}

TEST(LineSetter, FailsAtAParenthesisThatClosesNothing) {
    EXPECT_THROW(SetOut({")"}), Failure);
    EXPECT_THROW(SetOut({"x", ")"}), Failure);
    EXPECT_THROW(SetOut({"(", "x", ")", ")"}), Failure);
}

TEST(LineSetter, FailsAtAFractionBarWithNothingBeforeIt) {
    EXPECT_THROW(SetOut({"/"}), Failure);
    EXPECT_THROW(SetOut({"x", "+", "/"}), Failure);
    EXPECT_THROW(SetOut({"[", "/"}), Failure);
}

}  // namespace
}  // namespace numerello
