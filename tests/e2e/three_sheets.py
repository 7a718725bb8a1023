#!/usr/bin/env python3
"""A learner plays a long solution over three sheets, lays them about and asks the Wiz."""

import time

import screen

TOPIC = "Factoring"
NUMBER = 5040
PAIRS = [(n, NUMBER // n) for n in range(1, 71) if NUMBER % n == 0]
FACTORS = sorted({n for pair in PAIRS for n in pair})
LINES = (
    [str(NUMBER)]
    + [f"{NUMBER} equals {low} times {high}" for low, high in PAIRS]
    + [f"Factors of {NUMBER}: " + ", ".join(str(n) for n in FACTORS)]
)
TITLES = [TOPIC, f"{TOPIC} (Page 2)", f"{TOPIC} (Page 3)"]
ROWS = 12  # of one sheet
WHY = "All the numbers that divide evenly into another number are the factors of that number."


def lines_of(title):
    text = screen.sheet_text(title)
    return text.split("\n") if text else []


def all_lines():
    return [line for title in TITLES for line in lines_of(title)]


def told():
    window = screen.find("Assistant Wiz")
    return window.get_description() if window else None


def place_of(title):
    place = screen.find(title, "document frame").get_extents(screen.Atspi.CoordType.SCREEN)
    return place.x, place.y


def play(desk):
    desk.type(str(NUMBER))
    desk.key("Return")
    for count in range(2, len(LINES) + 1):
        screen.until(
            lambda: all_lines() == LINES[:count],
            lambda: f"the first {count} lines; the sheets hold {all_lines()}",
        )
        if count < len(LINES):
            desk.key("Return")
    screen.until(lambda: not screen.find("Next Step"), "the check mark")
    for title, begin in zip(TITLES, range(0, len(LINES), ROWS)):
        assert lines_of(title) == LINES[begin : begin + ROWS], lines_of(title)


def ask_the_wiz(desk):
    desk.click_on("Wiz Assistant")
    screen.until(lambda: told() == WHY, lambda: f"an explanation; told is {told()!r}")
    desk.picture("wiz-tells")
    desk.key("Escape")
    screen.until(lambda: told() is None, "the explanation to close")
    # By keyboard: the light comes first, then the figure.
    desk.key("Tab", "Tab", "space")
    screen.until(lambda: told() == WHY, "an explanation by the keyboard")
    desk.key("Escape")


def move_sheets(desk):
    before = place_of(TITLES[2])
    left, top = (place * desk.scale for place in before)
    desk.drag((left + 400, top + 500), (left + 250, top + 450))
    moved = place_of(TITLES[2])
    assert (moved[0] - before[0]) * desk.scale == -150, (before, moved)
    assert place_of(TITLES[1])[0] != moved[0]
    desk.picture("three-sheets")
    desk.key("Prior", "Prior")
    time.sleep(0.3)
    desk.picture("first-sheet-in-front")
    desk.key("Next")


def journey(desk):
    desk.open_program("--no-splash")
    desk.choose(TOPIC)
    screen.until(lambda: screen.find("Wiz Assistant"), "the Wiz to grow in")
    screen.until(lambda: screen.find("Click me!"), "its notice")
    desk.picture("notice")

    play(desk)
    ask_the_wiz(desk)
    move_sheets(desk)
    screen.expect_all_named("over three sheets")

    desk.click_on("Wiz Assistant", button=3)
    desk.settle()
    desk.picture("wiz-menu")
    desk.key("h")
    screen.until(lambda: not screen.find("Wiz Assistant"), "the Wiz to go")

    desk.click_on("Erase")
    desk.wait_for_window("Clear Problem")
    desk.key("Return")
    desk.wait_for_window(screen.FRAME)
    screen.until(lambda: not all_lines(), "empty sheets")
    assert not any(screen.find(title) for title in TITLES[1:])


if __name__ == "__main__":
    screen.run(journey, "three sheets: played, moved and erased")
