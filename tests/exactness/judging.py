"""Problems of every topic, worked by the program and judged by sums of our own.

A module of families/ holds TOPICS, a list of Topic. For each the program works 2,000 problems as
they stand in a school book and 2,000 hard ones: the longest numbers that can be typed, zeros,
negative numbers, decimals. Nothing here shares a line with the solvers.
"""

import json
import random
import subprocess
from collections import Counter
from dataclasses import dataclass, field
from typing import Callable, Union

JUDGED = 2000
ROUND = 1000
# Draws for one judged problem, at most: a topic refuses some of what is drawn.
DRAWS = 8
FAILURES = {"overflow": "caused a data overflow", "division by zero": "caused division by 0",
            "format": "The format of the entered problem was not recognized"}


@dataclass(frozen=True)
class Exempt:
    """An answer that is not the exact one, for a reason that is known and told."""

    reason: str


Entered = dict  # the fields of a "solve" request, without the topic
Judge = Callable[[Entered, dict], Union[None, str, Exempt]]


@dataclass
class Topic:
    """How problems of some captions are made and judged.

    `school` and `hard` draw what is entered. `judge` gets that and the answer, and gives None for a
    right one, Exempt, or a text that says what is wrong. `exempt` has the highest share, from 0 to
    1, that a reason may have among the school problems and among the hard ones.
    """

    captions: list
    school: Callable[[random.Random], Entered]
    hard: Callable[[random.Random], Entered]
    judge: Judge
    exempt: dict = field(default_factory=dict)  # reason -> (share of school, share of hard)
    do: str = "solve"


class Program:
    """The program's batch."""

    def __init__(self, path):
        self.path = path

    def answers(self, requests):
        lines = "".join(json.dumps(request) + "\n" for request in requests)
        done = subprocess.run([self.path, "batch"], input=lines, capture_output=True, text=True,
                              check=True, timeout=300)
        answers = [json.loads(line) for line in done.stdout.splitlines()]
        assert len(answers) == len(requests), "an answer is missing"
        return answers


def texts(answer):
    """The lines of a worked problem."""
    return [line["text"] for line in answer["lines"]]


def ends_in(answer, *lines):
    """None when the work ends in these lines and nothing failed, else what is wrong.

    A line is its text, or its text and its reason.
    """
    if answer["failure"] is not None:
        return "no failure is to be expected"
    shown = [line["text"] if isinstance(right, str) else (line["text"], line["note"])
             for line, right in zip(answer["lines"][-len(lines):], lines)]
    return None if shown == list(lines) else f"the end is to be {lines}"


def fails(answer, kind):
    """None when the problem fails in that way, and says so to the learner."""
    told = [message["text"] for message in answer["messages"]]
    right = answer["failure"] == kind and told and FAILURES[kind] in told[-1]
    return None if right else "this is to fail: " + kind


@dataclass
class Findings:
    judged: int = 0
    drawn: int = 0
    exempt: Counter = field(default_factory=Counter)
    wrong: list = field(default_factory=list)


def judged(program, topic, caption, draw, seed):
    """Judges JUDGED problems that the program took as they were entered."""
    findings = Findings()
    draws = random.Random(seed)
    while findings.judged < JUDGED and findings.drawn < DRAWS * JUDGED:
        entered = [draw(draws) for _ in range(ROUND)]
        requests = [{"do": topic.do, "topic": caption, **fields} for fields in entered]
        for fields, answer in zip(entered, program.answers(requests)):
            findings.drawn += 1
            assert answer["ok"], answer
            if answer["refused"] or not answer["solvable"] or findings.judged == JUDGED:
                continue
            findings.judged += 1
            verdict = topic.judge(fields, answer)
            if isinstance(verdict, Exempt):
                findings.exempt[verdict.reason] += 1
            elif verdict is not None:
                findings.wrong.append((verdict, fields, answer))
    return findings


def failures(program, topic, caption):
    """What is wrong with a topic, as lines to print. Prints what is exempt."""
    told = []
    for kind, draw, place in (("school", topic.school, 0), ("hard", topic.hard, 1)):
        name = f"{caption}, {kind} problems"
        findings = judged(program, topic, caption, draw, f"{caption} {kind}")
        if findings.judged < JUDGED:
            told.append(f"{name}: only {findings.judged} of {findings.drawn} drawn were taken")
        for why, fields, answer in findings.wrong[:5]:
            shown = texts(answer)[-6:] if "lines" in answer else answer
            told.append(f"{name}: {why}\n    {json.dumps(fields)}\n    {shown}"
                        f" {answer['failure'] or ''}")
        if findings.wrong:
            told.append(f"{name}: {len(findings.wrong)} of {findings.judged} wrong")
        for reason, count in findings.exempt.items():
            share = count / max(findings.judged, 1)
            print(f"{name}: {share:.2%} exempt, {reason}")
            allowed = topic.exempt.get(reason, (0, 0))[place]
            if share > allowed:
                told.append(f"{name}: {share:.2%} exempt, {reason}, where {allowed:.2%} may be")
    return told
