// Lists and trees on the screen of the real system.
#include "tests/contract/win32_screen.h"

#ifdef _WIN32

#include <windows.h>

#include <commctrl.h>

#include <cstring>
#include <functional>
#include <stdexcept>

#include "platform/key_codes.h"
#include "platform/win32/handles.h"
#include "tests/contract/held_modifiers.h"

namespace burrowmark {
namespace {

constexpr int kTextLength = 256;
constexpr LONG kInText = 5;

LRESULT Send(WindowHandle window, UINT message, WPARAM wParam = 0, const void* record = nullptr) {
  return ::SendMessageW(ToHwnd(window), message, wParam, reinterpret_cast<LPARAM>(record));
}

void PostMouse(HWND window, UINT message, const POINT& at, WPARAM held) {
  ::PostMessageW(window, message, held, MAKELPARAM(at.x, at.y));
}

void PostPress(HWND window, const POINT& at, std::int32_t button, std::int32_t shift) {
  const bool left = button == kLeftButton;
  const WPARAM keys = ((shift & kShiftMask) != 0 ? MK_SHIFT : 0U) | ((shift & kCtrlMask) != 0 ? MK_CONTROL : 0U);
  PostMouse(window, left ? WM_LBUTTONDOWN : WM_RBUTTONDOWN, at, keys | (left ? MK_LBUTTON : MK_RBUTTON));
  PostMouse(window, left ? WM_LBUTTONUP : WM_RBUTTONUP, at, keys);
}

void PostSecondPress(HWND window, const POINT& at) {
  PostMouse(window, WM_LBUTTONDBLCLK, at, MK_LBUTTON);
  PostMouse(window, WM_LBUTTONUP, at, 0);
}

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

void Win32Screen::ClickRow(WindowHandle, WindowHandle list, std::int32_t row, std::int32_t button, std::int32_t shift) {
  const HeldModifiers held(shift);
  PostPress(ToHwnd(list), InRow(list, row), button, shift);
  windows_.DoEvents();
}

void Win32Screen::DoubleClickRow(WindowHandle, WindowHandle list, std::int32_t row) {
  const POINT at = InRow(list, row);
  PostPress(ToHwnd(list), at, kLeftButton, 0);
  windows_.DoEvents();
  PostSecondPress(ToHwnd(list), at);
  windows_.DoEvents();
}

void Win32Screen::CheckRow(WindowHandle, WindowHandle list, std::int32_t row) {
  const POINT at = PointWhere(InRow(list, row), [list](const POINT& point) {
    LVHITTESTINFO hit = {};
    hit.pt = point;
    Send(list, LVM_SUBITEMHITTEST, 0, &hit);
    return (hit.flags & LVHT_ONITEM) == LVHT_ONITEMSTATEICON;
  });
  PostPress(ToHwnd(list), at, kLeftButton, 0);
  windows_.DoEvents();
}

void Win32Screen::ClickColumn(WindowHandle, WindowHandle list, std::int32_t column) {
  const auto header = reinterpret_cast<HWND>(Send(list, LVM_GETHEADER));
  RECT rect = {};
  ::SendMessageW(header, HDM_GETITEMRECT, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&rect));
  PostPress(header, {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2}, kLeftButton, 0);
  windows_.DoEvents();
}

void Win32Screen::DragColumn(WindowHandle, WindowHandle list, std::int32_t column, std::int32_t width) {
  const auto header = reinterpret_cast<HWND>(Send(list, LVM_GETHEADER));
  RECT rect = {};
  ::SendMessageW(header, HDM_GETITEMRECT, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&rect));
  const POINT from = {rect.right - 1, (rect.top + rect.bottom) / 2};
  const POINT to = {rect.left + ToPixels(width, kDesignDpi) - 1, from.y};
  PostMouse(header, WM_LBUTTONDOWN, from, MK_LBUTTON);
  PostMouse(header, WM_MOUSEMOVE, to, MK_LBUTTON);
  PostMouse(header, WM_LBUTTONUP, to, 0);
  windows_.DoEvents();
}

std::wstring Win32Screen::RowsOf(WindowHandle list) {
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

std::wstring Win32Screen::CellOf(WindowHandle list, std::int32_t row, std::int32_t column) {
  wchar_t text[kTextLength] = {};
  LVITEMW item = {};
  item.iSubItem = column;
  item.pszText = text;
  item.cchTextMax = kTextLength;
  Send(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), &item);
  return item.pszText;
}

std::int32_t Win32Screen::ColumnWidth(WindowHandle list, std::int32_t column) {
  return static_cast<std::int32_t>(Send(list, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column)));
}

std::wstring Win32Screen::ColumnText(WindowHandle list, std::int32_t column) {
  wchar_t text[kTextLength] = {};
  LVCOLUMNW shown = {};
  shown.mask = LVCF_TEXT;
  shown.pszText = text;
  shown.cchTextMax = kTextLength;
  Send(list, LVM_GETCOLUMNW, static_cast<WPARAM>(column), &shown);
  return text;
}

MouseEvent Win32Screen::PointOfRow(WindowHandle form, WindowHandle list, std::int32_t row) {
  const POINT at = InRow(list, row);
  return EventAt(form, at.x, at.y);
}

// --- trees

void Win32Screen::ClickNode(WindowHandle, WindowHandle tree, const std::wstring& text, std::int32_t button) {
  PostPress(ToHwnd(tree), InNode(tree, text), button, 0);
  windows_.DoEvents();
}

void Win32Screen::DoubleClickNode(WindowHandle, WindowHandle tree, const std::wstring& text) {
  const POINT at = InNode(tree, text);
  PostPress(ToHwnd(tree), at, kLeftButton, 0);
  windows_.DoEvents();
  PostSecondPress(ToHwnd(tree), at);
  windows_.DoEvents();
}

void Win32Screen::CheckNode(WindowHandle, WindowHandle tree, const std::wstring& text) {
  PostPress(ToHwnd(tree), PartOfNode(tree, text, TVHT_ONITEMSTATEICON), kLeftButton, 0);
  windows_.DoEvents();
}

void Win32Screen::ToggleNode(WindowHandle, WindowHandle tree, const std::wstring& text) {
  PostPress(ToHwnd(tree), PartOfNode(tree, text, TVHT_ONITEMBUTTON), kLeftButton, 0);
  windows_.DoEvents();
}

std::wstring Win32Screen::NodesOf(WindowHandle tree) {
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

MouseEvent Win32Screen::PointOfNode(WindowHandle form, WindowHandle tree, const std::wstring& text) {
  const POINT at = InNode(tree, text);
  return EventAt(form, at.x, at.y);
}

// --- both

MouseEvent Win32Screen::EventAt(WindowHandle form, std::int32_t x, std::int32_t y) {
  const auto dpi = scales_.find(form);
  const std::int32_t scale = dpi == scales_.end() ? kDesignDpi : dpi->second;
  return {0, 0, ToTwips(x, scale), ToTwips(y, scale)};
}

bool Win32Screen::EditsLabel(WindowHandle control) { return EditOf(control) != nullptr; }

void Win32Screen::TypeLabel(WindowHandle, WindowHandle control, const std::wstring& text) {
  const HWND edit = EditOf(control);
  ::SendMessageW(edit, EM_SETSEL, 0, -1);
  for (const wchar_t character : text) ::PostMessageW(edit, WM_CHAR, character, 1);
  windows_.DoEvents();
}

}  // namespace burrowmark

#endif
