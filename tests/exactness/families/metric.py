"""The ladders of meters and grams."""

from functools import partial

import boxes
from judging import Topic, texts
from ways import TIE, verdict

FACTORS = ("0.001", "0.01", "0.1", "1", "10", "100", "1000")
PREFIXES = ("m", "c", "d", "", "da", "h", "k")
PLACES = 7
VALUE = 4


def solution(unit, base, entered, way):
    number = entered["boxes"][VALUE - 1]
    start, end = entered["lists"]
    here, there = PREFIXES[start] + unit, PREFIXES[end] + unit
    result = way.number(number) * way.number(FACTORS[start]) / way.number(FACTORS[end])
    yield f"{number} {here} = ? {there}"
    yield f"To convert {number} {here} to {there}:"
    yield f"Multiply {number} by the number of {base} in a {here} ({FACTORS[start]})"
    yield f"Then divide by the number of {base} in a {there} ({FACTORS[end]}) "
    yield f"#{number} * {FACTORS[start]}/{FACTORS[end]}#"
    yield f"{number} {here} = {way.text(way.rounded(result, PLACES))} {there}"


def judge(unit, base, entered, answer):
    return verdict(partial(solution, unit, base, entered), texts(answer), answer)


def with_lists(draw):
    return lambda draws: {**draw(draws), "lists": draws.choices(range(len(FACTORS)), k=2)}


TOPICS = [Topic([caption], with_lists(boxes.school({VALUE})), with_lists(boxes.hard({VALUE})),
                partial(judge, unit, base), {TIE: (0.002, 0.002)})
          for caption, unit, base in (("Meter Conversions", "m", "meters"),
                                      ("Gram Conversions", "g", "grams"))]
