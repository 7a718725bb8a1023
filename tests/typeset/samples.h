#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "typeset/sample.h"
#include "typeset/text_metrics.h"

namespace numerello {

// Plain metrics at 12 and 8 points.
constexpr double kCharacter = 134.0 / 204 * 12;
constexpr double kBlank = 67.0 / 204 * 12;
constexpr double kSmall = 134.0 / 204 * 8;
constexpr double kLine = 43.0 / 30 * 12;
constexpr double kSmallLine = 43.0 / 30 * 8;

// The first line of an empty sheet: 17 blanks, and 2.4 times 12 down.
constexpr double kMargin = 17 * kBlank;
constexpr double kBase = 2.4 * 12;
constexpr double kNumerator = kBase - 0.6 * 12;
constexpr double kDenominator = kNumerator + 1.7 * 12;

// From 67 on paper the 87th character is the first to end past 750: (750 - 67) / 7.882 = 86.6.
// From 12 in print the 96th passes 765, (765 - 12) / 7.882 = 95.5, and in the preview the 144th,
// (765 - 12) / 5.255 = 143.3.
constexpr std::size_t kPaperRow = 87;
constexpr std::size_t kPrintRow = 96;
constexpr std::size_t kPreviewRow = 144;

inline std::string Letters(std::size_t count) {
    std::string letters;
    letters.assign(count, 'x');
    return letters;
}

struct Piece {
    std::string text;
    double x;
    double y;
    double size = 12;
    Color color = kBlack;
    int page = 0;
};

inline SampleAnswer Typeset(const SampleRequest& request) {
    return TypesetSample(request, PlainMetrics());
}

inline SampleAnswer OnPaper(std::string text, double x = 0, double y = 0) {
    return Typeset({.target = TypesetTarget::Paper, .text = std::move(text), .x = x, .y = y});
}

inline SampleAnswer Explained(std::string text) {
    return Typeset({.target = TypesetTarget::Explanation, .text = std::move(text)});
}

inline SampleAnswer Printed(std::string text, double y = 0, bool blue = false) {
    return Typeset({.target = TypesetTarget::Print, .text = std::move(text), .y = y, .blue = blue});
}

inline SampleAnswer Previewed(std::string text, double y = 0, bool blue = false) {
    return Typeset(
        {.target = TypesetTarget::Preview, .text = std::move(text), .y = y, .blue = blue});
}

inline const TextMark& TextAt(const SampleAnswer& answer, std::size_t index) {
    return std::get<TextMark>(answer.marks.at(index).mark);
}

inline void ExpectPiece(const SampleAnswer& answer, std::size_t index, const Piece& piece) {
    SCOPED_TRACE("mark " + std::to_string(index) + ", " + piece.text);
    ASSERT_LT(index, answer.marks.size());
    const TextMark& mark = TextAt(answer, index);
    EXPECT_EQ(mark.text, piece.text);
    EXPECT_NEAR(mark.x, piece.x, 1e-6);
    EXPECT_NEAR(mark.y, piece.y, 1e-6);
    EXPECT_EQ(mark.font.size, piece.size);
    EXPECT_EQ(mark.color, piece.color);
    EXPECT_EQ(answer.marks[index].page, piece.page);
}

/// All the marks, in drawing order.
inline void ExpectPieces(const SampleAnswer& answer, const std::vector<Piece>& pieces) {
    EXPECT_EQ(answer.marks.size(), pieces.size());
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        ExpectPiece(answer, i, pieces[i]);
    }
}

inline void ExpectEnd(const SampleAnswer& answer, double x, double y) {
    EXPECT_NEAR(answer.endX, x, 1e-6);
    EXPECT_NEAR(answer.endY, y, 1e-6);
}

inline void ExpectMessages(const SampleAnswer& answer, std::size_t count) {
    EXPECT_EQ(answer.messages.size(), count);
    for (const auto& message : answer.messages) {
        EXPECT_EQ(message.title, "");
        EXPECT_EQ(message.text, "An error occurred while displaying information.");
    }
}

}  // namespace numerello
