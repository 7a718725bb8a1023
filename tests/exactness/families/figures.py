"""Circles, perimeters, areas and volumes."""

from dataclasses import dataclass
from functools import partial
from typing import Callable

import boxes
from judging import Exempt, Topic, texts
from values import value
from ways import LAST_DIGIT, SIDES, TIE, Exact, verdict

PI = "3.1415926"
NO_RADIUS = "The radius must be greater than zero."
NO_SIDE = "All sides must be greater than zero."
NO_LENGTH = "All lengths must be greater than zero."
NO_CIRCLE = "The radius of a circle must be greater than 0."
NO_DIAMETER = "The diameter of a circle must be greater than 0."
NO_TRIANGLE = "All sides of a triangle must be greater than zero."
NO_RECTANGLE = "All sides of a square/rectangle must be greater than zero."


@dataclass(frozen=True)
class Figure:
    """A figure's measures, what its sheet says of them, and the sum.

    `sum` gets what makes a number of a text, and the measures in the order of their boxes.
    """

    caption: str
    boxes: tuple
    problem: str
    placed: str
    result: str
    refusal: str  # "" where the program looks at no measure
    sum: Callable
    refused_early: bool = True  # before the measures are put into the formula


FIGURES = [
    Figure("Calculating Circumference Using Radius", (2,), "radius = {}",
           "Circumference = 2 ` * {}", "Circumference", NO_CIRCLE, lambda n, r: 2 * n(PI) * r),
    Figure("Calculating Circumference Using Diameter", (2,), "diameter = {}",
           "Circumference = ` * {}", "Circumference", NO_DIAMETER, lambda n, d: n(PI) * d),
    Figure("Calculating Diameter Using Radius", (2,), "radius = {}",
           "Diameter = 2 * {}", "Diameter", NO_CIRCLE, lambda n, r: 2 * r),
    Figure("Calculating Radius Using Diameter", (2,), "diameter = {}",
           "Radius = #{}/2#", "Radius", NO_DIAMETER, lambda n, d: d / 2),
    Figure("Perimeter of a Triangle", (3, 2, 1), "a = {}, b = {}, c = {}",
           "Perimeter = {} + {} + {}", "Perimeter", NO_TRIANGLE, lambda n, a, b, c: a + b + c,
           refused_early=False),
    Figure("Perimeter of a Square/Rectangle", (2, 1), "base = {}, height = {}",
           "Perimeter = 2 * ({} + {})", "Perimeter", NO_RECTANGLE, lambda n, b, h: 2 * (b + h),
           refused_early=False),
    Figure("Area of a Square/Rectangle", (2, 1), "base = {}, height = {}",
           "Area = {} * {}", "Area", "", lambda n, b, h: b * h),
    Figure("Area of a Parallelogram", (2, 1), "base = {}, height = {}",
           "Area = {} * {}", "Area", "", lambda n, b, h: b * h),
    Figure("Area of a Circle", (2,), "radius = {}",
           "Area = 3.1415926 * {}^2^", "Area", NO_RADIUS, lambda n, r: n(PI) * (r * r)),
    Figure("Area of a Triangle", (2, 1), "base = {}, height = {}",
           "Area = #1/2# * {} * {}", "Area", NO_SIDE, lambda n, b, h: n("1") / 2 * b * h),
    Figure("Area of a Trapezoid", (2, 1, 3), "height = {}, a = {}, b = {}",
           "Area = #1/2# * {} * ({} + {})", "Area", NO_SIDE,
           lambda n, h, a, b: n("1") / 2 * h * (a + b)),
    Figure("Volume of a Box/Cube", (2, 3, 1), "length = {}, width = {}, height = {}",
           "Volume = {} * {} * {}", "Volume", NO_SIDE, lambda n, l, w, h: l * w * h),
    Figure("Volume of a Cylinder", (2, 1), "radius = {}, height = {}",
           "Volume = 3.1415926 * {}^2^ * {}", "Volume", NO_LENGTH,
           lambda n, r, h: n(PI) * (r * r) * h),
    Figure("Volume of a Cone", (2, 1), "radius = {}, height = {}",
           "Volume = #1/3# * 3.1415926 * {}^2^ * {}", "Volume", "",
           lambda n, r, h: n("1") / 3 * n(PI) * (r * r) * h),
    Figure("Volume of a Pyramid", (2, 3, 1), "length = {}, width = {}, height = {}",
           "Volume = #1/3# * ({} * {} * {})", "Volume", NO_SIDE,
           lambda n, l, w, h: n("1") / 3 * (l * w * h)),
    Figure("Volume of a Sphere", (2,), "radius = {}",
           "Volume = #4/3# * 3.1415926 * {}^3^", "Volume", NO_RADIUS,
           lambda n, r: n("4") / 3 * n(PI) * (r * r * r)),
]


def solution(figure, measures, digits, way):
    yield figure.placed.format(*measures)
    result = figure.sum(way.number, *map(way.number, measures))
    yield f"{figure.result} = {way.text(way.rounded(result, digits))}"


def is_triangle(sides):
    return 2 * max(sides) < sum(sides)


def judge(figure, entered, answer):
    measures = [entered["boxes"][box - 1] for box in figure.boxes]
    shown = texts(answer)
    if shown[0] != figure.problem.format(*measures):
        return "these are not the measures"
    numbers = [value(measure) for measure in measures]
    none = min(numbers) <= 0
    if none and figure.refusal:
        placed = [] if figure.refused_early else [figure.placed.format(*measures)]
        told = placed + [figure.refusal]
        right = shown[-len(told):] == told and (not figure.refused_early or len(shown) == 2)
        return None if right and answer["failure"] is None else "this is no figure"
    about_pi = [line for line in shown if "equals about" in line]
    digits = entered["settings"]["RoundDigits"]
    rounded = Exact.text(Exact.rounded(value(PI), digits))
    if not all(f"(` equals about {rounded} or about #22/7#)" in line for line in about_pi):
        return "pi is not so rounded"
    wrong = verdict(partial(solution, figure, measures, digits), shown, answer)
    impossible = none or figure.refusal == NO_TRIANGLE and not is_triangle(numbers)
    return Exempt(SIDES) if impossible and not isinstance(wrong, str) else wrong


def draw(figure, draws_of):
    measured = draws_of(set(figure.boxes))
    return boxes.with_triangle(measured) if figure.refusal == NO_TRIANGLE else measured


EXEMPT = {TIE: (0.006, 0.006), LAST_DIGIT: (0.002, 0.022), SIDES: (0, 0.21)}
TOPICS = [Topic([figure.caption], draw(figure, boxes.school), draw(figure, boxes.hard),
                partial(judge, figure), EXEMPT)
          for figure in FIGURES]
