#include "help/what_to_type.h"

#include <gtest/gtest.h>

#include "help/page_text.h"
#include "tests/help/book.h"

namespace numerello {

namespace {

std::vector<std::string> Sentences(std::string_view caption) {
    std::vector<std::string> plain;
    for (const std::string& html : WhatToType(*FindTopic(caption), TextFor(caption).problem)) {
        plain.push_back(PlainText(html));
    }
    return plain;
}

using Expected = std::vector<std::string>;

TEST(WhatToType, TellsTheKeysOfALine) {
    EXPECT_EQ(Sentences("Simplifying Fractions"),
              (Expected{"Enter two numbers separated by a division symbol. Example: 1/2",
                        "The keys are the digits 0 to 9 and / for a fraction or to divide.",
                        "A number may have up to 5 digits."}));
}

TEST(WhatToType, TellsOfDecimals) {
    EXPECT_EQ(
        Sentences("Converting Inches To Feet"),
        (Expected{"Enter a number. Example: 12",
                  "The keys are the digits 0 to 9 and the decimal point ..",
                  "A number may have up to 5 digits, and up to 2 behind the decimal point."}));
}

TEST(WhatToType, LeavesOutKeysThatTheFilterRefusesEverywhere) {
    // The mask lets both signs in, the rule for points the minus alone.
    EXPECT_EQ(Sentences("Plotting A Point")[1],
              "The keys are the digits 0 to 9, -, the parentheses ( and ) and the comma ,.");
}

TEST(WhatToType, TellsOfLetters) {
    EXPECT_EQ(Sentences("Evaluating Polynomials").back(),
              "The problem may have up to 3 different letters.");
    EXPECT_EQ(Sentences("Solving Equations").back(),
              "The problem may have one letter, the same wherever it stands.");
}

TEST(WhatToType, TellsOfBoxes) {
    EXPECT_EQ(Sentences("Pythagorean Theorem"),
              (Expected{"Enter numbers into two of the three boxes.", "The boxes are c, a and b.",
                        "Leave exactly one box empty: that number is found.",
                        "The boxes take digits.", "A decimal point may be typed in every box."}));
    EXPECT_EQ(Sentences("Addition"),
              (Expected{"Enter numbers into both boxes.", "The boxes are Top box and Lower box.",
                        "Fill in every box.", "The boxes take digits."}));
}

TEST(WhatToType, TellsOfLists) {
    EXPECT_EQ(Sentences("Rounding").back(),
              "Choose from the list beside the line how far to round.");
    EXPECT_NE(Sentences("Gram Conversions")[1].find("in the first list"), std::string::npos);
}

}  // namespace

}  // namespace numerello
