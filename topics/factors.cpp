#include "topics/factors.h"

#include <cmath>

#include "core/number.h"
#include "core/text.h"

namespace numerello {

void ListMultiples(Problem& problem, std::string_view ValueText) {
    const std::string_view v = ValueText;
    StepLog& log = problem.log;
    log.Write(std::string(v), "");
    // The heading gives way to the first row and never shows: kept as it is.
    log.StepText[log.StepCount] = Text("The first ten multiples of ", v, ":");
    const double value = ToNumber(v);
    for (int row = 0; row <= 10; ++row) {
        const std::string k = WholeText(row);
        log.Write(Text(k, " * ", v, " = ", NumberText(Checked(value * row))),
                  Text("Multiply ", v, " by ", k, "."));
    }
}

bool ListFactors(Problem& problem, std::string& ValueText, bool Standalone) {
    StepLog& log = problem.log;
    if (Standalone) {
        log.Write(ValueText, "");
    }
    const std::int32_t value = ToInteger32(ToNumber(ValueText));
    ValueText = WholeText(value);
    if (value <= 0) {
        return false;
    }

    const std::string& n = ValueText;
    const std::int32_t limit = ToInteger32(std::sqrt(value));
    int pairs = 0;
    std::string low;
    std::string high;
    for (std::int32_t divisor = 1; divisor <= limit; ++divisor) {
        if (value % divisor != 0) {
            continue;
        }
        ++pairs;
        const std::string i = WholeText(divisor);
        const std::string q = WholeText(value / divisor);
        low += Text(i, ", ");
        if (q != i) {
            high = Text(q, ", ", high);
        }
        log.Write(Text(n, " = ", i, " * ", q),
                  Text(i, " and ", q, " are both factors of ", n,
                       " because they both divide evenly into ", n, "."));
    }
    const std::string factors = low + high;
    log.Write(Text("Factors of ", n, ": ", factors.substr(0, factors.size() - 2)),
              "All the numbers that divide evenly into another number are the factors of that "
              "number.");
    return pairs == 1;
}

void PrimeOrComposite(Problem& problem, std::string_view ValueText) {
    // The last line names the number as its factors leave it: 007 becomes 7.
    std::string v(ValueText);
    StepLog& log = problem.log;
    log.Write(v, "");
    if (ToInteger32(ToNumber(v)) < 1) {
        return;
    }
    log.Write(Text("To tell whether ", v, " is prime or composite, first calculate the factors of ",
                   v, ":"),
              "The number of factors a number has determines whether it is prime or composite.");
    const bool PrimeFlag = ListFactors(problem, v, false);
    if (v == "1") {
        log.Write(Text(v, " is not prime or composite because ", v,
                       " does not have two different factors."),
                  "The number 1 is unique because it has only one factor: 1.  Because it does not "
                  "fit the description of prime or composite numbers, 1 is neither prime nor "
                  "composite.");
    } else if (PrimeFlag) {
        log.Write(Text(v, " is PRIME because ", v, " has exactly two different factors."),
                  "A prime number has two factors, itself and 1.");
    } else {
        log.Write(Text(v, " is COMPOSITE because ", v, " has more than two different factors."),
                  "A composite number has more than two different factors.");
    }
}

void PrimeFactorization(Problem& problem, std::string_view ValueText) {
    const std::string_view v = ValueText;
    StepLog& log = problem.log;
    log.Write(std::string(v), "");
    log.Write(Text("The prime factorization of ", v, " is:"),
              "The prime factorization of a number is that number written as all prime numbers "
              "multiplied by each other.");

    double rest = ToNumber(v);
    std::string factors;
    // Beyond its root the rest is prime; as the last factor it would leave 1, which has no line.
    for (double divisor = 2; IsWhole(rest) && divisor * divisor <= std::fabs(rest); ++divisor) {
        while (std::fabs(rest) > divisor && IsWhole(rest / divisor)) {
            rest /= divisor;
            factors += NumberText(divisor) + "*";
            log.Write(factors + NumberText(rest),
                      Text("Extract all the prime numbers from ", v, "."));
        }
    }
    if (factors.empty()) {
        // Said of 0 and 1 as well: kept as it is.
        log.Write(Text(v, " is already a prime factor."),
                  Text("No prime numbers can be factored out of ", v, "."));
    }
}

}  // namespace numerello
