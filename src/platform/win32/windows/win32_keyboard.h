// Keys of the real system's desktop.
#pragma once

#include <memory>

#include "platform/keyboard.h"

namespace burrowmark {

class Win32Keyboard final : public Keyboard {
 public:
  Win32Keyboard();
  ~Win32Keyboard() override;
  Win32Keyboard(const Win32Keyboard&) = delete;
  Win32Keyboard& operator=(const Win32Keyboard&) = delete;

  HookHandle SetWindowsHookExA(std::int32_t kind,
                               std::function<void(std::int64_t message, const KeyRecord& key)> procedure) override;
  bool UnhookWindowsHookEx(HookHandle hook) override;
  std::int16_t GetKeyState(std::int32_t key) override;

 private:
  class HookThread;

  std::unique_ptr<HookThread> thread_;  // none without a hook
};

}  // namespace burrowmark
