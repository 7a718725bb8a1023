#include <gtest/gtest.h>

#include "graph/print_graph.h"

namespace numerello {
namespace {

const std::vector<std::string> kHeading{"Vantrel Numerello", "Plotting A Point", "11/21/2026"};

/// 12 points: lines of 17.2, and a picture below everything.
TEST(PrintTheGraph, PutsThePictureBelowFiveEmptyLines) {
    const PlainMetrics metrics;
    Surface page(metrics, {"Arial", 9});
    PrintTheGraph(page, kHeading, false);
    ASSERT_EQ(page.Marks().size(), 1U);
    const auto& picture = std::get<ImageMark>(page.Marks()[0]);
    EXPECT_EQ(picture.key, "graph");
    EXPECT_DOUBLE_EQ(picture.x, 0);
    EXPECT_DOUBLE_EQ(picture.y, 5 * 17.2);
}

TEST(PrintTheGraph, PrintsTheHeadingAfterThreeSpaces) {
    const PlainMetrics metrics;
    Surface page(metrics, {"Arial", 9});
    PrintTheGraph(page, kHeading, true);
    ASSERT_EQ(page.Marks().size(), 4U);
    for (std::size_t i = 0; i < kHeading.size(); ++i) {
        const auto& line = std::get<TextMark>(page.Marks()[i]);
        EXPECT_EQ(line.text, "   " + kHeading[i]);
        EXPECT_DOUBLE_EQ(line.y, (3 + static_cast<double>(i)) * 17.2);
        EXPECT_EQ(line.font.name, "VantrelFont");
        EXPECT_EQ(line.font.size, 12);
    }
    EXPECT_DOUBLE_EQ(std::get<ImageMark>(page.Marks()[3]).y, 8 * 17.2);
}

TEST(PrintTheGraph, EndsThePage) {
    const PlainMetrics metrics;
    Surface page(metrics, {"Arial", 9});
    PrintTheGraph(page, kHeading, true);
    EXPECT_EQ(page.PageCount(), 2);
    EXPECT_TRUE(page.PageMarks(1).empty());
}

}  // namespace
}  // namespace numerello
