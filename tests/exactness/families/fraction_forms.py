"""Sums and products of fractions, and lowest terms."""

import re
from math import gcd

import expressions as ex
from judging import Exempt, Topic, texts
from limits import BEYOND
from notation import shown
from working import judged_working, settled

SINGLE = "a single fraction is not reduced"


def as_fractions(problem):
    """The typed line with its fractions marked, as each is worked before what joins them."""
    return re.sub(r"(\d+)/(-?\d+)", r"#\1/\2#", problem).replace("#/", "#{")


def judge_arithmetic(entered, answer):
    problem = entered["problem"]
    if re.fullmatch(r"-?\d+/-?\d+", problem) and answer["failure"] is None:
        as_typed = texts(answer) == [shown_alone(problem)]
        return Exempt(SINGLE) if as_typed else "a single fraction is not worked"
    # This topic works with fractions whatever the settings say.
    verdict, value = judged_working(shown(as_fractions(problem)), {}, answer)
    return settled({}, answer) if verdict is None and value is not None else verdict


def shown_alone(problem):
    """A fraction as its line shows it, with its sign before it."""
    above, below = problem.lstrip("-").split("/")
    negative = problem.startswith("-") != below.startswith("-")
    return ("-" if negative else "") + f"#{above}/{below.lstrip('-')}#"


def arithmetic(draws, number, most):
    operators = draws.choice(["+-", "+-", "*", "/", "*/", "+-*/"])

    def item():
        return ex.fraction(draws, number) if draws.random() < 0.85 else number(draws)

    return ex.joined(draws, operators, item, most, fewest=draws.choice([1] + [2] * 9))


def judge_lowest(entered, answer):
    right = lowest(entered["problem"])
    return None if texts(answer)[-1] == right else "the answer is " + right


def lowest(problem):
    """The last line on a fraction. One typed with zeros before it is written anew."""
    above, below = map(int, problem.split("/"))
    if below == 0:
        return "This is not valid because division by 0 is illegal."
    divisor = gcd(above, below)
    above, below = above // divisor, below // divisor
    if below == 1:
        return str(above)
    return "Already simplified." if f"{above}/{below}" == problem else f"#{above}/{below}#"


TOPICS = [
    Topic(["Fraction Arithmetic"], ex.school(arithmetic, ex.small, 4),
          ex.hard(arithmetic, ex.long, 5), judge_arithmetic,
          {SINGLE: (0.03, 0.03), BEYOND: (0, 0.18)}),
    Topic(["Simplifying Fractions"], ex.school(ex.fraction, ex.small),
          ex.hard(ex.fraction, ex.long), judge_lowest),
]
