#include "platform/win32/windows/mouse_message.h"

#include <windowsx.h>

#include "platform/key_codes.h"

namespace burrowmark {
namespace {

std::int32_t HeldButtons(WPARAM wParam) {
  const auto bit = [wParam](WPARAM flag, std::int32_t button) { return (wParam & flag) != 0 ? button : 0; };
  return bit(MK_LBUTTON, kLeftButton) | bit(MK_RBUTTON, kRightButton) | bit(MK_MBUTTON, kMiddleButton);
}

}  // namespace

std::int32_t HeldKeys() {
  const auto mask = [](int key, std::int32_t bit) { return ::GetKeyState(key) < 0 ? bit : 0; };
  return mask(VK_SHIFT, kShiftMask) | mask(VK_CONTROL, kCtrlMask) | mask(VK_MENU, kAltMask);
}

std::optional<MouseMessage> DecodeMouse(UINT message, WPARAM wParam, LPARAM lParam, std::int32_t dpi) {
  MouseMessage mouse;
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      mouse = {MouseAction::kDown, {kLeftButton}};
      break;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
      mouse = {MouseAction::kDown, {kRightButton}};
      break;
    case WM_LBUTTONUP:
      mouse = {MouseAction::kUp, {kLeftButton}};
      break;
    case WM_RBUTTONUP:
      mouse = {MouseAction::kUp, {kRightButton}};
      break;
    case WM_MOUSEMOVE:
      mouse = {MouseAction::kMove, {HeldButtons(wParam)}};
      break;
    default:
      return std::nullopt;
  }
  mouse.event.shift = HeldKeys();
  mouse.event.x = ToTwips(GET_X_LPARAM(lParam), dpi);
  mouse.event.y = ToTwips(GET_Y_LPARAM(lParam), dpi);
  return mouse;
}

}  // namespace burrowmark
