#!/usr/bin/env python3
"""A learner who mistypes asks the light why, reads it and types on without touching the mouse."""

import screen

TOPIC = "Converting Feet To Yards"
TAIL = f"are not allowed in '{TOPIC}'.  Click the Assistant Wiz for details."


def told():
    window = screen.find("Assistant Wiz")
    return window.get_description() if window else None


def sheet():
    return screen.sheet_text(TOPIC)


def expect_told(text):
    screen.until(lambda: told() == text, lambda: f"to be told {text!r}, not {told()!r}")


def expect_sheet(text):
    screen.until(lambda: sheet() == text, lambda: f"{text!r} on the sheet, which holds {sheet()!r}")


def journey(desk):
    desk.open_program("--no-splash")
    desk.choose(TOPIC)

    desk.type("40")
    desk.click_on("Insert Root")
    desk.click_on("Guided Input Light")
    expect_told(f"Square roots (~ ~) {TAIL}")
    desk.wait_for_window(screen.FRAME)
    desk.picture("told-why")
    screen.expect_all_named("beside an explanation")
    desk.type("5")
    expect_told(None)
    expect_sheet("405")

    desk.type("x")
    desk.key("Tab", "space")
    expect_told(f"Variables {TAIL}")
    desk.key("Escape")
    expect_told(None)
    desk.key("BackSpace")
    expect_sheet("40")

    desk.key("Return", "alt+t")
    desk.settle()
    desk.key("e")
    expect_told("3 feet equals 1 yard")
    desk.picture("told-reason")
    desk.key("Return")
    expect_told(None)
    screen.until(lambda: sheet().count("\n") == 2, "the next line")

    desk.key("alt+o")
    desk.settle()
    desk.key("p")
    desk.settle()
    desk.picture("pencil-on-desk")


if __name__ == "__main__":
    screen.run(journey, "tells why: the sheet kept the keys")
