#include "output/print_columns.h"

#include "columns/steps.h"
#include "output/print_scale.h"
#include "output/print_solution.h"
#include "printed.h"

namespace numerello {
namespace {

Problem ColumnProblem(int code, const std::string& top, const std::string& bottom) {
    Problem problem;
    problem.topic.ProblemType = code;
    problem.columns.ColumnTop = top;
    problem.columns.ColumnBottom = bottom;
    return problem;
}

struct Case {
    int code;
    std::string top;
    std::string bottom;
};

const std::vector<Case>& LargestProblems() {
    static const std::vector<Case> cases{{200, "9999999999", "9999999999"},
                                         {201, "1000000000", "1"},
                                         {202, "9999999999", "9999999999"},
                                         {203, "2147483647", "2"},
                                         {203, "2147483647", "1000000000"}};
    return cases;
}

TEST(PrintedColumns, FitThePaperUnderTheHeading) {
    const PlainMetrics pixels;
    for (const PaperSize paper : {kA4, kLetter, PaperSize{297, 210}}) {
        const ScaledMetrics metrics(pixels, ScaleOfPrint(paper));
        for (const Case& each : LargestProblems()) {
            Surface Printer(metrics, {std::string(kSheetFace), 12});
            NotingLearner learner;
            PrintSolution(ColumnProblem(each.code, each.top, each.bottom),
                          {{"a", "b", "c"}, true, false, false}, Printer, learner);
            ASSERT_EQ(PrintedPages(Printer).size(), 1U);
            for (const Mark& mark : Printer.Marks()) {
                if (const auto* const text = std::get_if<TextMark>(&mark)) {
                    EXPECT_GE(text->x, 0);
                    EXPECT_LE(text->x + metrics.Width(text->text, text->font), 800);
                    EXPECT_LE(text->y + metrics.LineHeight(text->font), 600) << text->text;
                }
            }
        }
    }
}

TEST(PrintedColumns, LeaveThePenBelowTheirLastRow) {
    PlainPrinter printer;
    PrintWholeColumns(ColumnProblem(200, "47", "38"), printer.surface, printer.learner);
    double lowest = 0;
    for (const Mark& mark : printer.surface.Marks()) {
        if (const auto* const text = std::get_if<TextMark>(&mark)) {
            lowest = std::max(lowest, text->y);
        }
    }
    // With plain metrics the sum stands 338.4 - 283.4 below the carry, which is a line down.
    EXPECT_NEAR(lowest, kLine + 338.4 - 283.4, 1e-6);
    EXPECT_NEAR(printer.surface.CurrentY, lowest + kLine, 1e-6);
    EXPECT_EQ(printer.surface.CurrentX, 0);
}

TEST(PrintedColumns, BeginALineBelowThePenWhateverCarriesTheyHave) {
    for (const Case& each : {Case{200, "12", "34"}, Case{201, "523", "347"}, Case{202, "12", "3"},
                             Case{202, "99999", "98765"}, Case{203, "95", "7"}}) {
        PlainPrinter printer;
        printer.surface.CurrentY = 100;
        PrintWholeColumns(ColumnProblem(each.code, each.top, each.bottom), printer.surface,
                          printer.learner);
        double highest = 600;
        for (const Row& row : RowsOf(printer.surface.Marks())) {
            highest = std::min(highest, row.y);
        }
        EXPECT_NEAR(highest, 100 + kLine, 1e-6) << each.top << " and " << each.bottom;
    }
}

TEST(PrintedColumns, BeginANewPageWhereTheyDoNotFit) {
    PlainPrinter printer;
    printer.surface.Print("before");
    printer.surface.CurrentY = 540;
    PrintWholeColumns(ColumnProblem(200, "47", "38"), printer.surface, printer.learner);
    ASSERT_EQ(printer.surface.PageCount(), 2);
    EXPECT_EQ(printer.surface.PageMarks(0).size(), 1U);
    PlainPrinter fresh;
    PrintWholeColumns(ColumnProblem(200, "47", "38"), fresh.surface, fresh.learner);
    EXPECT_EQ(RowsOf(printer.surface.PageMarks(1)).size(), RowsOf(fresh.surface.Marks()).size());
    EXPECT_NEAR(printer.surface.CurrentY, fresh.surface.CurrentY, 1e-9);
}

TEST(PrintedColumns, NameNumbersThatCannotBeWorked) {
    for (const Case& each : {Case{203, "2147483648", "2"}, Case{200, "1.5", "2"}}) {
        PlainPrinter printer;
        PrintWholeColumns(ColumnProblem(each.code, each.top, each.bottom), printer.surface,
                          printer.learner);
        const std::string sign = each.code == 203 ? "{" : "+";
        const std::vector<Row> rows = RowsOf(printer.surface.Marks());
        ASSERT_EQ(rows.size(), 1U);
        EXPECT_EQ(rows[0].text, each.top + sign + each.bottom);
        EXPECT_TRUE(printer.learner.messages.empty());
    }
}

TEST(PrintedColumns, TellOfADivisionByZeroOnce) {
    PlainPrinter printer;
    PrintWholeColumns(ColumnProblem(203, "0", "0"), printer.surface, printer.learner);
    EXPECT_EQ(printer.learner.messages,
              std::vector<std::string>{"Division by 0 is mathematically impossible."});
}

}  // namespace
}  // namespace numerello
