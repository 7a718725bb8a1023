"""Sums of letters and roots with numbers before them: the numbers by the rules of numbers.

A value has a number for each product of powers, such as (("x", 2), ("y", 1)); () is no letter.
"""

from math import isqrt

from notation import Unreadable


def powers(one, other, sign=1):
    """The product of two products of powers, or their quotient."""
    exponents = dict(one)
    for letter, exponent in other:
        exponents[letter] = exponents.get(letter, 0) + sign * exponent
    return tuple(sorted((letter, exponent) for letter, exponent in exponents.items() if exponent))


def square_part(number):
    """What can be taken out from under a root, and what stays there."""
    outside = 1
    inside = 1
    factor = 2
    while factor ** 3 <= number:
        while number % factor ** 2 == 0:
            outside *= factor
            number //= factor ** 2
        if number % factor == 0:
            inside *= factor
            number //= factor
        factor += 1
    whole = isqrt(number)
    return (outside * whole, inside) if whole ** 2 == number else (outside, inside * number)


class Spread:
    """Rules for notation.worked, made of those for numbers."""

    def __init__(self, rules):
        self.rules = rules

    def exactly(self):
        return Spread(self.rules.exactly())

    def number(self, digits):
        return {(): self.rules.number(digits)}

    def letter(self, name):
        return {((name, 1),): self.rules.number("1")}

    def root(self, value):
        above, below = value[()]
        if below != 1 or not isinstance(above, int):
            raise Unreadable("a root of no whole number")
        outside, inside = square_part(above)
        under = (("~", inside),) if inside > 1 else ()
        return {under: self.rules.number(str(outside))}

    def each(self, work, value):
        return {letters: work(number) for letters, number in value.items()}

    def negative(self, value):
        return self.each(self.rules.negative, value)

    def bracket(self, value):
        return self.each(self.rules.bracket, value)

    def gathered(self, terms):
        """One number for each product of letters."""
        rows = {}
        for letters, number in terms:
            rows.setdefault(letters, []).append(number)
        return {letters: self.rules.sum(*row) if len(row) > 1 else row[0]
                for letters, row in rows.items()}

    def sum(self, *values):
        return self.gathered([term for value in values for term in value.items()])

    def multiplied(self, work, one, other):
        return self.gathered([self.term(work, first, second)
                              for first in one.items() for second in other.items()])

    def term(self, work, first, second):
        (letters, number), (others, factor) = first, second
        roots = [dict(each).get("~") for each in (letters, others)]
        if None in roots:
            return powers(letters, others), work(number, factor)
        outside, inside = square_part(roots[0] * roots[1])
        under = (("~", inside),) if inside > 1 else ()
        return under, work(work(number, factor), self.rules.number(str(outside)))

    def times(self, one, other):
        return self.multiplied(self.rules.times, one, other)

    def beside(self, one, other):
        return self.multiplied(self.rules.beside, one, other)

    def fraction(self, above, below):
        if len(below) != 1:
            raise Unreadable("a sum under a fraction line")
        (letters, divisor), = below.items()
        return {powers(over, letters, -1): self.rules.fraction(number, divisor)
                for over, number in above.items()}

    over = fraction

    def power(self, base, exponent):
        if len(base) == 1:
            (letters, number), = base.items()
            raised = tuple((letter, power * exponent) for letter, power in letters if exponent)
            return {raised: self.rules.power(number, exponent)}
        if exponent < 0:
            raise Unreadable("a sum under a fraction line")
        product = self.number("1")
        for _ in range(exponent):
            product = self.beside(product, base)
        return product

    def bars(self, value):
        return {(): self.rules.bars(value.get((), self.rules.number("0")))}

    def whole(self, value):
        return self.each(self.rules.whole, value)

    def rows(self, values):
        """The numbers before each product of letters."""
        rows = {}
        for value in values:
            for letters, number in value.items():
                rows.setdefault(letters, []).append(number)
        return rows

    def kept(self, number):
        return self.rules.kept(number)

    def summed(self, numbers):
        return self.rules.summed(numbers)
