"""Where the working ends because a number or a bracket becomes too long."""

import re
from itertools import product as cross
from math import lcm, prod

from coarse import EXACT
from judging import Exempt, texts
from notation import exact, shown, worked
from spread import Spread, powers
from trees import terms_of

BEYOND = "a whole number is beyond what it is kept in"
TERMS = "more than a hundred terms, or fifteen unlike ones, fail"


def judged_failure(answer):
    """Whether the next step of the last line makes a number or a bracket that is too long."""
    line = re.sub(r"[][]", "", texts(answer)[-1])
    if answer["failure"] == "overflow":
        return Exempt(BEYOND) if makes_long_number(line) else "an overflow without a long number"
    if answer["failure"] == "format" and makes_long_bracket(line):
        return Exempt(TERMS)
    return f"the failure {answer['failure']}"


def makes_long_bracket(line):
    """Whether two brackets that touch have more than a hundred products of terms, or fifteen unlike
    ones."""
    for pair in re.findall(r"\(([^()]*)\)(?=\(([^()]*)\))", line):
        trees = [shown(inside) for inside in pair]
        if prod(len(terms_of(tree)) for tree in trees) > 100:
            return True
        kinds = [worked(tree, Spread(EXACT)) for tree in trees]
        if len({powers(*letters) for letters in cross(*kinds)}) > 15:
            return True
    return False


def makes_long_number(line):
    """Whether a number comes near 2^31 at a fraction line, 2^15 in a sum of equal denominators,
    or what a Single can hold."""
    numbers = [exact(number) for number in re.findall(r"\d+\.?\d*(?:E\+\d+)?", line)]
    numbers += [int(base) ** int(power) for base, power in re.findall(r"(\d+)\^-?(\d+)\^", line)]
    fractions = re.findall(r"([\d.]+)/([\d.]+)", line)
    beneath = [int(below) for _, below in fractions if below.isdigit() and int(below)]
    counted = "/" in line or len(numbers) == 1
    return (counted and max(*numbers, lcm(*beneath) * max(numbers)) > 2 ** 31 or
            sum(sorted(numbers)[-2:]) > 2 ** 15 or max(numbers) ** 2 > 3.4e38)
