#include "output/test_headings.h"

#include <gtest/gtest.h>

#include <set>

#include "catalogue/topics.h"

namespace numerello {
namespace {

TEST(TestTopics, AreThoseOfTheCatalogue) {
    std::set<std::string_view> captions;
    for (const TestTopic& row : TestTopics()) {
        EXPECT_TRUE(captions.insert(row.caption).second) << row.caption;
        const Topic* topic = FindTopic(row.caption);
        ASSERT_NE(topic, nullptr) << row.caption;
        EXPECT_EQ(row.code, topic->code) << row.caption;
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
        if (row.mask.empty()) {
            continue;
        }
        masked.insert(row.code);
        ASSERT_EQ(row.mask.size(), 14U);
        // The test lets roots and bars into its bracketed expressions; the walk proposes none.
        const std::string_view catalogue = FindTopic(row.caption)->mask;
        EXPECT_EQ(row.mask, row.code == 121 ? "00001100111111" : catalogue) << row.caption;
    }
    EXPECT_EQ(masked, (std::set<int>{81, 82, 76, 91, 101, 102, 103, 105, 120, 121, 150}));
}

TEST(TestTopics, SayTheirHeadings) {
    struct Said {
        std::string_view caption;
        std::string_view heading;
        std::string_view suffix = "";
    };
    constexpr Said kSaid[] = {
        {"Addition", "Add:"},
        {"Division", "Divide:"},
        {"Comparing Values",
         "Compare the following values with a greater than (>), less than (<), or equal to (=) "
         "symbol:"},
        {"Calculating Roots", "Simplify the following expressions:"},
        {"Work = Rate * Time", "Solve using the formula 'Work = Rate * Time':"},
        {"Pythagorean Theorem",
         "Use the pythagorean theorem (a^2^+b^2^=c^2^) to calculate the third side of the "
         "triangle:"},
        {"Similar Triangles",
         "Calculate the lengths of the sides (a,b,c) of Triangle 2 if Triangle 1 and 2 are "
         "similar:"},
        {"Straight/Obtuse/Right/Acute Angles",
         "Determine whether this degree measurement is Straight, Obtuse, Right, or Acute:", "^o^"},
        {"Meter Conversions", ""},
        {"Gram Conversions", ""},
        {"Converting Inches To Yards", "", " inches = ? yards"},
        {"Converting Celsius To Fahrenheit", "", " degrees celsius = ? degrees fahrenheit"},
        {"Multiplying Scientific Notation", "Multiply the following scientific numbers:"},
    };
    for (const Said& said : kSaid) {
        const TestTopic* topic = FindTestTopic(said.caption);
        ASSERT_NE(topic, nullptr) << said.caption;
        EXPECT_EQ(topic->heading, said.heading);
        EXPECT_EQ(topic->suffix, said.suffix);
    }
    int units = 0;
    for (const TestTopic& topic : TestTopics()) {
        const bool isMetric = topic.code == 23 || topic.code == 24;
        const bool isUnit = topic.suffix.starts_with(' ');
        units += isUnit ? 1 : 0;
        EXPECT_EQ(topic.heading.empty(), isUnit || isMetric) << topic.caption;
        EXPECT_TRUE(topic.heading.empty() || topic.heading.ends_with(':')) << topic.caption;
    }
    EXPECT_EQ(units, 30);
}

TEST(FindTestTopic, WantsTheExactText) {
    EXPECT_EQ(FindTestTopic("addition"), nullptr);
    EXPECT_EQ(FindTestTopic("Addition "), nullptr);
    EXPECT_EQ(FindTestTopic(""), nullptr);
    EXPECT_EQ(FindTestTopic("Lengths"), nullptr);
}

}  // namespace
}  // namespace numerello
