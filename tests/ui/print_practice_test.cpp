#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStyleOptionFrame>
#include <QTabWidget>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QWheelEvent>

#include "tests/ui/interface_font.h"
#include "tests/ui/printed_forms.h"
#include "ui/frm_practice_test.h"

namespace numerello {
namespace {

const FixedClock kClock(0, {.year = 2026, .month = 3, .day = 9});

class PracticeTest : public testing::Test {
  protected:
    PracticeTest() { Open(); }

    void Open() {
        form = std::make_unique<FrmPracticeTest>(
            [this](std::span<const TestRow> rows) {
                asked.assign(rows.begin(), rows.end());
                ++made;
                return MadeTest{{"", "Add:", "1) 4 + 5"}, {}};
            },
            heading, device, kClock);
        ShowActive(*form);
    }

    QLineEdit& Text4(int row) { return Find<QLineEdit>(*form, Name("Text4", row)); }
    QComboBox& Combo1(int row) { return Find<QComboBox>(*form, Name("Combo1", row)); }
    QCheckBox& Check1(int row) { return Find<QCheckBox>(*form, Name("Check1", row)); }
    QTreeWidget& TreeView1() { return Find<QTreeWidget>(*form, "TreeView1"); }
    QListWidget& IndexList() { return Find<QListWidget>(*form, "IndexList"); }
    QPushButton& Button(const char* name) { return Find<QPushButton>(*form, QLatin1String(name)); }

    QModelIndex Row(const QString& caption) {
        const auto found = TreeView1().findItems(caption, Qt::MatchExactly | Qt::MatchRecursive);
        EXPECT_EQ(found.size(), 1) << caption.toStdString();
        return TreeView1().indexFromItem(found.front());
    }

    void OpenFolderOf(const QString& caption) {
        for (QModelIndex folder = Row(caption).parent(); folder.isValid();
             folder = folder.parent()) {
            TreeView1().expand(folder);
        }
    }

    void ChooseInTree(const QString& caption) {
        OpenFolderOf(caption);
        DoubleClickRow(TreeView1(), Row(caption));
    }

    void ChooseInIndex(const QString& caption) {
        Find<QTabWidget>(*form, "SSTab1").setCurrentIndex(1);
        const auto found = IndexList().findItems(caption, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1);
        DoubleClickRow(IndexList(), IndexList().model()->index(IndexList().row(found.front()), 0));
    }

    void Create() {
        const WhenDialogOpens preview("frmPrintPreview",
                                      [](QWidget& window) { PressKey(window, Qt::Key_Escape); });
        Click(Button("Command2"));
    }

    static QString Name(const char* control, int row) {
        return QStringLiteral("%1(%2)").arg(QLatin1String(control)).arg(row);
    }

    std::optional<HeadingLines> heading;
    std::vector<TestRow> asked;
    int made = 0;
    PrintDevice device;
    std::unique_ptr<FrmPracticeTest> form;
};

TEST_F(PracticeTest, OpensWithTenEmptyRowsAndTheDocumentedTexts) {
    EXPECT_EQ(form->objectName(), "frmPracticeTest");
    EXPECT_EQ(form->windowTitle(), "Practice Test");
    for (int row = 0; row < 10; ++row) {
        EXPECT_EQ(Text4(row).text(), "");
        ASSERT_EQ(Combo1(row).count(), 18);
        EXPECT_EQ(Combo1(row).itemText(0), "1");
        EXPECT_EQ(Combo1(row).itemText(17), "18");
        EXPECT_FALSE(Check1(row).isChecked());
    }
    EXPECT_EQ(Button("Command1").text(), "Cancel");
    EXPECT_EQ(Button("Command2").text(), "Create Practice Test");
    EXPECT_EQ(Find<QLineEdit>(*form, "Text1").text(), "Vantrel Numerello");
    EXPECT_EQ(Find<QLineEdit>(*form, "Text2").text(), "Practice Test");
    EXPECT_EQ(Find<QLineEdit>(*form, "Text3").text(), "03/09/2026");
    EXPECT_EQ(Find<QGroupBox>(*form, "").title(), "Print Heading");
    QStringList labels;
    for (const QLabel* label : form->findChildren<QLabel*>()) {
        labels.append(label->text());
    }
    for (const char* text : {"Problem Type", "Number of Problems ", "Complex"}) {
        EXPECT_TRUE(labels.contains(QLatin1String(text))) << text;
    }
}

TEST_F(PracticeTest, PutsAChosenTopicIntoTheFirstFreeRow) {
    ChooseInTree("Rounding");
    ChooseInIndex("Medians");
    ChooseInIndex("Medians");
    EXPECT_EQ(Text4(0).text(), "Rounding");
    EXPECT_EQ(Text4(1).text(), "Medians");
    EXPECT_EQ(Text4(2).text(), "Medians");
    EXPECT_EQ(Text4(3).text(), "");
    EXPECT_EQ(Combo1(0).currentText(), "5");
    PressKey(*form, Qt::Key_Escape);
}

TEST_F(PracticeTest, ChoosesByEnter) {
    OpenFolderOf("Rounding");
    TreeView1().setCurrentIndex(Row("Rounding"));
    TreeView1().setFocus();
    PressKey(*form, Qt::Key_Return);
    EXPECT_EQ(Text4(0).text(), "Rounding");
    Find<QTabWidget>(*form, "SSTab1").setCurrentIndex(1);
    IndexList().setFocus();
    IndexList().setCurrentRow(0);
    PressKey(*form, Qt::Key_Enter);
    EXPECT_EQ(Text4(1).text(), IndexList().item(0)->text());
    EXPECT_EQ(made, 0);
}

TEST_F(PracticeTest, SingleClickOnlySelects) {
    OpenFolderOf("Rounding");
    ClickRow(TreeView1(), Row("Rounding"));
    EXPECT_EQ(TreeView1().currentIndex(), Row("Rounding"));
    EXPECT_EQ(Text4(0).text(), "");
}

TEST_F(PracticeTest, ClickOpensAFolderAndEnterToo) {
    const QModelIndex folder = TreeView1().model()->index(0, 0);
    ClickRow(TreeView1(), folder);
    EXPECT_TRUE(TreeView1().isExpanded(folder));
    DoubleClickRow(TreeView1(), TreeView1().model()->index(1, 0));
    EXPECT_TRUE(TreeView1().isExpanded(TreeView1().model()->index(1, 0)));
    TreeView1().setCurrentIndex(TreeView1().model()->index(2, 0));
    TreeView1().setFocus();
    PressKey(*form, Qt::Key_Return);
    EXPECT_TRUE(TreeView1().isExpanded(TreeView1().model()->index(2, 0)));
    EXPECT_EQ(Text4(0).text(), "");
}

TEST_F(PracticeTest, TakesNoEleventhTopic) {
    for (int i = 0; i < 11; ++i) {
        ChooseInIndex(i == 10 ? "Medians" : "Rounding");
    }
    for (int row = 0; row < 10; ++row) {
        EXPECT_EQ(Text4(row).text(), "Rounding");
    }
}

TEST_F(PracticeTest, EmptiesARowByDeleteOrBackspaceAndFillsTheGapNext) {
    for (const char* topic : {"Rounding", "Medians", "Modes"}) {
        ChooseInIndex(topic);
    }
    Combo1(1).setCurrentIndex(11);
    Check1(1).setChecked(true);
    Text4(1).setFocus();
    TypeText(*form, "x7");
    EXPECT_EQ(Text4(1).text(), "Medians");
    PressKey(*form, Qt::Key_Delete);
    EXPECT_EQ(Text4(1).text(), "");
    EXPECT_EQ(Text4(2).text(), "Modes");
    Text4(2).setFocus();
    PressKey(*form, Qt::Key_Backspace);
    EXPECT_EQ(Text4(2).text(), "");
    ChooseInIndex("Ratios");
    EXPECT_EQ(Text4(1).text(), "Ratios");
    EXPECT_EQ(Combo1(1).currentText(), "5");
    EXPECT_FALSE(Check1(1).isChecked());
}

TEST_F(PracticeTest, MakesATestOfTheFilledRows) {
    ChooseInIndex("Rounding");
    ChooseInIndex("Medians");
    ChooseInIndex("Modes");
    Combo1(0).setCurrentIndex(17);
    Check1(2).setChecked(true);
    Text4(1).setFocus();
    PressKey(*form, Qt::Key_Delete);
    Create();
    ASSERT_EQ(asked.size(), 2U);
    EXPECT_EQ(asked[0].topic, "Rounding");
    EXPECT_EQ(asked[0].count, 18);
    EXPECT_FALSE(asked[0].complex);
    EXPECT_EQ(asked[1].topic, "Modes");
    EXPECT_EQ(asked[1].count, 5);
    EXPECT_TRUE(asked[1].complex);
}

TEST_F(PracticeTest, StaysOpenBehindThePreviewAndMakesANewTestEachTime) {
    ChooseInIndex("Rounding");
    Create();
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Text4(0).text(), "Rounding");
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    Create();
    EXPECT_EQ(made, 2);
}

TEST_F(PracticeTest, OfNoRowsIsTheHeadingAlone) {
    Create();
    EXPECT_EQ(made, 1);
    EXPECT_TRUE(asked.empty());
}

TEST_F(PracticeTest, PrintsTheHeadingThatWasTyped) {
    Find<QLineEdit>(*form, "Text2").setText("Class 4b");
    QString words;
    const WhenDialogOpens preview("frmPrintPreview", [&](QWidget& window) {
        words = Find<QWidget>(window, "Picture1(0)").accessibleDescription();
        PressKey(window, Qt::Key_Escape);
    });
    Click(Button("Command2"));
    EXPECT_TRUE(words.startsWith("Vantrel Numerello\nClass 4b\n03/09/2026\n"))
        << words.toStdString();
}

TEST_F(PracticeTest, KeepsTheHeadingForTheNextTime) {
    Find<QLineEdit>(*form, "Text1").setText("Miss Bell");
    ChooseInIndex("Rounding");
    Click(Button("Command1"));
    EXPECT_FALSE(form->isVisible());
    Open();
    EXPECT_EQ(Find<QLineEdit>(*form, "Text1").text(), "Miss Bell");
    EXPECT_EQ(Text4(0).text(), "");
}

/// How wide the text of a row is, less what it has room for.
int LackingWidth(const QLineEdit& row) {
    QStyleOptionFrame frame;
    frame.initFrom(&row);
    frame.lineWidth = row.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &frame, &row);
    const QRect inner = row.style()->subElementRect(QStyle::SE_LineEditContents, &frame, &row);
    constexpr int kInnerMargin = 2;
    return row.fontMetrics().horizontalAdvance(row.text()) - inner.width() + 2 * kInnerMargin;
}

TEST_F(PracticeTest, ShowsEveryCaptionOfTheTree) {
    QTreeWidget& tree = TreeView1();
    tree.expandAll();
    QCoreApplication::processEvents();
    int shown = 0;
    for (QTreeWidgetItemIterator item(&tree); *item != nullptr; ++item) {
        const QRect row = tree.visualItemRect(*item);
        const int text = tree.fontMetrics().horizontalAdvance((*item)->text(0));
        EXPECT_GE(row.width(), text + tree.iconSize().width()) << (*item)->text(0).toStdString();
        EXPECT_LE(row.right(), tree.columnWidth(0)) << (*item)->text(0).toStdString();
        ++shown;
    }
    EXPECT_GT(shown, 97);
    tree.collapseAll();
    QCoreApplication::processEvents();
    EXPECT_GT(tree.columnWidth(0), tree.fontMetrics().horizontalAdvance(
                                       QStringLiteral("Means(Averages)/Medians/Modes/Ranges")));
}

TEST_F(PracticeTest, HasRoomForTheLongestName) {
    // Nine tenths of a screen of 1280 by 800.
    form->resize(1152, 720);
    QListWidget& list = IndexList();
    for (int row = 0; row < list.count(); ++row) {
        ChooseInIndex(list.item(row)->text());
        EXPECT_LE(LackingWidth(Text4(0)), 0) << Text4(0).text().toStdString();
        Text4(0).setFocus();
        PressKey(*form, Qt::Key_Delete);
    }
}

TEST_F(PracticeTest, ShowsTheBeginningOfANameInANarrowWindow) {
    const QString name = QStringLiteral("Converting Scientific To Regular Notation");
    form->resize(form->minimumSizeHint());
    ChooseInIndex(name);
    EXPECT_GT(LackingWidth(Text4(0)), 0);
    EXPECT_TRUE(Text4(0).toolTip().startsWith(name));
    Text4(0).setFocus(Qt::TabFocusReason);
    PressKey(*form, Qt::Key_End);
    EXPECT_EQ(Text4(0).cursorPosition(), name.size());
    Combo1(0).setFocus();
    EXPECT_EQ(Text4(0).cursorPosition(), 0);
    Text4(0).setFocus();
    PressKey(*form, Qt::Key_Delete);
    EXPECT_FALSE(Text4(0).toolTip().contains(name));
}

TEST_F(PracticeTest, AWheelDoesNotChangeHowManyProblemsAreAskedFor) {
    ChooseInTree("Rounding");
    QComboBox& list = Combo1(0);
    const QPointF middle = list.rect().center();
    for (const bool focused : {false, true}) {
        focused ? list.setFocus() : TreeView1().setFocus();
        QWheelEvent wheel(middle, list.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&list, &wheel);
        EXPECT_EQ(list.currentText(), "5") << focused;
        EXPECT_FALSE(wheel.isAccepted()) << focused;
    }
}

TEST_F(PracticeTest, TheIndexIsSearchedByItsBeginnings) {
    Find<QTabWidget>(*form, "SSTab1").setCurrentIndex(1);
    auto& search = Find<QLineEdit>(*form, "IndexSearch");
    EXPECT_EQ(search.accessibleName(), "Search");
    Click(search);
    TypeText(*form, "medi");
    EXPECT_EQ(IndexList().currentItem()->text(), "Medians");
    EXPECT_EQ(IndexList().visualItemRect(IndexList().currentItem()).top(), 0);
    PressKey(*form, Qt::Key_Return);
    EXPECT_EQ(Text4(0).text(), "Medians");
    EXPECT_EQ(made, 0);
    PressKeys(*form, {Qt::Key_Up, Qt::Key_Return});
    EXPECT_EQ(Text4(1).text(), IndexList().item(IndexList().currentRow())->text());
    EXPECT_NE(Text4(1).text(), "Medians");
}

/// At 18 points on a screen of 640 by 480.
TEST_F(PracticeTest, ANarrowWindowGivesItsRoomToTheTree) {
    const InterfaceFont font(18);
    Open();
    form->resize(576, 432);
    QCoreApplication::processEvents();
    // Two digits, the arrow and the frame.
    const QFontMetrics letters = form->fontMetrics();
    EXPECT_LE(Combo1(0).width(),
              std::max(Combo1(0).sizeHint().width(), letters.horizontalAdvance("Number of ") + 8));
    EXPECT_GE(TreeView1().width(), form->width() / 3);
}

TEST_F(PracticeTest, NamesEveryControl) {
    for (const QWidget* control : form->findChildren<QWidget*>()) {
        if (control->focusPolicy() != Qt::NoFocus && control->isVisible()) {
            const auto* button = qobject_cast<const QAbstractButton*>(control);
            const bool hasText = button != nullptr && !button->text().isEmpty();
            EXPECT_TRUE(hasText || !control->accessibleName().isEmpty())
                << control->objectName().toStdString() << control->metaObject()->className();
        }
    }
}

}  // namespace
}  // namespace numerello
