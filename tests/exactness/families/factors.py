"""Multiples, factors and primes of whole numbers."""

import math

from judging import Exempt, Topic, ends_in, fails
from values import decimal, value, whole

LARGEST_WORD = 2 ** 15 - 1
LARGEST_LONG = 2 ** 31 - 1
SMOOTH = 2 ** 4 * 3 ** 2 * 5 * 7 * 11 * 13

TOO_LARGE = "the common multiple is beyond 32 bits: overflow"
LONG_ZERO = "a 0 of several digits in the list: division by zero"
BEYOND_WORD = "the smallest number is beyond 16 bits: overflow"
ZERO_LISTED = "a 0 in the list: the answer is 0, or empty"
NOT_PRIME = "0, 1 and broken numbers are called prime factors"


def multiples(entered, answer):
    typed = entered["problem"]
    return ends_in(answer, *((f"{k} * {typed} = {k * int(typed)}", f"Multiply {typed} by {k}.")
                             for k in range(11)))


def listed(entered):
    """A list as the solver gets it, and its numbers."""
    typed = entered["problem"].removesuffix(",")
    return typed, [int(entry) for entry in typed.split(",")]


def common_multiple(entered, answer):
    typed, numbers = listed(entered)
    entries = typed.split(",")
    exact = math.lcm(*numbers)
    if len(entries) > 1 and any(not int(entry) and entry != "0" for entry in entries):
        return fails(answer, "division by zero") or Exempt(LONG_ZERO)
    if exact > LARGEST_LONG:
        return fails(answer, "overflow") or Exempt(TOO_LARGE)
    return ends_in(answer, f"The LCM of {typed} is:",
                   (f"{exact}", f"{exact} is the LCM of {typed}."))


def common_factor(entered, answer):
    typed, numbers = listed(entered)
    if min(numbers) > LARGEST_WORD:
        return fails(answer, "overflow") or Exempt(BEYOND_WORD)
    exact = str(math.gcd(*numbers))
    shown = exact
    if 0 in numbers:
        shown = "0" if typed == "0" or typed.endswith(",0") or ",0," in typed else ""
    wrong = ends_in(answer, f"The GCF of {typed} is:",
                    (shown, f"{shown} is the GCF of {typed}."))
    return wrong or (None if shown == exact else Exempt(ZERO_LISTED))


def divisors(number):
    low = [i for i in range(1, math.isqrt(number) + 1) if number % i == 0]
    return low + [number // i for i in reversed(low) if i * i != number]


def factor_lines(number):
    found = divisors(number)
    pairs = [(f"{number} = {i} * {number // i}", f"{i} and {number // i} are both factors of "
              f"{number} because they both divide evenly into {number}.")
             for i in found if i * i <= number]
    return pairs + [f"Factors of {number}: " + ", ".join(map(str, found))]


def factors(entered, answer):
    number = int(entered["problem"])
    return ends_in(answer, entered["problem"], *(factor_lines(number) if number else []))


def kind(entered, answer):
    number = int(entered["problem"])
    if number == 0:
        return ends_in(answer, entered["problem"])
    count = len(divisors(number))
    told = ("is not prime or composite because {} does not have two different factors."
            if count == 1 else "is PRIME because {} has exactly two different factors."
            if count == 2 else "is COMPOSITE because {} has more than two different factors.")
    return ends_in(answer, *factor_lines(number), f"{number} " + told.format(number))


def primes(number):
    found, divisor = [], 2
    while number > 1:
        if divisor * divisor > number:
            divisor = number
        while number % divisor == 0:
            found.append(divisor)
            number //= divisor
        divisor += 1
    return found


def prime_factors(entered, answer):
    typed = entered["problem"]
    if typed.endswith("."):
        return fails(answer, "format")
    number = value(typed)
    found = primes(int(number)) if number.denominator == 1 else []
    heading = f"The prime factorization of {typed} is:"
    if len(found) < 2:
        wrong = ends_in(answer, heading, f"{typed} is already a prime factor.")
        return wrong or (None if found else Exempt(NOT_PRIME))
    rows = ["*".join(map(str, found[:i] + [math.prod(found[i:])])) for i in range(1, len(found))]
    return ends_in(answer, heading, *rows)


def one(longest, *odd):
    """Draws one whole number, now and then an odd one."""
    return lambda draws: {"problem": draws.choice([whole(draws, longest)] * 20 + list(odd))}


def school_list(draws):
    return {"problem": ",".join(str(draws.randint(1, 40)) for _ in range(draws.randint(1, 4)))}


def smooth(draws):
    """A divisor of a number with many, so that lists have common factors and multiples."""
    number = math.gcd(SMOOTH, draws.randrange(1, 10 ** 9) * draws.randint(1, 10 ** 4))
    return number if number < 10 ** 5 else 1


def hard_list(draws):
    if draws.random() < 0.5:
        shared = draws.randint(1, 7)
        entries = [str(smooth(draws) * shared)[:5] for _ in range(draws.randint(1, 12))]
    else:
        entries = [whole(draws, 5) for _ in range(draws.randint(1, 3))]
    if draws.random() < 0.2:
        odd = ["0", "00", "1", "00012", "99999", "32767", "32768", entries[0]]
        entries[draws.randrange(len(entries))] = draws.choice(odd)
    return {"problem": ",".join(entries) + draws.choice([""] * 9 + [","])}


def hard_prime_factors(draws):
    odd = ["0", "1", "2", "3", "4", "00012", "12.0", "7.00", "12.5", ".5", "7.", "99991", "65536",
           "59049", "99999", "99999.99"]
    return {"problem": draws.choice([whole(draws, 5)] * 15 + [decimal(draws, 5)] + odd)}


ODD = ["0", "00000", "1", "00001", "2", "4", "99991", "99999", "00036", "99856", "65536"]

TOPICS = [
    Topic(["Multiples"], one(3), one(8, "0", "00000000", "00000007", "99999999"), multiples),
    Topic(["Least Common Multiples"], school_list, hard_list, common_multiple,
          {TOO_LARGE: (0, 0.06), LONG_ZERO: (0, 0.03)}),
    Topic(["Greatest Common Factors"], school_list, hard_list, common_factor,
          {BEYOND_WORD: (0, 0.05), ZERO_LISTED: (0, 0.08)}),
    Topic(["Factoring"], one(3), one(5, *ODD), factors),
    Topic(["Prime/Composite"], one(3), one(5, *ODD), kind),
    Topic(["Prime Factorization"], lambda draws: {"problem": str(draws.randint(2, 999))},
          hard_prime_factors, prime_factors, {NOT_PRIME: (0, 0.22)}),
]
