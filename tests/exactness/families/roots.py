"""Square roots and the products of prime numbers."""

import expressions as ex
from coarse import SUMS, Coarse
from judging import Topic, texts
from limits import BEYOND
from notation import typed, worked
from spread import Spread
from working import judged_working

RADICANDS = [0, 1, 2, 3, 4, 5, 6, 8, 9, 12, 16, 18, 20, 24, 25, 27, 32, 36, 45, 48, 50, 72, 98, 200]


def roots_value(tree):
    """The sum of roots, a number for each radicand that has no square in it."""
    exactly = Spread(Coarse([]))
    value = exactly.whole(worked(tree, exactly))
    return {radicand: number for radicand, number in value.items() if number}


def judge_roots(entered, answer):
    verdict, _ = judged_working(typed(entered["problem"]), entered, answer, roots_value)
    return verdict


def root(draws, number, radicand):
    return (number(draws) if draws.random() < 0.5 else "") + f"~{radicand(draws)}~"


def roots(draws, number, radicand, most):
    def item():
        return root(draws, number, radicand) if draws.random() < 0.8 else number(draws)

    return ex.joined(draws, "++--*", item, most)


def school_radicand(draws):
    return draws.choice(RADICANDS)


def prime_powers(number):
    """The prime factors of a number as they are written."""
    powers = []
    factor = 2
    while factor * factor <= number:
        count = 0
        while number % factor == 0:
            number //= factor
            count += 1
        if count:
            powers.append((factor, count))
        factor += 1
    if number > 1 or not powers:
        powers.append((number, 1))
    return "*".join(f"{prime}^{count}^" if count > 1 else str(prime) for prime, count in powers)


def judge_factors(entered, answer):
    verdict, value = judged_working(typed(entered["problem"]), entered, answer)
    if verdict is None and value is not None:
        return None if texts(answer)[-1] == prime_powers(value) else "not the prime factors"
    return verdict


def factors(draws, number, most):
    def item():
        return number(draws) + (ex.power(draws) if draws.random() < 0.3 else "")

    return ex.joined(draws, "*", item, most, 0)


def eight_digits(draws):
    return draws.choice([str(draws.randint(1, 99999999)), "0", "00000012", "99999989", "1",
                         "99980001", "67108864", *(ex.small(draws) for _ in range(6))])


TOPICS = [
    Topic(["Calculating Roots"], ex.school(roots, ex.small, school_radicand, 4),
          ex.hard(roots, ex.long, ex.long, 7), judge_roots,
          {BEYOND: (0, 0.01), SUMS: (0, 0.02)}),
    Topic(["Exponential Notation"], ex.school(factors, ex.small, 4),
          ex.hard(factors, eight_digits, 3), judge_factors,
          {BEYOND: (0.02, 0.3)}),
]
