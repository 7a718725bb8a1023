#include "tests/typeset/samples.h"

/// The lines at sizes other than a target's own: which lengths grow with the font and which do not.
namespace numerello {
namespace {

// A character at 20 and at 10 points.
constexpr double kLarge = 134.0 / 204 * 20;
constexpr double kTen = 134.0 / 204 * 10;

TEST(OtherSizes, PaperFractionsGrow) {
    const double x = 17 * kLarge / 2;
    const double numerator = 2.4 * 20 - 0.6 * 20;
    ExpectPieces(
        Typeset({.target = TypesetTarget::Paper, .text = "#1/2#", .size = 20}),
        {{"1", x, numerator, 20}, {"2", x, numerator + 1.7 * 20, 20}, {"_", x, numerator, 20}});
}

TEST(OtherSizes, AnExplanationWithAFractionDropsByTheSize) {
    const double numerator = 20 - 0.6 * 20;
    ExpectPieces(Typeset({.target = TypesetTarget::Explanation, .text = "#1/2#", .size = 20}),
                 {{"1", 0, numerator, 20, kBlue},
                  {"2", 0, numerator + 1.7 * 20, 20, kBlue},
                  {"_", 0, numerator, 20, kBlue}});
}

TEST(OtherSizes, AnExplanationWithoutOneDropsByThree) {
    // The body ends at 2 characters, 26.27; from 10 on two segments pass that.
    ExpectPieces(Typeset({.target = TypesetTarget::Explanation, .text = "~4~", .size = 20}),
                 {{"4", kLarge, 3, 20, kBlue},
                  {"_", 10, 3 - 1.5 * 20, 20, kBlue},
                  {"_", 10 + kLarge, 3 - 1.5 * 20, 20, kBlue},
                  {"~", -2, 3, 20, kBlue}});
}

TEST(OtherSizes, PrintedRootsKeepTheirLengths) {
    ExpectPieces(Typeset({.target = TypesetTarget::Print, .text = "~9~", .size = 10}),
                 {{"9", 12 + kTen, 12, 10},
                  {"_", 12 + 6, 12 - 12, 10},
                  {"_", 12 + 6 + kTen, 12 - 12, 10},
                  {"~", 12 - 2, 12 - 2, 10}});
}

TEST(OtherSizes, PreviewedRootsKeepTheirLengths) {
    ExpectPieces(Typeset({.target = TypesetTarget::Preview, .text = "~9~", .size = 12}),
                 {{"9", 12 + kCharacter, 12},
                  {"_", 12 + 6, 12 - 12},
                  {"_", 12 + 6 + kCharacter, 12 - 12},
                  {"~", 12 - 2, 12 - 2}});
}

}  // namespace
}  // namespace numerello
