#include "output/preview_pages.h"

#include "core/failure.h"
#include "printed.h"

namespace numerello {
namespace {

const HeadingLines kHeading{"Vantrel Numerello", "Practice Test", "11/21/2026"};
constexpr double kPreviewPitch = kPreviewLine + 12;
constexpr double kPreviewBase = 7 * kPreviewLine + 12;

class Previewed : public testing::Test {
  protected:
    void Build(const std::vector<std::string>& lines) { pages.Build(kHeading, lines, learner); }

    PlainMetrics metrics;
    NotingLearner learner;
    PreviewPages pages{metrics};
};

TEST_F(Previewed, PageIsSetInEightPoints) {
    Build({"", "Add:", "1) 4"});
    ExpectRows(pages.Page(0).Marks(), {{"   Vantrel Numerello", 0, 3 * kPreviewLine, 8},
                                       {"   Practice Test", 0, 4 * kPreviewLine, 8},
                                       {"   11/21/2026", 0, 5 * kPreviewLine, 8},
                                       {"Add:", 12, kPreviewBase + kPreviewPitch, 8},
                                       {"1)4", 12, kPreviewBase + 2 * kPreviewPitch, 8}});
}

TEST_F(Previewed, ExponentIsTwoPointsSmaller) {
    Build({"x^3^"});
    const std::vector<Row> rows = RowsOf(pages.Page(0).Marks());
    ExpectRow(rows, 4, {"3", 12 + 8 * 134.0 / 204, kPreviewBase - 1, 6});
}

TEST_F(Previewed, TestGoesOnAtTwentyFourOnTheNextPicture) {
    Build(std::vector<std::string>(50, "x"));
    // Line k has its base at 92.27 + 23.47 (k - 1): line 20 at 538.1, line 21 would be at 561.6;
    // then 24 + 23.47 * 22 = 540.3 is the lowest.
    ASSERT_EQ(pages.PreviewPageCount(), 2);
    EXPECT_EQ(RowsOf(pages.Page(0).Marks()).size(), 3U + 20);
    const std::vector<Row> second = RowsOf(pages.Page(1).Marks());
    ASSERT_EQ(second.size(), 23U);
    ExpectRow(second, 0, {"x", 12, 24, 8});
    EXPECT_EQ(RowsOf(pages.Page(2).Marks()).size(), 50U - 20 - 23);
}

TEST_F(Previewed, TestIsDrawnAnew) {
    Build(std::vector<std::string>(50, "x"));
    ASSERT_EQ(pages.PreviewPageCount(), 2);
    Build({"1) 4"});
    EXPECT_EQ(pages.PreviewPageCount(), 0);
}

TEST_F(Previewed, EmptyTestIsTheHeadingAlone) {
    Build({});
    EXPECT_EQ(pages.PreviewPageCount(), 0);
    EXPECT_EQ(RowsOf(pages.Page(0).Marks()).size(), 3U);
}

TEST_F(Previewed, LinesBelongToThePageThatTheyBeginOn) {
    std::vector<std::string> lines(19, "x");
    lines.push_back(std::string(300, 'y'));  // begins in the last row and wraps to the next page
    lines.emplace_back("z");
    Build(lines);
    ASSERT_EQ(pages.PreviewPageCount(), 1);
    EXPECT_EQ(pages.LinesOn(0).size(), 20U);
    EXPECT_EQ(pages.LinesOn(0).back(), lines[19]);
    EXPECT_EQ(pages.LinesOn(1), std::vector<std::string>{"z"});
}

TEST_F(Previewed, LineThatCannotBeDrawnIsToldAndTheTestGoesOn) {
    Build({"~4", "x"});
    EXPECT_EQ(learner.messages,
              std::vector<std::string>{"An error occurred while displaying information."});
    EXPECT_EQ(RowsOf(pages.Page(0).Marks()).back().text, "x");
}

TEST_F(Previewed, ThereIsNoPageBeyondTheLast) {
    Build({});
    EXPECT_THROW(pages.Page(1), Failure);
    EXPECT_THROW(pages.LinesOn(-1), Failure);
}

}  // namespace
}  // namespace numerello
