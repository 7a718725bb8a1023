#include <array>

#include "catalogue/topics.h"

namespace numerello {

namespace {

// key, parent, caption
constexpr std::array<Folder, 26> kFolders{{
    {"Tree0", "", "Addition/Subtraction/Multiplication/Division"},
    {"Tree1", "", "Basic Operations"},
    {"Tree2", "", "Multiples/Factoring"},
    {"Tree2.1", "", "Roots/Exponents"},
    {"Tree3", "", "Fractions/Ratios"},
    {"Tree3.1", "", "Decimal/Percent Notations"},
    {"Tree3.2", "", "Scientific Notation"},
    {"Tree4", "", "Means(Averages)/Medians/Modes/Ranges"},
    {"Tree5", "", "Angles/Similar Triangles/Pythagorean Theorem"},
    {"Tree5.1", "", "Perimeters/Circumferences"},
    {"Tree6", "", "Areas/Volumes"},
    {"Tree7", "", "Standard/Metric/Temperature Conversions"},
    {"Tree7.1", "", "Graphing"},
    {"Tree7.2", "", "Miscellaneous Formulas"},
    {"Tree3Child", "Tree3", "Fraction/Mixed Conversions"},
    {"Tree5Child1", "Tree5.1", "Perimeters"},
    {"Tree5Child2", "Tree5.1", "Circumferences"},
    {"Tree6Child", "Tree6", "Areas"},
    {"Tree6Child2", "Tree6", "Volumes"},
    {"Tree7Child", "Tree7", "Standard Conversions"},
    {"Tree7Child.1", "Tree7Child", "Lengths"},
    {"Tree7Child.2", "Tree7Child", "Weights"},
    {"Tree7Child.3", "Tree7Child", "Standard To Metric Conversions"},
    {"Tree7Child2", "Tree7", "Metric Conversions"},
    {"Tree7Child.4", "Tree7Child2", "Metric To Standard Conversions"},
    {"Tree7Child3", "Tree7", "Temperature Conversions"},
}};

constexpr std::size_t kTreeTopicCount = 97;

// caption, parent, code, mask, digits, variables, linearGraph
constexpr std::array<Topic, kTreeTopicCount + 8> kTopics{{
    {"Addition", "Tree0", 200, kUnchanged, 5},
    {"Subtraction", "Tree0", 201, kUnchanged, 5},
    {"Multiplication", "Tree0", 202, kUnchanged, 5},
    {"Division", "Tree0", 203, kUnchanged, 5},
    {"Arithmetic", "Tree1", 91, "00010000001111", 5},
    {"Expanded Notation", "Tree1", 99, "00000000000001", 10},
    {"Comparing Values", "Tree1", 90, "00100000000011", 8},
    {"Absolute Values", "Tree1", 120, "00011000001111", 5},
    {"Rounding", "Tree1", 98, "00011000000001", 8},
    {"Complex Arithmetic Expressions", "Tree1", 121, "00000000111111", 5},
    {"Multiples", "Tree2", 89, "00000000000001", 8},
    {"Least Common Multiples", "Tree2", 88, "00100000000001", 5},
    {"Greatest Common Factors", "Tree2", 87, "00100000000001", 5},
    {"Factoring", "Tree2", 86, "00000000000001", 5},
    {"Prime/Composite", "Tree2", 85, "00000000000001", 5},
    {"Prime Factorization", "Tree2", 84, "00010000000001", 5},
    {"Exponential Notation", "Tree2.1", 83, "00000000010101", 8},
    {"Calculating Roots", "Tree2.1", 82, "00000100000111", 5},
    {"Calculating With Exponents", "Tree2.1", 81, "00000000011111", 5},
    {"Simplifying Fractions", "Tree3", 80, "00000000001001", 5},
    {"Reciprocals", "Tree3", 79, "00000000001001", 5},
    {"Ratios", "Tree3", 78, "01010000000001", 5},
    {"Proportions", "Tree3", 20, kUnchanged, 5},
    {"Fraction Arithmetic", "Tree3", 76, "00000000001111", 5},
    {"Fraction To Mixed Notation", "Tree3Child", 75, "00000000001011", 5},
    {"Mixed To Fraction Notation", "Tree3Child", 74, "00000000001011", 5},
    {"Fraction To Decimal Notation", "Tree3Child", 73, "00000000001001", 5},
    {"Fraction To Percent Notation", "Tree3Child", 72, "00010000001001", 5},
    {"Decimal To Fraction Notation", "Tree3.1", 71, "00010000001001", 5},
    {"Decimal To Percent Notation", "Tree3.1", 70, "00010000000001", 5},
    {"Percent To Decimal Notation", "Tree3.1", 69, "10010000000001", 5},
    {"Percent To Fraction Notation", "Tree3.1", 68, "10010000000001", 5},
    {"Amount = N% of Base", "Tree3.1", 14, "00010000000001", 5},
    {"Converting Scientific To Regular Notation", "Tree3.2", 25, kUnchanged, 5},
    {"Converting Regular To Scientific Notation", "Tree3.2", 65, "00010000000011", 5},
    {"Multiplying Scientific Notation", "Tree3.2", 26, kUnchanged, 5},
    {"Dividing Scientific Notation", "Tree3.2", 27, kUnchanged, 5},
    {"Means (Averages)", "Tree4", 62, "00110000000011", 5},
    {"Medians", "Tree4", 61, "00110000000011", 5},
    {"Modes", "Tree4", 60, "00110000000011", 5},
    {"Ranges", "Tree4", 59, "00110000000011", 5},
    {"Straight/Obtuse/Right/Acute Angles", "Tree5", 104, "00000000000001", 5},
    {"Similar Triangles", "Tree5", 11, kUnchanged, 5},
    {"Pythagorean Theorem", "Tree5", 12, kUnchanged, 5},
    {"Perimeter of a Square/Rectangle", "Tree5Child1", 13, kUnchanged, 5},
    {"Perimeter of a Triangle", "Tree5Child1", 19, kUnchanged, 5},
    {"Calculating Circumference Using Radius", "Tree5Child2", 15, "00010000000001", 5},
    {"Calculating Circumference Using Diameter", "Tree5Child2", 16, "00010000000001", 5},
    {"Calculating Diameter Using Radius", "Tree5Child2", 17, "00010000000001", 5},
    {"Calculating Radius Using Diameter", "Tree5Child2", 18, "00010000000001", 5},
    {"Area of a Square/Rectangle", "Tree6Child", 6, kUnchanged, 5},
    {"Area of a Circle", "Tree6Child", 7, kUnchanged, 5},
    {"Area of a Triangle", "Tree6Child", 8, kUnchanged, 5},
    {"Area of a Parallelogram", "Tree6Child", 9, kUnchanged, 5},
    {"Area of a Trapezoid", "Tree6Child", 10, kUnchanged, 5},
    {"Volume of a Box/Cube", "Tree6Child2", 1, "00010000000001", 5},
    {"Volume of a Cylinder", "Tree6Child2", 2, "00010000000001", 5},
    {"Volume of a Cone", "Tree6Child2", 3, kUnchanged, 5},
    {"Volume of a Pyramid", "Tree6Child2", 4, kUnchanged, 5},
    {"Volume of a Sphere", "Tree6Child2", 5, kUnchanged, 5},
    {"Converting Inches To Feet", "Tree7Child.1", 54, "00010000000001", 5},
    {"Converting Inches To Yards", "Tree7Child.1", 53, "00010000000001", 5},
    {"Converting Inches To Miles", "Tree7Child.1", 52, "00010000000001", 5},
    {"Converting Feet To Inches", "Tree7Child.1", 51, "00010000000001", 5},
    {"Converting Feet To Yards", "Tree7Child.1", 50, "00010000000001", 5},
    {"Converting Feet To Miles", "Tree7Child.1", 49, "00010000000001", 5},
    {"Converting Yards To Inches", "Tree7Child.1", 48, "00010000000001", 5},
    {"Converting Yards To Feet", "Tree7Child.1", 47, "00010000000001", 5},
    {"Converting Yards To Miles", "Tree7Child.1", 46, "00010000000001", 5},
    {"Converting Miles To Inches", "Tree7Child.1", 45, "00010000000001", 5},
    {"Converting Miles To Feet", "Tree7Child.1", 44, "00010000000001", 5},
    {"Converting Miles To Yards", "Tree7Child.1", 43, "00010000000001", 5},
    {"Converting Ounces To Pounds", "Tree7Child.2", 42, "00010000000001", 5},
    {"Converting Ounces To Tons", "Tree7Child.2", 41, "00010000000001", 5},
    {"Converting Pounds To Ounces", "Tree7Child.2", 40, "00010000000001", 5},
    {"Converting Pounds To Tons", "Tree7Child.2", 39, "00010000000001", 5},
    {"Converting Tons To Ounces", "Tree7Child.2", 38, "00010000000001", 5},
    {"Converting Tons To Pounds", "Tree7Child.2", 37, "00010000000001", 5},
    {"Converting Inches To Meters", "Tree7Child.3", 36, "00010000000001", 5},
    {"Converting Feet To Meters", "Tree7Child.3", 35, "00010000000001", 5},
    {"Converting Miles To Kilometers", "Tree7Child.3", 34, "00010000000001", 5},
    {"Converting Pounds To Grams", "Tree7Child.3", 33, "00010000000001", 5},
    {"Converting Ounces To Grams", "Tree7Child.3", 32, "00010000000001", 5},
    {"Meter Conversions", "Tree7Child2", 23, "00010000000001", 5},
    {"Gram Conversions", "Tree7Child2", 24, "00010000000001", 5},
    {"Converting Meters To Inches", "Tree7Child.4", 31, "00010000000001", 5},
    {"Converting Meters To Feet", "Tree7Child.4", 30, "00010000000001", 5},
    {"Converting Kilometers To Miles", "Tree7Child.4", 29, "00010000000001", 5},
    {"Converting Grams To Ounces", "Tree7Child.4", 28, "00010000000001", 5},
    {"Converting Grams To Pounds", "Tree7Child.4", 111, "00010000000001", 5},
    {"Converting Fahrenheit To Celsius", "Tree7Child3", 110, "00010000000001", 5},
    {"Converting Celsius To Fahrenheit", "Tree7Child3", 109, "00010000000001", 5},
    {"Plotting A Point", "Tree7.1", 108, "00100000100011", 5},
    {"Calculating A Point's Quadrant", "Tree7.1", 107, "00100000100011", 5},
    {"Graphing A Line Using Two Points", "Tree7.1", 106, "00100000100011", 5},
    {"Work = Rate * Time", "Tree7.2", 21, "00010000000001", 5},
    {"Distance = Speed * Time", "Tree7.2", 22, "00010000000001", 5},

    // in no tree
    {"Arithmetic Principles", "", 101, "00000011000011", 5, 1},
    {"Negative Exponents", "", 150, "00000010011111", 5, 1},
    {"Solving Equations", "", 101, "00000011000011", 5, 1},
    {"Simplifying Polynomials", "", 102, "00000010111111", 5, 1},
    {"Evaluating Polynomials", "", 103, "00000010110111", 5, 3},
    {"Graphing A Linear Equation", "", 105, "00000011000011", 5, 2, true},
    {"Means", "", 62, "00110000000011", 5, 0},
    {"Averages", "", 62, "00110000000011", 5, 0},
}};

}  // namespace

std::span<const Folder> Folders() {
    return kFolders;
}

std::span<const Topic> Topics() {
    return kTopics;
}

std::span<const Topic> TreeTopics() {
    return Topics().first(kTreeTopicCount);
}

std::span<const Topic> HiddenTopics() {
    return Topics().subspan(kTreeTopicCount);
}

}  // namespace numerello
