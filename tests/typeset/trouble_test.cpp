#include "tests/typeset/samples.h"

namespace numerello {
namespace {

constexpr double kX = kMargin;
constexpr double kC = kCharacter;

TEST(TroubleTest, AMarkerWithoutPartnerUsesUpTheRest) {
    for (const char* text : {"ab#1/2", "ab^2", "ab~9", "ab#", "ab^", "ab~"}) {
        const SampleAnswer answer = OnPaper(text);
        ExpectPieces(answer, {{"a", kX, kBase}, {"b", kX + kC, kBase}});
        ExpectEnd(answer, kX + 2 * kC - 4, kBase);
        ExpectMessages(answer, 1);
    }
}

TEST(TroubleTest, TheOtherTargetsEndTheirLineToo) {
    ExpectEnd(Explained("ab^2"), 0, 3 + kLine);
    ExpectMessages(Explained("ab^2"), 1);
    ExpectEnd(Printed("ab^2"), 0, 12 + kLine);
    ExpectMessages(Printed("ab^2"), 1);
    ExpectEnd(Previewed("ab^2"), 0, 12 + kSmallLine);
    ExpectMessages(Previewed("ab^2"), 1);
}

TEST(TroubleTest, AConstructOfItsOwnKindClosesEarly) {
    // "#~#" is a fraction with the body "~", which has no slash; then "1/2", and "#~/3#" whose
    // numerator's root has no partner.
    const SampleAnswer answer = OnPaper("#~#1/2#~/3#");
    ExpectPieces(answer, {{"1", kX, kBase}, {"/", kX + kC, kBase}, {"2", kX + 2 * kC, kBase}});
    ExpectMessages(answer, 1);
}

TEST(TroubleTest, AFractionStopsWhereItFailed) {
    const SampleAnswer answer = OnPaper("#x^2/3#y");
    ExpectPieces(answer, {{"x", kX, kNumerator}, {"y", kX + kC, kBase}});
    ExpectMessages(answer, 1);
}

TEST(TroubleTest, ADenominatorMayFailToo) {
    const SampleAnswer answer = OnPaper("#x/3~4#y");
    ExpectPieces(answer, {{"x", kX, kNumerator}, {"3", kX, kDenominator}, {"y", kX + kC, kBase}});
    ExpectMessages(answer, 1);
}

TEST(TroubleTest, ARootStopsWhereItFailed) {
    for (const char* text : {"~a#b~c", "~a^b~c"}) {
        const SampleAnswer answer = OnPaper(text);
        ExpectPieces(answer, {{"a", kX + kC, kBase}, {"c", kX + 2 * kC, kBase}});
        ExpectMessages(answer, 1);
    }
}

TEST(TroubleTest, ARootHoldsFiftyCharacters) {
    ExpectMessages(OnPaper("~" + std::string(50, '9') + "~"), 0);
    const SampleAnswer answer = OnPaper("~" + std::string(51, '9') + "~y");
    ExpectPieces(answer, {{"y", kX + 2 * kBlank, kBase}});
    ExpectMessages(answer, 1);
}

TEST(TroubleTest, AFractionsPartHoldsFiftyCharacters) {
    const std::string fiftyOne(51, '9');
    for (const std::string& text : {"#" + fiftyOne + "/2#y", "#2/" + fiftyOne + "#y"}) {
        const SampleAnswer answer = OnPaper(text);
        ExpectPieces(answer, {{"y", kX, kBase}});
        ExpectMessages(answer, 1);
    }
}

TEST(TroubleTest, ALimitCountsCharactersNotBytes) {
    std::string fifty;
    for (int i = 0; i < 50; ++i) {
        fifty += "\u03C0";
    }
    ExpectMessages(OnPaper("~" + fifty + "~"), 0);
    ExpectMessages(OnPaper("~" + fifty + "9~"), 1);
}

TEST(TroubleTest, EveryConstructThatFailsTellsSo) {
    const SampleAnswer answer = OnPaper("#x^/3#~y#~z");
    ExpectPieces(answer,
                 {{"x", kX, kNumerator}, {"y", kX + 2 * kC, kBase}, {"z", kX + 3 * kC, kBase}});
    ExpectMessages(answer, 2);
}

TEST(TroubleTest, ALineHoldsThreeThousandCharacters) {
    const SampleAnswer whole = Explained(std::string(3000, 'x'));
    EXPECT_EQ(whole.marks.size(), 3000U);
    ExpectMessages(whole, 0);
    const SampleAnswer cut = Explained(std::string(3000, 'x') + "yz");
    ASSERT_EQ(cut.marks.size(), 3000U);
    EXPECT_EQ(TextAt(cut, 2999).text, "x");
    ExpectMessages(cut, 1);
    ExpectEnd(cut, 0, 3 + kLine);
}

TEST(TroubleTest, InvalidBytesStandAlone) {
    const SampleAnswer answer = OnPaper("a\xC3#1/2#");
    EXPECT_EQ(answer.marks.size(), 5U);
    EXPECT_EQ(TextAt(answer, 1).text, "\xC3");
    ExpectMessages(answer, 0);
}

TEST(TroubleTest, AnOpenMarkerBehindAWrapEndsOnTheNewRow) {
    // 740 + 12 and two characters are 767.8, past 765: the base goes from 12 to 24.
    const SampleAnswer answer = Typeset({.target = TypesetTarget::Print, .text = "xx#1", .x = 740});
    EXPECT_EQ(answer.messages.size(), 1U);
    EXPECT_NEAR(answer.endX, 0, 1e-9);
    EXPECT_NEAR(answer.endY, 24 + kLine, 1e-9);
}

TEST(TroubleTest, WhatAnInnerConstructDrewBeforeItFailedStays) {
    // The caret in the root has no partner: "a" is drawn, and the line goes on behind the fraction.
    const SampleAnswer answer = OnPaper("#~a^b~/2#c");
    EXPECT_EQ(answer.messages.size(), 1U);
    ASSERT_EQ(answer.marks.size(), 2U);
    EXPECT_EQ(TextAt(answer, 0).text, "a");
    EXPECT_EQ(TextAt(answer, 1).text, "c");
    EXPECT_NEAR(TextAt(answer, 1).y, kBase, 1e-9);
}

TEST(TroubleTest, ACutInsideAConstructGivesASecondMessage) {
    const std::string tooLong = std::string(2999, 'x') + "#1/2#";
    EXPECT_EQ(Typeset({.target = TypesetTarget::Preview, .text = tooLong}).messages.size(), 2U);
}

}  // namespace
}  // namespace numerello
