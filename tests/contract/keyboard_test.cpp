// The hook that sees every key.
#include <chrono>
#include <thread>

#include "tests/contract/system_under_test.h"

namespace burrowmark {
namespace {

constexpr std::int32_t kF24 = 135;  // a key that no program minds
constexpr int kPatience = 300;

class KeyboardContract : public ContractTest {
 protected:
  ~KeyboardContract() override { keyboard_.UnhookWindowsHookEx(hook_); }
  KeyboardContract() = default;
  KeyboardContract(const KeyboardContract&) = delete;
  KeyboardContract& operator=(const KeyboardContract&) = delete;

  // Notes each press of the key with the modifiers that are down, from the loop.
  void Hook() {
    hook_ = keyboard_.SetWindowsHookExA(kHookKeyboardLowLevel, [this](std::int64_t message, const KeyRecord& key) {
      if (message != kMessageKeyDown || key.vkCode != static_cast<std::uint32_t>(kF24)) return;
      std::string keys = keyboard_.GetKeyState(kKeyShift) < 0 ? "shift " : "";
      if (keyboard_.GetKeyState(kKeyControl) < 0) keys += "ctrl ";
      platform_.windows.Post([this, keys] { seen_ += keys + "F24, "; });
    });
    ASSERT_NE(hook_, 0);
  }

  Keyboard& keyboard_ = platform_.keyboard;
  HookHandle hook_ = 0;
  std::string seen_;
};

TEST_F(KeyboardContract, ThereIsOneHookAtATimeUntilItIsTakenOff) {
  Hook();
  EXPECT_EQ(keyboard_.SetWindowsHookExA(kHookKeyboardLowLevel, [](std::int64_t, const KeyRecord&) {}), 0);
  EXPECT_FALSE(keyboard_.UnhookWindowsHookEx(hook_ + 1));
  EXPECT_TRUE(keyboard_.UnhookWindowsHookEx(hook_));
  EXPECT_FALSE(keyboard_.UnhookWindowsHookEx(hook_));
  Hook();
}

TEST_F(KeyboardContract, EveryKeyArrivesWithTheStateOfTheModifiersUntilTheHookIsOff) {
  if (!system_->TakesKeys()) GTEST_SKIP() << "there is no desktop that takes keys";
  Hook();
  for (const std::vector<std::int32_t>& keys : std::vector<std::vector<std::int32_t>>{
           {kF24}, {kKeyControl, kF24}, {kKeyShift, kF24}, {kKeyControl, kKeyShift, kF24}}) {
    const std::string before = seen_;
    system_->PressKeys(keys);
    for (int i = 0; i < kPatience && seen_ == before; ++i) {
      std::this_thread::sleep_for(std::chrono::milliseconds(i == 0 ? 0 : 10));
      platform_.windows.DoEvents();
    }
  }
  EXPECT_TRUE(keyboard_.UnhookWindowsHookEx(hook_));
  system_->PressKeys({kF24});
  platform_.windows.DoEvents();
  EXPECT_EQ(seen_, "F24, ctrl F24, shift F24, shift ctrl F24, ");
}

}  // namespace
}  // namespace burrowmark
