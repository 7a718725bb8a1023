#pragma once

#include <QDialog>
#include <vector>

#include "catalogue/chooser.h"
#include "catalogue/topic_tree.h"

class QLineEdit;
class QListWidget;
class QTabWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace numerello {

class ChildrenScroller;

/// The chooser's window: the topics as a tree and as an alphabetic index with a search box. It
/// forwards its events to a Chooser and shows what stands there. What was chosen stands in the
/// topic; the dialog's result is Accepted when something was.
class FrmSelect : public QDialog {
  public:
    /// `nodes` are those of BuildTopicTree. `topic`, `clock` and `random` have to outlive the
    /// window. It loads when it is shown, as often as that happens.
    FrmSelect(TopicChoice& topic, std::vector<TreeNode> nodes, const Clock& clock,
              RandomSource& random, QWidget* parent = nullptr);

    /// The close box; Esc takes another way.
    void reject() override;

  protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    template <class Control>
    class Forwarding;
    template <class View>
    class ForwardingView;
    class SearchBox;

    void MakeTree();
    void MakeIndex();
    void MakeTabs();
    void ConnectTree();
    QSize PreferredSize() const;

    template <class Action>
    void Forward(Action action);
    void Mirror();
    void MirrorTree();
    void MirrorIndex();
    QWidget* ControlOf(ChooserControl control) const;

    const TopicChoice& topic;
    Chooser chooser;
    std::vector<QTreeWidgetItem*> items;  ///< by the number of their node
    QTabWidget* ssTab1 = nullptr;
    QTreeWidget* treeView1 = nullptr;
    ChildrenScroller* children = nullptr;
    QLineEdit* text1 = nullptr;
    QListWidget* indexList = nullptr;
    int openEvents = 0;       ///< events that are being forwarded, one inside the other
    bool mirroring = false;   ///< what the controls tell comes from Mirror
    bool mouseMoves = false;  ///< the tree lights a row because of the mouse
};

}  // namespace numerello
