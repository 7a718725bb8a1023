#include "tests/topics/solver_log.h"
#include "topics/conversions.h"

namespace numerello {
namespace {

struct WholeLog {
    int code;
    Log log;
};

/// Solved with two places.
const std::vector<WholeLog> kWholeLogs{
    {54,
     {{"1234", ""},
      {"There are 12 inches in a foot.", "12 inches = 1 foot"},
      {"To convert inches to feet, divide the number of inches (1234) by 12:",
       "Dividing by 12 will convert inches to feet."},
      {"1234 inches = 102.83 feet", "Inches converted to feet."}}},
    {51,
     {{"37.5", ""},
      {"There are 12 inches in a foot.", "12 inches = 1 foot"},
      {"To convert feet to inches, multiply the number of feet (37.5) by 12:",
       "Multiplying by 12 will convert feet to inches."},
      {"37.5 feet = 450 inches", "Feet converted to inches."}}},
    {50,
     {{"1234", ""},
      {"There are 3 feet in a yard.", "3 feet = 1 yard"},
      {"To convert feet to yards, divide the number of feet (1234) by 3:",
       "Dividing by 3 will convert feet to yards."},
      {"1234 feet = 411.333333333333 yards", "Feet converted to yards."}}},
    {49,
     {{"1234", ""},
      {"There are 5280 feet in a mile.", "5280 feet = 1 mile"},
      {"To convert feet to miles, divide the number of feet (1234) by 5280:",
       "Dividing by 5280 will convert feet to miles."},
      {"1234 feet = 0.23371 miles", "Feet converted to miles."}}},
    {47,
     {{"37.5", ""},
      {"There are 3 feet in a yard.", "3 feet = 1 yard"},
      {"To convert yards to feet, multiply the number of yards (37.5) by 3:",
       "Multiplying by 3 will convert yards to feet."},
      {"37.5 yards = 112.5 feet", "Yards converted to feet."}}},
    {46,
     {{"1234", ""},
      {"There are 1760 yards in a mile.", "1760 yards = 1 mile"},
      {"To convert yards to miles, divide the number of yards (1234) by 1760:",
       "Dividing by 1760 will convert yards to miles."},
      {"1234 yards = 0.70114 miles", "Yards converted to miles."}}},
    {44,
     {{"37.5", ""},
      {"There are 5280 feet in a mile.", "5280 feet = 1 mile"},
      {"To convert miles to feet, multiply the number of miles (37.5) by 5280:",
       "Multiplying by 5280 will convert miles to feet."},
      {"37.5 miles = 198000 feet", "Miles converted to feet."}}},
    {43,
     {{"37.5", ""},
      {"There are 1760 yards in a mile.", "1760 yards = 1 mile"},
      {"To convert miles to yards, multiply the number of miles (37.5) by 1760:",
       "Multiplying by 1760 will convert miles to yards."},
      {"37.5 miles = 66000 yards", "Miles converted to yards."}}},
    {42,
     {{"1234", ""},
      {"There are 16 ounces (oz) in a pound (lb):", "16 ounces = 1 pound"},
      {"Divide the number of ounces (1234) by 16:", "Dividing by 16 converts ounces to pounds."},
      {"1234 oz = 77.12 lb", "Ounces converted to pounds."}}},
    {40,
     {{"37.5", ""},
      {"There are 16 ounces (oz) in a pound (lb):", "16 ounces = 1 pound"},
      {"Multiply the number of pounds (37.5) by 16:",
       "Multiplying by 16 converts pounds to ounces."},
      {"37.5 lb = 600 oz", "Pounds converted to ounces."}}},
    {39,
     {{"1234", ""},
      {"There are 2000 pounds (lb) in a ton (T):", "2000 pounds = 1 ton"},
      {"Divide the number of pounds (1234) by 2000:", "Dividing by 2000 converts pounds to tons."},
      {"1234lb = 0.617 T", "Pounds converted to tons."}}},
    {37,
     {{"37.5", ""},
      {"There are 2000 pounds (lb) in a ton (T):", "2000 pounds = 1 ton"},
      {"Multiply the number of tons (37.5) by 2000:",
       "Multiplying by 2000 converts tons to pounds."},
      {"37.5T = 75000 lb", "Tons converted to pounds."}}},
    {31,
     {{"37.5", ""},
      {"There are 39.37 inches (in) in a meter (m):", "39.37 inches = 1 meter"},
      {"Multiply the number of meters (37.5) by 39.37:",
       "Multiplying by 39.37 approximately convert meters to inches."},
      {"37.5 m = 1476.375 in", "Meters converted to inches."}}},
    {30,
     {{"37.5", ""},
      {"There are 3.3 feet (ft) in a meter (m):", "3.3 feet = 1 meter"},
      {"Multiply the number of meters (37.5) by 3.3:",
       "Multiplying by 3.3 approximately convert meters to feet."},
      {"37.5 m = 123.75 ft", "Meters converted to feet."}}},
    {36,
     {{"1234", ""},
      {"There are 39.37 inches (in) in a meter (m):", "39.37 inches = 1 meter"},
      {"Divide the number of inches (1234) by 39.37:",
       "Dividing by 39.37 approximately convert inches to meters."},
      {"1234 in = 31.34 m", "Inches converted to meters."}}},
    {35,
     {{"1234", ""},
      {"There are 3.3 feet (ft) in a meter (m):", "3.3 feet = 1 meter"},
      {"Divide the number of feet (1234) by 3.3:",
       "Dividing by 3.3 approximately convert feet to meters."},
      {"1234 ft = 373.94 m", "Feet converted to meters."}}},
    {29,
     {{"37.5", ""},
      {"There are 0.621 miles in a kilometer (km):", "0.621 miles = 1 kilometer"},
      {"Multiply the number of kilometers (37.5) by 0.621:",
       "Multiplying by 0.621 approximately convert kilometers to miles."},
      {"37.5 km = 23.2875 mile(s)", "Kilometers converted to miles."}}},
    {34,
     {{"1234", ""},
      {"There are 0.621 miles in a kilometer (km):", "0.621 miles = 1 kilometer"},
      {"Divide the number of miles (1234) by 0.621:",
       "Dividing by 0.621 approximately convert miles to kilometers."},
      {"1234 mile(s) = 1987.12 km", "Miles converted to kilometers."}}},
    {111,
     {{"1234", ""},
      {"There are 454 grams (g) in a pound (lb):", "454 grams = 1 pound"},
      {"Divide the number of grams (1234) by 454:", "Dividing by 454 converts grams to pounds."},
      {"1234 g = 2.718 lb", "Grams converted to pounds."}}},
    {33,
     {{"37.5", ""},
      {"There are 454 grams (g) in a pound (lb):", "454 grams = 1 pound"},
      {"Multiply the number of pounds (37.5) by 454:",
       "Multiplying by 454 converts pounds to grams."},
      {"37.5 lb = 17025 g", "Pounds converted to grams."}}},
    {28,
     {{"37.5", ""},
      {"There are 0.035 ounces (oz) in a gram (g):", "0.035 ounces = 1 gram"},
      {"Multiply the number of grams (37.5) by 0.035:",
       "Multiplying by 0.035 approximately converts grams to ounces."},
      {"37.5 g = 1.32 oz", "Grams converted to ounces."}}},
    {32,
     {{"37.5", ""},
      {"There are 28.375 grams (g) in an ounce (oz):", "28.375 grams = 1 ounce"},
      {"Multiply the number of ounces (37.5) by 28.375:",
       "Multiplying by 28.375 approximately converts ounces to grams."},
      {"37.5 oz = 1064.06 g", "Ounces converted to grams."}}},
};

TEST(DirectConversions, WriteEveryLineAndReason) {
    ASSERT_EQ(kWholeLogs.size(), 22U);
    for (const auto& [code, log] : kWholeLogs) {
        EXPECT_EQ(LogOf(Solved(code, log.front().first)), log) << code;
    }
}

struct ResultLine {
    int code;
    std::string_view value;
    int RoundDigits;
    std::string_view line;
};

constexpr ResultLine kResultLines[] = {
    {54, "0", 2, "0 inches = 0 feet"},
    {54, "1", 2, "1 inches = 0.08 feet"},
    {54, "7", 5, "7 inches = 0.58 feet"},
    {54, "99999.99", 1, "99999.99 inches = 8333.33 feet"},
    {51, "0", 2, "0 feet = 0 inches"},
    {51, "1", 2, "1 feet = 12 inches"},
    {51, "7", 5, "7 feet = 84 inches"},
    {51, "99999.99", 1, "99999.99 feet = 1199999.88 inches"},
    {50, "0", 2, "0 feet = 0 yards"},
    {50, "1", 2, "1 feet = 0.333333333333333 yards"},
    {50, "7", 5, "7 feet = 2.33333333333333 yards"},
    {50, "99999.99", 1, "99999.99 feet = 33333.33 yards"},
    {49, "0", 2, "0 feet = 0 miles"},
    {49, "1", 2, "1 feet = 0.00019 miles"},
    {49, "7", 5, "7 feet = 0.00133 miles"},
    {49, "99999.99", 1, "99999.99 feet = 18.93939 miles"},
    {47, "0", 2, "0 yards = 0 feet"},
    {47, "1", 2, "1 yards = 3 feet"},
    {47, "7", 5, "7 yards = 21 feet"},
    {47, "99999.99", 1, "99999.99 yards = 299999.97 feet"},
    {46, "0", 2, "0 yards = 0 miles"},
    {46, "1", 2, "1 yards = 0.00057 miles"},
    {46, "7", 5, "7 yards = 0.00398 miles"},
    {46, "99999.99", 1, "99999.99 yards = 56.81818 miles"},
    {44, "0", 2, "0 miles = 0 feet"},
    {44, "1", 2, "1 miles = 5280 feet"},
    {44, "7", 5, "7 miles = 36960 feet"},
    {44, "99999.99", 1, "99999.99 miles = 527999947.2 feet"},
    {43, "0", 2, "0 miles = 0 yards"},
    {43, "1", 2, "1 miles = 1760 yards"},
    {43, "7", 5, "7 miles = 12320 yards"},
    {43, "99999.99", 1, "99999.99 miles = 175999982.4 yards"},
    {42, "0", 2, "0 oz = 0 lb"},
    {42, "1", 2, "1 oz = 0.06 lb"},
    {42, "7", 5, "7 oz = 0.4375 lb"},
    {42, "99999.99", 1, "99999.99 oz = 6250 lb"},
    {40, "0", 2, "0 lb = 0 oz"},
    {40, "1", 2, "1 lb = 16 oz"},
    {40, "7", 5, "7 lb = 112 oz"},
    {40, "99999.99", 1, "99999.99 lb = 1599999.8 oz"},
    {39, "0", 2, "0lb = 0 T"},
    {39, "1", 2, "1lb = 0.0005 T"},
    {39, "7", 5, "7lb = 0.0035 T"},
    {39, "99999.99", 1, "99999.99lb = 50 T"},
    {37, "0", 2, "0T = 0 lb"},
    {37, "1", 2, "1T = 2000 lb"},
    {37, "7", 5, "7T = 14000 lb"},
    {37, "99999.99", 1, "99999.99T = 199999980 lb"},
    {31, "0", 2, "0 m = 0 in"},
    {31, "1", 2, "1 m = 39.37 in"},
    {31, "7", 5, "7 m = 275.59 in"},
    {31, "99999.99", 1, "99999.99 m = 3936999.6063 in"},
    {30, "0", 2, "0 m = 0 ft"},
    {30, "1", 2, "1 m = 3.3 ft"},
    {30, "7", 5, "7 m = 23.1 ft"},
    {30, "99999.99", 1, "99999.99 m = 329999.967 ft"},
    {36, "0", 2, "0 in = 0 m"},
    {36, "1", 2, "1 in = 0.03 m"},
    {36, "7", 5, "7 in = 0.1778 m"},
    {36, "99999.99", 1, "99999.99 in = 2540 m"},
    {35, "0", 2, "0 ft = 0 m"},
    {35, "1", 2, "1 ft = 0.3 m"},
    {35, "7", 5, "7 ft = 2.12121 m"},
    {35, "99999.99", 1, "99999.99 ft = 30303 m"},
    {29, "0", 2, "0 km = 0 mile(s)"},
    {29, "1", 2, "1 km = 0.621 mile(s)"},
    {29, "7", 5, "7 km = 4.347 mile(s)"},
    {29, "99999.99", 1, "99999.99 km = 62099.99379 mile(s)"},
    {34, "0", 2, "0 mile(s) = 0 km"},
    {34, "1", 2, "1 mile(s) = 1.61 km"},
    {34, "7", 5, "7 mile(s) = 11.27214 km"},
    {34, "99999.99", 1, "99999.99 mile(s) = 161030.6 km"},
    {111, "0", 2, "0 g = 0 lb"},
    {111, "1", 2, "1 g = 0.002 lb"},
    {111, "7", 5, "7 g = 0.015 lb"},
    {111, "99999.99", 1, "99999.99 g = 220.264 lb"},
    {33, "0", 2, "0 lb = 0 g"},
    {33, "1", 2, "1 lb = 454 g"},
    {33, "7", 5, "7 lb = 3178 g"},
    {33, "99999.99", 1, "99999.99 lb = 45399995.5 g"},
    {28, "0", 2, "0 g = 0 oz"},
    {28, "1", 2, "1 g = 0.04 oz"},
    {28, "7", 5, "7 g = 0.24668 oz"},
    {28, "99999.99", 1, "99999.99 g = 3524 oz"},
    {32, "0", 2, "0 oz = 0 g"},
    {32, "1", 2, "1 oz = 28.38 g"},
    {32, "7", 5, "7 oz = 198.625 g"},
    {32, "99999.99", 1, "99999.99 oz = 2837499.7 g"},
};

TEST(DirectConversions, EndInTheResult) {
    for (const ResultLine& expected : kResultLines) {
        const Log log = LogOf(Solved(expected.code, expected.value, expected.RoundDigits));
        ASSERT_EQ(log.size(), 4U) << expected.line;
        EXPECT_EQ(log.back().first, expected.line);
    }
}

TEST(DirectConversions, RepeatTheValueAsTyped) {
    const Log log = LogOf(Solved(50, "007.50"));
    EXPECT_EQ(log[0].first, "007.50");
    EXPECT_EQ(log[2].first, "To convert feet to yards, divide the number of feet (007.50) by 3:");
    EXPECT_EQ(log[3].first, "007.50 feet = 2.5 yards");
}

TEST(DirectConversions, FeetToYardsIsNotRounded) {
    EXPECT_EQ(LogOf(Solved(50, "1")).back().first, "1 feet = 0.333333333333333 yards");
}

TEST(DirectConversions, InchesToFeetShowsTwoPlacesWhateverTheSetting) {
    EXPECT_EQ(LogOf(Solved(54, "1")).back().first, "1 inches = 0.08 feet");
    EXPECT_EQ(LogOf(Solved(54, "1", 5)).back().first, "1 inches = 0.08 feet");
    EXPECT_EQ(LogOf(Solved(54, "12")).back().first, "12 inches = 1 feet");
    Problem problem;
    problem.settings.RoundDigits = 4;
    EXPECT_EQ(ConvertInchesToFeet(problem, "40", false), "3.3333");
    EXPECT_EQ(LogOf(problem).back().first, "40 inches = 3.33 feet");
}

TEST(DirectConversions, PoundsToTonsHasNoBlankBeforeTheUnit) {
    EXPECT_EQ(LogOf(Solved(39, "5")).back().first, "5lb = 0.0025 T");
    EXPECT_EQ(LogOf(Solved(37, "5")).back().first, "5T = 10000 lb");
}

TEST(DirectConversions, GramsToOuncesSaysOneFactorAndUsesAnother) {
    const Log ten = LogOf(Solved(28, "10"));
    EXPECT_EQ(ten[1].first, "There are 0.035 ounces (oz) in a gram (g):");
    EXPECT_EQ(ten[3].first, "10 g = 0.35 oz");
    EXPECT_EQ(LogOf(Solved(28, "100"))[3].first, "100 g = 3.52 oz");
}

TEST(DirectConversions, AStageWritesNoProblemLineAndReturnsItsResult) {
    Problem problem;
    EXPECT_EQ(ConvertYardsToFeet(problem, "1.1", false), "3.3");
    EXPECT_EQ(problem.log.StepCount, 4);
    EXPECT_EQ(problem.log.StepText[1], "There are 3 feet in a yard.");
    EXPECT_EQ(ConvertMilesToFeet(problem, "0.01", false), "52.8");
    EXPECT_EQ(ConvertOuncesToPounds(problem, "5", false), "0.31");
    EXPECT_EQ(ConvertPoundsToOunces(problem, "0.013", false), "0.21");
    EXPECT_EQ(ConvertPoundsToTons(problem, "31.25", false), "0.01562");
    EXPECT_EQ(ConvertTonsToPounds(problem, "2", false), "4000");
    EXPECT_EQ(problem.log.StepCount, 4 + 5 * 3);
}

TEST(DirectConversions, TextThatIsNoNumberFailsAfterTheInstruction) {
    Problem problem = ProblemOf(51, ".");
    EXPECT_EQ(FailureOf(problem), FailureKind::Format);
    EXPECT_EQ(problem.log.StepCount, 4);
    EXPECT_EQ(problem.log.StepText[3],
              "To convert feet to inches, multiply the number of feet (.) by 12:");
}

TEST(DirectConversions, AProductBeyondADoubleOverflows) {
    Problem problem = ProblemOf(44, "1E308");
    EXPECT_EQ(FailureOf(problem), FailureKind::Overflow);
    EXPECT_EQ(problem.log.StepCount, 4);
}

}  // namespace
}  // namespace numerello
