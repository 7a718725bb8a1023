#include "worksheet/pencil.h"

#include "tests/worksheet/desk.h"

namespace numerello {
namespace {

constexpr int kFeetToYards = 50;

/// Where the pencil stands, as "left,top"; whole numbers alone.
std::string PlaceOf(const Pencil& pencil) {
    return std::to_string(static_cast<int>(pencil.Left())) + "," +
           std::to_string(static_cast<int>(pencil.Top()));
}

void Tick(Pencil& pencil, int times) {
    for (int i = 0; i < times; ++i) {
        pencil.Timer1_Timer();
    }
}

class PencilTest : public testing::Test {
  protected:
    PencilTest() { pencil.Erase(); }

    Pencil pencil;
};

TEST_F(PencilTest, BeginsAboveTheFirstTypingPosition) {
    EXPECT_EQ(PlaceOf(pencil), "63,-132");
    EXPECT_FALSE(pencil.Timer1Enabled());
}

TEST_F(PencilTest, ZigzagsForTenTicks) {
    // Down by 30 at once, then 3 up with each tick: right with the odd ones, left with the even
    // ones. The tenth sets the top to -134 and is an even one.
    const std::vector<std::string> places{"66,-105", "63,-108", "66,-111", "63,-114", "66,-117",
                                          "63,-120", "66,-123", "63,-126", "66,-129", "63,-137"};
    pencil.KeyAccepted();
    EXPECT_EQ(PlaceOf(pencil), "63,-132");
    int ticks = 0;
    for (const std::string& place : places) {
        EXPECT_TRUE(pencil.Timer1Enabled());
        pencil.Timer1_Timer();
        EXPECT_EQ(pencil.PencilTicks(), ++ticks % 10);
        EXPECT_EQ(PlaceOf(pencil), place);
    }
    EXPECT_FALSE(pencil.Timer1Enabled());
    pencil.Timer1_Timer();
    EXPECT_EQ(PlaceOf(pencil), "63,-137");
}

TEST_F(PencilTest, AnyNumberOfKeysEndsAtTheSameHeight) {
    for (const double end : {74.0, 82.0, 90.0}) {
        pencil.KeyAccepted();
        pencil.Follow(end);
        Tick(pencil, 10);
        EXPECT_EQ(pencil.Left(), end);
        EXPECT_EQ(pencil.Top(), -137);
    }
    pencil.KeyAccepted();
    pencil.Timer1_Timer();
    // From its rest: -137 + 30 - 3.
    EXPECT_EQ(PlaceOf(pencil), "93,-110");
}

TEST_F(PencilTest, KeysInMidMotionNeitherProlongItNorLeaveThePencilAside) {
    for (const int before : {1, 2, 5, 8, 9}) {
        SCOPED_TRACE(before);
        pencil.Erase();
        pencil.KeyAccepted();
        pencil.Follow(70);
        Tick(pencil, before);
        pencil.KeyAccepted();
        pencil.Follow(78);
        EXPECT_EQ(pencil.Left(), before % 2 == 1 ? 81 : 78);
        Tick(pencil, 10 - before);
        EXPECT_EQ(PlaceOf(pencil), "78,-137");
        EXPECT_FALSE(pencil.Timer1Enabled());
    }
}

TEST_F(PencilTest, AnEndLeftOfTheMarginBringsItBack) {
    pencil.KeyAccepted();
    pencil.Follow(0);
    Tick(pencil, 10);
    // Before the last step to the left it is set to 65.
    EXPECT_EQ(PlaceOf(pencil), "62,-137");
}

TEST_F(PencilTest, WithoutMotionItIsThereAtOnce) {
    pencil.KeyAcceptedAtRest();
    pencil.Follow(78);
    EXPECT_EQ(PlaceOf(pencil), "78,-137");
    EXPECT_FALSE(pencil.Timer1Enabled());
}

TEST_F(PencilTest, ErasingEndsAMotion) {
    pencil.KeyAccepted();
    Tick(pencil, 3);
    pencil.Erase();
    EXPECT_EQ(PlaceOf(pencil), "63,-132");
    EXPECT_FALSE(pencil.Timer1Enabled());
    pencil.KeyAccepted();
    pencil.Timer1_Timer();
    EXPECT_EQ(PlaceOf(pencil), "66,-105");
}

/// The pencil of a worksheet.
class WritingTest : public Desk {
  protected:
    void Type(std::string_view keys) {
        for (const std::string& key : Characters(keys)) {
            Desk::Type(key);
            sheet.MovePencil(true);
        }
    }

    void LetWrite() {
        for (int i = 0; i < 10; ++i) {
            sheet.Timer1_Timer();
        }
    }

    const Pencil& ThePencil() const { return sheet.ThePencil(); }
};

TEST_F(WritingTest, FollowsTheLineForwardAndBack) {
    Choose(kFeetToYards);
    EXPECT_EQ(PlaceOf(ThePencil()), "63,-132");
    Type("40");
    EXPECT_TRUE(ThePencil().Timer1Enabled());
    LetWrite();
    EXPECT_NEAR(ThePencil().Left(), 63 + 2 * kCharacter, 1e-6);
    Type("\b\b");
    LetWrite();
    EXPECT_EQ(PlaceOf(ThePencil()), "63,-137");
}

TEST_F(WritingTest, ARefusedKeyDoesNotMoveIt) {
    Choose(kFeetToYards);
    Type("4");
    LetWrite();
    Type("x");
    EXPECT_FALSE(ThePencil().Timer1Enabled());
    EXPECT_NEAR(ThePencil().Left(), 63 + kCharacter, 1e-6);
    EXPECT_EQ(ThePencil().Top(), -137);
}

TEST_F(WritingTest, ErasingPutsItBack) {
    Choose(kFeetToYards);
    Type("4");
    sheet.Timer1_Timer();
    EraseProblem(problem, sheet);
    EXPECT_EQ(PlaceOf(ThePencil()), "63,-132");
    EXPECT_FALSE(ThePencil().Timer1Enabled());
}

TEST_F(WritingTest, BesideBoxesItLiesInTheMargin) {
    Choose(23);
    // Boxes begin at 67, the red line of the margin stands at 60.
    EXPECT_LE(ThePencil().Left() + Pencil::kWidth, 60);
    EXPECT_EQ(ThePencil().Top(), -132);
}

}  // namespace
}  // namespace numerello
