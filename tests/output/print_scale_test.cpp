#include "output/print_scale.h"

#include <gtest/gtest.h>

#include <string>

namespace numerello {
namespace {

constexpr double kPixelsPerMillimetre = 96 / 25.4;

TEST(PrintScale, IsEightHundredBySixHundredWithinTheMargins) {
    for (const PaperSize paper : {kA4, kLetter, PaperSize{297, 210}}) {
        const PrintScale scale = ScaleOfPrint(paper);
        EXPECT_NEAR(scale.margin, 10 * kPixelsPerMillimetre, 1e-9);
        EXPECT_NEAR((scale.pageWidth - 2 * scale.margin) * scale.across, 800, 1e-9);
        EXPECT_NEAR((scale.pageHeight - 2 * scale.margin) * scale.down, 600, 1e-9);
        EXPECT_NEAR(scale.pageWidth / kPixelsPerMillimetre, paper.width, 1e-9);
        EXPECT_NEAR(scale.pageHeight / kPixelsPerMillimetre, paper.height, 1e-9);
    }
}

TEST(PrintScale, FourteenUnitsDownAreSixAndAHalfMillimetresOfA4) {
    EXPECT_NEAR(14 / ScaleOfPrint(kA4).down / kPixelsPerMillimetre, 6.5, 0.05);
}

TEST(PrintScale, PreviewIsTwoThirdsOfThePaper) {
    const PrintScale a4 = ScaleOfPreview(kA4);
    EXPECT_NEAR(a4.pageWidth, 529, 0.5);
    EXPECT_NEAR(a4.pageHeight, 748, 0.5);
    const PrintScale letter = ScaleOfPreview(kLetter);
    EXPECT_NEAR(letter.pageWidth, 544, 0.5);
    EXPECT_NEAR(letter.pageHeight, 704, 0.5);
}

TEST(PrintScale, EightPointsOfThePreviewAreTwelveOfPaper) {
    const PlainMetrics pixels;
    for (const PaperSize paper : {kA4, kLetter}) {
        const ScaledMetrics print(pixels, ScaleOfPrint(paper));
        const ScaledMetrics preview(pixels, ScaleOfPreview(paper));
        const std::string face(kSheetFace);
        EXPECT_NEAR(preview.Width("3x+1 = 7", {face, 8}), print.Width("3x+1 = 7", {face, 12}),
                    1e-9);
        EXPECT_NEAR(preview.LineHeight({face, 8}), print.LineHeight({face, 12}), 1e-9);
    }
}

TEST(PrintScale, MeasuresWidthsAndHeightsInUnitsOfTheirAxis) {
    const PlainMetrics pixels;
    const ScaledMetrics metrics(pixels, ScaleOfPrint(kA4));
    const Font font{std::string(kSheetFace), 12};
    // 190 mm are 718.11 pixels, 277 mm are 1046.93.
    EXPECT_NEAR(metrics.Width("0", font), 134.0 / 17 * 800 / 718.11, 1e-3);
    EXPECT_NEAR(metrics.LineHeight(font), 17.2 * 600 / 1046.93, 1e-3);
}

TEST(PrintScale, PutsMarksOnThePaperAndKeepsTheirSizes) {
    const PrintScale scale{
        .pageWidth = 500, .pageHeight = 340, .margin = 20, .across = 2, .down = 4};
    const Font font{"VantrelFont", 12};
    const std::vector<Mark> marks{TextMark{"x", 10, 40, font, kRed},
                                  StrokeMark{20, 60, 100, 80, 2, kBlue}, ImageMark{"graph", 8, 16}};
    const std::vector<Mark> placed = MarksInPixels(marks, scale);
    ASSERT_EQ(placed.size(), 3U);
    const auto& text = std::get<TextMark>(placed[0]);
    EXPECT_EQ(text.text, "x");
    EXPECT_DOUBLE_EQ(text.x, 25);
    EXPECT_DOUBLE_EQ(text.y, 30);
    EXPECT_EQ(text.font.size, 12);
    EXPECT_EQ(text.color, kRed);
    const auto& stroke = std::get<StrokeMark>(placed[1]);
    EXPECT_DOUBLE_EQ(stroke.x1, 30);
    EXPECT_DOUBLE_EQ(stroke.y1, 35);
    EXPECT_DOUBLE_EQ(stroke.x2, 70);
    EXPECT_DOUBLE_EQ(stroke.y2, 40);
    EXPECT_EQ(stroke.width, 2);
    EXPECT_EQ(stroke.color, kBlue);
    const auto& image = std::get<ImageMark>(placed[2]);
    EXPECT_DOUBLE_EQ(image.x, 24);
    EXPECT_DOUBLE_EQ(image.y, 24);
}

TEST(PrintScale, SquareFillsTheNarrowerOfWidthAndHeight) {
    const PrintScale scale{
        .pageWidth = 500, .pageHeight = 340, .margin = 20, .across = 2, .down = 2};
    EXPECT_DOUBLE_EQ(scale.SquareAt(20, 100), 220);
    EXPECT_DOUBLE_EQ(scale.SquareAt(400, 20), 80);
    EXPECT_DOUBLE_EQ(scale.SquareAt(490, 20), 0);
}

TEST(PrintScale, LeavesRoomOnTheSmallestPaper) {
    const PrintScale scale = ScaleOfPrint({20, 40});
    EXPECT_NEAR((scale.pageWidth - 2 * scale.margin) / kPixelsPerMillimetre, 10, 1e-9);
}

TEST(PrintedPages, AreThoseWithMarks) {
    const PlainMetrics metrics;
    Surface Printer(metrics, {std::string(kSheetFace), 12});
    Printer.NewPage();
    Printer.Print("1");
    Printer.NewPage();
    Printer.Print("   ");
    Printer.NewPage();
    Printer.Print("2");
    Printer.NewPage();
    const auto pages = PrintedPages(Printer);
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(std::get<TextMark>(pages[0].front()).text, "1");
    EXPECT_EQ(std::get<TextMark>(pages[1].front()).text, "2");
}

}  // namespace
}  // namespace numerello
