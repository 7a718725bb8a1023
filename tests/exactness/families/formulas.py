"""Formulas of three numbers, and proportions: one box is left empty."""

from functools import partial

import boxes
from judging import Exempt, Topic, texts
from values import value
from ways import LAST_DIGIT, verdict

ZERO_FACTOR = "Division by 0 is not allowed."
ZERO_DIVISOR = "Division by 0 is illegal."
NO_PROPORTION = "a proportion of nothing to nothing is worked all the same"
RATES = {"Work = Rate * Time": ("work", "rate", "time"),
         "Distance = Speed * Time": ("distance", "speed", "time")}
RATE_BOXES = (1, 2, 4)
PROPORTION_BOXES = (1, 2, 3, 4)


def rate(words, given, digits, way):
    """All lines: whole = one * other."""
    unknown = given.index("")
    put = [number or word for number, word in zip(given, words)]
    yield ", ".join(f"{word} = {number or '?'}" for word, number in zip(words, given))
    yield "{} = {} * {}".format(*words)
    yield "{} = {} * {}".format(*put)
    numbers = [way.number(number) if number else None for number in given]
    if unknown == 0:
        yield f"{words[0]} = {way.text(numbers[1] * numbers[2])}"  # not rounded
        return
    divisor = 3 - unknown
    yield f"#{given[0]}/{given[divisor]}# = {words[unknown]}"
    if numbers[divisor] == 0:
        yield ZERO_DIVISOR
        return
    quotient = way.rounded(numbers[0] / numbers[divisor], digits)
    yield f"{words[unknown]} = {way.text(quotient)}"


def judge_rate(words, entered, answer):
    given = [entered["boxes"][box - 1] for box in RATE_BOXES]
    return verdict(partial(rate, words, given, entered["settings"]["RoundDigits"]), texts(answer),
                   answer)


def proportion(given, way):
    """All lines: #a/b# = #c/d#, so a * d = b * c."""
    a, b, c, d = (number or "x" for number in given)
    unknown = given.index("")
    yield f"#{a}/{b}# = #{c}/{d}#"
    if any(number and value(number) == 0 for number in (given[1], given[3])):
        yield ZERO_FACTOR
        return
    yield "Two fractions (ratios) are proportional if the cross products are equal."
    yield f"#{a}/{b}# = #{c}/{d}#"
    yield f"{a} * {d} = {b} * {c}"
    factor = given[3 - unknown]
    yield f"#{a} * {d}/[{factor}]# = #{b} * {c}/[{factor}]#"
    if value(factor) == 0:
        yield ZERO_FACTOR
        return
    one, other = (way.number(given[place]) for place in ((1, 2) if unknown in (0, 3) else (0, 3)))
    x = way.text(one * other / way.number(factor))
    yield f"x = {x}" if unknown in (0, 3) else f"{x} = x"
    yield "#{}/{}# = #{}/{}#".format(*(number or x for number in given))


def judge_proportion(entered, answer):
    given = entered["boxes"][:4]
    wrong = verdict(partial(proportion, given), texts(answer), answer)
    below = given.index("") in (1, 3)
    if not isinstance(wrong, str) and below and texts(answer)[-1].count("/0#"):
        return Exempt(NO_PROPORTION)
    return wrong


def one_empty(draws_of, places):
    return lambda draws: draws_of(set(places) - {draws.choice(places)})(draws)


TOPICS = [Topic([caption], one_empty(boxes.school, RATE_BOXES), one_empty(boxes.hard, RATE_BOXES),
                partial(judge_rate, words), {LAST_DIGIT: (0, 0.004)})
          for caption, words in RATES.items()]
TOPICS.append(Topic(["Proportions"], one_empty(boxes.school, PROPORTION_BOXES),
                    one_empty(boxes.hard, PROPORTION_BOXES), judge_proportion,
                    {LAST_DIGIT: (0.016, 0.018), NO_PROPORTION: (0, 0.017)}))
