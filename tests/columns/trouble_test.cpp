#include "columns/column_rows.h"
#include "operands.h"

namespace numerello {
namespace {

const char* const kFormat =
    "The format of the entered problem was not recognized.  Click the 'Erase' button and try "
    "again.";

class AllColumns : public testing::TestWithParam<int> {};

TEST_P(AllColumns, TakeDigitsAlone) {
    for (const char* number : {"1.5", "-3", "1E2", ".", " 4", "4 ", "٤"}) {
        Film first(GetParam(), number, "2");
        first.DrawColumns();
        first.Solve();
        EXPECT_EQ(first.failure, FailureKind::Format) << number;
        EXPECT_TRUE(first.frames.empty()) << number;
        EXPECT_EQ(first.learner.messages.back(), kFormat) << number;
        Film second(GetParam(), "2", number);
        second.Solve();
        EXPECT_EQ(second.failure, FailureKind::Format) << number;
    }
}

TEST_P(AllColumns, EndInTheTrapWhenNumbersAreTooLong) {
    const std::string longNumber = "1" + std::string(40, '0');
    for (const bool stepwise : {true, false}) {
        Film film(GetParam(), longNumber, "2", stepwise);
        film.Play();
        EXPECT_NE(film.failure, std::nullopt);
        EXPECT_TRUE(film.frames.empty());
    }
}

TEST_P(AllColumns, FollowBoxesThatChangeInTheMiddle) {
    Film film(GetParam(), "47", "38");
    film.Solve();
    film.problem.boxes.Text[0] = "95";
    film.NextStep();
    Film other(GetParam(), "95", "38");
    other.Solve();
    other.NextStep();
    EXPECT_EQ(film.Last().Texts(), other.Last().Texts());
    EXPECT_EQ(film.Last().note, other.Last().note);
}

TEST_P(AllColumns, AFailureWhileTheyArePlayedEndsTheWork) {
    Film film(GetParam(), "47", "38");
    film.Solve();
    ASSERT_TRUE(film.problem.columns.Any());
    film.problem.boxes.Text[0] = "4.7";
    film.NextStep();
    EXPECT_EQ(film.failure, FailureKind::Format);
    EXPECT_EQ(film.learner.messages, std::vector<std::string>{kFormat});
    EXPECT_FALSE(film.problem.columns.Any());
    EXPECT_EQ(film.problem.playback.ShownStep, 0);
    EXPECT_EQ(film.problem.log.StepNote[0], film.problem.topic.InstructionText);
}

TEST_P(AllColumns, AFailureAllAtOnceLeavesTheInstruction) {
    Film film(GetParam(), "4.7", "38", false);
    film.Solve();
    EXPECT_EQ(film.failure, FailureKind::Format);
    EXPECT_EQ(film.problem.log.StepNote[0], film.problem.topic.InstructionText);
}

TEST_P(AllColumns, EmptyBoxesInTheMiddleDoNoHarm) {
    for (const char* number : {"", "7"}) {
        Film film(GetParam(), "47", "38");
        film.Solve();
        film.problem.boxes.Text = {number, ""};
        film.NextStep();
        EXPECT_TRUE(film.failure || film.frames.size() == 2);
    }
}

INSTANTIATE_TEST_SUITE_P(AllFour, AllColumns,
                         testing::Values(kAddition, kSubtraction, kMultiplication, kDivision));

TEST(Columns, WithoutARequestNothingIsDrawn) {
    Film film(kAddition, "4", "5");
    film.DrawColumns();
    film.Solve();
    const std::size_t marks = film.Last().marks.size();
    film.problem.columns.ClearFlags();
    film.DrawColumns();
    EXPECT_EQ(film.problem.playback.ShownStep, 2);
    EXPECT_EQ(film.Last().marks.size(), marks);
}

TEST(Columns, AlignDecimalsGivesBothTheSameDecimals) {
    // The boxes take no decimals, so this is not seen in a drawing.
    struct Case {
        std::string Top, Bottom, alignedTop, alignedBottom;
    };
    for (Case each : {Case{"12", "3", "12", "3"}, Case{"1.5", "2", "1.5", "2.0"},
                      Case{"2", "1.25", "2.00", "1.25"}, Case{".5", "1.25", "0.50", "1.25"},
                      Case{"1.25", ".5", "1.25", "0.50"}, Case{"", ".5", "0.0", "0.5"},
                      Case{".7", "1.5", "0.7", "1.5"}}) {
        AlignDecimals(each.Top, each.Bottom);
        EXPECT_EQ(each.Top, each.alignedTop);
        EXPECT_EQ(each.Bottom, each.alignedBottom);
    }
}

}  // namespace
}  // namespace numerello
