"""The kind of an angle."""

from judging import Topic, texts
from values import decimal, decimal_text, value


def judge(entered, answer):
    degrees = value(entered["problem"])
    if degrees == 0 or degrees > 180:
        right = texts(answer)[-1].startswith("An angle must have a measurement")
        return None if right else "this is no angle"
    kind = ("an ACUTE" if degrees < 90 else "a RIGHT" if degrees == 90 else
            "an OBTUSE" if degrees < 180 else "a STRAIGHT")
    told = f"{decimal_text(degrees)}^o^ (degrees) forms {kind} angle"
    return None if texts(answer)[-1].startswith(told) else "this is " + kind + " angle"


def school(draws):
    return {"problem": str(draws.choice([draws.randint(1, 180), 90, 180]))}


def hard(draws):
    return {"problem": draws.choice([decimal(draws, 5), "0", "00090", "180", "181", "89", "91"])}


TOPICS = [Topic(["Straight/Obtuse/Right/Acute Angles"], school, hard, judge)]
