"""A screen of our own with a window manager, the real program on it, and hands to use it."""

import os
import pathlib
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

KEY_DELAY_MS = 12

FRAME = "Vantrel - Numerello"
CHOOSER = "Choose problem type:"


class Screen:
    """Starts Xvfb, openbox and the program; ends them all when left."""

    def __init__(self, program, pictures, scale=1):
        self.program = program
        self.pictures = pathlib.Path(pictures)
        self.pictures.mkdir(parents=True, exist_ok=True)
        self.scale = scale
        self.size = f"{1280 * scale}x{800 * scale}"
        self.children = []

    def __enter__(self):
        read, write = os.pipe()
        self._start(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", f"{self.size}x24", "-nolisten", "tcp"],
            pass_fds=(write,),
        )
        os.close(write)
        with os.fdopen(read) as number:
            os.environ["DISPLAY"] = ":" + number.readline().strip()
        os.environ.update(
            {
                "QT_QPA_PLATFORM": "xcb",
                "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
                "QT_SCALE_FACTOR": str(self.scale),
            }
        )
        self._start(["openbox", "--sm-disable"])
        until(self._has_window_manager, "the window manager")
        # The accessibility bus has to stand before a program asks for it.
        Atspi.get_desktop(0).get_child_count()
        return self

    @staticmethod
    def _has_window_manager():
        found = subprocess.run(
            ["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], capture_output=True, text=True
        )
        return "window id" in found.stdout

    def __exit__(self, failure, *_):
        if failure:
            self.picture("failed")
        for child in reversed(self.children):
            child.terminate()
        for child in reversed(self.children):
            try:
                child.wait(5)
            except subprocess.TimeoutExpired:
                child.kill()

    def _start(self, command, **options):
        child = subprocess.Popen(
            command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **options
        )
        self.children.append(child)
        return child

    def open_program(self, *arguments):
        self.run = subprocess.Popen([self.program, *arguments])
        self.children.append(self.run)

    def exit_status(self, seconds=10):
        return self.run.wait(seconds)

    def choose(self, topic):
        """Chooses it in the index of the chooser, which is about to open."""
        self.wait_for_window(CHOOSER)
        self.key("ctrl+Tab")
        self.type(topic)
        self.key("Return")
        self.wait_for_window(FRAME)
        until(lambda: find(topic), "the sheet")

    def leave(self):
        """Closes the frame, which has the focus."""
        self.key("ctrl+q")
        assert self.exit_status() == 0

    def wait_for_window(self, title, seconds=15):
        """Waits until a window of that title has the focus."""
        return until(lambda: self._active_title() == title, f"the window {title!r}", seconds)

    def wait_for_mapped(self, title, seconds=15):
        """Waits until a window of that title is on the screen and painted."""
        search = ["xdotool", "search", "--onlyvisible", "--name", title]
        until(
            lambda: subprocess.run(search, capture_output=True).returncode == 0,
            f"the window {title!r}",
            seconds,
        )
        time.sleep(0.3)

    def _active_title(self):
        found = subprocess.run(
            ["xdotool", "getactivewindow", "getwindowname"], capture_output=True, text=True
        )
        return found.stdout.strip()

    def type(self, text):
        subprocess.run(["xdotool", "type", "--delay", str(KEY_DELAY_MS), "--", text], check=True)

    def key(self, *names):
        subprocess.run(["xdotool", "key", "--delay", str(KEY_DELAY_MS), *names], check=True)

    def click(self, x, y, button=1):
        subprocess.run(["xdotool", "mousemove", str(x), str(y), "click", str(button)], check=True)

    def drag(self, start, end, steps=10):
        """Presses the left button at one place of the screen and lets go at another."""
        subprocess.run(["xdotool", "mousemove", *map(str, start), "mousedown", "1"], check=True)
        for step in range(1, steps + 1):
            place = [round(a + (b - a) * step / steps) for a, b in zip(start, end)]
            subprocess.run(["xdotool", "mousemove", *map(str, place)], check=True)
        subprocess.run(["xdotool", "mouseup", "1"], check=True)
        time.sleep(0.2)

    def select_elsewhere(self, text):
        """Another program selects a text, which a middle click would insert."""
        holder = self._start(["xsel", "--primary", "--input", "--nodetach"], stdin=subprocess.PIPE)
        holder.stdin.write(text.encode())
        holder.stdin.close()
        time.sleep(0.2)

    def click_on(self, name, role=None, button=1):
        """Clicks the middle of the showing object of that name."""
        found = until(lambda: find(name, role), f"something named {name!r} to click on")
        x, y = until(lambda: resting_middle(found), f"{name!r} to stand still")
        # The accessibility tree tells places without the scale.
        self.click(x * self.scale, y * self.scale, button)

    def settle(self):
        """Lets a list open or close and a tree scroll; the accessibility tree does not tell."""
        time.sleep(0.8)

    def picture(self, name):
        subprocess.run(["scrot", "-o", str(self.pictures / f"{name}.png")], check=True)


def run(journey, told):
    """Takes the journey through the program that the command line names, and says so."""
    program, pictures, *scale = sys.argv[1:]
    folder = pathlib.Path(pictures) / "-".join([pathlib.Path(sys.argv[0]).stem, *scale])
    with Screen(program, folder, scale=int(scale[0]) if scale else 1) as desk:
        journey(desk)
        desk.leave()
    print(told)


def until(condition, what, seconds=10):
    """The condition's first true value; fails when there is none in time. What was waited for is a
    text, or a procedure that makes one of what is there instead."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.05)
    raise AssertionError(f"waited {seconds} s for {what() if callable(what) else what}")


def resting_middle(found):
    """The middle of an object on the screen, None while it is still moving."""
    places = []
    for _ in range(2):
        place = found.get_extents(Atspi.CoordType.SCREEN)
        places.append((place.x + place.width // 2, place.y + place.height // 2))
        time.sleep(0.1)
    return places[0] if places[0] == places[1] and min(places[0]) > 0 else None


def accessibles(root=None):
    """Every object of the program's accessibility tree."""
    if root is None:
        desktop = Atspi.get_desktop(0)
        roots = [desktop.get_child_at_index(i) for i in range(desktop.get_child_count())]
    else:
        roots = [root]
    for each in roots:
        if each is None:
            continue
        yield each
        for i in range(each.get_child_count()):
            child = each.get_child_at_index(i)
            if child is not None:
                yield from accessibles(child)


def find(name, role=None):
    """The showing object of that accessible name, None when there is none."""
    for each in accessibles():
        try:
            if each.get_name() != name or (role and each.get_role_name() != role):
                continue
            if each.get_state_set().contains(Atspi.StateType.SHOWING):
                return each
        except Exception:  # objects may vanish while they are looked at
            continue
    return None


def sheet_text(title):
    """What stands on the sheet of that title, as it is read aloud; None when it is not showing."""
    sheet = find(title, "document frame")
    return Atspi.Text.get_text(sheet, 0, -1) if sheet else None


def has_state(found, state):
    return found.get_state_set().contains(getattr(Atspi.StateType, state))


def showing_without_name():
    """The showing objects that take the focus but have no name."""
    nameless = []
    for each in accessibles():
        states = each.get_state_set()
        if (
            states.contains(Atspi.StateType.SHOWING)
            and states.contains(Atspi.StateType.FOCUSABLE)
            and not each.get_name()
        ):
            nameless.append(f"{each.get_role_name()} {each.get_description()}".strip())
    return nameless


def expect_all_named(where):
    nameless = showing_without_name()
    assert not nameless, f"{where}, without a name: {nameless}"
