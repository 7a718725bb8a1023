#include "typeset/surface.h"

#include <gtest/gtest.h>

#include "core/failure.h"

namespace numerello {
namespace {

class SurfaceTest : public ::testing::Test {
  protected:
    const TextMark& LastText() const { return std::get<TextMark>(surface.Marks().back()); }

    PlainMetrics metrics;
    Surface surface{metrics, {std::string(kSheetFace), 12}};
};

TEST_F(SurfaceTest, PrintKeepsTheLine) {
    surface.CurrentX = 5;
    surface.CurrentY = 9;
    surface.ForeColor = kRed;
    surface.Print("ab");
    ASSERT_EQ(surface.Marks().size(), 1U);
    EXPECT_EQ(LastText().text, "ab");
    EXPECT_EQ(LastText().x, 5);
    EXPECT_EQ(LastText().y, 9);
    EXPECT_EQ(LastText().color, kRed);
    EXPECT_EQ(LastText().font.name, "VantrelFont");
    EXPECT_NEAR(surface.CurrentX, 5 + 2 * 134.0 / 204 * 12, 1e-9);
    EXPECT_EQ(surface.CurrentY, 9);
}

TEST_F(SurfaceTest, CountsItsClearings) {
    EXPECT_EQ(surface.Clearings(), 0);
    surface.Print("ab");
    EXPECT_EQ(surface.Clearings(), 0);
    surface.Cls();
    surface.Cls();
    EXPECT_EQ(surface.Clearings(), 2);
}

TEST_F(SurfaceTest, PrintEndsTheLineByTheSizeInForce) {
    surface.CurrentX = 5;
    surface.SetFontSize(30);
    surface.Print("ab", Surface::LineEnd::Break);
    EXPECT_EQ(surface.CurrentX, 0);
    EXPECT_NEAR(surface.CurrentY, 43, 1e-9);
    EXPECT_EQ(LastText().font.size, 30);
}

TEST_F(SurfaceTest, BlanksMoveThePenAndLeaveNoMark) {
    surface.Print("   ");
    EXPECT_TRUE(surface.Marks().empty());
    EXPECT_NEAR(surface.CurrentX, 3 * 67.0 / 204 * 12, 1e-9);
    surface.Print("");
    EXPECT_TRUE(surface.Marks().empty());
    surface.Print(" a ");
    EXPECT_EQ(LastText().text, " a ");
}

TEST_F(SurfaceTest, LineLeavesThePenAtItsEnd) {
    surface.DrawWidth = 2;
    surface.Line(1, 2, 30, 40);
    const auto& stroke = std::get<StrokeMark>(surface.Marks().back());
    EXPECT_EQ(stroke.x1, 1);
    EXPECT_EQ(stroke.y1, 2);
    EXPECT_EQ(stroke.x2, 30);
    EXPECT_EQ(stroke.y2, 40);
    EXPECT_EQ(stroke.width, 2);
    EXPECT_EQ(stroke.color, kBlack);
    EXPECT_EQ(surface.CurrentX, 30);
    EXPECT_EQ(surface.CurrentY, 40);
}

TEST_F(SurfaceTest, PictureLeavesThePen) {
    surface.PaintPicture("check", 10, 20);
    const auto& image = std::get<ImageMark>(surface.Marks().back());
    EXPECT_EQ(image.key, "check");
    EXPECT_EQ(image.x, 10);
    EXPECT_EQ(image.y, 20);
    EXPECT_EQ(surface.CurrentX, 0);
    EXPECT_EQ(surface.CurrentY, 0);
}

TEST_F(SurfaceTest, ClsKeepsFontColourAndWidth) {
    surface.SetFontSize(8);
    surface.SetFontName(kExplanationFace);
    surface.ForeColor = kBlue;
    surface.DrawWidth = 2;
    surface.Line(1, 2, 3, 4);
    surface.NewPage();
    surface.Cls();
    EXPECT_TRUE(surface.Marks().empty());
    EXPECT_EQ(surface.PageCount(), 1);
    EXPECT_EQ(surface.CurrentX, 0);
    EXPECT_EQ(surface.CurrentY, 0);
    EXPECT_EQ(surface.FontSize(), 8);
    EXPECT_EQ(surface.FontName(), "Book Antiqua");
    EXPECT_EQ(surface.ForeColor, kBlue);
    EXPECT_EQ(surface.DrawWidth, 2);
}

TEST_F(SurfaceTest, LinesAreMeasuredWithoutATrace) {
    surface.SetFontSize(8);
    EXPECT_NEAR(surface.LineHeight(30), 43, 1e-9);
    EXPECT_EQ(surface.FontSize(), 8);
    EXPECT_EQ(surface.CurrentY, 0);
}

TEST_F(SurfaceTest, BlankHasThePenAndNoMarks) {
    surface.SetFontSize(8);
    surface.SetFontName(kExplanationFace);
    surface.Print("a");
    surface.NewPage();
    surface.ForeColor = kBlue;
    surface.DrawWidth = 2;
    surface.CurrentX = 5;
    surface.CurrentY = 9;
    Surface blank = surface.Blank();
    EXPECT_TRUE(blank.Marks().empty());
    EXPECT_EQ(blank.PageCount(), 1);
    blank.Print("b");
    const auto& text = std::get<TextMark>(blank.Marks().front());
    EXPECT_EQ(text.x, 5);
    EXPECT_EQ(text.y, 9);
    EXPECT_EQ(text.font.name, "Book Antiqua");
    EXPECT_EQ(text.font.size, 8);
    EXPECT_EQ(text.color, kBlue);
    EXPECT_EQ(blank.DrawWidth, 2);
    EXPECT_EQ(surface.Marks().size(), 1U);
}

TEST_F(SurfaceTest, PagesHoldTheirOwnMarks) {
    surface.Print("a");
    surface.Print("b");
    surface.NewPage();
    EXPECT_EQ(surface.CurrentX, 0);
    surface.NewPage();
    surface.Print("c");
    ASSERT_EQ(surface.PageCount(), 3);
    EXPECT_EQ(surface.PageMarks(0).size(), 2U);
    EXPECT_TRUE(surface.PageMarks(1).empty());
    ASSERT_EQ(surface.PageMarks(2).size(), 1U);
    EXPECT_EQ(std::get<TextMark>(surface.PageMarks(2).front()).text, "c");
    EXPECT_THROW(surface.PageMarks(3), Failure);
    EXPECT_THROW(surface.PageMarks(-1), Failure);
}

}  // namespace
}  // namespace numerello
