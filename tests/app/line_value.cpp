#include "line_value.h"

#include "notation_cursor.h"

namespace numerello {

namespace {

/// Exact numbers.
struct Exactly {
    using Number = RootSum;

    static Number Of(std::string_view digits) { return Rational::Of(digits); }
    static Number Of(const Rational& value) { return value; }
    static bool IsZero(const Number& number) { return number == RootSum(0); }
    static Number Magnitude(const Number& number) {
        if (!number.IsPlain()) {
            throw std::overflow_error("bars around a root");
        }
        return number.Plain() < 0 ? -number : number;
    }
    static Number Root(const Number& number) {
        if (!number.IsPlain() || !(number.Plain().Denominator() == 1) || number.Plain() < 0) {
            throw std::overflow_error("a root of no whole number");
        }
        return RootSum::Root(static_cast<std::int64_t>(number.Plain().Numerator()));
    }
};

/// Numbers that may have been rounded.
struct Nearly {
    using Number = Range;

    const SlackOf& slackOf;

    Number Of(std::string_view digits) const {
        const Number exact = Of(Rational::Of(digits));
        const long double slack = slackOf(digits);
        return {exact.low - slack, exact.high + slack};
    }
    static Number Of(const Rational& value) {
        const long double number = static_cast<long double>(value.Numerator()) /
                                   static_cast<long double>(value.Denominator());
        return {number, number};
    }
    static bool IsZero(const Number& number) { return number.low == 0 && number.high == 0; }
    static Number Magnitude(const Number& number) {
        if (number.low >= 0) {
            return number;
        }
        return number.high <= 0 ? -number : Number{0, std::max(-number.low, number.high)};
    }
    static Number Root(const Number&) { throw std::overflow_error("a root of a rounded number"); }
};

/// Works a line while it reads it.
template <class Numbers>
class LineReader {
  public:
    using Number = typename Numbers::Number;

    LineReader(std::string_view text, const Point& letters, const Numbers& numbers)
        : cursor(text), letters(letters), numbers(numbers) {}

    Number Whole() {
        const Number value = Sum();
        if (!cursor.AtEnd()) {
            cursor.Fail("nothing readable");
        }
        return value;
    }

  private:
    Number Sum() {
        Number sum = Term();
        while (cursor.IsAt("+-")) {
            sum = sum + Term();
        }
        return sum;
    }

    Number Signed(bool negative, const Number& value) { return negative ? -value : value; }

    Number Term() {
        bool negative = cursor.TakeSigns();
        Number value = Run();
        bool divided = false;
        while (true) {
            if (cursor.Take('*')) {
                negative = cursor.TakeSigns() != negative;
                value = value * Run();
                divided = false;
            } else if (cursor.Take('{')) {
                negative = cursor.TakeSigns() != negative;
                value = value / Run();
            } else if (cursor.Peek() == '/' && (cursor.IsIn('(') || cursor.IsIn('|'))) {
                // In a bracket at a fraction line the marks of a further fraction are cleared.
                cursor.Take('/');
                negative = cursor.TakeSigns() != negative;
                value = value / Divisor();
                divided = true;
            } else if (divided && (cursor.AtDigit() || cursor.AtLetter() || cursor.IsAt("("))) {
                value = value * Run();
            } else {
                return Signed(negative, value);
            }
        }
    }

    Number Divisor() {
        const bool bracket = cursor.IsAt("(");
        Number value = Factor();
        while (!bracket && cursor.AtLetter()) {
            value = value * Factor();
        }
        return value;
    }

    bool RunEnds() const {
        return cursor.AtEnd() || cursor.IsAt("+-*{/)") || (cursor.IsAt("|") && cursor.IsIn('|')) ||
               (cursor.IsAt("~") && cursor.IsIn('~')) || (cursor.IsAt("#(") && cursor.IsIn('/'));
    }

    Number Run() {
        Number value = Factor();
        while (!RunEnds()) {
            value = value * Factor();
        }
        return value;
    }

    Number Factor() {
        const bool number = cursor.AtDigit() || cursor.IsAt("#");
        Number value = Bare();
        while (cursor.Take('^')) {
            const int exponent = cursor.TakeExponent();
            cursor.Expect('^');
            value =
                PowerOf(numbers.Of(Rational(1)), value, exponent, number && numbers.IsZero(value));
        }
        return value;
    }

    Number Bare() {
        if (cursor.AtDigit()) {
            return numbers.Of(cursor.TakeDigits());
        }
        if (cursor.AtLetter()) {
            return numbers.Of(letters.at(cursor.Next()));
        }
        if (cursor.IsAt("(")) {
            return Enclosed('(', ')');
        }
        if (cursor.IsAt("|")) {
            return numbers.Magnitude(Enclosed('|', '|'));
        }
        if (cursor.IsAt("~")) {
            return numbers.Root(Enclosed('~', '~'));
        }
        cursor.Expect('#');
        return Fraction();
    }

    Number Enclosed(char opening, char closing) {
        cursor.Expect(opening);
        cursor.Open(opening);
        const Number value = Sum();
        cursor.Close();
        cursor.Expect(closing);
        return value;
    }

    Number Fraction() {
        cursor.Open('#');
        Number value = Sum();
        cursor.Close();
        cursor.Open('/');
        while (!cursor.IsAt("#")) {
            // A bracket that does not stand behind the slash itself is worked from the left.
            if (cursor.IsAt("(")) {
                value = value * Factor();
            } else {
                cursor.Expect('/');
                value = value / Sum();
            }
        }
        cursor.Close();
        cursor.Expect('#');
        return value;
    }

    NotationCursor cursor;
    const Point& letters;
    const Numbers& numbers;
};

/// Emphasis is no part of the value.
std::string Unmarked(std::string_view line) {
    std::string text(line);
    std::erase_if(text, [](char c) { return c == '[' || c == ']' || c == ' '; });
    return text;
}

template <class Numbers>
typename Numbers::Number Read(std::string_view line, const Point& letters, const Numbers& numbers) {
    const std::string text = Unmarked(line);
    return LineReader<Numbers>(text, letters, numbers).Whole();
}

}  // namespace

RootSum ValueOf(std::string_view line, const Point& letters) {
    return Read(line, letters, Exactly());
}

Range RangeOf(std::string_view line, const Point& letters, const SlackOf& slackOf) {
    return Read(line, letters, Nearly{slackOf});
}

}  // namespace numerello
