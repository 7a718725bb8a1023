#include "tests/typeset/samples.h"

namespace numerello {
namespace {

constexpr double kC = kCharacter;

TEST(PaperPageTest, ALineBelowTheLimitBeginsTheNextSheet) {
    const SampleAnswer answer = OnPaper("x", 300, 589.1);
    ExpectPieces(answer, {{"x", kMargin, 81 + kBase, 12, kBlack, 1}});
    ExpectEnd(answer, kMargin + kC - 4, 109.8);
    EXPECT_EQ(answer.pagesTurned, 1);
}

TEST(PaperPageTest, ALineAtTheLimitStays) {
    const SampleAnswer answer = OnPaper("x", 0, 589);
    ExpectPieces(answer, {{"x", kMargin, 589 + kBase}});
    EXPECT_EQ(answer.pagesTurned, 0);
}

TEST(PaperPageTest, ASheetThatFillsDuringAWrapGoesOnAtEightyEight) {
    const SampleAnswer answer = OnPaper(Letters(kPaperRow + 2), 0, 520);
    ASSERT_EQ(answer.marks.size(), kPaperRow + 3);
    ExpectPiece(answer, kPaperRow, {"...", kMargin + kPaperRow * kC, 520 + kBase});
    ExpectPiece(answer, kPaperRow + 1, {"x", 67, 88, 12, kBlack, 1});
    ExpectPiece(answer, kPaperRow + 2, {"x", 67 + kC, 88, 12, kBlack, 1});
    ExpectEnd(answer, 67 + 2 * kC - 4, 88);
    EXPECT_EQ(answer.pagesTurned, 1);
}

TEST(PaperPageTest, AWrapDownToTheLimitExactlyStays) {
    const SampleAnswer answer = OnPaper(Letters(kPaperRow + 1), 0, 589 - 46 - kBase);
    ExpectPiece(answer, kPaperRow + 1, {"x", 67, 589});
    EXPECT_EQ(answer.pagesTurned, 0);
}

TEST(PaperPageTest, AWrapJustPastTheLimitTurns) {
    const SampleAnswer answer = OnPaper(Letters(kPaperRow + 1), 0, 589.1 - 46 - kBase);
    ExpectPiece(answer, kPaperRow + 1, {"x", 67, 88, 12, kBlack, 1});
}

TEST(PaperPageTest, ATurnAfterTheLastCharacterLeavesThePenAtTheTop) {
    const SampleAnswer answer = OnPaper(Letters(kPaperRow), 0, 520);
    ExpectEnd(answer, 63, 0);
    EXPECT_EQ(answer.pagesTurned, 1);
}

TEST(PaperPageTest, AColourMarkerAfterATurnPutsThePenToTheBase) {
    const SampleAnswer answer = OnPaper("[" + Letters(kPaperRow) + "]", 0, 520);
    ExpectEnd(answer, 63, 88);
}

TEST(PaperPageTest, ATurnedSheetIsBlackAndKeepsTheSize) {
    const SampleAnswer answer = OnPaper("[" + Letters(kPaperRow + 1), 0, 520);
    ExpectPiece(answer, kPaperRow, {"...", kMargin + kPaperRow * kC, 520 + kBase, 12, kRed});
    ExpectPiece(answer, kPaperRow + 1, {"x", 67, 88, 12, kBlack, 1});

    const SampleAnswer large = Typeset({.text = "x", .y = 600, .size = 20});
    ExpectPieces(large, {{"x", 17 * 67.0 / 204 * 20, 81 + 48, 20, kBlack, 1}});
}

TEST(PaperPageTest, PastTheTenthSheetTheLineIsGivenUp) {
    const SampleAnswer answer = Typeset({.text = Letters(3000), .size = 100});
    EXPECT_EQ(answer.pagesTurned, 9);
    ExpectMessages(answer, 1);
    ExpectEnd(answer, 0, 0);
    EXPECT_EQ(answer.marks.back().page, 9);
    EXPECT_EQ(TextAt(answer, answer.marks.size() - 1).text, "...");
}

TEST(PrintPageTest, ThePlainCharacterBelowTheLimitBeginsThePage) {
    ExpectPieces(Printed("x", 548), {{"x", 12, 560}});

    const SampleAnswer answer = Printed("xy", 548.1);
    ExpectPieces(answer, {{"x", 12, 24, 12, kBlack, 1}, {"y", 12 + kC, 24, 12, kBlack, 1}});
    ExpectEnd(answer, 0, 24 + kLine);
    EXPECT_EQ(answer.pagesTurned, 1);
}

TEST(PrintPageTest, AConstructDoesNotTurn) {
    ExpectPieces(Printed("#1/2#x", 600),
                 {{"1", 12, 607}, {"2", 12, 621}, {"_", 12, 607}, {"x", 12, 24, 12, kBlack, 1}});
    EXPECT_EQ(Printed("#1/2#", 600).pagesTurned, 0);
    EXPECT_EQ(Printed("", 600).pagesTurned, 0);
}

TEST(PrintPageTest, AWrapTurnsWithTheNextCharacterAndKeepsTheColour) {
    const SampleAnswer answer = Printed("[" + Letters(kPrintRow + 1), 543);
    ASSERT_EQ(answer.marks.size(), kPrintRow + 2);
    ExpectPiece(answer, kPrintRow, {"...", 12 + kPrintRow * kC, 555, 12, kRed});
    ExpectPiece(answer, kPrintRow + 1, {"x", 12, 24, 12, kRed, 1});
    EXPECT_EQ(Printed(Letters(kPrintRow), 543).pagesTurned, 0);
}

TEST(PreviewPageTest, ATurnedPictureIsBlack) {
    const SampleAnswer answer = Previewed(Letters(kPreviewRow + 1) + "]y", 543, true);
    ASSERT_EQ(answer.marks.size(), kPreviewRow + 3);
    ExpectPiece(answer, kPreviewRow - 1, {"x", 12 + (kPreviewRow - 1) * kSmall, 555, 8, kBlue});
    ExpectPiece(answer, kPreviewRow + 1, {"x", 12, 24, 8, kBlack, 1});
    ExpectPiece(answer, kPreviewRow + 2, {"y", 12 + kSmall, 24, 8, kBlue, 1});
    EXPECT_EQ(answer.pagesTurned, 1);
}

TEST(PreviewPageTest, TakesAsManyPicturesAsTheLineNeeds) {
    const SampleAnswer answer =
        Typeset({.target = TypesetTarget::Preview, .text = Letters(3000), .size = 100});
    // At 100 points a row holds 12 characters: 250 rows, 46 of them on the first page (12 to 552)
    // and 45 on each further one (24 to 552).
    EXPECT_EQ(answer.pagesTurned, 5);
    ExpectMessages(answer, 0);
}

}  // namespace
}  // namespace numerello
