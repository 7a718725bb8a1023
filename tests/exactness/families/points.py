"""A point's place in the quadrants, and what is handed to the graph of points and lines."""

from judging import Topic, ends_in, fails
from values import whole

# By the signs of the coordinates.
PLACES = {
    (1, 1): "Both coordinates are positive - Quadrant I",
    (-1, 1): "The first coordinate is negative, the second is positive - Quadrant II.",
    (-1, -1): "Both coordinates are negative - Quadrant III",
    (1, -1): "The first coordinate is positive, the second is negative - Quadrant IV.",
    (1, 0): "The point is located along the axis between Quadrant I and IV",
    (-1, 0): "The point is located along the axis between Quadrant II and III",
    (0, 1): "The point is located along the axis between Quadrant I and II",
    (0, -1): "The point is located along the axis between Quadrant III and IV",
    (0, 0): "The point is located at the origin.",
}


def sign(number):
    return (number > 0) - (number < 0)


def graphed(entered, answer, mode=1):
    """Judges the points of the graph: those of a line lie on it exactly."""
    problem = entered["problem"]
    if problem.count(")") != mode:
        return fails(answer, "format")
    numbers = [int(part) for part in problem.replace(")-(", ",").strip("()").split(",")]
    right = {"mode": mode, "equation": "",
             **dict(zip(["x1", "y1", "x2", "y2"], numbers + [0, 0]))}
    if answer["failure"] is not None or answer["graph"] != right:
        return f"the graph is to be {right}, not {answer['graph']}"
    return None


def quadrant(entered, answer):
    wrong = graphed(entered, answer)
    if wrong is not None or answer["failure"] is not None:
        return wrong
    x, y = entered["problem"].strip("()").split(",")
    return ends_in(answer, f"Point ({x} , {y}) is located:", PLACES[sign(int(x)), sign(int(y))])


def small(draws):
    return f"({draws.randint(-20, 20)},{draws.randint(-20, 20)})"


def long(draws):
    odd = ["0", "-0", "00000", "-00001", "99999", "-99999"]
    x, y = (draws.choice([draws.choice(["", "-"]) + whole(draws, 5)] * 5 + odd) for _ in range(2))
    return f"({x},{y})"


def hard_point(draws):
    return {"problem": long(draws)[:draws.choice([20] * 30 + [-1, 2])]}


def hard_line(draws):
    first, second = long(draws), long(draws)
    pair = first + "-" + draws.choice([second] * 9 + [first])
    return {"problem": draws.choice([pair] * 30 + [first, pair[:-1]])}


TOPICS = [
    Topic(["Plotting A Point"], lambda draws: {"problem": small(draws)}, hard_point, graphed),
    Topic(["Calculating A Point's Quadrant"], lambda draws: {"problem": small(draws)}, hard_point,
          quadrant),
    Topic(["Graphing A Line Using Two Points"],
          lambda draws: {"problem": small(draws) + "-" + small(draws)}, hard_line,
          lambda entered, answer: graphed(entered, answer, 2)),
]
