#include "output/print_line.h"

#include "output/preview_pages.h"
#include "printed.h"

namespace numerello {
namespace {

// The lowest base that still fits is 560, so a line may begin with the pen at 548.
constexpr double kLastPen = 548;

TEST(PrintWholeLine, BeginsAFractionOnTheNextPageWhereThePageEnds) {
    PlainPrinter printer;
    printer.surface.Print("before");
    printer.surface.CurrentY = kLastPen + 1;
    PrintWholeLine("#1/2#x", printer.surface, false, printer.learner);
    ASSERT_EQ(printer.surface.PageCount(), 2);
    ExpectRows(printer.surface.PageMarks(0), {{"before", 0, 0}});
    ExpectRows(printer.surface.PageMarks(1),
               {{"1", 12, 19}, {"2", 12, 33}, {"_", 12, 19}, {"x", 12 + kCharacter, 24}});
    EXPECT_NEAR(printer.surface.CurrentY, 24 + kLine, 1e-9);
}

TEST(PrintWholeLine, DoesSoForRootsExponentsAndColouredFractions) {
    for (const std::string line : {"~4~", "^2^", "[#1/2#]", "][~4~]"}) {
        PlainPrinter printer;
        printer.surface.Print("before");
        printer.surface.CurrentY = kLastPen + 1;
        PrintWholeLine(line, printer.surface, false, printer.learner);
        EXPECT_EQ(printer.surface.PageCount(), 2) << line;
        EXPECT_EQ(printer.surface.PageMarks(0).size(), 1U) << line;
    }
}

TEST(PrintWholeLine, LeavesTheLastRowOfAPageToAFraction) {
    PlainPrinter printer;
    printer.surface.CurrentY = kLastPen;
    PrintWholeLine("#1/2#", printer.surface, false, printer.learner);
    EXPECT_EQ(printer.surface.PageCount(), 1);
    EXPECT_NEAR(std::get<TextMark>(printer.surface.Marks().front()).y, 555, 1e-9);
}

TEST(PrintWholeLine, TurnsOnceForAPlainLine) {
    PlainPrinter printer;
    printer.surface.Print("before");
    printer.surface.CurrentY = kLastPen + 1;
    PrintWholeLine("x=5", printer.surface, true, printer.learner);
    ASSERT_EQ(printer.surface.PageCount(), 2);
    ExpectRows(printer.surface.PageMarks(1), {{"x=5", 12, 24, 12, std::string(kSheetFace), kBlue}});
}

TEST(PreviewWholeLine, BeginsAFractionOnTheNextPictureWhereThePageEnds) {
    const PlainMetrics metrics;
    NotingLearner learner;
    PreviewPages pages(metrics);
    pages.Current().CurrentY = kLastPen + 1;
    PreviewWholeLine("#1/2#", pages, false, learner);
    ASSERT_EQ(pages.PreviewPageCount(), 1);
    EXPECT_TRUE(pages.Page(0).Marks().empty());
    ExpectRows(pages.Page(1).Marks(), {{"1", 12, 19, 8}, {"2", 12, 33, 8}, {"_", 12, 19, 8}});
}

TEST(PartFractions, MakesRoomBetweenTwoLinesWithFractions) {
    PlainPrinter printer;
    PrintWholeLine("#1/2#", printer.surface, false, printer.learner);
    PartFractions("#1/2#", "#3/4#", printer.surface);
    PrintWholeLine("#3/4#", printer.surface, false, printer.learner);
    // Of the first line the denominator's cell ends 14 - 5 below its base and a line lower. The
    // numerator of the second begins 5 above its own.
    const std::vector<Row> rows = RowsOf(printer.surface.Marks());
    const double end = 12 - 5 + 14 + kLine;
    ASSERT_EQ(rows.size(), 6U);
    EXPECT_NEAR(rows[1].y + kLine, end, 1e-9);
    EXPECT_NEAR(rows[3].y, end + 1, 1e-9);
}

TEST(PartFractions, LeavesOtherLinesAsTheyAre) {
    PlainPrinter printer;
    PartFractions("#1/2#", "x=1/2", printer.surface);
    PartFractions("x", "#1/2#", printer.surface);
    PartFractions("", "#1/2#", printer.surface);
    EXPECT_EQ(printer.surface.CurrentY, 0);
}

}  // namespace
}  // namespace numerello
