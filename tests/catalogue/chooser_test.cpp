#include "catalogue/chooser.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "catalogue/topics.h"

namespace numerello {
namespace {

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

TEST_F(ChooserTest, OpensOnTheTreeWithEveryFolderClosed) {
    EXPECT_TRUE(chooser.IsOpen());
    EXPECT_TRUE(chooser.State().stillOpen);
    EXPECT_FALSE(chooser.State().arrowFlag);
    EXPECT_EQ(chooser.State().storedProblemType, 91);
    EXPECT_EQ(chooser.State().storedInputMask, 1039);
    EXPECT_EQ(chooser.Tab(), ChooserTab::Topic);
    EXPECT_EQ(chooser.Focus(), ChooserControl::TreeView1);
    EXPECT_EQ(chooser.SearchText(), "");
    EXPECT_EQ(chooser.IndexRow(), 0);
    EXPECT_EQ(chooser.IndexText(), "Absolute Values");
    for (int node = 0; node < 123; ++node) {
        EXPECT_FALSE(chooser.IsExpanded(node)) << node;
    }
}

TEST_F(ChooserTest, LoadingAgainStartsAnew) {
    chooser.TreeView1_Expand(Node("Graphing"));
    chooser.TreeView1_KeyDown(ChooserKey::Down);
    chooser.SSTab1_Click(ChooserTab::Index);
    chooser.Text1_Change("ratios");
    chooser.Form_Unload();
    topic.ProblemType = 78;
    topic.InputMask = 5;
    chooser.Form_Load();
    EXPECT_TRUE(chooser.IsOpen());
    EXPECT_EQ(chooser.State().storedProblemType, 78);
    EXPECT_EQ(chooser.State().storedInputMask, 5);
    EXPECT_FALSE(chooser.State().arrowFlag);
    EXPECT_EQ(chooser.Tab(), ChooserTab::Topic);
    EXPECT_EQ(chooser.SearchText(), "");
    EXPECT_EQ(chooser.IndexRow(), 0);
    EXPECT_EQ(chooser.SelectedNode(), 0);
    EXPECT_FALSE(chooser.IsExpanded(Node("Graphing")));
}

TEST_F(ChooserTest, ClickOnATopicChooses) {
    Click("Prime Factorization");
    ExpectChosen("Prime Factorization", 84);
    EXPECT_EQ(topic.InputMask, 1025);
    EXPECT_FALSE(topic.ClickedOnly);
}

TEST_F(ChooserTest, ClickOnAFolderOpensItAndTheNextClosesIt) {
    Click("Areas/Volumes");
    EXPECT_TRUE(chooser.IsExpanded(Node("Areas/Volumes")));
    EXPECT_EQ(chooser.SelectedNode(), Node("Areas/Volumes"));
    ExpectOpen(0);
    EXPECT_EQ(topic.LastProblemType, 0);

    Click("Areas");
    EXPECT_TRUE(chooser.IsExpanded(Node("Areas")));
    Click("Areas/Volumes");
    EXPECT_FALSE(chooser.IsExpanded(Node("Areas/Volumes")));
    ExpectOpen(0);
}

TEST_F(ChooserTest, DoubleClickOnAFolderLeavesItOpen) {
    Click("Graphing");
    chooser.TreeView1_DblClick();
    EXPECT_TRUE(chooser.IsExpanded(Node("Graphing")));
    ExpectOpen(0);
}

TEST_F(ChooserTest, ExpandAndCollapseSelectTheNodeAlone) {
    chooser.TreeView1_Expand(Node("Graphing"));
    EXPECT_EQ(chooser.SelectedNode(), Node("Graphing"));
    EXPECT_TRUE(chooser.IsExpanded(Node("Graphing")));
    ExpectOpen(91);
    EXPECT_EQ(topic.LastProblemType, 91);

    chooser.TreeView1_Moved(Node("Plotting A Point"));
    chooser.TreeView1_Collapse(Node("Graphing"));
    EXPECT_EQ(chooser.SelectedNode(), Node("Graphing"));
    EXPECT_FALSE(chooser.IsExpanded(Node("Graphing")));
    ExpectOpen(108);
}

TEST_F(ChooserTest, ATopicHasNothingToExpand) {
    chooser.TreeView1_Expand(Node("Ratios"));
    EXPECT_FALSE(chooser.IsExpanded(Node("Ratios")));
    EXPECT_EQ(chooser.SelectedNode(), 0);
}

TEST_F(ChooserTest, ArrowKeysPassOverTopicsWithoutChoosing) {
    for (const ChooserKey key : {ChooserKey::Up, ChooserKey::Down, ChooserKey::Right}) {
        chooser.TreeView1_KeyDown(ChooserKey::Other);
        Move(key, "Ratios");
        EXPECT_TRUE(chooser.State().arrowFlag);
        EXPECT_EQ(chooser.SelectedNode(), Node("Ratios"));
        ExpectOpen(78);
        EXPECT_EQ(topic.LastProblemType, 78);
        EXPECT_EQ(topic.InputMask, 4096 + 1024 + 1);

        Move(key, "Graphing");
        ExpectOpen(0);
        EXPECT_EQ(topic.LastProblemType, 0);
    }
}

TEST_F(ChooserTest, AfterAnArrowKeyAClickOnlySelects) {
    Move(ChooserKey::Down, "Ratios");
    Click("Medians");
    EXPECT_EQ(chooser.SelectedNode(), Node("Medians"));
    ExpectOpen(61);
    EXPECT_TRUE(chooser.State().arrowFlag);
    Click("Modes");
    ExpectOpen(60);
}

TEST_F(ChooserTest, AfterAnArrowKeyADoubleClickChooses) {
    Move(ChooserKey::Down, "Ratios");
    Click("Medians");
    chooser.TreeView1_DblClick();
    ExpectChosen("Medians", 61);
    EXPECT_FALSE(topic.ClickedOnly);
}

TEST_F(ChooserTest, AfterAnArrowKeyEnterChooses) {
    Move(ChooserKey::Right, "Ratios");
    chooser.TreeView1_KeyDown(ChooserKey::Enter);
    ExpectChosen("Ratios", 78);
}

TEST_F(ChooserTest, AfterAnyOtherKeyAClickChoosesAgain) {
    Move(ChooserKey::Down, "Ratios");
    chooser.TreeView1_KeyDown(ChooserKey::Other);
    EXPECT_FALSE(chooser.State().arrowFlag);
    ExpectOpen(78);
    Click("Medians");
    ExpectChosen("Medians", 61);
}

TEST_F(ChooserTest, NoKeyThatMovesTheSelectionChooses) {
    Move(ChooserKey::Other, "Distance = Speed * Time");
    EXPECT_FALSE(chooser.State().arrowFlag);
    EXPECT_EQ(chooser.SelectedNode(), Node("Distance = Speed * Time"));
    ExpectOpen(22);
    EXPECT_EQ(topic.LastProblemType, 22);
    chooser.TreeView1_KeyDown(ChooserKey::Enter);
    ExpectChosen("Distance = Speed * Time", 22);
}

TEST_F(ChooserTest, EnterOnAFolderOpensItAndStays) {
    Move(ChooserKey::Down, "Graphing");
    chooser.TreeView1_KeyDown(ChooserKey::Enter);
    EXPECT_TRUE(chooser.IsExpanded(Node("Graphing")));
    ExpectOpen(0);
    chooser.TreeView1_KeyDown(ChooserKey::Enter);
    EXPECT_TRUE(chooser.IsExpanded(Node("Graphing")));
    ExpectOpen(0);
}

TEST_F(ChooserTest, EnterAtOnceOpensTheFirstFolder) {
    chooser.TreeView1_KeyDown(ChooserKey::Enter);
    EXPECT_TRUE(chooser.IsExpanded(Node("Addition/Subtraction/Multiplication/Division")));
    ExpectOpen(0);
}

TEST_F(ChooserTest, ChangingTheTabLeadsToTheSearchBox) {
    chooser.SSTab1_Click(ChooserTab::Index);
    EXPECT_EQ(chooser.Tab(), ChooserTab::Index);
    EXPECT_EQ(chooser.Focus(), ChooserControl::Text1);
    chooser.SSTab1_Click(ChooserTab::Topic);
    EXPECT_EQ(chooser.Tab(), ChooserTab::Topic);
    EXPECT_EQ(chooser.Focus(), ChooserControl::TreeView1);
    ExpectOpen(91);
}

TEST_F(ChooserTest, TheArrowFlagEndsWithTheTree) {
    chooser.TreeView1_KeyDown(ChooserKey::Down);
    chooser.SSTab1_Click(ChooserTab::Index);
    EXPECT_FALSE(chooser.State().arrowFlag);

    for (const ChooserControl control : {ChooserControl::Text1, ChooserControl::IndexList}) {
        chooser.TreeView1_KeyDown(ChooserKey::Down);
        chooser.Control_GotFocus(control);
        EXPECT_FALSE(chooser.State().arrowFlag);
        EXPECT_EQ(chooser.Focus(), control);
    }
    for (const ChooserControl control : {ChooserControl::SSTab1, ChooserControl::TreeView1}) {
        chooser.TreeView1_KeyDown(ChooserKey::Down);
        chooser.Control_GotFocus(control);
        EXPECT_TRUE(chooser.State().arrowFlag);
        EXPECT_EQ(chooser.Focus(), control);
    }
}

TEST_F(ChooserTest, EnterInTheSearchBoxChoosesAfterAnArrowKeyInTheTree) {
    Move(ChooserKey::Down, "Graphing");
    chooser.SSTab1_Click(ChooserTab::Index);
    chooser.Text1_Change("add");
    chooser.Text1_KeyDown(ChooserKey::Enter);
    ExpectChosen("Addition", 200);
}

TEST_F(ChooserTest, SearchSelectsTheFirstRowThatBeginsSo) {
    chooser.Text1_Change("add");
    EXPECT_EQ(chooser.IndexText(), "Addition");
    EXPECT_EQ(chooser.SearchText(), "add");
    chooser.Text1_Change("MEANS");
    EXPECT_EQ(chooser.IndexText(), "Means (Averages)");
    ExpectOpen(91);
}

TEST_F(ChooserTest, SearchWithoutAMatchLeavesTheSelection) {
    chooser.Text1_Change("ratios");
    for (const std::string& text : {std::string("ratiosx"), std::string(300, 'r'),
                                    std::string("averages"), std::string("?")}) {
        chooser.Text1_Change(text);
        EXPECT_EQ(chooser.IndexText(), "Ratios");
        EXPECT_EQ(chooser.SearchText(), text);
    }
    chooser.Text1_KeyDown(ChooserKey::Enter);
    ExpectChosen("Ratios", 78);
}

TEST_F(ChooserTest, AnEmptySearchGoesBackToTheFirstRow) {
    chooser.Text1_Change("ratios");
    chooser.Text1_Change("");
    EXPECT_EQ(chooser.IndexRow(), 0);
}

TEST_F(ChooserTest, OtherKeysOfTheIndexDoNothing) {
    for (const ChooserKey key :
         {ChooserKey::Other, ChooserKey::Up, ChooserKey::Right, ChooserKey::Down}) {
        chooser.Text1_KeyDown(key);
        chooser.IndexList_KeyDown(key);
        chooser.SSTab1_KeyDown(key);
    }
    chooser.SSTab1_KeyDown(ChooserKey::Enter);
    ExpectOpen(91);
    EXPECT_FALSE(chooser.State().arrowFlag);
}

TEST_F(ChooserTest, EnterInTheListChoosesTheRow) {
    chooser.IndexList_Moved(66);
    EXPECT_EQ(chooser.IndexText(), "Means (Averages)");
    ExpectOpen(91);
    chooser.IndexList_KeyDown(ChooserKey::Enter);
    ExpectChosen("Means (Averages)", 62);
    EXPECT_FALSE(topic.ClickedOnly);
}

TEST_F(ChooserTest, AClickInTheListCopiesTheRowIntoTheSearchBox) {
    for (int row = 0; row < 97; ++row) {
        chooser.IndexList_Moved(row);
        chooser.IndexList_MouseUp();
        EXPECT_EQ(chooser.SearchText(), IndexRows()[static_cast<std::size_t>(row)]);
        EXPECT_EQ(chooser.IndexRow(), row);
    }
    ExpectOpen(91);
}

TEST_F(ChooserTest, ADoubleClickInTheListChoosesByAClick) {
    chooser.IndexList_Moved(96);
    chooser.IndexList_MouseUp();
    chooser.IndexList_DblClick();
    ExpectChosen("Work = Rate * Time", 21);
    EXPECT_TRUE(topic.ClickedOnly);
}

TEST_F(ChooserTest, EscRestoresTheLastChoiceFromEveryControl) {
    using KeyDown = void (Chooser::*)(ChooserKey);
    for (const KeyDown keyDown : {&Chooser::Text1_KeyDown, &Chooser::IndexList_KeyDown,
                                  &Chooser::TreeView1_KeyDown, &Chooser::SSTab1_KeyDown}) {
        topic.ProblemType = 0;
        topic.LastProblemType = 91;
        topic.ChooserCancelled = false;
        chooser.Form_Load();
        (chooser.*keyDown)(ChooserKey::Escape);
        EXPECT_FALSE(chooser.IsOpen());
        EXPECT_TRUE(topic.ChooserCancelled);
        EXPECT_EQ(topic.ProblemType, 91);
        EXPECT_EQ(topic.LastProblemType, 91);
    }
}

TEST_F(ChooserTest, EscAfterAFolderLeavesCodeZero) {
    Click("Graphing");
    chooser.TreeView1_KeyDown(ChooserKey::Escape);
    EXPECT_FALSE(chooser.IsOpen());
    EXPECT_TRUE(topic.ChooserCancelled);
    EXPECT_EQ(topic.ProblemType, 0);
}

TEST_F(ChooserTest, EscAfterPassingATopicLeavesThatTopicsCode) {
    Move(ChooserKey::Down, "Ratios");
    chooser.TreeView1_KeyDown(ChooserKey::Escape);
    EXPECT_TRUE(topic.ChooserCancelled);
    EXPECT_EQ(topic.ProblemType, 78);
    EXPECT_EQ(topic.InputMask, 4096 + 1024 + 1);
    EXPECT_EQ(topic.TopicTitle, "Arithmetic");
}

TEST_F(ChooserTest, TheCloseBoxRestoresCodeAndMask) {
    Move(ChooserKey::Down, "Ratios");
    Click("Graphing");
    chooser.Form_Unload();
    EXPECT_FALSE(chooser.IsOpen());
    EXPECT_TRUE(topic.ChooserCancelled);
    EXPECT_EQ(topic.ProblemType, 91);
    EXPECT_EQ(topic.InputMask, 1039);
    EXPECT_EQ(topic.LastProblemType, 0);
}

TEST_F(ChooserTest, ClosingAfterAChoiceCancelsNothing) {
    Click("Ratios");
    chooser.Form_Unload();
    ExpectChosen("Ratios", 78);
}

TEST_F(ChooserTest, AClosedChooserTakesNoEvents) {
    Click("Ratios");
    chooser.TreeView1_NodeClick(Node("Medians"));
    chooser.TreeView1_DblClick();
    chooser.TreeView1_Moved(Node("Medians"));
    chooser.TreeView1_Expand(Node("Graphing"));
    chooser.IndexList_Moved(3);
    chooser.IndexList_MouseUp();
    chooser.IndexList_DblClick();
    chooser.Text1_Change("medians");
    chooser.SSTab1_Click(ChooserTab::Index);
    chooser.Control_GotFocus(ChooserControl::IndexList);
    for (const ChooserKey key : {ChooserKey::Enter, ChooserKey::Escape, ChooserKey::Down}) {
        chooser.TreeView1_KeyDown(key);
        chooser.Text1_KeyDown(key);
        chooser.IndexList_KeyDown(key);
        chooser.SSTab1_KeyDown(key);
    }
    ExpectChosen("Ratios", 78);
    EXPECT_FALSE(topic.ClickedOnly);
    EXPECT_FALSE(chooser.State().arrowFlag);
    EXPECT_EQ(chooser.IndexRow(), 0);
    EXPECT_EQ(chooser.SearchText(), "");
    EXPECT_EQ(chooser.Tab(), ChooserTab::Topic);
    EXPECT_FALSE(chooser.IsExpanded(Node("Graphing")));
}

TEST_F(ChooserTest, EventsBesideTheRowsDoNothing) {
    for (const int nowhere : {-1, 123, 1000}) {
        chooser.TreeView1_NodeClick(nowhere);
        chooser.TreeView1_Moved(nowhere);
        chooser.TreeView1_Expand(nowhere);
        chooser.IndexList_Moved(nowhere);
    }
    chooser.IndexList_Moved(97);
    EXPECT_EQ(chooser.IndexRow(), 0);
    EXPECT_EQ(chooser.SelectedNode(), 0);
    ExpectOpen(91);
}

}  // namespace
}  // namespace numerello
