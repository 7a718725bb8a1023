#include "catalogue/instructions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "catalogue/topics.h"
#include "core/text.h"

namespace numerello {
namespace {

struct Sentence {
    std::vector<int> codes;
    std::string text;
};

const std::vector<Sentence> kSentences = {
    {{200, 202}, "Enter numbers into both boxes."},
    {{201},
     "Enter numbers into both boxes.  The number in the top box must be greater than the "
     "number in the lower box."},
    {{203},
     "Enter numbers into both boxes.  The number under the division bar (on the right) must be "
     "greater than the number outside the division bar (on the left)."},
    {{83},
     "Enter numbers separated by multiplication symbols (*).  Exponents can also be entered.  "
     "Example: 35*9*4^3^"},
    {{82},
     "Enter numbers using the square root symbol separated by operators ( + - * ).  Example: "
     "3~4~+2~9~"},
    {{81},
     "Enter numbers separated by operators ( + - * / ).  Exponents can also be entered.  "
     "Example: 3^2^+4^2^"},
    {{105},
     "Enter an equation using numbers, two variables, and/or operators ( + - ).  An equal sign "
     "must appear in the equation.  Example: y=2x+3"},
    {{101},
     "Enter an equation using numbers, a variable, and operators ( + - ).  An equal sign must "
     "appear in the equation.  Example: x+3=12"},
    {{121},
     "Enter numbers separated by operators ( + - * / ).  Parenthesis and exponents can also be "
     "entered.  Example: (4-2)+3^2^"},
    {{120},
     "Enter numbers separated by operators ( + - * / ) and enclosed in absolute value bars "
     "(|).  Example: |-5|+3"},
    {{107, 108},
     "Enter a point by typing two numbers enclosed in parenthesis and separated by a comma.  "
     "Example: (4,8)"},
    {{106},
     "Enter two points by typing two numbers enclosed in parenthesis and separated by a comma, "
     "then typing a hyphen (or minus symbol), and another two numbers enclosed in parenthesis "
     "and separated by a comma.  Example: (1,2)-(5,6)"},
    {{104}, "Enter a number of degrees, between 1 and 180.  Example: 90"},
    {{99}, "Enter a number with less than ten digits.  Example: 76494"},
    {{59, 60, 61, 62, 87, 88}, "Enter a group of numbers separated by commas.  Example: 2,4,3,1"},
    {{90}, "Enter two numbers separated by a comma.  Example: -3,4"},
    {{72, 73, 75, 79, 80}, "Enter two numbers separated by a division symbol.  Example: 1/2"},
    {{78}, "Enter two numbers separated by a colon.  Example: 1:2"},
    {{20}, "Enter numbers into three of the four boxes."},
    {{74},
     "Enter a number followed by an addition symbol and a fraction (two numbers separated by a "
     "division symbol).  Example: 2+1/2"},
    {{68, 69}, "Enter a number followed by a percent symbol.  Example: 42%"},
    {{70, 71}, "Enter a number containing a decimal point.  Example: 0.32"},
    {{12, 14, 21, 22}, "Enter numbers into two of the three boxes."},
    {{98}, "Enter a number and select a choice from the drop-down list."},
    {{5, 7, 15, 16, 17, 18}, "Enter a number into the box on the picture."},
    {{1, 2, 3, 4, 6, 8, 9, 10, 13, 19, 25, 26, 27},
     "Enter numbers into all of the boxes on the picture."},
    {{11},
     "Enter numbers into all three boxes on the left triangle, and two of the three boxes on "
     "the right triangle."},
    {{76},
     "Enter two fractions (two numbers separated by a division symbol) separated by an "
     "operator ( + - * / ).  Example: #1/2# + #3/5#"},
    {{91}, "Enter numbers separated by operators ( + - * / ).  Example: 4+2*3-5"},
    {{23, 24},
     "Enter a number into the box on the left, then select a choice from both drop-down lists."},
    {{102},
     "Enter a polynomial to be simplified using variables and/or numbers with or without "
     "exponents separated by operators ( + - * / ). Example : 9(3x^2^+8^2^)-#3/4#+4x "},
    {{150},
     "Enter a polynomial to be simplified using variables and/or numbers with or without "
     "exponents separated by operators ( + - * / ). Example : #9x^-2^/6#+8x^-2^"},
    {{103},
     "Enter a polynomial to be evaluated.  Use variables and/or numbers with or without "
     "exponents separated by operators ( + - * ). Example : 4xy+9x*6y+8z^2^ "},
};

const std::vector<int> kCodesWithANumber = {28, 29, 30, 31, 32, 33, 34, 35, 36,  37,  38, 39,
                                            40, 41, 42, 43, 44, 45, 46, 47, 48,  49,  50, 51,
                                            52, 53, 54, 65, 84, 85, 86, 89, 109, 110, 111};

/// Draws the given numbers in turn, whatever the seed, and counts them.
class ScriptedSource : public RandomSource {
  public:
    explicit ScriptedSource(std::vector<double> draws) : draws(std::move(draws)) {}

    void Seed(std::uint32_t) override {}
    double Rnd() override { return draws.at(taken++); }

    std::size_t taken = 0;

  private:
    std::vector<double> draws;
};

std::map<int, std::string> FixedSentences() {
    std::map<int, std::string> byCode;
    for (const Sentence& sentence : kSentences) {
        for (const int code : sentence.codes) {
            byCode[code] = sentence.text;
        }
    }
    return byCode;
}

TEST(Instructions, EveryCodeWithASentenceOfItsOwn) {
    for (const auto& [code, text] : FixedSentences()) {
        EXPECT_EQ(InstructionFor(code, 7), text) << code;
    }
}

TEST(Instructions, AllOtherCodesEndInTheExampleNumber) {
    for (const int code : kCodesWithANumber) {
        EXPECT_EQ(InstructionFor(code, 2), "Enter a number.  Example: 2") << code;
        EXPECT_EQ(InstructionFor(code, 18), "Enter a number.  Example: 18") << code;
    }
    EXPECT_EQ(InstructionFor(0, 4), "Enter a number.  Example: 4");
    EXPECT_EQ(InstructionFor(122, 4), "Enter a number.  Example: 4");
}

TEST(Instructions, TheTwoKindsCoverTheCatalogue) {
    const auto fixed = FixedSentences();
    EXPECT_EQ(kCodesWithANumber.size(), 35U);
    EXPECT_EQ(fixed.size() + kCodesWithANumber.size(), 102U);
    for (const Topic& topic : Topics()) {
        const bool withNumber =
            std::count(kCodesWithANumber.begin(), kCodesWithANumber.end(), topic.code) == 1;
        EXPECT_NE(withNumber, fixed.count(topic.code) == 1) << topic.caption;
    }
}

TEST(Instructions, TheNumberIsTheSumOfTwoDraws) {
    const FixedClock clock(1234);
    ScriptedSource random({0.0, 0.999});
    EXPECT_EQ(DrawInstruction(54, clock, random), "Enter a number.  Example: 10");
    EXPECT_EQ(random.taken, 2U);
}

TEST(Instructions, ASentenceWithoutANumberDrawsNothing) {
    const FixedClock clock(1234);
    ScriptedSource random({});
    EXPECT_EQ(DrawInstruction(80, clock, random),
              "Enter two numbers separated by a division symbol.  Example: 1/2");
    EXPECT_EQ(random.taken, 0U);
}

TEST(Instructions, WithinOneSecondTheNumberIsTwiceOneDigit) {
    const std::vector<std::string> even = {"2", "4", "6", "8", "10", "12", "14", "16", "18"};
    std::map<std::string, int> seen;
    MersenneSource random;
    for (int moment = 0; moment < 3600; ++moment) {
        const FixedClock clock(moment / 60 * 100 + moment % 60);
        ++seen[DrawInstruction(89, clock, random)];
    }
    EXPECT_EQ(seen.size(), even.size());
    for (const std::string& number : even) {
        EXPECT_GT(seen[Text("Enter a number.  Example: ", number)], 0) << number;
    }
}

}  // namespace
}  // namespace numerello
