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

TEST(AnswerKey, KeepsTheOnlyLineThoughItRepeatsTheProblem) {
    PlainPrinter printer;
    const WorkedProblem root = Worked("1) ~7~", {"~7~"});
    EXPECT_EQ(KeyLines(root), std::vector<std::string>{"~7~"});
    Print({root, Worked("2) 2+3", {"2+3"})}, printer);
    const std::vector<Row> rows = RowsOf(printer.surface.Marks());
    ExpectRow(rows, rows.size() - 1, {"2+3", 12 + 8 * kBlank, rows[rows.size() - 2].y + kPitch});
}

TEST(AnswerKey, TellsInWordsWhatIsOnlyDrawn) {
    WorkedProblem point = Worked("1) (-3,4)", std::vector<std::string>());
    point.problem.graph = {.GraphMode = 1, .GraphX1 = -3, .GraphY1 = 4};
    EXPECT_EQ(KeyLines(point),
              std::vector<std::string>{"From the crossing of the axes 3 to the left and 4 up."});
    WorkedProblem quadrant = Worked("1) (-3,4)", {"Quadrant II"});
    quadrant.problem.graph = point.problem.graph;
    EXPECT_EQ(KeyLines(quadrant), std::vector<std::string>{"Quadrant II"});
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
    // The sum stands a line and 338.4 - 283.4 below the problem, the next problem two lines lower.
    const double answer = kFirstBase + kLine + kLine + 338.4 - 283.4;
    const auto isAnswer = [&](const Row& row) { return std::abs(row.y - answer) < 1e-6; };
    EXPECT_TRUE(std::any_of(rows.begin(), rows.end(), isAnswer));
    ExpectRow(rows, rows.size() - 2, {"2)2+3", 12, answer + 2 * kLine + 12});
}

TEST(AnswerKey, BeginsAPageBeforeAProblemThatWouldBeTorn) {
    PlainPrinter printer;
    // Five rows of 29.2 and an empty line of 17.2 each. On the first page the pen is at 120.4,
    // 283.6 and 446.8: the third would end at 592.8, its last row below 560. Further pages begin
    // with the pen at 12: three fit there, the fourth would end at 647.6.
    const std::vector<WorkedProblem> problems(6, Worked("1) 2+3", {"2+3", "a", "b", "c", "d"}));
    EXPECT_EQ(Print(problems, printer), (std::vector<int>{0, 0, 1, 1, 1, 2}));
    ASSERT_EQ(printer.surface.PageCount(), 3);
    for (const int page : {1, 2}) {
        ExpectRow(RowsOf(printer.surface.PageMarks(page)), 0, {"1)2+3", 12, 24});
    }
    EXPECT_EQ(RowsOf(printer.surface.PageMarks(0)).size(), 3U + 2 * 5);
    EXPECT_EQ(RowsOf(printer.surface.PageMarks(1)).size(), 3U * 5);
}

TEST(AnswerKey, UsesThePageToItsLastRow) {
    PlainPrinter printer;
    // Rows have their bases at 132.4 + 29.2 k; those of the second problem are 17.2 lower. With 11
    // below it, that one ends with the 16th row of the page, at 132.4 + 17.2 + 29.2 * 14 = 558.4.
    const auto steps = [](std::size_t count) {
        std::vector<std::string> lines(count, "a");
        lines.front() = "2+3";
        return lines;
    };
    const WorkedProblem first = Worked("1) 2+3", steps(3));
    EXPECT_EQ(Print({first, Worked("2) 2+3", steps(12))}, printer), (std::vector<int>{0, 0}));
    EXPECT_EQ(printer.surface.PageCount(), 1);
    PlainPrinter other;
    EXPECT_EQ(Print({first, Worked("2) 2+3", steps(13))}, other), (std::vector<int>{0, 1}));
    EXPECT_EQ(RowsOf(other.surface.PageMarks(0)).size(), 3U + 3);
}

TEST(AnswerKey, BeginsWithItsFirstProblemBelowTheHeading) {
    PlainPrinter printer;
    EXPECT_EQ(Print({Worked("1) 2+3", std::vector<std::string>(16, "a"))}, printer),
              std::vector<int>{0});
    EXPECT_EQ(printer.surface.PageCount(), 2);
}

TEST(AnswerKey, TearsOnlyWhatFitsNoPage) {
    PlainPrinter printer;
    const std::vector<WorkedProblem> problems(1,
                                              Worked("1) 2+3", std::vector<std::string>(30, "a")));
    EXPECT_EQ(Print(problems, printer), std::vector<int>{0});
    EXPECT_EQ(printer.surface.PageCount(), 2);
}

TEST(AnswerKey, KeepsADrawingWithItsNumber) {
    PlainPrinter printer;
    WorkedProblem sum{"1) 47 + 38", Problem()};
    sum.problem.topic.ProblemType = 200;
    sum.problem.columns.ColumnTop = "47";
    sum.problem.columns.ColumnBottom = "38";
    const std::vector<int> pages = Print(std::vector<WorkedProblem>(12, sum), printer);
    for (int page = 0; page < printer.surface.PageCount(); ++page) {
        const std::vector<Row> rows = RowsOf(printer.surface.PageMarks(page));
        ASSERT_FALSE(rows.empty());
        EXPECT_TRUE(rows[page == 0 ? 3 : 0].text == "1)47+38") << page;
        EXPECT_NE(rows.back().text, "1)47+38") << page;
    }
    EXPECT_EQ(pages.size(), 12U);
    EXPECT_GT(pages.back(), 0);
}

TEST(AnswerKey, OfNoProblemsIsTheHeadingAlone) {
    PlainPrinter printer;
    EXPECT_TRUE(Print({}, printer).empty());
    EXPECT_EQ(PrintedPages(printer.surface).size(), 1U);
}

}  // namespace
}  // namespace numerello
