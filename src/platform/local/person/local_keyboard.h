// The keyboard of the local machine.
#pragma once

#include <initializer_list>
#include <set>
#include <vector>

#include "platform/keyboard.h"
#include "platform/local/faults.h"

namespace burrowmark {

inline constexpr std::int32_t kKeyAlt = 18;
inline constexpr std::int64_t kMessageKeyUp = 257;
inline constexpr std::int64_t kMessageSysKeyDown = 260;
inline constexpr std::int64_t kMessageSysKeyUp = 261;

// A key event as the program in the foreground gets it.
struct ReceivedKey {
  std::int64_t message = 0;
  std::uint32_t vkCode = 0;
};

class LocalKeyboard final : public Keyboard {
 public:
  explicit LocalKeyboard(Faults& faults) : faults_(faults) {}

  // A system without the hook.
  bool HasLowLevelHook = true;
  // What went on to the program in the foreground, in order.
  std::vector<ReceivedKey> Received;

  // Each event goes to the hook first, as on the real system: with the code of the left one of two keys, before the
  // state of the key changes, and as a system key while Alt is down without Ctrl.
  void Down(std::int32_t key);
  void Up(std::int32_t key);
  // Holds the modifiers, presses the key once, and lets go of all.
  void Press(std::int32_t key, std::initializer_list<std::int32_t> modifiers = {});
  // How many hooks are installed now.
  std::size_t LiveHooks() const { return hook_ == 0 ? 0 : 1; }

  HookHandle SetWindowsHookExA(std::int32_t kind,
                               std::function<void(std::int64_t message, const KeyRecord& key)> procedure) override;
  bool UnhookWindowsHookEx(HookHandle hook) override;
  std::int16_t GetKeyState(std::int32_t key) override;

 private:
  void Send(std::int64_t message, std::int64_t systemMessage, std::int32_t key);

  Faults& faults_;
  HookHandle hook_ = 0;
  HookHandle lastHook_ = 0x20100;
  std::uint32_t time_ = 0;
  std::function<void(std::int64_t message, const KeyRecord& key)> procedure_;
  std::set<std::int32_t> down_;
};

}  // namespace burrowmark
