#include <gtest/gtest.h>

#include <map>
#include <string>

#include "catalogue/topic_choice.h"
#include "catalogue/topic_tree.h"
#include "catalogue/topics.h"
#include "core/number.h"

namespace numerello {
namespace {

class TreeViewSelectTest : public testing::Test {
  protected:
    TreeViewSelectTest() {
        topic.ProblemType = 12;
        topic.LastProblemType = 12;
        topic.TopicTitle = "Pythagorean Theorem";
        topic.InputMask = 4321;
        topic.InstructionText = "old";
        topic.MaxDigits = 8;
        topic.MaxVariables = 3;
    }

    void Choose(std::string_view caption) {
        TreeViewSelect(caption, topic, chooser, clock, random);
    }

    void Open(bool arrowFlag = false) {
        chooser.Load(topic);
        chooser.arrowFlag = arrowFlag;
    }

    TopicChoice topic;
    ChooserState chooser;
    FixedClock clock{1234};
    MersenneSource random;
};

TEST_F(TreeViewSelectTest, ARealChoiceSetsEverythingAndClosesTheChooser) {
    Open();
    Choose("Comparing Values");
    EXPECT_EQ(topic.ProblemType, 90);
    EXPECT_EQ(topic.LastProblemType, 90);
    EXPECT_EQ(topic.TopicTitle, "Comparing Values");
    EXPECT_EQ(topic.InputMask, 2048 + 2 + 1);
    EXPECT_EQ(topic.InstructionText, "Enter two numbers separated by a comma.  Example: -3,4");
    EXPECT_EQ(topic.MaxDigits, 8);
    EXPECT_EQ(topic.MaxVariables, 0);
    EXPECT_FALSE(chooser.loaded);
    EXPECT_FALSE(chooser.stillOpen);
    EXPECT_FALSE(topic.ChooserCancelled);
    EXPECT_FALSE(topic.ClickedOnly);
}

TEST_F(TreeViewSelectTest, EveryTopicCanBeChosen) {
    const std::map<std::string_view, int> longNumbers = {{"Expanded Notation", 10},
                                                         {"Comparing Values", 8},
                                                         {"Rounding", 8},
                                                         {"Multiples", 8},
                                                         {"Exponential Notation", 8}};
    for (const Topic& known : Topics()) {
        topic.InputMask = 4321;
        Open();
        Choose(known.caption);
        EXPECT_EQ(topic.ProblemType, known.code) << known.caption;
        EXPECT_EQ(topic.LastProblemType, known.code) << known.caption;
        EXPECT_EQ(topic.TopicTitle, known.caption);
        const auto digits = longNumbers.find(known.caption);
        EXPECT_EQ(topic.MaxDigits, digits == longNumbers.end() ? 5 : digits->second)
            << known.caption;
        EXPECT_EQ(topic.MaxVariables, known.variables) << known.caption;
        const bool keepsMask = known.mask == "unchanged";
        EXPECT_EQ(topic.InputMask, keepsMask ? 4321 : BinaryFlagValue(known.mask)) << known.caption;
        EXPECT_FALSE(chooser.loaded) << known.caption;
    }
}

TEST_F(TreeViewSelectTest, ABoxTopicKeepsTheMask) {
    Open();
    Choose("Similar Triangles");
    EXPECT_EQ(topic.ProblemType, 11);
    EXPECT_EQ(topic.InputMask, 4321);
    EXPECT_EQ(topic.MaxDigits, 5);
    EXPECT_EQ(topic.MaxVariables, 0);
}

TEST_F(TreeViewSelectTest, AFolderSetsCodeZeroAndStaysOpen) {
    Open();
    for (const Folder& folder : Folders()) {
        topic.ProblemType = 12;
        Choose(folder.caption);
        EXPECT_EQ(topic.ProblemType, 0) << folder.caption;
        EXPECT_EQ(topic.LastProblemType, 0) << folder.caption;
        EXPECT_TRUE(chooser.loaded) << folder.caption;
        EXPECT_TRUE(chooser.stillOpen) << folder.caption;
    }
    EXPECT_EQ(topic.MaxDigits, 5);
    EXPECT_EQ(topic.MaxVariables, 0);
    EXPECT_EQ(topic.InputMask, 4321);
    EXPECT_EQ(topic.TopicTitle, "Pythagorean Theorem");
    EXPECT_EQ(topic.InstructionText, "old");
}

TEST_F(TreeViewSelectTest, ACaptionMustMatchInEveryCharacter) {
    for (const char* caption : {"", "ratios", "Ratios ", "RATIOS", "Area of a circle", "Nothing"}) {
        topic.ProblemType = 12;
        Open();
        Choose(caption);
        EXPECT_EQ(topic.ProblemType, 0) << caption;
        EXPECT_TRUE(chooser.loaded) << caption;
    }
}

TEST_F(TreeViewSelectTest, WithTheArrowFlagOnlyTheValuesFollow) {
    Open(true);
    Choose("Ratios");
    EXPECT_EQ(topic.ProblemType, 78);
    EXPECT_EQ(topic.LastProblemType, 78);
    EXPECT_EQ(topic.InputMask, 4096 + 1024 + 1);
    EXPECT_EQ(topic.MaxDigits, 5);
    EXPECT_EQ(topic.TopicTitle, "Pythagorean Theorem");
    EXPECT_EQ(topic.InstructionText, "old");
    EXPECT_TRUE(chooser.loaded);
    EXPECT_TRUE(chooser.stillOpen);
    EXPECT_TRUE(chooser.arrowFlag);
}

TEST_F(TreeViewSelectTest, WithNoChooserOpenEveryKnownCaptionIsARealChoice) {
    TreeViewSelect("Evaluating Polynomials", topic, clock, random);
    EXPECT_EQ(topic.ProblemType, 103);
    EXPECT_EQ(topic.LastProblemType, 103);
    EXPECT_EQ(topic.MaxVariables, 3);
    EXPECT_EQ(topic.TopicTitle, "Evaluating Polynomials");
    EXPECT_EQ(topic.InputMask, 128 + 32 + 16 + 4 + 2 + 1);
    EXPECT_FALSE(topic.ChooserCancelled);

    TreeViewSelect("Polynomials", topic, clock, random);
    EXPECT_EQ(topic.ProblemType, 0);
    EXPECT_EQ(topic.LastProblemType, 0);
    EXPECT_EQ(topic.MaxVariables, 0);
    EXPECT_EQ(topic.TopicTitle, "Evaluating Polynomials");
}

TEST_F(TreeViewSelectTest, AllCaptionsOfTheMeanKeepTheirOwnTitle) {
    for (const char* caption : {"Means (Averages)", "Means", "Averages"}) {
        TreeViewSelect(caption, topic, clock, random);
        EXPECT_EQ(topic.ProblemType, 62);
        EXPECT_EQ(topic.TopicTitle, caption);
        EXPECT_EQ(topic.InstructionText,
                  "Enter a group of numbers separated by commas.  Example: 2,4,3,1");
    }
}

TEST_F(TreeViewSelectTest, TheLinearGraphIsRememberedAndNeverUndone) {
    EXPECT_EQ(topic.LinearGraphTopic, 0);
    TreeViewSelect("Solving Equations", topic, clock, random);
    EXPECT_EQ(topic.LinearGraphTopic, 0);
    TreeViewSelect("Graphing A Linear Equation", topic, clock, random);
    EXPECT_EQ(topic.LinearGraphTopic, 1);
    EXPECT_EQ(topic.MaxVariables, 2);
    TreeViewSelect("Addition", topic, clock, random);
    EXPECT_EQ(topic.LinearGraphTopic, 1);
}

TEST_F(TreeViewSelectTest, TheExampleNumberIsMadeAtTheMomentOfTheChoice) {
    const auto draw = [this] {
        random.Seed(1234);
        return 2 * (static_cast<int>(random.Rnd() * 9) + 1);
    };
    TreeViewSelect("Factoring", topic, clock, random);
    EXPECT_EQ(topic.InstructionText, "Enter a number.  Example: " + WholeText(draw()));
}

TEST(BuildTopicTree, FoldersComeFirstThenTopicsWithoutAKey) {
    TopicChoice topic;
    const auto nodes = BuildTopicTree(topic, false);
    ASSERT_EQ(nodes.size(), 26U + 97U);
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        const bool folder = i < 26;
        EXPECT_EQ(nodes[i].image, folder ? "book1" : "book2") << nodes[i].caption;
        EXPECT_EQ(nodes[i].key.empty(), !folder) << nodes[i].caption;
        EXPECT_EQ(nodes[i].caption, folder ? Folders()[i].caption : TreeTopics()[i - 26].caption);
        EXPECT_EQ(nodes[i].parent, folder ? Folders()[i].parent : TreeTopics()[i - 26].parent);
    }
    EXPECT_EQ(nodes[0].key, "Tree0");
    EXPECT_EQ(nodes[14].key, "Tree3Child");
    EXPECT_EQ(nodes[14].parent, "Tree3");
    EXPECT_EQ(nodes[26].caption, "Addition");
    EXPECT_EQ(nodes[26].parent, "Tree0");
    EXPECT_EQ(nodes[122].caption, "Distance = Speed * Time");
    EXPECT_EQ(nodes[122].parent, "Tree7.2");
}

TEST(BuildTopicTree, OnlyForANewProblemTheCodeBecomesZero) {
    TopicChoice topic;
    topic.ProblemType = 91;
    topic.LastProblemType = 91;
    topic.InputMask = 1039;
    BuildTopicTree(topic, false);
    EXPECT_EQ(topic.ProblemType, 91);
    BuildTopicTree(topic, true);
    EXPECT_EQ(topic.ProblemType, 0);
    EXPECT_EQ(topic.LastProblemType, 91);
    EXPECT_EQ(topic.InputMask, 1039);
}

}  // namespace
}  // namespace numerello
