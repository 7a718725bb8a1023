#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "catalogue/entry_layouts.h"

namespace numerello {
namespace {

const std::string kTenCharacters = "8888888888";

const EntryLayout& LayoutOf(int code) {
    const EntryLayout* layout = FindEntryLayout(code);
    if (layout == nullptr) {
        throw std::runtime_error("no layout for " + std::to_string(code));
    }
    return *layout;
}

/// Every way in which the boxes of a layout may be narrow or at their widest.
std::vector<EntryBoxes> AllWidths(const EntryLayout& layout) {
    std::vector<EntryBoxes> all;
    for (unsigned wide = 0; wide < 1U << layout.boxes.size(); ++wide) {
        EntryBoxes entered;
        for (std::size_t i = 0; i < layout.boxes.size(); ++i) {
            if ((wide >> i & 1U) != 0) {
                entered.Text[static_cast<std::size_t>(layout.boxes[i].number) - 1] = kTenCharacters;
            }
        }
        all.push_back(entered);
    }
    return all;
}

EntryBoxes Entered(int box, const std::string& text) {
    EntryBoxes entered;
    entered.Text[static_cast<std::size_t>(box) - 1] = text;
    return entered;
}

int Right(const EntryRect& place) {
    return place.x + place.width;
}

int Bottom(const EntryRect& place) {
    return place.y + place.height;
}

bool Overlap(const EntryRect& a, const EntryRect& b) {
    return a.x < Right(b) && b.x < Right(a) && a.y < Bottom(b) && b.y < Bottom(a);
}

std::string Told(const EntryRect& place) {
    return "(" + std::to_string(place.x) + ", " + std::to_string(place.y) + ") to (" +
           std::to_string(Right(place)) + ", " + std::to_string(Bottom(place)) + ")";
}

/// Boxes and labels, the hidden labels left out.
std::vector<EntryRect> Pieces(const PlacedEntry& placed) {
    std::vector<EntryRect> pieces = placed.boxes;
    std::copy_if(placed.boxLabels.begin(), placed.boxLabels.end(), std::back_inserter(pieces),
                 [](const EntryRect& place) { return place.width > 0; });
    pieces.insert(pieces.end(), placed.labels.begin(), placed.labels.end());
    return pieces;
}

/// Where Text1 to Text6 stand; only those of the layout are there.
std::map<int, EntryRect> BoxPlaces(const EntryLayout& layout, const EntryBoxes& entered) {
    const PlacedEntry placed = PlaceEntry(layout, entered);
    std::map<int, EntryRect> places;
    for (std::size_t i = 0; i < layout.boxes.size(); ++i) {
        places[layout.boxes[i].number] = placed.boxes[i];
    }
    return places;
}

TEST(PlaceEntry, StaysInItsPartOfTheSheetAtEveryWidth) {
    for (const EntryLayout& layout : EntryLayouts()) {
        SCOPED_TRACE(layout.code);
        // Without a picture the solution begins at 173, column topics draw from 277 down.
        const bool isShort = layout.picture.empty() && layout.code < 28;
        for (const EntryBoxes& entered : AllWidths(layout)) {
            const PlacedEntry placed = PlaceEntry(layout, entered);
            std::vector<EntryRect> pieces = Pieces(placed);
            pieces.insert(pieces.end(), placed.rules.begin(), placed.rules.end());
            for (const EntryRect& piece : pieces) {
                EXPECT_GE(piece.x, 67) << Told(piece);
                EXPECT_LE(Right(piece), 750) << Told(piece);
                EXPECT_GE(piece.y, 60) << Told(piece);
                EXPECT_LE(Bottom(piece), isShort ? 170 : 264) << Told(piece);
            }
        }
    }
}

TEST(PlaceEntry, NothingCoversAnotherAtAnyWidth) {
    for (const EntryLayout& layout : EntryLayouts()) {
        SCOPED_TRACE(layout.code);
        for (const EntryBoxes& entered : AllWidths(layout)) {
            const PlacedEntry placed = PlaceEntry(layout, entered);
            const std::vector<EntryRect> pieces = Pieces(placed);
            for (std::size_t i = 0; i < pieces.size(); ++i) {
                for (std::size_t k = i + 1; k < pieces.size(); ++k) {
                    EXPECT_FALSE(Overlap(pieces[i], pieces[k]))
                        << Told(pieces[i]) << " and " << Told(pieces[k]);
                }
                for (const EntryRect& rule : placed.rules) {
                    EXPECT_TRUE(i >= placed.boxes.size() || !Overlap(pieces[i], rule))
                        << Told(pieces[i]) << " and the rule " << Told(rule);
                }
            }
        }
    }
}

TEST(PlaceEntry, ABoxIsAsWideAsItsText) {
    const std::vector<int> widths{54, 54, 54, 54, 66, 78, 90, 102, 114, 126, 138};
    for (std::size_t length = 0; length < widths.size(); ++length) {
        EXPECT_EQ(EntryBoxWidth(length), widths[length]) << length;
    }
    for (const EntryLayout& layout : EntryLayouts()) {
        for (const EntryBoxLayout& box : layout.boxes) {
            const auto wide = BoxPlaces(layout, Entered(box.number, "12345"));
            for (const auto& [number, place] : wide) {
                EXPECT_EQ(place.width, number == box.number ? 78 : 54) << layout.code;
                EXPECT_EQ(place.height, 30) << layout.code;
            }
        }
    }
}

TEST(PlaceEntry, OnAPictureNothingElseMovesWhenABoxWidens) {
    for (const EntryLayout& layout : EntryLayouts()) {
        if (layout.picture.empty()) {
            continue;
        }
        const PlacedEntry narrow = PlaceEntry(layout, EntryBoxes());
        for (std::size_t i = 0; i < layout.boxes.size(); ++i) {
            SCOPED_TRACE(std::to_string(layout.code) + std::string(layout.boxes[i].name));
            const PlacedEntry wide =
                PlaceEntry(layout, Entered(layout.boxes[i].number, kTenCharacters));
            const bool growsLeft = layout.boxes[i].name.starts_with('=');
            EXPECT_EQ(wide.boxes[i].x, narrow.boxes[i].x - (growsLeft ? 84 : 0));
            for (std::size_t k = 0; k < layout.boxes.size(); ++k) {
                EXPECT_EQ(wide.boxLabels[k].x, narrow.boxLabels[k].x);
                EXPECT_TRUE(k == i || wide.boxes[k].x == narrow.boxes[k].x);
            }
        }
    }
}

TEST(PlaceEntry, InARowAWidenedBoxPushesWhatIsBehindIt) {
    for (const int code : {14, 21, 22, 25, 26, 27, 203}) {
        SCOPED_TRACE(code);
        const EntryLayout& layout = LayoutOf(code);
        const PlacedEntry narrow = PlaceEntry(layout, EntryBoxes());
        for (std::size_t i = 0; i < layout.boxes.size(); ++i) {
            const PlacedEntry wide =
                PlaceEntry(layout, Entered(layout.boxes[i].number, kTenCharacters));
            const int from = narrow.boxes[i].x;
            for (std::size_t k = 0; k < narrow.boxes.size(); ++k) {
                EXPECT_EQ(wide.boxes[k].x - narrow.boxes[k].x, narrow.boxes[k].x > from ? 84 : 0);
            }
            for (std::size_t k = 0; k < narrow.labels.size(); ++k) {
                EXPECT_EQ(wide.labels[k].x - narrow.labels[k].x,
                          narrow.labels[k].x > from ? 84 : 0);
            }
        }
    }
}

TEST(PlaceEntry, ExponentsAreRaised) {
    for (const int code : {25, 26, 27}) {
        const EntryLayout& layout = LayoutOf(code);
        const auto places = BoxPlaces(layout, EntryBoxes());
        EXPECT_EQ(places.at(2).y, places.at(1).y - 15);
        EXPECT_EQ(layout.labels[0].y, places.at(1).y);
        EXPECT_LT(Right(places.at(1)), layout.labels[0].x);
        EXPECT_LT(layout.labels[0].x, places.at(2).x);
        if (code != 25) {
            EXPECT_EQ(places.at(3).y, places.at(1).y);
            EXPECT_EQ(places.at(4).y, places.at(2).y);
        }
    }
}

TEST(PlaceEntry, ABarDividesEachFractionAndIsAsWideAsItsWiderBox) {
    const EntryLayout& layout = LayoutOf(20);
    for (const EntryBoxes& entered : AllWidths(layout)) {
        const auto boxes = BoxPlaces(layout, entered);
        const PlacedEntry placed = PlaceEntry(layout, entered);
        ASSERT_EQ(placed.rules.size(), 2U);
        for (int fraction = 0; fraction < 2; ++fraction) {
            const EntryRect& above = boxes.at(2 * fraction + 1);
            const EntryRect& below = boxes.at(2 * fraction + 2);
            const EntryRect& bar = placed.rules[static_cast<std::size_t>(fraction)];
            EXPECT_LT(Bottom(above), bar.y);
            EXPECT_LT(Bottom(bar), below.y);
            EXPECT_EQ(bar.width, std::max(above.width, below.width) + 8);
            EXPECT_EQ(2 * above.x + above.width, 2 * bar.x + bar.width);
            EXPECT_EQ(2 * below.x + below.width, 2 * bar.x + bar.width);
        }
        EXPECT_LT(Right(placed.rules[0]), placed.labels[0].x);
        EXPECT_LT(Right(placed.labels[0]), placed.rules[1].x);
    }
}

TEST(PlaceEntry, ColumnsAreFlushRightOverTheirRule) {
    for (const int code : {200, 201, 202}) {
        const EntryLayout& layout = LayoutOf(code);
        for (const EntryBoxes& entered : AllWidths(layout)) {
            const auto boxes = BoxPlaces(layout, entered);
            const PlacedEntry placed = PlaceEntry(layout, entered);
            ASSERT_EQ(placed.rules.size(), 1U);
            EXPECT_LT(Bottom(boxes.at(1)), boxes.at(2).y);
            EXPECT_EQ(Right(boxes.at(1)), Right(boxes.at(2)));
            EXPECT_EQ(placed.labels[0].y, boxes.at(2).y);
            EXPECT_LE(Right(placed.labels[0]), boxes.at(2).x);
            EXPECT_LT(Bottom(boxes.at(2)), placed.rules[0].y);
            EXPECT_LE(placed.rules[0].x, placed.labels[0].x);
            EXPECT_GE(Right(placed.rules[0]), Right(boxes.at(2)));
        }
    }
}

TEST(PlaceEntry, TheDividendStandsUnderTheDivisionBar) {
    const EntryLayout& layout = LayoutOf(203);
    for (const EntryBoxes& entered : AllWidths(layout)) {
        const auto boxes = BoxPlaces(layout, entered);
        const PlacedEntry placed = PlaceEntry(layout, entered);
        ASSERT_EQ(placed.rules.size(), 1U);
        EXPECT_EQ(boxes.at(1).y, boxes.at(2).y);
        EXPECT_LE(Right(boxes.at(2)), placed.labels[0].x);
        EXPECT_LE(Right(placed.labels[0]), boxes.at(1).x);
        EXPECT_LT(Bottom(placed.rules[0]), boxes.at(1).y);
        EXPECT_LE(placed.rules[0].x, boxes.at(1).x);
        EXPECT_GE(Right(placed.rules[0]), Right(boxes.at(1)));
    }
}

TEST(PlaceEntry, ABoxStandsAtTheSideThatItMeasures) {
    // Both triangles: a above the left slope, b below the base, c right of the right side.
    const auto similar = BoxPlaces(LayoutOf(11), EntryBoxes());
    for (const auto& [a, b, c] : {std::array{3, 2, 1}, std::array{4, 6, 5}}) {
        EXPECT_LT(Bottom(similar.at(a)), similar.at(b).y);
        EXPECT_LT(Bottom(similar.at(c)), similar.at(b).y);
        EXPECT_LT(similar.at(a).x, similar.at(b).x);
        EXPECT_LT(similar.at(b).x, similar.at(c).x);
    }
    EXPECT_LT(Right(similar.at(1)), similar.at(4).x);
    // The trapezoid: a over its shorter side, b under its longer one.
    const auto trapezoid = BoxPlaces(LayoutOf(10), EntryBoxes());
    EXPECT_LT(Bottom(trapezoid.at(1)), trapezoid.at(2).y);
    EXPECT_LT(Bottom(trapezoid.at(2)), trapezoid.at(3).y);
}

TEST(EntryPlace, IsThatOfTheListsAndThePicture) {
    EXPECT_EQ(Told(kPictureBox), "(144, 62) to (656, 262)");
    EXPECT_EQ(Told(kRoundingList), "(480, 66) to (740, 96)");
    EXPECT_EQ(kUnitRow.x, 67);
    EXPECT_EQ(Right(kUnitRow), 750);
    const auto value = BoxPlaces(LayoutOf(23), EntryBoxes()).at(4);
    EXPECT_LT(Bottom(value), kUnitRow.y);
    EXPECT_LE(Bottom(kUnitRow), 170);
}

}  // namespace
}  // namespace numerello
