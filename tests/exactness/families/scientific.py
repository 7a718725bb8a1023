"""Scientific notation: written out, read off, multiplied and divided."""

import sys
from fractions import Fraction

from judging import Exempt, Topic, ends_in, fails, texts
from families.percents import box, shown
from values import decimal, decimal_text, value, whole
from ways import LAST_DIGIT

LARGEST = sys.float_info.max
LARGEST_POWER, SMALLEST_POWER = 308, -323
SMALLEST_NORMAL = Fraction(sys.float_info.min)

BEYOND = "the number, or its power of ten, is too large for a Double: overflow"
BELOW = "the number, or its power of ten, is too small for a Double: few digits, or 0"
NO_BASE = "Division by 0 is illegal."


def power_of_ten(power):
    """A Double, 0 when it is too small for one, None when it is too large."""
    return None if power > LARGEST_POWER else 0.0 if power < SMALLEST_POWER else float(f"1e{power}")


def written_out(entered, answer):
    base, power = value(entered["boxes"][0]), int(entered["boxes"][1])
    scale = power_of_ten(power)
    if scale is None or abs(float(base) * scale) > LARGEST:
        return fails(answer, "overflow") or Exempt(BEYOND)
    side = "left" if power < 0 else "right"
    moved = f"Move the decimal point to the {side} {abs(power)} place(s):"
    if moved not in texts(answer):
        return f"this line is missing: {moved}"
    exact = base * Fraction(10) ** max(power, SMALLEST_POWER - 12)
    small = scale < SMALLEST_NORMAL or abs(exact) < SMALLEST_NORMAL
    return shown(answer, exact, float(base) * scale, "{}", BELOW if small else LAST_DIGIT)


def read_off(entered, answer):
    if not entered["problem"][-1].isdigit():
        return fails(answer, "format")
    number, power = value(entered["problem"]), 0
    while abs(number) >= 10:
        number, power = number / 10, power + 1
    while 0 < abs(number) < 1:
        number, power = number * 10, power - 1
    moved = decimal_text(number)
    side, sign = ("right", " preceded by a minus sign:") if power < 0 else ("left", "")
    return ends_in(answer, f"Move the decimal place to the {side} {abs(power)} time(s):", moved,
                   f"Then multiply by 10^number of places the decimal moved{sign}^",
                   f"{moved} * 10^{power}^")


def product(entered, answer):
    base1, power1, base2, power2 = entered["boxes"]
    return shown(answer, value(base1) * value(base2), float(base1) * float(base2),
                 f"{{}} * 10^{int(power1) + int(power2)}^")


def quotient(entered, answer):
    base1, power1, base2, power2 = entered["boxes"]
    if value(base2) == 0:
        return ends_in(answer, NO_BASE)
    return shown(answer, value(base1) / value(base2), float(base1) / float(base2),
                 f"{{}} * 10^{int(power1) - int(power2)}^")


def power(draws, longest):
    return draws.choice(["", "-"]) + whole(draws, longest)


def base(draws):
    return f"{draws.randint(1, 9)}.{draws.randint(0, 99):02}"


def hard_power(draws):
    odd = ["0", "-0", "-00000003", "0000000007", "308", "309", "-323", "-324", "-310", "9999999999",
           "-999999999"]
    return draws.choice([power(draws, 1)] * 20 + [power(draws, 2)] * 5 + [power(draws, 10)] + odd)


def hard_pair(draws):
    # The third box takes no point when it is typed; an example fills one in.
    filled = draws.choice([True, False])
    second = box(draws) if filled else power(draws, 9)
    return {"boxes": [box(draws), hard_power(draws), second, hard_power(draws)], "filled": filled}


def school_pair(draws):
    return {"boxes": [base(draws), power(draws, 1), base(draws), power(draws, 1)], "filled": True}


def hard_number(draws):
    odd = ["0", "0.00", "-0", ".5", "-.05", "00.01", "00100", "99999.99", "10", "-10", "1", "9.99",
           "5."]
    return {"problem": draws.choice(["", "-"]) + decimal(draws, 5) if draws.random() < 0.7
            else draws.choice(odd)}


TOPICS = [
    Topic(["Converting Scientific To Regular Notation"],
          lambda draws: {"boxes": [base(draws), power(draws, 1)]},
          lambda draws: {"boxes": [box(draws), hard_power(draws)]},
          written_out, {LAST_DIGIT: (0, 0.02), BEYOND: (0, 0.11), BELOW: (0, 0.11)}),
    Topic(["Converting Regular To Scientific Notation"],
          lambda draws: {"problem": decimal(draws, 4)}, hard_number, read_off),
    Topic(["Multiplying Scientific Notation"], school_pair, hard_pair, product,
          {LAST_DIGIT: (0, 0.003)}),
    Topic(["Dividing Scientific Notation"], school_pair, hard_pair, quotient,
          {LAST_DIGIT: (0.03, 0.015)}),
]
