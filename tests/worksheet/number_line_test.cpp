#include "worksheet/number_line.h"

#include "tests/worksheet/desk.h"

namespace numerello {
namespace {

using Lines = std::vector<std::string>;

/// A stroke as "x1,y1-x2,y2", a text as "text@x,y".
Lines InWords(std::span<const Mark> marks) {
    Lines words;
    for (const Mark& mark : marks) {
        if (const auto* const stroke = std::get_if<StrokeMark>(&mark)) {
            EXPECT_EQ(stroke->width, 2);
            EXPECT_EQ(stroke->color, kBlack);
            words.push_back(Text(NumberText(stroke->x1), ",", NumberText(stroke->y1), "-",
                                 NumberText(stroke->x2), ",", NumberText(stroke->y2)));
        } else if (const auto* const text = std::get_if<TextMark>(&mark)) {
            EXPECT_EQ(text->font.size, 12);
            EXPECT_EQ(text->font.name, kSheetFace);
            EXPECT_EQ(text->color, kBlack);
            words.push_back(Text(text->text, "@", NumberText(text->x), ",", NumberText(text->y)));
        }
    }
    return words;
}

const Lines kAxis{"150,150-550,150", "150,150-155,155", "150,150-155,145", "550,150-545,145",
                  "550,150-545,155", "350,145-350,155", "0@345,158"};

struct Case {
    double A;
    double B;
    Lines ticks;

    friend void PrintTo(const Case& shown, std::ostream* out) {
        *out << shown.A << " and " << shown.B;
    }
};

class NumberLineTest : public testing::TestWithParam<Case> {};

TEST_P(NumberLineTest, DrawsAxisZeroAndTicksInOrder) {
    const auto& [A, B, ticks] = GetParam();
    const PlainMetrics metrics;
    Surface surface(metrics, {std::string(kSheetFace), 12});
    surface.CurrentX = 67;
    surface.CurrentY = 81;
    DrawNumberLine(surface, A, B);

    Lines expected = kAxis;
    expected.insert(expected.end(), ticks.begin(), ticks.end());
    EXPECT_EQ(InWords(surface.Marks()), expected);
    EXPECT_EQ(surface.CurrentX, 67);
    EXPECT_EQ(surface.CurrentY, 127);
}

// A label stands 8 right of its tick, less 7 for each of its characters.
const std::vector<Case> kCases{
    {-2, 4, {"250,145-250,155", "-2@244,158", "450,145-450,155", "4@451,158"}},
    {4, -2, {"250,145-250,155", "-2@244,158", "450,145-450,155", "4@451,158"}},
    {2,
     4,
     {"217,145-217,155", "284,145-284,155", "417,145-417,155", "2@418,158", "484,145-484,155",
      "4@485,158"}},
    {15,
     3,
     {"217,145-217,155", "284,145-284,155", "417,145-417,155", "3@418,158", "484,145-484,155",
      "15@478,158"}},
    {-4,
     -2,
     {"217,145-217,155", "-4@211,158", "284,145-284,155", "-2@278,158", "417,145-417,155",
      "484,145-484,155"}},
    {-2,
     -4,
     {"217,145-217,155", "-4@211,158", "284,145-284,155", "-2@278,158", "417,145-417,155",
      "484,145-484,155"}},
    {0, 4, {"250,145-250,155", "450,145-450,155", "4@451,158"}},
    {4, 0, {"250,145-250,155", "450,145-450,155", "4@451,158"}},
    {0, -3, {"250,145-250,155", "-3@244,158", "450,145-450,155"}},
    {3, 3, {"250,145-250,155", "450,145-450,155", "3@451,158"}},
    {-3, -3, {"250,145-250,155", "-3@244,158", "450,145-450,155"}},
    {0, 0, {"250,145-250,155", "450,145-450,155"}},
    {-0.0, 0, {"250,145-250,155", "450,145-450,155"}},
    {-12345678,
     12345678,
     {"250,145-250,155", "-12345678@195,158", "450,145-450,155", "12345678@402,158"}},
    {-0.5, 2.25, {"250,145-250,155", "-0.5@230,158", "450,145-450,155", "2.25@430,158"}},
};

INSTANTIATE_TEST_SUITE_P(Cases, NumberLineTest, testing::ValuesIn(kCases));

class ComparingOnSheet : public Desk {
  protected:
    void SetUp() override { Choose(90); }

    void ExpectNumberLineOnceAndTheAnswer() {
        Lines expected = kAxis;
        for (const char* mark : {"250,145-250,155", "-2@244,158", "450,145-450,155", "4@451,158"}) {
            expected.emplace_back(mark);
        }
        const std::span<const Mark> marks = First().surface.Marks();
        constexpr std::size_t kTyped = 4;  // "-", "2", ",", "4"
        ASSERT_GT(marks.size(), kTyped + expected.size());
        EXPECT_EQ(InWords(marks.subspan(kTyped, expected.size())), expected);

        EXPECT_EQ(RowsOf(First()).size(), 3U);
        ExpectRow(First(), 0, BaseOf(0), "-2,4");
        ExpectRow(First(), 1, 158, "0-24");
        ExpectRow(First(), 2, BaseOf(2), "-2 < 4");
        EXPECT_EQ(Strokes(), 8);
        EXPECT_EQ(ChecksOf(First()).size(), 1U);
        EXPECT_FALSE(problem.playback.NumberLine.has_value());
    }

    std::ptrdiff_t Strokes() const {
        const std::vector<Mark>& marks = First().surface.Marks();
        return std::count_if(marks.begin(), marks.end(), [](const Mark& mark) {
            return std::holds_alternative<StrokeMark>(mark);
        });
    }
};

TEST_F(ComparingOnSheet, TheNumberLineStandsBetweenProblemAndAnswer) {
    Type("-2,4");
    EXPECT_EQ(Strokes(), 0);
    EXPECT_EQ(Solve(), std::nullopt);
    ExpectNumberLineOnceAndTheAnswer();
}

TEST_F(ComparingOnSheet, AllAtOnceItStandsThereToo) {
    problem.settings.mnuShowStep = false;
    Type("-2,4");
    EXPECT_EQ(Solve(), std::nullopt);
    ExpectNumberLineOnceAndTheAnswer();
}

TEST_F(ComparingOnSheet, ItIsNotDrawnAgainByALaterStep) {
    Type("-2,4");
    EXPECT_EQ(Solve(), std::nullopt);
    sheet.ShowNextStep();
    EXPECT_EQ(Strokes(), 8);
}

TEST_F(ComparingOnSheet, EraseTakesItAway) {
    Type("-2,4");
    EXPECT_EQ(Solve(), std::nullopt);
    EraseProblem(problem, sheet);
    EXPECT_TRUE(First().surface.Marks().empty());

    Type("7,5");
    EXPECT_EQ(Strokes(), 0);
    EXPECT_EQ(Solve(), std::nullopt);
    // Both positive: four ticks beside the zero.
    EXPECT_EQ(Strokes(), 10);
}

TEST_F(ComparingOnSheet, AFailedProblemHasNone) {
    Type("3,");
    EXPECT_EQ(Solve(), FailureKind::Format);
    EXPECT_EQ(Strokes(), 0);
    EXPECT_FALSE(problem.playback.NumberLine.has_value());
}

TEST_F(ComparingOnSheet, ARequestThatWasNotTakenEndsWithItsProblem) {
    problem.playback.NumberLine = NumberLineRequest{1, 2};
    EraseProblem(problem, sheet);
    EXPECT_FALSE(problem.playback.NumberLine.has_value());

    problem.playback.NumberLine = NumberLineRequest{1, 2};
    Type("-2,4");
    SolveInLines<3>();
    EXPECT_EQ(Strokes(), 0);

    problem.playback.NumberLine = NumberLineRequest{1, 2};
    FailSolve(problem, FailureKind::Format, learner);
    EXPECT_FALSE(problem.playback.NumberLine.has_value());
}

}  // namespace
}  // namespace numerello
