#include "operands.h"

namespace numerello {
namespace {

constexpr double kLeft = 80;
constexpr double kTopRow = 300;
constexpr double kBottomRow = 317.2;
constexpr double kAnswerRow = 338.4;
constexpr double kCarryRow = 283.4;

/// The reason of the column of that place, by the values of the numbers behind it.
std::string NoteOf(Whole top, Whole bottom, int place, int places) {
    const Whole behind = PowerOfTen(place);
    const Whole carried = (top % behind + bottom % behind) / behind;
    const Whole a = DigitOf(top, place);
    const Whole b = DigitOf(bottom, place);
    const bool first = place == places - 1;
    const bool carries = !first && a + b + carried > 9;
    std::string note = "Add " + Say(a) + " and " + Say(b) + " (" + Say(a + b) + ")";
    note += first || carries ? " " : "";
    note += carried == 0
                ? "."
                : ", then add the carried remainder of 1 to the total (" + Say(a + b + 1) + ").";
    if (carries) {
        note += "  Since " + Say(a + b + carried) +
                " has more than one place value, carry the number in the tens place (1) to the "
                "next column.";
    }
    return note;
}

/// A small 1 stands over every column that gets one, and nowhere else.
void ExpectCarries(const Frame& frame, Whole top, Whole bottom, int places, int worked) {
    const auto carries = RowAt(frame, kCarryRow);
    std::size_t expected = 0;
    for (int place = 1; place < places && place <= worked; ++place) {
        const Whole behind = PowerOfTen(place);
        const bool carried = top % behind + bottom % behind >= behind;
        const double x = kLeft + 20 * (places - place) - 1;
        EXPECT_EQ(TextAt(carries, x), carried ? "1" : "") << place;
        expected += carried ? 1 : 0;
    }
    EXPECT_EQ(carries.size(), expected);
}

void ExpectAddition(const std::string& topText, const std::string& bottomText) {
    SCOPED_TRACE(topText + " + " + bottomText);
    const Film film = Played(kAddition, topText, bottomText);
    const int places = static_cast<int>(std::max(topText.size(), bottomText.size()));
    const Whole top = ValueOf(topText);
    const Whole bottom = ValueOf(bottomText);
    ASSERT_EQ(film.frames.size(), static_cast<std::size_t>(places) + 1);
    EXPECT_EQ(film.frames[0].note, "Add " + topText + " and " + bottomText + ".");
    for (int worked = 0; worked <= places; ++worked) {
        const Frame& frame = film.frames[static_cast<std::size_t>(worked)];
        EXPECT_EQ(SpeltAt(frame, kTopRow), topText);
        EXPECT_EQ(SpeltAt(frame, kBottomRow), "+" + bottomText);
        ExpectCarries(frame, top, bottom, places, worked);
        const bool done = worked == places;
        const auto answer = RowAt(frame, kAnswerRow);
        EXPECT_EQ(ValueOf(Spelt(answer)), (top + bottom) % PowerOfTen(done ? 18 : worked));
        if (worked > 0) {
            EXPECT_EQ(frame.note, NoteOf(top, bottom, worked - 1, places));
            EXPECT_EQ(answer.rbegin()->first, std::round((kLeft + 20 * places) * 1000));
        }
    }
    const bool longer = top + bottom >= PowerOfTen(places);
    EXPECT_EQ(SpeltAt(film.Last(), kAnswerRow).size(),
              static_cast<std::size_t>(places) + (longer ? 1 : 0));
}

TEST(Addition, OfRandomNumbersIsRightInEveryColumn) {
    Operands operands(200);
    for (int i = 0; i < kRandomProblems; ++i) {
        ExpectAddition(operands.Draw(10), operands.Draw(10));
        if (HasFailure()) {
            return;
        }
    }
}

TEST(Addition, OfTheSmallestAndTheLargestNumbers) {
    ExpectAddition("0", "0");
    ExpectAddition("9", "1");
    ExpectAddition("9999999999", "1");
    ExpectAddition("1", "9999999999");
    ExpectAddition("9999999999", "9999999999");
    ExpectAddition("007", "5");
}

TEST(Addition, AllAtOnceIsTheLastDrawing) {
    Operands operands(2001);
    for (int i = 0; i < 200; ++i) {
        const std::string top = operands.Draw(10);
        const std::string bottom = operands.Draw(10);
        Film film(kAddition, top, bottom, false);
        film.Play();
        const Frame last = Played(kAddition, top, bottom).Last();
        ASSERT_EQ(film.frames.size(), 1U);
        EXPECT_EQ(film.Last().Texts(), last.Texts());
        EXPECT_EQ(film.Last().note, last.note);
        EXPECT_TRUE(film.Last().finished);
        EXPECT_EQ(film.problem.playback.ShownStep, 0);
    }
}

TEST(Addition, CountsBlanksAsZeroAndKeepsLeadingZeros) {
    EXPECT_EQ(Played(kAddition, "1234", "56").Notes()[3], "Add 2 and 0 (2).");
    const Film film = Played(kAddition, "007", "5");
    EXPECT_EQ(film.Notes(), (std::vector<std::string>{
                                "Add 007 and 5.",
                                "Add 7 and 5 (12) .  Since 12 has more than one place value, carry "
                                "the number in the tens place (1) to the next column.",
                                "Add 0 and 0 (0), then add the carried remainder of 1 to the total "
                                "(1).",
                                "Add 0 and 0 (0) ."}));
    EXPECT_EQ(SpeltAt(film.Last(), kAnswerRow), "012");
}

}  // namespace
}  // namespace numerello
