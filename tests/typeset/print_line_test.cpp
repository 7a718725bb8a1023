#include "tests/typeset/samples.h"

namespace numerello {
namespace {

constexpr double kC = kCharacter;
constexpr double kS = kSmall;

TEST(PrintLineTest, StartsTwelveIn) {
    ExpectPieces(Printed("ab"), {{"a", 12, 12}, {"b", 12 + kC, 12}});
    ExpectEnd(Printed("ab"), 0, 12 + kLine);
    ExpectPieces(Printed(""), {});
    ExpectEnd(Printed(""), 0, 12 + kLine);
}

TEST(PrintLineTest, FractionAndExponentHaveFixedSteps) {
    ExpectPieces(Printed("#1/25#x^3^"), {{"1", 12, 7},
                                         {"2", 12, 21},
                                         {"5", 12 + kC, 21},
                                         {"_", 12, 7},
                                         {"_", 12 + kC, 7},
                                         {"x", 12 + 2 * kC, 12},
                                         {"3", 12 + 3 * kC, 11, 8}});
}

TEST(PrintLineTest, FixedStepsDoNotFollowTheSize) {
    const SampleAnswer answer =
        Typeset({.target = TypesetTarget::Print, .text = "#1/2#x^3^", .size = 10});
    const double c = 134.0 / 204 * 10;
    ExpectPieces(answer, {{"1", 12, 7, 10},
                          {"2", 12, 21, 10},
                          {"_", 12, 7, 10},
                          {"x", 12 + c, 12, 10},
                          {"3", 12 + 2 * c, 11, 8}});
}

TEST(PrintLineTest, PlainAndTallRoot) {
    ExpectPieces(Printed("~9~x"), {{"9", 12 + kC, 12},
                                   {"_", 18, 0},
                                   {"_", 18 + kC, 0},
                                   {"~", 10, 10},
                                   {"x", 18 + 2 * kC, 12}});
    ExpectPieces(Printed("~#1/2#~x"), {{"1", 12 + kC, 7},
                                       {"2", 12 + kC, 21},
                                       {"_", 12 + kC, 7},
                                       {"_", 18, -5},
                                       {"_", 18 + kC, -5},
                                       {"&", 13, 5},
                                       {"~", 13 + kC - 14, 15},
                                       {"x", 18 + 2 * kC, 12}});
}

TEST(PrintLineTest, TheFaceIsThatOfTheSheets) {
    EXPECT_EQ(TextAt(Printed("x"), 0).font.name, "VantrelFont");
    EXPECT_EQ(TextAt(Previewed("x"), 0).font.name, "VantrelFont");
}

TEST(PrintLineTest, BlueOnRequest) {
    ExpectPieces(Printed("[a]b", 0, true),
                 {{"a", 12, 12, 12, kRed}, {"b", 12 + kC, 12, 12, kBlue}});
    ExpectPieces(Printed("#[1]/2#", 0, true),
                 {{"1", 12, 7, 12, kRed}, {"2", 12, 21, 12, kBlue}, {"_", 12, 7, 12, kBlue}});
    ExpectPiece(Printed("~[9]~", 0, true), 3, {"~", 10, 10, 12, kBlue});
    ExpectPieces(Printed("[a]b"), {{"a", 12, 12, 12, kRed}, {"b", 12 + kC, 12}});
}

TEST(PreviewLineTest, AnExponentIsTwoPointsSmaller) {
    const SampleAnswer answer = Previewed("#1/25#x^3^");
    ExpectPieces(answer, {{"1", 12, 7, 8},
                          {"2", 12, 21, 8},
                          {"5", 12 + kS, 21, 8},
                          {"_", 12, 7, 8},
                          {"_", 12 + kS, 7, 8},
                          {"x", 12 + 2 * kS, 12, 8},
                          {"3", 12 + 3 * kS, 11, 6}});
    ExpectEnd(answer, 0, 12 + kSmallLine);
    const SampleAnswer large =
        Typeset({.target = TypesetTarget::Preview, .text = "^3^", .size = 12});
    ExpectPieces(large, {{"3", 12, 11, 10}});
}

TEST(PreviewLineTest, ATallRoot) {
    ExpectPieces(Previewed("~#1/2#~"), {{"1", 12 + kS, 7, 8},
                                        {"2", 12 + kS, 21, 8},
                                        {"_", 12 + kS, 7, 8},
                                        // body end at 22.5: the second segment would start at 23.3
                                        {"_", 18, -5, 8},
                                        {"&", 13, 5, 8},
                                        {"~", 13 + kS - 14, 15, 8}});
}

TEST(PreviewLineTest, APlainRootAndBlue) {
    ExpectPieces(Previewed("~[9]~", 0, true),
                 {{"9", 12 + kS, 12, 8, kRed}, {"_", 18, 0, 8, kBlue}, {"~", 10, 10, 8, kBlue}});
}

}  // namespace
}  // namespace numerello
