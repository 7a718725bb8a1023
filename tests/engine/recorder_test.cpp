#include <gtest/gtest.h>

#include "engine/engine.h"

namespace numerello {
namespace {

class RecorderTest : public testing::Test {
  protected:
    RecorderTest() { problem.topic.ProblemType = 102; }

    void Letters(std::initializer_list<const char*> letters) {
        problem.typed.VarCount = 1;
        for (const char* letter : letters) {
            problem.typed.VarNames[problem.typed.VarCount++] = letter;
        }
    }

    void Record(std::string_view text, const char* reason,
                Engine::Record record = Engine::Record::Line) {
        engine.SetText(text);
        problem.log.StepReason = reason;
        engine.RecordStep(record);
    }

    int Lines() const { return problem.log.StepCount - 1; }
    std::string Last() { return problem.log.StepText[problem.log.StepCount - 1]; }
    std::string LastNote() { return problem.log.StepNote[problem.log.StepCount - 1]; }

    Problem problem;
    Engine engine{problem};
};

TEST_F(RecorderTest, StoresTheLineAsTheLearnerSeesIt) {
    Record("3x^2-2", "");
    EXPECT_EQ(Lines(), 1);
    EXPECT_EQ(Last(), "3x^2^-2");
    EXPECT_FALSE(problem.log.StepUnchanged);
    EXPECT_EQ(engine.Tables().groups.at(0).terms.size(), 2U);
    EXPECT_EQ(engine.ExprToText(), "+3x^2-2");
}

TEST_F(RecorderTest, TheSameLineIsStoredOnce) {
    Record("3x+2", "");
    Record("3x+2", "again");
    EXPECT_EQ(Lines(), 1);
    EXPECT_TRUE(problem.log.StepUnchanged);
}

TEST_F(RecorderTest, ALineThatDiffersInItsEmphasisIsANewOne) {
    Record("x-4[+4]", "");
    Record("x-4+4", "Remove cancelled terms from both sides.");
    EXPECT_EQ(Lines(), 2);
    EXPECT_EQ(Last(), "x-4+4");
}

TEST_F(RecorderTest, AnEvaluatedLineThatDiffersInItsEmphasisIsTheSame) {
    problem.topic.ProblemType = 103;
    Record("4[(1)]", "");
    Record("4(1)", "next");
    EXPECT_EQ(Lines(), 1);
}

TEST_F(RecorderTest, ARefreshReadsTheTablesAndStoresNothing) {
    Record("3x+2", "");
    Record("3x", "gone", Engine::Record::Refresh);
    EXPECT_EQ(Lines(), 1);
    EXPECT_EQ(engine.Tables().groups.at(0).terms.size(), 1U);
}

TEST_F(RecorderTest, OnlyIfChangedWaitsForMergedTerms) {
    Record("3+2", "");
    Record("4+1", "turned", Engine::Record::OnlyIfChanged);
    EXPECT_EQ(Lines(), 1);
    EXPECT_TRUE(problem.log.StepUnchanged);
    Record("5", "added", Engine::Record::OnlyIfChanged);
    EXPECT_EQ(Last(), "5");
    Record("2/4", "");
    engine.CombineTerms(0, Engine::NegativeExponents::Keep, Engine::Record::OnlyIfChanged);
    EXPECT_EQ(Last(), "#1/2#");
    engine.CombineTerms(0, Engine::NegativeExponents::Keep, Engine::Record::OnlyIfChanged);
    Record("1/3", "turned", Engine::Record::OnlyIfChanged);
    EXPECT_EQ(Last(), "#1/2#");
}

TEST_F(RecorderTest, ReorderingShowsOnlyAsTheFirstLine) {
    Record("3+x", "Reorder the polynomial.");
    EXPECT_EQ(Lines(), 1);
    Record("x+3", "Reorder the polynomial.");
    EXPECT_EQ(Lines(), 1);
    EXPECT_FALSE(problem.log.StepUnchanged);
}

TEST_F(RecorderTest, RemovingParenthesesShowsOnlyWhenOneWent) {
    Record("(x+1)+(2)", "");
    Record("(x+2)+(1)", "Remove the parenthesis.");
    EXPECT_EQ(Lines(), 1);
    EXPECT_EQ(engine.Tables().groups.at(0).terms.at(1).Num, 2);
    Record("(x+2)+1", "Remove the parenthesis.");
    EXPECT_EQ(Lines(), 2);
    EXPECT_EQ(LastNote(), "Remove the parenthesis.");
}

TEST_F(RecorderTest, ReasonsHideCoefficientsOfOne) {
    Letters({"x", "y"});
    Record("2x", "Add 1x and -1x to (1x) and (-1x), #1x/2# and 21x.");
    EXPECT_EQ(LastNote(), "Add x and -x to (x) and (-x), #x/2# and 21x.");
}

TEST_F(RecorderTest, BehindTheFractionMarkTheSecondLetterKeepsItsOne) {
    Letters({"x", "y"});
    Record("2y", "Add 1y and (-1y) to #1y/2# and #1x/2#.");
    EXPECT_EQ(LastNote(), "Add y and (-y) to #1y/2# and #x/2#.");
}

TEST_F(RecorderTest, KeepsTheLevelOfEachStep) {
    problem.log.StepLevel = 2;
    Record("2x", "");
    EXPECT_EQ(problem.log.StepLevels[1], 2);
    EXPECT_EQ(problem.log.StepLevels[2], StepLog::kUnsetLevel);
}

TEST_F(RecorderTest, OpensTheTypedProblem) {
    problem.typed.ExprCells[4] = "4";
    problem.typed.ExprCells[8] = "*";
    problem.typed.ExprCells[12] = "-";
    problem.typed.ExprCells[16] = "3";
    problem.typed.ExprCellCount = 16;
    engine.Open();
    engine.RecordStep();
    EXPECT_EQ(Last(), "-4*3");
}

}  // namespace
}  // namespace numerello
