#include "topics/conversion_sentences.h"

#include "core/number.h"
#include "core/text.h"

namespace numerello {

void WriteConversionLine(Problem& problem, const ConversionLine& line,
                         const ConversionNumbers& numbers) {
    const std::string withValue = Replace(line.text, "{v}", numbers.v);
    const std::string withStage = Replace(withValue, "{f}", numbers.f);
    problem.log.Write(Replace(withStage, "{r}", numbers.r), std::string(line.note));
}

void WriteProblemLine(Problem& problem, std::string_view ValueText) {
    problem.log.Write(std::string(ValueText), "");
}

std::string Convert(const Problem& problem, const ConversionArithmetic& arithmetic,
                    std::string_view ValueText) {
    const double value = ToNumber(ValueText);
    const double result = arithmetic.operation == ConversionArithmetic::Operation::Multiply
                              ? Checked(value * arithmetic.factor)
                              : Divide(value, arithmetic.factor);
    if (arithmetic.digits == kEveryDigit) {
        return NumberText(result);
    }
    const int places =
        arithmetic.digits == kLearnersDigits ? problem.settings.RoundDigits : arithmetic.digits;
    return NumberText(Round(result, places));
}

}  // namespace numerello
