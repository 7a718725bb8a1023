#include "output/test_headings.h"

#include <algorithm>
#include <array>

#include "catalogue/topics.h"

namespace numerello {

namespace {

// caption, heading, suffix, walks, mask
constexpr auto kTopics = std::to_array<TestTopic>({
    {"Addition", "Add:"},
    {"Subtraction", "Subtract:"},
    {"Multiplication", "Multiply:"},
    {"Division", "Divide:"},
    {"Negative Exponents", "Simplify by removing the negative exponents:", "", true},
    {"Absolute Values", "Determine the absolute values and calculate:", "", true},
    {"Complex Arithmetic Expressions", "Solve the complex expression using arithmetic:", "", true,
     "00001100111111"},
    {"Arithmetic Principles", "Solve using arithmetic principles:", "", true},
    {"Expanded Notation", "Write the following numbers in expanded notation:"},
    {"Rounding", "Round the following numbers:"},
    {"Arithmetic", "Calculate the answer by using arithmetic:", "", true},
    {"Comparing Values",
     "Compare the following values with a greater than (>), less than (<), or equal to (=) "
     "symbol:"},
    {"Multiples", "Calculate the first 10 multiples of the following numbers:"},
    {"Least Common Multiples", "Find the least common multiples (LCM) of the following numbers:"},
    {"Greatest Common Factors", "Find the greatest common factors (GCF) of the following numbers:"},
    {"Factoring", "Factor the following numbers:"},
    {"Prime/Composite", "Determine whether these numbers are prime or composite:"},
    {"Prime Factorization", "Determine the prime factorization of the following numbers:"},
    {"Exponential Notation", "Rewrite the following expressions in exponential notation:"},
    {"Calculating Roots", "Simplify the following expressions:", "", true},
    {"Calculating With Exponents", "Expand the exponents and solve:", "", true},
    {"Simplifying Fractions", "Simplify the following fractions:"},
    {"Reciprocals", "Calculate the reciprocals of the following fractions:"},
    {"Ratios", "Write the following ratios as fractions:"},
    {"Proportions", "Calculate the correct proportions:"},
    {"Fraction Arithmetic", "Combine the following using fraction arithmetic:", "", true},
    {"Fraction To Mixed Notation", "Convert the following fractions to mixed numbers:"},
    {"Mixed To Fraction Notation", "Convert the following mixed numbers to fractions:"},
    {"Fraction To Decimal Notation", "Convert the following fractions to decimals:"},
    {"Fraction To Percent Notation", "Convert the following fractions to percents (%):"},
    {"Decimal To Fraction Notation", "Convert the following decimals to fractions:"},
    {"Decimal To Percent Notation", "Convert the following decimals to percents (%):"},
    {"Percent To Decimal Notation", "Convert the following percents to decimals:"},
    {"Percent To Fraction Notation", "Convert the following percents to fractions:"},
    {"Amount = N% of Base", "Solve using the formula Amount = N% of Base:"},
    {"Converting Scientific To Regular Notation",
     "Convert the following scientific numbers to regular notation:"},
    {"Converting Regular To Scientific Notation",
     "Convert the following numbers to scientific notation:"},
    {"Multiplying Scientific Notation", "Multiply the following scientific numbers:"},
    {"Dividing Scientific Notation", "Divide the following scientific numbers:"},
    {"Means (Averages)", "Calculate the averages of the following numbers:"},
    {"Medians", "Calculate the medians of the following numbers:"},
    {"Modes", "Calculate the modes of the following numbers:"},
    {"Ranges", "Calculate the ranges of the following numbers:"},
    {"Converting Inches To Feet", "", " inches = ? feet"},
    {"Converting Inches To Yards", "", " inches = ? yards"},
    {"Converting Inches To Miles", "", " inches = ? miles"},
    {"Converting Feet To Inches", "", " feet = ? inches"},
    {"Converting Feet To Yards", "", " feet = ? yards"},
    {"Converting Feet To Miles", "", " feet = ? miles"},
    {"Converting Yards To Inches", "", " yards = ? inches"},
    {"Converting Yards To Feet", "", " yards = ? feet"},
    {"Converting Yards To Miles", "", " yards = ? miles"},
    {"Converting Miles To Inches", "", " miles = ? inches"},
    {"Converting Miles To Feet", "", " miles = ? feet"},
    {"Converting Miles To Yards", "", " miles = ? yards"},
    {"Converting Ounces To Pounds", "", " ounces = ? pounds"},
    {"Converting Ounces To Tons", "", " ounces = ? tons"},
    {"Converting Pounds To Ounces", "", " pounds = ? ounces"},
    {"Converting Pounds To Tons", "", " pounds = ? tons"},
    {"Converting Tons To Ounces", "", " tons = ? ounces"},
    {"Converting Tons To Pounds", "", " tons = ? pounds"},
    {"Converting Inches To Meters", "", " inches = ? meters"},
    {"Converting Feet To Meters", "", " feet = ? meters"},
    {"Converting Miles To Kilometers", "", " miles = ? kilometers"},
    {"Converting Pounds To Grams", "", " pounds = ? grams"},
    {"Converting Ounces To Grams", "", " ounces = ? grams"},
    {"Converting Meters To Inches", "", " meters = ? inches"},
    {"Converting Meters To Feet", "", " meters = ? feet"},
    {"Converting Kilometers To Miles", "", " kilometers = ? miles"},
    {"Converting Grams To Ounces", "", " grams = ? ounces"},
    {"Converting Grams To Pounds", "", " grams = ? pounds"},
    {"Converting Fahrenheit To Celsius", "", " degrees fahrenheit = ? degrees celsius"},
    {"Converting Celsius To Fahrenheit", "", " degrees celsius = ? degrees fahrenheit"},
    {"Plotting A Point", "Plot the following points on a graph:"},
    {"Calculating A Point's Quadrant",
     "Determine which quadrant on a graph the following points are located:"},
    {"Graphing A Line Using Two Points", "Graph a line using the following pair of points:"},
    {"Graphing A Linear Equation", "Graph the following linear equation:", "", true},
    {"Meter Conversions", ""},
    {"Gram Conversions", ""},
    {"Work = Rate * Time", "Solve using the formula 'Work = Rate * Time':"},
    {"Distance = Speed * Time", "Solve using the formula 'Distance = Speed * Time':"},
    {"Solving Equations", "Solve the following equations:", "", true},
    {"Simplifying Polynomials", "Simplify the following polynomials:", "", true},
    {"Evaluating Polynomials", "Evaluate the following polynomials:", "", true},
    {"Calculating Circumference Using Radius",
     "Calculate the circumference of a circle using radius:"},
    {"Calculating Circumference Using Diameter",
     "Calculate the circumference of a circle using diameter:"},
    {"Calculating Diameter Using Radius", "Calculate the diameter of a circle using radius:"},
    {"Calculating Radius Using Diameter", "Calculate the radius of a circle using diameter:"},
    {"Volume of a Box/Cube", "Calculate the Volume of a Box/Cube:"},
    {"Volume of a Cylinder", "Calculate the Volume of a Cylinder:"},
    {"Volume of a Cone", "Calculate the Volume of a Cone:"},
    {"Volume of a Pyramid", "Calculate the Volume of a Pyramid:"},
    {"Volume of a Sphere", "Calculate the Volume of a Sphere:"},
    {"Area of a Square/Rectangle", "Calculate the Area of a Square/Rectangle:"},
    {"Area of a Circle", "Calculate the Area of a Circle:"},
    {"Area of a Triangle", "Calculate the Area of a Triangle:"},
    {"Area of a Parallelogram", "Calculate the Area of a Parallelogram:"},
    {"Area of a Trapezoid", "Calculate the Area of a Trapezoid:"},
    {"Similar Triangles",
     "Calculate the lengths of the sides (a,b,c) of Triangle 2 if Triangle 1 and 2 are similar:"},
    {"Pythagorean Theorem",
     "Use the pythagorean theorem (a^2^+b^2^=c^2^) to calculate the third side of the triangle:"},
    {"Perimeter of a Square/Rectangle", "Calculate the Perimeter of a Square/Rectangle:"},
    {"Straight/Obtuse/Right/Acute Angles",
     "Determine whether this degree measurement is Straight, Obtuse, Right, or Acute:", "^o^"},
    {"Perimeter of a Triangle", "Calculate the Perimeter of a Triangle:"},
});

}  // namespace

std::string_view TestTopic::Mask() const {
    return !walks || !mask.empty() ? mask : FindTopic(caption)->mask;
}

std::span<const TestTopic> TestTopics() {
    return kTopics;
}

const TestTopic* FindTestTopic(std::string_view caption) {
    const auto* const found =
        std::find_if(kTopics.begin(), kTopics.end(),
                     [caption](const TestTopic& topic) { return topic.caption == caption; });
    return found == kTopics.end() ? nullptr : found;
}

}  // namespace numerello
