#include "platform/win32/windows/tip_window.h"

#include <commctrl.h>

#include "platform/win32/windows/window_class.h"

namespace burrowmark {

TipWindow::~TipWindow() {
  if (::IsWindow(window_) != FALSE) ::DestroyWindow(window_);
}

void TipWindow::Show(HWND form, HWND control, const std::wstring& text) {
  if (window_ == nullptr && !text.empty()) {
    window_ = ::CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0,
                                0, 0, form, nullptr, WindowClass::Module(), nullptr);
  }
  if (::IsWindow(window_) == FALSE) return;
  std::wstring shown = text;
  TTTOOLINFOW tool = {};
  tool.cbSize = TTTOOLINFOW_V1_SIZE;  // which every version of the controls knows
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = form;
  tool.uId = reinterpret_cast<UINT_PTR>(control);
  tool.lpszText = shown.data();
  ::SendMessageW(window_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  if (!text.empty()) ::SendMessageW(window_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void TipWindow::SetLook(HFONT font, int width) const {
  if (::IsWindow(window_) == FALSE) return;
  ::SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
  ::SendMessageW(window_, TTM_SETMAXTIPWIDTH, 0, width);
}

}  // namespace burrowmark
