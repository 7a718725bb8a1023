#include "output/print_test.h"

#include "output/print_line.h"

namespace numerello {

void PrintPracticeTest(const HeadingLines& heading, std::span<const std::string> TestLines,
                       Surface& Printer, Learner& learner) {
    PrintHeading(heading, Printer);
    PrintEmptyLine(Printer);
    std::string_view above;
    for (const std::string& line : TestLines) {
        PartFractions(above, line, Printer);
        PrintWholeLine(line, Printer, false, learner);
        above = line;
    }
}

}  // namespace numerello
