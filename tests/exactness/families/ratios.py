"""Ratios, reciprocals and mixed numbers."""

import math
from fractions import Fraction

from judging import Exempt, Topic, ends_in, fails
from values import decimal, whole

NEGATIVE = "a negative fraction is refused as no mixed number"
NO_INVERSE = "0 has a reciprocal with the denominator 0"
NOT_MIXED = "The numerator must be greater than the denominator to convert to mixed notation."
NO_FRACTION = "This is not valid because division by 0 is not allowed."
NO_MIXED = "This fraction isn't valid because division by zero is illegal."


def unfinished(entered, mark):
    """Whether a problem ends too early: with a mark, or without the mark that it needs."""
    return mark not in entered["problem"] or not entered["problem"][-1].isdigit()


def ratio(entered, answer):
    if unfinished(entered, ":"):
        return fails(answer, "format")
    a, b = entered["problem"].split(":")
    return ends_in(answer, f"The first number ({a}) becomes the numerator:",
                   f"The second number ({b}) becomes the denominator:",
                   (f"#{a}/{b}#", f"#{a}/{b}# is a {a} to {b} ratio."))


def reciprocal(entered, answer):
    typed = entered["problem"]
    if not typed[-1].isdigit():
        return fails(answer, "format")
    above, _, below = typed.partition("/")
    if not below:
        wrong = ends_in(answer, f"The reciprocal of {typed}, or #{typed}/1#, is:", f"#1/{typed}#")
    else:
        whole_one = f", or {below}" if above == "1" else ""
        wrong = ends_in(answer, f"The reciprocal of #{typed}# is:", f"#{below}/{above}#{whole_one}")
    return wrong or (None if int(above) else Exempt(NO_INVERSE))


def mixed(entered, answer):
    if unfinished(entered, "/"):
        return fails(answer, "format")
    typed = entered["problem"]
    above, below = map(int, typed.split("/"))
    if below == 0:
        return ends_in(answer, NO_MIXED)
    if above == below:
        return ends_in(answer, f"#{typed}# = 1")
    if above < below:
        wrong = ends_in(answer, NOT_MIXED)
        return wrong or (Exempt(NEGATIVE) if above <= -below else None)
    count, rest = divmod(above, below)
    result = f"{count} #{rest}/{typed.split('/')[1]}#" if rest else f"{count}"
    reason = "Keep the denominator of the original fraction:" if rest else \
        "Since the numerator is 0, the fraction portion is not necessary."
    heading = "The remainder of that division becomes the numerator of the fraction:"
    return ends_in(answer, f"{count} becomes the whole number.",
                   (heading, f"#{typed}# = {count} with a remainder of {rest}."),
                   f"{count} #{rest}/?#", reason, result)


def simplified(above, below, written):
    """The last lines of a simplification of a fraction, which stands `written`."""
    shared = math.gcd(above, below)
    fraction = Fraction(above, below)
    result = f"{fraction.numerator}"
    if fraction.denominator != 1:
        result = f"#{fraction.numerator}/{fraction.denominator}#"
    same = result == f"#{written}#"
    lines = [(f"{shared} can be divided evenly into the numerator and denominator:",
              f"{shared} is the largest whole number that divides evenly into both the numerator "
              "and denominator.")]
    return [f"#{written}# simplified:"] + (lines if shared > 1 else []) + [
        "Already simplified." if same else result if fraction.denominator == 1 else
        (result, f"#{written}# simplified: {result}")]


def unmixed(entered, answer):
    if unfinished(entered, "/"):
        return fails(answer, "format")
    first, fraction = entered["problem"].split("+")
    a, b = fraction.split("/")
    if int(b) == 0:
        return ends_in(answer, NO_FRACTION)
    product = int(first) * int(b)
    total = product + int(a)
    return ends_in(answer, f"{first} * {b} = {product}",
                   "Add the numerator of the fraction to the result:",
                   f"{product} + {a} = {total}", "Keep the denominator of the original fraction:",
                   f"#{total}/{b}#", *simplified(total, int(b), f"{total}/{b}"))


def small(draws):
    return str(draws.randint(1, 30))


def long(draws):
    odd = ["0", "1", "00000", "00001", "99999", "00012"]
    return draws.choice([whole(draws, 5)] * 12 + odd)


def number(draws):
    return draws.choice([long(draws)] * 4 + [decimal(draws, 5), decimal(draws, 5), ".5", "0.0"])


def fraction(draws):
    above, below = long(draws), long(draws)
    pair = [above, draws.choice([below] * 8 + [above, "0" + above[:4], str(int(above) // 7 + 1)])]
    return "/".join(pair) + draws.choice([""] * 60 + ["/"])


def hard_mixed(draws):
    return {"problem": draws.choice(["", "", "", "-"]) + fraction(draws)}


TOPICS = [
    Topic(["Ratios"], lambda draws: {"problem": small(draws) + ":" + small(draws)},
          lambda draws: {"problem": draws.choice([number(draws) + ":"] * 99 + [""])
                         + draws.choice([number(draws)] * 99 + ["."])}, ratio),
    Topic(["Reciprocals"],
          lambda draws: {"problem": draws.choice([small(draws) + "/", ""]) + small(draws)},
          lambda draws: {"problem": draws.choice([fraction(draws)] * 5 + [long(draws)])},
          reciprocal, {NO_INVERSE: (0, 0.16)}),
    Topic(["Fraction To Mixed Notation"],
          lambda draws: {"problem": f"{draws.randint(1, 99)}/{draws.randint(1, 12)}"},
          hard_mixed, mixed, {NEGATIVE: (0, 0.2)}),
    Topic(["Mixed To Fraction Notation"],
          lambda draws: {"problem": f"{small(draws)}+{small(draws)}/{small(draws)}"},
          lambda draws: {"problem": long(draws) + "+" + fraction(draws)}, unmixed),
]
