#!/usr/bin/env python3
"""A teacher prints a worked equation into a file, then makes a test up and writes it and its key."""

import pathlib
import subprocess

import screen

EQUATION = "Solving Equations BB 3x+4=2x+7 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 101\n"


def text_of(pdf):
    screen.until(lambda: pdf.exists() and pdf.stat().st_size > 0, f"{pdf.name} to be written")
    told = subprocess.run(["pdftotext", "-layout", pdf, "-"], capture_output=True, text=True)
    assert told.returncode == 0, told.stderr
    return [" ".join(line.split()) for line in told.stdout.splitlines() if line.strip()]


def save_as(desk, pdf, back):
    """Names the file that the save dialog asks for; the window `back` stands there afterwards."""
    desk.wait_for_window("Print to File")
    desk.key("ctrl+a")
    desk.type(str(pdf))
    desk.key("Return")
    desk.wait_for_window(back)
    return text_of(pdf)


def print_the_equation(desk, folder):
    desk.key("ctrl+p")
    desk.wait_for_window("Print Options")
    screen.expect_all_named("in Print Options")
    desk.click_on("Explanation")
    desk.picture("print-options")
    desk.key("Return")
    lines = save_as(desk, folder / "equation.pdf", screen.FRAME)
    assert lines[:2] == ["Vantrel Numerello", "Solving Equations"], lines
    assert lines[3] == "3x+4=2x+7" and "x=3" in lines, lines


def fill_the_outline(desk):
    """Down from the first folder: Enter opens it, and chooses each of the four topics below."""
    desk.click_on("Practice Test", "push button")
    desk.wait_for_window("Practice Test")
    screen.expect_all_named("in Practice Test")
    desk.key("Return")
    for _ in range(4):
        desk.key("Down", "Return")
    desk.settle()
    desk.picture("practice-test")


def print_the_test(desk, folder):
    desk.click_on("Create Practice Test")
    desk.wait_for_window("Print Preview")
    screen.expect_all_named("in Print Preview")
    desk.picture("print-preview")
    desk.key("ctrl+p")
    test = save_as(desk, folder / "test.pdf", "Print Preview")
    for heading in ("Add:", "Subtract:", "Multiply:", "Divide:"):
        assert heading in test, test
    numbers = [line.split(")")[0] for line in test if ") " in line]
    assert numbers == [str(n) for n in range(1, 21)], numbers

    desk.click_on("Answer Key...")
    desk.wait_for_window("Answer Key")
    desk.key("Next")
    desk.picture("answer-key")
    desk.key("ctrl+p")
    key = save_as(desk, folder / "key.pdf", "Answer Key")
    for line in test:
        if ") " in line:
            assert line in key, f"{line} is not in the key"
    desk.key("Escape")
    desk.wait_for_window("Print Preview")
    desk.key("Escape")
    desk.wait_for_window("Practice Test")
    desk.key("Escape")
    desk.wait_for_window(screen.FRAME)


def journey(desk):
    folder = pathlib.Path.home() / "prints"
    folder.mkdir()
    problem = folder / "equation.nrl"
    problem.write_text(EQUATION)
    desk.open_program(str(problem))
    desk.wait_for_window(screen.FRAME)
    screen.until(lambda: screen.find("Solving Equations"), "the sheet")
    print_the_equation(desk, folder)
    fill_the_outline(desk)
    print_the_test(desk, folder)


if __name__ == "__main__":
    screen.run(journey, "prints: a worked equation, a test and its key")
