#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "tests/learners.h"
#include "typeset/surface.h"

namespace numerello {

// Plain metrics at 12, 10 and 8 points.
constexpr double kCharacter = 134.0 / 204 * 12;
constexpr double kBlank = 67.0 / 204 * 12;
constexpr double kLine = 43.0 / 30 * 12;
constexpr double kReasonLine = 43.0 / 30 * 10;
constexpr double kPreviewLine = 43.0 / 30 * 8;

// Seven lines of heading; from there each line of mathematics begins 12 below the pen, at X 12.
constexpr double kHeadingEnd = 7 * kLine;
constexpr double kPitch = kLine + 12;
constexpr double kFirstBase = kHeadingEnd + 12;

/// A row of a page: what was printed from one Y in one font, in drawing order.
struct Row {
    std::string text;
    double x;
    double y;
    double size = 12;
    std::string face = std::string(kSheetFace);
    Color color = kBlack;
};

/// The texts of a page, joined while they stand on one Y in one font and colour.
inline std::vector<Row> RowsOf(std::span<const Mark> marks) {
    std::vector<Row> rows;
    for (const Mark& mark : marks) {
        const auto* const text = std::get_if<TextMark>(&mark);
        if (text == nullptr) {
            continue;
        }
        if (rows.empty() || rows.back().y != text->y || rows.back().size != text->font.size ||
            rows.back().face != text->font.name || rows.back().color != text->color) {
            rows.push_back({"", text->x, text->y, text->font.size, text->font.name, text->color});
        }
        rows.back().text += text->text;
    }
    return rows;
}

inline void ExpectRow(const std::vector<Row>& rows, std::size_t index, const Row& row) {
    SCOPED_TRACE("row " + std::to_string(index) + ", " + row.text);
    ASSERT_LT(index, rows.size());
    EXPECT_EQ(rows[index].text, row.text);
    EXPECT_NEAR(rows[index].x, row.x, 1e-6);
    EXPECT_NEAR(rows[index].y, row.y, 1e-6);
    EXPECT_EQ(rows[index].size, row.size);
    EXPECT_EQ(rows[index].face, row.face);
    EXPECT_EQ(rows[index].color, row.color);
}

/// A page's rows, all of them.
inline void ExpectRows(std::span<const Mark> page, const std::vector<Row>& expected) {
    const std::vector<Row> rows = RowsOf(page);
    EXPECT_EQ(rows.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        ExpectRow(rows, i, expected[i]);
    }
}

/// An empty print surface with plain metrics.
struct PlainPrinter {
    PlainMetrics metrics;
    Surface surface{metrics, {std::string(kSheetFace), 12}};
    NotingLearner learner;
};

}  // namespace numerello
