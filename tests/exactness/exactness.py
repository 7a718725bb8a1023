#!/usr/bin/env python3
"""Works and judges the problems of one family of topics, or tells what no family judges.

    exactness.py NUMERELLO_CLI FAMILY     such as conversions
    exactness.py NUMERELLO_CLI coverage   that each caption is judged by exactly one family
"""

import importlib
import pathlib
import sys
from collections import Counter

from judging import Program, failures

FAMILIES = pathlib.Path(__file__).parent / "families"


def topics_of(family):
    return importlib.import_module(f"families.{family}").TOPICS


def uncovered(program):
    captions = {topic["caption"] for topic in program.answers([{"do": "topics"}])[0]["topics"]}
    judged = Counter(caption for file in FAMILIES.glob("*.py") for topic in topics_of(file.stem)
                     for caption in topic.captions)
    told = [f"nobody judges {caption}" for caption in sorted(captions - set(judged))]
    told += [f"no such topic: {caption}" for caption in sorted(set(judged) - captions)]
    told += [f"judged {count} times: {caption}" for caption, count in judged.items() if count > 1]
    return told


def main():
    program = Program(sys.argv[1])
    family = sys.argv[2]
    if family == "coverage":
        told = uncovered(program)
    else:
        told = [line for topic in topics_of(family)
                for caption in topic.captions
                for line in failures(program, topic, caption)]
    if told:
        print(*told, sep="\n")
    return 1 if told else 0


sys.exit(main())
