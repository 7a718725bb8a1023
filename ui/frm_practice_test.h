#pragma once

#include <QDialog>
#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "catalogue/topic_tree.h"
#include "core/clock.h"
#include "ui/held_enter.h"
#include "ui/previewed.h"
#include "ui/print_controls.h"
#include "ui/print_device.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QListWidget;
class QTabWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace numerello {

class ChildrenScroller;

/// The outline of a practice test, ten rows that topics are chosen into, and its heading. It works
/// on no problem but those that it makes up.
class FrmPracticeTest : public QDialog {
  public:
    /// `heading` keeps what was typed over the last test, for as long as its owner lives; it is
    /// filled when it is empty. It, device and clock have to outlive the form.
    FrmPracticeTest(TestMaker makeTest, std::optional<HeadingLines>& heading, PrintDevice& device,
                    const Clock& clock, QWidget* parent = nullptr);

    void done(int result) override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// Text4, Combo1 and Check1 of an index.
    struct Row {
        QLineEdit* Text4;
        QComboBox* Combo1;
        QCheckBox* Check1;
    };

    void MakeTree();
    void MakeIndex();
    void MakeTabs();
    QWidget* MakeOutline();
    Row MakeRow(int index, QWidget* parent);
    QLayout* MakeButtons();
    int OutlineWidth() const;
    QSize PreferredSize() const;

    bool KeyInTopics(QObject* watched, int key);
    bool KeyInRow(QObject* watched, int key);
    void ShowBeginning(QObject* watched);
    void ClickNode(QTreeWidgetItem& item);
    void ChooseNode(QTreeWidgetItem& item);
    void Choose(std::string_view caption);
    static void Fill(Row& row, const QString& caption);

    std::vector<TestRow> Outline() const;
    void Command2_Click();

    TestMaker makeTest;
    std::optional<HeadingLines>& keptHeading;
    PrintDevice& device;
    const Clock& clock;
    HeldEnterGuard oneEnter;  ///< the key that opened the form must not make a test
    std::vector<TreeNode> nodes;
    QTabWidget* ssTab1 = nullptr;
    QTreeWidget* treeView1 = nullptr;
    ChildrenScroller* children = nullptr;
    QListWidget* indexList = nullptr;
    QLineEdit* search = nullptr;
    std::array<Row, kTestRows> rows{};
    HeadingGroup heading{};
};

}  // namespace numerello
