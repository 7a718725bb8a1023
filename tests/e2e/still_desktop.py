#!/usr/bin/env python3
"""On a desktop that asks for no animations nothing flashes; once it allows them, it does."""

import sys
import time

import screen
from settings_service import SettingsService

TOPIC = "Factoring"
FRAME = "Vantrel - Numerello"


def seen_over(seconds, name):
    """Whether the object of that name was showing, at each glance within so many seconds."""
    glances = []
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        glances.append(screen.find(name) is not None)
        time.sleep(0.1)
    return glances


def main():
    program, pictures, *scale = sys.argv[1:]
    with (
        SettingsService() as settings,
        screen.Screen(program, pictures, scale=int(scale[0]) if scale else 1) as desk,
    ):
        desk.open_program("--no-splash")
        desk.wait_for_window("Choose problem type:")
        desk.key("ctrl+Tab")
        desk.type(TOPIC)
        desk.key("Return")
        desk.wait_for_window(FRAME)
        screen.until(lambda: screen.find("Click me!"), "the notice")
        assert all(seen_over(2, "Click me!")), "the notice stands still"

        settings.turn_over()
        desk.type("6")
        desk.key("Return")
        screen.until(lambda: screen.find("Next Step"), "the arrow")
        glances = seen_over(3, "Click me!")
        assert any(glances) and not all(glances), f"the notice flashes: {glances}"
        desk.key("ctrl+q")
        assert desk.exit_status() == 0
    print("still desktop: nothing moved unasked")


if __name__ == "__main__":
    main()
