#include <array>

#include "catalogue/entry_layouts.h"

namespace numerello {

namespace {

using Boxes = EntryBoxLayout;
using Labels = EntryLabel;
using Rules = EntryRule;
using enum NameSide;

// Widths of labels, with a little to spare.
constexpr int kHeightWidth = 64;  // also of length and radius
constexpr int kWidthWidth = 60;
constexpr int kDiameterWidth = 84;
constexpr int kBaseWidth = 48;
constexpr int kLetterWidth = 23;
constexpr int kIndexWidth = 32;

// A sign between boxes is larger than the text beside them, and the mark of the division bar
// reaches up to the bar.
constexpr int kSignSize = 24;
constexpr int kBarSize = 40;

// Boxes: number, x, y, name, side of the label, its width, anchor, column.

// --- On a picture -------------------------------------------------------------------------------

constexpr auto kCube = std::to_array<Boxes>({
    {2, 300, 232, "length=", Left, kHeightWidth},
    {3, 490, 192, "width=", Left, kWidthWidth},
    {1, 526, 100, "height=", Left, kHeightWidth},
});

constexpr auto kCylinder = std::to_array<Boxes>({
    {2, 194, 77, "=radius", Right, kHeightWidth, Anchor::Right},
    {1, 556, 146, "height=", Left, kHeightWidth},
});

constexpr auto kCone = std::to_array<Boxes>({
    {2, 372, 232, "radius=", Left, kHeightWidth},
    {1, 512, 122, "height=", Left, kHeightWidth},
});

constexpr auto kPyramid = std::to_array<Boxes>({
    {2, 294, 232, "length=", Left, kHeightWidth},
    {3, 498, 192, "width=", Left, kWidthWidth},
    {1, 554, 100, "height=", Left, kHeightWidth},
});

constexpr auto kSphere = std::to_array<Boxes>({
    {2, 508, 147, "radius=", Left, kHeightWidth},
});

constexpr auto kRectangle = std::to_array<Boxes>({
    {2, 328, 232, "base=", Left, kBaseWidth},
    {1, 544, 124, "length=", Left, kHeightWidth},
});

constexpr auto kParallelogram = std::to_array<Boxes>({
    {2, 294, 232, "base=", Left, kBaseWidth},
    {1, 544, 124, "height=", Left, kHeightWidth},
});

constexpr auto kTrapezoid = std::to_array<Boxes>({
    {1, 310, 76, "a=", Left, kLetterWidth},
    {3, 310, 214, "b=", Left, kLetterWidth},
    {2, 556, 146, "height=", Left, kHeightWidth},
});

constexpr auto kTriangleArea = std::to_array<Boxes>({
    {2, 325, 232, "base=", Left, kBaseWidth},
    {1, 570, 124, "height=", Left, kHeightWidth},
});

constexpr auto kTrianglePerimeter = std::to_array<Boxes>({
    {3, 226, 96, "a=", Left, kLetterWidth},
    {2, 377, 214, "b=", Left, kLetterWidth},
    {1, 538, 122, "c=", Left, kLetterWidth},
});

constexpr auto kRightTriangle = std::to_array<Boxes>({
    {1, 242, 96, "c=", Left, kLetterWidth},
    {4, 345, 214, "a=", Left, kLetterWidth},
    {2, 541, 124, "b=", Left, kLetterWidth},
});

constexpr auto kSimilarTriangles = std::to_array<Boxes>({
    {3, 186, 78, "a1=", Left, kIndexWidth},
    {2, 250, 220, "b1=", Left, kIndexWidth},
    {1, 366, 146, "c1=", Left, kIndexWidth},
    {4, 437, 100, "a2=", Left, kIndexWidth},
    {6, 512, 220, "b2=", Left, kIndexWidth},
    {5, 612, 146, "c2=", Left, kIndexWidth},
});

constexpr auto kCircleRadius = std::to_array<Boxes>({
    {2, 238, 147, "=radius", Right, kHeightWidth, Anchor::Right},
});

constexpr auto kCircleDiameter = std::to_array<Boxes>({
    {2, 218, 147, "=diameter", Right, kDiameterWidth, Anchor::Right},
});

// --- In a row -----------------------------------------------------------------------------------

// Labels: text, x, y, width, column, size, height.
// Rules: x, y, width, column.

constexpr auto kPercent = std::to_array<Boxes>({
    {1, 67, 87, "Amount", Hidden, 0, Anchor::Left, 0},
    {2, 151, 87, "N", Hidden, 0, Anchor::Left, 1},
    {4, 267, 87, "Base", Hidden, 0, Anchor::Left, 2},
});
constexpr auto kPercentLabels = std::to_array<Labels>({
    {"=", 125, 87, 22, 1, kSignSize},
    {"%    of", 209, 87, 50, 2},
});

constexpr auto kProportion = std::to_array<Boxes>({
    {1, 71, 66, "First numerator", Hidden, 0, Anchor::Middle, 0},
    {2, 71, 108, "First denominator", Hidden, 0, Anchor::Middle, 0},
    {3, 163, 66, "Second numerator", Hidden, 0, Anchor::Middle, 1},
    {4, 163, 108, "Second denominator", Hidden, 0, Anchor::Middle, 1},
});
constexpr auto kProportionLabels = std::to_array<Labels>({{"=", 133, 87, 22, 1, kSignSize}});
constexpr auto kProportionRules = std::to_array<Rules>({{67, 101, 62, 0}, {159, 101, 62, 1}});

constexpr auto kWork = std::to_array<Boxes>({
    {1, 67, 87, "Work", Hidden, 0, Anchor::Left, 0},
    {2, 151, 87, "Rate", Hidden, 0, Anchor::Left, 1},
    {4, 257, 87, "Time", Hidden, 0, Anchor::Left, 2},
});
constexpr auto kDistance = std::to_array<Boxes>({
    {1, 67, 87, "Distance", Hidden, 0, Anchor::Left, 0},
    {2, 151, 87, "Speed", Hidden, 0, Anchor::Left, 1},
    {4, 257, 87, "Time", Hidden, 0, Anchor::Left, 2},
});
constexpr auto kProductLabels = std::to_array<Labels>({
    {"=", 125, 87, 22, 1, kSignSize},
    {"   *   ", 205, 87, 52, 2, kSignSize},
});

constexpr auto kValue = std::to_array<Boxes>({{4, 67, 87, "Value"}});

// An exponent is raised by half of its height.
constexpr auto kScientific = std::to_array<Boxes>({
    {1, 67, 100, "Number", Hidden, 0, Anchor::Left, 0},
    {2, 167, 85, "Exponent", Hidden, 0, Anchor::Left, 1},
});
constexpr auto kScientificLabels = std::to_array<Labels>({{" *  10", 123, 100, 42, 1}});

constexpr auto kTwoScientific = std::to_array<Boxes>({
    {1, 67, 100, "First number", Hidden, 0, Anchor::Left, 0},
    {2, 167, 85, "First exponent", Hidden, 0, Anchor::Left, 1},
    {3, 256, 100, "Second number", Hidden, 0, Anchor::Left, 2},
    {4, 356, 85, "Second exponent", Hidden, 0, Anchor::Left, 3},
});
constexpr auto kTimesLabels = std::to_array<Labels>({
    {" *  10", 123, 100, 42, 1},
    {"*", 229, 100, 19, 2, kSignSize},
    {" *  10", 312, 100, 42, 3},
});
constexpr auto kDividedLabels = std::to_array<Labels>({
    {" *  10", 123, 100, 42, 1},
    {"{", 229, 100, 19, 2, kSignSize},
    {" *  10", 312, 100, 42, 3},
});

// --- In columns: the working is drawn below -----------------------------------------------------

constexpr auto kColumns = std::to_array<Boxes>({
    {1, 100, 104, "Top box", Hidden, 0, Anchor::Right, 0},
    {2, 100, 142, "Lower box", Hidden, 0, Anchor::Right, 0},
});
constexpr auto kColumnRules = std::to_array<Rules>({{76, 180, 82, 0}});
constexpr auto kPlus = std::to_array<Labels>({{"+", 76, 142, 20, 0, kSignSize}});
constexpr auto kMinus = std::to_array<Labels>({{"-", 76, 142, 20, 0, kSignSize}});
constexpr auto kTimes = std::to_array<Labels>({{"x", 76, 142, 20, 0, kSignSize}});

constexpr auto kDivision = std::to_array<Boxes>({
    {2, 80, 126, "Number outside the division bar", Hidden, 0, Anchor::Left, 0},
    {1, 154, 126, "Number under the division bar", Hidden, 0, Anchor::Left, 1},
});
constexpr auto kDivisionLabels = std::to_array<Labels>({{")", 136, 117, 18, 1, kBarSize, 44}});
constexpr auto kDivisionRules = std::to_array<Rules>({{140, 120, 72, 1}});

// --- By topic -----------------------------------------------------------------------------------

constexpr auto kLayouts = std::to_array<EntryLayout>({
    {.code = 1, .boxes = kCube, .picture = "cube", .pictureX = 168},
    {.code = 2, .boxes = kCylinder, .picture = "cylinder", .pictureX = 192},
    {.code = 3, .boxes = kCone, .picture = "cone", .pictureX = 144},
    {.code = 4, .boxes = kPyramid, .picture = "pyramid", .pictureX = 152},
    {.code = 5, .boxes = kSphere, .picture = "sphere", .pictureX = 144},
    {.code = 6, .boxes = kRectangle, .picture = "rectangle", .pictureX = 160},
    {.code = 7, .boxes = kCircleRadius, .picture = "circle", .pictureX = 256},
    {.code = 8,
     .boxes = kTriangleArea,
     .picture = "triangle",
     .pictureX = 152,
     .overlay = "triangleheight"},
    {.code = 9, .boxes = kParallelogram, .picture = "parallelogram", .pictureX = 160},
    {.code = 10, .boxes = kTrapezoid, .picture = "trapezoid", .pictureX = 160},
    {.code = 11,
     .boxes = kSimilarTriangles,
     .readiness = Readiness::SimilarTriangles,
     .picture = "similartriangles",
     .pictureX = 184},
    {.code = 12,
     .boxes = kRightTriangle,
     .readiness = Readiness::AllButOne,
     .picture = "righttriangle",
     .pictureX = 184},
    {.code = 13, .boxes = kRectangle, .picture = "rectangle", .pictureX = 160},
    {.code = 14, .boxes = kPercent, .readiness = Readiness::AllButOne, .labels = kPercentLabels},
    {.code = 15, .boxes = kCircleRadius, .picture = "circle", .pictureX = 256},
    {.code = 16, .boxes = kCircleDiameter, .picture = "circle2", .pictureX = 256},
    {.code = 17, .boxes = kCircleRadius, .picture = "circle", .pictureX = 256},
    {.code = 18, .boxes = kCircleDiameter, .picture = "circle2", .pictureX = 256},
    {.code = 19, .boxes = kTrianglePerimeter, .picture = "triangle", .pictureX = 216},
    {.code = 20,
     .boxes = kProportion,
     .readiness = Readiness::AllButOne,
     .labels = kProportionLabels,
     .rules = kProportionRules},
    {.code = 21, .boxes = kWork, .readiness = Readiness::AllButOne, .labels = kProductLabels},
    {.code = 22, .boxes = kDistance, .readiness = Readiness::AllButOne, .labels = kProductLabels},
    {.code = 23,
     .boxes = kValue,
     .readiness = Readiness::ValueAndUnits,
     .lists = EntryLists::Lengths},
    {.code = 24,
     .boxes = kValue,
     .readiness = Readiness::ValueAndUnits,
     .lists = EntryLists::Masses},
    {.code = 25, .boxes = kScientific, .labels = kScientificLabels},
    {.code = 26, .boxes = kTwoScientific, .labels = kTimesLabels},
    {.code = 27, .boxes = kTwoScientific, .labels = kDividedLabels},
    {.code = 98, .readiness = Readiness::Line, .lists = EntryLists::Roundings},
    {.code = 200, .boxes = kColumns, .labels = kPlus, .rules = kColumnRules},
    {.code = 201, .boxes = kColumns, .labels = kMinus, .rules = kColumnRules},
    {.code = 202, .boxes = kColumns, .labels = kTimes, .rules = kColumnRules},
    {.code = 203, .boxes = kDivision, .labels = kDivisionLabels, .rules = kDivisionRules},
});

}  // namespace

std::span<const EntryLayout> EntryLayouts() {
    return kLayouts;
}

}  // namespace numerello
