// The hook that sees every key.
#include "tests/contract/system_under_test.h"

namespace burrowmark {
namespace {

constexpr std::int32_t kF24 = 135;  // a key that no program minds

class KeyboardContract : public ContractTest {
 protected:
  ~KeyboardContract() override { keyboard_.UnhookWindowsHookEx(hook_); }
  KeyboardContract() = default;
  KeyboardContract(const KeyboardContract&) = delete;
  KeyboardContract& operator=(const KeyboardContract&) = delete;

  // How the keyboard was when the key went down.
  struct Seen {
    bool shift = false;
    bool control = false;
  };
  void Hook() {
    hook_ = keyboard_.SetWindowsHookExA(kHookKeyboardLowLevel, [this](std::int64_t message, const KeyRecord& key) {
      if (message != kMessageKeyDown || key.vkCode != static_cast<std::uint32_t>(kF24)) return;
      seen_.push_back({keyboard_.GetKeyState(kKeyShift) < 0, keyboard_.GetKeyState(kKeyControl) < 0});
    });
    ASSERT_NE(hook_, 0);
  }

  Keyboard& keyboard_ = platform_.keyboard;
  HookHandle hook_ = 0;
  std::vector<Seen> seen_;
};
INSTANTIATE_TEST_SUITE_P(Systems, KeyboardContract, ::testing::ValuesIn(Systems()), KindName);

TEST_P(KeyboardContract, ThereIsOneHookAtATimeUntilItIsTakenOff) {
  const auto nothing = [](std::int64_t, const KeyRecord&) {};
  EXPECT_EQ(keyboard_.SetWindowsHookExA(2, nothing), 0) << "the keys of one thread alone aren't offered";
  Hook();
  EXPECT_EQ(keyboard_.SetWindowsHookExA(kHookKeyboardLowLevel, nothing), 0);
  EXPECT_FALSE(keyboard_.UnhookWindowsHookEx(0));
  EXPECT_FALSE(keyboard_.UnhookWindowsHookEx(hook_ + 1));
  EXPECT_TRUE(keyboard_.UnhookWindowsHookEx(hook_));
  EXPECT_FALSE(keyboard_.UnhookWindowsHookEx(hook_));
  Hook();
}

TEST_P(KeyboardContract, EveryKeyArrivesWithTheStateOfTheModifiers) {
  if (!system_->TakesKeys()) GTEST_SKIP() << "there is no desktop that takes keys";
  Hook();
  system_->PressKeys({kF24});
  system_->PressKeys({kKeyControl, kF24});
  system_->PressKeys({kKeyShift, kF24});
  system_->PressKeys({kKeyControl, kKeyShift, kF24});
  ASSERT_EQ(seen_.size(), 4U);
  for (std::size_t i = 0; i < seen_.size(); ++i) {
    EXPECT_EQ(seen_[i].control, i % 2 == 1) << i;
    EXPECT_EQ(seen_[i].shift, i >= 2) << i;
  }
  EXPECT_GE(keyboard_.GetKeyState(kKeyShift), 0);
  EXPECT_GE(keyboard_.GetKeyState(kKeyControl), 0);
}

TEST_P(KeyboardContract, NothingArrivesOnceTheHookIsOff) {
  if (!system_->TakesKeys()) GTEST_SKIP() << "there is no desktop that takes keys";
  Hook();
  system_->PressKeys({kF24});
  ASSERT_TRUE(keyboard_.UnhookWindowsHookEx(hook_));
  system_->PressKeys({kF24});
  EXPECT_EQ(seen_.size(), 1U);
}

TEST_P(KeyboardContract, AHookMayTakeItselfOff) {
  if (!system_->TakesKeys()) GTEST_SKIP() << "there is no desktop that takes keys";
  int calls = 0;
  hook_ = keyboard_.SetWindowsHookExA(kHookKeyboardLowLevel, [this, &calls](std::int64_t, const KeyRecord&) {
    EXPECT_TRUE(keyboard_.UnhookWindowsHookEx(hook_));
    ++calls;  // what the procedure holds is still there
  });
  ASSERT_NE(hook_, 0);
  system_->PressKeys({kF24});
  EXPECT_EQ(calls, 1);
}

}  // namespace
}  // namespace burrowmark
