// Keys that are pressed anywhere on the desktop.
#pragma once

#include <cstdint>
#include <functional>

namespace burrowmark {

inline constexpr std::int32_t kHookKeyboardLowLevel = 13;  // winuser.h
inline constexpr std::int64_t kMessageKeyDown = 256;
inline constexpr std::int32_t kKeyShift = 16;
inline constexpr std::int32_t kKeyControl = 17;

// What the system tells of a key (KBDLLHOOKSTRUCT).
struct KeyRecord {
  std::uint32_t vkCode = 0;
  std::uint32_t scanCode = 0;
  std::uint32_t flags = 0;
  std::uint32_t time = 0;
};

// A hook's handle; 0 is none.
using HookHandle = std::int64_t;

class Keyboard {
 public:
  virtual ~Keyboard() = default;

  // Calls `procedure` for every key event of the desktop ahead of the program that it is for, which gets it all the
  // same. `message` tells what the event is. 0 where the system has no such hook. The procedure must be quick: the
  // whole desktop waits for it. There is one hook at a time.
  virtual HookHandle SetWindowsHookExA(std::int32_t kind,
                                       std::function<void(std::int64_t message, const KeyRecord& key)> procedure) = 0;
  virtual bool UnhookWindowsHookEx(HookHandle hook) = 0;
  // The sign bit (0x8000) of the result says that the key is down.
  virtual std::int16_t GetKeyState(std::int32_t key) = 0;
};

}  // namespace burrowmark
