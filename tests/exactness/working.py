"""Judges the lines of a worked expression, one after the other and against the problem."""

import re
from fractions import Fraction
from math import gcd

from judging import Exempt, texts
from limits import judged_failure
from notation import Exactly, shown, worked
from steps import reason_of_step
from trees import unit_powers

UNFINISHED = "more to work than there are passes"
PASSES = 20
POWER_0 = "a bracket or a letter to the power 0 is 1"
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
        reason = reason_of_step(lines[at - 1], lines[at], entered, value is not number_value)
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
