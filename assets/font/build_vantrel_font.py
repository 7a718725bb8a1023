#!/usr/bin/python3
"""Builds VantrelFont, the face of the paper sheets: build_vantrel_font.py SOURCE OUTPUT

Letters and digits are those of TeX Gyre Pagella, which the GUST Font License lets anybody change
and pass on under another name. The signs of mathematics are drawn below, all with one stroke.
"""
import math
import sys

from fontTools.fontBuilder import FontBuilder
from fontTools.pens.boundsPen import BoundsPen
from fontTools.pens.t2CharStringPen import T2CharStringPen
from fontTools.pens.transformPen import TransformPen
from fontTools.ttLib import TTFont

FAMILY = "VantrelFont"
STYLE = "Regular"
VERSION = "1.000"
LICENSE = ("GUST Font License, version 1.0. VantrelFont is derived from TeX Gyre Pagella and "
           "renamed, as that license asks of changed fonts.")
LICENSE_URL = "http://www.gust.org.pl/fonts/licenses/GUST-FONT-LICENSE.txt"
# Seconds since 1904; fixed, so that every build gives the same bytes.
CREATED = 3786912000

# A sheet prints 12 points as 16 pixels of letter. 17 blanks are 67 pixels there, a digit is as wide
# as two blanks, and a line is 17.2 pixels high: with 170 units to the pixel all three are whole.
PIXEL = 170
UNITS_PER_EM = 16 * PIXEL
DIGIT = 1340
BLANK = DIGIT // 2
LINE = 2924
# The baseline's place in the cell is chosen with BAR_MIDDLE, see there.
ASCENT = 1938
DESCENT = LINE - ASCENT
SCALE = DIGIT / 500  # the source face has 1000 units and digits of 500

CODE_POINTS = [*range(0x20, 0x7F), *range(0xA0, 0x180), 0x2013, 0x2014, 0x2018, 0x2019, 0x201A,
               0x201C, 0x201D, 0x201E, 0x2022, 0x2026, 0x20AC]


# --- The letters of the source face ---------------------------------------------------------------

# Between these heights (source units) a descender is straight or nearly so; it is shortened there,
# for between a numerator's baseline and its bar there are 4 pixels.
SQUEEZE_TOP = -15
SQUEEZE_BOTTOM = -190
SQUEEZE = 0.62
DESCENDING = "gjpqyQ\u00fd\u00fe\u00ff"
# Brackets reach from here to here (source units), to clear bars above and below.
BRACKETS = "()[]{}"
BRACKET_BOTTOM = -200
BRACKET_TOP = 715


class SqueezePen(TransformPen):
    """Shortens what hangs below the baseline without thinning the foot of it."""

    def __init__(self, pen):
        super().__init__(pen, (1, 0, 0, 1, 0, 0))
        self._transformPoint = squeezed
        self._transformPoints = lambda points: [squeezed(point) for point in points]


def squeezed(point):
    x, y = point
    if y >= SQUEEZE_TOP:
        return x, y
    inside = max(y, SQUEEZE_BOTTOM)
    return x, SQUEEZE_TOP + (inside - SQUEEZE_TOP) * SQUEEZE + (y - inside)


def bracket_transform(glyph, glyphs):
    bounds = BoundsPen(glyphs)
    glyph.draw(bounds)
    _, bottom, _, top = bounds.bounds
    factor = (BRACKET_TOP - BRACKET_BOTTOM) / (top - bottom)
    return 1, 0, 0, factor, 0, BRACKET_BOTTOM - bottom * factor


def char_string(draw, advance):
    pen = T2CharStringPen(advance, None)
    draw(pen)
    return pen.getCharString()


def source_glyph(character, glyph, glyphs):
    def draw(pen):
        pen = TransformPen(pen, (SCALE, 0, 0, SCALE, 0, 0))
        if character in BRACKETS:
            pen = TransformPen(pen, bracket_transform(glyph, glyphs))
        elif character in DESCENDING:
            pen = SqueezePen(pen)
        elif character == "*":
            # Here it is a sign between numbers, not a note mark.
            aside = (WIDE / SCALE - glyph.width) / 2
            pen = TransformPen(pen, (1, 0, 0, 1, aside, AXIS / SCALE - 522))
        glyph.draw(pen)

    advance = WIDE if character == "*" else round(glyph.width * SCALE)
    return char_string(draw, advance), advance


# --- Signs between numbers ------------------------------------------------------------------------

STROKE = 136  # 0.8 pixels, as the source face's underscore
HALF = STROKE / 2
AXIS = 690  # the middle of the signs over the baseline
ARM = 550  # half a sign's width
WIDE = 1720  # the advance of signs that stand between terms: room on both sides
# More room for minus and equals, which stand almost in line with the bars of fractions; the minus,
# which could be one, is short as well.
MINUS = 2040
EQUAL = 2040


def polygon(points):
    """A closed outline; turned so that it runs counter-clockwise, the filled side."""
    area = sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(points, points[1:] + points[:1]))
    return points if area > 0 else points[::-1]


def box(left, bottom, right, top):
    return polygon([(left, bottom), (right, bottom), (right, top), (left, top)])


def bar(middle_x, y, half_length=ARM):
    return box(middle_x - half_length, y - HALF, middle_x + half_length, y + HALF)


def cross(x, y, arm):
    corner = [(arm, -HALF), (arm, HALF), (HALF, HALF)]
    points = []
    for _ in range(4):
        points += [(x + px, y + py) for px, py in corner]
        corner = [(-py, px) for px, py in corner]
    return polygon(points)


def turned(points, x, y, degrees):
    c, s = math.cos(math.radians(degrees)), math.sin(math.radians(degrees))
    return [(x + (px - x) * c - (py - y) * s, y + (px - x) * s + (py - y) * c) for px, py in points]


def circle(x, y, radius):
    k = radius * 0.5523
    return [("move", (x + radius, y)),
            ("curve", (x + radius, y + k), (x + k, y + radius), (x, y + radius)),
            ("curve", (x - k, y + radius), (x - radius, y + k), (x - radius, y)),
            ("curve", (x - radius, y - k), (x - k, y - radius), (x, y - radius)),
            ("curve", (x + k, y - radius), (x + radius, y - k), (x + radius, y))]


EQUAL_GAP = 190  # from the axis to the middle of each bar


def plus(advance):
    return [cross(advance / 2, AXIS, ARM)]


def minus():
    return [bar(MINUS / 2, AXIS, ARM - 90)]


def times():
    return [turned(cross(WIDE / 2, AXIS, ARM), WIDE / 2, AXIS, 45)]


def equal():
    return [bar(EQUAL / 2, AXIS + rise) for rise in (-EQUAL_GAP, EQUAL_GAP)]


def not_equal(advance):
    """Two bars and a stroke through them in one outline: nothing is filled twice."""
    middle = advance / 2
    lean = 0.42
    half_width = HALF * math.hypot(1, lean)
    reach = 520

    def left(y):
        return middle + (y - AXIS) * lean - half_width, y

    def right(y):
        return middle + (y - AXIS) * lean + half_width, y

    outline = []
    for side, end in ((right, middle + ARM), (left, middle - ARM)):
        edges = [AXIS - EQUAL_GAP - HALF, AXIS - EQUAL_GAP + HALF, AXIS + EQUAL_GAP - HALF,
                 AXIS + EQUAL_GAP + HALF]
        upward = [side(AXIS - reach)]
        for lower, upper in (edges[:2], edges[2:]):
            upward += [side(lower), (end, lower), (end, upper), side(upper)]
        upward.append(side(AXIS + reach))
        outline += upward if side is right else upward[::-1]
    return [polygon(outline)]


def plus_or_minus():
    middle = DIGIT / 2
    return [cross(middle, AXIS + 150, ARM - 60), bar(middle, HALF, ARM - 60)]


def division():
    middle = WIDE / 2
    radius = 118
    away = 400
    return [bar(middle, AXIS), circle(middle, AXIS + away, radius),
            circle(middle, AXIS - away, radius)]


def angle(direction):
    """The less and greater signs: two strokes to one corner, which is cut upright."""
    tip, tail = WIDE / 2 + direction * ARM, WIDE / 2 - direction * ARM
    rise = 400
    up = HALF * math.hypot(2 * ARM, rise) / (2 * ARM)  # half the stroke, measured upright
    inner = tip - direction * 2 * ARM * up / rise
    return [polygon([(tail, AXIS + rise + up), (tip, AXIS + up), (tip, AXIS - up),
                     (tail, AXIS - rise - up), (tail, AXIS - rise + up), (inner, AXIS),
                     (tail, AXIS + rise - up)])]


def pi():
    return [[("move", (1285, 1257)), ("line", (420, 1257)),
             ("curve", (240, 1257), (125, 1165), (60, 985)), ("line", (128, 955)),
             ("curve", (185, 1060), (255, 1095), (375, 1095)), ("line", (452, 1095)),
             ("curve", (445, 690), (395, 330), (235, 95)),
             ("curve", (170, 0), (255, -65), (345, 0)),
             ("curve", (515, 120), (620, 610), (632, 1095)), ("line", (842, 1095)),
             ("curve", (826, 800), (812, 520), (812, 290)),
             ("curve", (812, 80), (900, -28), (1050, -28)),
             ("curve", (1150, -28), (1230, 10), (1290, 75)), ("line", (1253, 148)),
             ("curve", (1215, 122), (1170, 110), (1132, 110)),
             ("curve", (1045, 110), (1008, 165), (1008, 290)),
             ("curve", (1008, 520), (1020, 800), (1036, 1095)), ("line", (1285, 1095))]]


# --- Bars and roots -------------------------------------------------------------------------------
#
# From here on in pixels of the 12-point cell, x from the glyph's origin, y down from the cell's
# top: the terms in which the sheet's line routines place these glyphs.

# One glyph is both a fraction's bar and the bar over a root. In a fraction the denominator's cell
# lies 20.4 below the numerator's, so the bar must lie between a descender of the one and a bracket
# of the other; over a root the bar's cell lies 18 above the body's and must clear an exponent's
# digits. 4.4 below the baseline serves both. And since line after line starts at the same fraction
# of a pixel, this place and this baseline put baselines and bars on whole rows of pixels.
BAR_MIDDLE = 15.8
BAR_TOP = BAR_MIDDLE - HALF / PIXEL
BAR_BOTTOM = BAR_MIDDLE + HALF / PIXEL

# How the line routines place the pieces of a root whose body starts at (0, 0): the bar's left end,
# the sign, and for a body with a fraction the sign's upper part and the sign below it.
BAR_AT = (6, -18)
TALL_BAR_AT = (6, -7.2 - 18)
SIGN_AT = (-2, -2)
UPPER_AT = (2, -9)
TALL_SIGN_AT = (2 + DIGIT / PIXEL - 14, -9 + 16)

# Where the rising stroke ends: in the bar's left end.
SIGN_TIP = (BAR_AT[0] - SIGN_AT[0], BAR_AT[1] + BAR_MIDDLE - SIGN_AT[1])
UPPER_TIP = (TALL_BAR_AT[0] - UPPER_AT[0], TALL_BAR_AT[1] + BAR_MIDDLE - UPPER_AT[1])
# Where the upper part takes over from the sign below it.
UPPER_FOOT = (TALL_SIGN_AT[0] + SIGN_TIP[0] - UPPER_AT[0],
              TALL_SIGN_AT[1] + SIGN_TIP[1] - UPPER_AT[1])

SIGN_TICK = (2.3, 8.75)
SIGN_SHOULDER = (3.35, 8.1)
SIGN_TURN = (5.2, 13.75)
SIGN_FOOT = 14.4  # 1 pixel below the baseline of the body
HAIR = 0.62
STEM = 1.3
RULE = STROKE / PIXEL


class Edge:
    """One edge of a stroke from a to b, `offset` to the right of its middle seen along the way."""

    def __init__(self, a, b, offset):
        length = math.hypot(b[0] - a[0], b[1] - a[1])
        self.along = (b[0] - a[0]) / length, (b[1] - a[1]) / length
        self.start = a[0] - self.along[1] * offset, a[1] + self.along[0] * offset

    def meet(self, other):
        (ax, ay), (bx, by) = self.along, other.along
        dx, dy = other.start[0] - self.start[0], other.start[1] - self.start[1]
        t = (dx * by - dy * bx) / (ax * by - ay * bx)
        return self.start[0] + t * ax, self.start[1] + t * ay

    def at_height(self, y):
        t = (y - self.start[1]) / self.along[1]
        return self.start[0] + t * self.along[0], y


def edges(a, b, width):
    return Edge(a, b, -width / 2), Edge(a, b, width / 2)


def from_pixels(points):
    return polygon([(x * PIXEL, ASCENT - y * PIXEL) for x, y in points])


def radical():
    tick_upper, tick_lower = edges(SIGN_TICK, SIGN_SHOULDER, HAIR)
    fall_right, fall_left = edges(SIGN_SHOULDER, SIGN_TURN, STEM)
    rise_left, rise_right = edges(SIGN_TURN, SIGN_TIP, RULE)
    top = SIGN_TIP[1] - RULE / 2
    return [from_pixels([tick_upper.start, tick_upper.meet(fall_right), fall_right.meet(rise_left),
                         rise_left.at_height(top), rise_right.at_height(top),
                         rise_right.at_height(SIGN_FOOT), fall_left.at_height(SIGN_FOOT),
                         fall_left.meet(tick_lower), tick_lower.start])]


def radical_upper():
    left, right = edges(UPPER_FOOT, UPPER_TIP, RULE)
    top, foot = UPPER_TIP[1] - RULE / 2, UPPER_FOOT[1] + RULE / 2
    return [from_pixels([left.at_height(top), right.at_height(top), right.at_height(foot),
                         left.at_height(foot)])]


def bar_segment():
    """A trifle longer than its advance on both sides, so that rounding leaves no gap in a row."""
    spill = 0.05
    return [from_pixels([(-spill, BAR_TOP), (DIGIT / PIXEL + spill, BAR_TOP),
                         (DIGIT / PIXEL + spill, BAR_BOTTOM), (-spill, BAR_BOTTOM)])]


# --- The font -------------------------------------------------------------------------------------

def own_glyphs():
    """Character to glyph name, outlines and advance; these replace what the source face has."""
    return {
        "~": ("radical", radical(), DIGIT),
        "&": ("radical.upper", radical_upper(), DIGIT),
        "`": ("pi", pi(), DIGIT),
        "\\": ("plusminus", plus_or_minus(), DIGIT),
        "$": ("notequal", not_equal(DIGIT), DIGIT),
        "{": ("divide", division(), WIDE),
        "_": ("barsegment", bar_segment(), DIGIT),
        "+": ("plus", plus(WIDE), WIDE),
        "-": ("minus", minus(), MINUS),
        "=": ("equal", equal(), EQUAL),
        "<": ("less", angle(-1), WIDE),
        ">": ("greater", angle(1), WIDE),
        "\u00d7": ("multiply", times(), WIDE),
    }


# The signs under their usual code points as well.
SAME_GLYPH = {"\u03c0": "`", "\u00b1": "\\", "\u2260": "$", "\u00f7": "{", "\u2212": "-"}


def draw_outlines(outlines, pen):
    for outline in outlines:
        for number, step in enumerate(outline):
            kind, *points = step if isinstance(step[0], str) else (
                "line" if number else "move", step)
            points = [(round(x), round(y)) for x, y in points]
            {"move": pen.moveTo, "line": pen.lineTo, "curve": pen.curveTo}[kind](*points)
        pen.closePath()


def collect(source):
    """Character map, char strings and advances, the missing glyph first."""
    glyphs, characters = source.getGlyphSet(), source.getBestCmap()
    missing = [box(150, 0, 1190, 1850),
               box(150 + STROKE, STROKE, 1190 - STROKE, 1850 - STROKE)[::-1]]
    strings = {".notdef": char_string(lambda pen: draw_outlines(missing, pen), DIGIT)}
    advances = {".notdef": DIGIT}
    cmap = {}
    own = own_glyphs()
    for character in [chr(code) for code in CODE_POINTS] + list(own):
        if character in own:
            name, outlines, advance = own[character]
            string = char_string(lambda pen: draw_outlines(outlines, pen), advance)
        elif ord(character) in characters and character not in SAME_GLYPH:
            name = characters[ord(character)]
            string, advance = source_glyph(character, glyphs[name], glyphs)
        else:
            continue
        cmap[ord(character)] = name
        strings[name], advances[name] = string, advance
    for twin, character in SAME_GLYPH.items():
        cmap[ord(twin)] = cmap[ord(character)]
    return cmap, strings, advances


def names(source):
    copyright_line = source["name"].getDebugName(0)
    return {
        "copyright": copyright_line, "familyName": FAMILY, "styleName": STYLE,
        "uniqueFontIdentifier": f"{VERSION};{FAMILY}-{STYLE}", "fullName": f"{FAMILY} {STYLE}",
        "version": f"Version {VERSION}", "psName": f"{FAMILY}-{STYLE}",
        "description": "The face of the paper sheets: letters and digits derived from TeX Gyre "
                       "Pagella, changed in metrics and descenders; signs of mathematics added.",
        "licenseDescription": LICENSE, "licenseInfoURL": LICENSE_URL,
    }


def build(source_path, output_path):
    source = TTFont(source_path)
    if source["head"].unitsPerEm != 1000 or source.getGlyphSet()["zero"].width != 500:
        sys.exit(f"{source_path}: not a face of 1000 units with digits of 500")
    cmap, strings, advances = collect(source)
    records = names(source)

    builder = FontBuilder(UNITS_PER_EM, isTTF=False)
    builder.setupGlyphOrder(list(strings))
    builder.setupCharacterMap(cmap)
    builder.setupCFF(records["psName"],
                     {"version": VERSION, "Notice": records["copyright"], "Weight": STYLE,
                      "FullName": records["fullName"], "FamilyName": FAMILY,
                      "FontMatrix": [1 / UNITS_PER_EM, 0, 0, 1 / UNITS_PER_EM, 0, 0]},
                     strings, {})
    bounds = {name: string.calcBounds(None) for name, string in strings.items()}
    builder.setupHorizontalMetrics(
        {name: (advance, round((bounds[name] or [0])[0])) for name, advance in advances.items()})
    builder.setupHorizontalHeader(ascent=ASCENT, descent=-DESCENT, lineGap=0)
    builder.setupNameTable(records)
    builder.setupOS2(version=4, sTypoAscender=ASCENT, sTypoDescender=-DESCENT, sTypoLineGap=0,
                     usWinAscent=ASCENT, usWinDescent=DESCENT, usWeightClass=400, usWidthClass=5,
                     fsSelection=0x40 | 0x80, fsType=0, achVendID="VNTR",
                     sxHeight=round(469 * SCALE), sCapHeight=round(692 * SCALE),
                     xAvgCharWidth=DIGIT)
    builder.setupPost(underlinePosition=round(ASCENT - BAR_MIDDLE * PIXEL),
                      underlineThickness=STROKE)
    builder.font["head"].created = builder.font["head"].modified = CREATED
    builder.save(output_path)


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit("usage: build_vantrel_font.py SOURCE OUTPUT")
    build(sys.argv[1], sys.argv[2])
