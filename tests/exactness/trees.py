"""The terms and factors of the trees that notation reads."""

from itertools import product as cross


def terms_of(tree):
    """The terms of a sum, and those of a product with a sum."""
    if tree[0] == "sum":
        return tree[1:]
    if tree[0] == "bracket":
        return terms_of(tree[1])
    above, below = factors(tree)
    sums = [part for part in above if part[0] == "bracket"]
    if not sums or len(above) == 1:
        return [tree]
    rest = [part for part in above if part[0] != "bracket"]
    return [quotient(rest + list(terms), below) for terms in cross(*map(terms_of, sums))]


def factors(tree):
    """The factors over and under the line, a sign as the number -1."""
    kind = tree[0]
    if kind == "negative":
        above, below = factors(tree[1])
        return [("negative", ("number", "1"))] + above, below
    if kind in ("times", "beside"):
        (above, below), (more_above, more_below) = factors(tree[1]), factors(tree[2])
        return above + more_above, below + more_below
    if kind in ("fraction", "over"):
        (above, below), (more_below, more_above) = factors(tree[1]), factors(tree[2])
        return above + more_above, below + more_below
    if kind == "bracket" and tree[1][0] != "sum":
        return factors(tree[1])
    return [tree], []


def quotient(above, below):
    tree = multiplied(above)
    return ("fraction", tree, multiplied(below)) if below else tree


def multiplied(parts):
    tree = ("number", "1")
    for part in parts:
        tree = part if tree == ("number", "1") else ("beside", tree, part)
    return tree


def unlike(old, new):
    """What stands in one list alone."""
    gone = list(old)
    come = []
    for part in new:
        if part in gone:
            gone.remove(part)
        else:
            come.append(part)
    return gone, come


def unit_powers(tree):
    """The tree with 1 for each bracket, and for each letter, to the power 0."""
    if tree[0] == "power" and tree[1][0] in ("bracket", "letter") and tree[2] == 0:
        return ("number", "1")
    return tuple(unit_powers(part) if isinstance(part, tuple) else part for part in tree)


def plain(term):
    """Whether a term is one number with letters: such a number is taken as it stands."""
    for parts in factors(term):
        rest = [part for part in parts if part != ("negative", ("number", "1"))]
        kinds = [part[1][0] if part[0] == "power" else part[0] for part in rest
                 if part[0] != "number"]
        if set(kinds) - {"letter"} or len(rest) - len(kinds) > 1:
            return False
    return True
