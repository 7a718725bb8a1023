"""Judges the lines of a worked expression, one after the other and against the problem."""

import re
from fractions import Fraction
from itertools import product as cross
from math import gcd, lcm, prod

from coarse import Coarse
from judging import Exempt, texts
from notation import Exactly, Unreadable, exact, shown, worked
from spread import Spread, powers

BEYOND = "a whole number is beyond what it is kept in"
UNFINISHED = "more to work than there are passes"
PASSES = 20
POWER_0 = "a bracket or a letter to the power 0 is 1"
TERMS = "more than a hundred terms, or fifteen unlike ones, fail"
OVER_0 = "a fraction over 00 stays where no step divides"


def number_value(tree):
    """The value of a tree without letters, None where it has none."""
    try:
        return worked(tree, Exactly)
    except ZeroDivisionError:
        return None


def judged_working(problem, entered, answer, value=number_value):
    """The verdict on the lines of an answer, and the exact value of the problem's tree."""
    lines = [shown(line) for line in texts(answer)]
    right = value(problem)
    if right is None:
        return judged_division(problem, lines, entered, answer, value), None
    return judged_lines(right, lines, entered, answer, value), right


def judged_lines(right, lines, entered, answer, value):
    values = list(map(value, lines))
    if not lines or values[0] != right:
        return "the first line is not the problem"
    reasons = []
    for at in range(1, len(lines)):
        if values[at] == values[at - 1]:
            continue
        reason = reason_of_step(lines[at - 1], lines[at], entered, value)
        if reason is None:
            return f"line {at + 1} is not equal to the one before"
        reasons.append(reason)
    if answer["failure"]:
        return judged_failure(answer)
    same = values[-1] is not None and values[-1] in (right, rounded_once(right, entered))
    return Exempt(reasons[0]) if reasons and not same else None


def rounded_once(value, entered):
    """The value as decimals show it."""
    settings = entered.get("settings", {})
    if settings.get("UseFractions", True) or not isinstance(value, (int, Fraction)):
        return value
    return round(Fraction(value), settings.get("RoundDigits", 2))


def settled(entered, answer):
    """What is wrong with the last line of a problem that is a number in the end."""
    lines = texts(answer)
    decimals = not entered.get("settings", {}).get("UseFractions", True)
    shown_as = re.fullmatch(r"-?(?:#(\d+)/(\d+)#|\d+|(\d*\.\d+)|\d(?:\.\d+)?E\+\d+)", lines[-1])
    if not shown_as:
        return Exempt(UNFINISHED) if len(lines) > PASSES else "the last line is not worked out"
    above, below, decimal = shown_as.groups()
    if below and (decimals or gcd(int(above), int(below)) > 1 or below == "1"):
        return "the last line can be reduced"
    return "the last line is a decimal" if decimal and not decimals else None


def judged_division(problem, lines, entered, answer, value):
    if answer["failure"] == "division by zero":
        return None
    right = value(unit_powers(problem))
    if right is None:
        stays = not answer["failure"] and re.search(r"/0+[#)]", texts(answer)[-1])
        return Exempt(OVER_0) if stays else judged_failure(answer)
    verdict = judged_lines(right, list(map(unit_powers, lines)), entered, answer, value)
    return verdict or Exempt(POWER_0)


def unit_powers(tree):
    """The tree with 1 for each bracket, and for each letter, to the power 0."""
    if tree[0] == "power" and tree[1][0] in ("bracket", "letter") and tree[2] == 0:
        return ("number", "1")
    return tuple(unit_powers(part) if isinstance(part, tuple) else part for part in tree)


def reason_of_step(old, new, entered, value):
    """Why a line may differ from the one before, None where it may not."""
    settings = entered.get("settings", {})
    last = "fractions" if settings.get("UseFractions", True) else "decimals"
    ways = [["products"], ["sums"], [last], ["sums", last], ["sums", "products", last],
            ["brackets", "sums"], ["brackets", "products", "sums"]]
    for kinds in ways:
        rules = Coarse(kinds, settings.get("RoundDigits", 2))
        rules = rules if value is number_value else Spread(rules)
        if explained(old, new, rules):
            return Coarse.KINDS[kinds[-1]]
    return None


def alike(old, new, rules):
    """Whether a tree, worked by some rules, is worth what another one is."""
    try:
        rows, come = [rules.rows([number_of(term, rules) for term in terms_of(tree)])
                      for tree in (old, new)]
        return all(alike_rows(rows.get(letters, []), come.get(letters, []), rules)
                   for letters in {**rows, **come})
    except (OverflowError, Unreadable, ZeroDivisionError):
        return False


def number_of(term, rules):
    return rules.whole(worked(term, rules.exactly() if plain(term) else rules))


def plain(term):
    """Whether a term is one number with letters: such a number is taken as it stands."""
    for parts in factors(term):
        rest = [part for part in parts if part != ("negative", ("number", "1"))]
        kinds = [part[1][0] if part[0] == "power" else part[0] for part in rest
                 if part[0] != "number"]
        if set(kinds) - {"letter"} or len(rest) - len(kinds) > 1:
            return False
    return True


def alike_rows(old, new, rules):
    """Whether numbers add up to the same, perhaps without those that stand in both."""
    gone, come = unlike(old, new)
    pairs = [(old, new), (gone, come), (list(map(rules.kept, gone)), come)]
    return any(total(one, rules) == total(other, rules) for one, other in pairs)


def total(row, rules):
    return row[0] if len(row) == 1 else rules.summed(row)


def terms_of(tree):
    """The terms of a sum, and those of a product with a sum."""
    if tree[0] == "sum":
        return tree[1:]
    if tree[0] == "bracket":
        return terms_of(tree[1])
    above, below = factors(tree)
    sums = [part for part in above if part[0] == "bracket"]
    if not sums or len(above) == 1:
        return [tree]
    rest = [part for part in above if part[0] != "bracket"]
    return [quotient(rest + list(terms), below) for terms in cross(*map(terms_of, sums))]


def explained(old, new, rules):
    """Whether what a step has changed, wherever it stands, is worth the same by some rules."""
    old, new = (tree[1] if tree[0] == "bracket" else tree for tree in (old, new))
    if alike(old, new, rules):
        return True
    if old[0] == new[0] and old[0] in ("bars", "power") and old[2:] == new[2:]:
        return explained(old[1], new[1], rules)
    if "sum" in (old[0], new[0]):
        if old[0] != new[0]:
            return False
        gone, come = unlike(old[1:], new[1:])
        if len(gone) == len(come) and all(explained(*pair, rules) for pair in zip(gone, come)):
            return True
        return alike(("sum", *gone), ("sum", *come), rules)
    gone, come = map(list, zip(*map(unlike, factors(old), factors(new))))
    if [len(part) for part in gone + come] != [1, 0, 1, 0]:
        return alike(quotient(*gone), quotient(*come), rules)
    (gone, ), (come, ) = gone[0], come[0]
    return (gone, come) != (old, new) and explained(gone, come, rules)


def unlike(old, new):
    """What stands in one list alone."""
    gone = list(old)
    come = []
    for part in new:
        if part in gone:
            gone.remove(part)
        else:
            come.append(part)
    return gone, come


def factors(tree):
    """The factors over and under the line, a sign as the number -1."""
    kind = tree[0]
    if kind == "negative":
        above, below = factors(tree[1])
        return [("negative", ("number", "1"))] + above, below
    if kind in ("times", "beside"):
        (above, below), (more_above, more_below) = factors(tree[1]), factors(tree[2])
        return above + more_above, below + more_below
    if kind in ("fraction", "over"):
        (above, below), (more_below, more_above) = factors(tree[1]), factors(tree[2])
        return above + more_above, below + more_below
    if kind == "bracket" and tree[1][0] != "sum":
        return factors(tree[1])
    return [tree], []


def quotient(above, below):
    tree = multiplied(above)
    return ("fraction", tree, multiplied(below)) if below else tree


def multiplied(parts):
    tree = ("number", "1")
    for part in parts:
        tree = part if tree == ("number", "1") else ("beside", tree, part)
    return tree


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
        kinds = [worked(tree, Spread(Coarse([]))) for tree in trees]
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
