#!/usr/bin/env python3
"""A learner with a keyboard alone: changes the settings, saves a problem, comes back to both."""

import os
import pathlib
import subprocess

import screen

TOPIC = "Converting Fahrenheit To Celsius"


def sheet_lines():
    return (screen.sheet_text(TOPIC) or "").split("\n")


def play_to_the_end(desk):
    """Solves, or goes on from the first line of the solution, to the check mark."""
    while screen.find("Next Step"):
        shown = len(sheet_lines())
        desk.key("Return")
        screen.until(lambda: len(sheet_lines()) > shown, "another line on the sheet")


def change_settings(desk):
    """One digit behind the point, and the owl instead of the wizard."""
    desk.key("alt+o")
    desk.settle()
    desk.picture("options-menu")
    desk.key("t")
    desk.wait_for_window("Settings")
    screen.expect_all_named("in the settings")
    desk.key("Home", "Tab", "Tab", "Tab", "Tab", "Left", "Left")
    desk.settle()
    desk.picture("settings")
    desk.key("Return")
    desk.wait_for_window(screen.FRAME)


def save(desk):
    desk.key("ctrl+s")
    desk.wait_for_window("Save Problem As")
    desk.settle()
    desk.picture("save-dialog")
    desk.key("ctrl+a")
    desk.type("warm day")
    desk.key("Return")
    desk.wait_for_window(screen.FRAME)


def load(desk):
    desk.key("ctrl+o")
    desk.wait_for_window("Load Problem")
    desk.settle()
    desk.type("warm day.nrl")
    desk.key("Return")
    desk.wait_for_window(screen.FRAME)


def about(desk):
    desk.key("alt+h")
    desk.settle()
    desk.picture("help-menu")
    desk.key("a")
    desk.wait_for_window("About Numerello")
    desk.settle()
    desk.picture("about")
    screen.expect_all_named("in About")
    desk.key("Escape")
    desk.wait_for_window(screen.FRAME)


def expect_words_for_a_terminal(program):
    """Without a screen."""
    environment = {**os.environ, "QT_QPA_PLATFORM": "none"}
    del environment["DISPLAY"]
    for option in ("--help", "--version"):
        told = subprocess.run([program, option], capture_output=True, text=True, env=environment)
        assert told.returncode == 0 and "umerello" in told.stdout, f"{option}: {told}"


def journey(desk):
    home = pathlib.Path(os.environ["HOME"])
    saved = home / "Documents/Numerello/Saved Problems/warm day.nrl"
    stored = pathlib.Path(os.environ["XDG_CONFIG_HOME"]) / "Vantrel.conf"
    expect_words_for_a_terminal(desk.program)

    desk.open_program("--no-splash")
    desk.choose(TOPIC)
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
    desk.leave()

    settings = stored.read_text().split("\n")
    assert settings[0] == "[Numerello]", settings
    for line in ("RoundVar=1", "whichAssistant=1", "mnuPencil=true", "use_fraction=true"):
        assert line in settings, f"{line} is not among {settings}"

    desk.open_program(str(saved))
    desk.wait_for_window(screen.FRAME)
    screen.until(lambda: screen.find("Next Step"), "the problem to be solved")
    play_to_the_end(desk)
    assert sheet_lines() == worked, sheet_lines()
    desk.key("ctrl+n")
    desk.choose(TOPIC)
    desk.type("5")
    load(desk)
    screen.until(lambda: sheet_lines()[0] == worked[0], "the loaded problem")
    play_to_the_end(desk)
    assert sheet_lines() == worked, sheet_lines()
    desk.leave()

    desk.open_program(str(saved.with_name("missing.nrl")))
    desk.wait_for_window(screen.FRAME)
    screen.until(lambda: screen.find("The problem file could not be read."), "the status line")
    desk.picture("missing-file")


if __name__ == "__main__":
    screen.run(journey, "saves and settings: both came back")
