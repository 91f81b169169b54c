#include "platform/win32/win32_keyboard.h"

#include <utility>

#include "platform/from_system.h"

namespace burrowmark {
namespace {

static_assert(kHookKeyboardLowLevel == WH_KEYBOARD_LL && kMessageKeyDown == WM_KEYDOWN);
static_assert(kKeyShift == VK_SHIFT && kKeyControl == VK_CONTROL);

using Procedure = std::function<void(std::int64_t message, const KeyRecord& key)>;

// The system calls a hook without telling it whose it is; it calls it on the thread that installed it.
std::shared_ptr<const Procedure>& HookOfThread() {
  thread_local std::shared_ptr<const Procedure> procedure;
  return procedure;
}

LRESULT CALLBACK HookProcedure(int code, WPARAM message, LPARAM details) {
  if (code == HC_ACTION) {
    FromSystem(
        [message, details] {
          const std::shared_ptr<const Procedure> procedure = HookOfThread();  // it may take itself off
          const auto* event = reinterpret_cast<const KBDLLHOOKSTRUCT*>(details);
          const KeyRecord key = {event->vkCode, event->scanCode, event->flags, event->time};
          if (procedure != nullptr) (*procedure)(static_cast<std::int64_t>(message), key);
          return true;
        },
        false);
  }
  return ::CallNextHookEx(nullptr, code, message, details);  // the key goes on in every case
}

HookHandle FromHhook(HHOOK hook) { return reinterpret_cast<INT_PTR>(hook); }

}  // namespace

Win32Keyboard::~Win32Keyboard() { Win32Keyboard::UnhookWindowsHookEx(FromHhook(hook_)); }

HookHandle Win32Keyboard::SetWindowsHookExA(std::int32_t kind, Procedure procedure) {
  if (kind != kHookKeyboardLowLevel || HookOfThread() != nullptr) return 0;
  HookOfThread() = std::make_shared<const Procedure>(std::move(procedure));
  hook_ = ::SetWindowsHookExW(kind, HookProcedure, ::GetModuleHandleW(nullptr), 0);
  if (hook_ == nullptr) HookOfThread().reset();
  return FromHhook(hook_);
}

bool Win32Keyboard::UnhookWindowsHookEx(HookHandle hook) {
  if (hook == 0 || hook != FromHhook(hook_)) return false;
  const bool worked = ::UnhookWindowsHookEx(hook_) != FALSE;
  hook_ = nullptr;
  HookOfThread().reset();
  return worked;
}

std::int16_t Win32Keyboard::GetKeyState(std::int32_t key) {
  // The system's call of this name tells what the keys were at the last message that this thread took off its queue.
  // A program in the background gets none of the keyboard, so in its hook the modifiers would never be seen down.
  constexpr unsigned kIsDown = 0x8000;
  const auto state = static_cast<std::uint16_t>(::GetAsyncKeyState(key));
  return static_cast<std::int16_t>(static_cast<std::uint16_t>(state & kIsDown));
}

}  // namespace burrowmark
