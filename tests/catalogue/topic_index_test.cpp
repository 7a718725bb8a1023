#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "catalogue/topics.h"

namespace numerello {
namespace {

const std::vector<std::string> kRows = {
    "Absolute Values",
    "Addition",
    "Amount = N% of Base",
    "Area of a Circle",
    "Area of a Parallelogram",
    "Area of a Square/Rectangle",
    "Area of a Trapezoid",
    "Area of a Triangle",
    "Arithmetic",
    "Calculating A Point's Quadrant",
    "Calculating Circumference Using Diameter",
    "Calculating Circumference Using Radius",
    "Calculating Diameter Using Radius",
    "Calculating Radius Using Diameter",
    "Calculating Roots",
    "Calculating With Exponents",
    "Comparing Values",
    "Complex Arithmetic Expressions",
    "Converting Celsius To Fahrenheit",
    "Converting Fahrenheit To Celsius",
    "Converting Feet To Inches",
    "Converting Feet To Meters",
    "Converting Feet To Miles",
    "Converting Feet To Yards",
    "Converting Grams To Ounces",
    "Converting Grams To Pounds",
    "Converting Inches To Feet",
    "Converting Inches To Meters",
    "Converting Inches To Miles",
    "Converting Inches To Yards",
    "Converting Kilometers To Miles",
    "Converting Meters To Feet",
    "Converting Meters To Inches",
    "Converting Miles To Feet",
    "Converting Miles To Inches",
    "Converting Miles To Kilometers",
    "Converting Miles To Yards",
    "Converting Ounces To Grams",
    "Converting Ounces To Pounds",
    "Converting Ounces To Tons",
    "Converting Pounds To Grams",
    "Converting Pounds To Ounces",
    "Converting Pounds To Tons",
    "Converting Regular To Scientific Notation",
    "Converting Scientific To Regular Notation",
    "Converting Tons To Ounces",
    "Converting Tons To Pounds",
    "Converting Yards To Feet",
    "Converting Yards To Inches",
    "Converting Yards To Miles",
    "Decimal To Fraction Notation",
    "Decimal To Percent Notation",
    "Distance = Speed * Time",
    "Dividing Scientific Notation",
    "Division",
    "Expanded Notation",
    "Exponential Notation",
    "Factoring",
    "Fraction Arithmetic",
    "Fraction To Decimal Notation",
    "Fraction To Mixed Notation",
    "Fraction To Percent Notation",
    "Gram Conversions",
    "Graphing A Line Using Two Points",
    "Greatest Common Factors",
    "Least Common Multiples",
    "Means (Averages)",
    "Medians",
    "Meter Conversions",
    "Mixed To Fraction Notation",
    "Modes",
    "Multiples",
    "Multiplication",
    "Multiplying Scientific Notation",
    "Percent To Decimal Notation",
    "Percent To Fraction Notation",
    "Perimeter of a Square/Rectangle",
    "Perimeter of a Triangle",
    "Plotting A Point",
    "Prime Factorization",
    "Prime/Composite",
    "Proportions",
    "Pythagorean Theorem",
    "Ranges",
    "Ratios",
    "Reciprocals",
    "Rounding",
    "Similar Triangles",
    "Simplifying Fractions",
    "Straight/Obtuse/Right/Acute Angles",
    "Subtraction",
    "Volume of a Box/Cube",
    "Volume of a Cone",
    "Volume of a Cylinder",
    "Volume of a Pyramid",
    "Volume of a Sphere",
    "Work = Rate * Time",
};

TEST(TopicIndex, RowsStandInAlphabeticOrder) {
    const auto rows = IndexRows();
    ASSERT_EQ(kRows.size(), 97U);
    EXPECT_EQ(std::vector<std::string>(rows.begin(), rows.end()), kRows);
}

TEST(TopicIndex, RowsAreTheTopicsOfTheTree) {
    std::set<std::string_view> captions;
    for (const Topic& topic : TreeTopics()) {
        captions.insert(topic.caption);
    }
    const auto rows = IndexRows();
    EXPECT_EQ(std::set<std::string_view>(rows.begin(), rows.end()), captions);
    for (const Topic& topic : HiddenTopics()) {
        EXPECT_EQ(captions.count(topic.caption), 0U) << topic.caption;
    }
}

std::string Found(std::string_view start) {
    const auto row = FindIndexRow(start);
    return row ? kRows[static_cast<std::size_t>(*row)] : "nothing";
}

TEST(TopicIndex, SearchTakesTheFirstRowThatBeginsSo) {
    EXPECT_EQ(Found("add"), "Addition");
    EXPECT_EQ(Found("ADD"), "Addition");
    EXPECT_EQ(Found("a"), "Absolute Values");
    EXPECT_EQ(Found("ar"), "Area of a Circle");
    EXPECT_EQ(Found("ari"), "Arithmetic");
    EXPECT_EQ(Found("converting  "), "nothing");
    EXPECT_EQ(Found("converting t"), "Converting Tons To Ounces");
    EXPECT_EQ(Found("mul"), "Multiples");
    EXPECT_EQ(Found("multipl"), "Multiples");
    EXPECT_EQ(Found("multipli"), "Multiplication");
    EXPECT_EQ(Found("means"), "Means (Averages)");
    EXPECT_EQ(Found("prime/"), "Prime/Composite");
    EXPECT_EQ(Found("calculating a point's"), "Calculating A Point's Quadrant");
    EXPECT_EQ(Found("w"), "Work = Rate * Time");
}

TEST(TopicIndex, SearchWithoutAMatch) {
    EXPECT_EQ(Found("x"), "nothing");
    EXPECT_EQ(Found(" addition"), "nothing");
    EXPECT_EQ(Found("ddition"), "nothing");
    EXPECT_EQ(Found("additions"), "nothing");
    EXPECT_EQ(Found("averages"), "nothing");
    EXPECT_EQ(Found("solving equations"), "nothing");
    EXPECT_EQ(Found("add\xC3\xAF"), "nothing");
    EXPECT_EQ(Found(std::string(500, 'a')), "nothing");
    EXPECT_EQ(Found("Converting Scientific To Regular Notation!"), "nothing");
}

TEST(TopicIndex, AnEmptySearchTakesTheFirstRow) {
    EXPECT_EQ(FindIndexRow(""), 0);
}

TEST(TopicIndex, EveryCaptionFindsItsOwnRow) {
    for (std::size_t row = 0; row < kRows.size(); ++row) {
        EXPECT_EQ(FindIndexRow(kRows[row]), static_cast<int>(row)) << kRows[row];
    }
}

}  // namespace
}  // namespace numerello
