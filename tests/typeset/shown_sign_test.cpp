#include "typeset/shown_sign.h"

#include <gtest/gtest.h>

namespace numerello {
namespace {

TEST(ShownSign, StandsForWhatNoKeyboardHas) {
    EXPECT_EQ(ShownSign("{"), "÷");
    EXPECT_EQ(ShownSign("`"), "π");
    EXPECT_EQ(ShownSign("\\"), "±");
    EXPECT_EQ(ShownSign("$"), "≠");
}

TEST(ShownSign, IsAnyOtherCharacterItself) {
    for (const char* character : {"", "7", "x", "#", "}", "÷"}) {
        EXPECT_EQ(ShownSign(character), character);
    }
}

}  // namespace
}  // namespace numerello
