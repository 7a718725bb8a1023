#!/usr/bin/env python3
"""A learner looks things up: F1 on a topic, a search, back, and the help is gone at Esc."""

import screen


def page():
    """What the page on show says, as it is read aloud; None while there is none."""
    found = screen.find("Page", "document frame")
    return screen.Atspi.Text.get_text(found, 0, -1) if found else None


def wait_for_page(title):
    screen.until(lambda: (page() or "").startswith(title), f"the page {title!r}")


def journey(desk):
    desk.open_program("--no-splash")
    desk.choose("Fraction Arithmetic")

    desk.key("F1")
    desk.wait_for_window("Numerello Help")
    wait_for_page("Fraction Arithmetic")
    assert "one half plus three fifths" in page()
    desk.picture("help-topic")

    desk.key("ctrl+f")
    desk.type("quotient")
    desk.key("Return")
    wait_for_page("Division")
    desk.picture("help-search")
    screen.expect_all_named("in the help")
    desk.key("Escape", "alt+Left")
    wait_for_page("Fraction Arithmetic")
    desk.key("ctrl+Next")
    wait_for_page("Decimal To Fraction Notation")

    # The help stands beside the sheet and does not keep the learner from working.
    desk.key("Escape")
    desk.wait_for_window(screen.FRAME)
    desk.type("1/2+3/5")
    screen.until(
        lambda: screen.sheet_text("Fraction Arithmetic") == "one half plus three fifths",
        "the problem on the sheet",
    )
    desk.key("F1")
    desk.wait_for_window("Numerello Help")
    desk.key("Escape")
    desk.wait_for_window(screen.FRAME)


if __name__ == "__main__":
    screen.run(journey, "help: looked up, found, and put away")
