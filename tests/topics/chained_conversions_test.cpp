#include "tests/topics/solver_log.h"

namespace numerello {
namespace {

TEST(ChainedConversions, InchesToYards) {
    const Log expected{
        {"40", ""},
        {"To convert inches to yards, first convert inches to feet:",
         "Convert inches to feet, then convert feet to yards."},
        {"There are 12 inches in a foot.", "12 inches = 1 foot"},
        {"To convert inches to feet, divide the number of inches (40) by 12:",
         "Dividing by 12 will convert inches to feet."},
        {"40 inches = 3.33 feet", "Inches converted to feet."},
        {"There are 3 feet in a yard.", "3 feet = 1 yard"},
        {"To convert feet to yards, divide the number of feet (3.33) by 3:",
         "Dividing by 3 will convert feet to yards."},
        {"3.33 feet = 1.11 yards", "Convert feet to yards."},
        {"40 inches = 1.11 yards", "Substitute the number of inches back into the equation."}};
    EXPECT_EQ(LogOf(Solved(53, "40")), expected);
}

TEST(ChainedConversions, TheSecondStepIsWorkedOnTheReturnedValue) {
    // 40 / 12 is 3.3333 at four places, and 3.3333 / 3 is 1.1111.
    const Log log = LogOf(Solved(53, "40", 4));
    EXPECT_EQ(log[4].first, "40 inches = 3.33 feet");
    EXPECT_EQ(log[6].first, "To convert feet to yards, divide the number of feet (3.3333) by 3:");
    EXPECT_EQ(log[7].first, "3.3333 feet = 1.1111 yards");
    EXPECT_EQ(log[8].first, "40 inches = 1.1111 yards");
}

TEST(ChainedConversions, RoundingTwiceIsPartOfTheResult) {
    // 27 / 12 is the tie 2.25, at one place 2.2; 2.2 / 3 is 0.7, while 27 / 36 is 0.75 and 0.8.
    EXPECT_EQ(LogOf(Solved(53, "27", 1)).back().first, "27 inches = 0.7 yards");
}

TEST(ChainedConversions, InchesToMiles) {
    // 63360 / 12 = 5280, one mile.
    const Log expected{
        {"63360", ""},
        {"To convert inches to miles, first convert inches to feet:",
         "Convert inches to feet, then convert feet to miles."},
        {"There are 12 inches in a foot.", "12 inches = 1 foot"},
        {"To convert inches to feet, divide the number of inches (63360) by 12:",
         "Dividing by 12 will convert inches to feet."},
        {"63360 inches = 5280 feet", "Inches converted to feet."},
        {"There are 5280 feet in a mile.", "5280 feet = 1 mile"},
        {"To convert from feet to miles, divide the number of feet (5280) by 5280:",
         "Dividing by 5280 will convert feet to miles."},
        {"5280 feet = 1 miles", "Convert feet to miles."},
        {"63360 inches = 1 miles", "Substitute the number of inches back into the equation."}};
    EXPECT_EQ(LogOf(Solved(52, "63360")), expected);
}

TEST(ChainedConversions, InchesToMilesHasFivePlaces) {
    // 100 / 12 is 8.33, and 8.33 / 5280 is 0.0015776...
    EXPECT_EQ(LogOf(Solved(52, "100")).back().first, "100 inches = 0.00158 miles");
}

TEST(ChainedConversions, YardsToInches) {
    const Log expected{
        {"2.5", ""},
        {"To convert yards to inches, first convert yards to feet:",
         "Convert yards to feet, then convert feet to inches."},
        {"There are 3 feet in a yard.", "3 feet = 1 yard"},
        {"To convert yards to feet, multiply the number of yards (2.5) by 3:",
         "Multiplying by 3 will convert yards to feet."},
        {"2.5 yards = 7.5 feet", "Yards converted to feet."},
        {"There are 12 inches in a foot.", "12 inches = 1 foot"},
        {"To convert feet to inches, multiply the number of feet (7.5) by 12:",
         "Multiplying by 12 will convert feet to inches."},
        {"7.5 feet = 90 inches", "Feet converted to inches."},
        {"2.5 yards = 90 inches", "Substitute the number of yards into the original equation."}};
    EXPECT_EQ(LogOf(Solved(48, "2.5")), expected);
}

TEST(ChainedConversions, MilesToInches) {
    const Log expected{
        {"2", ""},
        {"To convert miles to inches, first convert miles to feet:",
         "Convert miles to feet, then convert feet to inches."},
        {"There are 5280 feet in a mile.", "5280 feet = 1 mile"},
        {"To convert miles to feet, multiply the number of miles (2) by 5280:",
         "Multiplying by 5280 will convert miles to feet."},
        {"2 miles = 10560 feet", "Miles converted to feet."},
        {"There are 12 inches in a foot.", "12 inches = 1 foot"},
        {"To convert feet to inches, multiply the number of feet (10560) by 12:",
         "Multiplying by 12 will convert feet to inches."},
        {"10560 feet = 126720 inches", "Feet converted to inches."},
        {"2 miles = 126720 inches", "Substitute the number of miles into the original equation."}};
    EXPECT_EQ(LogOf(Solved(45, "2")), expected);
}

TEST(ChainedConversions, OuncesToTons) {
    // 500 / 16 = 31.25, and 31.25 / 2000 = 0.015625: the tie goes to the even fifth place.
    const Log expected{
        {"500", ""},
        {"To convert from ounces (oz) to tons (T):",
         "First convert ounces to pounds, then convert pounds to tons."},
        {"First, convert from ounces (oz) to pounds (lb):", "Convert ounces to pounds."},
        {"There are 16 ounces (oz) in a pound (lb):", "16 ounces = 1 pound"},
        {"Divide the number of ounces (500) by 16:", "Dividing by 16 converts ounces to pounds."},
        {"500 oz = 31.25 lb", "Ounces converted to pounds."},
        {"There are 2000 pounds (lb) in a ton (T):", "2000 pounds = 1 ton"},
        {"Divide the number of pounds (31.25) by 2000:",
         "Dividing by 2000 converts pounds to tons."},
        {"31.25lb = 0.01562 T", "Pounds converted to tons."},
        {"500 oz = 0.01562 T", "Ounces converted to tons."}};
    EXPECT_EQ(LogOf(Solved(41, "500")), expected);
}

TEST(ChainedConversions, TonsToOunces) {
    const Log expected{{"1.5", ""},
                       {"To convert from tons (T) to ounces (oz):",
                        "First convert tons to pounds, then convert pounds to ounces."},
                       {"First, convert from tons (T) to pounds (lb):", "Convert tons to pounds."},
                       {"There are 2000 pounds (lb) in a ton (T):", "2000 pounds = 1 ton"},
                       {"Multiply the number of tons (1.5) by 2000:",
                        "Multiplying by 2000 converts tons to pounds."},
                       {"1.5T = 3000 lb", "Tons converted to pounds."},
                       {"There are 16 ounces (oz) in a pound (lb):", "16 ounces = 1 pound"},
                       {"Multiply the number of pounds (3000) by 16:",
                        "Multiplying by 16 converts pounds to ounces."},
                       {"3000 lb = 48000 oz", "Pounds converted to ounces."},
                       {"1.5 T = 48000 oz", "Tons converted to ounces."}};
    EXPECT_EQ(LogOf(Solved(38, "1.5")), expected);
}

TEST(ChainedConversions, ZeroIsWorkedLikeAnyNumber) {
    const std::pair<int, std::string> expected[] = {
        {53, "0 inches = 0 yards"}, {52, "0 inches = 0 miles"}, {48, "0 yards = 0 inches"},
        {45, "0 miles = 0 inches"}, {41, "0 oz = 0 T"},         {38, "0 T = 0 oz"}};
    for (const auto& [code, line] : expected) {
        EXPECT_EQ(LogOf(Solved(code, "0")).back().first, line);
    }
}

TEST(ChainedConversions, TextThatIsNoNumberFailsInTheFirstStage) {
    Problem problem = ProblemOf(53, ".");
    EXPECT_EQ(FailureOf(problem), FailureKind::Format);
    EXPECT_EQ(problem.log.StepCount, 5);  // problem, opening, fact and instruction
}

}  // namespace
}  // namespace numerello
