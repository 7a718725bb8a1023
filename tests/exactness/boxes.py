"""What is typed into boxes: ten characters at most, with a point and a minus where they may be."""

DIGITS = "0123456789"
LONGEST = 10
# The third, fifth and sixth box take no point.
WITHOUT_POINT = (3, 5, 6)
EDGES = ["0", "0.0", "0000000000", "-0", "1", "-1", "9999999999", "9999999.99", "-999999999",
         "0.00000001", "-0.0000001", ".5", "-.5", "5.", "0000000012", "0.1", "0.125", "2.5"]


def settings(draws):
    return {"RoundDigits": draws.randint(1, 5), "UseFractions": draws.random() < 0.5}


def school_number(draws, box):
    """A number of one to three digits, often with one or two places where the box takes a point."""
    text = str(draws.choice([draws.randint(1, 20), draws.randint(1, 100), draws.randint(1, 999)]))
    places = 0 if box in WITHOUT_POINT else draws.choice([0, 0, 0, 1, 2])
    return text + ("." + "".join(draws.choices(DIGITS, k=places)) if places else "")


def hard_number(draws, box):
    """A number that fills the box, an edge, or a small one with places that make ties."""
    form = draws.randrange(8)
    if form == 0:
        text = draws.choice(EDGES)
    elif form == 1:
        text = str(draws.randrange(1, 2000) / draws.choice([2, 4, 8, 16, 1000]))
    else:
        text = "".join(draws.choices(DIGITS, k=draws.choice([draws.randint(1, LONGEST), LONGEST])))
        if form < 6:
            point = draws.randint(0, len(text))
            text = (text[:point] + "." + text[point:])[:LONGEST]
        if draws.random() < 0.06:
            text = "-" + text[:LONGEST - 1]
    text = text.replace(".", "") if box in WITHOUT_POINT else text
    return text if any(digit in text for digit in DIGITS) else "0"


def entered(draws, number, boxes):
    """A request with numbers in these boxes, counted from 1.

    Now and then the boxes are set, as an example sets them, not typed: then each may have a point.
    Now and then two are equal.
    """
    set_up = draws.random() < 0.1
    texts = [number(draws, 1 if set_up else box) if box in boxes else "" for box in range(1, 7)]
    if len(boxes) > 1 and draws.random() < 0.05:
        first, second = draws.sample(sorted(boxes), 2)
        keeps_point = set_up or second not in WITHOUT_POINT
        texts[second - 1] = texts[first - 1].replace(".", "." if keeps_point else "1")
    return {"boxes": texts, "filled": set_up, "settings": settings(draws)}


def school(boxes):
    return lambda draws: entered(draws, school_number, boxes)


def hard(boxes):
    return lambda draws: entered(draws, hard_number, boxes)


def with_triangle(draw):
    """Draws sides into the first three boxes. If all are lengths, they make a triangle."""
    def drawn(draws):
        request = draw(draws)
        second, third = sorted(abs(float(text)) for text in request["boxes"][1:3])
        request["boxes"][0] = f"{third + second * draws.uniform(-0.9, 0.9):.2f}"[:LONGEST]
        return request
    return drawn
