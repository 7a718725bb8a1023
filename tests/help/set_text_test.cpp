#include "help/set_text.h"

#include <gtest/gtest.h>

#include "help/help_error.h"

namespace numerello {

namespace {

constexpr std::string_view kHalf =
    "<img class=\"math\" src=\"math:page/%231%2F2%23\" alt=\"one half\">";

TEST(SetText, MakesAPictureOfMathematics) {
    EXPECT_EQ(MathPicture("#1/2#", Ink::Page), kHalf);
    EXPECT_EQ(MathLine("x^2^=9", Ink::Black),
              "<img class=\"math\" src=\"math:black/x%5E2%5E%3D9\" alt=\"x squared equals 9\">");
}

TEST(SetText, LeavesSentencesAsText) {
    EXPECT_EQ(MathLine("Multiply 3 by 4.", Ink::Blue), "Multiply 3 by 4.");
    EXPECT_EQ(MathLine("Then 3 < 4 & so on.", Ink::Blue), "Then 3 &lt; 4 &amp; so on.");
}

TEST(SetText, MakesPicturesOfThePiecesInASentence) {
    EXPECT_EQ(MathSentence("Take #1/2# of it", Ink::Page), "Take " + std::string(kHalf) + " of it");
}

TEST(SetText, KeepsAConstructWithBlanksWhole) {
    EXPECT_EQ(MathSentence("the fraction #1 + 2/3# here", Ink::Page),
              "the fraction <img class=\"math\" src=\"math:page/%231%20%2B%202%2F3%23\" "
              "alt=\"fraction 1 plus 2 over 3 end fraction\"> here");
}

TEST(SetText, LeavesParenthesesOfTheSentenceAsTheyAre) {
    EXPECT_NE(MathSentence("pi (3.14 or about #22/7#).", Ink::Page).find("alt=\"22 over 7).\""),
              std::string::npos);
    EXPECT_NE(MathSentence("half (#1/2# of it)", Ink::Page).find("alt=\"(one half\""),
              std::string::npos);
    EXPECT_NE(MathSentence("the square (x+1)^2^ is", Ink::Page)
                  .find("alt=\"open parenthesis x plus 1 close parenthesis squared\""),
              std::string::npos);
}

TEST(SetText, KeepsSignsInOneRow) {
    EXPECT_EQ(MathSentence("Use the operators ( + - * / ) and digits.", Ink::Page),
              "Use the operators (&nbsp;+&nbsp;-&nbsp;*&nbsp;/&nbsp;) and digits.");
    EXPECT_EQ(MathSentence("Two signs ( + - ).  Example", Ink::Page),
              "Two signs (&nbsp;+&nbsp;-&nbsp;).  Example");
}

TEST(SetText, EmphasisesAcrossWords) {
    EXPECT_EQ(MathSentence("all [of it] now", Ink::Black),
              "all <span class=\"red\">of</span> <span class=\"red\">it</span> now");
    EXPECT_EQ(MathSentence("the [x]'s there", Ink::Black),
              "the <span class=\"red\">x</span>'s there");
}

TEST(SetText, ShowsSignsThatNoKeyboardHas) {
    EXPECT_EQ(MathSentence("divide 6{2 and say `", Ink::Page), "divide 6\u00f72 and say \u03c0");
}

TEST(SetText, LeavesAMarkWithoutPartner) {
    EXPECT_EQ(MathSentence("number # one", Ink::Page), "number # one");
}

TEST(SetText, ReplacesMathematicsInHtml) {
    EXPECT_EQ(WithMath("<p>A <m>#1/2#</m>, a <m>#1/2#</m>.</p>"),
              "<p>A " + std::string(kHalf) + ", a " + std::string(kHalf) + ".</p>");
    EXPECT_EQ(WithMath("<p>none</p>"), "<p>none</p>");
    EXPECT_THROW(WithMath("<p><m>1</p>"), HelpError);
}

}  // namespace

}  // namespace numerello
