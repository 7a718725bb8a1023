#include "tests/typeset/samples.h"

namespace numerello {
namespace {

constexpr double kX = kMargin;
constexpr double kC = kCharacter;

TEST(FractionTest, OneDigitEach) {
    ExpectPieces(OnPaper("#1/2#a"), {{"1", kX, kNumerator},
                                     {"2", kX, kDenominator},
                                     {"_", kX, kNumerator},
                                     {"a", kX + kC, kBase}});
}

TEST(FractionTest, ADifferenceOfOneIsNotPadded) {
    ExpectPieces(OnPaper("#1/25#a"), {{"1", kX, kNumerator},
                                      {"2", kX, kDenominator},
                                      {"5", kX + kC, kDenominator},
                                      {"_", kX, kNumerator},
                                      {"_", kX + kC, kNumerator},
                                      {"a", kX + 2 * kC, kBase}});
}

TEST(FractionTest, ANarrowNumeratorIsPaddedByTwoBlanks) {
    ExpectPieces(OnPaper("#1/256#"), {{"1", kX + 2 * kBlank, kNumerator},
                                      {"2", kX, kDenominator},
                                      {"5", kX + kC, kDenominator},
                                      {"6", kX + 2 * kC, kDenominator},
                                      {"_", kX, kNumerator},
                                      {"_", kX + kC, kNumerator},
                                      {"_", kX + 2 * kC, kNumerator}});
}

TEST(FractionTest, ANarrowDenominatorIsPaddedByFourBlanks) {
    ExpectPieces(OnPaper("#2567/1#"), {{"2", kX, kNumerator},
                                       {"5", kX + kC, kNumerator},
                                       {"6", kX + 2 * kC, kNumerator},
                                       {"7", kX + 3 * kC, kNumerator},
                                       {"1", kX + 4 * kBlank, kDenominator},
                                       {"_", kX, kNumerator},
                                       {"_", kX + kC, kNumerator},
                                       {"_", kX + 2 * kC, kNumerator},
                                       {"_", kX + 3 * kC, kNumerator}});
}

TEST(FractionTest, OnlyASlashOutsideParenthesesSplits) {
    ExpectPieces(OnPaper("#(a/b)/c#"), {{"(", kX, kNumerator},
                                        {"a", kX + kC, kNumerator},
                                        {"/", kX + 2 * kC, kNumerator},
                                        {"b", kX + 3 * kC, kNumerator},
                                        {")", kX + 4 * kC, kNumerator},
                                        // padded by 2 * (5 - 1 - 1) blanks
                                        {"c", kX + 6 * kBlank, kDenominator},
                                        {"_", kX, kNumerator},
                                        {"_", kX + kC, kNumerator},
                                        {"_", kX + 2 * kC, kNumerator},
                                        {"_", kX + 3 * kC, kNumerator},
                                        {"_", kX + 4 * kC, kNumerator}});
}

TEST(FractionTest, DepthMayFallBelowZero) {
    // The first slash stands at depth -1, the second at 0.
    ExpectPieces(OnPaper("#)/(/2#"), {{")", kX, kNumerator},
                                      {"/", kX + kC, kNumerator},
                                      {"(", kX + 2 * kC, kNumerator},
                                      {"2", kX + 2 * kBlank, kDenominator},
                                      {"_", kX, kNumerator},
                                      {"_", kX + kC, kNumerator},
                                      {"_", kX + 2 * kC, kNumerator}});
}

TEST(FractionTest, TheLastSlashSplits) {
    ExpectPieces(OnPaper("#1/2/3#"), {{"1", kX, kNumerator},
                                      {"/", kX + kC, kNumerator},
                                      {"2", kX + 2 * kC, kNumerator},
                                      {"3", kX + 2 * kBlank, kDenominator},
                                      {"_", kX, kNumerator},
                                      {"_", kX + kC, kNumerator},
                                      {"_", kX + 2 * kC, kNumerator}});
}

TEST(FractionTest, WithoutASlashTheBodyIsLost) {
    for (const char* text : {"#12#a", "##a", "#(1/2)#a"}) {
        ExpectPieces(OnPaper(text), {{"a", kX, kBase}});
    }
}

TEST(FractionTest, OnePartMayBeEmpty) {
    ExpectPieces(OnPaper("#/3#"), {{"3", kX, kDenominator}, {"_", kX, kNumerator}});
    ExpectPieces(OnPaper("#3/#"), {{"3", kX, kNumerator}, {"_", kX, kNumerator}});
    ExpectPieces(OnPaper("#/#a"), {{"a", kX, kBase}});
}

TEST(FractionTest, SignsCountNothingSoTheBarMayEndEarly) {
    // Two counted characters each: the bar goes by the numerator.
    ExpectPieces(OnPaper("#12/3+4#a"), {{"1", kX, kNumerator},
                                        {"2", kX + kC, kNumerator},
                                        {"3", kX, kDenominator},
                                        {"+", kX + kC, kDenominator},
                                        {"4", kX + 2 * kC, kDenominator},
                                        {"_", kX, kNumerator},
                                        {"_", kX + kC, kNumerator},
                                        {"a", kX + 2 * kC, kBase}});
    // "1-.*" counts 1 like "2", although it is four wide.
    ExpectPieces(OnPaper("#2/1-.*#a"), {{"2", kX, kNumerator},
                                        {"1", kX, kDenominator},
                                        {"-", kX + kC, kDenominator},
                                        {".", kX + 2 * kC, kDenominator},
                                        {"*", kX + 3 * kC, kDenominator},
                                        {"_", kX, kNumerator},
                                        {"a", kX + kC, kBase}});
}

TEST(FractionTest, OtherSignsCount) {
    // "|x|=" counts 4 against 1.
    ExpectPiece(OnPaper("#1/|x|=#"), 0, {"1", kX + 4 * kBlank, kNumerator});
    // A character of two bytes counts once.
    ExpectPiece(OnPaper("#1/\u00F73#"), 0, {"1", kX, kNumerator});
}

TEST(FractionTest, EqualPartsShareTheBarsEnd) {
    ExpectPieces(OnPaper("#7/7#"),
                 {{"7", kX, kNumerator}, {"7", kX, kDenominator}, {"_", kX, kNumerator}});
}

TEST(FractionTest, ASegmentThatWouldStartAtTheEndIsLeftOut) {
    // Three small digits are two characters wide.
    ExpectPieces(OnPaper("#x^123^/2#a"), {{"x", kX, kNumerator},
                                          {"123", kX + kC, kNumerator - 1.6, 8},
                                          {"2", kX + 4 * kBlank, kDenominator},
                                          {"_", kX, kNumerator},
                                          {"_", kX + kC, kNumerator},
                                          {"_", kX + 2 * kC, kNumerator},
                                          {"a", kX + 3 * kC, kBase}});
    // Two blanks are one character.
    const SampleAnswer answer = OnPaper("#1  2/3#");
    EXPECT_EQ(answer.marks.size(), 3U + 3U);
    ExpectPiece(answer, 5, {"_", kX + 2 * kC, kNumerator});
}

TEST(FractionTest, BracketsColourWithinAndBeyondThePart) {
    ExpectPieces(OnPaper("#[1]/2#"),
                 {{"1", kX, kNumerator, 12, kRed}, {"2", kX, kDenominator}, {"_", kX, kNumerator}});
    ExpectPieces(OnPaper("#[1/2#a"), {{"1", kX, kNumerator, 12, kRed},
                                      {"2", kX, kDenominator, 12, kRed},
                                      {"_", kX, kNumerator, 12, kRed},
                                      {"a", kX + kC, kBase, 12, kRed}});
}

TEST(FractionTest, ARootInTheNumeratorEndsItsBar) {
    const double vinculum = kNumerator - 18;
    ExpectPieces(OnPaper("#~4~/2#"), {{"4", kX + 2 * kBlank, kNumerator},
                                      {"_", kX + 6, vinculum},
                                      {"_", kX + 6 + kC, vinculum},
                                      {"~", kX - 2, kNumerator - 2},
                                      {"2", kX, kDenominator},
                                      // as far as the vinculum goes: 6 and two characters
                                      {"_", kX, kNumerator},
                                      {"_", kX + kC, kNumerator},
                                      {"_", kX + 2 * kC, kNumerator}});
}

TEST(FractionTest, EachPartHoldsFiftyCharacters) {
    const std::string fifty(50, '8');
    const SampleAnswer answer = OnPaper("#" + fifty + "/" + fifty + "#");
    ExpectMessages(answer, 0);
    EXPECT_EQ(answer.marks.size(), 150U);
}

TEST(FractionTest, BracketsAndBlanksDoNotCountAsWidth) {
    // One against three, and two against four: two blanks in front of the shorter part.
    const SampleAnswer brackets = OnPaper("#[1]/234#");
    EXPECT_NEAR(TextAt(brackets, 0).x, kMargin + 2 * kBlank, 1e-9);
    EXPECT_EQ(TextAt(brackets, 0).color, kRed);
    EXPECT_NEAR(TextAt(OnPaper("#1  2/3456#"), 0).x, kMargin + 2 * kBlank, 1e-9);
}

TEST(FractionTest, ASlashInsideAnExponentSplitsToo) {
    // The last "/" decides: "x^1/2^" over "3". Without the carets four characters count against
    // one, so the denominator gets 2 * (4 - 1 - 1) blanks.
    const SampleAnswer answer = OnPaper("#x^1/2^/3#");
    EXPECT_EQ(TextAt(answer, 0).text, "x");
    EXPECT_EQ(TextAt(answer, 1).text, "1/2");
    EXPECT_EQ(TextAt(answer, 2).text, "3");
    EXPECT_NEAR(TextAt(answer, 2).x, kMargin + 4 * kBlank, 1e-9);
}

}  // namespace
}  // namespace numerello
