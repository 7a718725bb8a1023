#!/usr/bin/env python3
"""How many school problems a second the batch of the command line works.

    batch.py NUMERELLO_CLI
"""

import json
import os
import subprocess
import sys
import tempfile

EQUATIONS = "Arithmetic Principles"
POLYNOMIALS = "Simplifying Polynomials"
COMPLEX = "Complex Arithmetic Expressions"
FRACTIONS = "Fraction Arithmetic"
PROBLEMS = [
    (EQUATIONS, "2x+3=7"),
    (EQUATIONS, "3x-4=2x+5"),
    (EQUATIONS, "-x=4"),
    (EQUATIONS, "2x+3=4x-5"),
    (POLYNOMIALS, "3x+2x"),
    (POLYNOMIALS, "2(x+3)"),
    (POLYNOMIALS, "(x+1)*(x-1)"),
    ("Arithmetic", "4+2*3-5"),
    (COMPLEX, "2*(3+4)*5"),
    (FRACTIONS, "1/2+1/3"),
    (FRACTIONS, "5/6+1/4-1/2"),
    (COMPLEX, "2^3*(5-3)^2"),
    ("Absolute Values", "|-5|+3"),
]
ROUNDS = 5000


def main():
    with tempfile.TemporaryFile("w+") as requests:
        for number in range(ROUNDS):
            for topic, problem in PROBLEMS:
                fields = {"id": number, "do": "solve", "topic": topic, "problem": problem}
                requests.write(json.dumps(fields) + "\n")
        requests.seek(0)
        before = os.times()
        subprocess.run([sys.argv[1], "batch"], stdin=requests, stdout=subprocess.DEVNULL, check=True)
        after = os.times()
    processor = (
        after.children_user + after.children_system - before.children_user - before.children_system
    )
    count = ROUNDS * len(PROBLEMS)
    print(f"{count} problems in {processor:.2f} s of processor time: {count / processor:.0f} a second")


main()
