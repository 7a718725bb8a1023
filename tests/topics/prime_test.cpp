#include "tests/topics/exact.h"

namespace numerello {
namespace {

constexpr int kPrimeOrComposite = 85;
constexpr int kPrimeFactorization = 84;
constexpr int kLimit = 100000;

const std::string kFactorList =
    "All the numbers that divide evenly into another number are the factors of that number.";
const std::string kCount =
    "The number of factors a number has determines whether it is prime or composite.";

TEST(PrimeOrComposite, APrime) {
    const Log expected{
        {"7", ""},
        {"To tell whether 7 is prime or composite, first calculate the factors of 7:", kCount},
        {"7 = 1 * 7", "1 and 7 are both factors of 7 because they both divide evenly into 7."},
        {"Factors of 7: 1, 7", kFactorList},
        {"7 is PRIME because 7 has exactly two different factors.",
         "A prime number has two factors, itself and 1."}};
    EXPECT_EQ(LogOf(Solved(kPrimeOrComposite, "7")), expected);
}

TEST(PrimeOrComposite, AComposite) {
    const Log expected{
        {"6", ""},
        {"To tell whether 6 is prime or composite, first calculate the factors of 6:", kCount},
        {"6 = 1 * 6", "1 and 6 are both factors of 6 because they both divide evenly into 6."},
        {"6 = 2 * 3", "2 and 3 are both factors of 6 because they both divide evenly into 6."},
        {"Factors of 6: 1, 2, 3, 6", kFactorList},
        {"6 is COMPOSITE because 6 has more than two different factors.",
         "A composite number has more than two different factors."}};
    EXPECT_EQ(LogOf(Solved(kPrimeOrComposite, "6")), expected);
}

TEST(PrimeOrComposite, OneIsNeither) {
    const Log expected{
        {"1", ""},
        {"To tell whether 1 is prime or composite, first calculate the factors of 1:", kCount},
        {"1 = 1 * 1", "1 and 1 are both factors of 1 because they both divide evenly into 1."},
        {"Factors of 1: 1", kFactorList},
        {"1 is not prime or composite because 1 does not have two different factors.",
         "The number 1 is unique because it has only one factor: 1.  Because it does not fit the "
         "description of prime or composite numbers, 1 is neither prime nor composite."}};
    EXPECT_EQ(LogOf(Solved(kPrimeOrComposite, "1")), expected);
    EXPECT_EQ(LogOf(Solved(kPrimeOrComposite, "01")).back(), expected.back());
}

TEST(PrimeOrComposite, TheLastLineNamesTheNumberAsItsFactorsLeaveIt) {
    const Log log = LogOf(Solved(kPrimeOrComposite, "007"));
    ASSERT_EQ(log.size(), 5U);
    EXPECT_EQ(log[0].first, "007");
    EXPECT_EQ(log[1].first,
              "To tell whether 007 is prime or composite, first calculate the factors of 007:");
    EXPECT_EQ(log[2].first, "7 = 1 * 7");
    EXPECT_EQ(log[4].first, "7 is PRIME because 7 has exactly two different factors.");
}

TEST(PrimeOrComposite, ASquareIsComposite) {
    EXPECT_EQ(LogOf(Solved(kPrimeOrComposite, "4")).back().first,
              "4 is COMPOSITE because 4 has more than two different factors.");
    EXPECT_EQ(LogOf(Solved(kPrimeOrComposite, "9")).back().first,
              "9 is COMPOSITE because 9 has more than two different factors.");
}

TEST(PrimeOrComposite, AValueBelowOneHasItsProblemLineAlone) {
    for (const char* v : {"0", "000", "-7"}) {
        EXPECT_EQ(LogOf(Solved(kPrimeOrComposite, v)), (Log{{v, ""}}));
    }
}

TEST(PrimeOrComposite, FailuresKeepTheProblemLine) {
    ExpectFailure(ProblemOf(kPrimeOrComposite, "."), FailureKind::Format, {{".", ""}});
    ExpectFailure(ProblemOf(kPrimeOrComposite, "2147483648"), FailureKind::Overflow,
                  {{"2147483648", ""}});
}

/// The smallest prime factor of each number from 2, by a sieve.
const std::vector<int>& SmallestFactors() {
    static const std::vector<int> smallest = [] {
        std::vector<int> sieve(kLimit, 0);
        for (std::size_t prime = 2; prime < sieve.size(); ++prime) {
            if (sieve[prime] != 0) {
                continue;
            }
            for (std::size_t multiple = prime; multiple < sieve.size(); multiple += prime) {
                if (sieve[multiple] == 0) {
                    sieve[multiple] = static_cast<int>(prime);
                }
            }
        }
        return sieve;
    }();
    return smallest;
}

int SmallestFactor(int value) {
    return SmallestFactors()[static_cast<std::size_t>(value)];
}

std::string Verdict(int value) {
    const std::string v = std::to_string(value);
    if (value == 1) {
        return "1 is not prime or composite because 1 does not have two different factors.";
    }
    return SmallestFactor(value) == value
               ? v + " is PRIME because " + v + " has exactly two different factors."
               : v + " is COMPOSITE because " + v + " has more than two different factors.";
}

TEST(PrimeOrComposite, JudgesEveryNumberUpToTwoThousandAsTrialDoes) {
    for (int value = 1; value <= 2000; ++value) {
        EXPECT_EQ(LogOf(Solved(kPrimeOrComposite, std::to_string(value))).back().first,
                  Verdict(value));
    }
}

TEST(PrimeOrComposite, JudgesRandomNumbersAsTrialDoes) {
    const TypedTopic topic(kPrimeOrComposite);
    Draws draws(85);
    for (int i = 0; i < kRandomProblems; ++i) {
        const std::string v = draws.Digits(5);
        const int value = std::stoi(v);
        EXPECT_EQ(topic.LogFor(v).back().first, value == 0 ? v : Verdict(value));
    }
}

Log Factorization(const std::string& v, const std::vector<std::string>& lines) {
    Log log{{v, ""},
            {"The prime factorization of " + v + " is:",
             "The prime factorization of a number is that number written as all prime numbers "
             "multiplied by each other."}};
    for (const std::string& line : lines) {
        log.emplace_back(line, "Extract all the prime numbers from " + v + ".");
    }
    return log;
}

Log AlreadyPrime(const std::string& v) {
    Log log = Factorization(v, {});
    log.emplace_back(v + " is already a prime factor.",
                     "No prime numbers can be factored out of " + v + ".");
    return log;
}

Log LogOfFactorization(const std::string& v) {
    return LogOf(Solved(kPrimeFactorization, v));
}

TEST(PrimeFactorization, ALineForEachFactorTakenOut) {
    const Log expected{{"12", ""},
                       {"The prime factorization of 12 is:",
                        "The prime factorization of a number is that number written as all prime "
                        "numbers multiplied by each other."},
                       {"2*6", "Extract all the prime numbers from 12."},
                       {"2*2*3", "Extract all the prime numbers from 12."}};
    EXPECT_EQ(LogOfFactorization("12"), expected);
}

TEST(PrimeFactorization, WhatIsPrimeStaysWhole) {
    const Log expected{
        {"2", ""},
        {"The prime factorization of 2 is:",
         "The prime factorization of a number is that number written as all prime "
         "numbers multiplied by each other."},
        {"2 is already a prime factor.", "No prime numbers can be factored out of 2."}};
    EXPECT_EQ(LogOfFactorization("2"), expected);
    for (const char* v : {"0", "1", "3", "5", "97", "99991", "007"}) {
        EXPECT_EQ(LogOfFactorization(v), AlreadyPrime(v));
    }
}

TEST(PrimeFactorization, TheLastFactorHasNoLineOfItsOwn) {
    EXPECT_EQ(LogOfFactorization("4"), Factorization("4", {"2*2"}));
    EXPECT_EQ(LogOfFactorization("9"), Factorization("9", {"3*3"}));
    EXPECT_EQ(LogOfFactorization("8"), Factorization("8", {"2*4", "2*2*2"}));
    EXPECT_EQ(LogOfFactorization("30"), Factorization("30", {"2*15", "2*3*5"}));
    EXPECT_EQ(LogOfFactorization("99998"), Factorization("99998", {"2*49999"}));
    EXPECT_EQ(LogOfFactorization("-12"), Factorization("-12", {"2*-6", "2*2*-3"}));
    EXPECT_EQ(LogOfFactorization("-2"), AlreadyPrime("-2"));
}

TEST(PrimeFactorization, ThePowerOfTwoHasTheMostLines) {
    const Log log = LogOfFactorization("65536");
    ASSERT_EQ(log.size(), 17U);
    EXPECT_EQ(log[2].first, "2*32768");
    EXPECT_EQ(log.back().first, "2*2*2*2*2*2*2*2*2*2*2*2*2*2*2*2");
}

TEST(PrimeFactorization, NumbersWithDecimalsAreNotFactored) {
    for (const char* v : {"12.5", "2.5", ".5", "0.5", "12.05"}) {
        EXPECT_EQ(LogOfFactorization(v), AlreadyPrime(v));
    }
    EXPECT_EQ(LogOfFactorization("12.0"), Factorization("12.0", {"2*6", "2*2*3"}));
    EXPECT_EQ(LogOfFactorization(".0"), AlreadyPrime(".0"));
    EXPECT_EQ(LogOfFactorization("0012"), Factorization("0012", {"2*6", "2*2*3"}));
}

TEST(PrimeFactorization, TextThatIsNoNumberKeepsTheHeading) {
    ExpectFailure(ProblemOf(kPrimeFactorization, "."), FailureKind::Format, Factorization(".", {}));
}

/// Takes the smallest prime factor out until a prime is left.
Log FactorizationBySieve(const std::string& v, int value) {
    std::vector<std::string> lines;
    std::string factors;
    while (value > 1 && SmallestFactor(value) != value) {
        factors += std::to_string(SmallestFactor(value)) + "*";
        value /= SmallestFactor(value);
        lines.push_back(factors + std::to_string(value));
    }
    return lines.empty() ? AlreadyPrime(v) : Factorization(v, lines);
}

TEST(PrimeFactorization, FindsThePrimesOfEveryNumberUpToTwoThousand) {
    for (int value = 0; value <= 2000; ++value) {
        const std::string v = std::to_string(value);
        EXPECT_EQ(LogOfFactorization(v), FactorizationBySieve(v, value));
    }
}

TEST(PrimeFactorization, FindsThePrimesOfRandomNumbers) {
    const TypedTopic topic(kPrimeFactorization);
    Draws draws(84);
    for (int i = 0; i < kRandomProblems; ++i) {
        const TypedNumber v = DrawNumber(draws, 5, false);
        const bool whole = v.hundredths % 100 == 0;
        EXPECT_EQ(topic.LogFor(v.text),
                  whole ? FactorizationBySieve(v.text, static_cast<int>(v.hundredths / 100))
                        : AlreadyPrime(v.text));
    }
}

}  // namespace
}  // namespace numerello
