#include "tests/typeset/samples.h"

namespace numerello {
namespace {

TEST(PaperLineTest, AnEmptyLineRecordsTheMarginLessFour) {
    const SampleAnswer answer = OnPaper("");
    ExpectPieces(answer, {});
    ExpectEnd(answer, 67 - 4, kBase);
    ExpectMessages(answer, 0);
    EXPECT_EQ(answer.pagesTurned, 0);
}

TEST(PaperLineTest, CharactersArePrintedOneByOne) {
    const SampleAnswer answer = OnPaper("x = 4\u00B0");
    ExpectPieces(answer, {{"x", kMargin, kBase},
                          {"=", kMargin + kCharacter + kBlank, kBase},
                          {"4", kMargin + 2 * kCharacter + 2 * kBlank, kBase},
                          {"\u00B0", kMargin + 3 * kCharacter + 2 * kBlank, kBase}});
    ExpectEnd(answer, kMargin + 4 * kCharacter + 2 * kBlank - 4, kBase);
    EXPECT_EQ(TextAt(answer, 0).font.name, "VantrelFont");
}

TEST(PaperLineTest, TheMarginStartsAtThePen) {
    ExpectPieces(OnPaper("x", 100, 40), {{"x", 100 + kMargin, 40 + kBase}});
}

TEST(PaperLineTest, MarginAndPitchFollowTheFontSize) {
    const SampleAnswer answer = Typeset({.text = "x^2^", .size = 20});
    const double character = 134.0 / 204 * 20;
    const double margin = 17 * 67.0 / 204 * 20;
    ExpectPieces(answer, {{"x", margin, 48, 20}, {"2", margin + character, 48 - 1.6, 8}});
    ExpectEnd(answer, margin + character + kSmall - 4, 48);
}

TEST(PaperLineTest, SymbolsOfTheFaceAreOrdinaryCharacters) {
    const SampleAnswer answer = OnPaper("`\\${&_");
    ExpectPieces(answer, {{"`", kMargin, kBase},
                          {"\\", kMargin + kCharacter, kBase},
                          {"$", kMargin + 2 * kCharacter, kBase},
                          {"{", kMargin + 3 * kCharacter, kBase},
                          {"&", kMargin + 4 * kCharacter, kBase},
                          {"_", kMargin + 5 * kCharacter, kBase}});
}

TEST(PaperLineTest, AnExponentIsSmallAndAlmostInPlace) {
    const SampleAnswer answer = OnPaper("x^12^y");
    ExpectPieces(answer, {{"x", kMargin, kBase},
                          {"12", kMargin + kCharacter, kBase - 0.2 * 8, 8},
                          {"y", kMargin + kCharacter + 2 * kSmall, kBase}});
}

TEST(PaperLineTest, AnExponentKeepsItsMarkersAndHasNoLimit) {
    const SampleAnswer answer = OnPaper("^[2]~#/^a");
    ExpectPieces(answer, {{"[2]~#/", kMargin, kBase - 1.6, 8}, {"a", kMargin + 6 * kSmall, kBase}});
    const std::string longBody(60, '7');
    ExpectPieces(OnPaper("^" + longBody + "^"), {{longBody, kMargin, kBase - 1.6, 8}});
    ExpectPieces(OnPaper("^^a"), {{"a", kMargin, kBase}});
}

TEST(PaperLineTest, BracketsColourWhatStandsBetween) {
    ExpectPieces(OnPaper("[x]^2^-[3]"),
                 {{"x", kMargin, kBase, 12, kRed},
                  {"2", kMargin + kCharacter, kBase - 1.6, 8},
                  {"-", kMargin + kCharacter + kSmall, kBase},
                  {"3", kMargin + 2 * kCharacter + kSmall, kBase, 12, kRed}});
    ExpectPieces(OnPaper("[x^2^]y"), {{"x", kMargin, kBase, 12, kRed},
                                      {"2", kMargin + kCharacter, kBase - 1.6, 8, kRed},
                                      {"y", kMargin + kCharacter + kSmall, kBase}});
}

TEST(PaperLineTest, MarkersFollowEachOther) {
    ExpectPieces(OnPaper("[]][x"), {{"x", kMargin, kBase, 12, kRed}});
    ExpectPieces(OnPaper("^1^^2^"),
                 {{"1", kMargin, kBase - 1.6, 8}, {"2", kMargin + kSmall, kBase - 1.6, 8}});
}

TEST(PaperLineTest, EachLineStartsBlackAgain) {
    const SampleAnswer answer = Typeset({.text = "a[b", .blue = true});
    ExpectPieces(answer, {{"a", kMargin, kBase}, {"b", kMargin + kCharacter, kBase, 12, kRed}});
}

}  // namespace
}  // namespace numerello
