#include "options/keyboard_hook.h"

#include "core/hot_keys.h"
#include "core/numbers.h"
#include "menu/menu_actions.h"

namespace burrowmark {
namespace {

constexpr std::uint32_t kFirstDigit = 48;  // virtual-key codes of the main row
constexpr std::uint32_t kLastDigit = 57;
constexpr int kKeyDownBit = 0x8000;

}  // namespace

std::wstring HotKeyText(std::int32_t KeyboardCode) {
  if (KeyboardCode < 0) return {};
  return L"Shift+Ctrl+" + DecimalText(KeyboardCode - static_cast<std::int32_t>(kFirstDigit));
}

void KeyboardHook::HookKeyboard() {
  if (IsHooked()) return;
  HookHandle_ = app_.platform.keyboard.SetWindowsHookExA(
      kHookKeyboardLowLevel, [this](std::int64_t message, const KeyRecord& key) { KeyboardProc(message, key); });
}

void KeyboardHook::UnhookKeyboard() {
  if (IsHooked()) app_.platform.keyboard.UnhookWindowsHookEx(HookHandle_);
  HookHandle_ = 0;
}

// Every key of the desktop passes here, so the digits are asked for first, a code that nobody has is none of ours, and
// the opening happens from the loop.
void KeyboardHook::KeyboardProc(std::int64_t message, const KeyRecord& key) {
  if (message != kMessageKeyDown || key.vkCode < kFirstDigit || key.vkCode > kLastDigit) return;
  Keyboard& keyboard = app_.platform.keyboard;
  if ((keyboard.GetKeyState(kKeyControl) & kKeyDownBit) == 0) return;
  if ((keyboard.GetKeyState(kKeyShift) & kKeyDownBit) == 0) return;
  const auto code = static_cast<std::int32_t>(key.vkCode);
  ItemRef holder;
  if (!FindHotKeyItem(app_, code, holder)) return;
  app_.platform.windows.Post([&app = app_, code] { OpenHotKeyItem(app, code); });
}

}  // namespace burrowmark
