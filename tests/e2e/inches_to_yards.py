#!/usr/bin/env python3
"""A learner with a keyboard alone: chooses a topic, types a problem, plays it to the check mark."""

import screen

TOPIC = "Converting Inches To Yards"
LINES = [
    "40",
    "To convert inches to yards, first convert inches to feet:",
    "There are 12 inches in a foot.",
    "To convert inches to feet, divide the number of inches (40) by 12:",
    "40 inches equals 3.33 feet",
    "There are 3 feet in a yard.",
    "To convert feet to yards, divide the number of feet (3.33) by 3:",
    "3.33 feet equals 1.11 yards",
    "40 inches equals 1.11 yards",
]


def sheet_lines():
    return (screen.sheet_text(TOPIC) or "").split("\n")


def expect_lines(count):
    screen.until(
        lambda: sheet_lines() == LINES[:count],
        lambda: f"the first {count} lines on the sheet; it holds {sheet_lines()}",
    )


def journey(desk):
    desk.open_program()
    desk.wait_for_mapped(screen.FRAME)
    desk.picture("splash")
    desk.wait_for_window(screen.CHOOSER)
    desk.picture("chooser-topic")
    screen.expect_all_named("in the chooser")
    desk.key("ctrl+Tab")
    desk.type("converting inches to y")
    desk.picture("chooser-index")
    desk.key("Return")

    desk.wait_for_window(screen.FRAME)
    screen.until(lambda: screen.find(TOPIC), "the sheet")
    desk.picture("empty-sheet")
    screen.expect_all_named("on the sheet")

    desk.type("4+0")
    expect_lines(1)
    desk.key("Return")
    for shown in range(2, len(LINES) + 1):
        expect_lines(shown)
        if shown == 5:
            desk.picture("half-played")
        if shown < len(LINES):
            assert screen.find("Next Step"), f"no arrow behind line {shown}"
            desk.key("Return")
    screen.until(lambda: not screen.find("Next Step"), "the arrow to go")
    desk.picture("finished")


if __name__ == "__main__":
    screen.run(journey, "inches to yards: played to the check mark")
