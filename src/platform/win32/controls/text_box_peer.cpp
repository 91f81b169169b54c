#include "platform/win32/controls/text_box_peer.h"

#include <commctrl.h>

namespace burrowmark {
namespace {

constexpr WPARAM kCtrlA = 1;

DWORD StyleOf(const TextBoxState& box) {
  const DWORD bar = box.ScrollBar() ? WS_VSCROLL : 0;
  const DWORD lines = box.MultiLine() ? ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN | bar : ES_AUTOHSCROLL;
  return lines | (box.ReadOnly() ? ES_READONLY : 0);
}

std::wstring TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(window)), L'\0');
  const int length = ::GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1);
  text.resize(static_cast<std::size_t>(length));
  return text;
}

TextSelection SelectionOf(HWND window) {
  DWORD start = 0;
  DWORD end = 0;
  ::SendMessageW(window, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  return {static_cast<std::int32_t>(start), static_cast<std::int32_t>(end - start)};
}

// No notification tells of the caret: it may be elsewhere after each of these.
bool MovesTheCaret(UINT message, WPARAM wParam) {
  switch (message) {
    case WM_KEYDOWN:
    case WM_CHAR:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
    case EM_SETSEL:
      return true;
    default:
      return message == WM_MOUSEMOVE && (wParam & MK_LBUTTON) != 0;
  }
}

}  // namespace

Win32TextBox::Win32TextBox(const ChildPlace& place, TextBoxState& box)
    : ChildPeer(WC_EDITW, L"", StyleOf(box), place, box, WS_EX_CLIENTEDGE), box_(box) {
  MaxLengthChanged();
  TextChanged();
}

void Win32TextBox::TextChanged() {
  showing_ = true;
  SetText(box_.Text());
  showing_ = false;
  SelectionChanged();
}

void Win32TextBox::SelectionChanged() {
  const TextSelection selection = box_.Selection();
  showing_ = true;
  ::SendMessageW(Handle(), EM_SETSEL, static_cast<WPARAM>(selection.start), selection.start + selection.length);
  ::SendMessageW(Handle(), EM_SCROLLCARET, 0, 0);
  showing_ = false;
}

void Win32TextBox::ReadOnlyChanged() { ::SendMessageW(Handle(), EM_SETREADONLY, box_.ReadOnly() ? TRUE : FALSE, 0); }

void Win32TextBox::MaxLengthChanged() {
  ::SendMessageW(Handle(), EM_LIMITTEXT, static_cast<WPARAM>(box_.MaxLength()), 0);
}

void Win32TextBox::Command(UINT notification) {
  if (notification == EN_CHANGE) Report();
}

void Win32TextBox::Report() {
  if (!showing_) box_.UserText(TextOf(Handle()), SelectionOf(Handle()));
}

std::optional<LRESULT> Win32TextBox::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_GETDLGCODE) return WantedKeys(reinterpret_cast<const MSG*>(lParam));
  if (message == WM_CHAR && wParam == kCtrlA) {
    ::SendMessageW(Handle(), EM_SETSEL, 0, -1);
    return 0;
  }
  if (!MovesTheCaret(message, wParam)) return std::nullopt;
  const LRESULT result = ::DefSubclassProc(Handle(), message, wParam, lParam);
  if (!IsRetired() && Handle() != nullptr && SelectionOf(Handle()) != box_.Selection()) Report();
  return result;
}

// The system's own answer for many lines keeps Tab and Esc too, and then closes the form.
LRESULT Win32TextBox::WantedKeys(const MSG* message) const {
  const bool enter = message != nullptr && message->wParam == VK_RETURN && box_.MultiLine() && !box_.ReadOnly();
  return DLGC_WANTCHARS | DLGC_WANTARROWS | DLGC_HASSETSEL | (enter ? DLGC_WANTMESSAGE : 0);
}

}  // namespace burrowmark
