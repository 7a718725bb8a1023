"""Equations of one letter and of two, solved as they are taught."""

import re
from fractions import Fraction

import expressions as ex
from coarse import DECIMALS, Coarse
from judging import Exempt, Topic, texts
from notation import shown, typed, worked
from spread import Spread

PRODUCT = "a product of letters is only divided by its number"
EXACTLY = Spread(Coarse([]))


def side_form(tree):
    """The numbers before the letters of a side; () has the one without."""
    return EXACTLY.whole(worked(tree, EXACTLY))


def form(equation, read):
    """What the left side has more than the right one."""
    left, right = (side_form(read(side)) for side in equation.split("="))
    return {letters: left.get(letters, 0) - right.get(letters, 0) for letters in {**left, **right}
            if left.get(letters, 0) != right.get(letters, 0)}


def same_solutions(one, other):
    if set(one) != set(other):
        return not set(one) - {()} and not set(other) - {()} and bool(one) == bool(other)
    ratios = {Fraction(one[letters]) / other[letters] for letters in one}
    return len(ratios) < 2 or not set(one) - {()}


def term_text(count, name):
    """A term with its sign, such as -#2x/3#."""
    count = Fraction(count)
    above = str(abs(count.numerator))
    above = name if name and above == "1" else above + name
    sign = "-" if count < 0 else "+"
    return sign + (above if count.denominator == 1 else f"#{above}/{count.denominator}#")


def solution(problem, wanted):
    """The number for each other letter, and for (), that the wanted letter equals."""
    divisor = problem[((wanted, 1),)]
    return {letters: -Fraction(count) / divisor for letters, count in problem.items()
            if letters != ((wanted, 1),)}


def solution_text(solved):
    shown_terms = [term_text(solved[letters], letters[0][0] if letters else "")
                   for letters in sorted(solved, reverse=True)]
    return "".join(shown_terms).removeprefix("+") or "0"


def letters_of(text):
    return list(dict.fromkeys(filter(str.isalpha, text)))


def chosen_letter(entered):
    letters = letters_of(entered["problem"])
    if set(letters) == {"x", "y"}:
        return "y"
    if len(letters) == 2:
        return next(answer for answer in entered["answers"] if answer in letters)
    return letters[0]


def wanted_letter(problem, entered):
    """The letter that is solved for: another one where the chosen one has been cancelled."""
    chosen = chosen_letter(entered)
    if ((chosen, 1),) in problem:
        return chosen
    return next(letters[0][0] for letters in problem if letters)


def judge(entered, answer):
    if answer["failure"]:
        return f"the failure {answer['failure']}"
    problem = form(entered["problem"], typed)
    lines = texts(answer)
    decimals = not entered["settings"].get("UseFractions", True)
    for line in lines[:-1] if decimals or "$" in lines[-1] else lines:
        if not same_solutions(form(line, shown), problem):
            return f"{line} has other solutions"
    if any(len(letters) > 1 for letters in problem):
        return Exempt(PRODUCT)
    if not set(problem) - {()}:
        return judge_statement(problem, answer)
    wanted = wanted_letter(problem, entered)
    solved = solution(problem, wanted)
    if not decimals:
        right = f"{wanted}={solution_text(solved)}"
        return None if lines[-1] == right else f"the solution is {right}"
    return judge_decimals(lines[-1], wanted, solved, entered["settings"]["RoundDigits"])


def judge_decimals(line, wanted, solved, places):
    """Each number is rounded to so many places, half to even; the sheet shows seven digits."""
    left, right = line.split("=")
    found = {letters: count for letters, count in side_form(shown(right)).items() if count}
    for rounded, verdict in ((round, None), (seven_digits, Exempt(DECIMALS))):
        expected = {letters: rounded(count, places) for letters, count in solved.items()}
        if left == wanted and found == {key: count for key, count in expected.items() if count}:
            return verdict
    return f"{wanted} is {solved}"


def seven_digits(count, places):
    return Coarse(["sums", "decimals"], places).rounded(count)


def judge_statement(problem, answer):
    line = answer["lines"][-1]
    if not problem:
        if form(line["text"], shown):
            return "the last line is not true"
        number = r"(-?[\d.]+|-?#\d+/\d+#)"
        told = re.fullmatch(rf"Since {number} equals \1 then [a-z] can be any real number\.",
                            line["note"])
        return None if told else "any number solves it"
    left, _, right = line["text"].partition("$")
    if side_form(shown(left)) == side_form(shown(right or left)):
        return "nothing solves it"
    told = f"Since {left} does not equal {right}, this equation has no solutions."
    return None if line["note"] == told else "it says something else than the line"


def judge_graph(entered, answer):
    verdict = judge(entered, answer)
    if verdict is not None:
        return verdict
    line = texts(answer)[-1]
    drawn = (answer["graph"] or {}).get("equation")
    last = form(line, shown) if "$" not in line else {}
    if not set(last) - {()}:
        return None if drawn is None else "a graph without a letter"
    letters = letters_of(entered["problem"])
    wanted = line[0]
    names = {letter: "x" for letter in letters}
    if wanted == chosen_letter(entered) and (wanted == "y" or len(letters) > 1):
        names[wanted] = "y"
    renamed = {tuple((names[letter], power) for letter, power in product): count
               for product, count in last.items()}
    return None if graph_form(drawn) == renamed else f"the graph is of {renamed}"


def graph_form(equation):
    """The form of the text that the graph gets, such as +1/1y^+1=-2/3x+2/1."""
    total = {}
    for side, sign in zip(equation.split("="), (1, -1)):
        for mark, above, below, letter in re.findall(
                r"([+-])([\d.]+)/([\d.]+)([a-z]?)(?:\^\+1)?|$", side):
            if mark:
                letters = ((letter, 1),) if letter else ()
                count = sign * Fraction(mark + above) / Fraction(below)
                total[letters] = total.get(letters, 0) + count
    return {letters: count for letters, count in total.items() if count}


def side(draws, number, letters, most, product):
    def item():
        if draws.random() < 0.45:
            return number(draws)
        count = number(draws) if draws.random() < 0.7 else ""
        names = draws.sample(letters, 2 if len(letters) > 1 and draws.random() < product else 1)
        return count + "".join(names)

    return ex.joined(draws, "+-", item, most, 0.2)


def equation(draws, number, pairs, most, product=0):
    letters = list(draws.choice(pairs))
    left, right = [side(draws, number, letters, most, product) for _ in "12"]
    form_of = draws.choice(["{0}={1}"] * 8 + ["{0}={0}", "{0}={0}+{2}", "{1}-{1}+{0}={2}"])
    return form_of.format(left, right, number(draws))


def asked(draw):
    """With answers to the question which letter is to be solved for, the first one perhaps none."""
    def entered(draws):
        fields = draw(draws)
        letters = letters_of(fields["problem"]) or ["x"]
        answers = draws.sample(letters, len(letters))
        return {**fields, "answers": ["q"] + answers if draws.random() < 0.2 else answers}

    return entered


LETTERS = ["x", "x", "n", "a", "y"]
PAIRS = ["xy", "xy", "yx", "ab", "x", "y", "bx", "yz"]
TOPICS = [
    Topic(["Arithmetic Principles", "Solving Equations"], ex.school(equation, ex.small, LETTERS, 3),
          ex.hard(equation, ex.long, LETTERS, 6), judge,
          {DECIMALS: (0, 0.02)}),
    Topic(["Graphing A Linear Equation"], asked(ex.school(equation, ex.small, PAIRS, 3)),
          asked(ex.hard(equation, ex.long, PAIRS, 6, 0.02)), judge_graph,
          {DECIMALS: (0, 0.02), PRODUCT: (0, 0.05)}),
]
