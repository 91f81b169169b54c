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
  // same. `message` tells what the event is. 0 where the system has no such hook. There is one hook at a time.
  //
  // The procedure runs on a thread of the hook's own, so that the desktop, which waits for it, never waits for a thread
  // of the program. It must be quick, may ask GetKeyState and post work to the loop, and touches nothing else.
  virtual HookHandle SetWindowsHookExA(std::int32_t kind,
                                       std::function<void(std::int64_t message, const KeyRecord& key)> procedure) = 0;
  // Not from the procedure. After this the procedure doesn't run any more.
  virtual bool UnhookWindowsHookEx(HookHandle hook) = 0;
  // As the keyboard is now, whoever has its input; from any thread. The sign bit (0x8000) of the result says that the
  // key is down.
  virtual std::int16_t GetKeyState(std::int32_t key) = 0;
};

}  // namespace burrowmark
