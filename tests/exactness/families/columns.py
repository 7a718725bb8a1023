"""Addition, subtraction, multiplication and division in columns, read off the finished sheet.

Each digit has to stand in its column of its row, and nothing may stand anywhere else. Both ways of
showing the work, all at once and step by step, are held against the same result.
"""

import re

from judging import Exempt, Topic, fails
from values import whole

CELL = 20
DIGIT_SIZE = 12
SWITCH = "The numbers will be switched because"
NO_DIVISION = "Division by 0 is mathematically impossible."
LARGEST_LONG = 2 ** 31 - 1
# The working of a multiplication that is drawn: so many digits, and no more.
MOST_CELLS = 100
# From the end of the divisor to the first digit under the bar: the arc, and 5 more.
ARC = 14 * 134 / 204 + 5

# What the reasons say of numbers, and when it is true.
SAID = [
    (r"Add (\d+) and (\d+) \((\d+)\)", lambda a, b, total: a + b == total),
    (r"\((\d+)\) ?, then add the carried remainder of 1 to the total \((\d+)\)",
     lambda a, total: a + 1 == total),
    (r"Subtract (\d+) from (\d+) \((\d+)\)", lambda a, b, rest: b - a == rest),
    (r"Multiply (\d+) by (\d+) \((\d+)\)", lambda a, b, product: a * b == product),
    (r"\((\d+)\) and add the remainder \((\d+)\) to get (\d+)",
     lambda a, b, total: a + b == total),
    (r"^(\d+) is the largest number .* divisor \((\d+)\) .* equal to (\d+)\.  Subtract (\d+) ",
     lambda digit, divisor, partial, product: digit * divisor == product
     and (divisor == 0 or 0 <= partial - product < divisor)),
]

CUT_OFF = "a product of more than a hundred digits of working is cut off"
BY_ZERO = "a division by 0 shows the quotient 0"
BEYOND = "a dividend beyond 32 bits: overflow"


def place(x, y):
    return round(x, 3), round(y, 1)


def misplaced(answer, rows):
    """What is wrong on the finished sheet with rows of a height, a last column and their cells."""
    right = {place(last - CELL * back, y): cell for y, last, cells in rows
             for back, cell in enumerate(reversed(cells)) if cell != " "}
    marks = [(place(mark["x"], mark["y"]), mark["text"]) for mark in answer["frames"][-1]["marks"]
             if mark.get("size") == DIGIT_SIZE]
    wrong = sorted(set(marks) ^ set(right.items()))
    if wrong:
        return f"these stand on the sheet or ought to, not both: {wrong}"
    return untrue(answer) if len(marks) == len(right) else "a digit stands twice at one place"


def untrue(answer):
    """A reason whose numbers do not agree."""
    for frame in answer["frames"]:
        for pattern, true in SAID:
            found = re.search(pattern, frame["note"])
            if found and not true(*map(int, found.groups())):
                return "this is not true: " + frame["note"]
    return None


def finished(entered, answer, frames):
    """What is wrong with the course of a work that has so many drawings, step by step."""
    if answer["failure"] is not None:
        return "no failure is to be expected"
    count = frames if entered["settings"]["mnuShowStep"] else 1
    ends = [frame["finished"] for frame in answer["frames"]]
    right = [False] * (count - 1) + [True]
    return None if ends == right else f"{count} drawings are to be made, not {len(ends)}"


def switched(answer, expected):
    told = any(message["text"].startswith(SWITCH) for message in answer["messages"])
    return None if told == expected else "the numbers are switched without need, or in silence"


def signed(sign, number, digits):
    """A lower number behind its sign, in as many columns as the longer number has."""
    return sign.ljust(1 + digits - len(number)) + number


def added(entered, answer):
    top, bottom = entered["boxes"]
    digits = max(len(top), len(bottom))
    last = 80 + CELL * digits
    rows = [(300, last, top), (317.2, last, signed("+", bottom, digits)),
            (338.4, last, str(int(top) + int(bottom)).zfill(digits))]
    return (finished(entered, answer, digits + 1) or switched(answer, False)
            or misplaced(answer, rows))


def subtracted(entered, answer):
    boxes = entered["boxes"]
    switch = int(boxes[1]) > int(boxes[0])
    top, bottom = reversed(boxes) if switch else boxes
    digits = max(len(top), len(bottom))
    last = 80 + CELL * digits
    rows = [(334.4, last, top), (351.6, last, signed("-", bottom, digits)),
            (372.8, last, str(int(top) - int(bottom)).zfill(digits))]
    return (finished(entered, answer, digits + 1) or switched(answer, switch)
            or misplaced(answer, rows))


def working(top, bottom):
    """The rows below the rule: the partial products, and their sum when there are several."""
    rows = [str(int(top) * int(digit)).zfill(len(top)) + "0" * place
            for place, digit in enumerate(reversed(bottom))]
    if len(rows) > 1:
        rows.append(str(int(top) * int(bottom)).zfill(len(rows[-1])))
    return rows


def multiplied(entered, answer):
    boxes = entered["boxes"]
    top, bottom = reversed(boxes) if len(boxes[0]) < len(boxes[1]) else boxes
    last = 150 + CELL * len(top)
    rows = [(350, last, top), (367.2, last, signed("x", bottom, len(top)))]
    work = working(top, bottom)
    left, y = MOST_CELLS, 389.4
    for index, row in enumerate(work):
        before_sum = index == len(work) - 2
        if left > 0:
            plus = "+" if before_sum and left > len(row) else ""
            rows.append((y, last, plus + row[-left:]))
        left -= len(row)
        y += 22 if before_sum else 18
    cut = left < 0
    if cut and entered["settings"]["mnuShowStep"]:
        wrong = None if len(answer["frames"]) == MOST_CELLS + 1 else "the work is to stop early"
    else:
        wrong = finished(entered, answer, 1 + MOST_CELLS - left)
    wrong = wrong or switched(answer, False) or misplaced(answer, rows)
    return wrong or (Exempt(CUT_OFF) if cut else None)


def division_rows(dividend, bar, quotient, divisor):
    """A product and a difference for each digit of the quotient, with what is brought down."""
    start = len(dividend) - len(quotient)
    partial = int(dividend[:start + 1])
    rows = []
    for step, digit in enumerate(quotient):
        product = int(digit) * int(divisor)
        column = bar + CELL * (start + step)
        brought = dividend[start + step + 1:start + step + 2]
        difference = f"{partial - product}{brought}"
        rows += [(320 + 38 * step, column, f"-{product}"),
                 (339 + 38 * step, column + CELL * len(brought), difference)]
        partial = int(difference)
    return rows


def divided(entered, answer):
    boxes = entered["boxes"]
    switch = int(boxes[1]) > int(boxes[0])
    dividend, divisor = reversed(boxes) if switch else boxes
    wrong = switched(answer, switch)
    if int(dividend) > LARGEST_LONG and int(divisor):
        return wrong or fails(answer, "overflow") or Exempt(BEYOND)
    quotient, rest = divmod(int(dividend), int(divisor)) if int(divisor) else (0, 0)
    by_step = entered["settings"]["mnuShowStep"]
    end = 80 + CELL * (len(divisor) - 1)
    bar = end + CELL + ARC
    last = bar + CELL * (len(dividend) - 1)
    rows = [(300, end, divisor), (300, last, dividend)]
    steps = list(str(quotient))
    if int(dividend) == 0:
        told = any(message["text"] == NO_DIVISION for message in answer["messages"])
        wrong = wrong or (None if told else "the learner is to be told that this is impossible")
    if int(dividend) == 0 and by_step:
        steps = []
    else:
        tail = ["r", str(rest)] if rest or not by_step else []
        rows.append((280, last + CELL * len(tail), steps + tail))
        rows += division_rows(dividend, bar, steps, divisor)
    wrong = wrong or finished(entered, answer, len(steps) + 1) or misplaced(answer, rows)
    return wrong or (None if int(divisor) else Exempt(BY_ZERO))


def shown(draws, boxes, by_step=0.5):
    return {"boxes": boxes, "settings": {"mnuShowStep": draws.random() < by_step}}


def school(draws):
    return shown(draws, [str(draws.randint(10, 9999)), str(draws.randint(2, 99))])


def long(draws):
    digits = draws.randint(1, 10)
    power = 10 ** (digits - 1)
    odd = ["0", "0" * digits, str(power), str(power - 1), "9" * digits, "1".zfill(digits),
           str(draws.randint(0, 99)).zfill(digits), "2147483647", "2147483648"]
    return draws.choice([whole(draws, 10)] * 12 + [whole(draws, 10).zfill(10)] * 2 + odd)


def hard(draws):
    first, second = long(draws), long(draws)
    boxes = [first, draws.choice([second] * 12 + [first, first.zfill(10), str(int(first))])]
    # Long products have a hundred drawings: few of them are asked for.
    return shown(draws, boxes, 0.5 if len(boxes[0]) * len(boxes[1]) < 25 else 0.05)


TOPICS = [
    Topic(["Addition"], school, hard, added, do="columns"),
    Topic(["Subtraction"], school, hard, subtracted, do="columns"),
    Topic(["Multiplication"], school, hard, multiplied, {CUT_OFF: (0, 0.27)}, do="columns"),
    Topic(["Division"], school, hard, divided, {BY_ZERO: (0, 0.19), BEYOND: (0, 0.16)},
          do="columns"),
]
