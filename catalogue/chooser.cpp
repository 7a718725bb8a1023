#include "catalogue/chooser.h"

#include "catalogue/topics.h"

namespace numerello {

Chooser::Chooser(TopicChoice& topic, std::vector<TreeNode> nodes, const Clock& clock,
                 RandomSource& random)
    : topic(topic), nodes(std::move(nodes)), clock(clock), random(random) {
    expanded.assign(this->nodes.size(), false);
}

void Chooser::Form_Load() {
    state.Load(topic);
    expanded.assign(nodes.size(), false);
    selectedNode = 0;
    tab = ChooserTab::Topic;
    focus = ChooserControl::TreeView1;
    searchText.clear();
    indexRow = 0;
}

void Chooser::Form_Unload() {
    state.Unload(topic);
}

void Chooser::SSTab1_Click(ChooserTab newTab) {
    if (!IsOpen()) {
        return;
    }
    tab = newTab;
    // The search box belongs to the index; where it cannot be seen, the tree takes the focus.
    focus = tab == ChooserTab::Index ? ChooserControl::Text1 : ChooserControl::TreeView1;
    state.arrowFlag = false;
}

void Chooser::SSTab1_KeyDown(ChooserKey key) {
    if (IsOpen() && key == ChooserKey::Escape) {
        Cancel();
    }
}

void Chooser::Control_GotFocus(ChooserControl control) {
    if (!IsOpen()) {
        return;
    }
    focus = control;
    // An arrow key of the tree must not keep Enter in the index from choosing.
    if (control == ChooserControl::Text1 || control == ChooserControl::IndexList) {
        state.arrowFlag = false;
    }
}

void Chooser::Text1_Change(std::string_view text) {
    if (!IsOpen()) {
        return;
    }
    searchText = text;
    indexRow = FindIndexRow(searchText).value_or(indexRow);
}

void Chooser::Text1_KeyDown(ChooserKey key) {
    ListKey(key);
}

void Chooser::IndexList_Moved(int row) {
    if (IsOpen() && row >= 0 && row < static_cast<int>(IndexRows().size())) {
        indexRow = row;
    }
}

void Chooser::IndexList_KeyDown(ChooserKey key) {
    ListKey(key);
}

void Chooser::IndexList_MouseUp() {
    Text1_Change(IndexText());
}

void Chooser::IndexList_DblClick() {
    if (!IsOpen()) {
        return;
    }
    Select(IndexText());
    topic.ClickedOnly = true;
}

void Chooser::TreeView1_NodeClick(int node) {
    if (!TakesNode(node)) {
        return;
    }
    selectedNode = node;
    if (IsFolder(node)) {
        SetExpanded(node, !IsExpanded(node));
    }
    // After an arrow key the click only selects: odd for a learner, and kept.
    Select(CaptionOf(node));
}

void Chooser::TreeView1_DblClick() {
    if (!TakesNode(selectedNode)) {
        return;
    }
    state.arrowFlag = false;
    Select(CaptionOf(selectedNode));
}

void Chooser::TreeView1_Expand(int node) {
    SetExpanded(node, true);
}

void Chooser::TreeView1_Collapse(int node) {
    SetExpanded(node, false);
}

void Chooser::TreeView1_KeyDown(ChooserKey key) {
    if (!IsOpen()) {
        return;
    }
    if (key == ChooserKey::Escape) {
        Cancel();
        return;
    }
    state.arrowFlag = key == ChooserKey::Up || key == ChooserKey::Down || key == ChooserKey::Right;
    if (key == ChooserKey::Enter && TakesNode(selectedNode)) {
        SetExpanded(selectedNode, true);
        Select(CaptionOf(selectedNode));
    }
}

void Chooser::TreeView1_Moved(int node) {
    if (!TakesNode(node)) {
        return;
    }
    selectedNode = node;
    // Keys such as End clear the arrow flag and still must not choose what they lead to.
    FollowSelection(CaptionOf(node), topic);
}

bool Chooser::IsExpanded(int node) const {
    return expanded.at(static_cast<std::size_t>(node));
}

std::string_view Chooser::IndexText() const {
    return IndexRows()[static_cast<std::size_t>(indexRow)];
}

bool Chooser::TakesNode(int node) const {
    return IsOpen() && node >= 0 && node < static_cast<int>(nodes.size());
}

bool Chooser::IsFolder(int node) const {
    return !nodes[static_cast<std::size_t>(node)].key.empty();
}

std::string_view Chooser::CaptionOf(int node) const {
    return nodes[static_cast<std::size_t>(node)].caption;
}

void Chooser::Select(std::string_view caption) {
    TreeViewSelect(caption, topic, state, clock, random);
}

void Chooser::SetExpanded(int node, bool open) {
    if (TakesNode(node) && IsFolder(node)) {
        selectedNode = node;
        expanded[static_cast<std::size_t>(node)] = open;
    }
}

void Chooser::ListKey(ChooserKey key) {
    if (!IsOpen()) {
        return;
    }
    if (key == ChooserKey::Enter) {
        Select(IndexText());
    } else if (key == ChooserKey::Escape) {
        Cancel();
    }
}

void Chooser::Cancel() {
    topic.ChooserCancelled = true;
    topic.ProblemType = topic.LastProblemType;
    // Unloading must not put the stored code over the one just set.
    state.stillOpen = false;
    state.Unload(topic);
}

bool SavedTopic::RestoreWhenCancelled(TopicChoice& topic) const {
    if (!topic.ChooserCancelled) {
        return false;
    }
    topic = saved;
    topic.ChooserCancelled = false;
    return true;
}

}  // namespace numerello
