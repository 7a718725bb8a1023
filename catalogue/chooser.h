#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "catalogue/topic_choice.h"
#include "catalogue/topic_tree.h"
#include "core/clock.h"
#include "core/problem.h"
#include "core/random_source.h"

namespace numerello {

/// The keys that mean something in the chooser.
enum class ChooserKey { Other, Enter, Escape, Up, Right, Down };

enum class ChooserTab { Topic, Index };

enum class ChooserControl { TreeView1, Text1, IndexList, SSTab1 };

/// The chooser without its window: one procedure for each event, which the window forwards; then it
/// shows what stands here and closes itself when IsOpen() is false. Nodes are numbered from 0 in
/// the order of BuildTopicTree, index rows from 0. An event of a closed chooser, or with a node or
/// row that does not exist, does nothing.
class Chooser {
  public:
    /// `topic`, `clock` and `random` have to outlive the chooser.
    Chooser(TopicChoice& topic, std::vector<TreeNode> nodes, const Clock& clock,
            RandomSource& random);

    void Form_Load();
    /// The close box.
    void Form_Unload();

    void SSTab1_Click(ChooserTab newTab);
    void SSTab1_KeyDown(ChooserKey key);
    void Control_GotFocus(ChooserControl control);

    void Text1_Change(std::string_view text);
    void Text1_KeyDown(ChooserKey key);

    /// A key or a press of the mouse lit another row.
    void IndexList_Moved(int row);
    void IndexList_KeyDown(ChooserKey key);
    void IndexList_MouseUp();
    void IndexList_DblClick();

    void TreeView1_NodeClick(int node);
    /// The double click that follows a NodeClick.
    void TreeView1_DblClick();
    void TreeView1_Expand(int node);
    void TreeView1_Collapse(int node);
    void TreeView1_KeyDown(ChooserKey key);
    /// A key, already told by KeyDown, selected another node. Whatever key it was, nothing is
    /// chosen.
    void TreeView1_Moved(int node);

    bool IsOpen() const { return state.loaded; }
    const ChooserState& State() const { return state; }
    const std::vector<TreeNode>& Nodes() const { return nodes; }
    int SelectedNode() const { return selectedNode; }
    bool IsExpanded(int node) const;
    ChooserTab Tab() const { return tab; }
    /// The control that has, or is to get, the focus.
    ChooserControl Focus() const { return focus; }
    const std::string& SearchText() const { return searchText; }
    int IndexRow() const { return indexRow; }
    /// The list's current text.
    std::string_view IndexText() const;

  private:
    bool TakesNode(int node) const;
    bool IsFolder(int node) const;
    std::string_view CaptionOf(int node) const;
    void Select(std::string_view caption);
    void SetExpanded(int node, bool open);
    void ListKey(ChooserKey key);
    void Cancel();

    TopicChoice& topic;
    std::vector<TreeNode> nodes;
    const Clock& clock;
    RandomSource& random;
    ChooserState state;
    std::vector<bool> expanded;
    int selectedNode = 0;
    ChooserTab tab = ChooserTab::Topic;
    ChooserControl focus = ChooserControl::TreeView1;
    std::string searchText;
    int indexRow = 0;
};

/// The topic as it stood before a new problem was asked for. Every selection in the chooser changes
/// the topic, so a cancelled choice has to bring all of it back: the sheet behind is still there.
class SavedTopic {
  public:
    /// To be made before BuildTopicTree.
    explicit SavedTopic(TopicChoice topic) : saved(std::move(topic)) {}

    /// Whether the chooser was cancelled; then the topic is as it was, with ChooserCancelled clear.
    bool RestoreWhenCancelled(TopicChoice& topic) const;

  private:
    TopicChoice saved;
};

}  // namespace numerello
