#include "cli/near_topics.h"

#include <gtest/gtest.h>

namespace numerello {
namespace {

using Captions = std::vector<std::string_view>;

TEST(NearTopics, AreThoseOfAnotherCase) {
    EXPECT_EQ(NearTopics("fraction arithmetic"), Captions{"Fraction Arithmetic"});
    EXPECT_EQ(NearTopics("ARITHMETIC"), Captions{"Arithmetic"});
    EXPECT_EQ(NearTopics("solving equations"), Captions{"Solving Equations"});
}

TEST(NearTopics, AreElseThoseThatBeginSo) {
    EXPECT_EQ(NearTopics("perimeter"),
              (Captions{"Perimeter of a Square/Rectangle", "Perimeter of a Triangle"}));
}

TEST(NearTopics, AreElseThoseThatContainIt) {
    EXPECT_EQ(NearTopics("(averages)"), Captions{"Means (Averages)"});
}

TEST(NearTopics, CanBeNone) {
    EXPECT_TRUE(NearTopics("").empty());
    EXPECT_TRUE(NearTopics("xyz").empty());
    EXPECT_TRUE(NearTopics("Fraction Arithmetic and more").empty());
}

}  // namespace
}  // namespace numerello
