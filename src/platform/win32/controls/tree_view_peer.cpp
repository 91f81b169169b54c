#include "platform/win32/controls/tree_view_peer.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <utility>

namespace burrowmark {
namespace {

// Clipped: other controls may lie over it.
constexpr DWORD kStyle = WS_CLIPSIBLINGS | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS;
constexpr int kIndent = 19;  // pixels at 96 dots per inch
constexpr UINT kOnNode = TVHT_ONITEMICON | TVHT_ONITEMLABEL;
constexpr UINT kStateBits = TVIS_CUT | TVIS_STATEIMAGEMASK;

DWORD StyleOf(const TreeViewState& tree) { return kStyle | (tree.LabelEdit() ? TVS_EDITLABELS : 0); }

LPARAM Address(const void* record) { return reinterpret_cast<LPARAM>(record); }

}  // namespace

Win32TreeView::Win32TreeView(const ChildPlace& place, TreeViewState& tree)
    : ChildPeer(WC_TREEVIEWW, StyleOf(tree), place, tree), tree_(tree) {
  const Telling telling(*this);
  // With this from the start the first boxes would be missing.
  if (tree.CheckBoxes()) SetStyle(TVS_CHECKBOXES, true);
  StyleChanged();
  ShowSpacing();
  for (TreeNodeState* root : tree.Roots()) Add(*root);
  SelectedChanged();
  DropNodeChanged();
}

// The pictures of the boxes are the control's, but nobody else destroys them.
Win32TreeView::~Win32TreeView() {
  const ImageListHandle boxes(reinterpret_cast<HIMAGELIST>(::SendMessageW(Handle(), TVM_SETIMAGELIST, TVSIL_STATE, 0)));
}

// --- looks

void Win32TreeView::ScaleChanged() {
  const Telling telling(*this);
  FollowScale();
  StyleChanged();
  ShowSpacing();
}

void Win32TreeView::ShowSpacing() const {
  constexpr WPARAM kAsTheFontNeeds = static_cast<WPARAM>(-1);
  Native(TVM_SETITEMHEIGHT, kAsTheFontNeeds, 0);
  Native(TVM_SETINDENT, static_cast<WPARAM>(Scaled(kIndent, Dpi(), kDesignDpi)), 0);
}

void Win32TreeView::StyleChanged() {
  ImageListHandle images = MakeImageList(tree_.Images(), Dpi());
  Native(TVM_SETIMAGELIST, TVSIL_NORMAL, Address(images.get()));
  images_ = std::move(images);
}

void Win32TreeView::EndUpdate() {
  const Telling telling(*this);
  StopUpdate();
}

// --- nodes

TVITEMEXW Win32TreeView::ItemOf(const TreeNodeState& node) const {
  TVITEMEXW item = {};
  item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_STATE | TVIF_PARAM;
  item.pszText = const_cast<wchar_t*>(node.text.c_str());
  item.iImage = node.image;
  item.iSelectedImage = node.image;
  item.stateMask = kStateBits;
  item.state = node.ghosted ? TVIS_CUT : 0U;
  if (tree_.CheckBoxes()) item.state |= INDEXTOSTATEIMAGEMASK(node.checked ? 2U : 1U);
  item.lParam = Address(&node);
  return item;
}

// What the control shall put the node behind.
LPARAM Win32TreeView::Before(const TreeNodeState& node) const {
  const std::vector<TreeNodeState*>& siblings = node.parent == nullptr ? tree_.Roots() : node.parent->children;
  if (siblings.back() == &node) return Address(TVI_LAST);
  const auto at = std::find(siblings.begin(), siblings.end(), &node);
  return at == siblings.begin() ? Address(TVI_FIRST) : (*std::prev(at))->native;
}

void Win32TreeView::NodeAdded(TreeNodeState& node) {
  const Telling telling(*this);
  Add(node);
  if (node.parent != nullptr && node.parent->expanded && node.parent->children.size() == 1) {
    ExpandedChanged(*node.parent);
  }
}

void Win32TreeView::Add(TreeNodeState& node) {
  TVINSERTSTRUCTW insert = {};
  insert.hParent = node.parent == nullptr ? TVI_ROOT : reinterpret_cast<HTREEITEM>(node.parent->native);
  insert.hInsertAfter = node.children.empty() ? reinterpret_cast<HTREEITEM>(Before(node)) : TVI_LAST;
  insert.itemex = ItemOf(node);
  node.native = Native(TVM_INSERTITEMW, 0, Address(&insert));
  if (node.children.empty()) return;
  for (TreeNodeState* child : node.children) Add(*child);
  if (node.expanded) ExpandedChanged(node);
}

void Win32TreeView::NodeRemoved(TreeNodeState& node) {
  const Telling telling(*this);
  Native(TVM_DELETEITEM, 0, node.native);
}

void Win32TreeView::NodesCleared() {
  const Telling telling(*this);
  Native(TVM_DELETEITEM, 0, Address(TVI_ROOT));
}

void Win32TreeView::NodeChanged(TreeNodeState& node) {
  const Telling telling(*this);
  TVITEMEXW item = ItemOf(node);
  item.mask |= TVIF_HANDLE;
  item.hItem = reinterpret_cast<HTREEITEM>(node.native);
  Native(TVM_SETITEMW, 0, Address(&item));
}

void Win32TreeView::ExpandedChanged(TreeNodeState& node) {
  const Telling telling(*this);
  Native(TVM_EXPAND, node.expanded ? TVE_EXPAND : TVE_COLLAPSE, node.native);
}

void Win32TreeView::SelectedChanged() {
  const Telling telling(*this);
  const TreeNodeState* selected = tree_.Selected();
  Native(TVM_SELECTITEM, TVGN_CARET, selected == nullptr ? 0 : selected->native);
}

void Win32TreeView::DropNodeChanged() {
  const Telling telling(*this);
  const TreeNodeState* drop = tree_.DropNode();
  Native(TVM_SELECTITEM, TVGN_DROPHILITE, drop == nullptr ? 0 : drop->native);
}

void Win32TreeView::EnsureVisible(TreeNodeState& node) {
  const Telling telling(*this);
  Native(TVM_ENSUREVISIBLE, 0, node.native);
}

// --- where things are

TreeNodeState* Win32TreeView::NodeOf(LRESULT item) const {
  if (item == 0) return nullptr;
  TVITEMEXW asked = {};
  asked.mask = TVIF_HANDLE | TVIF_PARAM;
  asked.hItem = reinterpret_cast<HTREEITEM>(item);
  const bool known = Native(TVM_GETITEMW, 0, Address(&asked)) != FALSE;
  return known ? reinterpret_cast<TreeNodeState*>(asked.lParam) : nullptr;
}

TreeNodeState* Win32TreeView::NodeAt(const MouseEvent& event, UINT flags) const {
  TVHITTESTINFO hit = {};
  hit.pt = {ToPixels(event.x, Dpi()), ToPixels(event.y, Dpi())};
  const LRESULT item = Native(TVM_HITTEST, 0, Address(&hit));
  return (hit.flags & flags) != 0 ? NodeOf(item) : nullptr;
}

TreeNodeState* Win32TreeView::HitTest(std::int32_t x, std::int32_t y) const {
  return NodeAt({0, 0, x, y}, TVHT_ONITEM);
}

std::optional<std::intptr_t> Win32TreeView::Current() const {
  const LRESULT item = Native(TVM_GETNEXTITEM, TVGN_CARET, 0);
  return item == 0 ? std::nullopt : std::optional<std::intptr_t>(item);
}

RECT Win32TreeView::RectOf(std::intptr_t current) const {
  RECT rect = {};
  std::memcpy(&rect, &current, sizeof(current));  // as the message wants it
  constexpr WPARAM kTextOnly = TRUE;
  return Native(TVM_GETITEMRECT, kTextOnly, Address(&rect)) != FALSE ? rect : RECT{};
}

// --- what the user does

void Win32TreeView::Pressed(const MouseEvent& event) {
  if (tree_.CheckBoxes()) FollowCheck(NodeAt(event, TVHT_ONITEMSTATEICON));
  if (IsRetired() || event.button != kRightButton) return;
  TreeNodeState* node = NodeAt(event, kOnNode);
  if (node == nullptr) return;
  if (node == tree_.Selected()) return tree_.UserNodeClick(*node);
  {
    const Telling telling(*this);
    Native(TVM_SELECTITEM, TVGN_CARET, node->native);
  }
  tree_.UserSelect(*node, true);
}

void Win32TreeView::Clicked(const MouseEvent& event) {
  if (tree_.CheckBoxes()) FollowCheck(NodeAt(event, TVHT_ONITEMSTATEICON));
  const bool again = !std::exchange(hasSelected_, false);
  if (IsRetired()) return;
  TreeNodeState* node = NodeAt(event, kOnNode);
  if (again && node != nullptr && node == tree_.Selected()) tree_.UserNodeClick(*node);
  if (!IsRetired()) tree_.UserClick();
}

void Win32TreeView::KeyHandled() {
  if (tree_.CheckBoxes()) FollowCheck(tree_.Selected());
}

void Win32TreeView::PressAgain(std::intptr_t current) {
  TreeNodeState* node = NodeOf(current);
  if (node != nullptr && node == tree_.Selected()) tree_.UserNodeClick(*node);
}

// The control doesn't tell of its boxes.
void Win32TreeView::FollowCheck(TreeNodeState* node) {
  if (node == nullptr) return;
  const LRESULT state = Native(TVM_GETITEMSTATE, static_cast<WPARAM>(node->native), TVIS_STATEIMAGEMASK);
  const bool checked = (static_cast<UINT>(state) & TVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(2U);
  if (checked != node->checked) tree_.UserCheck(*node, checked);
}

// --- what the control tells

LRESULT Win32TreeView::Notify(NMHDR& record) {
  switch (record.code) {
    case NM_CLICK:
      NoteClick();
      return 0;
    case NM_DBLCLK:
      NoteDoubleClick();
      return 0;
    case TVN_BEGINDRAGW:
      Drag();
      return 0;
    case NM_RCLICK:
      return 1;  // no context menu of its own
    case TVN_SELCHANGEDW:
      if (!IsTelling() && !isCollapsing_) SelectionChanged(reinterpret_cast<const NMTREEVIEWW&>(record));
      return 0;
    case TVN_ITEMEXPANDINGW:
      isCollapsing_ = !IsTelling() && reinterpret_cast<const NMTREEVIEWW&>(record).action == TVE_COLLAPSE;
      return 0;
    case TVN_ITEMEXPANDEDW:
      isCollapsing_ = false;
      if (!IsTelling()) Expanded(reinterpret_cast<const NMTREEVIEWW&>(record));
      return 0;
    case TVN_BEGINLABELEDITW:
      return BeginLabelEdit(reinterpret_cast<const NMTVDISPINFOW&>(record));
    case TVN_ENDLABELEDITW:
      return EndLabelEdit(reinterpret_cast<const NMTVDISPINFOW&>(record));
    default:
      return 0;
  }
}

void Win32TreeView::SelectionChanged(const NMTREEVIEWW& record) {
  auto* node = reinterpret_cast<TreeNodeState*>(record.itemNew.lParam);
  if (record.itemNew.hItem == nullptr || node == nullptr) return;
  hasSelected_ = true;
  tree_.UserSelect(*node, record.action != TVC_UNKNOWN || IsInGesture());
}

void Win32TreeView::Expanded(const NMTREEVIEWW& record) {
  auto* node = reinterpret_cast<TreeNodeState*>(record.itemNew.lParam);
  if (node != nullptr) tree_.UserExpand(*node, record.action == TVE_EXPAND);
}

// --- labels

void Win32TreeView::StartLabelEdit(TreeNodeState& node) { EditLabel(TVM_EDITLABELW, 0, node.native); }

void Win32TreeView::CancelLabelEdit() { ::SendMessageW(Handle(), TVM_ENDEDITLABELNOW, TRUE, 0); }

LRESULT Win32TreeView::BeginLabelEdit(const NMTVDISPINFOW& record) {
  auto* node = reinterpret_cast<TreeNodeState*>(record.item.lParam);
  if (!IsEditAsked() || node == nullptr || !tree_.UserBeginLabelEdit(*node) || IsRetired()) return TRUE;
  LabelEditBegins(TVM_GETEDITCONTROL);
  return FALSE;
}

// The text that the state takes on comes by NodeChanged; the control itself shall write none.
LRESULT Win32TreeView::EndLabelEdit(const NMTVDISPINFOW& record) {
  LabelEditEnds();
  auto* node = reinterpret_cast<TreeNodeState*>(record.item.lParam);
  if (IsTelling() || node == nullptr) return FALSE;
  const wchar_t* text = record.item.pszText;
  tree_.UserEndLabelEdit(*node, text == nullptr ? std::nullopt : std::optional<std::wstring>(text));
  return FALSE;
}

}  // namespace burrowmark
