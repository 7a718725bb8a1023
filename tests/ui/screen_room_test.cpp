#include "ui/screen_room.h"

#include <gtest/gtest.h>

#include "ui/surface_painter.h"

namespace numerello {
namespace {

constexpr QRect kScreen(100, 50, 1000, 700);

TEST(Within, LeavesAPlaceOnTheScreen) {
    const QRect place(100, 50, 1000, 700);
    EXPECT_EQ(Within(place, kScreen), place);
    EXPECT_EQ(Within({300, 200, 10, 10}, kScreen), QRect(300, 200, 10, 10));
}

TEST(Within, MovesAPlaceInAsFarAsItMust) {
    EXPECT_EQ(Within({0, 0, 200, 100}, kScreen), QRect(100, 50, 200, 100));
    EXPECT_EQ(Within({1050, 740, 200, 100}, kScreen), QRect(900, 650, 200, 100));
}

TEST(Within, KeepsTheUpperLeftCornerOfWhatIsTooLarge) {
    EXPECT_EQ(Within({500, 500, 2000, 900}, kScreen), QRect(100, 50, 2000, 900));
}

TEST(Colors, ComeBackAsTheyWere) {
    EXPECT_EQ(FromQColor(QColor(3, 2, 1)), 0x010203U);
    EXPECT_EQ(FromQColor(ToQColor(kBlue)), kBlue);
}

}  // namespace
}  // namespace numerello
