"""Polynomials: simplified, evaluated, and with negative exponents."""

import re
from fractions import Fraction
from math import gcd

import expressions as ex
from coarse import DECIMALS, FRACTIONS, PRODUCTS, SUMS, Coarse
from judging import Exempt, Topic, texts
from limits import BEYOND, TERMS
from notation import Exactly, Unreadable, exact, shown, typed, worked
from spread import Spread
from trees import factors, terms_of
from values import value as read_number
from working import OVER_0, PASSES, POWER_0, UNFINISHED, judged_working, settled

BRACKET = "a bracket of several terms at a fraction line stays"
EXACTLY = Spread(Coarse([]))
# Far from 0, so that no two polynomials of a sheet share their values there.
POINT = dict(zip("xyznab", (1000003, 90001, 8009, 999983, 70001, 60013)))
BROKEN_POINT = {"x": Fraction(-10007, 9)}


def value_at(point):
    """The value of a tree at a point, None where it has none."""
    def value(tree):
        try:
            return worked(tree, Exactly, point)
        except ZeroDivisionError:
            return None

    return value


def exact_to_the_end(entered, answer):
    return not answer["failure"] and entered["settings"].get("UseFractions", True)


def judge(entered, answer):
    problem = typed(entered["problem"])
    verdict, value = judged_working(problem, entered, answer, value_at(POINT))
    if verdict is None and value is not None and exact_to_the_end(entered, answer):
        broken = value_at(BROKEN_POINT)
        if broken(problem) != broken(shown(texts(answer)[-1])):
            return "the last line is another polynomial"
    if verdict == Exempt(DECIMALS) and rounded_once(entered, answer):
        return judge_form(answer)
    return judge_form(answer) if verdict is None and value is not None else verdict


def rounded_once(entered, answer):
    """Whether the last line is the exact polynomial with its numbers rounded."""
    try:
        problem, last = [worked(tree, EXACTLY) for tree in
                         (typed(entered["problem"]), shown(texts(answer)[-1]))]
    except Unreadable:
        return False
    places = entered["settings"]["RoundDigits"]
    right = {letters: round(Fraction(number), places)
             for letters, number in EXACTLY.whole(problem).items()}
    found = EXACTLY.whole(last)
    return all(right.get(letters, 0) == found.get(letters, 0) for letters in {**right, **found})


def judge_sorted(entered, answer):
    """As judge; the terms stand in decreasing order, too, but where a zero beside letters stays."""
    verdict = judge(entered, answer)
    if verdict is not None or answer["failure"]:
        return verdict
    degrees = [degree(term) for term in terms_of(shown(texts(answer)[-1]))]
    if None not in degrees and degrees != sorted(degrees, reverse=True):
        return "the terms are not in decreasing order"
    return None


def degree(term):
    """The exponent over the fraction line, None for a zero beside letters."""
    (letters, number), = EXACTLY.whole(worked(term, EXACTLY)).items()
    above = [dict([part]).get("x", 0) for part in letters]
    return max([0, *above]) if number else None


def judge_form(answer):
    """Whether the last line is a sum of unlike terms that are worked out."""
    lines = texts(answer)
    if "failure" in answer and answer["failure"]:
        return None
    if "(" in lines[-1]:
        if len(lines) > PASSES:
            return Exempt(UNFINISHED)
        stays = re.search(r"\)/|/\(|\)\^-|/[^#]*\(|\([^#]*/", lines[-1])
        return Exempt(BRACKET) if stays else "a bracket is left"
    kinds = []
    for term in terms_of(shown(lines[-1])):
        if not worked_out(term):
            return Exempt(UNFINISHED) if len(lines) > PASSES else "a term is not worked out"
        (letters, number), = EXACTLY.whole(worked(term, EXACTLY)).items()
        kinds += [letters] if number else []
    return None if len(set(kinds)) == len(kinds) else "like terms are left"


def worked_out(term):
    """Whether a term is one number, in lowest terms, with letters behind it."""
    above, below = factors(term)
    numbers = [[part for part in parts if part[0] == "number"] for parts in (above, below)]
    others = [part for part in above + below if part[0] not in ("number", "letter")]
    plain = all(part[0] == "power" and part[1][0] == "letter" for part in others
                if part != ("negative", ("number", "1")))
    if not plain or any(len(part) > 1 for part in numbers):
        return False
    over, under = [exact(part[0][1]) if part else 1 for part in numbers]
    return not (isinstance(over, int) and isinstance(under, int)) or gcd(over, under) == 1


def letter_term(draws, number, letters, negative):
    """A term of a polynomial; a share `negative` of the exponents is."""
    def power():
        return "^" + ("-" if draws.random() < negative else "") + draws.choice("222330145")

    letter = draws.choice(letters)
    count = number(draws) if draws.random() < 0.75 else ""
    return draws.choice([count + letter, count + letter, count + letter + power(),
                         count + letter + power(), number(draws),
                         number(draws) + "^" + draws.choice("222301"),
                         count + letter + power() + "/" + number(draws),
                         ex.fraction(draws, number)])


def negative_exponents(draws, number, most):
    return ex.joined(draws, "++--*", lambda: letter_term(draws, number, "x", 0.3), most)


def polynomial(draws, number, most, depth):
    def item():
        if depth and draws.random() < 0.35:
            return bracket(draws, number, depth)
        return letter_term(draws, number, "x", 0.02)

    return ex.joined(draws, "+++---*", item, most)


def bracket(draws, number, depth):
    inside, other = [polynomial(draws, number, 3, depth - 1) for _ in "12"]
    form = draws.choice(["({0})"] * 4 + ["{2}({0})"] * 4 + ["x({0})", "{2}x({0})", "({0})^2",
                        "({0})*({1})", "({0})*({1})", "({0})/{2}", "{2}/{3}({0})", "({0})x",
                        "({0})^0", "({0})^3"])
    return form.format(inside, other, number(draws), number(draws))


def judge_evaluated(entered, answer):
    problem = typed(entered["problem"])
    letters = list(dict.fromkeys(filter(str.isalpha, entered["problem"])))
    point = {letter: read_number(text) for letter, text in zip(letters, entered["answers"])}

    verdict, value = judged_working(problem, entered, answer, value_at(point))
    if verdict is None and value is not None:
        return settled(entered, answer)
    return verdict


def many_letters(draws, number, most, depth):
    def item():
        if depth and draws.random() < 0.2:
            inside = many_letters(draws, number, 3, depth - 1)
            form = draws.choice(["({0})", "{1}({0})", "x({0})", "({0})^2", "({0})*({1}+y)"])
            return form.format(inside, number(draws))
        count = number(draws) if draws.random() < 0.6 else ""
        letters = "".join(draws.sample("xyz", draws.randint(0 if count else 1, 2)))
        return count + letters + (ex.power(draws) if draws.random() < 0.4 else "")

    return ex.joined(draws, "++--*", item, most)


def school_answer(draws):
    return draws.choice([str(draws.randint(-9, 9)), str(draws.randint(0, 12))] * 4 +
                        ["0.5", "-1.5"])


def hard_answer(draws):
    return draws.choice(["0", "-0", "99999", "-9999", "999999998", "-.5", "0.25", "12345.67", "007",
                         "5.", str(draws.randint(-99999, 99999)), "-1", "1.50", "3", "-12", "40"])


def answered(draw, answer):
    def entered(draws):
        return {**draw(draws), "answers": [answer(draws) for _ in range(3)]}

    return entered


TOPICS = [
    Topic(["Simplifying Polynomials"], ex.school(polynomial, ex.small, 4, 1),
          ex.hard(polynomial, ex.long, 4, 3), judge_sorted,
          {BRACKET: (0.03, 0.02), DECIMALS: (0.03, 0.02), PRODUCTS: (0.01, 0.02), SUMS: (0.02, 0.1),
           POWER_0: (0.01, 0.01), BEYOND: (0.01, 0.06), TERMS: (0, 0.01),
           UNFINISHED: (0.01, 0.01), OVER_0: (0, 0.01)}),
    Topic(["Negative Exponents"], ex.school(negative_exponents, ex.small, 4),
          ex.hard(negative_exponents, ex.long, 7), judge,
          {DECIMALS: (0.01, 0.02), SUMS: (0.01, 0.06), BEYOND: (0, 0.05), PRODUCTS: (0, 0.02)}),
    Topic(["Evaluating Polynomials"],
          answered(ex.school(many_letters, ex.small, 4, 1), school_answer),
          answered(ex.hard(many_letters, ex.long, 4, 2), hard_answer), judge_evaluated,
          {DECIMALS: (0.01, 0.02), FRACTIONS: (0, 0.02), SUMS: (0.03, 0.3), BEYOND: (0.01, 0.17),
           PRODUCTS: (0, 0.02), POWER_0: (0.01, 0.02)}),
]
