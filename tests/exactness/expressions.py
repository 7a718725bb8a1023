"""Expressions as they are typed: the parts that the families put together.

`number` always draws the text of a number.
"""


def small(draws):
    return str(draws.choice([draws.randint(0, 12), draws.randint(1, 12), draws.randint(1, 20)]))


def long(draws):
    return draws.choice([str(draws.randint(10000, 99999)), str(draws.randint(0, 99999)),
                         str(draws.randint(1, 12)), "0", "99999", "00012", "1", "00000"])


def small_decimal(draws):
    return small(draws) if draws.random() < 0.8 else f"{draws.randint(0, 9)}.{draws.randint(1, 9)}"


def long_decimal(draws):
    return draws.choice([long(draws), long(draws), ".5", "0.0", ".00", "00.10",
                         f"{draws.randint(0, 99999)}.{draws.randint(0, 99)}",
                         f"0.{draws.randint(0, 9)}{draws.randint(0, 9)}",
                         f"99999.9{draws.randint(0, 9)}"])


def joined(draws, operators, item, most, minus=0.1, fewest=1):
    """Items with operators between them, some with a sign of their own."""
    text = "-" if draws.random() < minus else ""
    text += item()
    for _ in range(draws.randint(fewest, most) - 1):
        text += draws.choice(operators) + ("-" if draws.random() < minus / 2 else "") + item()
    return text


def fraction(draws, number):
    return number(draws) + "/" + number(draws)


def number_or_fraction(draws, number):
    return fraction(draws, number) if draws.random() < 0.3 else number(draws)


def power(draws):
    return "^" + draws.choice("2222330145")


def powered(draws, number):
    """A number with a power, over a number or not, or a fraction or a number."""
    kind = draws.random()
    if kind < 0.4:
        return number(draws) + power(draws)
    if kind < 0.5:
        return number(draws) + power(draws) + "/" + number(draws)
    return number_or_fraction(draws, number)


def school_settings(draws):
    """A log that is thinned has steps that are several; there the numbers stay exact."""
    if draws.random() < 0.3:
        return {"DetailLevel": draws.randint(2, 3)}
    return hard_settings(draws)


def hard_settings(draws):
    if draws.random() < 0.7:
        return {}
    return {"UseFractions": False, "RoundDigits": draws.randint(1, 5)}


def school(make, number, *more):
    """What draws a problem as it stands in a school book."""
    return lambda draws: {"problem": make(draws, number, *more), "settings": school_settings(draws)}


def hard(make, number, *more):
    return lambda draws: {"problem": make(draws, number, *more), "settings": hard_settings(draws)}
