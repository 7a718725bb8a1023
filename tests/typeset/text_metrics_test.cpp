#include "typeset/text_metrics.h"

#include <gtest/gtest.h>

#include "typeset/slack.h"

namespace numerello {
namespace {

TEST(PlainMetricsTest, WidthsAtTwelvePoints) {
    const Font font{"any", 12};
    EXPECT_NEAR(PlainMetrics().Width("7", font), 7.882353, 1e-6);
    EXPECT_NEAR(PlainMetrics().Width(" ", font), 3.941176, 1e-6);
    EXPECT_NEAR(PlainMetrics().Width(std::string(17, ' '), font), 67, 1e-9);
    EXPECT_NEAR(PlainMetrics().Width("a b", font), 2 * 7.8823529 + 3.9411765, 1e-6);
    EXPECT_EQ(PlainMetrics().Width("", font), 0);
}

TEST(PlainMetricsTest, WidthsOfOtherSizes) {
    EXPECT_NEAR(PlainMetrics().Width("7", {"any", 10}), 6.568627, 1e-6);
    EXPECT_NEAR(PlainMetrics().Width("7", {"any", 8}), 5.254902, 1e-6);
    EXPECT_NEAR(PlainMetrics().Width("7", {"any", 14}), 9.196078, 1e-6);
}

TEST(PlainMetricsTest, ACharacterOfSeveralBytesIsOne) {
    const Font font{"any", 12};
    EXPECT_EQ(PlainMetrics().Width("\u00F7", font), PlainMetrics().Width("7", font));
    EXPECT_EQ(PlainMetrics().Width("\u2260 \u03C0", font), PlainMetrics().Width("a b", font));
}

TEST(PlainMetricsTest, LineHeights) {
    EXPECT_NEAR(PlainMetrics().LineHeight({"any", 12}), 17.2, 1e-9);
    EXPECT_NEAR(PlainMetrics().LineHeight({"any", 10}), 14.333333, 1e-6);
}

TEST(SlackTest, EqualPlacesAreNeitherBeforeNorPast) {
    EXPECT_FALSE(IsBefore(749.9995, 750));
    EXPECT_TRUE(IsBefore(749.998, 750));
    EXPECT_FALSE(IsPast(750.0005, 750));
    EXPECT_TRUE(IsPast(750.002, 750));
}

}  // namespace
}  // namespace numerello
