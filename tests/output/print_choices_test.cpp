#include "output/print_choices.h"

#include <gtest/gtest.h>

#include "core/topic_codes.h"

namespace numerello {
namespace {

TEST(PrintChoices, OfferTheProblemAndItsReasons) {
    const PrintChoices choices = ChoicesAtOpening(kSolvingEquations, false);
    EXPECT_TRUE(choices.Problem.enabled);
    EXPECT_TRUE(choices.Problem.ticked);
    EXPECT_TRUE(choices.Explanation.enabled);
    EXPECT_FALSE(choices.Explanation.ticked);
    EXPECT_FALSE(choices.Graph.enabled);
    EXPECT_FALSE(choices.Graph.ticked);
}

TEST(PrintChoices, TickTheGraphThatIsOpen) {
    const PrintChoices choices = ChoicesAtOpening(kGraphingAnEquation, true);
    EXPECT_TRUE(choices.Problem.ticked);
    EXPECT_TRUE(choices.Graph.enabled);
    EXPECT_TRUE(choices.Graph.ticked);
}

TEST(PrintChoices, HaveNoLinesOfPointAndLineThroughTwoPoints) {
    for (const int code : {106, 108}) {
        for (const bool graph : {false, true}) {
            const PrintChoices choices = ChoicesAtOpening(code, graph);
            EXPECT_FALSE(choices.Problem.enabled);
            EXPECT_FALSE(choices.Problem.ticked);
            EXPECT_FALSE(choices.Explanation.enabled);
            EXPECT_FALSE(choices.Explanation.ticked);
            EXPECT_EQ(choices.Graph.enabled, graph);
            EXPECT_EQ(choices.Graph.ticked, graph);
        }
    }
}

TEST(PrintChoices, HaveNoReasonsOfColumns) {
    for (const int code : {200, 201, 202, 203}) {
        const PrintChoices choices = ChoicesAtOpening(code, false);
        EXPECT_TRUE(choices.Problem.ticked);
        EXPECT_FALSE(choices.Explanation.enabled);
        EXPECT_FALSE(choices.Explanation.ticked);
    }
    EXPECT_TRUE(ChoicesAtOpening(150, false).Explanation.enabled);
}

TEST(PrintChoices, NeedAProblemOrAGraph) {
    EXPECT_TRUE(CanPrint(true, false));
    EXPECT_TRUE(CanPrint(false, true));
    EXPECT_FALSE(CanPrint(false, false));
}

}  // namespace
}  // namespace numerello
