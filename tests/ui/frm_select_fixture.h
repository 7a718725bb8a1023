#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>
#include <stdexcept>
#include <string>

#include "tests/ui/window.h"
#include "ui/frm_select.h"

namespace numerello {

/// The chooser's window, open, with the topic of an earlier choice: Arithmetic, code 91.
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

}  // namespace numerello
