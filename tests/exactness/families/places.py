"""The places of a number's digits: expanded notation, rounding to a place, comparing."""

from fractions import Fraction

from judging import Topic, ends_in, fails, texts
from values import decimal, decimal_text, half_away, value, whole

PLACES = ["one", "ten", "hundred", "thousand", "ten thousand", "hundred thousand", "million",
          "ten million", "hundred million", "billion"]
# A row of digits is broken once it is this long, from the ten thousands on.
ROW = 61
# The list of rounding, in its order: the places kept behind the point, negative before it.
KEPT = [-3, -2, -1, 0, 1, 2, 3]
ZERO_LABEL = (345, "0")
GREATER = "{0} is greater than {1} because {0} appears further right on a number line than {1}."
LESS = "{0} is less than {1} because {0} appears further left on a number line than {1}."
EQUAL = "{0} equals {1} because they both appear at the same location on a number line."


def expanded(entered, answer):
    rows = [""]
    digits = str(int(entered["problem"]))
    for place, digit in zip(range(len(digits) - 1, -1, -1), digits):
        if place < 5 and len(rows[0]) >= ROW and len(rows) == 1:
            rows.append("")
        rows[-1] += digit + " " + PLACES[place] + ("s" if digit != "1" else "")
        rows[-1] += ", " if place > 0 else ""
    if len(texts(answer)) != 1 + len(rows):
        return f"so many rows are to be written: {len(rows)}"
    return ends_in(answer, *((row, f"{entered['problem']} in expanded notation.") for row in rows))


def rounded(entered, answer):
    problem, choice = entered["problem"], entered["lists"][2]
    if choice < 0 or not problem[-1].isdigit() or "|" in problem:
        return fails(answer, "format")
    kept = KEPT[choice]
    exact = half_away(value(problem), kept) if kept >= 0 else \
        half_away(value(problem) / 10 ** -kept, 0) * 10 ** -kept
    shown = decimal_text(exact)
    if kept > 0:
        before, _, behind = shown.partition(".")
        shown = ("" if before == "0" else before) + "." + behind.ljust(kept, "0")
    if kept >= 0:
        return ends_in(answer, shown)
    return ends_in(answer, (shown, f"{problem} rounded to the nearest {PLACES[-kept]} is {shown}."))


def labels(small, large):
    """Where the number line names a number: the ticks of the two numbers, from left to right."""
    if small == large or small * large <= 0:
        ticks = [(250, small)] * (small < 0) + [(450, large)] * (large > 0)
    else:
        ticks = list(zip((217, 284) if large < 0 else (417, 484), (small, large)))
    return [ZERO_LABEL] + [(tick + 8 - 7 * len(str(number)), str(number))
                           for tick, number in ticks]


def compared(entered, answer):
    if not entered["problem"][-1].isdigit():
        return fails(answer, "format")
    a, b = map(int, entered["problem"].split(","))
    relation, reason = ((">", GREATER) if a > b else ("<", LESS) if a < b else ("=", EQUAL))
    drawn = [(mark["x"], mark["text"]) for mark in answer["drawing"] if "text" in mark]
    if sorted(drawn) != sorted(labels(min(a, b), max(a, b))):
        return f"the labels of the number line are wrong: {drawn}"
    return ends_in(answer, f"{a} ? {b}", (f"{a} {relation} {b}", reason.format(a, b)))


def chosen(draws, problem):
    return {"problem": problem, "lists": [-1, -1, draws.randrange(len(KEPT))]}


def near_a_tie(draws):
    kept = draws.choice(KEPT[:5])
    tie = (draws.randrange(10 ** draws.randint(1, 4)) + Fraction(1, 2)) * Fraction(10) ** -kept
    text = decimal_text(abs(tie + draws.choice([0, 0, Fraction(1, 100), -Fraction(1, 100)])))
    return {"problem": text, "lists": [-1, -1, KEPT.index(kept)]}


def hard_rounding(draws):
    if draws.random() < 0.4:
        return near_a_tie(draws)
    odd = draws.choice(["0", "0.00", "00150", ".5", ".45", "5.", "|5|", "99999999.99", "9.95"])
    entered = chosen(draws, odd if draws.random() < 0.2 else decimal(draws, 8))
    entered["lists"][2] = draws.choice([entered["lists"][2]] * 50 + [-1])
    return entered


def signed(draws, longest):
    return draws.choice(["", "-"]) + whole(draws, longest)


def hard_pair(draws):
    a, b = signed(draws, 8), signed(draws, 8)
    odd = ["0", "-0", "00", "-00000001", "99999999", "-99999999", "0" + a.strip("-")[:7], a]
    return {"problem": a + "," + draws.choice([b] * 8 + odd) + draws.choice([""] * 50 + [","])}


TOPICS = [
    Topic(["Expanded Notation"],
          lambda draws: {"problem": whole(draws, 6)},
          lambda draws: {"problem": draws.choice([whole(draws, 10).rjust(10, draws.choice("0129")),
                                                  whole(draws, 10), "0", "0000000000"])},
          expanded),
    Topic(["Rounding"], lambda draws: chosen(draws, decimal(draws, 4)), hard_rounding, rounded),
    Topic(["Comparing Values"],
          lambda draws: {"problem": signed(draws, 2) + "," + signed(draws, 2)}, hard_pair,
          compared),
]
