#include <deque>

#include <gtest/gtest.h>

#include "core/failure.h"
#include "tests/learners.h"
#include "tests/typeset/samples.h"
#include "typeset/lines.h"
#include "typeset/variants.h"

namespace numerello {
namespace {

class EntriesTest : public ::testing::Test, public PaperSheets {
  protected:
    Surface& Current() override { return pages.back(); }
    void Turn() override {
        if (pages.size() == pageLimit) {
            throw Failure(FailureKind::Format);
        }
        pages.emplace_back(metrics, Font{std::string(kSheetFace), 12});
    }
    void PlaceBlinker() override { blinkers.emplace_back(playback.LineEndX, playback.LineEndY); }

    const TextMark& Mark(std::size_t index) {
        return std::get<TextMark>(Current().Marks().at(index));
    }

    PlainMetrics metrics;
    std::deque<Surface> pages{Surface(metrics, {std::string(kSheetFace), 12})};
    std::size_t pageLimit = 10;
    Playback playback;
    NotingLearner learner;
    std::vector<std::pair<double, double>> blinkers;
};

TEST_F(EntriesTest, PaperLinesFollowTheRuledPitch) {
    FPrintLine("a", false, *this, playback, learner);
    EXPECT_NEAR(playback.LineEndX, 67 + kCharacter - 4, 1e-9);
    EXPECT_NEAR(playback.LineEndY, kBase, 1e-9);
    EXPECT_EQ(Current().CurrentX, 0);
    EXPECT_NEAR(Current().CurrentY, 46, 1e-9);
    FPrintLine("", false, *this, playback, learner);
    EXPECT_NEAR(playback.LineEndX, 63, 1e-9);
    EXPECT_NEAR(playback.LineEndY, 46 + kBase, 1e-9);
    EXPECT_NEAR(Current().CurrentY, 92, 1e-9);
    EXPECT_TRUE(blinkers.empty());
}

TEST_F(EntriesTest, TwelveLinesFillASheet) {
    Current().CurrentY = 81;
    for (int i = 0; i < 12; ++i) {
        FPrintLine("#1/2#", false, *this, playback, learner);
    }
    EXPECT_EQ(pages.size(), 1U);
    FPrintLine("a", false, *this, playback, learner);
    EXPECT_EQ(pages.size(), 2U);
    EXPECT_NEAR(Mark(0).y, 109.8, 1e-9);
}

TEST_F(EntriesTest, TheBlinkerComesAfterTheLineEnd) {
    FPrintLine("ab", true, *this, playback, learner);
    ASSERT_EQ(blinkers.size(), 1U);
    EXPECT_NEAR(blinkers[0].first, 67 + 2 * kCharacter - 4, 1e-9);
    EXPECT_NEAR(blinkers[0].second, kBase, 1e-9);
    FPrintLine("a^2", true, *this, playback, learner);
    EXPECT_EQ(learner.messages.size(), 1U);
    EXPECT_EQ(blinkers.size(), 2U);
}

TEST_F(EntriesTest, WithoutAFurtherSheetTheLineIsGivenUp) {
    pageLimit = 1;
    playback.LineEndX = 1;
    playback.LineEndY = 2;
    Current().CurrentY = 600;
    FPrintLine("ab", true, *this, playback, learner);
    EXPECT_EQ(learner.messages.size(), 1U);
    EXPECT_EQ(learner.messages.back(), "An error occurred while displaying information.");
    EXPECT_TRUE(Current().Marks().empty());
    EXPECT_EQ(Current().CurrentY, 600);
    EXPECT_EQ(playback.LineEndX, 1);
    EXPECT_EQ(playback.LineEndY, 2);
    EXPECT_TRUE(blinkers.empty());
}

TEST_F(EntriesTest, AFractionDrawnAloneStaysAtTheNumerator) {
    Current().CurrentX = 100;
    Current().CurrentY = 50;
    FPrintFraction("1/25", *this);
    EXPECT_NEAR(Current().CurrentX, 100 + 2 * kCharacter, 1e-9);
    EXPECT_NEAR(Current().CurrentY, 50 - 7.2, 1e-9);
    EXPECT_EQ(Current().Marks().size(), 5U);
}

TEST_F(EntriesTest, AFractionDrawnAloneDropsInnerFractionMarkers) {
    FPrintFraction("#1#/2", *this);
    // "#1#" counts 3: the 2 is padded by two blanks, the bar is as wide as the printed 1.
    ASSERT_EQ(Current().Marks().size(), 3U);
    EXPECT_EQ(Mark(0).text, "1");
    EXPECT_EQ(Mark(1).text, "2");
    EXPECT_NEAR(Mark(1).x, 2 * kBlank, 1e-9);
    EXPECT_EQ(Mark(2).text, "_");
}

TEST_F(EntriesTest, ExponentAndRootDrawnAlone) {
    FPrintExponent("2", *this);
    EXPECT_EQ(Mark(0).font.size, 8);
    EXPECT_EQ(Current().FontSize(), 12);
    EXPECT_EQ(Current().CurrentY, 0);
    Current().Cls();
    FPrintRoot("9", *this);
    EXPECT_NEAR(Current().CurrentX, 6 + 2 * kCharacter, 1e-9);
    EXPECT_EQ(Current().CurrentY, 0);
}

TEST_F(EntriesTest, ConstructsHaveNoGuard) {
    const std::string fiftyOne(51, '9');
    EXPECT_THROW(FPrintRoot(fiftyOne, *this), Failure);
    EXPECT_THROW(FPrintFraction(fiftyOne + "/2", *this), Failure);
    EXPECT_THROW(FPrintFraction("x^2/3", *this), Failure);
    EXPECT_THROW(ExplainRoot("#1", Current()), Failure);
    EXPECT_THROW(ExplainFraction("~1/2", Current()), Failure);
    EXPECT_THROW(PrintRoot("^1", Current(), false), Failure);
    EXPECT_THROW(PrintFraction("1/^2", Current(), false), Failure);
    EXPECT_THROW(PreviewRoot("#", *this, false), Failure);
    EXPECT_THROW(PreviewFraction(fiftyOne + "/", *this, false), Failure);
    EXPECT_EQ(learner.messages.size(), 0U);
}

TEST_F(EntriesTest, EachFamilyHasItsOwnMeasures) {
    Surface& page = Current();
    page.CurrentY = 50;
    ExplainRoot("]9", page);
    EXPECT_EQ(Mark(3).text, "~");
    EXPECT_EQ(Mark(3).y, 50);
    EXPECT_EQ(Mark(3).color, kBlue);
    EXPECT_EQ(page.FontName(), "Book Antiqua");

    page.Cls();
    PrintRoot("]9", page, true);
    EXPECT_EQ(Mark(3).y, -2);
    EXPECT_EQ(Mark(3).color, kBlue);

    page.Cls();
    PreviewFraction("]1/2", *this, false);
    EXPECT_EQ(Mark(0).y, -5);
    EXPECT_EQ(Mark(1).y, 9);
    EXPECT_EQ(Mark(1).color, kBlack);

    page.Cls();
    ExplainExponent("2", page);
    PrintExponent("3", page);
    PreviewExponent("4", *this);
    EXPECT_NEAR(Mark(0).y, -1.6, 1e-9);
    EXPECT_EQ(Mark(1).y, -1);
    EXPECT_EQ(Mark(1).font.size, 8);
    EXPECT_EQ(Mark(2).y, page.CurrentY - 1);
    EXPECT_EQ(Mark(2).font.size, 10);

    page.Cls();
    PrintFraction("1/2", page, true);
    ExplainFraction("3/4", page);
    PreviewRoot("5", *this, true);
    EXPECT_EQ(Mark(0).y, -5);
    EXPECT_NEAR(Mark(3).y, -5 - 7.2, 1e-9);
}

TEST_F(EntriesTest, OnlyTheExplanationChangesTheFace) {
    Surface& page = Current();
    page.SetFontName("Other");
    FPrintRoot("9", *this);
    PrintRoot("9", page, false);
    PreviewRoot("9", *this, false);
    ASSERT_EQ(page.Marks().size(), 12U);
    for (const std::size_t sign : {3, 7, 11}) {
        EXPECT_EQ(Mark(sign).text, "~");
        EXPECT_EQ(Mark(sign).font.name, "Other");
    }
    EXPECT_EQ(page.FontName(), "Other");
}

TEST_F(EntriesTest, APrintSurfaceTurnsItsOwnPages) {
    Surface target(metrics, {std::string(kSheetFace), 12});
    for (int i = 0; i < 40; ++i) {
        PrintLine("7", target, false, learner);
    }
    // The pitch is 29.2, so the 19th line (12 + 18 * 29.2 = 537.6) is the last at or above 560;
    // from 24 on the next page the following 19 reach 549.6, and two lines are left.
    ASSERT_EQ(target.PageCount(), 3);
    EXPECT_EQ(target.PageMarks(0).size(), 19U);
    EXPECT_EQ(target.PageMarks(1).size(), 19U);
    EXPECT_EQ(target.PageMarks(2).size(), 2U);
}

TEST(TypesetTargetTest, IsFoundByItsNameInSmallLettersAlone) {
    EXPECT_EQ(FindTypesetTarget("paper"), TypesetTarget::Paper);
    EXPECT_EQ(FindTypesetTarget("explain"), TypesetTarget::Explanation);
    EXPECT_EQ(FindTypesetTarget("print"), TypesetTarget::Print);
    EXPECT_EQ(FindTypesetTarget("preview"), TypesetTarget::Preview);
    EXPECT_EQ(FindTypesetTarget("Paper"), std::nullopt);
    EXPECT_EQ(FindTypesetTarget(""), std::nullopt);
}

}  // namespace
}  // namespace numerello
