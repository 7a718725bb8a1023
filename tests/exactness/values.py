"""Exact numbers as they are typed and shown."""

import re
from fractions import Fraction

NUMBER = r"-?(?:\d+\.?\d*|\.\d+)"


def value(text):
    """The exact value of a decimal number as it is typed: "12", "-.5", "3."."""
    assert re.fullmatch(NUMBER, text), text
    return Fraction(text.rstrip(".") if not text.endswith(".") else text[:-1])


def whole(draws, longest):
    """A whole number of one to `longest` digits, its first digit not 0."""
    digits = draws.randint(1, longest)
    return str(draws.randrange(10 ** (digits - 1) if digits > 1 else 0, 10 ** digits))


def decimal(draws, longest, places=2):
    """A number of up to `longest` digits before the point, at most `places` behind it."""
    behind = draws.randint(0, places)
    text = whole(draws, longest)
    return text if behind == 0 else text + "." + "".join(draws.choices("0123456789", k=behind))


def half_away(number, places):
    """The number rounded to so many places, a tie away from 0."""
    scaled = abs(number) * 10 ** places
    units = int(scaled + Fraction(1, 2))
    return Fraction(units if number >= 0 else -units, 10 ** places)


def decimal_text(number):
    """A number that ends, in full: no zero behind the last digit, no point without a digit."""
    places = 0
    while (number * 10 ** places).denominator != 1:
        places += 1
        assert places < 400, number
    digits = str(abs(int(number * 10 ** places))).rjust(places + 1, "0")
    text = digits if places == 0 else digits[:-places] + "." + digits[-places:]
    return ("-" if number < 0 else "") + text
