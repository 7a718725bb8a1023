#include "ui/frm_select.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <functional>
#include <map>

#include "tests/ui/window.h"
#include "ui/artwork.h"
#include "ui/text.h"

namespace numerello {
namespace {

/// Something that lies behind the chooser and counts what the mouse does to it.
class Behind : public QWidget {
  public:
    int events = 0;

  protected:
    void mousePressEvent(QMouseEvent* /*event*/) override { ++events; }
    void mouseReleaseEvent(QMouseEvent* /*event*/) override { ++events; }
    void mouseDoubleClickEvent(QMouseEvent* /*event*/) override { ++events; }
};

class FrmSelectTest : public testing::Test {
  protected:
    FrmSelectTest() {
        topic.ProblemType = 91;
        topic.LastProblemType = 91;
        topic.TopicTitle = "Arithmetic";
        topic.InputMask = 1039;
        topic.InstructionText = "old";
        QApplication::setDoubleClickInterval(kShortInterval);
        ShowActive(form);
    }

    /// Of this test's clicks nothing is left for the next.
    ~FrmSelectTest() override {
        QTest::qWait(kShortInterval + 20);
        QApplication::setDoubleClickInterval(usualInterval);
    }

    QTreeWidgetItem* Item(const QString& caption) {
        const auto found = TreeView1.findItems(caption, Qt::MatchExactly | Qt::MatchRecursive);
        if (found.size() != 1) {
            throw std::runtime_error("not one node: " + caption.toStdString());
        }
        return found.front();
    }

    QModelIndex NodeRow(const QString& caption) { return TreeView1.indexFromItem(Item(caption)); }

    QModelIndex IndexRow(const QString& caption) {
        const auto found = IndexList.findItems(caption, Qt::MatchExactly);
        if (found.size() != 1) {
            throw std::runtime_error("not one row: " + caption.toStdString());
        }
        return IndexList.model()->index(IndexList.row(found.front()), 0);
    }

    void ClickNode(const QString& caption) { ClickRow(TreeView1, NodeRow(caption)); }

    /// Goes down from the first node.
    void ArrowDownTo(const QString& caption) {
        for (int i = 0; i < 200 && LitNode() != caption; ++i) {
            PressKeys(form, {Qt::Key_Down});
        }
        ASSERT_EQ(LitNode(), caption);
    }

    void OpenIndex() { Click(*SSTab1.tabBar(), SSTab1.tabBar()->tabRect(1).center()); }

    QString LitNode() {
        const auto lit = TreeView1.selectedItems();
        EXPECT_EQ(lit.size(), 1);
        EXPECT_EQ(TreeView1.currentItem(), lit.value(0));
        return lit.isEmpty() ? QString() : lit.front()->text(0);
    }

    QString LitRow() {
        const auto lit = IndexList.selectedItems();
        EXPECT_EQ(lit.size(), 1);
        EXPECT_EQ(IndexList.currentItem(), lit.value(0));
        return lit.isEmpty() ? QString() : lit.front()->text();
    }

    void ExpectChosen(const std::string& caption, int code) {
        EXPECT_FALSE(form.isVisible());
        EXPECT_EQ(form.result(), QDialog::Accepted);
        EXPECT_FALSE(topic.ChooserCancelled);
        EXPECT_EQ(topic.TopicTitle, caption);
        EXPECT_EQ(topic.ProblemType, code);
        EXPECT_EQ(topic.LastProblemType, code);
        EXPECT_NE(topic.InstructionText, "old");
    }

    void ExpectOpen(int code) {
        EXPECT_TRUE(form.isVisible());
        EXPECT_FALSE(topic.ChooserCancelled);
        EXPECT_EQ(topic.TopicTitle, "Arithmetic");
        EXPECT_EQ(topic.InstructionText, "old");
        EXPECT_EQ(topic.ProblemType, code);
    }

    void ExpectCancelled(int code, int mask) {
        EXPECT_FALSE(form.isVisible());
        EXPECT_EQ(form.result(), QDialog::Rejected);
        EXPECT_TRUE(topic.ChooserCancelled);
        EXPECT_EQ(topic.TopicTitle, "Arithmetic");
        EXPECT_EQ(topic.ProblemType, code);
        EXPECT_EQ(topic.InputMask, mask);
    }

    static constexpr int kShortInterval = 60;  // of a double click, in milliseconds
    const int usualInterval = QApplication::doubleClickInterval();
    TopicChoice topic;
    FixedClock clock{1234};
    MersenneSource random;
    FrmSelect form{topic, BuildTopicTree(topic, false), clock, random};
    QTabWidget& SSTab1 = Find<QTabWidget>(form, "SSTab1");
    QTreeWidget& TreeView1 = Find<QTreeWidget>(form, "TreeView1");
    QLineEdit& Text1 = Find<QLineEdit>(form, "Text1");
    QListWidget& IndexList = Find<QListWidget>(form, "IndexList");
};

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

TEST_F(FrmSelectTest, IndexHoldsTheSameTopicsByTheAlphabet) {
    EXPECT_EQ(IndexList.count(), 97);
    for (int row = 1; row < IndexList.count(); ++row) {
        EXPECT_LT(IndexList.item(row - 1)->text().toLower(), IndexList.item(row)->text().toLower());
        EXPECT_EQ(Item(IndexList.item(row)->text())->childCount(), 0);
    }
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
    ClickNode("Miscellaneous Formulas");
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
    EXPECT_EQ(LitNode(), "Graphing");
    ExpectOpen(0);
}

TEST_F(FrmSelectTest, ChangingTheTabLeadsToTheSearchBoxAndBack) {
    OpenIndex();
    EXPECT_EQ(SSTab1.currentIndex(), 1);
    EXPECT_TRUE(Text1.hasFocus());
    Click(*SSTab1.tabBar(), SSTab1.tabBar()->tabRect(0).center());
    EXPECT_EQ(SSTab1.currentIndex(), 0);
    EXPECT_TRUE(TreeView1.hasFocus());
    ExpectOpen(91);
}

TEST_F(FrmSelectTest, ControlTabChangesTheTabFromEveryControl) {
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

TEST_F(FrmSelectTest, SearchTakesTheFirstTopicThatBeginsSo) {
    OpenIndex();
    TypeText(form, "add");
    EXPECT_EQ(LitRow(), "Addition");
    ExpectOpen(91);
    PressKeys(form, {Qt::Key_Return});
    ExpectChosen("Addition", 200);
    EXPECT_FALSE(topic.ClickedOnly);
}

TEST_F(FrmSelectTest, SearchWithoutAMatchKeepsTheSelection) {
    OpenIndex();
    TypeText(form, "RATIO");
    EXPECT_EQ(LitRow(), "Ratios");
    TypeText(form, "x?");
    EXPECT_EQ(Text1.text(), "RATIOx?");
    EXPECT_EQ(LitRow(), "Ratios");
    PressKeys(form, {Qt::Key_Enter});
    ExpectChosen("Ratios", 78);
}

TEST_F(FrmSelectTest, TopicFoundStandsAboveThoseThatBeginAlike) {
    OpenIndex();
    TypeText(form, "conv");
    const QRect view = IndexList.viewport()->rect();
    EXPECT_LT(IndexList.visualItemRect(IndexList.currentItem()).top(), 5);
    EXPECT_TRUE(view.contains(IndexList.visualRect(IndexRow("Converting Feet To Inches"))));
}

TEST_F(FrmSelectTest, ClickInTheListDoesNotScrollIt) {
    OpenIndex();
    const QPoint place = PlaceOf(IndexList, IndexRow("Arithmetic"));
    Click(*IndexList.viewport(), place);
    EXPECT_EQ(IndexList.indexAt(place), IndexRow("Arithmetic"));
}

TEST_F(FrmSelectTest, EmptiedSearchGoesBackToTheFirstRow) {
    OpenIndex();
    TypeText(form, "m");
    EXPECT_EQ(LitRow(), "Means (Averages)");
    PressKeys(form, {Qt::Key_Backspace});
    EXPECT_EQ(LitRow(), "Absolute Values");
}

TEST_F(FrmSelectTest, ArrowKeysOfTheSearchBoxGoOnFromTheRowFound) {
    OpenIndex();
    TypeText(form, "add");
    PressKeys(form, {Qt::Key_Down});
    EXPECT_EQ(LitRow(), "Amount = N% of Base");
    EXPECT_EQ(Text1.text(), "add");
    EXPECT_TRUE(Text1.hasFocus());
    PressKeys(form, {Qt::Key_Up, Qt::Key_Down, Qt::Key_Return});
    ExpectChosen("Amount = N% of Base", 14);
}

TEST_F(FrmSelectTest, EnterInTheSearchBoxChoosesAfterAnArrowKeyInTheTree) {
    ArrowDownTo("Graphing");
    OpenIndex();
    TypeText(form, "median");
    PressKeys(form, {Qt::Key_Return});
    ExpectChosen("Medians", 61);
}

TEST_F(FrmSelectTest, KeysOfTheListMoveAndEnterChooses) {
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

TEST_F(FrmSelectTest, ClickInTheListCopiesItsRowIntoTheSearchBox) {
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

TEST_F(FrmSelectTest, DoubleClickInTheListChoosesByAClick) {
    OpenIndex();
    DoubleClickRow(IndexList, IndexRow("Medians"));
    ExpectChosen("Medians", 61);
    EXPECT_TRUE(topic.ClickedOnly);
}

TEST_F(FrmSelectTest, EscCancelsInEveryControl) {
    const std::map<std::string, std::function<void()>> controls{
        {"TreeView1", [this] { TreeView1.setFocus(); }},
        {"SSTab1", [this] { SSTab1.tabBar()->setFocus(); }},
        {"Text1", [this] { OpenIndex(); }},
        {"IndexList",
         [this] {
             OpenIndex();
             IndexList.setFocus();
         }},
    };
    for (const auto& [name, enter] : controls) {
        SCOPED_TRACE(name);
        topic.ProblemType = 5;
        topic.LastProblemType = 91;
        topic.ChooserCancelled = false;
        ShowActive(form);
        enter();
        PressKeys(form, {Qt::Key_Escape});
        // The last choice, not what was stored at opening.
        ExpectCancelled(91, 1039);
    }
}

TEST_F(FrmSelectTest, EscAfterAFolderLeavesCodeZero) {
    ClickNode("Graphing");
    PressKeys(form, {Qt::Key_Escape});
    ExpectCancelled(0, 1039);
}

TEST_F(FrmSelectTest, CloseBoxBringsBackCodeAndMask) {
    ClickNode("Means(Averages)/Medians/Modes/Ranges");
    ArrowDownTo("Medians");
    EXPECT_NE(topic.InputMask, 1039);
    form.close();
    ExpectCancelled(91, 1039);
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

/// The chooser over a sheet: what the mouse does there after the chooser has closed.
class FrmSelectOverASheet : public FrmSelectTest {
  protected:
    FrmSelectOverASheet() {
        sheet.setGeometry(0, 0, 700, 700);
        sheet.show();
        form.move(100, 50);
        ShowActive(form);
    }

    QPoint OnSheet(QWidget& viewport, QPoint place) {
        return sheet.mapFromGlobal(viewport.mapToGlobal(place));
    }

    Behind sheet;
};

TEST_F(FrmSelectOverASheet, SecondHalfOfADoubleClickDoesNotReachIt) {
    ClickNode("Graphing");
    const QPoint place = PlaceOf(TreeView1, NodeRow("Plotting A Point"));
    const QPoint onSheet = OnSheet(*TreeView1.viewport(), place);
    Click(*TreeView1.viewport(), place);
    ExpectChosen("Plotting A Point", 108);
    Click(sheet, onSheet);
    EXPECT_EQ(sheet.events, 0);
    Click(sheet, onSheet + QPoint(60, 0));
    EXPECT_GT(sheet.events, 0);
}

TEST_F(FrmSelectOverASheet, LaterClickDoesReachIt) {
    ClickNode("Graphing");
    const QPoint place = PlaceOf(TreeView1, NodeRow("Plotting A Point"));
    Click(*TreeView1.viewport(), place);
    QTest::qWait(kShortInterval + 20);
    Click(sheet, OnSheet(*TreeView1.viewport(), place));
    EXPECT_EQ(sheet.events, 2);
}

TEST_F(FrmSelectOverASheet, ReleaseAfterADoubleClickDoesNotReachIt) {
    OpenIndex();
    const QPoint place = PlaceOf(IndexList, IndexRow("Addition"));
    Click(*IndexList.viewport(), place);
    // The second press follows at once, so that it makes a double click.
    QMouseEvent second(QEvent::MouseButtonDblClick, place, IndexList.viewport()->mapToGlobal(place),
                       Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(IndexList.viewport(), &second);
    ExpectChosen("Addition", 200);
    const QPoint onSheet = OnSheet(*IndexList.viewport(), place);
    QTest::qWait(kShortInterval + 20);
    Release(sheet, onSheet);
    EXPECT_EQ(sheet.events, 0);
    Click(sheet, onSheet);
    EXPECT_EQ(sheet.events, 2);
}

}  // namespace
}  // namespace numerello
