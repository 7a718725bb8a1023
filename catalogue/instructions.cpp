#include "catalogue/instructions.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "catalogue/random_digit.h"
#include "core/number.h"
#include "core/text.h"

namespace numerello {

namespace {

struct InstructionRow {
    std::array<int, 13> codes;  // padded with 0, which is no topic's code
    std::string_view text;
};

constexpr std::array kInstructions = std::to_array<InstructionRow>({
    {{200, 202}, "Enter numbers into both boxes."},
    {{201},
     "Enter numbers into both boxes.  The number in the top box must be greater than the number "
     "in the lower box."},
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
     "Enter numbers separated by operators ( + - * / ) and enclosed in absolute value bars (|).  "
     "Example: |-5|+3"},
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
    {{80, 79, 75, 73, 72}, "Enter two numbers separated by a division symbol.  Example: 1/2"},
    {{78}, "Enter two numbers separated by a colon.  Example: 1:2"},
    {{20}, "Enter numbers into three of the four boxes."},
    {{74},
     "Enter a number followed by an addition symbol and a fraction (two numbers separated by a "
     "division symbol).  Example: 2+1/2"},
    {{68, 69}, "Enter a number followed by a percent symbol.  Example: 42%"},
    {{71, 70}, "Enter a number containing a decimal point.  Example: 0.32"},
    {{14, 21, 22, 12}, "Enter numbers into two of the three boxes."},
    {{98}, "Enter a number and select a choice from the drop-down list."},
    {{15, 16, 17, 18, 5, 7}, "Enter a number into the box on the picture."},
    {{1, 2, 3, 4, 6, 8, 9, 10, 13, 19, 25, 26, 27},
     "Enter numbers into all of the boxes on the picture."},
    {{11},
     "Enter numbers into all three boxes on the left triangle, and two of the three boxes on "
     "the right triangle."},
    {{76},
     "Enter two fractions (two numbers separated by a division symbol) separated by an operator "
     "( + - * / ).  Example: #1/2# + #3/5#"},
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
});

const InstructionRow* FindRow(int ProblemType) {
    if (ProblemType == 0) {
        return nullptr;
    }
    const auto row = std::find_if(
        kInstructions.begin(), kInstructions.end(), [ProblemType](const InstructionRow& candidate) {
            const auto& codes = candidate.codes;
            return std::find(codes.begin(), codes.end(), ProblemType) != codes.end();
        });
    return row == kInstructions.end() ? nullptr : &*row;
}

}  // namespace

std::string InstructionFor(int ProblemType, int exampleNumber) {
    if (const InstructionRow* row = FindRow(ProblemType)) {
        return std::string(row->text);
    }
    return Text("Enter a number.  Example: ", WholeText(exampleNumber));
}

std::string DrawInstruction(int ProblemType, const Clock& clock, RandomSource& random) {
    if (FindRow(ProblemType) != nullptr) {
        return InstructionFor(ProblemType, 0);
    }
    return InstructionFor(ProblemType, RandInt(clock, random) + RandInt(clock, random));
}

}  // namespace numerello
