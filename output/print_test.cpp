#include "output/print_test.h"

#include "output/print_line.h"

namespace numerello {

void PrintPracticeTest(const HeadingLines& heading, std::span<const std::string> TestLines,
                       Surface& Printer, Learner& learner) {
    PrintHeading(heading, Printer);
    PrintEmptyLine(Printer);
    for (const std::string& line : TestLines) {
        PrintWholeLine(line, Printer, false, learner);
    }
}

}  // namespace numerello
