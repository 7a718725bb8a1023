#include "line_value.h"
#include "notation_cursor.h"

namespace numerello {

namespace {

/// Works typed characters while it reads them.
class TypedReader {
  public:
    TypedReader(int code, std::string_view typed, const Point& letters)
        : cursor(typed), letters(letters), fractionsFirst(code == 76) {}

    RootSum Whole() {
        const RootSum value = Sum();
        if (!cursor.AtEnd()) {
            cursor.Fail("nothing readable");
        }
        return value;
    }

  private:
    RootSum Sum() {
        RootSum sum = Term();
        while (cursor.IsAt("+-")) {
            sum = sum + Term();
        }
        return sum;
    }

    RootSum Term() {
        bool negative = cursor.TakeSigns();
        RootSum value = Operand();
        while (true) {
            const bool divided = cursor.Take('/');
            if (divided || cursor.Take('*')) {
                negative = cursor.TakeSigns() != negative;
                value = divided ? value / Operand() : value * Operand();
            } else if (AtFactor()) {
                value = value * Operand();
            } else {
                return negative ? -value : value;
            }
        }
    }

    bool AtFactor() const {
        return cursor.AtDigit() || cursor.AtLetter() || cursor.IsAt("(~") ||
               (cursor.IsAt("|") && !cursor.IsIn('|'));
    }

    /// A bracket, or a number with the letters and roots behind it.
    RootSum Operand() {
        if (fractionsFirst) {
            return WrittenFraction();
        }
        const bool closed = cursor.IsAt("(|");
        RootSum value = Factor();
        while (!closed && (cursor.AtLetter() || cursor.IsAt("~"))) {
            value = value * Factor();
        }
        return value;
    }

    RootSum WrittenFraction() {
        RootSum value = Digits();
        if (cursor.Take('/')) {
            const bool negative = cursor.TakeSigns();
            value = value / Digits();
            return negative ? -value : value;
        }
        return value;
    }

    RootSum Digits() {
        const std::string_view digits = cursor.TakeDigits();
        return digits.empty() ? throw std::invalid_argument("no number") : Rational::Of(digits);
    }

    RootSum Factor() {
        const bool number = cursor.AtDigit();
        const RootSum value = Bare();
        if (!cursor.Take('^')) {
            return value;
        }
        return PowerOf(RootSum(1), value, cursor.TakeExponent(), number && value == RootSum(0));
    }

    RootSum Bare() {
        if (cursor.AtLetter()) {
            return letters.at(cursor.Next());
        }
        if (cursor.Take('~')) {
            const RootSum radicand = Digits();
            cursor.Take('~');
            return RootSum::Root(static_cast<std::int64_t>(radicand.Plain().Numerator()));
        }
        if (cursor.Take('(')) {
            return Enclosed('(', ')');
        }
        if (cursor.Take('|')) {
            const RootSum value = Enclosed('|', '|');
            return value.Plain() < 0 ? -value : value;
        }
        return Digits();
    }

    RootSum Enclosed(char opening, char closing) {
        cursor.Open(opening);
        const RootSum value = Sum();
        cursor.Close();
        cursor.Expect(closing);
        return value;
    }

    NotationCursor cursor;
    const Point& letters;
    bool fractionsFirst;
};

}  // namespace

RootSum TypedValueOf(int code, std::string_view typed, const Point& letters) {
    return TypedReader(code, typed, letters).Whole();
}

}  // namespace numerello
