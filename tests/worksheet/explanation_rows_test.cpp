#include "worksheet/explanation_rows.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "typeset/notation_walk.h"

namespace numerello {
namespace {

// With plain metrics at 12 points a character is 134/17 wide and a blank half of it, so that 48
// characters measure 378.4 and 49 measure 386.2.
constexpr double kWidth = 380;

std::vector<std::string> Rows(const std::vector<std::string>& characters) {
    std::vector<std::string> rows;
    for (const TextRow& row : ExplanationRows(characters, kWidth, PlainMetrics(), {"any", 12})) {
        rows.emplace_back();
        for (const std::string& character : row) {
            rows.back() += character;
        }
    }
    return rows;
}

std::vector<std::string> Rows(std::string_view text) {
    return Rows(Characters(text));
}

std::string Xs(std::size_t count) {
    return std::string(count, 'x');
}

using Lines = std::vector<std::string>;

TEST(ExplanationRowsTest, WhatFitsStaysInOneRow) {
    EXPECT_EQ(Rows(""), Lines());
    EXPECT_EQ(Rows("Add 3 and 5."), Lines{"Add 3 and 5."});
    EXPECT_EQ(Rows(Xs(48)), Lines{Xs(48)});
    // 32 words with 31 blanks between measure as 47.5 characters, one word more as 49.
    std::string words = "x";
    for (int i = 1; i < 32; ++i) {
        words += " x";
    }
    EXPECT_EQ(Rows(words), Lines{words});
    EXPECT_EQ(Rows(words + " x"), (Lines{words, "x"}));
}

TEST(ExplanationRowsTest, IsCutAtTheLastBlankThatFits) {
    EXPECT_EQ(Rows(Xs(20) + " " + Xs(20) + " " + Xs(10)), (Lines{Xs(20) + " " + Xs(20), Xs(10)}));
    // The blank itself needs no room.
    EXPECT_EQ(Rows(Xs(48) + " yy"), (Lines{Xs(48), "yy"}));
    EXPECT_EQ(Rows("a " + Xs(48)), (Lines{"a", Xs(48)}));
}

TEST(ExplanationRowsTest, BlanksAtTheCutAreDropped) {
    EXPECT_EQ(Rows(Xs(30) + ".  Then " + Xs(30)), (Lines{Xs(30) + ".  Then", Xs(30)}));
    EXPECT_EQ(Rows(Xs(48) + "   yy"), (Lines{Xs(48), "yy"}));
    EXPECT_EQ(Rows(Xs(48) + "  "), Lines{Xs(48)});
}

TEST(ExplanationRowsTest, ALongWordIsCutByCharacters) {
    EXPECT_EQ(Rows(Xs(100)), (Lines{Xs(48), Xs(48), Xs(4)}));
    EXPECT_EQ(Rows("a " + Xs(50) + " b"), (Lines{"a", Xs(48), Xs(2) + " b"}));
}

TEST(ExplanationRowsTest, AFractionCountsByItsLongerPart) {
    EXPECT_EQ(Rows(Xs(45) + "#1/256#"), Lines{Xs(45) + "#1/256#"});
    EXPECT_EQ(Rows(Xs(46) + "#1/256#"), (Lines{Xs(46), "#1/256#"}));
    EXPECT_EQ(Rows(Xs(45) + "#256/1#"), Lines{Xs(45) + "#256/1#"});
    EXPECT_EQ(Rows(Xs(46) + "#256/1#"), (Lines{Xs(46), "#256/1#"}));
    // The last "/" outside of parentheses divides: 7 characters above.
    EXPECT_EQ(Rows(Xs(41) + "#(a/b)/c/d#"), Lines{Xs(41) + "#(a/b)/c/d#"});
    EXPECT_EQ(Rows(Xs(42) + "#(a/b)/c/d#"), (Lines{Xs(42), "#(a/b)/c/d#"}));
}

TEST(ExplanationRowsTest, ARootsSignCountsAsThreeCharacters) {
    EXPECT_EQ(Rows(Xs(44) + "~9~"), Lines{Xs(44) + "~9~"});
    EXPECT_EQ(Rows(Xs(45) + "~9~"), (Lines{Xs(45), "~9~"}));
    EXPECT_EQ(Rows(Xs(43) + "~#1/25#~"), Lines{Xs(43) + "~#1/25#~"});
    EXPECT_EQ(Rows(Xs(44) + "~#1/25#~"), (Lines{Xs(44), "~#1/25#~"}));
}

TEST(ExplanationRowsTest, AnExponentCountsWithItsMarks) {
    EXPECT_EQ(Rows(Xs(45) + "^2^"), Lines{Xs(45) + "^2^"});
    EXPECT_EQ(Rows(Xs(46) + "^2^"), (Lines{Xs(46), "^2^"}));
}

TEST(ExplanationRowsTest, NoConstructIsCut) {
    EXPECT_EQ(Rows(Xs(40) + " #2 * 3/4#"), Lines{Xs(40) + " #2 * 3/4#"});
    EXPECT_EQ(Rows(Xs(45) + " #2 * 3/4#"), (Lines{Xs(45), "#2 * 3/4#"}));
    EXPECT_EQ(Rows("a ~" + Xs(60) + "~ b"), (Lines{"a", "~" + Xs(60) + "~", "b"}));
}

TEST(ExplanationRowsTest, AMarkWithoutPartnerTakesTheRest) {
    EXPECT_EQ(Rows("a #1/2 b c"), Lines{"a #1/2 b c"});
    EXPECT_EQ(Rows(Xs(40) + " ~" + Xs(10) + " b"), (Lines{Xs(40), "~" + Xs(10) + " b"}));
}

TEST(ExplanationRowsTest, AQuotedRootIsMeasuredAsItsSign) {
    const auto rows = [](std::size_t before) {
        return Rows(CharactersWithQuotedMarks(Xs(before) + "'~'"));
    };
    EXPECT_EQ(rows(43), Lines{Xs(43) + "'~'"});
    EXPECT_EQ(rows(44), (Lines{Xs(44), "'~'"}));
}

TEST(ExplanationRowsTest, NoRowIsEmptyOrTooWideAndNothingButBlanksIsLost) {
    const std::string text =
        "Since 15 has more than one place value, carry the number in the tens place (1) to the "
        "next column.  Then add the carried remainder of 1 to the total, and go on with the next "
        "column to the left until all of them are worked.";
    std::string joined;
    for (const std::string& row : Rows(text)) {
        EXPECT_FALSE(row.empty());
        EXPECT_LE(PlainMetrics().Width(row, {"any", 12}), kWidth);
        joined += row;
    }
    EXPECT_EQ(Replace(joined, " ", ""), Replace(text, " ", ""));
}

}  // namespace
}  // namespace numerello
