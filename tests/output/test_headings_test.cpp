#include "output/test_headings.h"

#include <gtest/gtest.h>

#include <array>
#include <set>

#include "catalogue/topics.h"

namespace numerello {
namespace {

struct Said {
    std::string_view caption;
    int code;
    std::string_view heading;
    std::string_view suffix{};
    std::string_view mask{};
};

constexpr auto kSaid = std::to_array<Said>({
    // caption, code, heading, suffix, mask
    {"Addition", 200, "Add:"},
    {"Subtraction", 201, "Subtract:"},
    {"Multiplication", 202, "Multiply:"},
    {"Division", 203, "Divide:"},
    {"Negative Exponents", 150, "Simplify by removing the negative exponents:", "",
     "00000010011111"},
    {"Absolute Values", 120, "Determine the absolute values and calculate:", "", "00011000001111"},
    {"Complex Arithmetic Expressions", 121, "Solve the complex expression using arithmetic:", "",
     "00001100111111"},
    {"Arithmetic Principles", 101, "Solve using arithmetic principles:", "", "00000011000011"},
    {"Expanded Notation", 99, "Write the following numbers in expanded notation:"},
    {"Rounding", 98, "Round the following numbers:"},
    {"Arithmetic", 91, "Calculate the answer by using arithmetic:", "", "00010000001111"},
    {"Comparing Values", 90,
     "Compare the following values with a greater than (>), less than (<), or equal to (=) "
     "symbol:"},
    {"Multiples", 89, "Calculate the first 10 multiples of the following numbers:"},
    {"Least Common Multiples", 88,
     "Find the least common multiples (LCM) of the following numbers:"},
    {"Greatest Common Factors", 87,
     "Find the greatest common factors (GCF) of the following numbers:"},
    {"Factoring", 86, "Factor the following numbers:"},
    {"Prime/Composite", 85, "Determine whether these numbers are prime or composite:"},
    {"Prime Factorization", 84, "Determine the prime factorization of the following numbers:"},
    {"Exponential Notation", 83, "Rewrite the following expressions in exponential notation:"},
    {"Calculating Roots", 82, "Simplify the following expressions:", "", "00000100000111"},
    {"Calculating With Exponents", 81, "Expand the exponents and solve:", "", "00000000011111"},
    {"Simplifying Fractions", 80, "Simplify the following fractions:"},
    {"Reciprocals", 79, "Calculate the reciprocals of the following fractions:"},
    {"Ratios", 78, "Write the following ratios as fractions:"},
    {"Proportions", 20, "Calculate the correct proportions:"},
    {"Fraction Arithmetic", 76, "Combine the following using fraction arithmetic:", "",
     "00000000001111"},
    {"Fraction To Mixed Notation", 75, "Convert the following fractions to mixed numbers:"},
    {"Mixed To Fraction Notation", 74, "Convert the following mixed numbers to fractions:"},
    {"Fraction To Decimal Notation", 73, "Convert the following fractions to decimals:"},
    {"Fraction To Percent Notation", 72, "Convert the following fractions to percents (%):"},
    {"Decimal To Fraction Notation", 71, "Convert the following decimals to fractions:"},
    {"Decimal To Percent Notation", 70, "Convert the following decimals to percents (%):"},
    {"Percent To Decimal Notation", 69, "Convert the following percents to decimals:"},
    {"Percent To Fraction Notation", 68, "Convert the following percents to fractions:"},
    {"Amount = N% of Base", 14, "Solve using the formula Amount = N% of Base:"},
    {"Converting Scientific To Regular Notation", 25,
     "Convert the following scientific numbers to regular notation:"},
    {"Converting Regular To Scientific Notation", 65,
     "Convert the following numbers to scientific notation:"},
    {"Multiplying Scientific Notation", 26, "Multiply the following scientific numbers:"},
    {"Dividing Scientific Notation", 27, "Divide the following scientific numbers:"},
    {"Means (Averages)", 62, "Calculate the averages of the following numbers:"},
    {"Medians", 61, "Calculate the medians of the following numbers:"},
    {"Modes", 60, "Calculate the modes of the following numbers:"},
    {"Ranges", 59, "Calculate the ranges of the following numbers:"},
    {"Converting Inches To Feet", 54, "", " inches = ? feet"},
    {"Converting Inches To Yards", 53, "", " inches = ? yards"},
    {"Converting Inches To Miles", 52, "", " inches = ? miles"},
    {"Converting Feet To Inches", 51, "", " feet = ? inches"},
    {"Converting Feet To Yards", 50, "", " feet = ? yards"},
    {"Converting Feet To Miles", 49, "", " feet = ? miles"},
    {"Converting Yards To Inches", 48, "", " yards = ? inches"},
    {"Converting Yards To Feet", 47, "", " yards = ? feet"},
    {"Converting Yards To Miles", 46, "", " yards = ? miles"},
    {"Converting Miles To Inches", 45, "", " miles = ? inches"},
    {"Converting Miles To Feet", 44, "", " miles = ? feet"},
    {"Converting Miles To Yards", 43, "", " miles = ? yards"},
    {"Converting Ounces To Pounds", 42, "", " ounces = ? pounds"},
    {"Converting Ounces To Tons", 41, "", " ounces = ? tons"},
    {"Converting Pounds To Ounces", 40, "", " pounds = ? ounces"},
    {"Converting Pounds To Tons", 39, "", " pounds = ? tons"},
    {"Converting Tons To Ounces", 38, "", " tons = ? ounces"},
    {"Converting Tons To Pounds", 37, "", " tons = ? pounds"},
    {"Converting Inches To Meters", 36, "", " inches = ? meters"},
    {"Converting Feet To Meters", 35, "", " feet = ? meters"},
    {"Converting Miles To Kilometers", 34, "", " miles = ? kilometers"},
    {"Converting Pounds To Grams", 33, "", " pounds = ? grams"},
    {"Converting Ounces To Grams", 32, "", " ounces = ? grams"},
    {"Converting Meters To Inches", 31, "", " meters = ? inches"},
    {"Converting Meters To Feet", 30, "", " meters = ? feet"},
    {"Converting Kilometers To Miles", 29, "", " kilometers = ? miles"},
    {"Converting Grams To Ounces", 28, "", " grams = ? ounces"},
    {"Converting Grams To Pounds", 111, "", " grams = ? pounds"},
    {"Converting Fahrenheit To Celsius", 110, "", " degrees fahrenheit = ? degrees celsius"},
    {"Converting Celsius To Fahrenheit", 109, "", " degrees celsius = ? degrees fahrenheit"},
    {"Plotting A Point", 108, "Plot the following points on a graph:"},
    {"Calculating A Point's Quadrant", 107,
     "Determine which quadrant on a graph the following points are located:"},
    {"Graphing A Line Using Two Points", 106, "Graph a line using the following pair of points:"},
    {"Graphing A Linear Equation", 105, "Graph the following linear equation:", "",
     "00000011000011"},
    {"Meter Conversions", 23, ""},
    {"Gram Conversions", 24, ""},
    {"Work = Rate * Time", 21, "Solve using the formula 'Work = Rate * Time':"},
    {"Distance = Speed * Time", 22, "Solve using the formula 'Distance = Speed * Time':"},
    {"Solving Equations", 101, "Solve the following equations:", "", "00000011000011"},
    {"Simplifying Polynomials", 102, "Simplify the following polynomials:", "", "00000010111111"},
    {"Evaluating Polynomials", 103, "Evaluate the following polynomials:", "", "00000010110111"},
    {"Calculating Circumference Using Radius", 15,
     "Calculate the circumference of a circle using radius:"},
    {"Calculating Circumference Using Diameter", 16,
     "Calculate the circumference of a circle using diameter:"},
    {"Calculating Diameter Using Radius", 17, "Calculate the diameter of a circle using radius:"},
    {"Calculating Radius Using Diameter", 18, "Calculate the radius of a circle using diameter:"},
    {"Volume of a Box/Cube", 1, "Calculate the Volume of a Box/Cube:"},
    {"Volume of a Cylinder", 2, "Calculate the Volume of a Cylinder:"},
    {"Volume of a Cone", 3, "Calculate the Volume of a Cone:"},
    {"Volume of a Pyramid", 4, "Calculate the Volume of a Pyramid:"},
    {"Volume of a Sphere", 5, "Calculate the Volume of a Sphere:"},
    {"Area of a Square/Rectangle", 6, "Calculate the Area of a Square/Rectangle:"},
    {"Area of a Circle", 7, "Calculate the Area of a Circle:"},
    {"Area of a Triangle", 8, "Calculate the Area of a Triangle:"},
    {"Area of a Parallelogram", 9, "Calculate the Area of a Parallelogram:"},
    {"Area of a Trapezoid", 10, "Calculate the Area of a Trapezoid:"},
    {"Similar Triangles", 11,
     "Calculate the lengths of the sides (a,b,c) of Triangle 2 if Triangle 1 and 2 are "
     "similar:"},
    {"Pythagorean Theorem", 12,
     "Use the pythagorean theorem (a^2^+b^2^=c^2^) to calculate the third side of the "
     "triangle:"},
    {"Perimeter of a Square/Rectangle", 13, "Calculate the Perimeter of a Square/Rectangle:"},
    {"Straight/Obtuse/Right/Acute Angles", 104,
     "Determine whether this degree measurement is Straight, Obtuse, Right, or Acute:", "^o^"},
    {"Perimeter of a Triangle", 19, "Calculate the Perimeter of a Triangle:"},
});

TEST(TestTopics, AreThoseOfTheCatalogue) {
    std::set<std::string_view> captions;
    for (const TestTopic& row : TestTopics()) {
        EXPECT_TRUE(captions.insert(row.caption).second) << row.caption;
        EXPECT_NE(FindTopic(row.caption), nullptr) << row.caption;
    }
    EXPECT_EQ(captions.size(), 103U);
    for (const Topic& topic : Topics()) {
        const bool isAlias = topic.caption == "Means" || topic.caption == "Averages";
        EXPECT_EQ(captions.count(topic.caption), isAlias ? 0U : 1U) << topic.caption;
    }
}

TEST(TestTopics, HaveTheMasksOfTheWalks) {
    std::set<int> masked;
    for (const TestTopic& row : TestTopics()) {
        if (row.Mask().empty()) {
            continue;
        }
        const Topic& topic = *FindTopic(row.caption);
        masked.insert(topic.code);
        ASSERT_EQ(row.Mask().size(), 14U);
        // The test lets roots and bars into its bracketed expressions; the walk proposes none.
        EXPECT_EQ(row.Mask(), topic.code == 121 ? "00001100111111" : topic.mask) << row.caption;
    }
    EXPECT_EQ(masked, (std::set<int>{81, 82, 76, 91, 101, 102, 103, 105, 120, 121, 150}));
}

TEST(TestTopics, SayTheirHeadings) {
    ASSERT_EQ(kSaid.size(), TestTopics().size());
    for (const Said& said : kSaid) {
        const TestTopic* topic = FindTestTopic(said.caption);
        ASSERT_NE(topic, nullptr) << said.caption;
        EXPECT_EQ(FindTopic(said.caption)->code, said.code) << said.caption;
        EXPECT_EQ(topic->heading, said.heading);
        EXPECT_EQ(topic->suffix, said.suffix) << said.caption;
        EXPECT_EQ(topic->Mask(), said.mask) << said.caption;
    }
}

TEST(FindTestTopic, WantsTheExactText) {
    EXPECT_EQ(FindTestTopic("addition"), nullptr);
    EXPECT_EQ(FindTestTopic("Addition "), nullptr);
    EXPECT_EQ(FindTestTopic(""), nullptr);
    EXPECT_EQ(FindTestTopic("Lengths"), nullptr);
}

}  // namespace
}  // namespace numerello
