#include "topics/volumes.h"

#include "tests/topics/boxed.h"
#include "tests/topics/boxed_topic.h"

namespace numerello {
namespace {

constexpr int kBox = 1;
constexpr int kCylinder = 2;
constexpr int kCone = 3;
constexpr int kPyramid = 4;
constexpr int kSphere = 5;

const std::pair<std::string, std::string> kSides{
    "All sides must be greater than zero.",
    "It is impossible to have a side less than or equal to 0."};
const std::pair<std::string, std::string> kLengths{
    "All lengths must be greater than zero.",
    "It is impossible to have a length less than or equal to 0."};

/// The length stands in Text2, the width in Text3, the height in Text1.
Problem Edged(int code, const std::string& l, const std::string& w, const std::string& h,
              int RoundDigits = 2) {
    return Boxed(code, {h, l, w}, RoundDigits);
}

/// The radius stands in Text2, the height in Text1.
Problem RadiusAndHeight(int code, const std::string& r, const std::string& h, int RoundDigits = 2) {
    return Boxed(code, {h, r}, RoundDigits);
}

TEST(VolumeOf, ABoxFollowsItsFormula) {
    const Log expected{
        {"length = 3, width = 4.5, height = 5", ""},
        {"Volume = length * width * height",
         "This is the formula for calculating the volume of a cube/box."},
        {"Volume = 3 * 4.5 * 5",
         "Substitute the length, width, and height of the cube/box into the formula."},
        {"Volume = 67.5", "Calculate the answer by multiplying."}};
    EXPECT_EQ(LogOf(Solved(Edged(kBox, "3", "4.5", "5"))), expected);
}

TEST(VolumeOf, APyramidFollowsItsFormula) {
    const Log expected{
        {"length = 3, width = 4.5, height = 5", ""},
        {"Volume = #1/3# * (length * width * height)",
         "This is the formula for calculating the volume of a pyramid."},
        {"Volume = #1/3# * (3 * 4.5 * 5)",
         "Substitute the length, width, and height of the pyramid into the formula."},
        {"Volume = 22.5", "Calculate the answer by multiplying."}};
    EXPECT_EQ(LogOf(Solved(Edged(kPyramid, "3", "4.5", "5"))), expected);
}

TEST(VolumeOf, ACylinderFollowsItsFormula) {
    // 3.1415926 * 9 * 5 = 141.371667
    const Log expected{
        {"radius = 3, height = 5", ""},
        {"Volume = base * height", "This is the formula for calculating the volume of a cylinder."},
        {"Volume = ` * radius^2^ * height   (` equals about 3.14 or about #22/7#)",
         "The base is equal to the area of a circle."},
        {"Volume = 3.1415926 * 3^2^ * 5",
         "Substitute the value of pi, radius, and height of the cylinder into the formula."},
        {"Volume = 141.37", "Calculate the answer by multiplying."}};
    EXPECT_EQ(LogOf(Solved(RadiusAndHeight(kCylinder, "3", "5"))), expected);
}

TEST(VolumeOf, AConeFollowsItsFormula) {
    // 3.1415926 * 9 * 5 / 3 = 47.123889
    const Log expected{
        {"radius = 3, height = 5", ""},
        {"Volume = #1/3# base * height",
         "This is the formula for calculating the volume of a cone."},
        {"Volume = #1/3# * ` * radius^2^ * height   (` equals about 3.14 or about #22/7#)",
         "The base is equal to the area of a circle."},
        {"Volume = #1/3# * 3.1415926 * 3^2^ * 5",
         "Substitute the value of pi, radius, and height of the cone into the formula."},
        {"Volume = 47.12", "Calculate the answer by multiplying."}};
    EXPECT_EQ(LogOf(Solved(RadiusAndHeight(kCone, "3", "5"))), expected);
}

TEST(VolumeOf, ASphereFollowsItsFormula) {
    // 4 * 3.1415926 * 27 / 3 = 113.0973336
    const Log expected{{"radius = 3", ""},
                       {"Volume = #4/3# * ` * radius^3^   (` equals about 3.14 or about #22/7#)",
                        "This is the formula for calculating the volume of a sphere."},
                       {"Volume = #4/3# * 3.1415926 * 3^3^",
                        "Substitute the value of pi and radius into the formula."},
                       {"Volume = 113.1", "Calculate the answer by multiplying."}};
    EXPECT_EQ(LogOf(Solved(RadiusAndHeight(kSphere, "3", ""))), expected);
}

TEST(VolumeOf, PiOfTheFormulaFollowsTheSettingThatOfTheArithmeticStays) {
    const std::string pis[] = {"3.1", "3.14", "3.142", "3.1416", "3.14159"};
    const std::string cylinders[] = {"141.4", "141.37", "141.372", "141.3717", "141.37167"};
    const std::string cones[] = {"47.1", "47.12", "47.124", "47.1239", "47.12389"};
    const std::string spheres[] = {"113.1", "113.1", "113.097", "113.0973", "113.09733"};
    for (std::size_t i = 0; i < 5; ++i) {
        const int RoundDigits = static_cast<int>(i) + 1;
        const std::string about = "   (` equals about " + pis[i] + " or about #22/7#)";
        const Log cylinder = LogOf(Solved(RadiusAndHeight(kCylinder, "3", "5", RoundDigits)));
        EXPECT_EQ(cylinder[2].first, "Volume = ` * radius^2^ * height" + about);
        EXPECT_EQ(cylinder[3].first, "Volume = 3.1415926 * 3^2^ * 5");
        EXPECT_EQ(cylinder[4].first, "Volume = " + cylinders[i]);
        const Log cone = LogOf(Solved(RadiusAndHeight(kCone, "3", "5", RoundDigits)));
        EXPECT_EQ(cone[2].first, "Volume = #1/3# * ` * radius^2^ * height" + about);
        EXPECT_EQ(cone[4].first, "Volume = " + cones[i]);
        const Log sphere = LogOf(Solved(RadiusAndHeight(kSphere, "3", "", RoundDigits)));
        EXPECT_EQ(sphere[1].first, "Volume = #4/3# * ` * radius^3^" + about);
        EXPECT_EQ(sphere[3].first, "Volume = " + spheres[i]);
    }
}

TEST(VolumeOf, ResultsOfEdgesAreRoundedByTheSetting) {
    // 0.5 * 0.5 * 0.75 = 0.1875, a third of it 0.0625
    const std::string boxes[] = {"0.2", "0.19", "0.188", "0.1875", "0.1875"};
    const std::string pyramids[] = {"0.1", "0.06", "0.062", "0.0625", "0.0625"};
    for (std::size_t i = 0; i < 5; ++i) {
        const int RoundDigits = static_cast<int>(i) + 1;
        EXPECT_EQ(LogOf(Solved(Edged(kBox, "0.5", ".5", "0.75", RoundDigits))).back().first,
                  "Volume = " + boxes[i]);
        EXPECT_EQ(LogOf(Solved(Edged(kPyramid, "0.5", ".5", "0.75", RoundDigits))).back().first,
                  "Volume = " + pyramids[i]);
    }
}

TEST(VolumeOf, TheLargestSphere) {
    // 4 / 3 * 3.1415926 * 9999999999^3
    EXPECT_EQ(LogOf(Solved(RadiusAndHeight(kSphere, "9999999999", ""))).back().first,
              "Volume = 4.1887901320767E+30");
}

TEST(VolumeOf, AConeTakesAnyMeasure) {
    const std::vector<std::vector<std::string>> cases{{"3", "-5", "-47.12"},
                                                      {"-3", "5", "47.12"},
                                                      {"0", "5", "0"},
                                                      {"3", "0", "0"},
                                                      {"", "5", "0"}};
    for (const auto& each : cases) {
        const Log log = LogOf(Solved(RadiusAndHeight(kCone, each[0], each[1])));
        ASSERT_EQ(log.size(), 5U);
        EXPECT_EQ(log[3].first, "Volume = #1/3# * 3.1415926 * " + each[0] + "^2^ * " + each[1]);
        EXPECT_EQ(log[4].first, "Volume = " + each[2]);
    }
}

TEST(VolumeOf, RefusesMeasuresOfZeroOrLess) {
    for (const std::string bad : {"0", "0.00", "-0", "-3", ""}) {
        for (const int code : {kBox, kPyramid}) {
            EXPECT_EQ(LogOf(Solved(Edged(code, bad, "4", "5"))),
                      (Log{{"length = " + bad + ", width = 4, height = 5", ""}, kSides}));
            EXPECT_EQ(LogOf(Solved(Edged(code, "3", bad, "5"))),
                      (Log{{"length = 3, width = " + bad + ", height = 5", ""}, kSides}));
            EXPECT_EQ(LogOf(Solved(Edged(code, "3", "4", bad))),
                      (Log{{"length = 3, width = 4, height = " + bad, ""}, kSides}));
        }
        EXPECT_EQ(LogOf(Solved(RadiusAndHeight(kCylinder, bad, "5"))),
                  (Log{{"radius = " + bad + ", height = 5", ""}, kLengths}));
        EXPECT_EQ(LogOf(Solved(RadiusAndHeight(kCylinder, "3", bad))),
                  (Log{{"radius = 3, height = " + bad, ""}, kLengths}));
        EXPECT_EQ(LogOf(Solved(RadiusAndHeight(kSphere, bad, ""))),
                  (Log{{"radius = " + bad, ""},
                       {"The radius must be greater than zero.",
                        "It is impossible to have a radius less than or equal to 0."}}));
    }
}

TEST(VolumeOf, TextThatIsNoNumberFailsWhereItIsChecked) {
    for (const std::string text : {"abc", "--", "4%2", "1/2/3"}) {
        for (const int code : {kBox, kPyramid}) {
            ExpectFailure(Edged(code, "3", "4", text), FailureKind::Format,
                          {{"length = 3, width = 4, height = " + text, ""}});
        }
        ExpectFailure(RadiusAndHeight(kCylinder, text, "5"), FailureKind::Format,
                      {{"radius = " + text + ", height = 5", ""}});
        ExpectFailure(RadiusAndHeight(kSphere, text, ""), FailureKind::Format,
                      {{"radius = " + text, ""}});
    }
}

TEST(VolumeOf, AConeOfNoNumbersFailsAtTheResult) {
    ExpectFailure(
        RadiusAndHeight(kCone, "abc", "5"), FailureKind::Format,
        {{"radius = abc, height = 5", ""},
         {"Volume = #1/3# base * height",
          "This is the formula for calculating the volume of a cone."},
         {"Volume = #1/3# * ` * radius^2^ * height   (` equals about 3.14 or about #22/7#)",
          "The base is equal to the area of a circle."},
         {"Volume = #1/3# * 3.1415926 * abc^2^ * 5",
          "Substitute the value of pi, radius, and height of the cone into the formula."}});
}

TEST(VolumeOf, BeyondADoubleItOverflowsAtTheResult) {
    EXPECT_EQ(LogUpTo(FailureKind::Overflow, Edged(kBox, "1E200", "1E200", "1")).size(), 3U);
    EXPECT_EQ(LogUpTo(FailureKind::Overflow, Edged(kPyramid, "1E200", "1E200", "1")).size(), 3U);
    EXPECT_EQ(LogUpTo(FailureKind::Overflow, RadiusAndHeight(kCylinder, "1E200", "1")).size(), 4U);
    EXPECT_EQ(LogUpTo(FailureKind::Overflow, RadiusAndHeight(kCone, "1E200", "1")).size(), 4U);
    EXPECT_EQ(LogUpTo(FailureKind::Overflow, RadiusAndHeight(kSphere, "1E200", "")).size(), 3U);
}

TEST(VolumeOf, AnotherCodeHasNoVolume) {
    Problem problem;
    EXPECT_THROW(VolumeOf(problem, problem.boxes, 6), Failure);
}

TEST(VolumeOf, RandomEdgesAreMultiplied) {
    const std::pair<int, Rational> topics[] = {{kBox, 1}, {kPyramid, Rational(1, 3)}};
    for (const auto& [code, factor] : topics) {
        const BoxedTopic topic(code);
        Draws draws(static_cast<std::uint32_t>(code));
        for (int i = 0; i < kRandomProblems; ++i) {
            const std::string l = DrawBox(draws, 5);
            const std::string w = DrawBox(draws, 4, BoxMarks::Minus);
            const std::string h = DrawBox(draws, 5);
            const int RoundDigits = DrawRoundDigits(draws);
            const Log log = topic.LogFor({h, l, w}, RoundDigits);
            const Rational edges[] = {Rational::Of(l), Rational::Of(w), Rational::Of(h)};
            if (edges[0] <= 0 || edges[1] <= 0 || edges[2] <= 0) {
                EXPECT_EQ(log.back(), kSides);
                continue;
            }
            ExpectRounded(Between(log.back().first, "Volume = "),
                          edges[0] * edges[1] * edges[2] * factor, RoundDigits);
        }
    }
}

TEST(VolumeOf, RandomCylindersAndConesHaveTheSquareOfTheirRadiusTimesTheirHeight) {
    const Rational pi = Rational::Of("3.1415926");
    const std::pair<int, Rational> topics[] = {{kCylinder, pi}, {kCone, pi / 3}};
    for (const auto& [code, factor] : topics) {
        const BoxedTopic topic(code);
        Draws draws(static_cast<std::uint32_t>(code));
        for (int i = 0; i < kRandomProblems; ++i) {
            const std::string r = DrawBox(draws, 5);
            const std::string h = DrawBox(draws, 5);
            const int RoundDigits = DrawRoundDigits(draws);
            const Log log = topic.LogFor({h, r}, RoundDigits);
            const Rational radius = Rational::Of(r);
            const Rational height = Rational::Of(h);
            if (code == kCylinder && (radius <= 0 || height <= 0)) {
                EXPECT_EQ(log.back(), kLengths);
                continue;
            }
            ExpectRounded(Between(log.back().first, "Volume = "), factor * radius * radius * height,
                          RoundDigits);
        }
    }
}

TEST(VolumeOf, RandomSpheresHaveTheCubeOfTheirRadius) {
    const BoxedTopic topic(kSphere);
    Draws draws(kSphere);
    for (int i = 0; i < kRandomProblems; ++i) {
        const std::string r = DrawBox(draws, 4);
        const int RoundDigits = DrawRoundDigits(draws);
        const Log log = topic.LogFor({"", r}, RoundDigits);
        const Rational radius = Rational::Of(r);
        if (radius <= 0) {
            EXPECT_EQ(log.back().first, "The radius must be greater than zero.");
            continue;
        }
        ExpectRounded(Between(log.back().first, "Volume = "),
                      Rational::Of("3.1415926") * radius * radius * radius * Rational(4, 3),
                      RoundDigits);
    }
}

}  // namespace
}  // namespace numerello
