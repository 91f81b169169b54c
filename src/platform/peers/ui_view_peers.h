// Controls that show many things: the tree view and the list view.
//
// How their gestures come in, on every system and in this order:
// - A press: UserFocus, UserMouse (down), what it selects, UserClick if it was the left button, UserMouse (up); each
//   once. The right button selects as the left one does.
// - The second press of a double click is no UserMouse (down): UserDoubleClick, UserMouse (up).
// - The key for context menus, or Shift+F10, is a press of the right button on the current row or the selected node,
//   else in the corner. It changes nothing of what is selected; what was current is told once more.
// - Keys in an open label edit go nowhere else. An edit ends without a change when its row or node goes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/drawing.h"
#include "platform/peers/ui_control.h"
#include "platform/peers/ui_images.h"

namespace burrowmark {

// Draws a text in the colour of its control.
inline constexpr Color kColorOfControl = 0xFFFFFFFF;

// --- list view

// The numbers are those of the common control.
enum class ListViewMode : std::uint8_t { kIcon, kSmallIcon, kList, kReport };

struct ListColumn {
  std::wstring text;
  std::int32_t width = 1440;  // twips
};

// A row as its peer reads it.
struct ListItemState {
  std::vector<std::wstring> texts;  // of the columns, the row's own text first
  std::vector<Color> colors;        // of the columns; kColorOfControl beyond the end
  std::wstring toolTip;
  std::int32_t icon = 0;       // image of the large icons
  std::int32_t smallIcon = 0;  // image of the small ones
  bool ghosted = false;
  bool selected = false;
  bool checked = false;
};

// Rows and columns count from 0; a row that is none is -1.
class ListViewState : public virtual ControlState {
 public:
  virtual ListViewMode View() const = 0;
  virtual bool GridLines() const = 0;
  virtual bool MultiSelect() const = 0;
  virtual bool CheckBoxes() const = 0;
  virtual bool LabelEdit() const = 0;  // on command; never by a second click
  virtual const ImageList& Icons() const = 0;
  virtual const ImageList& SmallIcons() const = 0;
  virtual const std::vector<ListColumn>& Columns() const = 0;
  virtual std::int32_t RowCount() const = 0;
  virtual const ListItemState& Row(std::int32_t row) const = 0;
  virtual std::int32_t CurrentRow() const = 0;  // the one that the keyboard goes on from
  virtual std::int32_t DropRow() const = 0;     // marked as the one to drop on

  // A row was selected or left, or became the current one or ceased to be it.
  virtual void UserRowState(std::int32_t row, bool selected, bool current) = 0;
  virtual void UserCheck(std::int32_t row, bool checked) = 0;
  virtual void UserClick() = 0;        // anywhere in the rows, after what it selected
  virtual void UserDoubleClick() = 0;  // likewise
  virtual void UserColumnClick(std::int32_t column) = 0;
  virtual void UserColumnWidth(std::int32_t column, std::int32_t width) = 0;
  // False: the label stays as it is.
  virtual bool UserBeginLabelEdit(std::int32_t row) = 0;
  // No text: the user gave up. False: the text before stands again.
  virtual bool UserEndLabelEdit(std::int32_t row, const std::optional<std::wstring>& text) = 0;
  // The rows are going to be drawn.
  virtual void UserPaint() = 0;

 protected:
  ~ListViewState() = default;
};

class ListViewPeer : public ControlPeer {
 public:
  virtual void ViewChanged() = 0;  // view, grid lines, images
  virtual void ColumnChanged(std::int32_t column) = 0;
  virtual void RowAdded(std::int32_t row) = 0;
  virtual void RowRemoved(std::int32_t row) = 0;
  virtual void RowsCleared() = 0;
  virtual void RowsMoved(const std::vector<std::int32_t>& before) = 0;  // before[n]: where row n was until now
  virtual void RowChanged(std::int32_t row) = 0;                        // texts, colours, images
  virtual void RowStateChanged(std::int32_t row) = 0;                   // selected, ghosted, checked
  virtual void CurrentRowChanged() = 0;
  virtual void DropRowChanged() = 0;
  virtual void EnsureVisible(std::int32_t row) = 0;
  virtual void StartLabelEdit(std::int32_t row) = 0;
  virtual void CancelLabelEdit() = 0;  // of the row whose edit is open, as if the user gave up
  // Between these two nothing is drawn, so that many changes cost little.
  virtual void BeginUpdate() = 0;
  virtual void EndUpdate() = 0;
  // The row at a point, in twips from the corner of the control.
  virtual std::int32_t HitTest(std::int32_t x, std::int32_t y) const = 0;
};

// --- tree view

// A node as its peer reads it.
struct TreeNodeState {
  std::wstring text;
  std::int32_t image = 0;
  bool expanded = false;
  bool checked = false;
  bool ghosted = false;
  TreeNodeState* parent = nullptr;
  std::vector<TreeNodeState*> children;
  // What the peer knows the node by; the peer alone writes it.
  std::intptr_t native = 0;
};

class TreeViewState : public virtual ControlState {
 public:
  virtual const ImageList& Images() const = 0;
  virtual bool CheckBoxes() const = 0;
  virtual bool LabelEdit() const = 0;  // on command; never by a second click
  virtual const std::vector<TreeNodeState*>& Roots() const = 0;
  virtual TreeNodeState* Selected() const = 0;
  virtual TreeNodeState* DropNode() const = 0;  // marked as the one to drop on

  // Another node was selected; by the user, or by the system because none was when the control got the focus.
  virtual void UserSelect(TreeNodeState& node, bool byUser) = 0;
  // The node that is selected already was clicked once more.
  virtual void UserNodeClick(TreeNodeState& node) = 0;
  virtual void UserExpand(TreeNodeState& node, bool expanded) = 0;
  virtual void UserCheck(TreeNodeState& node, bool checked) = 0;
  virtual void UserClick() = 0;        // anywhere, after what it selected
  virtual void UserDoubleClick() = 0;  // likewise
  // False: the label stays as it is.
  virtual bool UserBeginLabelEdit(TreeNodeState& node) = 0;
  // No text: the user gave up. False: the text before stands again.
  virtual bool UserEndLabelEdit(TreeNodeState& node, const std::optional<std::wstring>& text) = 0;

 protected:
  ~TreeViewState() = default;
};

class TreeViewPeer : public ControlPeer {
 public:
  virtual void StyleChanged() = 0;  // images, check boxes
  virtual void NodeAdded(TreeNodeState& node) = 0;
  // The node and all below it are still there, and go when this returns.
  virtual void NodeRemoved(TreeNodeState& node) = 0;
  virtual void NodesCleared() = 0;
  virtual void NodeChanged(TreeNodeState& node) = 0;  // text, image, ghosted, checked
  virtual void ExpandedChanged(TreeNodeState& node) = 0;
  virtual void SelectedChanged() = 0;
  virtual void DropNodeChanged() = 0;
  virtual void EnsureVisible(TreeNodeState& node) = 0;
  virtual void StartLabelEdit(TreeNodeState& node) = 0;
  virtual void CancelLabelEdit() = 0;  // of the node whose edit is open, as if the user gave up
  // Between these two nothing is drawn, so that many changes cost little.
  virtual void BeginUpdate() = 0;
  virtual void EndUpdate() = 0;
  // The node at a point, in twips from the corner of the control.
  virtual TreeNodeState* HitTest(std::int32_t x, std::int32_t y) const = 0;
};

}  // namespace burrowmark
