#!/usr/bin/env python3
"""A learner who does not want to wait for the splash to go presses a key."""

import subprocess

import screen

SPLASH = (480, 300)


def asked(*command):
    return subprocess.run(["xdotool", *command], capture_output=True, text=True).stdout


def is_splash(desk, window):
    """Whether a window, "%1" for that with the focus, has the size of the splash."""
    found = asked("getactivewindow", "getwindowgeometry", "--shell", window).split()
    return {f"WIDTH={SPLASH[0] * desk.scale}", f"HEIGHT={SPLASH[1] * desk.scale}"} <= set(found)


def splash_is_shown(desk):
    windows = asked("search", "--onlyvisible", "--name", screen.FRAME).split()
    return any(is_splash(desk, window) for window in windows)


def journey(desk):
    desk.open_program()
    # It stays for a second unless a key reaches it, which takes the focus.
    screen.until(lambda: is_splash(desk, "%1"), "the splash to have the focus")
    desk.picture("splash")
    desk.key("x")
    screen.until(lambda: not splash_is_shown(desk), "the splash to go", 0.4)
    desk.wait_for_window(screen.CHOOSER)
    desk.key("Escape")
    desk.wait_for_window(screen.FRAME)


if __name__ == "__main__":
    screen.run(journey, "splash: has the focus and goes at a key")
