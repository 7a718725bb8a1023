"""One number as a fraction, as a decimal and as a percent, and percents of a base."""

from fractions import Fraction

from judging import Exempt, Topic, ends_in, fails, texts
from families.ratios import simplified
from values import decimal, decimal_text, value, whole
from ways import LAST_DIGIT, TIE, Doubles, Exact

NO_FRACTION = "This fraction isn't valid because division by zero is illegal."
NO_PERCENT = "Division by 0 is illegal."
NO_BASE = "Division by 0 is not allowed."


def fraction_to_decimal(entered, answer):
    typed = entered["problem"]
    if not typed[-1].isdigit():
        return fails(answer, "format")
    if "/" not in typed:
        return ends_in(answer, f"#{typed}# is already in decimal form.")
    above, below = map(int, typed.split("/"))
    if below == 0:
        return ends_in(answer, NO_FRACTION)
    return shown(answer, Fraction(above, below), above / below, "{}")


def shown(answer, exact, double, form, reason=LAST_DIGIT):
    """Judges a last line that shows a number unrounded."""
    wrong = ends_in(answer, form.format(Exact.text(exact)))
    if wrong is not None and ends_in(answer, form.format(Doubles.text(double))) is None:
        return Exempt(reason)
    return wrong


def percent_lines(rounded):
    return [Exact.text(rounded), "Multiply by 100 and add a % symbol:",
            Exact.text(100 * rounded) + "%"]


def fraction_to_percent(entered, answer):
    typed, places = entered["problem"], entered["settings"]["RoundDigits"]
    if "/" not in typed or not typed[-1].isdigit():
        return fails(answer, "format")
    above, below = map(value, typed.split("/"))
    if below == 0:
        return ends_in(answer, NO_PERCENT)
    wrong = ends_in(answer, *percent_lines(Exact.rounded(above / below, places)))
    if wrong is None:
        return None
    double = Doubles.rounded(float(above) / float(below), places)
    lines = percent_lines(Exact.rounded(Fraction(double), places))
    return Exempt(TIE) if ends_in(answer, *lines) is None else wrong


def fraction_lines(number):
    """The lines from the moved point to the simplified fraction."""
    text = decimal_text(number)
    moves = len(text.partition(".")[2])
    digits = number * 10 ** moves
    written = f"{digits}/{10 ** moves}"
    return [f"{digits}", f"#{written}#"] + simplified(int(digits), 10 ** moves, written)


def decimal_to_fraction(entered, answer):
    typed = entered["problem"]
    if "/" in typed or typed.endswith("."):
        return fails(answer, "format")
    return ends_in(answer, *fraction_lines(value(typed)))


def decimal_to_percent(entered, answer):
    typed = entered["problem"]
    if typed.endswith("."):
        return fails(answer, "format")
    return ends_in(answer, decimal_text(100 * value(typed)) + "%")


def percent_to_decimal(entered, answer):
    typed = entered["problem"].rstrip("%")
    if typed.endswith("."):
        return fails(answer, "format")
    return ends_in(answer, decimal_text(value(typed) / 100))


def percent_to_fraction(entered, answer):
    typed = entered["problem"].rstrip("%")
    if typed.endswith("."):
        return fails(answer, "format")
    text = decimal_text(value(typed) / 100)
    if texts(answer)[2] != text:
        return f"the decimal is to be {text}"
    return ends_in(answer, *fraction_lines(value(text)))


def amount_of_base(entered, answer):
    amount, percent, _, base = entered["boxes"]
    if not percent:
        if value(base) == 0:
            return ends_in(answer, NO_BASE)
        a, b = value(amount), value(base)
        return shown(answer, a / b * 100, float(a) / float(b) * 100, "N = {}%")
    n = value(percent)
    if not amount:
        b = value(base)
        return shown(answer, n / 100 * b, float(n) / 100 * float(b), "{} = amount")
    if n == 0:
        return ends_in(answer, NO_BASE)
    a = value(amount)
    return shown(answer, 100 * a / n, 100 * float(a) / float(n), "base = {}")


def small(draws):
    return str(draws.randint(1, 40))


def number(draws):
    odd = ["0", "0.00", ".5", ".05", "007", "99999.99", "00000.01", "1", "100", "0.50", "5."]
    return draws.choice([decimal(draws, 5)] * 20 + odd)


def fraction(draws, part):
    above, below = part(draws), part(draws)
    odd = ["0", "00000", "1", "3", "7", "8", "64", "99999", above]
    text = above + "/" + draws.choice([below] * 12 + odd)
    return draws.choice([text] * 60 + [above, above + "/"])


def rounding(draws, problem):
    return {"problem": problem, "settings": {"RoundDigits": draws.randint(1, 5)}}


def filled(draws, draw):
    boxes = [draw(draws), draw(draws), "", draw(draws)]
    boxes[draws.choice([0, 1, 3])] = ""
    return {"boxes": boxes}


def box(draws):
    """A number of up to the ten characters that a box takes."""
    sign = draws.choice(["", "", "-"])
    odd = ["0", "0.00", "-0", ".00000001", "9999999999", "1", "100", "5.", "0000000005"]
    text = whole(draws, 10)
    point = draws.randint(0, len(text))
    broken = text[:point] + "." + text[point:]
    return draws.choice([(sign + text)[:10], (sign + broken)[:10]] * 9 + odd)


def plain(draws):
    return {"problem": decimal(draws, 2)}


def percent(draws):
    return {"problem": number(draws).rstrip(".") + draws.choice(["%", "%", "%", ""])}


TOPICS = [
    Topic(["Fraction To Decimal Notation"],
          lambda draws: {"problem": small(draws) + "/" + small(draws)},
          lambda draws: {"problem": fraction(draws, lambda draws: whole(draws, 5))},
          fraction_to_decimal, {LAST_DIGIT: (0.006, 0.006)}),
    Topic(["Fraction To Percent Notation"],
          lambda draws: rounding(draws, small(draws) + "/" + small(draws)),
          lambda draws: rounding(draws, fraction(draws, number)),
          fraction_to_percent, {TIE: (0.002, 0.002)}),
    Topic(["Decimal To Fraction Notation"], plain,
          lambda draws: {"problem": number(draws) + draws.choice([""] * 60 + ["/4"])},
          decimal_to_fraction),
    Topic(["Decimal To Percent Notation"], plain, lambda draws: {"problem": number(draws)},
          decimal_to_percent),
    Topic(["Percent To Decimal Notation"],
          lambda draws: {"problem": decimal(draws, 2) + "%"}, percent, percent_to_decimal),
    Topic(["Percent To Fraction Notation"],
          lambda draws: {"problem": decimal(draws, 2) + "%"}, percent, percent_to_fraction),
    Topic(["Amount = N% of Base"], lambda draws: filled(draws, small),
          lambda draws: filled(draws, box), amount_of_base, {LAST_DIGIT: (0.006, 0.012)}),
]
