#!/usr/bin/env python3
"""On a desktop that asks for no animations nothing flashes; once it allows them, it does."""

import time

import screen
from settings_service import SettingsService

TOPIC = "Factoring"


def seen_over(seconds, name):
    """Whether the object of that name was showing, at each glance within so many seconds."""
    glances = []
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        glances.append(screen.find(name) is not None)
        time.sleep(0.1)
    return glances


def journey(desk):
    with SettingsService() as settings:
        desk.open_program("--no-splash")
        desk.choose(TOPIC)
        screen.until(lambda: screen.find("Click me!"), "the notice")
        assert all(seen_over(2, "Click me!")), "the notice stands still"

        settings.turn_over()
        desk.type("6")
        desk.key("Return")
        screen.until(lambda: screen.find("Next Step"), "the arrow")
        glances = seen_over(3, "Click me!")
        assert any(glances) and not all(glances), f"the notice flashes: {glances}"


if __name__ == "__main__":
    screen.run(journey, "still desktop: nothing moved unasked")
