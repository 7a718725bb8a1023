#!/usr/bin/env python3
"""A learner looks at the graph of two points: zooms, reads coordinates, changes sizes, closes."""

import re
import subprocess

import screen

TOPIC = "Graphing A Line Using Two Points"


def told():
    picture = screen.find("Graph", "image")
    return picture.get_description() if picture else ""


def entries():
    return screen.find("Coordinates", "list").get_child_count()


def size_of_active_window():
    found = subprocess.run(
        ["xdotool", "getactivewindow", "getwindowgeometry"], capture_output=True, text=True
    )
    return tuple(map(int, re.search(r"Geometry: (\d+)x(\d+)", found.stdout).groups()))


def choose_size(desk, keys, is_right, what):
    """From the Window menu, by its letters."""
    desk.key("alt+w", keys)
    screen.until(
        lambda: is_right(size_of_active_window()), lambda: f"{what}; {size_of_active_window()}"
    )
    desk.settle()


def journey(desk):
    desk.open_program("--no-splash")
    desk.choose(TOPIC)
    desk.type("(1,2)-(5,6)")
    desk.key("Return")
    desk.wait_for_window(TOPIC)
    screen.until(
        lambda: told().startswith("x and y go from -20 to 20. The points (1, 2) and (5, 6)."),
        lambda: f"the graph in words; it says {told()!r}",
    )
    assert entries() == 2
    desk.settle()
    desk.picture("graph-two-points")
    normal = size_of_active_window()
    assert normal[0] == 533 * desk.scale, normal

    desk.key("ctrl+minus")
    screen.until(lambda: "-40 to 40" in told(), "the range twice as large")
    desk.click_on("Zoom Out")
    screen.until(lambda: "-80 to 80" in told(), "the range four times as large")
    desk.key("ctrl+plus")
    screen.until(lambda: "-40 to 40" in told(), "the smaller range again")

    choose_size(desk, "s", lambda size: size[0] == 267 * desk.scale, "the small window")
    desk.picture("graph-small")
    choose_size(desk, "l", lambda size: size[0] > 1200 * desk.scale, "the large window")
    desk.picture("graph-large")
    choose_size(desk, "n", lambda size: size == normal, "the normal window")
    desk.picture("graph-normal-again")
    screen.expect_all_named("in the graph")

    # In use beside the frame, and closed by Esc.
    desk.key("Escape")
    desk.wait_for_window(screen.FRAME)
    desk.click_on("Graph", "push button")
    desk.wait_for_window(TOPIC)
    screen.until(lambda: "-20 to 20" in told(), "a window that begins anew")
    desk.key("Escape")
    desk.wait_for_window(screen.FRAME)


if __name__ == "__main__":
    screen.run(journey, "graph: zoomed, resized and closed")
