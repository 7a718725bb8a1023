"""Ways to work a problem: as mathematics has it, and as the program is known to go about it.

A solution is a function of a way that yields the lines of a problem. It is written once: a way says
what a number is (a fraction or a Double) and whether a number is rounded before it is used again.
"""

from fractions import Fraction
from math import isqrt

from judging import Exempt
from values import value

DIGITS = 15
SIDES = "a figure that cannot be is worked all the same"
ON_THE_WAY = "goes on with a rounded number"
TIE = "a Double beside a tie is rounded to the other side"
LAST_DIGIT = "a Double is off in the last of 15 digits"


def laid_out(negative, digits, exponent):
    """A number of these significant digits, the first of which stands for 10 to the exponent."""
    digits = digits.rstrip("0")
    if not digits:
        return "0"
    if exponent >= DIGITS or exponent < -DIGITS:
        text = digits[0] + ("." + digits[1:] if digits[1:] else "") + f"E{exponent:+03d}"
    elif exponent < 0:
        text = "0." + "0" * (-exponent - 1) + digits
    else:
        whole = exponent + 1
        text = digits[:whole].ljust(whole, "0") + ("." + digits[whole:] if digits[whole:] else "")
    return ("-" if negative else "") + text


class Exact:
    """Fractions; only what is shown is rounded."""

    number = staticmethod(value)

    @staticmethod
    def rounded(number, places):
        return round(number, places)

    @staticmethod
    def carried(number, _places):
        """A number that is used again, where it is told to be rounded."""
        return number

    @staticmethod
    def text(number):
        if number == 0:
            return "0"
        size = abs(number)
        exponent = len(str(size.numerator)) - len(str(size.denominator))
        if size < Fraction(10) ** exponent:
            exponent -= 1
        digits = str(round(size * Fraction(10) ** (DIGITS - 1 - exponent)))
        return laid_out(number < 0, digits, exponent + len(digits) - DIGITS)

    @staticmethod
    def root(number, places):
        """The square root, rounded."""
        scaled = number * 100 ** places
        below = isqrt(scaled.numerator // scaled.denominator)
        past = scaled - (below + Fraction(1, 2)) ** 2
        up = past > 0 or past == 0 and below % 2 == 1
        return Fraction(below + up, 10 ** places)


class RoundedOnTheWay(Exact):
    """Fractions, rounded wherever the program tells so."""

    @staticmethod
    def carried(number, places):
        return round(number, places)


class Doubles:
    """Doubles, rounded on the way: scaled, to the even neighbour, scaled back."""

    number = staticmethod(float)

    @staticmethod
    def rounded(number, places):
        scaled = number * 10.0 ** places
        if abs(scaled) >= 2.0 ** 52:  # a Double of that size has no places to be rounded
            return number
        return round(scaled) / 10 ** places

    carried = rounded

    @staticmethod
    def text(number):
        digits, exponent = f"{abs(number):.{DIGITS - 1}e}".split("e")
        return laid_out(number < 0, digits.replace(".", ""), int(exponent))

    @classmethod
    def root(cls, number, places):
        return cls.rounded(number ** 0.5, places)


def ties(solution):
    """Whether a number of the problem is to be rounded that lies in the middle."""
    seen = []

    class Watched(RoundedOnTheWay):
        @staticmethod
        def rounded(number, places):
            seen.append((number * 10 ** places).denominator == 2)
            return round(number, places)

    worked(solution, Watched)
    return any(seen)


def worked(solution, way):
    """The lines of a solution, and how it fails or None."""
    lines = []
    try:
        for line in solution(way):
            lines.append(line)
    except ZeroDivisionError:
        return lines, "division by zero"
    return lines, None


def verdict(solution, shown, answer):
    """Judges the last of the lines that are shown, and the failure."""
    if bool(answer["messages"]) != bool(answer["failure"]):
        return "a failure has a message"
    for way in (Exact, RoundedOnTheWay, Doubles):
        lines, failure = worked(solution, way)
        if failure == answer["failure"] and shown[len(shown) - len(lines):] == lines:
            if way is Exact:
                return None
            return Exempt(ON_THE_WAY if way is RoundedOnTheWay else
                          TIE if ties(solution) else LAST_DIGIT)
    return f"this should be {worked(solution, Exact)}"
