"""Why a line of a working is not exactly equal to the one before."""

from coarse import Coarse
from notation import Unreadable, worked
from spread import Spread
from trees import factors, plain, quotient, terms_of, unlike


def reason_of_step(old, new, entered, letters):
    """Why a line may differ from the one before, None where it may not."""
    settings = entered.get("settings", {})
    last = "fractions" if settings.get("UseFractions", True) else "decimals"
    ways = [["products"], ["sums"], [last], ["sums", last], ["sums", "products", last],
            ["brackets", "sums"], ["brackets", "products", "sums"]]
    for kinds in ways:
        rules = Coarse(kinds, settings.get("RoundDigits", 2))
        rules = Spread(rules) if letters else rules
        if explained(old, new, rules):
            return Coarse.KINDS[kinds[-1]]
    return None


def explained(old, new, rules):
    """Whether what a step has changed, wherever it stands, is worth the same by some rules."""
    old, new = (tree[1] if tree[0] == "bracket" else tree for tree in (old, new))
    if alike(old, new, rules):
        return True
    if old[0] == new[0] and old[0] in ("bars", "power") and old[2:] == new[2:]:
        return explained(old[1], new[1], rules)
    if "sum" in (old[0], new[0]):
        if old[0] != new[0]:
            return False
        gone, come = unlike(old[1:], new[1:])
        if len(gone) == len(come) and all(explained(*pair, rules) for pair in zip(gone, come)):
            return True
        return alike(("sum", *gone), ("sum", *come), rules)
    gone, come = map(list, zip(*map(unlike, factors(old), factors(new))))
    if [len(part) for part in gone + come] != [1, 0, 1, 0]:
        return alike(quotient(*gone), quotient(*come), rules)
    (gone, ), (come, ) = gone[0], come[0]
    return (gone, come) != (old, new) and explained(gone, come, rules)


def alike(old, new, rules):
    """Whether a tree, worked by some rules, is worth what another one is."""
    try:
        rows, come = [rules.rows([number_of(term, rules) for term in terms_of(tree)])
                      for tree in (old, new)]
        return all(alike_rows(rows.get(letters, []), come.get(letters, []), rules)
                   for letters in {**rows, **come})
    except (OverflowError, Unreadable, ZeroDivisionError):
        return False


def number_of(term, rules):
    return rules.whole(worked(term, rules.exactly() if plain(term) else rules))


def alike_rows(old, new, rules):
    """Whether numbers add up to the same, perhaps without those that stand in both."""
    gone, come = unlike(old, new)
    pairs = [(old, new), (gone, come), (list(map(rules.kept, gone)), come)]
    return any(total(one, rules) == total(other, rules) for one, other in pairs)


def total(row, rules):
    return row[0] if len(row) == 1 else rules.summed(row)
