#include "operands.h"

namespace numerello {
namespace {

constexpr double kLeft = 80;
constexpr double kQuotientRow = 280;
constexpr double kDividendRow = 300;
constexpr double kFirstProduct = 320;
constexpr double kProductStep = 38;
constexpr double kDifferenceBelow = 19;
// ")" at 14 points, then 5.
constexpr double kBracket = 134.0 / 204 * 14 + 5;
constexpr Whole kLargest = 2147483647;

const char* const kSwitched =
    "The numbers will be switched because the number under the division bar must be larger than "
    "the number outside the division bar.  This type of problem can be entered in 'Arithmetic' in "
    "the 'Basic Operations' chapter.";
const char* const kOverflow =
    "Overflow!: The entered problem caused a data overflow.  Click the 'Erase' button and try "
    "again.";

/// A division as it has to be written.
struct Division {
    Division(const std::string& dividendText, const std::string& divisorText)
        : dividend(ValueOf(dividendText)),
          divisor(ValueOf(divisorText)),
          quotient(divisor == 0 ? "0" : Say(dividend / divisor)),
          remainder(divisor == 0 ? 0 : dividend % divisor),
          divisorText(divisorText),
          places(static_cast<int>(dividendText.size())),
          start(places - static_cast<int>(quotient.size())) {}

    /// What is divided for the quotient's digit k: the digits of the dividend until there, less
    /// what the quotient's digits until there have taken.
    Whole Partial(int k) const {
        const Whole until = dividend / PowerOfTen(places - 1 - start - k);
        const Whole before = until / 10;
        return divisor == 0 || k == 0 ? until : before % divisor * 10 + until % 10;
    }

    Whole Digit(int k) const { return quotient[static_cast<std::size_t>(k)] - '0'; }
    Whole Product(int k) const { return Digit(k) * divisor; }
    Whole Difference(int k) const { return Partial(k) - Product(k); }
    bool IsLast(int k) const { return k == static_cast<int>(quotient.size()) - 1; }
    Whole BroughtDown(int k) const { return DigitOf(dividend, places - 2 - start - k); }

    double X(int index) const {
        return kLeft + 20 * static_cast<double>(divisorText.size()) + kBracket + 20 * index;
    }

    std::string Note(int k) const {
        const std::string difference = Say(Difference(k));
        const std::string P = Say(Partial(k));
        std::string note =
            Say(Digit(k)) + " is the largest number that when multiplied by the divisor (" +
            divisorText + ") produces a product less than or equal to " + P + ".  Subtract " +
            Say(Product(k)) + " from " + P + " (" + difference + ")";
        if (!IsLast(k)) {
            return note + ", then bring down the " + Say(BroughtDown(k)) + ".";
        }
        if (difference == "0") {
            return note + ".  There is no remainder.";
        }
        return divisor == 0 ? note +
                                  ".  Since any number divided by 0 equals 0, the remainder isn't "
                                  "necessary."
                            : note + ".  Since there are no more numbers to bring down, " +
                                  difference + "  is the remainder.";
    }

    Whole dividend;
    Whole divisor;
    std::string quotient;
    Whole remainder;
    std::string divisorText;
    int places;
    int start;
};

/// The digits of a number end at this X, one cell each.
void ExpectNumberAt(const std::map<double, std::string>& row, double x, const std::string& number) {
    for (std::size_t i = 0; i < number.size(); ++i) {
        EXPECT_EQ(TextAt(row, x - 20 * static_cast<double>(i)),
                  std::string(1, number[number.size() - 1 - i]));
    }
}

/// The rows of the quotient's digit k.
void ExpectRows(const Frame& frame, const Division& division, int k) {
    SCOPED_TRACE("digit " + Say(k));
    const double x = division.X(division.start + k);
    const double y = kFirstProduct + kProductStep * k;
    const std::string product = Say(division.Product(k));
    const auto products = RowAt(frame, y);
    ExpectNumberAt(products, x, product);
    EXPECT_EQ(TextAt(products, x - 20 * static_cast<double>(product.size())), "-");
    EXPECT_EQ(products.size(), product.size() + 1);

    const auto differences = RowAt(frame, y + kDifferenceBelow);
    const std::string difference = Say(division.Difference(k));
    ExpectNumberAt(differences, x, difference);
    EXPECT_EQ(differences.size(), difference.size());

    const auto red = RowAt(frame, y + kDifferenceBelow, kRed);
    EXPECT_EQ(red.size(), division.IsLast(k) ? 0U : 1U);
    EXPECT_EQ(TextAt(red, x + 20), division.IsLast(k) ? "" : Say(division.BroughtDown(k)));
}

void ExpectFrame(const Frame& frame, const Division& division, const std::string& dividendText,
                 int digits, bool withRemainder) {
    const std::string shown = division.quotient.substr(0, static_cast<std::size_t>(digits));
    const auto quotient = RowAt(frame, kQuotientRow);
    EXPECT_EQ(Spelt(quotient), shown + (withRemainder ? "r" + Say(division.remainder) : ""));
    ExpectNumberAt(quotient, division.X(division.start + digits - 1), shown);
    EXPECT_EQ(SpeltAt(frame, kDividendRow), division.divisorText + dividendText);
    for (int k = 0; k < digits; ++k) {
        ExpectRows(frame, division, k);
    }
    for (const Mark& mark : frame.marks) {
        if (const auto* const text = std::get_if<TextMark>(&mark)) {
            EXPECT_LT(text->y, kFirstProduct + kProductStep * std::max(digits, 1));
        }
    }
}

void ExpectDivision(std::string dividendText, std::string divisorText) {
    SCOPED_TRACE(dividendText + " / " + divisorText);
    const Film film = Played(kDivision, dividendText, divisorText);
    Film atOnce(kDivision, dividendText, divisorText, false);
    atOnce.Play();
    const bool switched = ValueOf(divisorText) > ValueOf(dividendText);
    EXPECT_EQ(film.learner.messages,
              switched ? std::vector<std::string>{kSwitched} : std::vector<std::string>());
    if (switched) {
        std::swap(dividendText, divisorText);
    }
    const Division division(dividendText, divisorText);
    const int digits = static_cast<int>(division.quotient.size());
    ASSERT_EQ(film.frames.size(), static_cast<std::size_t>(digits) + 1);
    EXPECT_EQ(film.frames[0].note, "Divide " + dividendText + " by " + divisorText + ".");
    EXPECT_EQ(SpeltAt(film.frames[0], kQuotientRow), "");
    for (int k = 0; k < digits; ++k) {
        const Frame& frame = film.frames[static_cast<std::size_t>(k) + 1];
        EXPECT_EQ(frame.note, division.Note(k));
        EXPECT_EQ(frame.endY, 277);
        ExpectFrame(frame, division, dividendText, k + 1,
                    division.IsLast(k) && division.remainder != 0);
    }
    ASSERT_EQ(atOnce.frames.size(), 1U);
    EXPECT_EQ(atOnce.Last().note, division.Note(digits - 1));
    EXPECT_TRUE(atOnce.Last().finished);
    ExpectFrame(atOnce.Last(), division, dividendText, digits, true);
}

TEST(Division, OfRandomNumbersIsRightInEveryRow) {
    Operands operands(203);
    for (int i = 0; i < kRandomProblems;) {
        const std::string dividend = operands.Draw(10);
        const std::string divisor = operands.Draw(1 + operands.Below(10));
        const Whole larger = std::max(ValueOf(dividend), ValueOf(divisor));
        if (larger == 0 || larger > kLargest) {
            continue;
        }
        ExpectDivision(dividend, divisor);
        if (HasFailure()) {
            return;
        }
        ++i;
    }
}

TEST(Division, OfTheSmallestAndTheLargestNumbers) {
    ExpectDivision("1", "1");
    ExpectDivision("2147483647", "1");
    ExpectDivision("2147483647", "2147483647");
    ExpectDivision("1000000000", "10");
    ExpectDivision("007", "2");
    ExpectDivision("95", "07");
}

TEST(Division, ByZeroGivesZeroWithoutAMessage) {
    ExpectDivision("5", "0");
    ExpectDivision("9999999999", "0");
    EXPECT_EQ(Played(kDivision, "5", "0").Notes()[1],
              "0 is the largest number that when multiplied by the divisor (0) produces a product "
              "less than or equal to 5.  Subtract 0 from 5 (5).  Since any number divided by 0 "
              "equals 0, the remainder isn't necessary.");
}

TEST(Division, OfZeroIsSwitched) {
    const Film film = Played(kDivision, "0", "5");
    EXPECT_EQ(film.learner.messages, std::vector<std::string>{kSwitched});
    EXPECT_EQ(film.Notes()[0], "Divide 5 by 0.");
    ExpectDivision("0", "5");
}

TEST(Division, OfZeroByZeroTellsAndEndsWithItsFrame) {
    const std::vector<std::string> told{"Division by 0 is mathematically impossible."};
    const Film film = Played(kDivision, "0", "0");
    EXPECT_EQ(film.learner.messages, told);
    EXPECT_EQ(film.frames.size(), 1U);

    Film atOnce(kDivision, "0", "0", false);
    atOnce.Play();
    EXPECT_EQ(atOnce.learner.messages, told);
    ASSERT_EQ(atOnce.frames.size(), 1U);
    EXPECT_TRUE(atOnce.Last().finished);
    EXPECT_EQ(SpeltAt(atOnce.Last(), kQuotientRow), "0r0");
    EXPECT_EQ(atOnce.Last().note,
              "0 is the largest number that when multiplied by the divisor (0) produces a product "
              "less than or equal to 0.  Subtract 0 from 0 (0).  There is no remainder.");
}

TEST(Division, BeyondThirtyTwoBitsOverflows) {
    ExpectDivision("2147483647", "3");
    for (const bool stepwise : {true, false}) {
        Film film(kDivision, "2147483648", "3", stepwise);
        film.Play();
        EXPECT_EQ(film.failure, FailureKind::Overflow);
        EXPECT_TRUE(film.frames.empty());
        EXPECT_EQ(film.learner.messages, std::vector<std::string>{kOverflow});

        Film switched(kDivision, "3", "2147483648", stepwise);
        switched.Play();
        EXPECT_EQ(switched.learner.messages, (std::vector<std::string>{kSwitched, kOverflow}));
        EXPECT_TRUE(switched.frames.empty());
    }
}

}  // namespace
}  // namespace numerello
