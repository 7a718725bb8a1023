#!/usr/bin/env python3
"""A learner with a keyboard alone: changes the settings, saves a problem, comes back to both."""

import os
import pathlib
import subprocess
import sys

import screen

TOPIC = "Converting Fahrenheit To Celsius"
FRAME = "Vantrel - Numerello"


def sheet_lines():
    return (screen.sheet_text(TOPIC) or "").split("\n")


def play_to_the_end(desk):
    """Solves, or goes on from the first line of the solution, to the check mark."""
    while screen.find("Next Step"):
        shown = len(sheet_lines())
        desk.key("Return")
        screen.until(lambda: len(sheet_lines()) > shown, "another line on the sheet")


def choose(desk):
    desk.wait_for_window("Choose problem type:")
    desk.key("ctrl+Tab")
    desk.type(TOPIC)
    desk.key("Return")
    desk.wait_for_window(FRAME)
    screen.until(lambda: screen.find(TOPIC), "the sheet")


def change_settings(desk):
    """One digit behind the point, and the owl instead of the wizard."""
    desk.key("alt+o")
    desk.settle()
    desk.picture("options-menu")
    desk.key("t")
    desk.wait_for_window("Settings")
    nameless = screen.showing_without_name()
    assert not nameless, f"in the settings, without a name: {nameless}"
    desk.key("Home", "Tab", "Tab", "Tab", "Tab", "Left", "Left")
    desk.settle()
    desk.picture("settings")
    desk.key("Return")
    desk.wait_for_window(FRAME)


def save(desk):
    desk.key("ctrl+s")
    desk.wait_for_window("Save Problem As")
    desk.settle()
    desk.picture("save-dialog")
    desk.key("ctrl+a")
    desk.type("warm day")
    desk.key("Return")
    desk.wait_for_window(FRAME)


def load(desk):
    desk.key("ctrl+o")
    desk.wait_for_window("Load Problem")
    desk.settle()
    desk.type("warm day.nrl")
    desk.key("Return")
    desk.wait_for_window(FRAME)


def about(desk):
    desk.key("alt+h")
    desk.settle()
    desk.picture("help-menu")
    desk.key("a")
    desk.wait_for_window("About Numerello")
    desk.settle()
    desk.picture("about")
    nameless = screen.showing_without_name()
    assert not nameless, f"in About, without a name: {nameless}"
    desk.key("Escape")
    desk.wait_for_window(FRAME)


def leave(desk):
    desk.key("ctrl+q")
    assert desk.exit_status() == 0


def main():
    program, pictures, *scale = sys.argv[1:]
    home = pathlib.Path(os.environ["HOME"])
    saved = home / "Documents/Numerello/Saved Problems/warm day.nrl"
    stored = pathlib.Path(os.environ["XDG_CONFIG_HOME"]) / "Vantrel.conf"
    pictures = pathlib.Path(pictures) / (f"shell-{scale[0]}" if scale else "shell")

    for option in ("--help", "--version"):
        environment = {**os.environ, "QT_QPA_PLATFORM": "none"}
        told = subprocess.run([program, option], capture_output=True, text=True, env=environment)
        assert told.returncode == 0 and "umerello" in told.stdout, f"{option}: {told}"

    with screen.Screen(program, pictures, scale=int(scale[0]) if scale else 1) as desk:
        desk.open_program("--no-splash")
        choose(desk)
        assert not stored.exists()
        change_settings(desk)
        about(desk)
        desk.type("100")
        desk.key("Return")
        screen.until(lambda: screen.find("Next Step"), "the arrow")
        save(desk)
        screen.until(lambda: saved.exists() and saved.read_text(), "the saved problem")
        assert saved.read_text().startswith(f"{TOPIC} BB 100 BB "), saved.read_text()
        play_to_the_end(desk)
        # (100 - 32) * 5/9 is 37.77..., one digit of it.
        worked = sheet_lines()
        assert "37.8" in worked[-1], worked
        desk.picture("worked")
        leave(desk)

        settings = stored.read_text().split("\n")
        assert settings[0] == "[Numerello]", settings
        for line in ("RoundVar=1", "whichAssistant=1", "mnuPencil=true", "use_fraction=true"):
            assert line in settings, f"{line} is not among {settings}"

        desk.open_program(str(saved))
        desk.wait_for_window(FRAME)
        screen.until(lambda: screen.find("Next Step"), "the problem to be solved")
        play_to_the_end(desk)
        assert sheet_lines() == worked, sheet_lines()
        desk.key("ctrl+n")
        choose(desk)
        desk.type("5")
        load(desk)
        screen.until(lambda: sheet_lines()[0] == worked[0], "the loaded problem")
        play_to_the_end(desk)
        assert sheet_lines() == worked, sheet_lines()
        leave(desk)

        desk.open_program(str(saved.with_name("missing.nrl")))
        desk.wait_for_window(FRAME)
        screen.until(lambda: screen.find("The problem file could not be read."), "the status line")
        desk.picture("missing-file")
        leave(desk)
    print("saves and settings: both came back")


if __name__ == "__main__":
    main()
