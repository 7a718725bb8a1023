#include "tests/typeset/samples.h"

namespace numerello {
namespace {

constexpr double kX = kMargin;
constexpr double kC = kCharacter;
constexpr double kVinculum = kBase - 1.5 * 12;

TEST(RootTest, TheTextGoesOnAtTheBarsTrueEnd) {
    // The body ends at two characters; a bar from 6 on needs two segments to pass that.
    const SampleAnswer answer = OnPaper("~9~x");
    ExpectPieces(answer, {{"9", kX + 2 * kBlank, kBase},
                          {"_", kX + 6, kVinculum},
                          {"_", kX + 6 + kC, kVinculum},
                          {"~", kX - 2, kBase - 2},
                          {"x", kX + 6 + 2 * kC, kBase}});
    ExpectEnd(answer, kX + 6 + 3 * kC - 4, kBase);
    EXPECT_EQ(TextAt(answer, 3).font.name, "VantrelFont");
}

TEST(RootTest, AnEmptyRootHasASignAndOneSegment) {
    ExpectPieces(OnPaper("~~x"),
                 {{"_", kX + 6, kVinculum}, {"~", kX - 2, kBase - 2}, {"x", kX + 6 + kC, kBase}});
}

TEST(RootTest, ExponentsStandInTheBody) {
    ExpectPieces(OnPaper("~b^2^~"), {{"b", kX + kC, kBase},
                                     {"2", kX + 2 * kC, kBase - 1.6, 8},
                                     // the body ends at 2 c + s = 21.02, the bar at 6 + 2 c = 21.76
                                     {"_", kX + 6, kVinculum},
                                     {"_", kX + 6 + kC, kVinculum},
                                     {"~", kX - 2, kBase - 2}});
}

TEST(RootTest, AFractionMakesTheSignTall) {
    const double signX = kX + 2 + kC - 14;
    ExpectPieces(OnPaper("~#1/2#~=0"), {{"1", kX + kC, kNumerator},
                                        {"2", kX + kC, kDenominator},
                                        {"_", kX + kC, kNumerator},
                                        {"_", kX + 6, kNumerator - 18},
                                        {"_", kX + 6 + kC, kNumerator - 18},
                                        {"&", kX + 2, kBase - 9},
                                        {"~", signX, kBase - 9 + 16},
                                        {"=", kX + 6 + 2 * kC, kBase},
                                        {"0", kX + 6 + 3 * kC, kBase}});
}

TEST(RootTest, BehindAFractionTheBodyStaysAtTheNumerator) {
    ExpectPieces(OnPaper("~#1/2#+3~"), {{"1", kX + kC, kNumerator},
                                        {"2", kX + kC, kDenominator},
                                        {"_", kX + kC, kNumerator},
                                        {"+", kX + 2 * kC, kNumerator},
                                        {"3", kX + 3 * kC, kNumerator},
                                        {"_", kX + 6, kNumerator - 18},
                                        {"_", kX + 6 + kC, kNumerator - 18},
                                        {"_", kX + 6 + 2 * kC, kNumerator - 18},
                                        {"_", kX + 6 + 3 * kC, kNumerator - 18},
                                        {"&", kX + 2, kBase - 9},
                                        {"~", kX + 2 + kC - 14, kBase + 7}});
}

TEST(RootTest, BracketsColourWithinAndBeyondTheBody) {
    ExpectPieces(OnPaper("~[9~]x"), {{"9", kX + kC, kBase, 12, kRed},
                                     {"_", kX + 6, kVinculum, 12, kRed},
                                     {"_", kX + 6 + kC, kVinculum, 12, kRed},
                                     {"~", kX - 2, kBase - 2, 12, kRed},
                                     {"x", kX + 6 + 2 * kC, kBase}});
    const SampleAnswer answer = OnPaper("[~]9~");
    ExpectPiece(answer, 0, {"9", kX + kC, kBase});
}

TEST(RootTest, TheBodyIsNotWrapped) {
    const SampleAnswer answer = OnPaper("~" + std::string(50, '9') + "~", 600);
    ExpectMessages(answer, 0);
    ExpectPiece(answer, 49, {"9", 600 + kX + 50 * kC, kBase});
    for (std::size_t i = 0; i < answer.marks.size(); ++i) {
        EXPECT_NE(TextAt(answer, i).text, "...");
    }
}

TEST(RootTest, MeasuresFollowTheFontSize) {
    const SampleAnswer answer = Typeset({.text = "~9~", .size = 24});
    const double margin = 2 * kX;
    const double base = 2.4 * 24;
    ExpectPieces(answer, {{"9", margin + 2 * kC, base, 24},
                          {"_", margin + 12, base - 36, 24},
                          {"_", margin + 12 + 2 * kC, base - 36, 24},
                          {"~", margin - 2, base - 2, 24}});
}

}  // namespace
}  // namespace numerello
