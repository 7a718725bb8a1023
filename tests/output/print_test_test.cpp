#include "output/print_test.h"

#include "output/print_scale.h"
#include "printed.h"

namespace numerello {
namespace {

const HeadingLines kHeading{"Vantrel Numerello", "Practice Test", "11/21/2026"};

TEST(PrintPracticeTest, PrintsEveryLineUnderTheHeading) {
    PlainPrinter printer;
    PrintPracticeTest(kHeading, std::vector<std::string>{"", "Add:", "1) 4 + 5"}, printer.surface,
                      printer.learner);
    ExpectRows(printer.surface.Marks(), {{"   Vantrel Numerello", 0, 3 * kLine},
                                         {"   Practice Test", 0, 4 * kLine},
                                         {"   11/21/2026", 0, 5 * kLine},
                                         {"Add:", 12, kFirstBase + kPitch},
                                         {"1)4+5", 12, kFirstBase + 2 * kPitch}});
}

TEST(PrintPracticeTest, OfNoLinesIsTheHeadingAlone) {
    PlainPrinter printer;
    PrintPracticeTest(kHeading, {}, printer.surface, printer.learner);
    EXPECT_EQ(RowsOf(printer.surface.Marks()).size(), 3U);
    EXPECT_EQ(PrintedPages(printer.surface).size(), 1U);
}

TEST(PrintPracticeTest, GoesOnAtTwentyFourOnTheNextPage) {
    PlainPrinter printer;
    PrintPracticeTest(kHeading, std::vector<std::string>(20, "x"), printer.surface,
                      printer.learner);
    // As in a worked solution: the 15th line has its base at 541.2.
    ASSERT_EQ(printer.surface.PageCount(), 2);
    EXPECT_EQ(RowsOf(printer.surface.PageMarks(0)).size(), 3U + 15);
    const std::vector<Row> rows = RowsOf(printer.surface.PageMarks(1));
    ASSERT_EQ(rows.size(), 5U);
    ExpectRow(rows, 0, {"x", 12, 24});
}

}  // namespace
}  // namespace numerello
