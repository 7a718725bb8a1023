#include "cli/terminal_text.h"

#include <gtest/gtest.h>

namespace numerello {
namespace {

TEST(TerminalText, WritesMathematicsInOneRow) {
    const std::pair<const char*, const char*> lines[] = {
        {"", ""},
        {"3+4*2", "3+4*2"},
        {"3^2^+x^-10^", "3²+x⁻¹⁰"},
        {"3^?^", "3^"},
        {"x^a+1^", "x^(a+1)"},
        {"90^o^", "90°"},
        {"3~4~+~b^2^-4ac~", "3√4+√(b²-4ac)"},
        {"~~", "√"},
        {"#1/2#+#3/5#", "1/2+3/5"},
        {"2#1/2#", "2 1/2"},
        {"2+#1/2#", "2+1/2"},
        {"#48y^3^/15#", "48y³/15"},
        {"#1/2#x", "(1/2)x"},
        {"2#x/3#", "2(x/3)"},
        {"#y/3#(12)", "(y/3)(12)"},
        {"(4)#y/3#", "(4)(y/3)"},
        {"#19/2x^2^#", "19/(2x²)"},
        {"#1/x^2^#", "1/x²"},
        {"#x+1/2#", "(x+1)/2"},
        {"#(x+1)/(x-2)#", "(x+1)/(x-2)"},
        {"#(x+1)(x-1)/2#", "((x+1)(x-1))/2"},
        {"#1/2#{#3/4#", "(1/2)÷(3/4)"},
        {"2*#1/2#", "2*(1/2)"},
        {"x=#-b\\~b^2^-4ac~/2a#", "x=(-b±√(b²-4ac))/(2a)"},
        {"Circumference = ` * 5", "Circumference = π * 5"},
        {"5$6", "5≠6"},
        {"6[+x]=|-9|", "6[+x]=|-9|"},
        {"a#b", "a#b"},
        {"2^", "2^"},
    };
    for (const auto& [line, plain] : lines) {
        EXPECT_EQ(TerminalText(line), plain) << line;
    }
}

TEST(TerminalRefusal, LeavesQuotedMarksAlone) {
    EXPECT_EQ(TerminalRefusal("You can't type a '^' after a '~' in 'Roots'."),
              "You can't type a '^' after a '~' in 'Roots'.");
    EXPECT_EQ(TerminalRefusal("You can't type a ~~ after a '3'. "),
              "You can't type a √ after a '3'. ");
}

TEST(TerminalRefusal, ShowsControlCharacters) {
    EXPECT_EQ(TerminalRefusal("You can't type a '\x1B' after a '3'."),
              "You can't type a '\u241B' after a '3'.");
    EXPECT_EQ(VisibleText(std::string("\0\n\x7F", 3)), "\u2400\u240A\u2421");
    EXPECT_EQ(VisibleText("a\xC2\x9B\xFF\xE2\x82"), "a\uFFFD\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(VisibleText("\u00A0\u20AC\u00E9"), "\u00A0\u20AC\u00E9");
}

}  // namespace
}  // namespace numerello
