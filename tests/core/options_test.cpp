#include "core/options.h"

#include <gtest/gtest.h>

namespace numerello {
namespace {

TEST(Options, TheListsHaveTheirRows) {
    const std::vector<std::string_view> digits{"1", "2", "3", "4", "5"};
    const std::vector<std::string_view> details{"High", "Medium", "Low"};
    EXPECT_EQ(std::vector(RoundDigitsRows().begin(), RoundDigitsRows().end()), digits);
    EXPECT_EQ(std::vector(DetailRows().begin(), DetailRows().end()), details);
}

TEST(Options, OpenWithTheDefaults) {
    const OptionControls shown = ShownOptions(AnswerSettings());
    EXPECT_EQ(shown.Combo1ListIndex, 1);
    EXPECT_EQ(shown.Combo2ListIndex, 0);
    EXPECT_TRUE(shown.Check2);
    EXPECT_FALSE(shown.Check3);
}

TEST(Options, OkStoresAMatchingPairOfDetails) {
    const std::pair<int, int> pairs[] = {{3, 1}, {2, 2}, {1, 3}};
    for (int row = 0; row < 3; ++row) {
        AnswerSettings settings;
        settings.DetailLevel = 2;
        Command1_Click({0, row, true, false}, settings);
        EXPECT_EQ(std::pair(settings.ExpDetail, settings.DetailLevel), pairs[row]) << row;
        EXPECT_EQ(ShownOptions(settings).Combo2ListIndex, row);
    }
}

TEST(Options, TheDetailRowIsThatOfTheExplanation) {
    AnswerSettings settings;
    settings.ExpDetail = 1;
    settings.DetailLevel = 1;
    EXPECT_EQ(ShownOptions(settings).Combo2ListIndex, 2);
}

TEST(Options, OkStoresDigitsAndChecks) {
    for (int row = 0; row < 5; ++row) {
        AnswerSettings settings;
        settings.whichAssistant = 2;
        Command1_Click({row, 0, false, true}, settings);
        EXPECT_EQ(settings.RoundDigits, row + 1);
        EXPECT_FALSE(settings.ClickNotify);
        EXPECT_EQ(settings.ComplexEx, 2);
        EXPECT_EQ(settings.whichAssistant, 2);

        const OptionControls shown = ShownOptions(settings);
        EXPECT_EQ(shown.Combo1ListIndex, row);
        EXPECT_FALSE(shown.Check2);
        EXPECT_TRUE(shown.Check3);
        Command1_Click({row, 0, true, false}, settings);
        EXPECT_TRUE(settings.ClickNotify);
        EXPECT_EQ(settings.ComplexEx, 0);
    }
}

TEST(Options, AListWithoutAChoiceChangesNothing) {
    AnswerSettings settings;
    settings.RoundDigits = 4;
    settings.ExpDetail = 2;
    settings.DetailLevel = 2;
    Command1_Click({-1, -1, true, false}, settings);
    EXPECT_EQ(settings.RoundDigits, 4);
    EXPECT_EQ(settings.ExpDetail, 2);
    EXPECT_EQ(settings.DetailLevel, 2);
}

}  // namespace
}  // namespace numerello
