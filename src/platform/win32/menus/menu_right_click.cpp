#include "platform/win32/menus/menu_right_click.h"

namespace burrowmark {
namespace {

LRESULT CALLBACK SeeInput(int code, WPARAM wParam, LPARAM lParam) {
  const auto* input = reinterpret_cast<const MSG*>(lParam);
  if (code == MSGF_MENU && input->message == WM_RBUTTONUP) {
    // The menu's owner, or a window of the menu's own that belongs to it.
    GUITHREADINFO thread = {};
    thread.cbSize = sizeof(thread);
    ::GetGUIThreadInfo(::GetCurrentThreadId(), &thread);
    const HWND owner = ::GetAncestor(thread.hwndMenuOwner, GA_ROOTOWNER);
    if (owner != nullptr) ::PostMessageW(owner, kMenuRightClick, 0, MAKELPARAM(input->pt.x, input->pt.y));
  }
  return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

RightClickWatch::RightClickWatch()
    : hook_(::SetWindowsHookExW(WH_MSGFILTER, SeeInput, nullptr, ::GetCurrentThreadId())) {}

RightClickWatch::~RightClickWatch() {
  if (hook_ != nullptr) ::UnhookWindowsHookEx(hook_);
}

std::optional<UINT> EntryAt(HMENU popup, POINT place) {
  const int position = ::MenuItemFromPoint(nullptr, popup, place);
  if (position < 0) return std::nullopt;
  return static_cast<UINT>(position);
}

}  // namespace burrowmark
