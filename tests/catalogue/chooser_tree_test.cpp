#include "tests/catalogue/chooser_fixture.h"

namespace numerello {
namespace {

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
