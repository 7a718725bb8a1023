#!/usr/bin/env python3
"""A learner's slips at the keyboard: refused keys say why, Backspace takes back, boxes come in turn."""

import sys

import screen

LINE_TOPIC = "Fraction Arithmetic"
BOX_TOPIC = "Similar Triangles"
SIDES = ["a1=", "b1=", "c1=", "a2=", "b2=", "c2="]


def choose(desk, topic):
    desk.wait_for_window("Choose problem type:")
    desk.key("ctrl+Tab")
    desk.type(topic)
    desk.key("Return")
    desk.wait_for_window("Vantrel - Numerello")
    screen.until(lambda: screen.find(topic), "the sheet")


def expect_sheet(text):
    screen.until(lambda: screen.sheet_text(LINE_TOPIC) == text, f"{text!r} on the sheet")


def expect_refusal(text):
    sheet = screen.find(LINE_TOPIC, "document frame")
    screen.until(lambda: sheet.get_description() == text, f"{text!r} told of the sheet")


def solve_is_on():
    return screen.has_state(screen.find("Solve!"), "ENABLED")


def type_fractions(desk):
    choose(desk, LINE_TOPIC)
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
    choose(desk, BOX_TOPIC)
    nameless = screen.showing_without_name()
    assert not nameless, f"on the sheet, without a name: {nameless}"
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


def main():
    program, pictures, *scale = sys.argv[1:]
    with screen.Screen(program, pictures, scale=int(scale[0]) if scale else 1) as desk:
        desk.open_program("--no-splash")
        type_fractions(desk)
        fill_triangles(desk)
        desk.key("ctrl+q")
        assert desk.exit_status() == 0
    print("guided input: worked")


if __name__ == "__main__":
    main()
