#!/usr/bin/env python3
"""The tutor in a terminal: keys through a pseudo terminal, and lines through a pipe.

    learn.py NUMERELLO-CLI
"""

import fcntl
import os
import pty
import select
import signal
import struct
import subprocess
import sys
import termios
import time

CLI = sys.argv[1]
TOPIC = "--topic"
failures = []


def check(condition, what):
    if not condition:
        failures.append(what)
        print("FAILED:", what)


class Lesson:
    """A lesson on a pseudo terminal."""

    def __init__(self, *arguments, term="xterm"):
        self.master, self.slave = pty.openpty()
        self.before = termios.tcgetattr(self.slave)
        self.process = subprocess.Popen(
            [CLI, "learn", *arguments], stdin=self.slave, stdout=self.slave, stderr=self.slave,
            env={**os.environ, "TERM": term}, start_new_session=True)
        self.seen = ""

    def read(self, seconds):
        ready, _, _ = select.select([self.master], [], [], seconds)
        if ready:
            self.seen += os.read(self.master, 65536).decode(errors="replace")
        return bool(ready)

    def await_text(self, text):
        """Waits until the text stands behind what was awaited before."""
        end = time.monotonic() + 5
        while text not in self.seen and time.monotonic() < end:
            self.read(0.1)
        check(text in self.seen, f"{text!r} does not come; there is {self.seen[-300:]!r}")
        self.seen = self.seen.partition(text)[2]

    def press(self, keys):
        self.press_bytes(keys.encode())

    def press_bytes(self, keys):
        os.write(self.master, keys)

    def end(self):
        """How the process ended, once it has."""
        end = time.monotonic() + 5
        while self.process.poll() is None and time.monotonic() < end:
            self.read(0.05)
        status = self.process.poll()
        check(status is not None, "the lesson does not end")
        if status is None:
            self.process.kill()
            self.process.wait()
        check(termios.tcgetattr(self.slave) == self.before, "the terminal is not as it was")
        os.close(self.master)
        os.close(self.slave)
        return status


def types_and_plays():
    lesson = Lesson(TOPIC, "Calculating With Exponents")
    lesson.await_text("q: leave")
    lesson.await_text("Problem: ")
    lesson.press("3^2+")
    lesson.await_text("Problem: 3²+")
    lesson.press("+")
    lesson.await_text("You can't type a '+' after a '+' in 'Calculating With Exponents'.")
    lesson.await_text("Problem: 3²+")
    lesson.press("4\x7f5")
    lesson.await_text("Problem: 3²+5")
    lesson.press("\x1b[A\x1bOP")  # an arrow and a function key are no keys of a problem
    lesson.press("\n")
    lesson.await_text("3²+5")
    lesson.await_text("-- Enter: next step")
    lesson.press("x\n")
    lesson.await_text(" 1. ")
    lesson.press("\n\n")
    lesson.await_text("14")
    lesson.await_text("-- Enter: another problem")
    lesson.press("q")
    check(lesson.end() == 0, "q does not leave with status 0")


def chooses_by_the_beginning():
    lesson = Lesson()
    lesson.await_text("Topic: ")
    lesson.press("conv")
    lesson.await_text("conv  > Converting Celsius To Fahrenheit")
    lesson.press("\x7f" * 4 + "xyz\n")
    lesson.await_text('No topic begins with "xyz".')
    lesson.press("?\n")
    lesson.await_text("    Work = Rate * Time")
    lesson.press("solving equations\n")
    lesson.await_text('No topic begins with "solving equations".')
    lesson.press("Solving Equations\n")
    lesson.await_text("Ctrl+D: leave")
    # Letters are keys of this problem.
    lesson.press("q")
    lesson.await_text("Problem: q")
    lesson.press("\x05")
    lesson.await_text("Example: ")
    lesson.press("t")
    lesson.await_text("Topic: ")
    lesson.press("q")
    check(lesson.end() == 0, "q does not leave at the topic")


def works_in_columns():
    lesson = Lesson(TOPIC, "Subtraction")
    lesson.await_text("Top box = ")
    lesson.press("5x2")
    lesson.await_text("Top box = 52")
    lesson.press("\n\n")
    lesson.await_text("Enter numbers into both boxes.")
    lesson.press("\x7f3\n")
    lesson.await_text("Lower box = ")
    lesson.press("17\n")
    lesson.await_text("- 1 7")
    lesson.press("\n\n")
    lesson.await_text("-- Enter: another problem")
    lesson.press("\x04")
    check(lesson.end() == 0, "Ctrl+D does not leave")


def says_what_to_do_without_a_mouse():
    lesson = Lesson(TOPIC, "Converting Feet To Yards")
    lesson.await_text("Problem: ")
    lesson.press("+")
    lesson.await_text("Click the Assistant Wiz for details.")
    lesson.await_text("The Wiz says: Enter a number.")
    lesson.press("\x04")
    check(lesson.end() == 0, "Ctrl+D does not leave")
    lesson = Lesson(TOPIC, "Division")
    lesson.await_text("Number outside the division bar = ")
    lesson.press("3\n9999999999\n")
    lesson.await_text("Click the 'Erase' button and try again.")
    lesson.await_text("In the terminal Enter erases the problem.")
    lesson.press("q")
    check(lesson.end() == 0, "q does not leave")


def solves_readably_on_a_terminal_alone():
    solve = [CLI, "solve", TOPIC, "Fraction Arithmetic", "--problem", "1/2+1/3"]
    piped = subprocess.run(solve, capture_output=True, text=True, check=True).stdout
    check(piped.startswith("#1/2#+#1/3#"), f"a pipe gets {piped[:40]!r}")
    master, slave = pty.openpty()
    process = subprocess.Popen(solve, stdin=slave, stdout=slave, stderr=slave)
    shown = ""
    while "6" not in shown and select.select([master], [], [], 5)[0]:
        shown += os.read(master, 65536).decode()
    check(shown.startswith("1/2+1/3"), f"a terminal gets {shown[:40]!r}")
    check("#" not in shown, f"a terminal gets marks: {shown!r}")
    check(process.wait(5) == 0, "solve fails on a terminal")
    os.close(slave)
    os.close(master)


def asks_for_values():
    lesson = Lesson(TOPIC, "Evaluating Polynomials")
    lesson.await_text("Problem: ")
    lesson.press("3x+4\n")
    lesson.await_text("x = ?")
    lesson.press("5\n")
    lesson.await_text("-- Enter: next step")
    for _ in range(6):
        lesson.press("\n")
    lesson.await_text("19")
    lesson.press("\x03")
    check(lesson.end() == 0, "Ctrl+C does not leave")


def takes_commands_in_place_of_a_value():
    def asked():
        lesson = Lesson(TOPIC, "Evaluating Polynomials")
        lesson.await_text("Problem: ")
        lesson.press("3x+4y\n")
        lesson.await_text("x = ?")
        return lesson

    for key in "\x03\x04":
        lesson = asked()
        lesson.press(key)
        check(lesson.end() == 0, f"{key!r} does not leave in place of a value")
        check("y = ?" not in lesson.seen and "-- Enter" not in lesson.seen,
              f"{key!r} brings {lesson.seen!r}")
    lesson = asked()
    lesson.press("5\n")
    lesson.await_text("y = ?")
    lesson.press("7\x05")
    lesson.await_text("Example: ")
    lesson.await_text("= ?")
    lesson.press("\x14")
    lesson.await_text("Topic: ")
    lesson.press("q")
    check(lesson.end() == 0, "q does not leave at the topic")


def leaves_in_the_middle_of_a_line():
    for key in "\x03\x04":
        lesson = Lesson(TOPIC, "Simplifying Polynomials")
        lesson.await_text("Problem: ")
        lesson.press("3x")
        lesson.await_text("Problem: 3x")
        lesson.press(key)
        check(lesson.end() == 0, f"{key!r} does not leave")


def restores_the_terminal_on_signals():
    for ending in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP, signal.SIGQUIT):
        lesson = Lesson(TOPIC, "Arithmetic")
        lesson.await_text("Problem: ")
        check(termios.tcgetattr(lesson.slave) != lesson.before, "keys do not come one by one")
        lesson.process.send_signal(ending)
        check(lesson.end() == -ending, f"{ending.name} does not end the lesson")


def clears_what_goes_over_several_rows():
    lesson = Lesson(TOPIC, "Arithmetic")
    fcntl.ioctl(lesson.slave, termios.TIOCSWINSZ, struct.pack("HHHH", 24, 30, 0, 0))
    lesson.await_text("Problem: ")
    lesson.press("3+4\n")
    lesson.await_text("-- Enter: next step, n: new problem, e: example, t: topic, q: leave --")
    lesson.press("\n")
    # 70 characters in rows of 30: back to the first of three.
    lesson.await_text("\x1b[2A\r\x1b[J")
    lesson.press("q")
    check(lesson.end() == 0, "q does not leave")


def reads_lines_where_the_terminal_cannot_draw():
    lesson = Lesson(TOPIC, "Arithmetic", term="dumb")
    lesson.await_text("Problem: ")
    lesson.press("3+4\n")
    lesson.await_text("Problem: 3+4")
    lesson.await_text("-- Enter: next step")
    lesson.press("\n")
    lesson.await_text(" 1. 7")
    lesson.press("q\n")
    check("\x1b" not in lesson.seen, "a dumb terminal gets escapes")
    check(lesson.end() == 0, "q does not leave a dumb terminal")


def piped(text, *arguments):
    done = subprocess.run([CLI, "learn", *arguments], input=text, text=True, timeout=10,
                          stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False)
    check(done.returncode == 0, f"{text!r} ends with {done.returncode}")
    check("\x1b" not in done.stdout, "a pipe gets escapes")
    return done.stdout


def reads_lines_from_a_pipe():
    out = piped("pyth\n\n3\n4\n\nwhat?\n\n\n\n\n\n\n\n\n\n\nt\nexp n\nExpanded\nquit\n")
    check("Topic: pyth  > Pythagorean Theorem\n" in out, "the topic is not told")
    check("c = \na = 3\nb = 4\n" in out, "the boxes are not told")
    check(" 1. " in out and "5 = c" in out, "the problem is not worked")
    check('No topic begins with "exp n".' in out, "an unknown topic is not told")
    check(out.endswith("q: leave\n\n") or out.endswith("q: leave\n"), "quit does not leave")


def leaves_at_the_end_of_the_input():
    check("Problem: 3+4" in piped("3+4\n", TOPIC, "Arithmetic"), "the problem is not told")
    check(piped("") != "", "an empty input gets no word")
    check("Topic: " not in piped("3+", TOPIC, "Arithmetic"), "half a line is taken")


def gives_examples_of_every_topic():
    topics = subprocess.run([CLI, "topics"], stdout=subprocess.PIPE, text=True, check=True).stdout
    captions = [line.strip() for line in topics.splitlines() if line.startswith("    ")]
    check(len(captions) == 105, "not all topics are listed")
    for caption in captions:
        # The answers are for prompts, the others step on.
        out = piped("\x05\n" + "2\n" * 3 + "\n" * 60, TOPIC, caption)
        check("Example: " in out, f"{caption} has no example")
        check("was not recognized" not in out, f"{caption} fails: {out[-300:]}")


def takes_no_key_for_a_part_of_a_broken_character():
    for broken in (b"\xc3", b"\xe2\x82", b"\xf0\x9f", b"\xff", b"\x80"):
        lesson = Lesson(TOPIC, "Arithmetic")
        lesson.await_text("Problem: ")
        lesson.press_bytes(b"3" + broken + b"+4\n")
        lesson.await_text("\ufffd")
        lesson.await_text("Problem: 3+4")
        lesson.await_text("-- Enter: next step")
        lesson.press("q")
        check(lesson.end() == 0, f"{broken!r} keeps the lesson")
    done = subprocess.run([CLI, "learn", TOPIC, "Arithmetic"], input=b"3+4\xe2", timeout=10,
                          stdout=subprocess.PIPE, check=False)
    check(b"\xff" not in done.stdout, "the end of the input becomes a byte")
    lesson = Lesson(TOPIC, "Arithmetic")
    lesson.await_text("Problem: ")
    lesson.press("\x9b31m")
    lesson.await_text("\ufffd")
    check("\x9b" not in lesson.seen, "a control character reaches the terminal")
    lesson.press("\x04")
    check(lesson.end() == 0, "Ctrl+D does not leave")


for scene in (types_and_plays, chooses_by_the_beginning, works_in_columns,
              says_what_to_do_without_a_mouse, solves_readably_on_a_terminal_alone, asks_for_values,
              takes_commands_in_place_of_a_value, takes_no_key_for_a_part_of_a_broken_character,
              leaves_in_the_middle_of_a_line,
              clears_what_goes_over_several_rows, restores_the_terminal_on_signals,
              reads_lines_where_the_terminal_cannot_draw, reads_lines_from_a_pipe,
              leaves_at_the_end_of_the_input, gives_examples_of_every_topic):
    started = time.monotonic()
    scene()
    print(f"{scene.__name__}: {time.monotonic() - started:.2f} s")
sys.exit(1 if failures else 0)
