#!/usr/bin/env python3
"""A learner lets examples be made up, typed and in boxes, and clicks through their solutions."""

import screen


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


def journey(desk):
    desk.open_program("--no-splash")
    desk.choose("Calculating With Exponents")
    desk.click_on("Example")
    worked = play(desk, "Calculating With Exponents")
    assert "squared" in worked or "cubed" in worked, worked
    # Another one takes its place.
    desk.click_on("Example")
    again = play(desk, "Calculating With Exponents")
    assert again.count("\n") >= 2, again

    desk.key("ctrl+n")
    desk.choose("Pythagorean Theorem")
    desk.click_on("Example")
    worked = play(desk, "Pythagorean Theorem")
    assert "a squared plus b squared equals c squared" in worked, worked


if __name__ == "__main__":
    screen.run(journey, "examples: made up and played to their check marks")
