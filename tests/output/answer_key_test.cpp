#include "output/print_key.h"
#include "output/print_scale.h"
#include "printed.h"

namespace numerello {
namespace {

const HeadingLines kHeading{"Vantrel Numerello", "Practice Test", "11/21/2026"};

WorkedProblem Worked(std::string line, const std::vector<std::string>& steps) {
    WorkedProblem worked{std::move(line), Problem()};
    worked.problem.topic.ProblemType = 91;
    for (const std::string& step : steps) {
        worked.problem.log.Write(step, "why");
    }
    return worked;
}

std::vector<int> Print(const std::vector<WorkedProblem>& problems, PlainPrinter& printer) {
    return PrintAnswerKey(kHeading, problems, printer.surface, printer.learner);
}

TEST(AnswerKey, HasTheWorkedLinesUnderEachProblem) {
    PlainPrinter printer;
    Print({Worked("1) 2+3", {"2+3", "5"}), Worked("2) 7-4", {"7-4", "3"})}, printer);
    const double indent = 12 + 8 * kBlank;
    // An empty line parts two problems.
    const double second = kFirstBase + 2 * kPitch + kLine;
    const std::vector<Row> rows = RowsOf(printer.surface.Marks());
    ASSERT_EQ(rows.size(), 3U + 4);
    ExpectRow(rows, 3, {"1)2+3", 12, kFirstBase});
    ExpectRow(rows, 4, {"5", indent, kFirstBase + kPitch});
    ExpectRow(rows, 5, {"2)7-4", 12, second});
    ExpectRow(rows, 6, {"3", indent, second + kPitch});
}

TEST(AnswerKey, KeepsAFirstLineThatSaysMoreThanTheProblem) {
    EXPECT_EQ(KeyLines(Worked("1) 12 inches = ? feet", {"12 inches", "12 inches = 1 feet"})),
              (std::vector<std::string>{"12 inches", "12 inches = 1 feet"}));
    EXPECT_EQ(KeyLines(Worked("1) 2+3", {"2+3", "5"})), std::vector<std::string>{"5"});
    EXPECT_EQ(KeyLines(Worked("1) 12+3", {"2+3"})), std::vector<std::string>{"2+3"});
    EXPECT_TRUE(KeyLines(Worked("1) 2+", std::vector<std::string>())).empty());
}

TEST(AnswerKey, DrawsColumnProblems) {
    PlainPrinter printer;
    WorkedProblem sum{"1) 47 + 38", Problem()};
    sum.problem.topic.ProblemType = 200;
    sum.problem.columns.ColumnTop = "47";
    sum.problem.columns.ColumnBottom = "38";
    Print({sum, Worked("2) 2+3", {"2+3", "5"})}, printer);
    const std::vector<Row> rows = RowsOf(printer.surface.Marks());
    ExpectRow(rows, 3, {"1)47+38", 12, kFirstBase});
    // The sum stands a line and 338.4 - 283 below the problem, the next problem two lines lower.
    const double answer = kFirstBase + kLine + kLine + 338.4 - 283;
    const auto isAnswer = [&](const Row& row) { return std::abs(row.y - answer) < 1e-6; };
    EXPECT_TRUE(std::any_of(rows.begin(), rows.end(), isAnswer));
    ExpectRow(rows, rows.size() - 2, {"2)2+3", 12, answer + 2 * kLine + 12});
}

TEST(AnswerKey, TellsThePageOfEachProblem) {
    PlainPrinter printer;
    // Five rows and an empty line each, 163.2 in all: the first three begin at 132.4, 295.6, 458.8.
    const std::vector<WorkedProblem> problems(6, Worked("1) 2+3", {"2+3", "a", "b", "c", "d"}));
    const std::vector<int> pages = Print(problems, printer);
    ASSERT_EQ(pages.size(), 6U);
    EXPECT_EQ(pages[0], 0);
    EXPECT_EQ(pages[2], 0);
    // Of the third, the rows at 458.8 to 546.4 fit; the last begins the next page at 24, and the
    // fourth problem follows 29.2 and an empty line below it.
    EXPECT_EQ(pages[3], 1);
    const std::vector<Row> second = RowsOf(printer.surface.PageMarks(1));
    ExpectRow(second, 0, {"d", 12 + 8 * kBlank, 24});
    ExpectRow(second, 1, {"1)2+3", 12, 24 + kPitch + kLine});
}

TEST(AnswerKey, OfNoProblemsIsTheHeadingAlone) {
    PlainPrinter printer;
    EXPECT_TRUE(Print({}, printer).empty());
    EXPECT_EQ(PrintedPages(printer.surface).size(), 1U);
}

}  // namespace
}  // namespace numerello
