#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "core/problem.h"

/// What the entry form of a topic shows, and where. All places are pixels of the first sheet, from
/// its upper left corner.
namespace numerello {

struct EntryRect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

/// The picture box, and the drawing in it, which is narrower.
inline constexpr EntryRect kPictureBox{144, 62, 512, 200};
inline constexpr int kDrawingWidth = 400;

inline constexpr int kNarrowBox = 54;
inline constexpr int kBoxHeight = 30;
inline constexpr int kEntryTextSize = 18;  ///< height of the letters of boxes and labels

/// Box topics up to 27 have all of their entry between these sides, which are those of the lines of
/// a sheet; the two lists of the metric topics share the room.
inline constexpr int kEntryLeft = 67;
inline constexpr int kEntryRight = 750;

/// Where the name of a box can be read: nowhere, then it is only spoken, or beside the box.
enum class NameSide { Hidden, Left, Right };

/// What keeps its place when a box becomes wider.
enum class Anchor { Left, Middle, Right };

/// A piece that no box pushes along.
inline constexpr int kFree = -1;

/// One of the boxes Text1 to Text6. Boxes of one column become wider together, each at its anchor
/// within the widest, and push the columns to their right along. A free box pushes nothing.
struct EntryBoxLayout {
    int number = 1;
    int x = 0;  ///< while it is narrow
    int y = 0;
    std::string_view name;  ///< its accessible name, and its label where one is seen
    NameSide side = NameSide::Hidden;
    int labelWidth = 0;
    Anchor anchor = Anchor::Left;
    int column = kFree;
};

/// A text of its own, in the middle of its place; one as high as a box is in line with it.
struct EntryLabel {
    std::string_view text;
    int x = 0;
    int y = 0;
    int width = 0;
    int column = kFree;
    int size = kEntryTextSize;
    int height = kBoxHeight;
};

/// A drawn line; it becomes longer with the boxes of its column.
struct EntryRule {
    int x = 0;
    int y = 0;
    int width = 0;
    int column = kFree;
};
inline constexpr int kRuleHeight = 2;

/// The lists of a topic: Combo1 and Combo2 with units, or Combo3.
enum class EntryLists { None, Lengths, Masses, Roundings };

/// When the boxes of a topic make a problem.
enum class Readiness {
    AllBoxes,          ///< every box holds a number
    AllButOne,         ///< one box is empty, the others hold numbers
    SimilarTriangles,  ///< Text1 to Text3, and one at least of Text4 to Text6
    ValueAndUnits,     ///< the box, and a choice in both lists
    Line,              ///< the typed line alone decides
};

struct EntryLayout {
    int code = 0;
    std::span<const EntryBoxLayout> boxes{};  ///< in the order of the Tab key
    Readiness readiness = Readiness::AllBoxes;
    std::string_view picture{};  ///< key of the drawing, empty for none
    int pictureX = 0;            ///< where the drawing begins, within kPictureBox
    std::string_view overlay{};  ///< key of a second drawing over the first one
    std::span<const EntryLabel> labels{};
    std::span<const EntryRule> rules{};
    EntryLists lists = EntryLists::None;
};

/// All layouts: those of the box topics, and that of the line topic with a list.
std::span<const EntryLayout> EntryLayouts();

/// Null for a code without boxes and lists.
const EntryLayout* FindEntryLayout(int code);

/// How wide a box with so many characters is.
int EntryBoxWidth(std::size_t characters);

/// Where everything stands with these texts in the boxes; each in the order of its layout.
struct PlacedEntry {
    std::vector<EntryRect> boxes;
    std::vector<EntryRect> boxLabels;  ///< beside the box of the same index; 0 wide when hidden
    std::vector<EntryRect> labels;
    std::vector<EntryRect> rules;
};
PlacedEntry PlaceEntry(const EntryLayout& layout, const EntryBoxes& entered);

/// The rows of Combo3.
std::span<const std::string_view> RoundingRows();

/// Combo1 begins here, Combo2 stands in the same row; Combo3 stands above the typed line.
inline constexpr EntryRect kUnitRow{kEntryLeft, 133, kEntryRight - kEntryLeft, kBoxHeight};
inline constexpr EntryRect kRoundingList{480, 66, 260, kBoxHeight};

}  // namespace numerello
