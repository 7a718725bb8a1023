#!/usr/bin/env python3
"""A learner's slips at the keyboard: refused keys say why, Backspace takes back, boxes come in turn."""

import screen

LINE_TOPIC = "Fraction Arithmetic"
BOX_TOPIC = "Similar Triangles"
SIDES = ["a1=", "b1=", "c1=", "a2=", "b2=", "c2="]


def expect_sheet(text):
    screen.until(lambda: screen.sheet_text(LINE_TOPIC) == text, f"{text!r} on the sheet")


def expect_refusal(text):
    sheet = screen.find(LINE_TOPIC, "document frame")
    screen.until(lambda: sheet.get_description() == text, f"{text!r} told of the sheet")


def solve_is_on():
    return screen.has_state(screen.find("Solve!"), "ENABLED")


def type_fractions(desk):
    desk.choose(LINE_TOPIC)
    assert not solve_is_on()
    desk.type("1/2/")
    expect_sheet("one half divided by")
    desk.type("*")
    expect_refusal("You can't type a '*' after a '/' in 'Fraction Arithmetic'.")
    desk.picture("refused-key")
    desk.type("x")
    expect_refusal(
        "Variables are not allowed in 'Fraction Arithmetic'.  Click the Assistant Wiz for details."
    )
    desk.key("BackSpace")
    expect_sheet("one half")
    desk.type("-3/4")
    expect_sheet("one half minus three fourths")
    assert solve_is_on()
    desk.picture("fractions")
    desk.key(*["BackSpace"] * 7)
    expect_sheet("")
    assert not solve_is_on()


def fill_triangles(desk):
    desk.key("ctrl+n")
    desk.choose(BOX_TOPIC)
    screen.expect_all_named("on the sheet")
    for number, side in enumerate(SIDES, start=3):
        screen.until(lambda: screen.has_state(screen.find(side), "FOCUSED"), f"the focus on {side}")
        assert solve_is_on() == (number > 6), f"Solve! before {side}"
        if side == "b2=":
            break
        desk.type(f"{number}x")
        assert screen.find(side).get_text(0, 20) == str(number)
        desk.key("Tab")
    desk.picture("triangles")
    desk.key("shift+Tab", "BackSpace")
    screen.until(lambda: not solve_is_on(), "Solve! to go off")


def journey(desk):
    desk.open_program("--no-splash")
    type_fractions(desk)
    fill_triangles(desk)


if __name__ == "__main__":
    screen.run(journey, "guided input: worked")
