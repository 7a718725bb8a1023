#include "topics/formulas.h"

#include <string>

#include "core/number.h"
#include "core/text.h"
#include "topics/asked.h"
#include "topics/refusals.h"
#include "topics/results.h"

namespace numerello {

namespace {

/// product = factor * time, in the sentences of one topic. {p}, {f} and {t} are the parts, {r} is
/// the result.
struct FormulaWords {
    std::string_view product;
    std::string_view factor;
    std::string_view problemLine;
    std::string_view formula;
    std::string_view formulaNote;
    std::string_view factorResult;
    std::string_view factorNote;
    std::string_view divideByFactor;
    std::string_view productResult;
    std::string_view productNote;
};

constexpr std::string_view kTime = "time";

constexpr FormulaWords kWork{
    .product = "work",
    .factor = "rate",
    .problemLine = "work = {p}, rate = {f}, time = {t}",
    .formula = "work = rate * time",
    .formulaNote = "This is the formula for calculating work, rate, and time.",
    .factorResult = "rate = {r}",
    .factorNote = "Solve for rate.",
    .divideByFactor = "Divide both sides by rate.",
    .productResult = "work = {r}",
    .productNote = "Solve for work by multiplying."};

constexpr FormulaWords kDistance{
    .product = "distance",
    .factor = "speed",
    .problemLine = "distance = {p}, speed = {f}, time = {t}",
    .formula = "distance = speed * time",
    .formulaNote = "This is the formula for calculating distance, speed, and time.",
    .factorResult = "speed = {r}",
    .factorNote = "Solve for speed.",
    .divideByFactor = "Divide both sides by speed.",
    .productResult = "distance = {r}",
    .productNote = "Solve for distance by multiplying."};

/// One division, with what is said of it.
struct Quotient {
    std::string_view dividend;
    std::string_view divisor;
    std::string_view word;  ///< of the unknown
    std::string_view divideNote;
    std::string_view result;
    std::string_view resultNote;
};

void SolveByDividing(Problem& problem, const Quotient& quotient) {
    StepLog& log = problem.log;
    log.Write(Text("#", quotient.dividend, "/", quotient.divisor, "# = ", quotient.word),
              std::string(quotient.divideNote));
    const double divisor = ToNumber(quotient.divisor);
    if (divisor == 0) {
        RefuseDivisionByZero(log);
        return;
    }
    const double value = Divide(ToNumber(quotient.dividend), divisor);
    const std::string r = RoundedResult(problem, value);
    log.Write(Replace(quotient.result, "{r}", r), std::string(quotient.resultNote));
}

void SolveProduct(Problem& problem, const FormulaWords& words, std::string_view product,
                  std::string_view factor, std::string_view time) {
    StepLog& log = problem.log;
    std::string line = Replace(words.problemLine, "{p}", OrAsked(product, words.product));
    line = Replace(line, "{f}", OrAsked(factor, words.factor));
    log.Write(Replace(line, "{t}", OrAsked(time, kTime)), "");
    log.Write(std::string(words.formula), std::string(words.formulaNote));
    log.Write(Text(product, " = ", factor, " * ", time), "Substitute the given values.");
    if (factor == words.factor) {
        SolveByDividing(problem, {product, time, words.factor, "Divide both sides by time.",
                                  words.factorResult, words.factorNote});
    } else if (time == kTime) {
        SolveByDividing(problem, {product, factor, kTime, words.divideByFactor, "time = {r}",
                                  "Solve for time."});
    } else {
        const std::string r = NumberText(Checked(ToNumber(factor) * ToNumber(time)));
        log.Write(Replace(words.productResult, "{r}", r), std::string(words.productNote));
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
