#include "tests/worksheet/desk.h"

namespace numerello {
namespace {

struct Step {
    std::string text;
    std::string note;
};

// 40 / 12 = 3.33 and 3.33 / 3 = 1.11, both at two digits; these are the lines 2 to 9 of the log.
const std::vector<Step> kFortyInches{
    {"To convert inches to yards, first convert inches to feet:",
     "Convert inches to feet, then convert feet to yards."},
    {"There are 12 inches in a foot.", "12 inches = 1 foot"},
    {"To convert inches to feet, divide the number of inches (40) by 12:",
     "Dividing by 12 will convert inches to feet."},
    {"40 inches = 3.33 feet", "Inches converted to feet."},
    {"There are 3 feet in a yard.", "3 feet = 1 yard"},
    {"To convert feet to yards, divide the number of feet (3.33) by 3:",
     "Dividing by 3 will convert feet to yards."},
    {"3.33 feet = 1.11 yards", "Convert feet to yards."},
    {"40 inches = 1.11 yards", "Substitute the number of inches back into the equation."}};

constexpr int kInchesToYards = 53;
constexpr int kMeterConversions = 23;

class ConversionTest : public Desk {
  protected:
    void ExpectLines(std::size_t count) {
        EXPECT_EQ(RowsOf(First()).size(), count + 1);
        ExpectRow(First(), 0, BaseOf(0), "40");
        for (std::size_t i = 0; i < count; ++i) {
            const int row = static_cast<int>(i) + 1;
            ExpectRow(First(), row, BaseOf(row), kFortyInches[i].text);
        }
    }

    void ExpectCheckMark() {
        const std::vector<ImageMark> checks = ChecksOf(First());
        ASSERT_EQ(checks.size(), 1U);
        EXPECT_NEAR(checks[0].x, EndOf(kFortyInches.back().text) + 5, 1e-6);
        EXPECT_NEAR(checks[0].y, BaseOf(8) - 15, 1e-6);
    }

    void ExpectFinished() {
        ExpectLines(8);
        ExpectCheckMark();
        EXPECT_EQ(ShownStep(), 9);
        EXPECT_EQ(Note(), kFortyInches.back().note);
        EXPECT_FALSE(sheet.ArrowVisible());
        EXPECT_FALSE(sheet.Timer2Enabled());
    }
};

TEST_F(ConversionTest, EachClickOfTheArrowShowsALineUpToTheCheckMark) {
    Choose(kInchesToYards);
    EXPECT_EQ(Note(), problem.topic.InstructionText);
    Type("40");
    EXPECT_EQ(Solve(), std::nullopt);

    for (std::size_t i = 0; i + 1 < kFortyInches.size(); ++i) {
        SCOPED_TRACE(kFortyInches[i].text);
        const int row = static_cast<int>(i) + 1;
        ExpectLines(i + 1);
        EXPECT_EQ(ShownStep(), row + 1);
        EXPECT_EQ(Note(), kFortyInches[i].note);
        EXPECT_TRUE(sheet.ArrowVisible());
        EXPECT_TRUE(sheet.Timer2Enabled());
        EXPECT_NEAR(First().arrowLeft, EndOf(kFortyInches[i].text) + 10, 1e-6);
        EXPECT_NEAR(First().arrowTop, BaseOf(row) - 13, 1e-6);
        EXPECT_TRUE(ChecksOf(First()).empty());
        sheet.blinker_Click();
    }

    ExpectFinished();
}

TEST_F(ConversionTest, AllAtOnceShowsTheSameLinesAndNoArrow) {
    Choose(kInchesToYards);
    problem.settings.mnuShowStep = false;
    Type("40");
    EXPECT_EQ(Solve(), std::nullopt);

    ExpectFinished();
}

TEST_F(ConversionTest, AMetricConversionBeginsBelowItsLists) {
    Choose(kMeterConversions);
    problem.boxes.Text[3] = "5";
    problem.boxes.ListIndex[0] = 6;
    problem.boxes.ListIndex[1] = 3;
    EXPECT_EQ(Solve(), std::nullopt);

    const double base = 243 + 28.8;
    ExpectRow(First(), 0, base, "To convert 5 km to m:");
    EXPECT_EQ(RowsOf(First()).size(), 1U);
    EXPECT_NEAR(First().arrowTop, base - 13, 1e-6);

    sheet.blinker_Click();
    ExpectRow(First(), 1, base + 46, "Multiply 5 by the number of meters in a km (1000)");
    sheet.blinker_Click();
    sheet.blinker_Click();
    sheet.blinker_Click();
    EXPECT_EQ(ShownStep(), 6);
    ASSERT_EQ(ChecksOf(First()).size(), 1U);
    EXPECT_NEAR(ChecksOf(First())[0].x, EndOf("5 km = 5000 m") + 5, 1e-6);
    EXPECT_NEAR(ChecksOf(First())[0].y, base + 4 * 46 - 15, 1e-6);
}

}  // namespace
}  // namespace numerello
