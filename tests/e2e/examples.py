#!/usr/bin/env python3
"""A learner lets examples be made up, typed and in boxes, and clicks through their solutions."""

import sys

import screen


def choose(desk, topic):
    desk.wait_for_window("Choose problem type:")
    desk.key("ctrl+Tab")
    desk.type(topic)
    desk.key("Return")
    desk.wait_for_window("Vantrel - Numerello")
    screen.until(lambda: screen.find(topic), "the sheet")


def play(desk, topic):
    """Clicks from the first line of the solution, which is there, to the check mark."""
    screen.until(lambda: screen.find("Next Step"), "the solution to begin")
    desk.picture("example-" + topic.split()[0].lower())
    lines = [screen.sheet_text(topic)]
    while screen.find("Next Step"):
        desk.click_on("Next Step")
        screen.until(
            lambda: screen.sheet_text(topic) != lines[-1] or not screen.find("Next Step"),
            "the next line",
        )
        lines.append(screen.sheet_text(topic))
    assert lines[-1].startswith(lines[0]), lines
    return lines[-1]


def main():
    program, pictures, *scale = sys.argv[1:]
    with screen.Screen(program, pictures, scale=int(scale[0]) if scale else 1) as desk:
        desk.open_program("--no-splash")
        choose(desk, "Calculating With Exponents")
        desk.click_on("Example")
        worked = play(desk, "Calculating With Exponents")
        assert "squared" in worked or "cubed" in worked, worked
        # Another one takes its place.
        desk.click_on("Example")
        again = play(desk, "Calculating With Exponents")
        assert again.count("\n") >= 2, again

        desk.key("ctrl+n")
        choose(desk, "Pythagorean Theorem")
        desk.click_on("Example")
        worked = play(desk, "Pythagorean Theorem")
        assert "a squared plus b squared equals c squared" in worked, worked
        desk.key("ctrl+q")
        assert desk.exit_status() == 0
    print("examples: made up and played to their check marks")


if __name__ == "__main__":
    main()
