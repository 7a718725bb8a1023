#include "tests/catalogue/chooser_fixture.h"

namespace numerello {
namespace {

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

}  // namespace
}  // namespace numerello
