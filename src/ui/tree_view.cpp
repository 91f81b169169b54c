#include "ui/tree_view.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace burrowmark {

// --- node

TreeNode::TreeNode(TreeView& tree, std::wstring key) : tree_(tree), key_(std::move(key)) {}

void TreeNode::SetText(std::wstring newText) {
  if (Assign(text, std::move(newText))) tree_.Tell(&TreeViewPeer::NodeChanged, *this);
}

void TreeNode::SetImage(std::int32_t newImage) {
  if (Assign(image, newImage)) tree_.Tell(&TreeViewPeer::NodeChanged, *this);
}

void TreeNode::SetExpanded(bool on) { tree_.Open(*this, on); }

void TreeNode::SetChecked(bool on) {
  if (Assign(checked, on)) tree_.Tell(&TreeViewPeer::NodeChanged, *this);
}

void TreeNode::SetGhosted(bool on) {
  if (Assign(ghosted, on)) tree_.Tell(&TreeViewPeer::NodeChanged, *this);
}

bool TreeNode::Selected() const { return tree_.selected_ == this; }

TreeNode* TreeNode::Parent() const { return static_cast<TreeNode*>(parent); }

TreeNode* TreeNode::Child(std::int32_t index) const {
  return static_cast<TreeNode*>(children.at(static_cast<std::size_t>(index)));
}

void TreeNode::EnsureVisible() {
  tree_.OpenAbove(*this);
  tree_.Tell(&TreeViewPeer::EnsureVisible, *this);
}

// --- nodes of a tree

TreeView::TreeView(ControlParent& parent, const wchar_t* name, const Box& place) : ControlOf(parent, name, place) {}

TreeView::~TreeView() = default;

void TreeView::Tell(void (TreeViewPeer::*change)(TreeNodeState&), TreeNode& node) {
  if (TreeViewPeer* peer = KindsPeer()) (peer->*change)(node);
}

bool TreeView::IsIn(const TreeNodeState* node, const TreeNodeState& top) {
  for (; node != nullptr; node = node->parent) {
    if (node == &top) return true;
  }
  return false;
}

std::vector<TreeNodeState*>& TreeView::SiblingsOf(const TreeNodeState& node) {
  return node.parent == nullptr ? roots_ : node.parent->children;
}

TreeNode* TreeView::Add(TreeNode* relative, TreeRelation relation, std::wstring key, std::wstring text,
                        std::int32_t image) {
  const auto [place, isNew] = byKey_.try_emplace(key);
  if (!isNew) return nullptr;
  place->second = std::make_unique<TreeNode>(*this, std::move(key));
  TreeNode& node = *place->second;
  node.text = std::move(text);
  node.image = image;
  Insert(node, relative, relation);
  Tell(&TreeViewPeer::NodeAdded, node);
  return &node;
}

void TreeView::Insert(TreeNode& node, TreeNode* relative, TreeRelation relation) {
  if (relative == nullptr || relation == TreeRelation::kChild) {
    node.parent = relative;
    SiblingsOf(node).push_back(&node);
    return;
  }
  node.parent = relative->parent;
  std::vector<TreeNodeState*>& siblings = SiblingsOf(node);
  const auto at = std::find(siblings.begin(), siblings.end(), static_cast<TreeNodeState*>(relative));
  siblings.insert(relation == TreeRelation::kNext ? std::next(at) : at, &node);
}

TreeNode* TreeView::NextSelection(const TreeNode& removed) {
  const std::vector<TreeNodeState*>& siblings = SiblingsOf(removed);
  const auto at = std::find(siblings.begin(), siblings.end(), static_cast<const TreeNodeState*>(&removed));
  if (std::next(at) != siblings.end()) return Node(*std::next(at));
  return Node(at != siblings.begin() ? *std::prev(at) : removed.parent);
}

void TreeView::Remove(TreeNode& node) {
  if (IsIn(edited_, node)) CancelLabelEdit();
  if (IsIn(drop_, node)) SetDropHighlight(nullptr);
  if (IsIn(selected_, node)) {
    selected_ = NextSelection(node);
    Tell(&TreeViewPeer::SelectedChanged);
  }
  Tell(&TreeViewPeer::NodeRemoved, node);
  std::erase(SiblingsOf(node), static_cast<TreeNodeState*>(&node));
  Forget(node);
}

void TreeView::Forget(TreeNode& node) {
  for (TreeNodeState* child : node.children) Forget(Node(*child));
  byKey_.erase(std::wstring(node.key_));
}

void TreeView::Clear() {
  CancelLabelEdit();
  selected_ = nullptr;
  drop_ = nullptr;
  roots_.clear();
  Tell(&TreeViewPeer::NodesCleared);
  byKey_.clear();
}

TreeNode* TreeView::Item(std::int32_t index) const {
  std::vector<TreeNodeState*> next(roots_.rbegin(), roots_.rend());
  while (!next.empty() && index > 0) {
    TreeNodeState* node = next.back();
    if (--index == 0) return Node(node);
    next.pop_back();
    next.insert(next.end(), node->children.rbegin(), node->children.rend());
  }
  return nullptr;
}

TreeNode* TreeView::Find(const std::wstring& key) const {
  const auto found = byKey_.find(key);
  return found == byKey_.end() ? nullptr : found->second.get();
}

// --- selection and what is open

TreeNode* TreeView::SelectedItem() const { return selected_; }
TreeNodeState* TreeView::Selected() const { return selected_; }

void TreeView::SetSelectedItem(TreeNode* node) {
  if (node == selected_) return;
  if (node != nullptr) OpenAbove(*node);
  selected_ = node;
  Tell(&TreeViewPeer::SelectedChanged);
}

TreeNode* TreeView::DropHighlight() const { return drop_; }
TreeNodeState* TreeView::DropNode() const { return drop_; }

void TreeView::SetDropHighlight(TreeNode* node) {
  if (Assign(drop_, node)) Tell(&TreeViewPeer::DropNodeChanged);
}

// The selection never stays in a closed node.
void TreeView::Open(TreeNode& node, bool expanded) {
  if (!Assign(node.expanded, expanded)) return;
  if (!expanded && selected_ != &node && IsIn(selected_, node)) {
    selected_ = &node;
    Tell(&TreeViewPeer::SelectedChanged);
  }
  Tell(&TreeViewPeer::ExpandedChanged, node);
}

void TreeView::OpenAbove(const TreeNode& node) {
  for (TreeNode* above = node.Parent(); above != nullptr; above = above->Parent()) Open(*above, true);
}

TreeNode* TreeView::HitTest(std::int32_t x, std::int32_t y) const {
  const TreeViewPeer* peer = KindsPeer();
  return peer == nullptr ? nullptr : Node(peer->HitTest(x, y));
}

void TreeView::StartLabelEdit() {
  if (labelEdit_ && selected_ != nullptr) Tell(&TreeViewPeer::StartLabelEdit, *selected_);
}

void TreeView::CancelLabelEdit() {
  if (std::exchange(edited_, nullptr) != nullptr) Tell(&TreeViewPeer::CancelLabelEdit);
}

void TreeView::SetImages(ImageList images) {
  if (Assign(images_, std::move(images))) Tell(&TreeViewPeer::StyleChanged);
}

TreeView::Update::Update(TreeView& tree) : tree_(tree) { tree_.Tell(&TreeViewPeer::BeginUpdate); }
TreeView::Update::~Update() { tree_.Tell(&TreeViewPeer::EndUpdate); }

// --- doors

void TreeView::UserSelect(TreeNodeState& node, bool byUser) {
  if (selected_ == &node || (byUser && !IsReachable())) return;
  const ControlSite::Running running(Site());
  selected_ = Node(&node);
  if (byUser) Raise(NodeClick, Node(node));
}

void TreeView::UserNodeClick(TreeNodeState& node) {
  if (!IsReachable()) return;
  const ControlSite::Running running(Site());
  Raise(NodeClick, Node(node));
}

void TreeView::UserExpand(TreeNodeState& node, bool expanded) {
  if (!IsReachable() || !Assign(node.expanded, expanded)) return;
  const ControlSite::Running running(Site());
  const std::wstring key = Node(node).Key();
  const bool leaves = !expanded && selected_ != &node && IsIn(selected_, node);
  if (leaves) selected_ = Node(&node);
  Raise(expanded ? Expand : Collapse, Node(node));
  TreeNode* still = Find(key);
  if (leaves && still != nullptr && still == selected_) Raise(NodeClick, *still);
}

void TreeView::UserCheck(TreeNodeState& node, bool checked) {
  if (!IsReachable() || !Assign(node.checked, checked)) return;
  const ControlSite::Running running(Site());
  Raise(NodeCheck, Node(node));
}

void TreeView::UserClick() {
  if (!IsReachable()) return;
  const ControlSite::Running running(Site());
  Raise(Click);
}

void TreeView::UserDoubleClick() {
  if (!IsReachable()) return;
  const ControlSite::Running running(Site());
  Raise(DblClick);
}

bool TreeView::UserBeginLabelEdit(TreeNodeState& node) {
  if (!IsReachable()) return false;
  const ControlSite::Running running(Site());
  bool cancel = false;
  const std::wstring key = Node(node).Key();
  Raise(BeforeLabelEdit, cancel);
  if (!cancel) edited_ = Find(key);
  return edited_ != nullptr;
}

bool TreeView::UserEndLabelEdit(TreeNodeState& node, const std::optional<std::wstring>& text) {
  if (edited_ != &node) return false;
  if (!text || !IsReachable()) {
    edited_ = nullptr;
    return false;
  }
  const ControlSite::Running running(Site());
  const std::wstring key = Node(node).Key();
  bool cancel = false;
  std::wstring newText = *text;
  Raise(AfterLabelEdit, cancel, newText);
  const bool hasGone = std::exchange(edited_, nullptr) == nullptr;
  TreeNode* still = Find(key);
  if (cancel || hasGone || still == nullptr) return false;
  still->SetText(std::move(newText));
  return true;
}

}  // namespace burrowmark
