#include "platform/local/screen/local_tree_view.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/key_codes.h"

namespace burrowmark {

LocalTreeView::LocalTreeView(LocalProcess& process, LocalDesktop& desktop, WindowHandle parent, TreeViewState& tree)
    : LocalControl(process, desktop, parent, ShownKind::kTreeView, tree) {
  Shown().tree = tree_;
  tree_->checkBoxes = tree.CheckBoxes();
  for (TreeNodeState* root : tree.Roots()) Add(*root);
  SelectedChanged();
  DropNodeChanged();
  AddDoors();
}

void LocalTreeView::AddDoors() {
  Shown().UserFocus = [this](bool has) { Focus(has); };
  Shown().UserMouse = [this](MouseAction action, const MouseEvent& event) { Mouse(action, event); };
  Shown().PressKey = [this](std::int32_t keyCode, std::int32_t shift) { Key(keyCode, shift); };
  Shown().EndLabelEdit = [this](const std::optional<std::wstring>& text) {
    TreeNodeState* edited = std::exchange(edited_, nullptr);
    if (edited != nullptr) Control().UserEndLabelEdit(*edited, text);
  };
  tree_->DoubleClick = [this](const MouseEvent& event) { DoubleClick(event); };
  tree_->Check = [this](ShownNode& node) { Check(node); };
}

// --- what changed

void LocalTreeView::Copy(const TreeNodeState& node, ShownNode& shown) {
  shown.text = node.text;
  shown.image = node.image;
  shown.expanded = node.expanded;
  shown.checked = node.checked;
  shown.ghosted = node.ghosted;
}

void LocalTreeView::Add(TreeNodeState& node) {
  ShownNode& parent = node.parent == nullptr ? tree_->top : Of(*node.parent);
  const std::vector<TreeNodeState*>& siblings = node.parent == nullptr ? Control().Roots() : node.parent->children;
  const std::size_t end = parent.children.size();
  auto at = static_cast<std::ptrdiff_t>(end);
  if (end >= siblings.size() || siblings[end] != &node) {  // not the next one of many
    at = std::min<std::ptrdiff_t>(std::find(siblings.begin(), siblings.end(), &node) - siblings.begin(), at);
  }
  const auto made = parent.children.insert(std::next(parent.children.begin(), at), std::make_unique<ShownNode>());
  ShownNode& shown = **made;
  shown.state = &node;
  shown.parent = &parent;
  Copy(node, shown);
  shown_[&node] = &shown;
  for (TreeNodeState* child : node.children) Add(*child);
}

void LocalTreeView::Forget(const TreeNodeState& node) {
  for (const TreeNodeState* child : node.children) Forget(*child);
  shown_.erase(&node);
}

void LocalTreeView::NodeRemoved(TreeNodeState& node) {
  ShownNode& shown = Of(node);
  pressedAgain_ = nullptr;
  Forget(node);
  std::erase_if(shown.parent->children, [&shown](const auto& child) { return child.get() == &shown; });
}

void LocalTreeView::NodesCleared() {
  tree_->top.children.clear();
  shown_.clear();
  tree_->selected = nullptr;
  tree_->drop = nullptr;
  pressedAgain_ = nullptr;
}

void LocalTreeView::StartLabelEdit(TreeNodeState& node) {
  TakeFocus();
  if (IsRetired() || Control().Selected() != &node || !Control().UserBeginLabelEdit(node)) return;
  if (IsRetired() || tree_->selected == nullptr) return;
  edited_ = &node;
  Shown().labelEdit = node.text;
}

void LocalTreeView::CancelLabelEdit() {
  edited_ = nullptr;
  Shown().labelEdit.reset();
}

TreeNodeState* LocalTreeView::HitTest(std::int32_t x, std::int32_t y) const {
  const ShownNode* node = tree_->NodeAt(ToPixels(x, kDesignDpi), ToPixels(y, kDesignDpi));
  return node == nullptr ? nullptr : node->state;
}

// --- what the user does

void LocalTreeView::Select(ShownNode* node, bool byUser) {
  if (node == nullptr || node == tree_->selected) return;
  tree_->selected = node;
  Control().UserSelect(*node->state, byUser);
}

void LocalTreeView::Expand(ShownNode& node, bool expanded) {
  if (node.children.empty() || node.expanded == expanded) return;
  node.expanded = expanded;
  for (const ShownNode* above = tree_->selected; !expanded && above != nullptr; above = above->parent) {
    if (above == &node) tree_->selected = &node;
  }
  Control().UserExpand(*node.state, expanded);
}

void LocalTreeView::Focus(bool has) {
  if (has && tree_->selected == nullptr && !tree_->top.children.empty()) {
    Select(tree_->top.children.front().get(), false);
  }
  if (!IsRetired()) Control().UserFocus(has);
}

void LocalTreeView::Mouse(MouseAction action, const MouseEvent& event) {
  switch (action) {
    case MouseAction::kDown:
      return PressDown(event);
    case MouseAction::kMove:
      return Control().UserMouse(action, event);
    case MouseAction::kUp:
      return LetGo(event);
  }
}

void LocalTreeView::PressDown(const MouseEvent& event) {
  if (!FormWindow().CanBeUsed(Shown())) return;
  FormWindow().SetFocus(&Shown());
  if (IsRetired()) return;
  Control().UserMouse(MouseAction::kDown, event);
  if (IsRetired()) return;
  pressed_ = event.button == kLeftButton;
  pressedAgain_ = nullptr;
  const std::int32_t x = ToPixels(event.x, kDesignDpi);
  const std::int32_t y = ToPixels(event.y, kDesignDpi);
  ShownNode* row = tree_->RowAt(y);
  if (row == nullptr) return;
  if (pressed_ && x < row->Left() && x >= row->Left() - kShownIndent) return Expand(*row, !row->expanded);
  ShownNode* node = tree_->NodeAt(x, y);
  if (node == nullptr) return;
  if (node != tree_->selected) return Select(node);
  if (pressed_) {
    pressedAgain_ = node;
  } else {
    Control().UserNodeClick(*node->state);
  }
}

void LocalTreeView::LetGo(const MouseEvent& event) {
  const bool click = std::exchange(pressed_, false) && event.button == kLeftButton;
  ShownNode* again = std::exchange(pressedAgain_, nullptr);
  if (click && again != nullptr && again == tree_->selected) Control().UserNodeClick(*again->state);
  if (click && !IsRetired()) Control().UserClick();
  if (!IsRetired()) Control().UserMouse(MouseAction::kUp, event);
}

void LocalTreeView::DoubleClick(const MouseEvent& event) {
  ShownNode* node = tree_->NodeAt(ToPixels(event.x, kDesignDpi), ToPixels(event.y, kDesignDpi));
  if (node != nullptr) Expand(*node, !node->expanded);
  if (!IsRetired()) Control().UserDoubleClick();
  if (!IsRetired()) Control().UserMouse(MouseAction::kUp, event);
}

void LocalTreeView::Check(ShownNode& node) {
  if (!tree_->checkBoxes) return;
  node.checked = !node.checked;
  Control().UserCheck(*node.state, node.checked);
}

void LocalTreeView::Key(std::int32_t keyCode, std::int32_t shift) {
  const std::vector<ShownNode*> visible = tree_->Visible();
  if (visible.empty()) return;
  const auto at = std::find(visible.begin(), visible.end(), tree_->selected);
  switch (keyCode) {
    case kKeyCodeUp:
      return at == visible.begin() ? void() : Select(*std::prev(at));
    case kKeyCodeDown:
      return at == visible.end() || std::next(at) == visible.end() ? void() : Select(*std::next(at));
    case kKeyCodeHome:
      return Select(visible.front());
    case kKeyCodeEnd:
      return Select(visible.back());
    case kKeyCodeLeft:
      return StepLeft();
    case kKeyCodeRight:
      return StepRight();
    case kKeyCodeSpace:
      return tree_->selected == nullptr ? void() : Check(*tree_->selected);
    case kKeyCodeF10:
      return shift == kShiftMask ? ContextKey() : void();
    case kKeyCodeApps:
      return ContextKey();
    default:
      return;
  }
}

void LocalTreeView::StepLeft() {
  ShownNode* node = tree_->selected;
  if (node == nullptr) return;
  if (node->expanded && !node->children.empty()) return Expand(*node, false);
  if (node->parent != &tree_->top) Select(node->parent);
}

void LocalTreeView::StepRight() {
  ShownNode* node = tree_->selected;
  if (node == nullptr || node->children.empty()) return;
  if (!node->expanded) return Expand(*node, true);
  Select(node->children.front().get());
}

void LocalTreeView::ContextKey() {
  const ShownNode* node = tree_->selected;
  const std::int32_t x = node == nullptr ? 0 : node->Left();
  const std::int32_t y = node == nullptr ? 0 : tree_->TopOf(node) + kShownRowHeight / 2;
  const MouseEvent event{kRightButton, 0, ToTwips(x, kDesignDpi), ToTwips(y, kDesignDpi)};
  Control().UserMouse(MouseAction::kDown, event);
  if (!IsRetired() && tree_->selected != nullptr) Control().UserNodeClick(*tree_->selected->state);
  if (!IsRetired()) Control().UserMouse(MouseAction::kUp, event);
}

}  // namespace burrowmark
