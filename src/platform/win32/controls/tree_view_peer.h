// A tree view of the system.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstdint>
#include <optional>

#include "platform/win32/controls/image_lists.h"
#include "platform/win32/controls/view_window.h"

namespace burrowmark {

class Win32TreeView final : public ChildPeer<TreeViewPeer, ViewWindow> {
 public:
  Win32TreeView(const ChildPlace& place, TreeViewState& tree);
  ~Win32TreeView() override;
  Win32TreeView(const Win32TreeView&) = delete;
  Win32TreeView& operator=(const Win32TreeView&) = delete;

  void ScaleChanged() override;
  void StyleChanged() override;
  void NodeAdded(TreeNodeState& node) override;
  void NodeRemoved(TreeNodeState& node) override;
  void NodesCleared() override;
  void NodeChanged(TreeNodeState& node) override;
  void ExpandedChanged(TreeNodeState& node) override;
  void SelectedChanged() override;
  void DropNodeChanged() override;
  void EnsureVisible(TreeNodeState& node) override;
  void StartLabelEdit(TreeNodeState& node) override;
  void CancelLabelEdit() override;
  void BeginUpdate() override { StartUpdate(); }
  void EndUpdate() override;
  TreeNodeState* HitTest(std::int32_t x, std::int32_t y) const override;

 private:
  LRESULT Notify(NMHDR& record) override;
  void Pressed(const MouseEvent& event) override;
  void Clicked(const MouseEvent& event) override;
  void DoubleClicked() override { tree_.UserDoubleClick(); }
  void KeyHandled() override;
  std::optional<std::intptr_t> Current() const override;
  RECT RectOf(std::intptr_t current) const override;
  void PressAgain(std::intptr_t current) override;

  void Add(TreeNodeState& node);
  TVITEMEXW ItemOf(const TreeNodeState& node) const;
  LPARAM Before(const TreeNodeState& node) const;
  TreeNodeState* NodeOf(LRESULT item) const;
  TreeNodeState* NodeAt(const MouseEvent& event, UINT flags) const;
  void ShowSpacing() const;
  void FollowCheck(TreeNodeState* node);
  void SelectionChanged(const NMTREEVIEWW& record);
  void Expanded(const NMTREEVIEWW& record);
  LRESULT BeginLabelEdit(const NMTVDISPINFOW& record);
  LRESULT EndLabelEdit(const NMTVDISPINFOW& record);

  TreeViewState& tree_;
  ImageListHandle images_;
  bool isCollapsing_ = false;
  bool hasSelected_ = false;  // since the button went down
};

}  // namespace burrowmark
