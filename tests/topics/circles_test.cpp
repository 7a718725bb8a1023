#include "tests/topics/boxed.h"
#include "tests/topics/boxed_topic.h"

namespace numerello {
namespace {

constexpr int kCircumferenceByRadius = 15;
constexpr int kCircumferenceByDiameter = 16;
constexpr int kDiameter = 17;
constexpr int kRadius = 18;

/// The measure stands in Text2.
Log CircleLog(int code, const std::string& measure, int RoundDigits = 2) {
    return BoxedLog(code, {"", measure}, RoundDigits);
}

TEST(CircumferenceOfCircle, ByRadius) {
    // 2 * 3.1415926 * 3 = 18.8495556
    const Log expected{
        {"radius = 3", ""},
        {"Circumference = 2 ` * radius",
         "This is the formula for calculating the circumference of a circle using radius."},
        {"Circumference = 2 ` * 3", "Substitute 3 in for radius."},
        {"Circumference = 18.85", "Multiply all terms to calculate the circumference."}};
    EXPECT_EQ(CircleLog(kCircumferenceByRadius, "3"), expected);
}

TEST(CircumferenceOfCircle, ByDiameter) {
    // 3.1415926 * 3 = 9.4247778
    const Log expected{
        {"diameter = 3", ""},
        {"Circumference = ` * diameter",
         "This is the formula for calculating the circumference of a circle using diameter."},
        {"Circumference = ` * 3", "Substitute 3 in for diameter."},
        {"Circumference = 9.42", "Multiply all terms to calculate the circumference."}};
    EXPECT_EQ(CircleLog(kCircumferenceByDiameter, "3"), expected);
}

TEST(DiameterFromRadius, Doubles) {
    const Log expected{
        {"radius = 3.5", ""},
        {"Diameter = 2 * radius", "This is the formula for calculating diameter using radius."},
        {"Diameter = 2 * 3.5", "Substitute 3.5 in for radius."},
        {"Diameter = 7", "Multiply."}};
    EXPECT_EQ(CircleLog(kDiameter, "3.5"), expected);
}

TEST(RadiusFromDiameter, Halves) {
    const Log expected{
        {"diameter = 7", ""},
        {"Radius = #diameter/2#", "This is the formula for calculating radius using diameter."},
        {"Radius = #7/2#", "Substitute 7 in for diameter."},
        {"Radius = 3.5", "Divide 7 by 2."}};
    EXPECT_EQ(CircleLog(kRadius, "7"), expected);
}

TEST(Circles, ResultsAreRoundedByTheSetting) {
    struct Case {
        int code;
        std::string measure;
        std::vector<std::string> results;  // with one to five places
    };
    const Case cases[] = {
        {kCircumferenceByRadius,
         "3",
         {"Circumference = 18.8", "Circumference = 18.85", "Circumference = 18.85",
          "Circumference = 18.8496", "Circumference = 18.84956"}},
        {kCircumferenceByDiameter,
         "1",
         {"Circumference = 3.1", "Circumference = 3.14", "Circumference = 3.142",
          "Circumference = 3.1416", "Circumference = 3.14159"}},
        {kDiameter,
         "1.2345",
         {"Diameter = 2.5", "Diameter = 2.47", "Diameter = 2.469", "Diameter = 2.469",
          "Diameter = 2.469"}},
        {kRadius,
         "2.46912",
         {"Radius = 1.2", "Radius = 1.23", "Radius = 1.235", "Radius = 1.2346",
          "Radius = 1.23456"}},
        // Ties go to the even digit.
        {kRadius,
         ".25",
         {"Radius = 0.1", "Radius = 0.12", "Radius = 0.125", "Radius = 0.125", "Radius = 0.125"}}};
    for (const Case& each : cases) {
        for (std::size_t i = 0; i < each.results.size(); ++i) {
            const Log log = CircleLog(each.code, each.measure, static_cast<int>(i) + 1);
            EXPECT_EQ(log.back().first, each.results[i]);
        }
    }
}

TEST(Circles, TheMeasureIsRepeatedAsTyped) {
    EXPECT_EQ(CircleLog(kRadius, "007.0")[2].first, "Radius = #007.0/2#");
    EXPECT_EQ(CircleLog(kRadius, "007.0")[3],
              (std::pair<std::string, std::string>("Radius = 3.5", "Divide 007.0 by 2.")));
    EXPECT_EQ(CircleLog(kCircumferenceByRadius, "5.")[2].second, "Substitute 5. in for radius.");
}

TEST(Circles, TheLargestMeasures) {
    // 2 * 3.1415926 * 9999999999 = 62831851993.7168148
    EXPECT_EQ(CircleLog(kCircumferenceByRadius, "9999999999").back().first,
              "Circumference = 62831851993.72");
    EXPECT_EQ(CircleLog(kDiameter, "9999999999").back().first, "Diameter = 19999999998");
}

TEST(Circles, RefuseARadiusOfZeroOrLess) {
    for (const int code : {kCircumferenceByRadius, kDiameter}) {
        for (const std::string r : {"0", "0.00", "-0", "-3", ""}) {
            const Log expected{
                {"radius = " + r, ""},
                {"The radius of a circle must be greater than 0.",
                 "It is impossible for a circle to have a radius less than or equal to 0."}};
            EXPECT_EQ(CircleLog(code, r), expected);
        }
    }
}

TEST(Circles, RefuseADiameterOfZeroOrLess) {
    for (const int code : {kCircumferenceByDiameter, kRadius}) {
        for (const std::string d : {"0", "0.00", "-0", "-3", ""}) {
            const Log expected{
                {"diameter = " + d, ""},
                {"The diameter of a circle must be greater than 0.",
                 "It is impossible for a circle to have a diameter less than or equal to 0."}};
            EXPECT_EQ(CircleLog(code, d), expected);
        }
    }
}

TEST(Circles, TextThatIsNoNumberFailsBehindTheProblemLine) {
    for (const std::string text : {"abc", "--", "4%2", "1/2/3", "."}) {
        for (const int code : {kCircumferenceByRadius, kDiameter}) {
            ExpectFailure(Boxed(code, {"", text}), FailureKind::Format, {{"radius = " + text, ""}});
        }
        for (const int code : {kCircumferenceByDiameter, kRadius}) {
            ExpectFailure(Boxed(code, {"", text}), FailureKind::Format,
                          {{"diameter = " + text, ""}});
        }
    }
}

TEST(Circles, BeyondADoubleTheyOverflow) {
    for (const int code : {kCircumferenceByRadius, kCircumferenceByDiameter, kDiameter}) {
        EXPECT_EQ(LogUpTo(FailureKind::Overflow, Boxed(code, {"", "1E308"})).size(), 3U);
    }
}

/// The value that a topic has to show for so long a radius or diameter.
struct Measured {
    int code;
    std::string result;
    Rational factor;
};

TEST(Circles, RandomMeasuresAreMultipliedByTheirFactor) {
    const Rational pi = Rational::Of("3.1415926");
    const Measured topics[] = {{kCircumferenceByRadius, "Circumference = ", pi * 2},
                               {kCircumferenceByDiameter, "Circumference = ", pi},
                               {kDiameter, "Diameter = ", 2},
                               {kRadius, "Radius = ", Rational(1, 2)}};
    for (const Measured& measured : topics) {
        const BoxedTopic topic(measured.code);
        Draws draws(static_cast<std::uint32_t>(measured.code));
        for (int i = 0; i < kRandomProblems; ++i) {
            const std::string measure = DrawBox(draws, draws.Below(4) == 0 ? 9 : 5);
            const int RoundDigits = DrawRoundDigits(draws);
            const Log log = topic.LogFor({"", measure}, RoundDigits);
            const Rational value = Rational::Of(measure);
            if (value <= 0) {
                EXPECT_TRUE(log.back().first.ends_with("must be greater than 0.")) << measure;
                continue;
            }
            ExpectRounded(Between(log.back().first, measured.result), value * measured.factor,
                          RoundDigits);
        }
    }
}

}  // namespace
}  // namespace numerello
