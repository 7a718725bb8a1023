#include "tests/worksheet/desk.h"

namespace numerello {
namespace {

struct ColumnCase {
    int code;
    bool ColumnRequest::*flag;

    friend void PrintTo(const ColumnCase& shown, std::ostream* out) { *out << shown.code; }
};

/// A column problem after its first drawing, which ended at (250, 339).
class ColumnPlaybackTest : public Desk, public testing::WithParamInterface<ColumnCase> {
  protected:
    void SetUp() override {
        Choose(GetParam().code);
        problem.columns.*GetParam().flag = true;
        problem.playback.ShownStep = 2;
        problem.playback.LineEndX = 250;
        problem.playback.LineEndY = 339;
    }

    bool IsAsked() const { return problem.columns.*GetParam().flag; }
};

TEST_P(ColumnPlaybackTest, TheArrowDrawsStepsUntilTheRequestIsServed) {
    sheet.PlaceBlinker();
    EXPECT_TRUE(sheet.ArrowVisible());
    EXPECT_EQ(First().arrowLeft, 260);
    EXPECT_EQ(First().arrowTop, 326);

    sheet.stepColumns = [this] { problem.playback.LineEndX = 270; };
    sheet.blinker_Click();
    EXPECT_EQ(sheet.calls, std::vector<std::string>{"StepColumns"});
    EXPECT_EQ(ShownStep(), 3);
    EXPECT_TRUE(IsAsked());
    EXPECT_TRUE(sheet.ArrowVisible());
    EXPECT_TRUE(sheet.Timer2Enabled());
    EXPECT_EQ(First().arrowLeft, 280);

    sheet.stepColumns = [this] { sheet.DrawCheckMark(); };
    sheet.blinker_Click();
    EXPECT_EQ(sheet.calls, (std::vector<std::string>{"StepColumns", "StepColumns"}));
    EXPECT_EQ(ShownStep(), 4);
    EXPECT_FALSE(IsAsked());
    EXPECT_FALSE(sheet.ArrowVisible());
    ASSERT_EQ(ChecksOf(First()).size(), 1U);
    EXPECT_EQ(ChecksOf(First())[0].x, 275);
    EXPECT_EQ(ChecksOf(First())[0].y, 324);
}

TEST_P(ColumnPlaybackTest, AllAtOnceNoArrowAppears) {
    problem.settings.mnuShowStep = false;
    sheet.PlaceBlinker();
    EXPECT_FALSE(sheet.ArrowVisible());
    EXPECT_FALSE(sheet.Timer2Enabled());
    EXPECT_TRUE(IsAsked());
}

TEST_P(ColumnPlaybackTest, UntickedInTheWaitTheClickStopsTheDrawing) {
    sheet.PlaceBlinker();
    sheet.mnuShowStep_Click(false);
    sheet.blinker_Click();
    EXPECT_TRUE(sheet.calls.empty());
    EXPECT_FALSE(sheet.ArrowVisible());
}

INSTANTIATE_TEST_SUITE_P(AllFour, ColumnPlaybackTest,
                         testing::Values(ColumnCase{200, &ColumnRequest::ColumnAdd},
                                         ColumnCase{201, &ColumnRequest::ColumnSubtract},
                                         ColumnCase{202, &ColumnRequest::ColumnMultiply},
                                         ColumnCase{203, &ColumnRequest::ColumnDivide}));

}  // namespace
}  // namespace numerello
