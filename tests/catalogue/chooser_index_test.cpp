#include <string>

#include "catalogue/topics.h"
#include "tests/catalogue/chooser_fixture.h"

namespace numerello {
namespace {

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

}  // namespace
}  // namespace numerello
