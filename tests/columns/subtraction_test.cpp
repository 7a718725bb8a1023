#include "operands.h"

namespace numerello {
namespace {

constexpr double kLeft = 80;
constexpr double kUpperMarks = 300;
constexpr double kLowerMarks = 300 + 43.0 / 3;
constexpr double kTopRow = 334.4;
constexpr double kBottomRow = 351.6;
constexpr double kAnswerRow = 372.8;

const char* const kSwitched =
    "The numbers will be switched because the top number must be larger than the bottom number.  "
    "To enter a problem that will produce a negative number, see 'Arithmetic' in the 'Basic "
    "Operations' chapter.";

/// A digit of the top number as it stands when its column is reached: one that lent has one less,
/// and a 0 that had to lend is a 9.
Whole Reached(Whole top, Whole bottom, int place) {
    const Whole behind = PowerOfTen(place);
    const Whole lent = top % behind < bottom % behind ? 1 : 0;
    return (DigitOf(top, place) - lent + 10) % 10;
}

std::string NoteOf(Whole top, Whole bottom, int place) {
    const Whole t = Reached(top, bottom, place);
    const Whole b = DigitOf(bottom, place);
    if (t >= b) {
        return "Subtract " + Say(b) + " from " + Say(t) + " (" + Say(t - b) + ").";
    }
    std::string note = "Since " + Say(t) + " is less than " + Say(b) +
                       ", borrow 1 from the number to the left (" + Say(DigitOf(top, place + 1)) +
                       ") and add 10 to " + Say(t) + ".  ";
    if (DigitOf(top, place + 1) == 0) {
        int lender = place + 1;
        while (DigitOf(top, lender) == 0) {
            ++lender;
        }
        const std::string n = Say(DigitOf(top, lender));
        note +=
            "Since the number to the left is 0, keep moving left until you reach a number "
            "greater than 0 (" +
            n + ").  Borrow 1 from " + n +
            " then add 10 to the next number.  Keep borrowing 1 and adding 10 to the next "
            "number until you reach the numbers you want to subtract.  ";
    }
    return note + "Subtract " + Say(b) + " from " + Say(t + 10) + " (" + Say(t + 10 - b) + ").";
}

/// Whether a thin stroke crosses the cell between these heights.
bool IsStruck(const Frame& frame, double x, double top, double bottom) {
    return std::any_of(frame.marks.begin(), frame.marks.end(), [&](const Mark& mark) {
        const auto* const stroke = std::get_if<StrokeMark>(&mark);
        return stroke != nullptr && stroke->width == 1 && stroke->x1 == x - 3 &&
               stroke->x2 == x + 13 && stroke->y1 < bottom && stroke->y2 >= top - 0.1;
    });
}

/// What is left of a column's top number when all that is crossed out is left out. What has a mark
/// above it is crossed out, and nothing else.
std::string Remaining(const Frame& frame, double x) {
    const std::string digit = TextAt(RowAt(frame, kTopRow), x);
    const std::string lower = TextAt(RowAt(frame, kLowerMarks), x);
    const std::string upper = TextAt(RowAt(frame, kUpperMarks), x);
    EXPECT_EQ(IsStruck(frame, x, kTopRow, kTopRow + 17.2), !lower.empty());
    EXPECT_EQ(IsStruck(frame, x, kLowerMarks, kLowerMarks + 43.0 / 3), !upper.empty());
    EXPECT_TRUE(upper.empty() || !lower.empty());
    return !upper.empty() ? upper : !lower.empty() ? lower : digit;
}

/// In every worked column what is left above is the digit below more than the answer.
void ExpectColumns(const Frame& frame, Whole bottom, int places, int worked) {
    const auto answer = RowAt(frame, kAnswerRow);
    for (int place = 0; place < worked; ++place) {
        const double x = kLeft + 20 * (places - place);
        const std::string left = Remaining(frame, x);
        EXPECT_EQ(ValueOf(left) - DigitOf(bottom, place), ValueOf(TextAt(answer, x))) << place;
    }
}

void ExpectSubtraction(std::string topText, std::string bottomText) {
    SCOPED_TRACE(topText + " - " + bottomText);
    const Film film = Played(kSubtraction, topText, bottomText);
    const bool switched = ValueOf(bottomText) > ValueOf(topText);
    EXPECT_EQ(film.learner.messages,
              switched ? std::vector<std::string>{kSwitched} : std::vector<std::string>());
    if (switched) {
        std::swap(topText, bottomText);
    }
    const int places = static_cast<int>(std::max(topText.size(), bottomText.size()));
    const Whole top = ValueOf(topText);
    const Whole bottom = ValueOf(bottomText);
    ASSERT_EQ(film.frames.size(), static_cast<std::size_t>(places) + 1);
    EXPECT_EQ(film.frames[0].note, "Subtract " + bottomText + " from " + topText + ".");
    for (int worked = 0; worked <= places; ++worked) {
        const Frame& frame = film.frames[static_cast<std::size_t>(worked)];
        EXPECT_EQ(SpeltAt(frame, kTopRow), topText);
        EXPECT_EQ(SpeltAt(frame, kBottomRow), "-" + bottomText);
        const std::string answer = SpeltAt(frame, kAnswerRow);
        EXPECT_EQ(answer.size(), static_cast<std::size_t>(worked));
        EXPECT_EQ(ValueOf(answer), (top - bottom) % PowerOfTen(worked));
        ExpectColumns(frame, bottom, places, worked);
        if (worked > 0) {
            EXPECT_EQ(frame.note, NoteOf(top, bottom, worked - 1));
        }
    }
}

TEST(Subtraction, OfRandomNumbersIsRightInEveryColumn) {
    Operands operands(201);
    for (int i = 0; i < kRandomProblems; ++i) {
        ExpectSubtraction(operands.Draw(10), operands.Draw(10));
        if (HasFailure()) {
            return;
        }
    }
}

TEST(Subtraction, OfTheSmallestAndTheLargestNumbers) {
    ExpectSubtraction("0", "0");
    ExpectSubtraction("10", "9");
    ExpectSubtraction("1000000000", "1");
    ExpectSubtraction("9999999999", "9999999999");
    ExpectSubtraction("1", "1000000000");
}

TEST(Subtraction, ABlankAboveALeadingZeroLendsAndBorrowsNothing) {
    ExpectSubtraction("5", "003");
    ExpectSubtraction("7", "007");
    ExpectSubtraction("12", "0009");
}

TEST(Subtraction, EqualNumbersAreNotSwitchedAndLeaveZeros) {
    const Film film = Played(kSubtraction, "42", "42");
    EXPECT_TRUE(film.learner.messages.empty());
    EXPECT_EQ(SpeltAt(film.Last(), kAnswerRow), "00");
}

TEST(Subtraction, KeepsTheZerosOfItsAnswer) {
    EXPECT_EQ(SpeltAt(Played(kSubtraction, "105", "100").Last(), kAnswerRow), "005");
}

TEST(Subtraction, TellsOnceThatTheNumbersAreSwitchedAndShowsTheLargerOnTop) {
    const Film film = Played(kSubtraction, "8", "52");
    EXPECT_EQ(film.learner.messages, std::vector<std::string>{kSwitched});
    for (const Frame& frame : film.frames) {
        EXPECT_EQ(SpeltAt(frame, kTopRow), "52");
        EXPECT_EQ(SpeltAt(frame, kBottomRow), "-8");
    }
    EXPECT_EQ(film.problem.columns.ColumnTop, "8");
    EXPECT_EQ(film.problem.columns.ColumnBottom, "52");
    EXPECT_EQ(film.problem.boxes.Text[0], "8");
}

TEST(Subtraction, AllAtOnceIsTheLastDrawing) {
    Operands operands(2011);
    for (int i = 0; i < 200; ++i) {
        const std::string top = operands.Draw(10);
        const std::string bottom = operands.Draw(10);
        Film film(kSubtraction, top, bottom, false);
        film.Play();
        const Frame last = Played(kSubtraction, top, bottom).Last();
        ASSERT_EQ(film.frames.size(), 1U);
        EXPECT_EQ(film.Last().Texts(), last.Texts());
        EXPECT_EQ(film.Last().note, last.note);
        EXPECT_TRUE(film.Last().finished);
    }
}

}  // namespace
}  // namespace numerello
