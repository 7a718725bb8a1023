#include "tests/typeset/samples.h"

namespace numerello {
namespace {

constexpr double kX = kMargin;
constexpr double kC = kCharacter;

TEST(PaperWrapTest, TheRowEndsInDotsAndGoesOnAtTheMargin) {
    const SampleAnswer answer = OnPaper(Letters(kPaperRow + 2));
    ASSERT_EQ(answer.marks.size(), kPaperRow + 3);
    ExpectPiece(answer, kPaperRow - 1, {"x", kX + (kPaperRow - 1) * kC, kBase});
    ExpectPiece(answer, kPaperRow, {"...", kX + kPaperRow * kC, kBase});
    ExpectPiece(answer, kPaperRow + 1, {"x", 67, kBase + 46});
    ExpectPiece(answer, kPaperRow + 2, {"x", 67 + kC, kBase + 46});
    ExpectEnd(answer, 67 + 2 * kC - 4, kBase + 46);
    EXPECT_EQ(answer.pagesTurned, 0);
}

TEST(PaperWrapTest, TheLastCharacterWrapsToo) {
    const SampleAnswer answer = OnPaper(Letters(kPaperRow));
    EXPECT_EQ(TextAt(answer, answer.marks.size() - 1).text, "...");
    ExpectEnd(answer, 63, kBase + 46);
}

TEST(PaperWrapTest, ABlankWrapsToo) {
    // 86 letters end at 744.9, two blanks later the row is past 750.
    const SampleAnswer answer = OnPaper(Letters(kPaperRow - 1) + "  y");
    ASSERT_EQ(answer.marks.size(), kPaperRow - 1 + 2);
    ExpectPiece(answer, kPaperRow - 1, {"...", kX + (kPaperRow - 1) * kC + 2 * kBlank, kBase});
    ExpectPiece(answer, kPaperRow, {"y", 67, kBase + 46});
}

TEST(PaperWrapTest, ARowThatEndsExactlyAtTheLimitDoesNotWrap) {
    for (int count = 1; count < 60; ++count) {
        const double x = 750 - kX - count * kC;
        const SampleAnswer answer = OnPaper(Letters(static_cast<std::size_t>(count)), x);
        EXPECT_EQ(answer.marks.size(), static_cast<std::size_t>(count));
        ExpectEnd(answer, 746, kBase);
    }
}

TEST(PaperWrapTest, ARowThatEndsJustPastTheLimitWraps) {
    ExpectEnd(OnPaper("x", 750.1 - kX - kC), 63, kBase + 46);
}

TEST(PaperWrapTest, ConstructsNeverWrapButTheNextCharacterDoes) {
    const double x = 700;
    for (const char* text : {"#1/2#", "~9~", "^2^", "[^2^]"}) {
        const SampleAnswer answer = OnPaper(text, x);
        EXPECT_GT(answer.endX, 750);
        EXPECT_NEAR(answer.endY, kBase, 1e-6);
    }
    ExpectPieces(OnPaper("#1/2#ab", x), {{"1", x + kX, kNumerator},
                                         {"2", x + kX, kDenominator},
                                         {"_", x + kX, kNumerator},
                                         {"a", x + kX + kC, kBase},
                                         {"...", x + kX + 2 * kC, kBase},
                                         {"b", 67, kBase + 46}});
}

TEST(PaperWrapTest, AConstructAfterAWrapStandsOnTheNewRow) {
    ExpectPieces(
        OnPaper("a^2^", 700),
        {{"a", 700 + kX, kBase}, {"...", 700 + kX + kC, kBase}, {"2", 67, kBase + 46 - 1.6, 8}});
}

TEST(ExplanationWrapTest, NeverHappens) {
    const SampleAnswer answer = Explained(Letters(200));
    ASSERT_EQ(answer.marks.size(), 200U);
    ExpectPiece(answer, 199, {"x", 199 * kC, 3, 12, kBlue});
}

TEST(PrintWrapTest, TheRowGoesOnAtFifteen) {
    const SampleAnswer answer = Printed(Letters(kPrintRow + 1) + "y");
    ASSERT_EQ(answer.marks.size(), kPrintRow + 3);
    ExpectPiece(answer, kPrintRow, {"...", 12 + kPrintRow * kC, 12});
    ExpectPiece(answer, kPrintRow + 1, {"x", 15, 24});
    ExpectPiece(answer, kPrintRow + 2, {"y", 15 + kC, 24});
    ExpectEnd(answer, 0, 24 + kLine);
}

TEST(PrintWrapTest, ThePenGoesDownWithTheNextCharacterOnly) {
    ExpectEnd(Printed(Letters(kPrintRow)), 0, 12 + kLine);

    const SampleAnswer answer = Printed(Letters(kPrintRow) + "#1/2#y");
    ExpectPiece(answer, kPrintRow + 1, {"1", 15, 12 - 5});
    ExpectPiece(answer, kPrintRow + 2, {"2", 15, 12 - 5 + 14});
    ExpectPiece(answer, kPrintRow + 3, {"_", 15, 12 - 5});
    ExpectPiece(answer, kPrintRow + 4, {"y", 15 + kC, 24});
}

TEST(PrintWrapTest, AColourMarkerMovesThePenDown) {
    ExpectEnd(Printed("[" + Letters(kPrintRow) + "]"), 0, 24 + kLine);
}

TEST(PrintWrapTest, ARowThatEndsExactlyAtTheLimitDoesNotWrap) {
    const SampleAnswer answer =
        Typeset({.target = TypesetTarget::Print, .text = Letters(30), .x = 765 - 12 - 30 * kC});
    EXPECT_EQ(answer.marks.size(), 30U);
}

TEST(PrintWrapTest, ARowThatEndsJustPastTheLimitWraps) {
    const SampleAnswer answer =
        Typeset({.target = TypesetTarget::Print, .text = "xy", .x = 765.1 - 12 - kC});
    ExpectPieces(answer, {{"x", 765.1 - kC, 12}, {"...", 765.1, 12}, {"y", 15, 24}});
}

TEST(PreviewWrapTest, SmallCharactersFillTheSameRow) {
    const SampleAnswer answer = Previewed(Letters(kPreviewRow + 1));
    ASSERT_EQ(answer.marks.size(), kPreviewRow + 2);
    ExpectPiece(answer, kPreviewRow, {"...", 12 + kPreviewRow * kSmall, 12, 8});
    ExpectPiece(answer, kPreviewRow + 1, {"x", 15, 24, 8});
    ExpectEnd(answer, 0, 24 + kSmallLine);
}

}  // namespace
}  // namespace numerello
