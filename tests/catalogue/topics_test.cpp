#include "catalogue/topics.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "core/failure.h"

namespace numerello {
namespace {

struct FolderRow {
    std::string key;
    std::string parent;
    std::string caption;
};

struct TopicRow {
    std::string caption;
    std::string parent;
    int code;
    std::string mask;
    int maskValue;  // 0 where the mask is "unchanged"
    int digits;
    int variables;
};

const std::vector<FolderRow> kFolderRows = {
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
};

// caption, parent, code, mask, the value of the mask, digits, variables
const std::vector<TopicRow> kTreeRows = {
    {"Addition", "Tree0", 200, "unchanged", 0, 5, 0},
    {"Subtraction", "Tree0", 201, "unchanged", 0, 5, 0},
    {"Multiplication", "Tree0", 202, "unchanged", 0, 5, 0},
    {"Division", "Tree0", 203, "unchanged", 0, 5, 0},
    {"Arithmetic", "Tree1", 91, "00010000001111", 1039, 5, 0},
    {"Expanded Notation", "Tree1", 99, "00000000000001", 1, 10, 0},
    {"Comparing Values", "Tree1", 90, "00100000000011", 2051, 8, 0},
    {"Absolute Values", "Tree1", 120, "00011000001111", 1551, 5, 0},
    {"Rounding", "Tree1", 98, "00011000000001", 1537, 8, 0},
    {"Complex Arithmetic Expressions", "Tree1", 121, "00000000111111", 63, 5, 0},
    {"Multiples", "Tree2", 89, "00000000000001", 1, 8, 0},
    {"Least Common Multiples", "Tree2", 88, "00100000000001", 2049, 5, 0},
    {"Greatest Common Factors", "Tree2", 87, "00100000000001", 2049, 5, 0},
    {"Factoring", "Tree2", 86, "00000000000001", 1, 5, 0},
    {"Prime/Composite", "Tree2", 85, "00000000000001", 1, 5, 0},
    {"Prime Factorization", "Tree2", 84, "00010000000001", 1025, 5, 0},
    {"Exponential Notation", "Tree2.1", 83, "00000000010101", 21, 8, 0},
    {"Calculating Roots", "Tree2.1", 82, "00000100000111", 263, 5, 0},
    {"Calculating With Exponents", "Tree2.1", 81, "00000000011111", 31, 5, 0},
    {"Simplifying Fractions", "Tree3", 80, "00000000001001", 9, 5, 0},
    {"Reciprocals", "Tree3", 79, "00000000001001", 9, 5, 0},
    {"Ratios", "Tree3", 78, "01010000000001", 5121, 5, 0},
    {"Proportions", "Tree3", 20, "unchanged", 0, 5, 0},
    {"Fraction Arithmetic", "Tree3", 76, "00000000001111", 15, 5, 0},
    {"Fraction To Mixed Notation", "Tree3Child", 75, "00000000001011", 11, 5, 0},
    {"Mixed To Fraction Notation", "Tree3Child", 74, "00000000001011", 11, 5, 0},
    {"Fraction To Decimal Notation", "Tree3Child", 73, "00000000001001", 9, 5, 0},
    {"Fraction To Percent Notation", "Tree3Child", 72, "00010000001001", 1033, 5, 0},
    {"Decimal To Fraction Notation", "Tree3.1", 71, "00010000001001", 1033, 5, 0},
    {"Decimal To Percent Notation", "Tree3.1", 70, "00010000000001", 1025, 5, 0},
    {"Percent To Decimal Notation", "Tree3.1", 69, "10010000000001", 9217, 5, 0},
    {"Percent To Fraction Notation", "Tree3.1", 68, "10010000000001", 9217, 5, 0},
    {"Amount = N% of Base", "Tree3.1", 14, "00010000000001", 1025, 5, 0},
    {"Converting Scientific To Regular Notation", "Tree3.2", 25, "unchanged", 0, 5, 0},
    {"Converting Regular To Scientific Notation", "Tree3.2", 65, "00010000000011", 1027, 5, 0},
    {"Multiplying Scientific Notation", "Tree3.2", 26, "unchanged", 0, 5, 0},
    {"Dividing Scientific Notation", "Tree3.2", 27, "unchanged", 0, 5, 0},
    {"Means (Averages)", "Tree4", 62, "00110000000011", 3075, 5, 0},
    {"Medians", "Tree4", 61, "00110000000011", 3075, 5, 0},
    {"Modes", "Tree4", 60, "00110000000011", 3075, 5, 0},
    {"Ranges", "Tree4", 59, "00110000000011", 3075, 5, 0},
    {"Straight/Obtuse/Right/Acute Angles", "Tree5", 104, "00000000000001", 1, 5, 0},
    {"Similar Triangles", "Tree5", 11, "unchanged", 0, 5, 0},
    {"Pythagorean Theorem", "Tree5", 12, "unchanged", 0, 5, 0},
    {"Perimeter of a Square/Rectangle", "Tree5Child1", 13, "unchanged", 0, 5, 0},
    {"Perimeter of a Triangle", "Tree5Child1", 19, "unchanged", 0, 5, 0},
    {"Calculating Circumference Using Radius", "Tree5Child2", 15, "00010000000001", 1025, 5, 0},
    {"Calculating Circumference Using Diameter", "Tree5Child2", 16, "00010000000001", 1025, 5, 0},
    {"Calculating Diameter Using Radius", "Tree5Child2", 17, "00010000000001", 1025, 5, 0},
    {"Calculating Radius Using Diameter", "Tree5Child2", 18, "00010000000001", 1025, 5, 0},
    {"Area of a Square/Rectangle", "Tree6Child", 6, "unchanged", 0, 5, 0},
    {"Area of a Circle", "Tree6Child", 7, "unchanged", 0, 5, 0},
    {"Area of a Triangle", "Tree6Child", 8, "unchanged", 0, 5, 0},
    {"Area of a Parallelogram", "Tree6Child", 9, "unchanged", 0, 5, 0},
    {"Area of a Trapezoid", "Tree6Child", 10, "unchanged", 0, 5, 0},
    {"Volume of a Box/Cube", "Tree6Child2", 1, "00010000000001", 1025, 5, 0},
    {"Volume of a Cylinder", "Tree6Child2", 2, "00010000000001", 1025, 5, 0},
    {"Volume of a Cone", "Tree6Child2", 3, "unchanged", 0, 5, 0},
    {"Volume of a Pyramid", "Tree6Child2", 4, "unchanged", 0, 5, 0},
    {"Volume of a Sphere", "Tree6Child2", 5, "unchanged", 0, 5, 0},
    {"Converting Inches To Feet", "Tree7Child.1", 54, "00010000000001", 1025, 5, 0},
    {"Converting Inches To Yards", "Tree7Child.1", 53, "00010000000001", 1025, 5, 0},
    {"Converting Inches To Miles", "Tree7Child.1", 52, "00010000000001", 1025, 5, 0},
    {"Converting Feet To Inches", "Tree7Child.1", 51, "00010000000001", 1025, 5, 0},
    {"Converting Feet To Yards", "Tree7Child.1", 50, "00010000000001", 1025, 5, 0},
    {"Converting Feet To Miles", "Tree7Child.1", 49, "00010000000001", 1025, 5, 0},
    {"Converting Yards To Inches", "Tree7Child.1", 48, "00010000000001", 1025, 5, 0},
    {"Converting Yards To Feet", "Tree7Child.1", 47, "00010000000001", 1025, 5, 0},
    {"Converting Yards To Miles", "Tree7Child.1", 46, "00010000000001", 1025, 5, 0},
    {"Converting Miles To Inches", "Tree7Child.1", 45, "00010000000001", 1025, 5, 0},
    {"Converting Miles To Feet", "Tree7Child.1", 44, "00010000000001", 1025, 5, 0},
    {"Converting Miles To Yards", "Tree7Child.1", 43, "00010000000001", 1025, 5, 0},
    {"Converting Ounces To Pounds", "Tree7Child.2", 42, "00010000000001", 1025, 5, 0},
    {"Converting Ounces To Tons", "Tree7Child.2", 41, "00010000000001", 1025, 5, 0},
    {"Converting Pounds To Ounces", "Tree7Child.2", 40, "00010000000001", 1025, 5, 0},
    {"Converting Pounds To Tons", "Tree7Child.2", 39, "00010000000001", 1025, 5, 0},
    {"Converting Tons To Ounces", "Tree7Child.2", 38, "00010000000001", 1025, 5, 0},
    {"Converting Tons To Pounds", "Tree7Child.2", 37, "00010000000001", 1025, 5, 0},
    {"Converting Inches To Meters", "Tree7Child.3", 36, "00010000000001", 1025, 5, 0},
    {"Converting Feet To Meters", "Tree7Child.3", 35, "00010000000001", 1025, 5, 0},
    {"Converting Miles To Kilometers", "Tree7Child.3", 34, "00010000000001", 1025, 5, 0},
    {"Converting Pounds To Grams", "Tree7Child.3", 33, "00010000000001", 1025, 5, 0},
    {"Converting Ounces To Grams", "Tree7Child.3", 32, "00010000000001", 1025, 5, 0},
    {"Meter Conversions", "Tree7Child2", 23, "00010000000001", 1025, 5, 0},
    {"Gram Conversions", "Tree7Child2", 24, "00010000000001", 1025, 5, 0},
    {"Converting Meters To Inches", "Tree7Child.4", 31, "00010000000001", 1025, 5, 0},
    {"Converting Meters To Feet", "Tree7Child.4", 30, "00010000000001", 1025, 5, 0},
    {"Converting Kilometers To Miles", "Tree7Child.4", 29, "00010000000001", 1025, 5, 0},
    {"Converting Grams To Ounces", "Tree7Child.4", 28, "00010000000001", 1025, 5, 0},
    {"Converting Grams To Pounds", "Tree7Child.4", 111, "00010000000001", 1025, 5, 0},
    {"Converting Fahrenheit To Celsius", "Tree7Child3", 110, "00010000000001", 1025, 5, 0},
    {"Converting Celsius To Fahrenheit", "Tree7Child3", 109, "00010000000001", 1025, 5, 0},
    {"Plotting A Point", "Tree7.1", 108, "00100000100011", 2083, 5, 0},
    {"Calculating A Point's Quadrant", "Tree7.1", 107, "00100000100011", 2083, 5, 0},
    {"Graphing A Line Using Two Points", "Tree7.1", 106, "00100000100011", 2083, 5, 0},
    {"Work = Rate * Time", "Tree7.2", 21, "00010000000001", 1025, 5, 0},
    {"Distance = Speed * Time", "Tree7.2", 22, "00010000000001", 1025, 5, 0},
};

const std::vector<TopicRow> kHiddenRows = {
    {"Arithmetic Principles", "", 101, "00000011000011", 195, 5, 1},
    {"Negative Exponents", "", 150, "00000010011111", 159, 5, 1},
    {"Solving Equations", "", 101, "00000011000011", 195, 5, 1},
    {"Simplifying Polynomials", "", 102, "00000010111111", 191, 5, 1},
    {"Evaluating Polynomials", "", 103, "00000010110111", 183, 5, 3},
    {"Graphing A Linear Equation", "", 105, "00000011000011", 195, 5, 2},
    {"Means", "", 62, "00110000000011", 3075, 5, 0},
    {"Averages", "", 62, "00110000000011", 3075, 5, 0},
};

void ExpectRow(const Topic& topic, const TopicRow& row) {
    EXPECT_EQ(topic.caption, row.caption);
    EXPECT_EQ(topic.parent, row.parent) << row.caption;
    EXPECT_EQ(topic.code, row.code) << row.caption;
    EXPECT_EQ(topic.mask, row.mask) << row.caption;
    EXPECT_EQ(topic.digits, row.digits) << row.caption;
    EXPECT_EQ(topic.variables, row.variables) << row.caption;
    EXPECT_EQ(topic.linearGraph, row.caption == "Graphing A Linear Equation") << row.caption;
}

TEST(Topics, FoldersStandInOrder) {
    const auto folders = Folders();
    ASSERT_EQ(folders.size(), 26U);
    ASSERT_EQ(kFolderRows.size(), 26U);
    for (std::size_t i = 0; i < folders.size(); ++i) {
        EXPECT_EQ(folders[i].key, kFolderRows[i].key);
        EXPECT_EQ(folders[i].parent, kFolderRows[i].parent) << folders[i].key;
        EXPECT_EQ(folders[i].caption, kFolderRows[i].caption) << folders[i].key;
    }
}

TEST(Topics, EveryParentIsAFolderThatStandsBefore) {
    std::set<std::string_view> keys;
    for (const Folder& folder : Folders()) {
        EXPECT_TRUE(folder.parent.empty() || keys.count(folder.parent) == 1) << folder.key;
        EXPECT_TRUE(keys.insert(folder.key).second) << folder.key;
    }
    for (const Topic& topic : TreeTopics()) {
        EXPECT_EQ(keys.count(topic.parent), 1U) << topic.caption;
    }
}

TEST(Topics, TreeTopicsStandInOrder) {
    const auto topics = TreeTopics();
    ASSERT_EQ(topics.size(), 97U);
    ASSERT_EQ(kTreeRows.size(), 97U);
    for (std::size_t i = 0; i < topics.size(); ++i) {
        ExpectRow(topics[i], kTreeRows[i]);
    }
}

TEST(Topics, HiddenTopicsStandInOrder) {
    const auto topics = HiddenTopics();
    ASSERT_EQ(topics.size(), 8U);
    ASSERT_EQ(kHiddenRows.size(), 8U);
    for (std::size_t i = 0; i < topics.size(); ++i) {
        ExpectRow(topics[i], kHiddenRows[i]);
    }
}

TEST(Topics, AllTopicsAreTheTreesThenTheHiddenOnes) {
    ASSERT_EQ(Topics().size(), 105U);
    EXPECT_EQ(Topics()[0].caption, "Addition");
    EXPECT_EQ(Topics()[96].caption, "Distance = Speed * Time");
    EXPECT_EQ(Topics()[97].caption, "Arithmetic Principles");
    EXPECT_EQ(Topics()[104].caption, "Averages");
}

TEST(Topics, OnlyTheseCodesHaveTopics) {
    const auto unused = [](int code) {
        const std::set<int> holes = {63, 64, 66, 67, 77, 100};
        return code <= 0 || (code >= 55 && code <= 58) || holes.count(code) == 1 ||
               (code >= 92 && code <= 97) || (code >= 112 && code <= 119) ||
               (code >= 122 && code <= 149) || (code >= 151 && code <= 199) || code > 203;
    };
    for (int code = -1; code <= 300; ++code) {
        EXPECT_EQ(FindTopicByCode(code) == nullptr, unused(code)) << code;
    }
}

TEST(Topics, OnlyTheseTopicsKeepTheMask) {
    for (const Topic& topic : Topics()) {
        const int code = topic.code;
        const bool keeps = (code >= 3 && code <= 13) || code == 19 || code == 20 ||
                           (code >= 25 && code <= 27) || code >= 200;
        EXPECT_EQ(topic.mask == kUnchanged, keeps) << topic.caption;
    }
}

TEST(Topics, CaptionsAreFoundExactly) {
    for (const auto* rows : {&kTreeRows, &kHiddenRows}) {
        for (const TopicRow& row : *rows) {
            const Topic* topic = FindTopic(row.caption);
            ASSERT_NE(topic, nullptr) << row.caption;
            ExpectRow(*topic, row);
        }
    }
    for (const char* text : {"", "addition", "Addition ", " Addition", "Additio", "Ratio", "Means(",
                             "Perimeters", "Lengths", "Area Of A Circle"}) {
        EXPECT_EQ(FindTopic(text), nullptr) << text;
    }
    for (const FolderRow& row : kFolderRows) {
        EXPECT_EQ(FindTopic(row.caption), nullptr) << row.caption;
    }
}

TEST(Topics, CodesAreFoundInCatalogueOrder) {
    std::map<int, std::string> first;
    for (const auto* rows : {&kTreeRows, &kHiddenRows}) {
        for (const TopicRow& row : *rows) {
            first.emplace(row.code, row.caption);
        }
    }
    ASSERT_EQ(first.size(), 102U);
    for (const auto& [code, caption] : first) {
        ASSERT_NE(FindTopicByCode(code), nullptr) << code;
        EXPECT_EQ(FindTopicByCode(code)->caption, caption);
    }
    EXPECT_EQ(FindTopicByCode(62)->caption, "Means (Averages)");
    EXPECT_EQ(FindTopicByCode(101)->caption, "Arithmetic Principles");
    EXPECT_EQ(FindTopicByCode(122), nullptr);
}

TEST(BinaryFlagValue, EveryMaskOfTheCatalogue) {
    for (const auto* rows : {&kTreeRows, &kHiddenRows}) {
        for (const TopicRow& row : *rows) {
            if (row.mask != "unchanged") {
                EXPECT_EQ(row.mask.size(), 14U) << row.caption;
                EXPECT_EQ(BinaryFlagValue(row.mask), row.maskValue) << row.caption;
            }
        }
    }
}

TEST(BinaryFlagValue, EachPositionIsOneBit) {
    const std::vector<int> values = {8192, 4096, 2048, 1024, 512, 256, 128, 64, 32, 16, 8, 4, 2, 1};
    for (std::size_t position = 0; position < 14; ++position) {
        std::string mask(14, '0');
        mask[position] = '1';
        EXPECT_EQ(BinaryFlagValue(mask), values[position]) << mask;
    }
}

TEST(BinaryFlagValue, ExtremesAndOddTexts) {
    EXPECT_EQ(BinaryFlagValue("00000000000000"), 0);
    EXPECT_EQ(BinaryFlagValue("11111111111111"), 16383);
    EXPECT_EQ(BinaryFlagValue(""), 0);
    EXPECT_EQ(BinaryFlagValue("1"), 1);
    EXPECT_EQ(BinaryFlagValue("x1 2"), 4);
    EXPECT_EQ(BinaryFlagValue("0000000000000000001"), 1);
    EXPECT_EQ(BinaryFlagValue("111111111111111"), 32767);
}

TEST(BinaryFlagValue, MoreThanSixteenBitsOverflow) {
    for (const std::string& mask : {"1" + std::string(15, '0'), std::string(2000, '1')}) {
        try {
            BinaryFlagValue(mask);
            ADD_FAILURE() << mask;
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
        }
    }
}

}  // namespace
}  // namespace numerello
