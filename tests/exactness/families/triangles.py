"""Right triangles and similar triangles."""

from functools import partial

import boxes
from judging import Exempt, Topic, texts
from values import value
from ways import LAST_DIGIT, ON_THE_WAY, SIDES, TIE, verdict

RIGHT = {"a": 4, "b": 2, "c": 1}
FIRST = {"a": 3, "b": 2, "c": 1}
SECOND = {"a": 4, "b": 6, "c": 5}
WHOLE = [(3, 4, 5), (5, 12, 13), (8, 15, 17), (7, 24, 25), (20, 21, 29)]
ONE = [{4}, {5}, {6}]
MORE = [{4, 5}, {4, 6}, {5, 6}, {4, 5, 6}]
NO_TRIANGLE = "All sides of a triangle must be greater than zero."
NO_HYPOTENUSE = "Side c must be the longest side in a right triangle."
NO_SIDE = "All sides of a triangle must have a length greater than zero."


def at(entered, places):
    return {side: entered["boxes"][box - 1] for side, box in places.items()}


def decimals(text):
    return len(text.partition(".")[2])


def pythagoras(sides, digits, way):
    """All lines. The squares, their sum and their difference have the places of a square."""
    unknown = next(side for side in sides if not sides[side])
    yield ", ".join(f"{side} = {text or '?'}" for side, text in sides.items())
    yield "a^2^ + b^2^ = c^2^"
    put = {side: text or side for side, text in sides.items()}
    yield f"{put['a']}^2^ + {put['b']}^2^ = {put['c']}^2^"
    known = {side: way.number(text) for side, text in sides.items() if text}
    least = min(known.values())
    if unknown == "c":
        if least <= 0:
            yield NO_TRIANGLE
            return
    elif least <= 0 or known["c"] < max(known.values()):
        yield NO_HYPOTENUSE
        return
    places = 2 * max(decimals(sides[side]) for side in known)
    square = {side: way.rounded(number * number, places) for side, number in known.items()}
    shown = {side: way.text(number) for side, number in square.items()}
    if unknown == "c":
        both = way.rounded(square["a"] + square["b"], places)
        yield f"{shown['a']} + {shown['b']} = c^2^"
        yield f"{way.text(both)} = c^2^"
        yield f"{way.text(way.root(both, digits))} = c"
        return
    other = "b" if unknown == "a" else "a"
    rest = way.rounded(square["c"] - square[other], places)
    yield (f"a^2^ + {shown['b']} = {shown['c']}" if unknown == "a" else
           f"{shown['a']} + b^2^ = {shown['c']}")
    yield f"{unknown}^2^ = {way.text(rest)}"
    yield f"{unknown} = {way.text(way.root(rest, digits))}"


def judge_right(entered, answer):
    sides = at(entered, RIGHT)
    wrong = verdict(partial(pythagoras, sides, entered["settings"]["RoundDigits"]), texts(answer),
                    answer)
    known = [value(text) for text in sides.values() if text]
    flat = sides["c"] and known[0] == known[1] > 0
    return Exempt(SIDES) if flat and not isinstance(wrong, str) else wrong


def similar(first, second, digits, way):
    """All lines. What is left of the two triangles is in the proportion of the first given pair."""
    yield (", ".join(f"{side}1 = {text}" for side, text in first.items()) + ", "
           + ", ".join(f"{side}2 = {text}" for side, text in second.items()))
    if min(value(text) for text in first.values()) <= 0:
        yield NO_SIDE
        return
    yield "The sides of a similar triangle are equally proportioned:"
    given = next(side for side in second if second[side])
    if value(second[given]) <= 0:
        yield NO_SIDE
        return
    proportion = way.number(first[given]) / way.number(second[given])
    shown = way.text(way.rounded(proportion, digits))
    proportion = way.carried(proportion, digits)
    yield f"#{given}1/{given}2# = proportion"
    yield f"#{first[given]}/{second[given]}# = {shown}"
    yield f"#a1/a2# = #b1/b2# = #c1/c2# = {shown}"
    for side in "abc":
        if not second[side]:
            yield f"#{side}1/{side}2# = {shown}"
            yield f"#{first[side]}/{side}2# = {shown}"
            length = way.number(first[side]) / proportion
            yield f"{side}2 = {way.text(way.rounded(length, digits))}"


def impossible(first, second):
    """Whether the first is no triangle, or the second one's given sides do not fit it."""
    sides = {side: value(text) for side, text in first.items()}
    ratios = {value(text) / sides[side] for side, text in second.items() if text}
    return 2 * max(sides.values()) >= sum(sides.values()) or len(ratios) > 1


def judge_similar(entered, answer):
    first, second = at(entered, FIRST), at(entered, SECOND)
    wrong = verdict(partial(similar, first, second, entered["settings"]["RoundDigits"]),
                    texts(answer), answer)
    if isinstance(wrong, str) or texts(answer)[-1] == NO_SIDE or not impossible(first, second):
        return wrong
    return Exempt(SIDES)


def right(draws_of, in_order):
    """Two sides of a right triangle. `in_order` is the chance that no leg is longer than c."""
    def drawn(draws):
        unknown = draws.choice("abc")
        entered = draws_of({box for side, box in RIGHT.items() if side != unknown})(draws)
        typed = entered["boxes"]
        if draws.random() < 0.2:
            times = draws.choice([1, 2, 5, 10, 0.1, 0.25])
            for box, length in zip(RIGHT.values(), draws.choice(WHOLE)):
                typed[box - 1] = f"{length * times:g}" if typed[box - 1] else ""
        elif unknown != "c" and draws.random() < in_order:
            leg = RIGHT["b" if unknown == "a" else "a"] - 1
            long = RIGHT["c"] - 1
            typed[leg], typed[long] = sorted((typed[leg], typed[long]), key=float)
        return entered
    return drawn


def with_second(draws_of, given):
    return lambda draws: boxes.with_triangle(draws_of({1, 2, 3, *draws.choice(given)}))(draws)


TOPICS = [
    Topic(["Pythagorean Theorem"], right(boxes.school, 1), right(boxes.hard, 0.8), judge_right,
          {LAST_DIGIT: (0, 0.03), SIDES: (0.035, 0.03)}),
    Topic(["Similar Triangles"], with_second(boxes.school, ONE),
          with_second(boxes.hard, 4 * ONE + MORE), judge_similar,
          {ON_THE_WAY: (0.71, 0.38), TIE: (0.004, 0.002), LAST_DIGIT: (0, 0.002),
           SIDES: (0, 0.23)}),
]
