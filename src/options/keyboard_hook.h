// Hot keys: Shift+Ctrl+digit opens items wherever the input focus is.
#pragma once

#include <cstdint>
#include <set>

#include "core/application.h"

namespace burrowmark {

// Watches the keys of the whole desktop while it is installed. A key is never swallowed.
class KeyboardHook {
 public:
  explicit KeyboardHook(Application& app) : app_(app) {}
  ~KeyboardHook() { UnhookKeyboard(); }
  KeyboardHook(const KeyboardHook&) = delete;
  KeyboardHook& operator=(const KeyboardHook&) = delete;

  // Where the system refuses the hook, hot keys just don't work.
  void HookKeyboard();
  void UnhookKeyboard();
  bool IsHooked() const { return HookHandle_ != 0; }

 private:
  void KeyboardProc(std::int64_t message, const KeyRecord& key);
  void HotKeyPressed(std::int32_t code);

  Application& app_;
  HookHandle HookHandle_ = 0;
  std::set<std::int32_t> pending_;  // codes that wait to be opened, or are
};

}  // namespace burrowmark
