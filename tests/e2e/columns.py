#!/usr/bin/env python3
"""A learner works a subtraction and a division in columns, click by click."""

import screen

SUBTRACTION = [
    "1000\nminus 1",
    "99\n0 10 10 10\n1000\nminus 1\n9",
    "99\n0 10 10 10\n1000\nminus 1\n99",
    "99\n0 10 10 10\n1000\nminus 1\n999",
    "99\n0 10 10 10\n1000\nminus 1\n0999",
]
DIVISION = [
    "7 into 95",
    "1\n7 into 95\nminus 7\n25",
    "13 r 4\n7 into 95\nminus 7\n25\nminus 21\n4",
]


def play(desk, topic, drawings):
    """Clicks through from the first drawing, which is there, to the check mark."""
    for i, expected in enumerate(drawings):
        screen.until(
            lambda: screen.sheet_text(topic) == expected,
            lambda: f"drawing {i + 1}; there is {screen.sheet_text(topic)!r}",
        )
        desk.picture(f"{topic.lower()}-{i + 1}")
        if i + 1 < len(drawings):
            desk.click_on("Next Step")
    screen.until(lambda: not screen.find("Next Step"), "the arrow to go")


def journey(desk):
    desk.open_program("--no-splash")
    desk.choose("Subtraction")
    desk.type("1000")
    desk.key("Tab")
    desk.type("1")
    desk.click_on("Solve!")
    play(desk, "Subtraction", SUBTRACTION)

    # The larger number in the wrong box.
    desk.key("ctrl+n")
    desk.choose("Division")
    desk.type("95")
    desk.key("Tab")
    desk.type("7")
    desk.key("Return")
    screen.until(lambda: screen.find("OK"), "the message that the numbers are switched")
    desk.picture("division-switched")
    desk.key("Return")
    play(desk, "Division", DIVISION)


if __name__ == "__main__":
    screen.run(journey, "columns: played to their check marks")
