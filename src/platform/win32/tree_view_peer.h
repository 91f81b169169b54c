// A tree view of the system.
#pragma once

#include "platform/win32/child_window.h"

namespace burrowmark {

class Win32TreeView final : public ChildPeer<TreeViewPeer> {
 public:
  Win32TreeView(const ChildPlace& place, TreeViewState& tree);
  void StyleChanged() override {}
  void NodeAdded(TreeNodeState& node) override { Add(node); }
  void NodeRemoved(TreeNodeState& node) override;
  void NodesCleared() override;
  void NodeChanged(TreeNodeState&) override {}
  void ExpandedChanged(TreeNodeState&) override {}
  void SelectedChanged() override {}
  void DropNodeChanged() override {}
  void EnsureVisible(TreeNodeState&) override {}
  void StartLabelEdit(TreeNodeState&) override {}
  void BeginUpdate() override {}
  void EndUpdate() override {}
  TreeNodeState* HitTest(std::int32_t, std::int32_t) const override { return nullptr; }

 private:
  void Add(TreeNodeState& node);

  TreeViewState& tree_;
};

}  // namespace burrowmark
