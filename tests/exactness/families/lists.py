"""What sums up a list of numbers: mean, median, mode and range."""

from collections import Counter

from judging import Exempt, Topic, ends_in, fails, texts
from values import decimal, decimal_text, value, whole
from ways import TIE, Doubles, Exact

SPELLED = "one number in two spellings counts as two numbers"


def entries(entered):
    """The entries of a list, None when it is unfinished."""
    return None if not entered["problem"][-1].isdigit() else entered["problem"].split(",")


def mean(entered, answer):
    listed = entries(entered)
    if listed is None:
        return fails(answer, "format")
    total, count = sum(map(value, listed)), len(listed)
    places = entered["settings"]["RoundDigits"]
    joined = "+".join(listed).replace("+-", "-")
    lines = [f"Average = #{joined} / {count}#", f"Average = #{decimal_text(total)} / {count}#"]
    exact = Exact.rounded(total / count, places)
    wrong = ends_in(answer, *lines, f"Average = {Exact.text(exact)}")
    if wrong is None:
        return None
    double = Doubles.rounded(float(total) / count, places)
    return wrong if ends_in(answer, *lines, f"Average = {Doubles.text(double)}") else Exempt(TIE)


def median(entered, answer):
    listed = entries(entered)
    if listed is None:
        return fails(answer, "format")
    ordered, count = sorted(map(value, listed)), len(listed)
    shown = texts(answer)[2].split(",")
    if sorted(shown) != sorted(listed) or list(map(value, shown)) != ordered:
        return f"the list is not in order: {shown}"
    middle = shown[(count - 1) // 2], shown[count // 2]
    if count % 2:
        return ends_in(answer, f"There is an odd amount of numbers: {count}",
                       f"The median is {middle[0]}")
    exact = decimal_text(sum(map(value, middle)) / 2)
    return ends_in(answer, f"There is an even amount of numbers: {count}",
                   f"Take the average of the two middle numbers: {middle[0]} and {middle[1]}",
                   f"The median is {exact}")


def mode_lines(counts):
    """The last two lines for numbers and how often each occurs."""
    most = max(counts.values())
    modes = [number for number, count in counts.items() if count == most]
    if most == 1:
        return "Each number occurs the same number of times (1).", "There is no mode."
    if len(modes) == 1:
        return f"{modes[0]} occurs the most ({most} times):", f"Mode: {modes[0]}"
    return f"There are {len(modes)} modes, each occuring {most} times:", ", ".join(modes)


def mode(entered, answer):
    if entries(entered) is None:
        return fails(answer, "format")
    listed = entries(entered)
    first = {value(text): text for text in reversed(listed)}
    exact = mode_lines(Counter(first[value(text)] for text in listed))
    as_spelled = mode_lines(Counter(listed))
    if exact == as_spelled:
        return ends_in(answer, *exact)
    return ends_in(answer, *as_spelled) or Exempt(SPELLED)


def spread(entered, answer):
    listed = entries(entered)
    if listed is None:
        return fails(answer, "format")
    largest, smallest = max(listed, key=value), min(listed, key=value)
    shown = f"({smallest})" if value(smallest) < 0 else smallest
    difference = decimal_text(value(largest) - value(smallest))
    return ends_in(answer, f"{largest} - {shown}", f"The range is {difference}.")


def listing(draws, problem):
    return {"problem": problem, "settings": {"RoundDigits": draws.randint(1, 5)}}


def school(draws):
    return listing(draws, ",".join(str(draws.randint(1, 20)) for _ in range(draws.randint(2, 9))))


def entry(draws, longest):
    odd = ["0", "-0", "0.00", ".5", "-.5", "007", "99999.99", "-99999.99", "2", "2.0", "2.00"]
    number = draws.choice(["", "-"]) + decimal(draws, longest)
    return draws.choice([number] * 60 + odd)


def hard(draws):
    longest = draws.choice([1, 5, 5])
    listed = [entry(draws, longest) for _ in range(draws.choice([1, 2, 3, 4, 5, 8, 9, 30]))]
    if draws.random() < 0.3:
        listed += draws.choices(listed, k=3)
    if draws.random() < 0.1:
        listed = [whole(draws, 5)] * len(listed)
    return listing(draws, ",".join(listed) + draws.choice([""] * 60 + [",", ",-", ","]))


TOPICS = [
    Topic(["Means (Averages)", "Means", "Averages"], school, hard, mean, {TIE: (0.002, 0.004)}),
    Topic(["Medians"], school, hard, median),
    Topic(["Modes"], school, hard, mode, {SPELLED: (0, 0.1)}),
    Topic(["Ranges"], school, hard, spread),
]
