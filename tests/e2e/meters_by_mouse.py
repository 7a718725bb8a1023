#!/usr/bin/env python3
"""A learner with the mouse: finds a metric topic in the tree, fills the box and picks the units."""

import screen

TOPIC = "Meter Conversions"
LINES = [
    "To convert 2.5 km to m:",
    "Multiply 2.5 by the number of meters in a km (1000)",
    "Then divide by the number of meters in a m (1)",
    "fraction 2.5 times 1000 over 1 end fraction",
    "2.5 km equals 2500 m",
]


def solution():
    return (screen.sheet_text(TOPIC) or "").split("\n")


def journey(desk):
    desk.open_program("--no-splash")
    desk.wait_for_window(screen.CHOOSER)
    for node in ("Standard/Metric/Temperature Conversions", "Metric Conversions", TOPIC):
        desk.picture("tree-" + node.split("/")[0].lower().replace(" ", "-"))
        desk.click_on(node)
        desk.settle()

    desk.wait_for_window(screen.FRAME)
    screen.until(lambda: screen.find(TOPIC), "the sheet")
    desk.type("2.5")
    desk.select_elsewhere("meter")
    desk.click_on("Value", button=2)
    desk.settle()
    assert screen.find("Value").get_text(0, 20) == "2.5", "a middle click brings no foreign text"
    for name, row in (("From", 6), ("To", 3)):
        desk.click_on(name)
        desk.settle()
        desk.key(*["Down"] * row, "Return")
        desk.settle()
    desk.picture("metric-entry")
    desk.click_on("Solve!")
    for shown in range(1, len(LINES) + 1):
        screen.until(
            lambda: solution() == LINES[:shown],
            lambda: f"the first {shown} lines; the sheet holds {solution()}",
        )
        if shown < len(LINES):
            desk.click_on("Next Step")
    screen.until(lambda: not screen.find("Next Step"), "the arrow to go")
    desk.picture("metric-finished")

    desk.click_on("Erase")
    desk.wait_for_window("Clear Problem")
    desk.picture("erase-question")
    desk.key("Escape")
    desk.wait_for_window(screen.FRAME)
    assert solution() == LINES, "Cancel keeps the sheet"


if __name__ == "__main__":
    screen.run(journey, "meters by mouse: worked")
