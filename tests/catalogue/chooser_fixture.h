#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

#include "catalogue/chooser.h"

namespace numerello {

/// The chooser, just opened, with the topic of an earlier choice: Arithmetic, code 91.
class ChooserTest : public testing::Test {
  protected:
    ChooserTest() {
        topic.ProblemType = 91;
        topic.LastProblemType = 91;
        topic.TopicTitle = "Arithmetic";
        topic.InputMask = 1039;
        topic.InstructionText = "old";
        chooser.Form_Load();
    }

    int Node(std::string_view caption) const {
        const auto& nodes = chooser.Nodes();
        const auto found = std::find_if(nodes.begin(), nodes.end(), [caption](const TreeNode& n) {
            return n.caption == caption;
        });
        return static_cast<int>(found - nodes.begin());
    }

    void Click(std::string_view caption) { chooser.TreeView1_NodeClick(Node(caption)); }

    /// A key of the tree that leads to another node.
    void Move(ChooserKey key, std::string_view caption) {
        chooser.TreeView1_KeyDown(key);
        chooser.TreeView1_Moved(Node(caption));
    }

    void ExpectChosen(std::string_view caption, int code) {
        EXPECT_FALSE(chooser.IsOpen());
        EXPECT_FALSE(topic.ChooserCancelled);
        EXPECT_EQ(topic.TopicTitle, caption);
        EXPECT_EQ(topic.ProblemType, code);
        EXPECT_EQ(topic.LastProblemType, code);
    }

    void ExpectOpen(int code) {
        EXPECT_TRUE(chooser.IsOpen());
        EXPECT_FALSE(topic.ChooserCancelled);
        EXPECT_EQ(topic.TopicTitle, "Arithmetic");
        EXPECT_EQ(topic.InstructionText, "old");
        EXPECT_EQ(topic.ProblemType, code);
    }

    TopicChoice topic;
    FixedClock clock{1234};
    MersenneSource random;
    Chooser chooser{topic, BuildTopicTree(topic, false), clock, random};
};

}  // namespace numerello
