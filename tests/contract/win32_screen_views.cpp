// Lists and trees on the screen of the real system.
#include "tests/contract/win32_screen.h"

#include <commctrl.h>

#include <cstring>
#include <functional>
#include <stdexcept>

namespace burrowmark {
namespace {

constexpr LONG kInText = 5;

WindowHandle HeaderOf(WindowHandle list) { return FromHwnd(reinterpret_cast<HWND>(Send(list, LVM_GETHEADER))); }

POINT EmptySpace(WindowHandle control) {
  RECT client = {};
  ::GetClientRect(ToHwnd(control), &client);
  return {client.left + 2 * kInText, client.bottom - 2 * kInText};
}

POINT InRow(WindowHandle list, std::int32_t row) {
  if (row < 0) return EmptySpace(list);
  RECT rect = {LVIR_LABEL, 0, 0, 0};
  if (Send(list, LVM_GETITEMRECT, static_cast<WPARAM>(row), &rect) == FALSE) throw std::logic_error("no such row");
  return {rect.left + kInText, (rect.top + rect.bottom) / 2};
}

// The first point from the left, as high as the other one, where the test says yes.
POINT PointWhere(POINT point, const std::function<bool(const POINT&)>& test) {
  const LONG end = point.x + 100;
  for (point.x = 0; point.x < end; ++point.x) {
    if (test(point)) return point;
  }
  throw std::logic_error("there is nothing like that in the row");
}

std::wstring Mark(bool on, const wchar_t* mark) { return on ? mark : L""; }

// --- nodes

WPARAM AsParameter(HTREEITEM item) { return reinterpret_cast<WPARAM>(item); }

HTREEITEM Next(WindowHandle tree, WPARAM relation, HTREEITEM item) {
  return reinterpret_cast<HTREEITEM>(Send(tree, TVM_GETNEXTITEM, relation, item));
}

std::wstring TextOfNode(WindowHandle tree, HTREEITEM node) {
  wchar_t text[kTextLength] = {};
  TVITEMW item = {};
  item.mask = TVIF_HANDLE | TVIF_TEXT;
  item.hItem = node;
  item.pszText = text;
  item.cchTextMax = kTextLength;
  Send(tree, TVM_GETITEMW, 0, &item);
  return text;
}

bool HasState(WindowHandle tree, HTREEITEM node, UINT bits, UINT mask) {
  return (static_cast<UINT>(::SendMessageW(ToHwnd(tree), TVM_GETITEMSTATE, AsParameter(node), mask)) & mask) == bits;
}

void ForVisible(WindowHandle tree, HTREEITEM first, std::size_t level,
                const std::function<void(HTREEITEM, std::size_t)>& each) {
  for (HTREEITEM node = first; node != nullptr; node = Next(tree, TVGN_NEXT, node)) {
    each(node, level);
    if (HasState(tree, node, TVIS_EXPANDED, TVIS_EXPANDED)) {
      ForVisible(tree, Next(tree, TVGN_CHILD, node), level + 1, each);
    }
  }
}

HTREEITEM NodeNamed(WindowHandle tree, const std::wstring& text) {
  HTREEITEM found = nullptr;
  ForVisible(tree, Next(tree, TVGN_ROOT, nullptr), 0, [&](HTREEITEM node, std::size_t) {
    if (found == nullptr && TextOfNode(tree, node) == text) found = node;
  });
  if (found == nullptr) throw std::logic_error("no such node can be seen");
  return found;
}

POINT InNode(WindowHandle tree, const std::wstring& text) {
  if (text.empty()) return EmptySpace(tree);
  const HTREEITEM node = NodeNamed(tree, text);
  RECT rect = {};
  std::memcpy(&rect, &node, sizeof(node));
  Send(tree, TVM_GETITEMRECT, TRUE, &rect);
  return {rect.left + kInText, (rect.top + rect.bottom) / 2};
}

POINT PartOfNode(WindowHandle tree, const std::wstring& text, UINT part) {
  return PointWhere(InNode(tree, text), [tree, part](const POINT& point) {
    TVHITTESTINFO hit = {};
    hit.pt = point;
    Send(tree, TVM_HITTEST, 0, &hit);
    return (hit.flags & part) != 0;
  });
}

HWND EditOf(WindowHandle control) {
  wchar_t name[kTextLength] = {};
  ::GetClassNameW(ToHwnd(control), name, kTextLength);
  const bool list = ::lstrcmpiW(name, WC_LISTVIEWW) == 0;
  return reinterpret_cast<HWND>(Send(control, list ? LVM_GETEDITCONTROL : TVM_GETEDITCONTROL));
}

}  // namespace

// --- lists

void ScreenUnderTest::ClickRow(WindowHandle list, std::int32_t row, std::int32_t button, std::int32_t shift) {
  side_->PressAt(ToHwnd(list), InRow(list, row), button, shift);
}

void ScreenUnderTest::DoubleClickRow(WindowHandle list, std::int32_t row) {
  side_->PressTwiceAt(ToHwnd(list), InRow(list, row));
}

void ScreenUnderTest::CheckRow(WindowHandle list, std::int32_t row) {
  const POINT at = PointWhere(InRow(list, row), [list](const POINT& point) {
    LVHITTESTINFO hit = {};
    hit.pt = point;
    Send(list, LVM_SUBITEMHITTEST, 0, &hit);
    return (hit.flags & LVHT_ONITEM) == LVHT_ONITEMSTATEICON;
  });
  side_->PressAt(ToHwnd(list), at);
}

void ScreenUnderTest::ClickColumn(WindowHandle list, std::int32_t column) {
  const WindowHandle header = HeaderOf(list);
  side_->PressAt(ToHwnd(header), MiddleOf(PartOf(header, HDM_GETITEMRECT, column)));
}

void ScreenUnderTest::DragColumn(WindowHandle list, std::int32_t column, std::int32_t width) {
  const WindowHandle header = HeaderOf(list);
  const RECT rect = PartOf(header, HDM_GETITEMRECT, column);
  const POINT to = {rect.left + ToPixels(width, kDesignDpi) - 1, MiddleOf(rect).y};
  PostMouse(ToHwnd(header), WM_LBUTTONDOWN, {rect.right - 1, to.y}, MK_LBUTTON);
  PostMouse(ToHwnd(header), WM_MOUSEMOVE, to, MK_LBUTTON);
  PostMouse(ToHwnd(header), WM_LBUTTONUP, to, 0);
  side_->windows.DoEvents();
}

std::wstring ScreenUnderTest::RowsOf(WindowHandle list) {
  std::wstring rows;
  const auto count = static_cast<std::int32_t>(Send(list, LVM_GETITEMCOUNT));
  for (std::int32_t row = 0; row < count; ++row) {
    const auto state = static_cast<UINT>(::SendMessageW(ToHwnd(list), LVM_GETITEMSTATE, static_cast<WPARAM>(row), -1));
    rows += (row == 0 ? L"" : L" ") + CellOf(list, row, 0) + Mark((state & LVIS_SELECTED) != 0, L"+") +
            Mark((state & LVIS_FOCUSED) != 0, L"*") + Mark((state & LVIS_CUT) != 0, L"~") +
            Mark((state & LVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(2U), L"v") +
            Mark((state & LVIS_DROPHILITED) != 0, L"<");
  }
  return rows;
}

std::wstring ScreenUnderTest::CellOf(WindowHandle list, std::int32_t row, std::int32_t column) {
  wchar_t text[kTextLength] = {};
  LVITEMW item = {};
  item.iSubItem = column;
  item.pszText = text;
  item.cchTextMax = kTextLength;
  Send(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), &item);
  return item.pszText;
}

std::wstring ScreenUnderTest::ColumnsOf(WindowHandle list) {
  std::wstring columns;
  wchar_t text[kTextLength] = {};
  LVCOLUMNW shown = {};
  shown.mask = LVCF_TEXT | LVCF_WIDTH;
  shown.pszText = text;
  shown.cchTextMax = kTextLength;
  for (WPARAM i = 0; Send(list, LVM_GETCOLUMNW, i, &shown) != FALSE; ++i) {
    columns += (i == 0 ? L"" : L" ") + std::wstring(text) + L":" + std::to_wstring(shown.cx);
  }
  return columns;
}

// --- trees

void ScreenUnderTest::ClickNode(WindowHandle tree, const std::wstring& text, std::int32_t button) {
  side_->PressAt(ToHwnd(tree), InNode(tree, text), button);
}

void ScreenUnderTest::DoubleClickNode(WindowHandle tree, const std::wstring& text) {
  side_->PressTwiceAt(ToHwnd(tree), InNode(tree, text));
}

void ScreenUnderTest::CheckNode(WindowHandle tree, const std::wstring& text) {
  side_->PressAt(ToHwnd(tree), PartOfNode(tree, text, TVHT_ONITEMSTATEICON));
}

void ScreenUnderTest::ToggleNode(WindowHandle tree, const std::wstring& text) {
  side_->PressAt(ToHwnd(tree), PartOfNode(tree, text, TVHT_ONITEMBUTTON));
}

std::wstring ScreenUnderTest::NodesOf(WindowHandle tree) {
  std::wstring nodes;
  const HTREEITEM selected = Next(tree, TVGN_CARET, nullptr);
  ForVisible(tree, Next(tree, TVGN_ROOT, nullptr), 0, [&](HTREEITEM node, std::size_t level) {
    nodes += (nodes.empty() ? L"" : L" ") + std::wstring(level, L'.') + TextOfNode(tree, node) +
             Mark(node == selected, L"*") + Mark(HasState(tree, node, TVIS_CUT, TVIS_CUT), L"~") +
             Mark(HasState(tree, node, INDEXTOSTATEIMAGEMASK(2U), TVIS_STATEIMAGEMASK), L"v") +
             Mark(HasState(tree, node, TVIS_DROPHILITED, TVIS_DROPHILITED), L"<");
  });
  return nodes;
}

// --- both

bool ScreenUnderTest::EditsLabel(WindowHandle control) { return EditOf(control) != nullptr; }

void ScreenUnderTest::TypeLabel(WindowHandle control, const std::wstring& text) {
  const HWND edit = EditOf(control);
  ::SendMessageW(edit, EM_SETSEL, 0, -1);
  for (const wchar_t character : text) ::PostMessageW(edit, WM_CHAR, character, 1);
  side_->windows.DoEvents();
}

}  // namespace burrowmark
