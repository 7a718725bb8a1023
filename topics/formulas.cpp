#include "topics/formulas.h"

#include <string>

#include "core/number.h"
#include "core/text.h"
#include "topics/asked.h"

namespace numerello {

namespace {

/// product = factor * time, in the words of one topic.
struct FormulaWords {
    std::string_view product;
    std::string_view factor;
    std::string_view formula;
    std::string_view formulaNote;
    std::string_view divideByFactor;
    std::string_view solveForFactor;
    std::string_view solveForProduct;
};

constexpr std::string_view kTime = "time";

constexpr FormulaWords kWork{"work",
                             "rate",
                             "work = rate * time",
                             "This is the formula for calculating work, rate, and time.",
                             "Divide both sides by rate.",
                             "Solve for rate.",
                             "Solve for work by multiplying."};

constexpr FormulaWords kDistance{"distance",
                                 "speed",
                                 "distance = speed * time",
                                 "This is the formula for calculating distance, speed, and time.",
                                 "Divide both sides by speed.",
                                 "Solve for speed.",
                                 "Solve for distance by multiplying."};

struct Quotient {
    std::string_view dividend;
    std::string_view divisor;
    std::string_view word;  ///< of the unknown
    std::string_view divideNote;
    std::string_view solveNote;
};

void SolveByDividing(Problem& problem, const Quotient& quotient) {
    StepLog& log = problem.log;
    log.Write(Text("#", quotient.dividend, "/", quotient.divisor, "# = ", quotient.word),
              std::string(quotient.divideNote));
    const double divisor = ToNumber(quotient.divisor);
    if (divisor == 0) {
        log.Write("Division by 0 is illegal.", "It is impossible to divide any number by 0.");
        return;
    }
    const double value = Divide(ToNumber(quotient.dividend), divisor);
    log.Write(Text(quotient.word, " = ", NumberText(Round(value, problem.settings.RoundDigits))),
              std::string(quotient.solveNote));
}

void SolveProduct(Problem& problem, const FormulaWords& words, std::string_view product,
                  std::string_view factor, std::string_view time) {
    StepLog& log = problem.log;
    log.Write(Text(words.product, " = ", OrAsked(product, words.product), ", ", words.factor, " = ",
                   OrAsked(factor, words.factor), ", time = ", OrAsked(time, kTime)),
              "");
    log.Write(std::string(words.formula), std::string(words.formulaNote));
    log.Write(Text(product, " = ", factor, " * ", time), "Substitute the given values.");
    if (factor == words.factor) {
        SolveByDividing(problem, {product, time, words.factor, "Divide both sides by time.",
                                  words.solveForFactor});
    } else if (time == kTime) {
        SolveByDividing(problem, {product, factor, kTime, words.divideByFactor, "Solve for time."});
    } else {
        const double value = Checked(ToNumber(factor) * ToNumber(time));
        log.Write(Text(words.product, " = ", NumberText(value)),
                  std::string(words.solveForProduct));
    }
}

}  // namespace

void WorkRateTime(Problem& problem, std::string_view Work, std::string_view Rate,
                  std::string_view Time) {
    SolveProduct(problem, kWork, Work, Rate, Time);
}

void DistanceSpeedTime(Problem& problem, std::string_view Distance, std::string_view Speed,
                       std::string_view Time) {
    SolveProduct(problem, kDistance, Distance, Speed, Time);
}

}  // namespace numerello
