"""The arithmetic of worked lines where it is not exact, as it is told.

A value is a pair, what stands over and under the line; they become one number in a sum.
"""

import struct
from fractions import Fraction
from functools import lru_cache

from notation import exact, plain

MOST_BELOW = 20001


PRODUCTS = "products past fifteen digits"
SUMS = "sums and coefficients are Singles"
FRACTIONS = "a decimal becomes a fraction as far as a Single tells"
DECIMALS = "decimals are rounded as they are written"


def single(value):
    """The nearest Single, as an exact number; OverflowError beyond the largest."""
    return plain(Fraction(struct.unpack("f", struct.pack("f", float(value)))[0]))


def double_text(value):
    """The number that the text of the nearest Double shows: fifteen digits."""
    return plain(Fraction(f"{float(value):.14e}"))


def single_text(value):
    """Whole numbers are shown as the Double that holds the Single, others with seven digits."""
    kept = single(value)
    return double_text(kept) if isinstance(kept, int) else plain(Fraction(f"{float(kept):.6e}"))


def product(one, other):
    """A Double with four places, unless that would leave 0."""
    value = double_text(float(one) * float(other))
    return plain(round(Fraction(value), 4)) or value


@lru_cache(10000)
def searched(value):
    """The first fraction that a Single cannot tell from the value to four places."""
    shown = single_text(value)
    if isinstance(shown, int):
        return shown
    kept = float(single(value))
    for below in range(1, MOST_BELOW):
        above = kept * below
        if single(round(above, 4)) == round(above):
            return plain(Fraction(round(above), below))
    raise AssertionError(value)


def common(values):
    """The sum in brackets: numerators and denominators are Singles."""
    values = [Fraction(single(value.numerator), value.denominator) for value in values] or [0]
    total = values[0]
    for value in values[1:]:
        total = Fraction(total + value)
        total = Fraction(single(total.numerator), single(total.denominator))
    return plain(Fraction(total))


class Coarse:
    """Rules for notation.worked. `kinds` are those of `KINDS` that are not exact here."""

    KINDS = {"products": PRODUCTS, "sums": SUMS, "fractions": FRACTIONS, "decimals": DECIMALS}

    def __init__(self, kinds, places=2):
        self.kinds = kinds
        self.places = places

    @staticmethod
    def exactly():
        return EXACT

    @staticmethod
    def number(digits):
        return (exact(digits), 1)

    @staticmethod
    def negative(value):
        return (-value[0], value[1])

    def times(self, one, other):
        multiplied = product if "products" in self.kinds else lambda a, b: a * b
        return tuple(map(multiplied, one, other))

    def beside(self, one, other):
        if "sums" not in self.kinds:
            return self.times(one, other)
        return tuple(single_text(single(a) * single(b)) for a, b in zip(one, other))

    def fraction(self, one, other):
        other = other[::-1]
        if "sums" in self.kinds and 1 not in (one[1], other[1]):
            return self.beside(one, other)
        return (one[0] * other[0], one[1] * other[1])

    over = fraction

    def power(self, base, exponent):
        raised = (1, 1)
        if "products" in self.kinds:
            raised = tuple(double_text(float(part) ** abs(exponent)) for part in base)
        else:
            for _ in range(abs(exponent)):
                raised = self.beside(raised, base)
        return raised if exponent >= 0 else raised[::-1]

    def bars(self, value):
        return (abs(self.whole(value)), 1)

    def bracket(self, value):
        if "sums" not in self.kinds:
            return value
        return tuple(single_text(part) if isinstance(part, int) else part for part in value)

    def sum(self, *values):
        return (self.summed([self.whole(value) for value in values]), 1)

    def summed(self, values):
        """The sum of whole terms. Those that are fractions are added exactly, but in brackets."""
        if "sums" not in self.kinds:
            return self.rounded(plain(Fraction(sum(values))))
        if "brackets" in self.kinds:
            return common(values)
        total = 0
        rest = 0
        for value in values:
            if isinstance(value, int) or "decimals" in self.kinds:
                total = single(total + single(value))
            else:
                rest += value
        return plain(Fraction(self.rounded(single_text(total)) + rest))

    def whole(self, value):
        """The one number of a pair."""
        above, below = value
        if below == 1 and "decimals" in self.kinds:
            return above
        ratio = plain(Fraction(above) / Fraction(below))
        if "decimals" in self.kinds:
            return self.rounded(ratio)
        if "fractions" in self.kinds and not (isinstance(above, int) and isinstance(below, int)):
            return searched(ratio)
        return ratio

    @staticmethod
    def rows(values):
        return {(): values}

    def kept(self, value):
        """The number of a term as it is written anew."""
        return self.rounded(single_text(value) if "sums" in self.kinds else value)

    def rounded(self, value):
        """The number that the text of the Single shows, scaled as a Double, half to even."""
        if "decimals" not in self.kinds:
            return value
        kept = float(single_text(value))
        return single_text(round(kept * 10 ** self.places) / 10 ** self.places)


EXACT = Coarse([])
