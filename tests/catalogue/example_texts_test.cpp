#include <gtest/gtest.h>

#include "catalogue/examples/families.h"
#include "tests/catalogue/examples.h"

/// With one moment all digits of RandInt are alike, so what they decide can be told beforehand.
namespace numerello {
namespace {

struct Told {
    int code;
    int digit;
    bool complex;
    std::string_view printed;
    std::string_view suffix = "";

    friend void PrintTo(const Told& shown, std::ostream* out) {
        *out << shown.code << ", digit " << shown.digit << (shown.complex ? ", complex" : "");
    }
};

Example MadeFor(int code, bool ForTest, int moment, bool complex) {
    const Problem opened = Opened(FindTopicByCode(code)->caption);
    MomentDraws draws(moment);
    return GenerateExample(opened.topic, ForTest, complex ? 2 : 0, *draws);
}

class TestText : public ::testing::TestWithParam<Told> {};

TEST_P(TestText, FollowsFromTheDigit) {
    const Told& told = GetParam();
    const Example example = MadeFor(told.code, true, MomentOf(told.digit), told.complex);
    EXPECT_EQ(example.printed, told.printed) << told.code;
    EXPECT_EQ(example.suffix, told.suffix);
}

constexpr Told kTold[] = {
    {1, 7, false, "length = 7, width = 7, height = 7"},
    {4, 3, true, "length = 33, width = 33, height = 33"},
    {2, 7, false, "radius of base = 7, height = 7"},
    {3, 2, true, "radius of base = 22, height = 22"},
    {5, 9, false, "radius = 9"},
    {7, 9, true, "radius = 99"},
    {15, 1, false, "radius = 1"},
    {17, 1, true, "radius = 11"},
    {6, 7, false, "base = 7, height = 7"},
    {8, 7, false, "base = 7, height = 7"},
    {9, 7, true, "base = 77, height = 77"},
    {13, 4, false, "base = 4, height = 4"},
    {10, 7, false, "height = 7, a = 7, b = 7"},
    {16, 6, false, "diameter = 6"},
    {18, 6, true, "diameter = 66"},
    {19, 7, false, "a = 7, b = 7, c = 7"},

    // Mod 3: 7 is 1, 5 is 2, 9 is 0.
    {11, 7, false, "Triangle 1: a = 7, b = 7, c = 7 - Triangle 2: a = ?, b = ?, c = 7"},
    {11, 5, true, "Triangle 1: a = 55, b = 55, c = 55 - Triangle 2: a = 55, b = ?, c = ?"},
    {11, 9, false, "Triangle 1: a = 9, b = 9, c = 9 - Triangle 2: a = ?, b = 9, c = ?"},
    {12, 7, false, "a = 7, b = 7, c = ?"},
    {12, 5, false, "a = ?, b = 5, c = 7"},
    {12, 9, true, "a = 99, b = ?, c = 101"},
    {14, 7, false, "amount = 7, N = 7, base = ?"},
    {14, 5, false, "amount = ?, N = 5, base = 5"},
    {14, 9, true, "amount = 99, N = ?, base = 99"},
    {21, 7, false, "work = 7, rate = 7, time = ?"},
    {21, 5, true, "work = ?, rate = 55, time = 55"},
    {22, 9, false, "distance = 9, speed = ?, time = 9"},

    {200, 7, false, "8 + 7"},
    {201, 7, false, "8 - 7"},
    {202, 3, true, "34 * 33"},
    {203, 9, true, "100 { 99"},

    // Mod 7: 7 is 0, 5 is 5, 9 is 2.
    {23, 7, false, "7 mm (0.001 meters) = ?  mm (0.001 meters)"},
    {23, 5, true, "55 hm (100 meters) = ?  hm (100 meters)"},
    {24, 9, false, "9 dg (0.1 grams) = ?  dg (0.1 grams)"},
    {24, 6, false, "6 kg (1000 grams) = ?  kg (1000 grams)"},

    {25, 7, false, "7 * 10^7^"},
    {25, 7, true, "77 * 10^77^"},
    {26, 7, false, "7*10 ^7^ * 7*10^7^"},
    {27, 2, true, "22*10 ^22^ { 22*10^22^"},

    {83, 7, false, "8*8*8"},
    {83, 4, false, "5*5"},
    {83, 9, true, "10*10*10*10*10"},
    {78, 7, false, "77:77"},
    {78, 4, true, "444:444"},
    {72, 7, false, "#77/77#"},
    {73, 4, false, "#4/4#"},
    {79, 4, true, "#444/444#"},
    {80, 7, true, "#7777/7777#"},
    {75, 7, false, "#77/7#"},
    {75, 7, true, "#777/77#"},
    {74, 7, false, "7#7/7#"},
    {74, 7, true, "77#77/77#"},
    {59, 7, false, "7,7,7,7,7"},
    {60, 4, false, "4,4,4,4"},
    {61, 7, true, "7,7,7,7,7,7,7"},
    {62, 4, true, "4,4,4,4,4,4"},
    {87, 7, false, "14,14,14,14,14"},
    {87, 9, false, "9,9,9,9,9"},
    {88, 8, true, "24,24,24,24,24,24"},
    {28, 7, false, "77"},
    {54, 4, false, "4"},
    {40, 7, true, "7777"},
    {84, 4, true, "444"},
    {85, 7, false, "77"},
    {86, 7, false, "77"},
    {89, 7, false, "77"},
    {109, 7, false, "77"},
    {110, 4, false, "4"},
    {111, 4, false, "4"},
    {68, 7, false, "77%"},
    {69, 4, true, "444%"},
    {70, 7, false, "0.77"},
    {71, 4, true, "0.444"},
    {65, 7, false, "77777777"},
    {99, 9, true, "9999999999"},

    // Mod 6 and Mod 4 for the lengths: 5 is 5 and 1, 3 is 3 and 3, 8 is 2 and 0.
    {98, 7, false, "77", " Rounded to the nearest thousand"},
    {98, 1, true, "1111", " Rounded to the nearest hundred"},
    {98, 8, false, "888", " Rounded to the nearest hundred"},
    {98, 9, false, "9999", " Rounded to the nearest ten"},
    {98, 3, false, "3333.3333", " Rounded to the nearest whole number"},
    {98, 4, true, "4444444.444", " Rounded to the nearest tenth"},
    {98, 5, false, "555555.55", " Rounded to the nearest hundredth"},
    {98, 6, false, "6.666", " Rounded to the nearest thousandth"},
};

INSTANTIATE_TEST_SUITE_P(Topics, TestText, ::testing::ValuesIn(kTold));

/// What the form gets where it is not what a test prints.
TEST(BoxExample, FillsTheBoxesByNumber) {
    using Boxes = std::array<std::string, 6>;
    const auto boxes = [](int code, int digit, bool complex = false) {
        return MadeFor(code, false, MomentOf(digit), complex).boxes.Text;
    };
    EXPECT_EQ(boxes(1, 7), (Boxes{"7", "7", "7"}));
    EXPECT_EQ(boxes(5, 7, true), (Boxes{"", "77"}));
    EXPECT_EQ(boxes(11, 7), (Boxes{"7", "7", "7", "", "", "7"}));
    EXPECT_EQ(boxes(11, 5), (Boxes{"5", "5", "5", "5", "", ""}));
    EXPECT_EQ(boxes(11, 9), (Boxes{"9", "9", "9", "", "9", ""}));
    EXPECT_EQ(boxes(12, 7), (Boxes{"", "7", "", "7"}));
    EXPECT_EQ(boxes(12, 5), (Boxes{"7", "", "", "5"}));
    EXPECT_EQ(boxes(12, 9, true), (Boxes{"101", "99"}));
    EXPECT_EQ(boxes(14, 7), (Boxes{"", "7", "", "7"}));
    EXPECT_EQ(boxes(21, 5), (Boxes{"5", "", "", "5"}));
    EXPECT_EQ(boxes(22, 9), (Boxes{"9", "9"}));
    EXPECT_EQ(boxes(200, 7), (Boxes{"7", "7"}));
    EXPECT_EQ(boxes(203, 7, true), (Boxes{"77", "77"}));
    EXPECT_EQ(boxes(26, 7), (Boxes{"7.77", "7", "7.77", "7"}));
    EXPECT_EQ(boxes(27, 2, true), (Boxes{"22.22", "2", "22.22", "2"}));

    const EntryBoxes metric = MadeFor(23, false, MomentOf(5), false).boxes;
    EXPECT_EQ(metric.Text, (Boxes{"", "", "", "5"}));
    EXPECT_EQ(metric.ListIndex, (std::array<int, 3>{5, 5, 0}));
    EXPECT_EQ(MadeFor(98, false, MomentOf(5), false).boxes.ListIndex,
              (std::array<int, 3>{-1, -1, 5}));
}

/// The values that a test names stand in the boxes that the form names so.
TEST(TestExample, CanBeEnteredByItsNames) {
    using Boxes = std::array<std::string, 6>;
    const auto boxes = [](int code, int digit) {
        return MadeFor(code, true, MomentOf(digit), false).boxes.Text;
    };
    EXPECT_EQ(boxes(12, 5), (Boxes{"7", "5"}));                // c = 7, b = 5, a = ?
    EXPECT_EQ(boxes(12, 7), (Boxes{"", "7", "", "7"}));        // c = ?
    EXPECT_EQ(boxes(14, 5), (Boxes{"", "5", "", "5"}));        // amount = ?
    EXPECT_EQ(boxes(21, 7), (Boxes{"7", "7"}));                // time = ?
    EXPECT_EQ(boxes(11, 5), (Boxes{"5", "5", "5", "5"}));      // b2 = ?, c2 = ?
    EXPECT_EQ(boxes(11, 7), (Boxes{"7", "7", "7", "", "7"}));  // a2 = ?, b2 = ?
    EXPECT_EQ(boxes(200, 7), (Boxes{"8", "7"}));
    EXPECT_EQ(boxes(26, 7), (Boxes{"7", "7", "7", "7"}));
}

TEST(ColumnExample, KeepsTheLargerNumberOnTop) {
    // A second passes between the two numbers.
    class TickingClock : public Clock {
      public:
        TickingClock(int first, int second) : moments{first, second} {}
        int MinutesAndSeconds() const override { return moments[asked++ == 1 ? 0 : 1]; }
        Date Today() const override { return {}; }

      private:
        int moments[2];
        mutable int asked = 0;
    };
    const Problem opened = Opened("Subtraction");
    for (int first = 1; first <= 9; ++first) {
        for (int second = 1; second <= 9; ++second) {
            MersenneSource digits;
            MersenneSource direct;
            // The first look at the clock seeds the direct draws.
            const TickingClock clock(MomentOf(first), MomentOf(second));
            ExampleDraws draws(clock, digits, direct);
            const auto boxes = GenerateExample(opened.topic, false, 0, draws).boxes.Text;
            EXPECT_EQ(boxes[0], std::to_string(second > first ? second + 1 : first));
            EXPECT_EQ(boxes[1], std::to_string(second));
        }
    }
}

TEST(create_example, GivesEachCapitalLetterOneDigit) {
    for (int second = 0; second < 60; ++second) {
        MomentDraws draws(MomentAt(second));
        MersenneSource random;
        const std::string digit = std::to_string(RandInt2to9(FixedClock(MomentAt(second)), random));
        EXPECT_EQ(create_example("AxZ-bA^", *draws), Text(digit, "x", digit, "-b", digit, "^"));
    }
    MomentDraws draws(0);
    EXPECT_EQ(create_example("", *draws), "");
    EXPECT_EQ(create_example("abc+1", *draws), "abc+1");
}

TEST(TemplateExample, RemovesNegativeExponents) {
    MersenneSource random;
    const std::string d = std::to_string(RandInt2to9(FixedClock(1234), random));
    EXPECT_EQ(MadeFor(150, true, 1234, false).printed, Text(d, "x^-", d, "^+", d, "x^-", d, "^"));
    EXPECT_EQ(MadeFor(150, true, 1234, true).printed,
              Text("#", d, "x^-", d, "^/", d, "#+", d, "x^-", d, "^-", d, "x^-", d, "^"));
}

TEST(DirectDraws, GoOnWhateverDigitsAreDrawn) {
    MomentDraws some(1234);
    MomentDraws others(1234);
    for (int i = 0; i < 100; ++i) {
        (*others).RandInt();
        EXPECT_EQ((*some).Below(1000), (*others).Below(1000));
    }
}

TEST(DirectDraws, BeginAtTheMomentOrTheSeed) {
    const auto first = [](MomentDraws&& draws) {
        std::vector<int> drawn;
        for (int i = 0; i < 5; ++i) {
            drawn.push_back((*draws).Below(1000));
        }
        return drawn;
    };
    EXPECT_EQ(first(MomentDraws(1234)), first(MomentDraws(59, 1234)));
    EXPECT_NE(first(MomentDraws(1234)), first(MomentDraws(1235)));
    EXPECT_NE(first(MomentDraws(1234, 1)), first(MomentDraws(1234, 2)));
}

TEST(GenerateExample, HasNothingForAnUnknownCode) {
    MomentDraws draws(0);
    TopicChoice topic;
    for (const int code : {0, 55, 77, 122, 204, -1}) {
        topic.ProblemType = code;
        const Example example = GenerateExample(topic, true, 0, *draws);
        EXPECT_EQ(example.keys + example.printed, "") << code;
    }
}

}  // namespace
}  // namespace numerello
