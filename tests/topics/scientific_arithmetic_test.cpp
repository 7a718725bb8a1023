#include "tests/topics/boxed.h"
#include "tests/topics/boxed_topic.h"

namespace numerello {
namespace {

constexpr int kMultiplying = 26;
constexpr int kDividing = 27;

const std::pair<std::string, std::string> kToMultiply{
    "To multiply numbers in scientific notation:",
    "Scientific notation is written: number * 10^power^"};
const std::pair<std::string, std::string> kToDivide{
    "To divide numbers in scientific notation:",
    "Scientific notation is written as a number * 10^power^."};
const std::string kMultipliedBases = "The bases are the numbers being multiplied by 10.";
const std::string kDividedBases =
    "The bases are the numbers to the left of the multiplication (*) symbol.";
const std::string kExponents = "Exponents are the numbers in the power (written after the the 10).";

TEST(MultiplyScientific, MultipliesBasesAndAddsExponents) {
    const Log expected{
        {"2.5 * 10^3^ * 3 * 10^-5^", ""},
        {"To multiply numbers in scientific notation:",
         "Scientific notation is written: number * 10^power^"},
        {"First, multiply the bases: 2.5 * 3", "The bases are the numbers being multiplied by 10."},
        {"Next, add the exponents: 3 + -5",
         "Exponents are the numbers in the power (written after the the 10)."},
        {"7.5 * 10^-2^", "Multiplied scientific numbers."}};
    EXPECT_EQ(BoxedLog(kMultiplying, {"2.5", "3", "3", "-5"}), expected);
}

TEST(MultiplyScientific, LeavesTheResultWithoutShiftingItsPoint) {
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{"5", "2", "2", "-4"}, "10 * 10^-2^"},
        {{"4.12", "3", "2.50", "4"}, "10.3 * 10^7^"},
        {{"0", "0", "7", "0"}, "0 * 10^0^"},
        {{"-0.1", "5", "0.1", "-5"}, "-0.01 * 10^0^"},
        {{"1.23456789", "1", "987654321", "2"}, "1219326311.12635 * 10^3^"},
        {{"9999999999", "9999999999", "9999999999", "9999999999"},
         "9.999999998E+19 * 10^19999999998^"},
        {{"02", "03", ".5", "04"}, "1 * 10^7^"}};
    for (const auto& [boxes, result] : cases) {
        for (const int RoundDigits : {1, 5}) {
            EXPECT_EQ(
                BoxedLog(kMultiplying, boxes, RoundDigits),
                (Log{
                    {boxes[0] + " * 10^" + boxes[1] + "^ * " + boxes[2] + " * 10^" + boxes[3] + "^",
                     ""},
                    kToMultiply,
                    {"First, multiply the bases: " + boxes[0] + " * " + boxes[2], kMultipliedBases},
                    {"Next, add the exponents: " + boxes[1] + " + " + boxes[3], kExponents},
                    {result, "Multiplied scientific numbers."}}));
        }
    }
}

TEST(MultiplyScientific, MarksAreTakenOutOfTheBoxes) {
    EXPECT_EQ(BoxedLog(kMultiplying, {"#2.5#", "#3", "3#", "-#5"}),
              BoxedLog(kMultiplying, {"2.5", "3", "3", "-5"}));
}

TEST(MultiplyScientific, FailsAtTheResult) {
    const std::vector<std::string> good{"2", "3", "4", "5"};
    for (const std::string text : {"abc", "--", "4%2", "1/2/3"}) {
        for (std::size_t i = 0; i < good.size(); ++i) {
            std::vector<std::string> boxes = good;
            boxes[i] = text;
            ExpectFailure(
                Boxed(kMultiplying, boxes), FailureKind::Format,
                {{boxes[0] + " * 10^" + boxes[1] + "^ * " + boxes[2] + " * 10^" + boxes[3] + "^",
                  ""},
                 kToMultiply,
                 {"First, multiply the bases: " + boxes[0] + " * " + boxes[2], kMultipliedBases},
                 {"Next, add the exponents: " + boxes[1] + " + " + boxes[3], kExponents}});
        }
    }
    EXPECT_EQ(
        LogUpTo(FailureKind::Overflow, Boxed(kMultiplying, {"1E200", "1", "1E200", "1"})).size(),
        4U);
}

TEST(DivideScientific, DividesBasesAndSubtractsExponents) {
    const Log expected{{"7.5 * 10^5^ { 2.5 * 10^-2^", ""},
                       {"To divide numbers in scientific notation:",
                        "Scientific notation is written as a number * 10^power^."},
                       {"First, divide the bases: #7.5/2.5# = 3",
                        "The bases are the numbers to the left of the multiplication (*) symbol."},
                       {"Next, subtract the exponents: 5 - -2 = 7",
                        "Exponents are the numbers in the power (written after the the 10)."},
                       {"3 * 10^7^", "Divided scientific numbers."}};
    EXPECT_EQ(BoxedLog(kDividing, {"7.5", "5", "2.5", "-2"}), expected);
}

TEST(DivideScientific, LeavesTheResultWithoutShiftingItsPoint) {
    struct Case {
        std::vector<std::string> boxes;
        std::string quotient;
        std::string difference;
    };
    const Case cases[] = {{{"1", "2", "3", "2"}, "0.333333333333333", "0"},
                          {{"-20", "-3", "06", "4"}, "-3.33333333333333", "-7"},
                          {{"0", "5", "4", "1"}, "0", "4"},
                          {{".5", "01", "-0.25", "02"}, "-2", "-1"},
                          {{"4.12", "3", "2.06", "-3"}, "2", "6"},
                          {{"1", "-9", "9999999999", "9"}, "0.00000000010000000001", "-18"}};
    for (const auto& [boxes, quotient, difference] : cases) {
        for (const int RoundDigits : {1, 5}) {
            EXPECT_EQ(
                BoxedLog(kDividing, boxes, RoundDigits),
                (Log{
                    {boxes[0] + " * 10^" + boxes[1] + "^ { " + boxes[2] + " * 10^" + boxes[3] + "^",
                     ""},
                    kToDivide,
                    {"First, divide the bases: #" + boxes[0] + "/" + boxes[2] + "# = " + quotient,
                     kDividedBases},
                    {"Next, subtract the exponents: " + boxes[1] + " - " + boxes[3] + " = " +
                         difference,
                     kExponents},
                    {quotient + " * 10^" + difference + "^", "Divided scientific numbers."}}));
        }
    }
}

TEST(DivideScientific, MarksAreTakenOutOfTheBoxes) {
    EXPECT_EQ(BoxedLog(kDividing, {"#7.5#", "#5", "2.5#", "-#2"}),
              BoxedLog(kDividing, {"7.5", "5", "2.5", "-2"}));
}

TEST(DivideScientific, RefusesASecondBaseOfZero) {
    for (const std::string zero : {"0", "0.00", "-0"}) {
        EXPECT_EQ(
            BoxedLog(kDividing, {"7", "5", zero, "2"}),
            (Log{{"7 * 10^5^ { " + zero + " * 10^2^", ""},
                 kToDivide,
                 {"Division by 0 is illegal.", "It is impossible to divide any number by 0."}}));
    }
}

TEST(DivideScientific, FailsWhereTheNumberIsNeeded) {
    for (const std::string text : {"abc", "--", "4%2", "1/2/3"}) {
        ExpectFailure(Boxed(kDividing, {text, "5", "2", "3"}), FailureKind::Format,
                      {{text + " * 10^5^ { 2 * 10^3^", ""}, kToDivide});
        ExpectFailure(Boxed(kDividing, {"7", "5", text, "3"}), FailureKind::Format,
                      {{"7 * 10^5^ { " + text + " * 10^3^", ""}, kToDivide});
        const std::pair<std::string, std::string> divided{"First, divide the bases: #7/2# = 3.5",
                                                          kDividedBases};
        ExpectFailure(Boxed(kDividing, {"7", text, "2", "3"}), FailureKind::Format,
                      {{"7 * 10^" + text + "^ { 2 * 10^3^", ""}, kToDivide, divided});
        ExpectFailure(Boxed(kDividing, {"7", "5", "2", text}), FailureKind::Format,
                      {{"7 * 10^5^ { 2 * 10^" + text + "^", ""}, kToDivide, divided});
    }
    ExpectFailure(Boxed(kDividing, {"1E200", "1", "1E-200", "1"}), FailureKind::Overflow,
                  {{"1E200 * 10^1^ { 1E-200 * 10^1^", ""}, kToDivide});
}

/// Two bases of up to `longest` characters with their powers.
std::vector<std::string> DrawTwoNumbers(Draws& draws, int longest) {
    return {DrawBox(draws, longest), DrawBox(draws, 4, BoxMarks::Minus),
            DrawBox(draws, longest, BoxMarks::Minus), DrawBox(draws, 4, BoxMarks::Minus)};
}

TEST(MultiplyScientific, RandomBasesAreMultipliedToFifteenDigits) {
    const BoxedTopic topic(kMultiplying);
    Draws draws(kMultiplying);
    for (int i = 0; i < kRandomProblems; ++i) {
        const std::vector<std::string> boxes = DrawTwoNumbers(draws, 8);
        const std::string sum = std::to_string(std::stoi(boxes[1]) + std::stoi(boxes[3]));
        const Log log = topic.LogFor(boxes, DrawRoundDigits(draws));
        ExpectFifteenDigits(Between(log.back().first, "", " * 10^" + sum + "^"),
                            Rational::Of(boxes[0]) * Rational::Of(boxes[2]));
    }
}

TEST(DivideScientific, RandomBasesAreDividedToFifteenDigits) {
    const BoxedTopic topic(kDividing);
    Draws draws(kDividing);
    for (int i = 0; i < kRandomProblems; ++i) {
        const std::vector<std::string> boxes = DrawTwoNumbers(draws, draws.Below(8) == 0 ? 3 : 7);
        const Log log = topic.LogFor(boxes, DrawRoundDigits(draws));
        const Rational divisor = Rational::Of(boxes[2]);
        if (divisor == 0) {
            EXPECT_EQ(log.back().first, "Division by 0 is illegal.");
            continue;
        }
        const std::string difference = std::to_string(std::stoi(boxes[1]) - std::stoi(boxes[3]));
        const std::string quotient = Between(log.back().first, "", " * 10^" + difference + "^");
        ExpectFifteenDigits(quotient, Rational::Of(boxes[0]) / divisor);
        ASSERT_EQ(log.size(), 5U);
        EXPECT_EQ(log[2].first,
                  "First, divide the bases: #" + boxes[0] + "/" + boxes[2] + "# = " + quotient);
    }
}

}  // namespace
}  // namespace numerello
