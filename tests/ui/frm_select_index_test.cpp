#include "tests/ui/frm_select_fixture.h"

namespace numerello {
namespace {

class FrmSelectIndexTest : public FrmSelectTest {};

TEST_F(FrmSelectIndexTest, IndexHoldsTheSameTopicsByTheAlphabet) {
    EXPECT_EQ(IndexList.count(), 97);
    for (int row = 1; row < IndexList.count(); ++row) {
        EXPECT_LT(IndexList.item(row - 1)->text().toLower(), IndexList.item(row)->text().toLower());
        EXPECT_EQ(Item(IndexList.item(row)->text())->childCount(), 0);
    }
}

TEST_F(FrmSelectIndexTest, ChangingTheTabLeadsToTheSearchBoxAndBack) {
    OpenIndex();
    EXPECT_EQ(SSTab1.currentIndex(), 1);
    EXPECT_TRUE(Text1.hasFocus());
    Click(*SSTab1.tabBar(), SSTab1.tabBar()->tabRect(0).center());
    EXPECT_EQ(SSTab1.currentIndex(), 0);
    EXPECT_TRUE(TreeView1.hasFocus());
    ExpectOpen(91);
}

TEST_F(FrmSelectIndexTest, TabsKeepTheFocusUntilTheyAreChanged) {
    SSTab1.tabBar()->setFocus();
    PressKeys(form, {Qt::Key_Space, Qt::Key_A, Qt::Key_Return});
    EXPECT_TRUE(SSTab1.tabBar()->hasFocus());
    ExpectOpen(91);
    PressKeys(form, {Qt::Key_Right});
    EXPECT_EQ(SSTab1.currentIndex(), 1);
    EXPECT_TRUE(Text1.hasFocus());
}

TEST_F(FrmSelectIndexTest, ControlTabChangesTheTabFromEveryControl) {
    PressKey(form, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_TRUE(Text1.hasFocus());
    PressKey(form, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_TRUE(TreeView1.hasFocus());
    OpenIndex();
    IndexList.setFocus();
    PressKey(form, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(SSTab1.currentIndex(), 0);
    EXPECT_TRUE(TreeView1.hasFocus());
}

TEST_F(FrmSelectIndexTest, SearchTakesTheFirstTopicThatBeginsSo) {
    OpenIndex();
    TypeText(form, "add");
    EXPECT_EQ(LitRow(), "Addition");
    ExpectOpen(91);
    PressKeys(form, {Qt::Key_Return});
    ExpectChosen("Addition", 200);
    EXPECT_FALSE(topic.ClickedOnly);
}

TEST_F(FrmSelectIndexTest, SearchWithoutAMatchKeepsTheSelection) {
    OpenIndex();
    TypeText(form, "RATIO");
    EXPECT_EQ(LitRow(), "Ratios");
    TypeText(form, "x?");
    EXPECT_EQ(Text1.text(), "RATIOx?");
    EXPECT_EQ(LitRow(), "Ratios");
    PressKeys(form, {Qt::Key_Enter});
    ExpectChosen("Ratios", 78);
}

TEST_F(FrmSelectIndexTest, TopicFoundStandsAboveThoseThatBeginAlike) {
    OpenIndex();
    TypeText(form, "conv");
    const QRect view = IndexList.viewport()->rect();
    EXPECT_LT(IndexList.visualItemRect(IndexList.currentItem()).top(), 5);
    EXPECT_TRUE(view.contains(IndexList.visualRect(IndexRow("Converting Feet To Inches"))));
}

TEST_F(FrmSelectIndexTest, ClickInTheListDoesNotScrollIt) {
    OpenIndex();
    const QPoint place = PlaceOf(IndexList, IndexRow("Arithmetic"));
    Click(*IndexList.viewport(), place);
    EXPECT_EQ(IndexList.indexAt(place), IndexRow("Arithmetic"));
}

TEST_F(FrmSelectIndexTest, EmptiedSearchGoesBackToTheFirstRow) {
    OpenIndex();
    TypeText(form, "m");
    EXPECT_EQ(LitRow(), "Means (Averages)");
    PressKeys(form, {Qt::Key_Backspace});
    EXPECT_EQ(LitRow(), "Absolute Values");
}

TEST_F(FrmSelectIndexTest, ArrowKeysOfTheSearchBoxGoOnFromTheRowFound) {
    OpenIndex();
    TypeText(form, "add");
    PressKeys(form, {Qt::Key_Down});
    EXPECT_EQ(LitRow(), "Amount = N% of Base");
    EXPECT_EQ(Text1.text(), "add");
    EXPECT_TRUE(Text1.hasFocus());
    PressKeys(form, {Qt::Key_Up, Qt::Key_Down, Qt::Key_Return});
    ExpectChosen("Amount = N% of Base", 14);
}

TEST_F(FrmSelectIndexTest, EnterInTheSearchBoxChoosesAfterAnArrowKeyInTheTree) {
    ArrowDownTo("Graphing");
    OpenIndex();
    TypeText(form, "median");
    PressKeys(form, {Qt::Key_Return});
    ExpectChosen("Medians", 61);
}

TEST_F(FrmSelectIndexTest, KeysOfTheListMoveAndEnterChooses) {
    OpenIndex();
    IndexList.setFocus();
    PressKeys(form, {Qt::Key_End});
    EXPECT_EQ(LitRow(), "Work = Rate * Time");
    TypeText(form, "means");
    EXPECT_EQ(LitRow(), "Means (Averages)");
    ExpectOpen(91);
    EXPECT_EQ(Text1.text(), "");
    PressKeys(form, {Qt::Key_Return});
    ExpectChosen("Means (Averages)", 62);
    EXPECT_FALSE(topic.ClickedOnly);
}

TEST_F(FrmSelectIndexTest, ClickInTheListCopiesItsRowIntoTheSearchBox) {
    OpenIndex();
    ClickRow(IndexList, IndexRow("Modes"));
    EXPECT_EQ(LitRow(), "Modes");
    EXPECT_EQ(Text1.text(), "Modes");
    ExpectOpen(91);
    Press(*IndexList.viewport(), PlaceOf(IndexList, IndexRow("Medians")));
    EXPECT_EQ(LitRow(), "Medians");
    EXPECT_EQ(Text1.text(), "Modes");
    Release(*IndexList.viewport(), PlaceOf(IndexList, IndexRow("Medians")));
    EXPECT_EQ(Text1.text(), "Medians");
    ExpectOpen(91);
}

TEST_F(FrmSelectIndexTest, DoubleClickInTheListChoosesByAClick) {
    OpenIndex();
    DoubleClickRow(IndexList, IndexRow("Medians"));
    ExpectChosen("Medians", 61);
    EXPECT_TRUE(topic.ClickedOnly);
}

}  // namespace
}  // namespace numerello
