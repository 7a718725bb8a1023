"""The notation of the worked lines, read into trees and worked by rules of arithmetic.

A tree is a tuple: its kind, then what it is made of.

    ("number", digits)  ("letter", name)  ("sum", term, ...)  ("negative", tree)
    ("times", a, b)     a*b               ("beside", a, b)    a factor straight before another
    ("fraction", a, b)  #a/b#             ("over", a, b)      a divided by b in the line
    ("power", a, exponent)                ("root", a)         ("bars", a)
    ("bracket", a)
"""

import re
from fractions import Fraction

TOKEN = re.compile(r"\d+\.?\d*(?:E[+-]\d+)?|\.\d+|\S")
FACTOR = re.compile(r"[\da-z.(#~|]")


class Unreadable(Exception):
    """A text that is none of the notation."""


class Reader:
    """Reads a line as it is shown. Emphasis is no part of it."""

    def __init__(self, line):
        self.tokens = TOKEN.findall(re.sub(r"[][]", "", line))
        self.tokens.append("")
        self.at = 0
        self.within = [""]  # the opening marks of what is open; "/" under a fraction line

    def tree(self):
        tree = self.sum()
        if self.tokens[self.at] != "":
            raise Unreadable("".join(self.tokens))
        return tree

    def take(self, token):
        if self.tokens[self.at] != token:
            return False
        self.at += 1
        return True

    def expect(self, token):
        if not self.take(token):
            raise Unreadable("".join(self.tokens))

    def signs(self):
        negative = False
        while self.tokens[self.at] in ("+", "-"):
            negative ^= self.tokens[self.at] == "-"
            self.at += 1
        return negative

    def sum(self):
        terms = [self.term()]
        while self.tokens[self.at] in ("+", "-"):
            terms.append(self.term())
        return terms[0] if len(terms) == 1 else ("sum", *terms)

    def term(self):
        negative = self.signs()
        tree = self.run()
        divided = False
        while True:
            if self.take("*"):
                negative ^= self.signs()
                tree = ("times", tree, self.run())
                divided = False
            elif self.take("{"):
                negative ^= self.signs()
                tree = ("over", tree, self.run())
            elif self.within[-1] != "#" and self.take("/"):
                negative ^= self.signs()
                tree = ("over", tree, self.divisor())
                divided = True
            elif divided and self.at_factor():
                tree = ("beside", tree, self.run())
            else:
                return ("negative", tree) if negative else tree

    def divisor(self):
        """The letters behind a number go under the line with it, a bracket does not."""
        tree = self.factor()
        while tree[0] != "bracket" and "a" <= self.tokens[self.at] <= "z":
            tree = ("beside", tree, self.factor())
        return tree

    def run(self):
        tree = self.factor()
        while self.at_factor():
            tree = ("beside", tree, self.factor())
        return tree

    def at_factor(self):
        """Whether a factor begins here: a mark that can close what is open closes it."""
        token = self.tokens[self.at]
        if token in ("#", "("):
            return self.within[-1] != "/"
        return FACTOR.match(token) is not None and token != self.within[-1]

    def factor(self):
        tree = self.bare()
        while self.take("^"):
            sign = -1 if self.take("-") else 1
            if not self.tokens[self.at].isdigit():
                raise Unreadable("".join(self.tokens))
            tree = ("power", tree, sign * int(self.tokens[self.at]))
            self.at += 1
            self.expect("^")
        return tree

    def bare(self):
        token = self.tokens[self.at]
        self.at += 1
        if token[:1].isdigit() or token[:1] == ".":
            return ("number", str(int(token)) if token.isdigit() else token)
        if "a" <= token <= "z":
            return ("letter", token)
        if token == "(":
            return ("bracket", self.enclosed("(", ")"))
        if token == "|":
            return ("bars", self.enclosed("|", "|"))
        if token == "~":
            return ("root", self.enclosed("~", "~"))
        if token == "#":
            return self.fraction()
        raise Unreadable("".join(self.tokens))

    def enclosed(self, opening, closing):
        self.within.append(opening)
        tree = self.sum()
        self.within.pop()
        self.expect(closing)
        return tree

    def fraction(self):
        self.within.append("#")
        tree = self.sum()
        self.within[-1] = "/"
        kind = "fraction"
        while not self.take("#"):
            if self.tokens[self.at] == "(":
                tree = ("beside", tree, self.factor())
            else:
                self.expect("/")
                tree = (kind, tree, self.sum())
                kind = "over"
        self.within.pop()
        return tree


def shown(line):
    """The tree of a line as it is shown."""
    return Reader(line).tree()


def typed(problem):
    """The tree of a line as it is typed: exponents, and roots at an operator, close themselves."""
    closed = re.sub(r"\^(-?\d)", r"^\1^", problem)
    return Reader(re.sub(r"~(\d+)~?", r"~\1~", closed)).tree()


def exact(digits):
    """The exact value of a number as it is shown, a whole one as an int."""
    if digits.isdigit():
        return int(digits)
    return plain(Fraction("0" + digits.removesuffix(".")))


def plain(number):
    return number.numerator if number.denominator == 1 else number


class Exactly:
    """The arithmetic of mathematics."""

    number = staticmethod(exact)
    root = None

    @staticmethod
    def sum(*values):
        return sum(values)

    @staticmethod
    def negative(value):
        return -value

    @staticmethod
    def times(one, other):
        return one * other

    beside = times

    @staticmethod
    def fraction(above, below):
        return plain(Fraction(above, below))

    over = fraction

    @staticmethod
    def power(base, exponent):
        if exponent == 0 and base == 0:
            raise ZeroDivisionError
        return base ** exponent if exponent >= 0 else Fraction(1) / base ** -exponent

    @staticmethod
    def bars(value):
        return abs(value)

    @staticmethod
    def bracket(value):
        return value


def worked(tree, rules=Exactly, letters=None):
    """The value of a tree where each letter has a value; ZeroDivisionError where it has none.

    Without `letters` the rules know what a letter is.
    """
    kind = tree[0]
    if kind == "number":
        return rules.number(tree[1])
    if kind == "letter":
        return letters[tree[1]] if letters else rules.letter(tree[1])
    if kind == "power":
        return rules.power(worked(tree[1], rules, letters), tree[2])
    return getattr(rules, kind)(*[worked(part, rules, letters) for part in tree[1:]])
