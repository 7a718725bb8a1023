#include "core/text.h"

#include <gtest/gtest.h>

namespace numerello {
namespace {

using Strings = std::vector<std::string>;

TEST(Text, JoinsItsPieces) {
    const std::string v = "40";
    EXPECT_EQ(Text(v, " inches = ", std::string_view("1.11"), " yards"), "40 inches = 1.11 yards");
    EXPECT_EQ(Text(), "");
}

TEST(Characters, AreWholeCharacters) {
    EXPECT_EQ(Characters("4+2"), (Strings{"4", "+", "2"}));
    EXPECT_EQ(Characters("aé€😀"), (Strings{"a", "é", "€", "😀"}));
    EXPECT_EQ(Characters(""), Strings());
}

TEST(Characters, ABadByteStandsAlone) {
    EXPECT_EQ(Characters("\xFFx"), (Strings{"\xFF", "x"}));
    EXPECT_EQ(Characters("\xC3"), (Strings{"\xC3"}));
    EXPECT_EQ(Characters("\xE2\x82x"), (Strings{"\xE2", "\x82", "x"}));
}

TEST(Replace, TakesEveryOccurrenceOnce) {
    EXPECT_EQ(Replace("{v} and {v}", "{v}", "7"), "7 and 7");
    EXPECT_EQ(Replace("aaa", "aa", "a"), "aa");
    EXPECT_EQ(Replace("{v}", "{v}", "{v}{v}"), "{v}{v}");
    EXPECT_EQ(Replace("none", "{v}", "7"), "none");
}

TEST(IsLetter, KnowsTheAlphabetOnly) {
    for (const char* letter : {"A", "Z", "a", "z"}) {
        EXPECT_TRUE(IsLetter(letter)) << letter;
    }
    for (const char* other : {"@", "[", "`", "{", "1", "", "ab", "é"}) {
        EXPECT_FALSE(IsLetter(other)) << other;
    }
}

TEST(IsDigit, KnowsTenOfThem) {
    EXPECT_TRUE(IsDigit("0"));
    EXPECT_TRUE(IsDigit("9"));
    for (const char* other : {"/", ":", "", "10", "a"}) {
        EXPECT_FALSE(IsDigit(other)) << other;
    }
}

TEST(Trimmed, TakesTheBlanksAtTheEnds) {
    EXPECT_EQ(Trimmed("  a b "), "a b");
    EXPECT_EQ(Trimmed("a"), "a");
    EXPECT_EQ(Trimmed("   "), "");
    EXPECT_EQ(Trimmed(""), "");
    EXPECT_EQ(Trimmed("\ta\n"), "\ta\n");
}

}  // namespace
}  // namespace numerello
