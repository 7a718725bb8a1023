#include "tests/worksheet/desk.h"

namespace numerello {
namespace {

class PlaybackTest : public Desk {
  protected:
    void SetUp() override {
        Choose(53);
        Type("40");
    }

    void SolveWithLastLine(const std::string& line) {
        SolveInLines<3>();
        problem.log.StepText[3] = line;
        sheet.blinker_Click();
    }
};

TEST_F(PlaybackTest, ALogOfOneLineGetsItsCheckMarkAtOnce) {
    SolveInLines<1>();
    EXPECT_EQ(ShownStep(), 2);
    EXPECT_EQ(Note(), "");
    EXPECT_FALSE(sheet.ArrowVisible());
    EXPECT_EQ(RowsOf(First()).size(), 1U);
    ASSERT_EQ(ChecksOf(First()).size(), 1U);
    EXPECT_NEAR(ChecksOf(First())[0].x, EndOf("40") + 5, 1e-6);
    EXPECT_NEAR(ChecksOf(First())[0].y, BaseOf(0) - 15, 1e-6);
}

TEST_F(PlaybackTest, ALogOfOneLineAllAtOnceKeepsTheInstruction) {
    problem.settings.mnuShowStep = false;
    SolveInLines<1>();
    EXPECT_EQ(ShownStep(), 0);
    EXPECT_EQ(Note(), problem.topic.InstructionText);
    EXPECT_EQ(ChecksOf(First()).size(), 1U);
    EXPECT_FALSE(sheet.ArrowVisible());
}

TEST_F(PlaybackTest, TheArrowFlashesOnlyWhileItWaits) {
    sheet.Timer2_Timer();
    EXPECT_FALSE(sheet.ArrowFrame());
    EXPECT_FALSE(sheet.Timer2Enabled());

    SolveInLines<3>();
    EXPECT_TRUE(sheet.Timer2Enabled());
    sheet.Timer2_Timer();
    EXPECT_TRUE(sheet.ArrowFrame());
    sheet.Timer2_Timer();
    EXPECT_FALSE(sheet.ArrowFrame());

    sheet.blinker_Click();
    EXPECT_FALSE(sheet.Timer2Enabled());
    sheet.Timer2_Timer();
    EXPECT_FALSE(sheet.ArrowFrame());
}

TEST_F(PlaybackTest, AClickWithoutArrowDoesNothing) {
    sheet.blinker_Click();
    EXPECT_EQ(ShownStep(), 0);
    SolveInLines<2>();
    sheet.blinker_Click();
    EXPECT_EQ(ShownStep(), 2);
    EXPECT_EQ(RowsOf(First()).size(), 2U);
    EXPECT_EQ(ChecksOf(First()).size(), 1U);
}

TEST_F(PlaybackTest, TheArrowStaysOnTheSheet) {
    SolveInLines<4>();
    // 67 + 86 letters end at 744.88, five small digits of 5.2549 at 771.16.
    problem.log.StepText[3] = std::string(86, 'x') + "^22222^";
    sheet.blinker_Click();
    EXPECT_NEAR(problem.playback.LineEndX, 767.157, 1e-3);
    EXPECT_EQ(First().arrowLeft, 760);
    EXPECT_NEAR(First().arrowTop, BaseOf(2) - 13, 1e-6);
}

TEST_F(PlaybackTest, TheArrowMayReachToTheEdge) {
    SolveInLines<4>();
    // One small digit less than two: 744.88 + 5.25 - 4 + 10.
    problem.log.StepText[3] = std::string(86, 'x') + "^2^";
    sheet.blinker_Click();
    EXPECT_NEAR(First().arrowLeft, 67 + 86 * kCharacter + 134.0 / 204 * 8 + 6, 1e-6);
}

TEST_F(PlaybackTest, TheCheckMarkStaysOnTheSheet) {
    SolveWithLastLine(std::string(86, 'x') + "^22222^");
    ASSERT_EQ(ChecksOf(First()).size(), 1U);
    EXPECT_EQ(ChecksOf(First())[0].x, 760);
    EXPECT_NEAR(ChecksOf(First())[0].y, BaseOf(2) - 15, 1e-6);
}

TEST_F(PlaybackTest, AnEmptyLastLineIsNotDrawn) {
    SolveWithLastLine("");
    EXPECT_EQ(RowsOf(First()).size(), 2U);
    ASSERT_EQ(ChecksOf(First()).size(), 1U);
    EXPECT_NEAR(ChecksOf(First())[0].y, BaseOf(1) - 15, 1e-6);
}

TEST_F(PlaybackTest, ALineThatCannotBeDrawnWholeIsToldAndPlaybackGoesOn) {
    SolveInLines<4>();
    problem.log.StepText[3] = "ab^2";
    sheet.blinker_Click();
    EXPECT_EQ(learner.messages.size(), 1U);
    ExpectRow(First(), 2, BaseOf(2), "ab");
    EXPECT_TRUE(sheet.ArrowVisible());
    sheet.blinker_Click();
    ExpectRow(First(), 3, BaseOf(3), "line 4");
    EXPECT_EQ(ChecksOf(First()).size(), 1U);
}

TEST_F(PlaybackTest, TheWindowHearsOfEveryChange) {
    int changes = 0;
    sheet.OnChange([&changes] { ++changes; });
    const auto heard = [&changes](const auto& act) {
        changes = 0;
        act();
        return changes > 0;
    };
    EXPECT_TRUE(heard([this] { Type("5"); }));
    EXPECT_TRUE(heard([this] { SolveInLines<4>(); }));
    EXPECT_TRUE(heard([this] { sheet.Timer2_Timer(); }));
    EXPECT_TRUE(heard([this] { sheet.blinker_Click(); }));
    EXPECT_TRUE(heard([this] { sheet.Centre(900); }));
    EXPECT_TRUE(heard([this] {
        sheet.mnuShowStep_Click(false);
        sheet.blinker_Click();
    }));
    EXPECT_FALSE(heard([this] { sheet.blinker_Click(); }));
    EXPECT_FALSE(heard([this] { sheet.Timer2_Timer(); }));
    EXPECT_TRUE(heard([this] { sheet.BlankSheets(); }));
    EXPECT_TRUE(heard([this] { sheet.Open(900); }));
}

struct GraphCase {
    int code;
    int mode;

    friend void PrintTo(const GraphCase& shown, std::ostream* out) { *out << shown.code; }
};

class GraphPlaybackTest : public Desk, public testing::WithParamInterface<GraphCase> {};

TEST_F(PlaybackTest, AnEquationWithoutASolutionOpensNoGraph) {
    Choose(105);
    SolveInLines<3>();
    sheet.calls.clear();
    sheet.blinker_Click();
    EXPECT_TRUE(sheet.calls.empty());
    EXPECT_EQ(problem.graph.GraphMode, 0);
}

TEST_P(GraphPlaybackTest, TheGraphOpensAfterTheLastLine) {
    Choose(GetParam().code);
    SolveInLines<3>();
    EXPECT_TRUE(sheet.calls.empty());
    EXPECT_EQ(problem.graph.GraphMode, 0);

    problem.typed.ExprVariants[0] = "+";
    sheet.calls.clear();
    sheet.blinker_Click();
    EXPECT_EQ(sheet.calls, std::vector<std::string>{"OpenGraph"});
    EXPECT_EQ(problem.graph.GraphMode, GetParam().mode);
    EXPECT_EQ(ChecksOf(First()).size(), 1U);
}

TEST_P(GraphPlaybackTest, AllAtOnceItDoesNotOpen) {
    Choose(GetParam().code);
    problem.settings.mnuShowStep = false;
    SolveInLines<3>();
    EXPECT_TRUE(sheet.calls.empty());
    EXPECT_EQ(problem.graph.GraphMode, 0);
    EXPECT_EQ(ChecksOf(First()).size(), 1U);
}

TEST_F(PlaybackTest, AGraphWithoutLinesHasNothingToPlay) {
    for (const bool stepped : {true, false}) {
        for (const auto& [code, line] : {std::pair(106, "(1,2)-(5,6)"), std::pair(108, "(4,8)")}) {
            problem.settings.mnuShowStep = stepped;
            Choose(code);
            Type(line);
            EXPECT_EQ(Solve(), std::nullopt);
            EXPECT_EQ(RowsOf(First()).size(), 1U);
            EXPECT_TRUE(ChecksOf(First()).empty());
            EXPECT_FALSE(sheet.ArrowVisible());
            EXPECT_EQ(ShownStep(), 0);
            EXPECT_EQ(Note(), problem.topic.InstructionText);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(EquationAndPoint, GraphPlaybackTest,
                         testing::Values(GraphCase{105, 3}, GraphCase{107, 1}));

}  // namespace
}  // namespace numerello
