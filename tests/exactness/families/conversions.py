"""Conversions of length, weight and temperature on a typed line."""

import re
from dataclasses import dataclass
from functools import partial

import boxes
from judging import Topic, texts
from values import decimal, whole
from ways import ON_THE_WAY, TIE, verdict

SET = "as many places as are set"
RAW = None  # not rounded


@dataclass(frozen=True)
class Step:
    """One conversion: the two factors, and the places shown and handed on to a second step."""

    words: str
    times: str
    over: str
    places: object
    handed: object = RAW
    told: str = ""  # the factor, where the lines tell another one


INCHES_FEET = Step("{} inches = {} feet", "1", "12", 2, SET)
FEET_INCHES = Step("{} feet = {} inches", "12", "1", RAW)
YARDS_FEET = Step("{} yards = {} feet", "3", "1", RAW)
MILES_FEET = Step("{} miles = {} feet", "5280", "1", RAW)
FEET_YARDS = Step("{} feet = {} yards", "1", "3", RAW)
FEET_MILES = Step("{} feet = {} miles", "1", "5280", 5)
OUNCES_POUNDS = Step("{} oz = {} lb", "1", "16", SET, SET)
POUNDS_OUNCES = Step("{} lb = {} oz", "16", "1", SET, SET)
POUNDS_TONS = Step("{}lb = {} T", "1", "2000", 5, 5)
TONS_POUNDS = Step("{}T = {} lb", "2000", "1", SET, SET)

DIRECT = {
    "Inches To Feet": INCHES_FEET,
    "Feet To Inches": FEET_INCHES,
    "Feet To Yards": FEET_YARDS,
    "Feet To Miles": FEET_MILES,
    "Yards To Feet": YARDS_FEET,
    "Yards To Miles": Step("{} yards = {} miles", "1", "1760", 5),
    "Miles To Feet": MILES_FEET,
    "Miles To Yards": Step("{} miles = {} yards", "1760", "1", RAW),
    "Ounces To Pounds": OUNCES_POUNDS,
    "Pounds To Ounces": POUNDS_OUNCES,
    "Pounds To Tons": POUNDS_TONS,
    "Tons To Pounds": TONS_POUNDS,
    "Meters To Inches": Step("{} m = {} in", "39.37", "1", RAW),
    "Meters To Feet": Step("{} m = {} ft", "3.3", "1", RAW),
    "Kilometers To Miles": Step("{} km = {} mile(s)", "0.621", "1", RAW),
    "Inches To Meters": Step("{} in = {} m", "1", "39.37", SET),
    "Feet To Meters": Step("{} ft = {} m", "1", "3.3", SET),
    "Miles To Kilometers": Step("{} mile(s) = {} km", "1", "0.621", SET),
    "Grams To Pounds": Step("{} g = {} lb", "1", "454", 3),
    "Pounds To Grams": Step("{} lb = {} g", "454", "1", SET),
    "Grams To Ounces": Step("{} g = {} oz", "0.03524", "1", SET, told="0.035"),
    "Ounces To Grams": Step("{} oz = {} g", "28.375", "1", SET),
}
CHAINS = {
    "Inches To Yards": (INCHES_FEET, Step("{} feet = {} yards", "1", "3", SET),
                        "{} inches = {} yards"),
    "Inches To Miles": (INCHES_FEET, FEET_MILES, "{} inches = {} miles"),
    "Yards To Inches": (YARDS_FEET, FEET_INCHES, "{} yards = {} inches"),
    "Miles To Inches": (MILES_FEET, FEET_INCHES, "{} miles = {} inches"),
    "Ounces To Tons": (OUNCES_POUNDS, POUNDS_TONS, "{} oz = {} T"),
    "Tons To Ounces": (TONS_POUNDS, POUNDS_OUNCES, "{} T = {} oz"),
}
# The chains that round what the first step hands on.
ROUNDING = ("Inches To Yards", "Inches To Miles", "Ounces To Tons")


def converted(way, step, number):
    return number * way.number(step.times) / way.number(step.over)


def shown(way, number, places, digits):
    return way.text(number if places is RAW else
                    way.rounded(number, digits if places is SET else places))


def told(step, number):
    factor = step.told or (step.over if step.times == "1" else step.times)
    return f"({number}) by {factor}:"


def direct(step, entered, digits, way):
    result = converted(way, step, way.number(entered))
    yield told(step, entered)
    yield step.words.format(entered, shown(way, result, step.places, digits))


def chained(steps, entered, digits, way):
    first, second, summary = steps
    full = converted(way, first, way.number(entered))
    between = full if first.handed is RAW else way.carried(full, digits)
    yield told(first, entered)
    yield first.words.format(entered, shown(way, full, first.places, digits))
    handed = shown(way, full, first.handed, digits)
    result = shown(way, converted(way, second, between), second.places, digits)
    yield told(second, handed)
    yield second.words.format(handed, result)
    yield summary.format(entered, result)


def to_celsius(entered, digits, way):
    result = way.text(way.rounded((way.number(entered) - 32) * (way.number("5") / 9), digits))
    yield f"C = #5/9# * ({entered} - 32)"
    yield f"C = {result}"
    yield f"{entered}^o^ F = {result}^o^ C"


def to_fahrenheit(entered, digits, way):
    result = way.text(way.rounded(way.number(entered) * (way.number("9") / 5) + 32, digits))
    yield f"F = #9/5# * {entered} + 32"
    yield f"F = {result}"
    yield f"{entered}^o^ C = {result}^o^ F"


def sums(lines):
    """Equations in full; of the other lines what is to be multiplied or divided, and by what."""
    found = (re.search(r"\(\S+\) by \S+$|.*=.*", line) for line in lines)
    return [match.group(0) for match in found if match]


def judge(solution, entered, answer):
    problem = entered["problem"]
    if problem.endswith("."):
        unfinished = answer["failure"] == "format" and not answer["lines"]
        return None if unfinished else "no number ends in a point"
    if texts(answer)[0] != problem:
        return "this is not what was typed"
    digits = entered["settings"]["RoundDigits"]
    return verdict(partial(solution, problem, digits), sums(texts(answer)), answer)


def school(draws):
    return {"problem": decimal(draws, 3), "settings": boxes.settings(draws)}


def hard(draws):
    digits = "0123456789"
    form = draws.randrange(6)
    problem = (decimal(draws, 5) if form < 2 else
               f"{draws.randint(10000, 99999)}.{draws.randint(0, 99):02}" if form == 2 else
               "".join(draws.choices("0" + digits, k=draws.randint(1, 5))) if form == 3 else
               "." + "".join(draws.choices(digits, k=draws.randint(1, 2))) if form == 4 else
               draws.choice(["0", "0.0", "00000.00", "1", "99999.99", "0.01", "32", "31.99", "5280",
                             whole(draws, 5) + ".", "."]))
    return {"problem": problem, "settings": boxes.settings(draws)}


def topic(caption, solution, exempt):
    return Topic(["Converting " + caption], school, hard, partial(judge, solution), exempt)


TIES = {TIE: (0.025, 0.035)}
TOPICS = [topic(name, partial(direct, step), TIES) for name, step in DIRECT.items()]
TOPICS += [topic(name, partial(chained, steps),
                 {**TIES, ON_THE_WAY: (0.21, 0.16)} if name in ROUNDING else TIES)
           for name, steps in CHAINS.items()]
TOPICS += [topic("Fahrenheit To Celsius", to_celsius, TIES),
           topic("Celsius To Fahrenheit", to_fahrenheit, TIES)]
