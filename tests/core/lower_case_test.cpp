#include <gtest/gtest.h>

#include "core/text.h"

namespace numerello {
namespace {

TEST(LowerCase, TakesTheAlphabetAlone) {
    EXPECT_EQ(LowerCase("AZaz"), "azaz");
    EXPECT_EQ(LowerCase("@[`{09 -"), "@[`{09 -");
    EXPECT_EQ(LowerCase(""), "");
    EXPECT_EQ(LowerCase('Q'), 'q');
}

TEST(LowerCase, LeavesLettersBeyondTheAlphabet) {
    // The bytes of a capital E with an acute accent, and of one of Latin 1.
    EXPECT_EQ(LowerCase("\xC3\x89"), "\xC3\x89");
    EXPECT_EQ(LowerCase('\xC9'), '\xC9');
}

TEST(IsDigit, OfACharacter) {
    EXPECT_TRUE(IsDigit('0'));
    EXPECT_TRUE(IsDigit('9'));
    EXPECT_FALSE(IsDigit('/'));
    EXPECT_FALSE(IsDigit(':'));
    EXPECT_FALSE(IsDigit('\0'));
}

TEST(IsLetter, OfACharacter) {
    for (const char letter : {'A', 'Z', 'a', 'z'}) {
        EXPECT_TRUE(IsLetter(letter)) << letter;
    }
    for (const char other : {'@', '[', '`', '{', '\0', '\xE9'}) {
        EXPECT_FALSE(IsLetter(other)) << other;
    }
}

}  // namespace
}  // namespace numerello
