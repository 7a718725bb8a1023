#include "worksheet/spoken_line.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>

namespace numerello {
namespace {

struct Spoken {
    const char* line;
    const char* words;
};

TEST(SpokenLine, ReadsMathematicsAsWords) {
    const Spoken lines[] = {
        {"", ""},
        {"7", "7"},
        {"#1/2#+x^2^", "one half plus x squared"},
        {"3x-4y=12", "3 x minus 4 y equals 12"},
        {"12.5*2{5", "12.5 times 2 divided by 5"},
        {"2#3/4#", "2 and three fourths"},
        {"#5/2#", "five halves"},
        {"#1/10#", "one tenth"},
        {"#11/12#", "11 over 12"},
        {"#0/5#", "0 over 5"},
        {"#a/b#", "a over b"},
        {"#(x+1)/2#", "fraction open parenthesis x plus 1 close parenthesis over 2 end fraction"},
        {"x^3^+y^10^", "x cubed plus y to the power of 10"},
        {"x^-2^", "x to the power of minus 2"},
        {"~16~", "square root of 16"},
        {"3~x+1~=6", "3 square root of x plus 1 end root equals 6"},
        {"~#1/4#~", "square root of one fourth end root"},
        {"|-3|", "absolute value bar minus 3 absolute value bar"},
        {"x\\5$3", "x plus or minus 5 is not equal to 3"},
        {"2<3>1", "2 is less than 3 is greater than 1"},
        {"`r^2^", "pi r squared"},
        {"2.5 km = 2500 m", "2.5 km equals 2500 m"},
        {"xy + 2ab", "x y plus 2 a b"},
    };
    for (const auto& [line, words] : lines) {
        EXPECT_EQ(SpokenLine(line), words) << line;
    }
}

TEST(SpokenLine, ReadsDegrees) {
    const Spoken lines[] = {
        {"68^o^ F = 20^o^ C", "68 degrees F equals 20 degrees C"},
        {"1^o^ F", "1 degree F"},
        {"2.1^o^", "2.1 degrees"},
        {"A straight angle = 180^o^", "A straight angle equals 180 degrees"},
        {"Enter an angle ranging from 1^o^ to 180^o^.",
         "Enter an angle ranging from 1 degree to 180 degrees."},
        {"To convert 36.6^o^ Celsius (C) to Fahrenheit (F):",
         "To convert 36.6 degrees Celsius (C) to Fahrenheit (F):"},
    };
    for (const auto& [line, words] : lines) {
        EXPECT_EQ(SpokenLine(line), words) << line;
    }
}

TEST(SpokenLine, KeepsUnitsWhole) {
    const Spoken lines[] = {
        {"5000lb = 2.5 T", "5000 lb equals 2.5 T"},
        {"1.5T = 3000 lb", "1.5 T equals 3000 lb"},
        {"3000 lb = 48000 oz", "3000 lb equals 48000 oz"},
        {"250 cm = ? m", "250 cm equals ? m"},
        {"2lb+3", "2 l b plus 3"},
        {"6oz", "6 o z"},
    };
    for (const auto& [line, words] : lines) {
        EXPECT_EQ(SpokenLine(line), words) << line;
    }
}

TEST(SpokenLine, LeavesColoursOut) {
    EXPECT_EQ(SpokenLine("[3]+[x]^2^"), "3 plus x squared");
    EXPECT_EQ(SpokenLine("#[1]/2#"), "1 over 2");
}

TEST(SpokenLine, KeepsTheWordsOfASentence) {
    const Spoken lines[] = {
        {"There are 3 feet in a yard.", "There are 3 feet in a yard."},
        {"7 feet = 2.5 yards", "7 feet equals 2.5 yards"},
        {"7 feet ÷ 3", "7 feet ÷ 3"},
        {"forty-two and/or less", "forty-two and/or less"},
        {"Add 7 and 8 (15) .", "Add 7 and 8 (15)."},
        {"The 2nd of 4x, halved: #1/2#.", "The 2nd of 4 x, halved: one half."},
        {"Multiplication symbols (*).  Example: 35*9*4^3^",
         "Multiplication symbols (*). Example: 35 times 9 times 4 cubed"},
        {"Type '+', '^' or '~'.", "Type '+', '^' or '~'."},
        {"Subtract -3 from #1/2#x.", "Subtract minus 3 from one half x."},
    };
    for (const auto& [line, words] : lines) {
        EXPECT_EQ(SpokenLine(line), words) << line;
    }
}

TEST(SpokenLine, HearsNoMinusInADash) {
    const Spoken lines[] = {
        {"Both coordinates are positive - Quadrant I", "Both coordinates are positive, Quadrant I"},
        {"a = 3, b = 4, c = 5 - Triangle 2: a = 6",
         "a equals 3, b equals 4, c equals 5, Triangle 2: a equals 6"},
        {"Next, subtract the exponents: 5 - -3 = 8",
         "Next, subtract the exponents: 5 minus minus 3 equals 8"},
        {"9 - (-2)", "9 minus open parenthesis minus 2 close parenthesis"},
    };
    for (const auto& [line, words] : lines) {
        EXPECT_EQ(SpokenLine(line), words) << line;
    }
}

TEST(SpokenLine, HearsNoMinusBetweenTwoPoints) {
    const Spoken lines[] = {
        {"(6,6)-(6,-6)",
         "open parenthesis 6,6 close parenthesis to open parenthesis 6, minus 6 close parenthesis"},
        {"(6,6)-", "open parenthesis 6,6 close parenthesis to"},
        {"Enter a pair of points.  Example: (1,2)-(5,6)",
         "Enter a pair of points. Example: (1,2) to (5,6)"},
        {"(x+1)-(x-2)",
         "open parenthesis x plus 1 close parenthesis minus open parenthesis x minus 2 close "
         "parenthesis"},
    };
    for (const auto& [line, words] : lines) {
        EXPECT_EQ(SpokenLine(line), words) << line;
    }
}

TEST(SpokenLine, ReadsOnBehindAMarkWithoutPartner) {
    EXPECT_EQ(SpokenLine("3+#1/2"), "3 plus #1 over 2");
    EXPECT_EQ(SpokenLine("4^"), "4^");
}

TEST(SpokenLine, IsTidyWhateverTheLine) {
    constexpr std::string_view kAlphabet = "#^~[]()/+-* '.,|1a2bc";
    std::mt19937 random(11);
    std::uniform_int_distribution<std::size_t> place(0, kAlphabet.size() - 1);
    for (int i = 0; i < 3000; ++i) {
        std::string line;
        for (int length = i % 40; length > 0; --length) {
            line += kAlphabet[place(random)];
        }
        const std::string words = SpokenLine(line);
        EXPECT_EQ(words.find("  "), std::string::npos) << line;
        EXPECT_TRUE(words.empty() || (words.front() != ' ' && words.back() != ' ')) << line;
    }
}

}  // namespace
}  // namespace numerello
