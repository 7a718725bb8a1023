#include "catalogue/entry_layouts.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace numerello {
namespace {

using Names = std::vector<std::string>;

/// The boxes of a topic with their names, in the order of the Tab key.
struct BoxesOfTopic {
    int code;
    std::vector<std::pair<int, std::string>> boxes;
};

const std::vector<BoxesOfTopic> kBoxes = {
    {1, {{2, "length="}, {3, "width="}, {1, "height="}}},
    {2, {{2, "=radius"}, {1, "height="}}},
    {3, {{2, "radius="}, {1, "height="}}},
    {4, {{2, "length="}, {3, "width="}, {1, "height="}}},
    {5, {{2, "radius="}}},
    {6, {{2, "base="}, {1, "length="}}},
    {7, {{2, "=radius"}}},
    {8, {{2, "base="}, {1, "height="}}},
    {9, {{2, "base="}, {1, "height="}}},
    {10, {{1, "a="}, {3, "b="}, {2, "height="}}},
    {11, {{3, "a1="}, {2, "b1="}, {1, "c1="}, {4, "a2="}, {6, "b2="}, {5, "c2="}}},
    {12, {{1, "c="}, {4, "a="}, {2, "b="}}},
    {13, {{2, "base="}, {1, "length="}}},
    {14, {{1, "Amount"}, {2, "N"}, {4, "Base"}}},
    {15, {{2, "=radius"}}},
    {16, {{2, "=diameter"}}},
    {17, {{2, "=radius"}}},
    {18, {{2, "=diameter"}}},
    {19, {{3, "a="}, {2, "b="}, {1, "c="}}},
    {20,
     {{1, "First numerator"},
      {2, "First denominator"},
      {3, "Second numerator"},
      {4, "Second denominator"}}},
    {21, {{1, "Work"}, {2, "Rate"}, {4, "Time"}}},
    {22, {{1, "Distance"}, {2, "Speed"}, {4, "Time"}}},
    {23, {{4, "Value"}}},
    {24, {{4, "Value"}}},
    {25, {{1, "Number"}, {2, "Exponent"}}},
    {26,
     {{1, "First number"}, {2, "First exponent"}, {3, "Second number"}, {4, "Second exponent"}}},
    {27,
     {{1, "First number"}, {2, "First exponent"}, {3, "Second number"}, {4, "Second exponent"}}},
    {98, {}},
    {200, {{1, "Top box"}, {2, "Lower box"}}},
    {201, {{1, "Top box"}, {2, "Lower box"}}},
    {202, {{1, "Top box"}, {2, "Lower box"}}},
    {203, {{2, "Number outside the division bar"}, {1, "Number under the division bar"}}},
};

const std::map<int, std::string> kPictures = {{1, "cube"},
                                              {2, "cylinder"},
                                              {3, "cone"},
                                              {4, "pyramid"},
                                              {5, "sphere"},
                                              {6, "rectangle"},
                                              {7, "circle"},
                                              {8, "triangle"},
                                              {9, "parallelogram"},
                                              {10, "trapezoid"},
                                              {11, "similartriangles"},
                                              {12, "righttriangle"},
                                              {13, "rectangle"},
                                              {15, "circle"},
                                              {16, "circle2"},
                                              {17, "circle"},
                                              {18, "circle2"},
                                              {19, "triangle"}};

const std::map<int, Names> kFreeLabels = {{14, {"=", "%    of"}},
                                          {20, {"="}},
                                          {21, {"=", "   *   "}},
                                          {22, {"=", "   *   "}},
                                          {25, {" *  10"}},
                                          {26, {" *  10", "*", " *  10"}},
                                          {27, {" *  10", "{", " *  10"}},
                                          {200, {"+"}},
                                          {201, {"-"}},
                                          {202, {"x"}},
                                          {203, {")"}}};

TEST(EntryLayout, StandsForEachTopicWithBoxesOrLists) {
    std::vector<int> expected;
    for (const auto& [code, boxes] : kBoxes) {
        expected.push_back(code);
    }
    std::vector<int> codes;
    for (const EntryLayout& layout : EntryLayouts()) {
        codes.push_back(layout.code);
        EXPECT_EQ(FindEntryLayout(layout.code), &layout);
    }
    EXPECT_EQ(codes, expected);
    for (const int code : {-1, 0, 28, 53, 99, 122, 199, 204}) {
        EXPECT_EQ(FindEntryLayout(code), nullptr) << code;
    }
}

TEST(EntryLayout, HasTheBoxesOfItsTopicUnderTheirNames) {
    for (const auto& [code, boxes] : kBoxes) {
        SCOPED_TRACE(code);
        std::vector<std::pair<int, std::string>> found;
        const EntryLayout* layout = FindEntryLayout(code);
        ASSERT_NE(layout, nullptr);
        for (const EntryBoxLayout& box : layout->boxes) {
            found.emplace_back(box.number, box.name);
        }
        EXPECT_EQ(found, boxes);
    }
}

TEST(EntryLayout, ALabelEndsOrBeginsAtItsBox) {
    for (const EntryLayout& layout : EntryLayouts()) {
        for (const EntryBoxLayout& box : layout.boxes) {
            const NameSide side = box.name.ends_with('=')     ? NameSide::Left
                                  : box.name.starts_with('=') ? NameSide::Right
                                                              : NameSide::Hidden;
            EXPECT_EQ(box.side, side) << layout.code << " " << box.name;
        }
    }
}

TEST(EntryLayout, HasItsFreeLabelsCharacterByCharacter) {
    for (const EntryLayout& layout : EntryLayouts()) {
        const auto expected = kFreeLabels.find(layout.code);
        Names found;
        for (const EntryLabel& label : layout.labels) {
            found.emplace_back(label.text);
        }
        EXPECT_EQ(found, expected == kFreeLabels.end() ? Names() : expected->second) << layout.code;
    }
}

TEST(EntryLayout, HasItsPictureInsideThePictureBox) {
    for (const EntryLayout& layout : EntryLayouts()) {
        SCOPED_TRACE(layout.code);
        const auto expected = kPictures.find(layout.code);
        EXPECT_EQ(layout.picture, expected == kPictures.end() ? "" : expected->second);
        if (!layout.picture.empty()) {
            EXPECT_GE(layout.pictureX, 144);
            EXPECT_LE(layout.pictureX + 400, 144 + 512);
        }
        // Only the area of a triangle asks for a line that is none of its sides; the perimeter
        // shows the same picture without it.
        EXPECT_EQ(layout.overlay.empty(), layout.code != 8);
    }
}

TEST(EntryLayout, HasItsLists) {
    for (const EntryLayout& layout : EntryLayouts()) {
        const EntryLists lists = layout.code == 23   ? EntryLists::Lengths
                                 : layout.code == 24 ? EntryLists::Masses
                                 : layout.code == 98 ? EntryLists::Roundings
                                                     : EntryLists::None;
        EXPECT_EQ(layout.lists, lists) << layout.code;
    }
    const Names rows(RoundingRows().begin(), RoundingRows().end());
    EXPECT_EQ(rows, (Names{"Rounded to the nearest thousand", "Rounded to the nearest hundred",
                           "Rounded to the nearest ten", "Rounded to the nearest whole number",
                           "Rounded to the nearest tenth", "Rounded to the nearest hundredth",
                           "Rounded to the nearest thousandth"}));
}

TEST(EntryLayout, IsReadFromLeftToRightAndFromTheTop) {
    for (const EntryLayout& layout : EntryLayouts()) {
        for (std::size_t i = 1; i < layout.boxes.size(); ++i) {
            const EntryBoxLayout& last = layout.boxes[i - 1];
            const EntryBoxLayout& next = layout.boxes[i];
            EXPECT_TRUE(last.x < next.x || (last.x == next.x && last.y < next.y))
                << layout.code << " " << next.name;
        }
    }
}

}  // namespace
}  // namespace numerello
