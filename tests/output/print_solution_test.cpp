#include "output/print_solution.h"

#include "core/topic_codes.h"
#include "output/print_scale.h"
#include "printed.h"

namespace numerello {
namespace {

const HeadingLines kHeading{"Vantrel Numerello", "Solving Equations", "11/21/2026"};
const std::string kReasonFace(kExplanationFace);
const std::string kMessage = "An error occurred while displaying information.";

// A line, its reason and the empty line below it.
constexpr double kExplainedPitch = kPitch + 12 + kReasonLine + kLine;

class PrintedSolution : public testing::Test {
  protected:
    PrintedSolution() { problem.topic.ProblemType = kSolvingEquations; }

    void Log(int lines) {
        for (int i = 1; i <= lines; ++i) {
            problem.log.Write("x=" + std::to_string(i), "why " + std::to_string(i));
        }
    }

    void Print(bool explanation = false) {
        PrintSolution(problem, {kHeading, true, explanation, false}, printer.surface,
                      printer.learner);
    }

    std::vector<Row> Rows(int page) { return RowsOf(printer.surface.PageMarks(page)); }

    Problem problem;
    PlainPrinter printer;
};

TEST_F(PrintedSolution, IsTheHeadingTheProblemAndItsLines) {
    Log(3);
    Print();
    ExpectRows(printer.surface.Marks(), {{"   Vantrel Numerello", 0, 3 * kLine},
                                         {"   Solving Equations", 0, 4 * kLine},
                                         {"   11/21/2026", 0, 5 * kLine},
                                         {"x=1", 12, kFirstBase},
                                         {"x=2", 12, kFirstBase + kPitch},
                                         {"x=3", 12, kFirstBase + 2 * kPitch}});
    EXPECT_EQ(printer.surface.PageCount(), 1);
    EXPECT_TRUE(printer.learner.messages.empty());
}

TEST_F(PrintedSolution, HasReasonsInBlueAtTenPointsUnderEveryLineButTheFirst) {
    Log(3);
    Print(true);
    const double second = kFirstBase + kPitch;
    const std::vector<Row> rows = Rows(0);
    ASSERT_EQ(rows.size(), 3U + 5);
    ExpectRow(rows, 3, {"x=1", 12, kFirstBase});
    ExpectRow(rows, 4, {"x=2", 12, second});
    ExpectRow(rows, 5, {"why2", 12, second + kPitch, 10, kReasonFace, kBlue});
    ExpectRow(rows, 6, {"x=3", 12, second + kExplainedPitch});
    ExpectRow(rows, 7, {"why3", 12, second + kExplainedPitch + kPitch, 10, kReasonFace, kBlue});
}

TEST_F(PrintedSolution, LeavesAnEmptyLineForAnEmptyReason) {
    Log(3);
    problem.log.StepNote[2].clear();
    Print(true);
    const std::vector<Row> rows = Rows(0);
    ASSERT_EQ(rows.size(), 3U + 4);
    ExpectRow(rows, 4, {"x=2", 12, kFirstBase + kPitch});
    ExpectRow(rows, 5, {"x=3", 12, kFirstBase + 2 * kPitch + kLine});
}

TEST_F(PrintedSolution, GoesOnAtTwentyFourBehindALineBelowFiveHundredAndSixty) {
    Log(40);
    Print();
    // Line k has its base at 132.4 + 29.2 (k - 1): line 15 at 541.2, line 16 would be at 570.4. A
    // page that begins with a line at 24 holds those up to 24 + 29.2 * 18 = 549.6.
    ASSERT_EQ(printer.surface.PageCount(), 3);
    ASSERT_EQ(Rows(0).size(), 3U + 15);
    ExpectRow(Rows(0), 17, {"x=15", 12, 541.2});
    ASSERT_EQ(Rows(1).size(), 19U);
    ExpectRow(Rows(1), 0, {"x=16", 12, 24});
    ExpectRow(Rows(1), 1, {"x=17", 12, 24 + kPitch});
    ExpectRow(Rows(1), 18, {"x=34", 12, 549.6});
    ASSERT_EQ(Rows(2).size(), 6U);
    ExpectRow(Rows(2), 0, {"x=35", 12, 24});
}

TEST_F(PrintedSolution, TurnsThePageBeforeAStepWhoseReasonWouldFindNoRoom) {
    Log(2);
    // Steps are at 161.6, 234.3, 307.1, 379.8, 452.5 and 525.3. The last one's reason would begin
    // at 554.5 as in the next test, but its second row, 12 lower, is beyond 560.
    for (int i = 3; i <= 6; ++i) {
        problem.log.Write("x=" + std::to_string(i), "why " + std::to_string(i));
    }
    problem.log.Write("x=7", std::string(200, 'y'));
    Print(true);
    ASSERT_EQ(printer.surface.PageCount(), 2);
    EXPECT_EQ(Rows(0).back().text, "why6");
    const std::vector<Row> rows = Rows(1);
    ASSERT_EQ(rows.size(), 3U);
    ExpectRow(rows, 0, {"x=7", 12, 24});
    ExpectRow(rows, 1, {std::string(115, 'y') + "...", 12, 24 + kPitch, 10, kReasonFace, kBlue});
    ExpectRow(rows, 2, {std::string(85, 'y'), 15, 36 + kPitch, 10, kReasonFace, kBlue});
}

TEST_F(PrintedSolution, TearsAStepThatFitsNoPage) {
    Log(1);
    problem.log.Write(std::string(2900, 'x'), std::string(2900, 'y'));
    Print(true);
    EXPECT_EQ(Rows(0)[4].text, std::string(96, 'x') + "...");
    EXPECT_GT(printer.surface.PageCount(), 1);
}

TEST_F(PrintedSolution, PutsAReasonOnTheNextPageWhereItsLineWasTheLast) {
    Log(20);
    Print(true);
    // Line k has its base at 161.6 + 72.733 (k - 2); its reason stands 29.2 lower. Line 7 is at
    // 525.3 and its reason at 554.5, line 8 would be at 598.
    ASSERT_GE(printer.surface.PageCount(), 2);
    const std::vector<Row> first = Rows(0);
    EXPECT_EQ(first.back().text, "why7");
    ExpectRow(Rows(1), 0, {"x=8", 12, 24});
    ExpectRow(Rows(1), 1, {"why8", 12, 24 + kPitch, 10, kReasonFace, kBlue});
    for (int page = 0; page < printer.surface.PageCount(); ++page) {
        for (const Row& row : Rows(page)) {
            EXPECT_LE(row.y, 560) << row.text;
        }
    }
}

TEST_F(PrintedSolution, WrapsALongReasonWhereItsRowEnds) {
    Log(1);
    problem.log.Write("x=2", std::string(300, 'y'));
    Print(true);
    // From 12 on the 115th character of 10 points passes 765: (765 - 12) / 6.569 = 114.6; from 15
    // on (765 - 15) / 6.569 = 114.2, the 115th again.
    const double reason = kFirstBase + 2 * kPitch;
    const std::vector<Row> rows = Rows(0);
    ASSERT_EQ(rows.size(), 5U + 3);
    ExpectRow(rows, 5, {std::string(115, 'y') + "...", 12, reason, 10, kReasonFace, kBlue});
    ExpectRow(rows, 6, {std::string(115, 'y') + "...", 15, reason + 12, 10, kReasonFace, kBlue});
    ExpectRow(rows, 7, {std::string(70, 'y'), 15, reason + 24, 10, kReasonFace, kBlue});
}

TEST_F(PrintedSolution, TakesTheRootSignOfAReasonFromTheSheetsFace) {
    Log(1);
    problem.log.Write("x=2", "a ~4~ b ~#1/2#~ c");
    Print(true);
    int signs = 0;
    for (const Row& row : RowsOf(MarksInPixels(printer.surface.Marks(), ScaleOfPrint(kA4)))) {
        const bool isSign = row.text == "~" || row.text == "&" || row.text == "&~";
        signs += isSign ? 1 : 0;
        if (row.color == kBlue) {
            EXPECT_EQ(row.face, isSign ? std::string(kSheetFace) : kReasonFace) << row.text;
        }
    }
    EXPECT_EQ(signs, 3);
}

TEST_F(PrintedSolution, GoesOnBehindALineThatCannotBeDrawn) {
    Log(1);
    problem.log.Write("#1/2", "why 2");
    problem.log.Write("x=3", "why 3");
    Print();
    EXPECT_EQ(printer.learner.messages, std::vector<std::string>{kMessage});
    ExpectRow(Rows(0), 4, {"x=3", 12, kFirstBase + 2 * kPitch});
}

TEST_F(PrintedSolution, NamesAProblemThatFailedBeforeItsFirstLine) {
    problem.typed.DisplayLine = "2^3^+";
    Print(true);
    const std::vector<Row> rows = Rows(0);
    ExpectRow(rows, 3, {"2", 12, kFirstBase});
    ExpectRow(rows, 4, {"3", 12 + kCharacter, kFirstBase - 1, 8});
    ExpectRow(rows, 5, {"+", 12 + kCharacter + 8 * 134.0 / 204, kFirstBase});
}

TEST_F(PrintedSolution, HasTheWholeLogWhateverTheSheetHasShown) {
    Log(4);
    problem.playback.ShownStep = 2;
    Print();
    EXPECT_EQ(Rows(0).size(), 3U + 4);
}

TEST_F(PrintedSolution, HasTheGraphOnAPageOfItsOwnWithoutTheHeading) {
    Log(2);
    PrintSolution(problem, {kHeading, true, true, true}, printer.surface, printer.learner);
    const auto pages = PrintedPages(printer.surface);
    ASSERT_EQ(pages.size(), 2U);
    ASSERT_EQ(pages[1].size(), 1U);
    const auto& graph = std::get<ImageMark>(pages[1].front());
    EXPECT_EQ(graph.key, kGraphPicture);
    EXPECT_NEAR(graph.x, 0, 1e-9);
    EXPECT_NEAR(graph.y, 5 * kLine, 1e-9);
}

TEST_F(PrintedSolution, HasTheHeadingOnceOverAGraphAlone) {
    Log(2);
    PrintSolution(problem, {kHeading, false, true, true}, printer.surface, printer.learner);
    const auto pages = PrintedPages(printer.surface);
    ASSERT_EQ(pages.size(), 1U);
    ExpectRows(pages[0], {{"   Vantrel Numerello", 0, 3 * kLine},
                          {"   Solving Equations", 0, 4 * kLine},
                          {"   11/21/2026", 0, 5 * kLine}});
    const auto& graph = std::get<ImageMark>(pages[0].back());
    EXPECT_NEAR(graph.y, 8 * kLine, 1e-9);
}

TEST_F(PrintedSolution, OfReasonsAloneIsNothing) {
    Log(2);
    PrintSolution(problem, {kHeading, false, true, false}, printer.surface, printer.learner);
    EXPECT_TRUE(PrintedPages(printer.surface).empty());
}

}  // namespace
}  // namespace numerello
