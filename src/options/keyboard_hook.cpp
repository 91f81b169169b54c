#include "options/keyboard_hook.h"

#include "core/failure.h"
#include "core/hot_keys.h"
#include "menu/menu_actions.h"

namespace burrowmark {
namespace {

constexpr int kKeyDownBit = 0x8000;

}  // namespace

void KeyboardHook::HookKeyboard() {
  if (IsHooked()) return;
  HookHandle_ = app_.platform.keyboard.SetWindowsHookExA(
      kHookKeyboardLowLevel, [this](std::int64_t message, const KeyRecord& key) { KeyboardProc(message, key); });
}

void KeyboardHook::UnhookKeyboard() {
  if (IsHooked()) app_.platform.keyboard.UnhookWindowsHookEx(HookHandle_);
  HookHandle_ = 0;
}

// Every key of the desktop passes here, on a thread of its own, so the digits are asked for first. Whose code it is, is
// looked up in the loop.
void KeyboardHook::KeyboardProc(std::int64_t message, const KeyRecord& key) {
  const auto code = static_cast<std::int32_t>(key.vkCode);
  if (message != kMessageKeyDown || code < kFirstHotKey || code > kLastHotKey) return;
  Keyboard& keyboard = app_.platform.keyboard;
  if ((keyboard.GetKeyState(kKeyControl) & kKeyDownBit) == 0) return;
  if ((keyboard.GetKeyState(kKeyShift) & kKeyDownBit) == 0) return;
  app_.platform.windows.Post([this, code] { HotKeyPressed(code); });
}

// The same key waits once, however often it is pressed, and what is pressed while it is opened counts as that press: a
// key that is held down repeats, and a server may take its time.
void KeyboardHook::HotKeyPressed(std::int32_t code) {
  ItemRef holder;
  if (!FindHotKeyItem(app_, code, holder) || !pending_.insert(code).second) return;
  app_.Requests.AddPrompt([this, code] {
    Skip([&] { OpenHotKeyItem(app_, code); });
    app_.platform.windows.Post([this, code] { pending_.erase(code); });
  });
}

}  // namespace burrowmark
