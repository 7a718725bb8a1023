"""Sums, products and quotients of numbers, with powers, brackets and bars."""

import expressions as ex
from coarse import DECIMALS, FRACTIONS, PRODUCTS, SUMS
from judging import Topic
from limits import BEYOND
from notation import typed
from working import POWER_0, UNFINISHED, judged_working, settled


def judge(entered, answer):
    verdict, value = judged_working(typed(entered["problem"]), entered, answer)
    return settled(entered, answer) if verdict is None and value is not None else verdict


def arithmetic(draws, number, most):
    return ex.joined(draws, "++--**", lambda: ex.number_or_fraction(draws, number), most)


def powers(draws, number, most):
    return ex.joined(draws, "++--**", lambda: ex.powered(draws, number), most)


def bars(draws, number, most):
    return ex.joined(draws, "++--*", lambda: with_bars(draws, number), most)


def with_bars(draws, number):
    if draws.random() < 0.4:
        return ex.number_or_fraction(draws, number)
    inside = ex.joined(draws, "++--*", lambda: ex.number_or_fraction(draws, number), 3, 0.3)
    form = draws.choice(["|{}|"] * 8 + ["|{}|/{}", "|{}|/-{}"])
    return form.format(inside, number(draws))


def digit(draws):
    return str(draws.choice([0, 1, *range(1, 13)]))


def bracketed(draws, number, most, depth):
    def item():
        if depth and draws.random() < 0.4:
            return bracket(draws, number, depth)
        return ex.powered(draws, number)

    return ex.joined(draws, "++--**", item, most)


def bracket(draws, number, depth):
    inside = bracketed(draws, number, 3, depth - 1)
    form = draws.choice(["({0})"] * 10 + ["{1}({0})"] * 4 + ["({0})^2", "({0})^0", "({0})^3"] +
                        ["{1}/{2}({0})", "{1}^2({0})", "{1}/({0})", "({0})/{1}", "({0})/({2}-{1})"])
    return form.format(inside, number(draws), number(draws))


TOPICS = [
    Topic(["Arithmetic"], ex.school(arithmetic, ex.small_decimal, 4),
          ex.hard(arithmetic, ex.long_decimal, 8), judge,
          {DECIMALS: (0.02, 0.05), FRACTIONS: (0.01, 0.2), BEYOND: (0, 0.07), SUMS: (0.01, 0.05),
           PRODUCTS: (0, 0.02)}),
    Topic(["Absolute Values"], ex.school(bars, ex.small_decimal, 3),
          ex.hard(bars, ex.long_decimal, 5), judge,
          {DECIMALS: (0.02, 0.04), FRACTIONS: (0.01, 0.18), BEYOND: (0, 0.09), SUMS: (0.01, 0.04),
           PRODUCTS: (0, 0.01)}),
    Topic(["Calculating With Exponents"], ex.school(powers, ex.small, 4),
          ex.hard(powers, ex.long, 6), judge,
          {DECIMALS: (0.02, 0.02), BEYOND: (0.01, 0.1), SUMS: (0.01, 0.14), PRODUCTS: (0, 0.09)}),
    Topic(["Complex Arithmetic Expressions"], ex.school(bracketed, digit, 3, 1),
          ex.hard(bracketed, ex.long, 4, 4), judge,
          {DECIMALS: (0.02, 0.02), BEYOND: (0.02, 0.16), SUMS: (0.02, 0.11), PRODUCTS: (0.01, 0.06),
           POWER_0: (0.01, 0.01), UNFINISHED: (0.01, 0.01)}),
]
