#include "tests/ui/window.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

namespace numerello {
namespace {

TEST(FindTest, FindsAControlByItsNameAndItsType) {
    QWidget root;
    root.setObjectName("frmAny");
    auto* box = new QLineEdit(new QWidget(&root));
    box->setObjectName("Text1");
    EXPECT_EQ(&Find<QLineEdit>(root, "Text1"), box);
    EXPECT_EQ(&Find<QWidget>(root, "frmAny"), &root);
    EXPECT_THROW(Find<QLineEdit>(root, "Text2"), std::runtime_error);
    EXPECT_THROW(Find<QListWidget>(root, "Text1"), std::runtime_error);
}

TEST(KeysTest, GoToWhatHasTheFocusByThen) {
    QWidget window;
    QLineEdit first(&window);
    QLineEdit second(&window);
    second.move(0, 40);
    ShowActive(window);
    first.setFocus();
    TypeText(window, "2X^a~");
    PressKeys(window, {Qt::Key_Backspace, Qt::Key_Tab, Qt::Key_7});
    EXPECT_EQ(first.text(), "2X^a");
    EXPECT_EQ(second.text(), "7");
}

TEST(MouseTest, RowsAreClickedWhereTheyStand) {
    QListWidget list;
    list.addItems({"a", "b", "c"});
    int clicks = 0;
    int doubleClicks = 0;
    QObject::connect(&list, &QListWidget::clicked, [&clicks] { ++clicks; });
    QObject::connect(&list, &QListWidget::doubleClicked, [&doubleClicks] { ++doubleClicks; });
    ShowActive(list);
    ClickRow(list, list.model()->index(1, 0));
    EXPECT_EQ(list.currentRow(), 1);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(doubleClicks, 0);
    DoubleClickRow(list, list.model()->index(2, 0));
    EXPECT_EQ(list.currentRow(), 2);
    EXPECT_EQ(doubleClicks, 1);
    EXPECT_THROW(ClickRow(list, list.model()->index(3, 0)), std::runtime_error);
}

TEST(WhenDialogOpensTest, ActsOnTheWindowOfThatName) {
    QDialog dialog;
    dialog.setObjectName("frmAny");
    const WhenDialogOpens watch("frmAny", [](QWidget& window) { window.close(); });
    EXPECT_EQ(dialog.exec(), QDialog::Rejected);
    EXPECT_TRUE(watch.HasOpened());
}

TEST(WhenDialogOpensTest, PressesButtons) {
    QMessageBox box(QMessageBox::Question, "t", "Erase the problem?",
                    QMessageBox::Ok | QMessageBox::Cancel);
    const auto isQuestion = [](const QWidget& window) {
        return qobject_cast<const QMessageBox*>(&window) != nullptr;
    };
    const WhenDialogOpens cancel(
        isQuestion, [](QWidget& window) { PressButton(window, "Cancel"); }, "question");
    EXPECT_EQ(box.exec(), QMessageBox::Cancel);
    const WhenDialogOpens accept(
        isQuestion, [](QWidget& window) { PressButton(window, "OK"); }, "question");
    EXPECT_EQ(box.exec(), QMessageBox::Ok);
}

TEST(WhenDialogOpensTest, FailsWhenNoWindowComes) {
    EXPECT_NONFATAL_FAILURE(const WhenDialogOpens watch("frmNone", [](QWidget&) {}),
                            "no window 'frmNone' has opened");
}

TEST(WhenDialogOpensTest, FailsAndClosesWhenAnotherWindowComes) {
    QDialog other;
    const auto run = [&other] {
        const WhenDialogOpens watch("frmNone", [](QWidget&) {});
        other.exec();
    };
    EXPECT_NONFATAL_FAILURE(run(), "did not open within two seconds");
    EXPECT_FALSE(other.isVisible());
}

TEST(WhenDialogOpensTest, FailsAndClosesWhenTheActionLeavesTheWindowOpen) {
    QDialog dialog;
    dialog.setObjectName("frmAny");
    const auto run = [&dialog] {
        const WhenDialogOpens watch("frmAny", [](QWidget&) {});
        dialog.exec();
    };
    EXPECT_NONFATAL_FAILURE(run(), "still stands");
    EXPECT_FALSE(dialog.isVisible());
}

TEST(WhenDialogOpensTest, FailsAndClosesWhenTheActionDoesNotFindItsControl) {
    QDialog dialog;
    dialog.setObjectName("frmAny");
    const auto run = [&dialog] {
        const WhenDialogOpens watch("frmAny",
                                    [](QWidget& window) { PressButton(window, "Print"); });
        dialog.exec();
    };
    EXPECT_NONFATAL_FAILURE(run(), "'frmAny' has no button 'Print'");
    EXPECT_FALSE(dialog.isVisible());
}

}  // namespace
}  // namespace numerello
