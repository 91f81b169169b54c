// A tree view of the local machine.
#pragma once

#include <unordered_map>

#include "platform/local/screen/local_control.h"

namespace burrowmark {

class LocalTreeView final : public LocalControl<TreeViewPeer, TreeViewState> {
 public:
  LocalTreeView(LocalProcess& process, LocalDesktop& desktop, WindowHandle parent, TreeViewState& tree);

  void StyleChanged() override {}
  void NodeAdded(TreeNodeState& node) override { Add(node); }
  void NodeRemoved(TreeNodeState& node) override;
  void NodesCleared() override;
  void NodeChanged(TreeNodeState& node) override { Copy(node, Of(node)); }
  void ExpandedChanged(TreeNodeState& node) override { Of(node).expanded = node.expanded; }
  void SelectedChanged() override { tree_->selected = Of(Control().Selected()); }
  void DropNodeChanged() override { tree_->drop = Of(Control().DropNode()); }
  void EnsureVisible(TreeNodeState&) override {}  // all rows are in view
  void StartLabelEdit(TreeNodeState& node) override;
  void CancelLabelEdit() override;
  void BeginUpdate() override {}
  void EndUpdate() override {}
  TreeNodeState* HitTest(std::int32_t x, std::int32_t y) const override;

 private:
  ShownNode& Of(const TreeNodeState& node) const { return *shown_.at(&node); }
  ShownNode* Of(const TreeNodeState* node) const { return node == nullptr ? nullptr : &Of(*node); }
  static void Copy(const TreeNodeState& node, ShownNode& shown);
  void Add(TreeNodeState& node);
  void Forget(const TreeNodeState& node);
  void AddDoors();
  void Focus(bool has);
  void Mouse(MouseAction action, const MouseEvent& event);
  void PressDown(const MouseEvent& event);
  void LetGo(const MouseEvent& event);
  void DoubleClick(const MouseEvent& event);
  void Check(ShownNode& node);
  void Key(std::int32_t keyCode, std::int32_t shift);
  void StepLeft();
  void StepRight();
  void ContextKey();
  // The user's doing.
  void Select(ShownNode* node, bool byUser = true);
  void Expand(ShownNode& node, bool expanded);

  std::shared_ptr<ShownTree> tree_ = std::make_shared<ShownTree>();
  std::unordered_map<const TreeNodeState*, ShownNode*> shown_;
  TreeNodeState* edited_ = nullptr;
  ShownNode* pressedAgain_ = nullptr;  // it was the selected one already
  bool pressed_ = false;
};

}  // namespace burrowmark
