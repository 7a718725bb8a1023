#include <gtest/gtest.h>

#include "catalogue/chooser.h"

namespace numerello {
namespace {

constexpr int kGraphing = 12;
constexpr int kRatios = 26 + 21;

class SavedTopicTest : public testing::Test {
  protected:
    SavedTopicTest() {
        topic.ProblemType = 91;
        topic.LastProblemType = 91;
        topic.TopicTitle = "Arithmetic";
        topic.InputMask = 1039;
        topic.InstructionText = "old";
        topic.MaxDigits = 8;
        topic.MaxVariables = 2;
    }

    Chooser NewProblem() {
        Chooser chooser(topic, BuildTopicTree(topic, true), clock, random);
        chooser.Form_Load();
        return chooser;
    }

    TopicChoice topic;
    FixedClock clock{1234};
    MersenneSource random;
};

TEST_F(SavedTopicTest, EscBringsBackAllThatTheSelectionsChanged) {
    const SavedTopic saved(topic);
    Chooser chooser = NewProblem();
    EXPECT_EQ(chooser.State().storedProblemType, 0);
    chooser.TreeView1_KeyDown(ChooserKey::Down);
    chooser.TreeView1_Moved(kRatios);
    EXPECT_EQ(topic.ProblemType, 78);
    chooser.TreeView1_NodeClick(kGraphing);
    chooser.TreeView1_KeyDown(ChooserKey::Escape);
    EXPECT_EQ(topic.ProblemType, 0);

    EXPECT_TRUE(saved.RestoreWhenCancelled(topic));
    EXPECT_EQ(topic.ProblemType, 91);
    EXPECT_EQ(topic.LastProblemType, 91);
    EXPECT_EQ(topic.InputMask, 1039);
    EXPECT_EQ(topic.MaxDigits, 8);
    EXPECT_EQ(topic.MaxVariables, 2);
    EXPECT_EQ(topic.TopicTitle, "Arithmetic");
    EXPECT_EQ(topic.InstructionText, "old");
    EXPECT_FALSE(topic.ChooserCancelled);
}

TEST_F(SavedTopicTest, TheCloseBoxBringsTheTopicBackToo) {
    const SavedTopic saved(topic);
    Chooser chooser = NewProblem();
    chooser.Form_Unload();
    EXPECT_EQ(topic.ProblemType, 0);
    EXPECT_TRUE(saved.RestoreWhenCancelled(topic));
    EXPECT_EQ(topic.ProblemType, 91);
    EXPECT_FALSE(topic.ChooserCancelled);
}

TEST_F(SavedTopicTest, AChoiceIsKept) {
    const SavedTopic saved(topic);
    Chooser chooser = NewProblem();
    chooser.TreeView1_NodeClick(kRatios);
    EXPECT_FALSE(saved.RestoreWhenCancelled(topic));
    EXPECT_EQ(topic.ProblemType, 78);
    EXPECT_EQ(topic.TopicTitle, "Ratios");
}

TEST_F(SavedTopicTest, AtTheStartThereIsNothingToPutBack) {
    topic = TopicChoice();
    const SavedTopic saved(topic);
    Chooser chooser = NewProblem();
    chooser.TreeView1_Moved(kRatios);
    chooser.TreeView1_KeyDown(ChooserKey::Escape);
    EXPECT_TRUE(saved.RestoreWhenCancelled(topic));
    EXPECT_EQ(topic.ProblemType, 0);
    EXPECT_EQ(topic.LastProblemType, 0);
    EXPECT_FALSE(topic.ChooserCancelled);
}

}  // namespace
}  // namespace numerello
