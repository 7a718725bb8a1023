#!/usr/bin/env python3
"""How long after exec the first window stands on the screen, and what the program then weighs.

    first_window.py PROGRAM [ARGUMENT...]      needs an X display and xev
"""

import os
import subprocess
import sys
import time

RUNS = 5


def resident_mib(pid):
    with open(f"/proc/{pid}/status") as status:
        for line in status:
            if line.startswith("VmRSS:"):
                return int(line.split()[1]) / 1024
    return 0


def one_run(command):
    watch = subprocess.Popen(
        ["xev", "-root", "-event", "substructure"], stdout=subprocess.PIPE, bufsize=0
    )
    time.sleep(0.2)
    start = time.monotonic()
    program = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    mapped = None
    for line in watch.stdout:
        if line.startswith(b"MapNotify"):
            mapped = (time.monotonic() - start) * 1000
            break
    time.sleep(0.6)
    first = resident_mib(program.pid)
    time.sleep(2.0)
    later = resident_mib(program.pid)
    program.terminate()
    program.wait()
    watch.terminate()
    return mapped, first, later


def main():
    command = sys.argv[1:]
    if not command or "DISPLAY" not in os.environ:
        sys.exit(__doc__)
    for _ in range(RUNS):
        mapped, first, later = one_run(command)
        print(f"mapped after {mapped:.0f} ms; {first:.0f} MiB at first, {later:.0f} MiB with the chooser")


if __name__ == "__main__":
    main()
