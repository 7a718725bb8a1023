#include <QTreeWidgetItemIterator>
#include <functional>
#include <map>

#include "tests/ui/frm_select_fixture.h"
#include "ui/artwork.h"
#include "ui/text.h"

namespace numerello {
namespace {

TEST_F(FrmSelectTest, OpensOnTheTreeWithItsFirstFolderLit) {
    EXPECT_EQ(form.objectName(), "frmSelect");
    EXPECT_EQ(form.windowTitle(), "Choose problem type:");
    EXPECT_TRUE(form.isModal());
    EXPECT_EQ(SSTab1.count(), 2);
    EXPECT_EQ(SSTab1.tabText(0), "Topic");
    EXPECT_EQ(SSTab1.tabText(1), "Index");
    EXPECT_EQ(SSTab1.currentIndex(), 0);
    EXPECT_TRUE(TreeView1.hasFocus());
    EXPECT_TRUE(TreeView1.isHeaderHidden());
    EXPECT_EQ(LitNode(), "Addition/Subtraction/Multiplication/Division");
    EXPECT_EQ(LitRow(), "Absolute Values");
    EXPECT_EQ(Text1.text(), "");
    ExpectOpen(91);
    EXPECT_EQ(topic.LastProblemType, 91);
}

/// In depth-first order the tree has to show, below each folder, what names it as its parent.
QStringList BelowFolder(const std::vector<TreeNode>& nodes, std::string_view folder) {
    QStringList captions;
    for (const TreeNode& node : nodes) {
        if (node.parent == folder) {
            captions << ToQString(node.caption);
            if (!node.key.empty()) {
                captions << BelowFolder(nodes, node.key);
            }
        }
    }
    return captions;
}

TEST_F(FrmSelectTest, ShowsAllFoldersAndTopicsInOrderWithTheirPictures) {
    const QImage book1 = Artwork("book1", {20, 20}, 1).toImage();
    const QImage book2 = Artwork("book2", {20, 20}, 1).toImage();
    ASSERT_NE(book1, book2);
    EXPECT_EQ(TreeView1.iconSize(), QSize(20, 20));

    QStringList shown;
    int folders = 0;
    for (QTreeWidgetItemIterator it(&TreeView1); *it != nullptr; ++it) {
        shown << (*it)->text(0);
        EXPECT_FALSE((*it)->isExpanded());
        const bool isFolder = (*it)->childCount() > 0;
        folders += isFolder ? 1 : 0;
        EXPECT_EQ((*it)->icon(0).pixmap(QSize(20, 20), 1).toImage(), isFolder ? book1 : book2);
    }
    EXPECT_EQ(shown, BelowFolder(BuildTopicTree(topic, false), ""));
    EXPECT_EQ(shown.size(), 26 + 97);
    EXPECT_EQ(folders, 26);
    EXPECT_EQ(TreeView1.topLevelItemCount(), 14);
    EXPECT_EQ(TreeView1.topLevelItem(13)->text(0), "Miscellaneous Formulas");
    EXPECT_EQ(Item("Fractions/Ratios")->child(0)->text(0), "Fraction/Mixed Conversions");
    EXPECT_EQ(Item("Fractions/Ratios")->child(1)->text(0), "Simplifying Fractions");
    EXPECT_EQ(Item("Lengths")->parent()->parent()->text(0),
              "Standard/Metric/Temperature Conversions");
}

TEST_F(FrmSelectTest, EverythingThatTakesTheFocusHasAName) {
    for (const int tab : {0, 1}) {
        SSTab1.setCurrentIndex(tab);
        for (const QWidget* widget : form.findChildren<QWidget*>()) {
            if (widget->isVisible() && widget->focusPolicy() != Qt::NoFocus &&
                widget->focusProxy() == nullptr) {
                EXPECT_FALSE(widget->accessibleName().isEmpty())
                    << widget->metaObject()->className();
            }
        }
    }
    EXPECT_EQ(Text1.accessibleName(), "Search");
}

TEST_F(FrmSelectTest, ClickOnAFolderOpensItAndTheNextClosesIt) {
    ClickNode("Areas/Volumes");
    EXPECT_TRUE(Item("Areas/Volumes")->isExpanded());
    EXPECT_EQ(LitNode(), "Areas/Volumes");
    ExpectOpen(0);
    EXPECT_EQ(topic.LastProblemType, 0);
    ClickNode("Areas");
    EXPECT_TRUE(Item("Areas")->isExpanded());
    ClickNode("Areas/Volumes");
    EXPECT_FALSE(Item("Areas/Volumes")->isExpanded());
    ExpectOpen(0);
}

TEST_F(FrmSelectTest, ClickOnATopicChooses) {
    ClickNode("Multiples/Factoring");
    ClickNode("Prime Factorization");
    ExpectChosen("Prime Factorization", 84);
    EXPECT_EQ(topic.InputMask, 1024 + 1);
    EXPECT_FALSE(topic.ClickedOnly);
}

TEST_F(FrmSelectTest, DoubleClickOnAFolderLeavesItOpen) {
    DoubleClickRow(TreeView1, NodeRow("Graphing"));
    EXPECT_TRUE(Item("Graphing")->isExpanded());
    ExpectOpen(0);
    DoubleClickRow(TreeView1, NodeRow("Graphing"));
    EXPECT_FALSE(Item("Graphing")->isExpanded());
    ExpectOpen(0);
}

TEST_F(FrmSelectTest, BranchMarkOpensAFolderWithoutPassingOverIt) {
    const QRect row = TreeView1.visualItemRect(Item("Graphing"));
    const QPoint mark(row.left() - TreeView1.indentation() / 2, row.center().y());
    Click(*TreeView1.viewport(), mark);
    EXPECT_TRUE(Item("Graphing")->isExpanded());
    EXPECT_EQ(LitNode(), "Graphing");
    ExpectOpen(91);
    Click(*TreeView1.viewport(), mark);
    EXPECT_FALSE(Item("Graphing")->isExpanded());
    ExpectOpen(91);
}

TEST_F(FrmSelectTest, FolderOpenedAtTheLowerEdgeShowsWhatIsInIt) {
    form.resize(form.width(), 300);
    const QPoint place = PlaceOf(TreeView1, NodeRow("Miscellaneous Formulas"));
    Click(*TreeView1.viewport(), place);
    QCoreApplication::processEvents();
    // The second half of a double click would still meet the folder.
    EXPECT_EQ(TreeView1.indexAt(place), NodeRow("Miscellaneous Formulas"));
    const auto isShown = [this](const QString& caption) {
        return TreeView1.viewport()->rect().contains(TreeView1.visualItemRect(Item(caption)));
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return isShown("Distance = Speed * Time"); }, 1000));
    EXPECT_TRUE(isShown("Miscellaneous Formulas"));
}

TEST_F(FrmSelectTest, ArrowKeysPassOverTopics) {
    PressKeys(form, {Qt::Key_Right});
    EXPECT_TRUE(Item("Addition/Subtraction/Multiplication/Division")->isExpanded());
    EXPECT_EQ(LitNode(), "Addition/Subtraction/Multiplication/Division");
    ExpectOpen(91);
    PressKeys(form, {Qt::Key_Right});
    EXPECT_EQ(LitNode(), "Addition");
    ExpectOpen(200);
    PressKeys(form, {Qt::Key_Down});
    EXPECT_EQ(LitNode(), "Subtraction");
    ExpectOpen(201);
    PressKeys(form, {Qt::Key_Up});
    ExpectOpen(200);
    EXPECT_EQ(topic.LastProblemType, 200);
    PressKeys(form, {Qt::Key_Left});
    EXPECT_EQ(LitNode(), "Addition/Subtraction/Multiplication/Division");
    ExpectOpen(0);
    PressKeys(form, {Qt::Key_Left});
    EXPECT_FALSE(Item("Addition/Subtraction/Multiplication/Division")->isExpanded());
    ExpectOpen(0);
}

TEST_F(FrmSelectTest, AfterAnArrowKeyAClickOnlySelectsAndADoubleClickChooses) {
    ClickNode("Means(Averages)/Medians/Modes/Ranges");
    PressKeys(form, {Qt::Key_Down});
    EXPECT_EQ(LitNode(), "Means (Averages)");
    ClickNode("Modes");
    EXPECT_EQ(LitNode(), "Modes");
    ExpectOpen(60);
    DoubleClickRow(TreeView1, NodeRow("Medians"));
    ExpectChosen("Medians", 61);
    EXPECT_FALSE(topic.ClickedOnly);
}

TEST_F(FrmSelectTest, EnterChoosesWhereTheArrowKeysLed) {
    ClickNode("Means(Averages)/Medians/Modes/Ranges");
    ArrowDownTo("Medians");
    ExpectOpen(61);
    PressKeys(form, {Qt::Key_Return});
    ExpectChosen("Medians", 61);
}

TEST_F(FrmSelectTest, EnterOnAFolderOpensItAndStays) {
    ArrowDownTo("Graphing");
    PressKeys(form, {Qt::Key_Enter});
    EXPECT_TRUE(Item("Graphing")->isExpanded());
    ExpectOpen(0);
    PressKeys(form, {Qt::Key_Enter});
    EXPECT_TRUE(Item("Graphing")->isExpanded());
    ExpectOpen(0);
}

TEST_F(FrmSelectTest, OtherKeysMoveWithoutChoosingAndLetTheNextClickChoose) {
    ClickNode("Miscellaneous Formulas");
    PressKeys(form, {Qt::Key_Down, Qt::Key_End});
    EXPECT_EQ(LitNode(), "Distance = Speed * Time");
    ExpectOpen(22);
    PressKeys(form, {Qt::Key_Home});
    ExpectOpen(0);
    TypeText(form, "work");
    EXPECT_EQ(LitNode(), "Work = Rate * Time");
    ExpectOpen(21);
    ClickNode("Distance = Speed * Time");
    ExpectChosen("Distance = Speed * Time", 22);
}

TEST_F(FrmSelectTest, PressThatIsDraggedOffARowIsNoClick) {
    ClickNode("Graphing");
    const QPoint from = PlaceOf(TreeView1, NodeRow("Plotting A Point"));
    const QPoint to = PlaceOf(TreeView1, NodeRow("Basic Operations"));
    Press(*TreeView1.viewport(), from);
    Release(*TreeView1.viewport(), to);
    EXPECT_EQ(LitNode(), "Graphing");
    ExpectOpen(0);
    PressKeys(form, {Qt::Key_Return});
    ExpectOpen(0);
}

TEST_F(FrmSelectTest, ClickBesideTheRowsChangesNothing) {
    ClickNode("Graphing");
    form.resize(form.width(), 900);
    Click(*TreeView1.viewport(), TreeView1.viewport()->rect().bottomLeft() + QPoint(100, -5));
    EXPECT_EQ(LitNode(), "Graphing");
    ExpectOpen(0);
}

TEST_F(FrmSelectTest, OnlyTheLeftButtonClicks) {
    ClickNode("Graphing");
    const QPoint place = PlaceOf(TreeView1, NodeRow("Plotting A Point"));
    Click(*TreeView1.viewport(), place, Qt::RightButton);
    Click(*TreeView1.viewport(), place, Qt::MiddleButton);
    DoubleClick(*TreeView1.viewport(), place, Qt::RightButton);
    EXPECT_EQ(LitNode(), "Graphing");
    ExpectOpen(0);
    OpenIndex();
    DoubleClick(*IndexList.viewport(), PlaceOf(IndexList, IndexRow("Addition")), Qt::RightButton);
    EXPECT_EQ(LitRow(), "Absolute Values");
    EXPECT_EQ(Text1.text(), "");
    ExpectOpen(0);
}

TEST_F(FrmSelectTest, OpenedAgainStartsAnew) {
    ClickNode("Graphing");
    OpenIndex();
    TypeText(form, "ratios");
    PressKeys(form, {Qt::Key_Return});
    ExpectChosen("Ratios", 78);

    ShowActive(form);
    EXPECT_EQ(SSTab1.currentIndex(), 0);
    EXPECT_TRUE(TreeView1.hasFocus());
    EXPECT_FALSE(Item("Graphing")->isExpanded());
    EXPECT_EQ(LitNode(), "Addition/Subtraction/Multiplication/Division");
    EXPECT_EQ(LitRow(), "Absolute Values");
    EXPECT_EQ(Text1.text(), "");
    form.close();
    EXPECT_EQ(topic.ProblemType, 78);
}

TEST_F(FrmSelectTest, RunsAsADialog) {
    form.close();
    topic.ChooserCancelled = false;
    const WhenDialogOpens choose("frmSelect", [](QWidget& dialog) {
        Click(*Find<QTabWidget>(dialog, "SSTab1").tabBar(),
              Find<QTabWidget>(dialog, "SSTab1").tabBar()->tabRect(1).center());
        TypeText(dialog, "plot");
        PressKeys(dialog, {Qt::Key_Return});
    });
    EXPECT_EQ(form.exec(), QDialog::Accepted);
    ExpectChosen("Plotting A Point", 108);
}

}  // namespace
}  // namespace numerello
