// The keyboard of the local machine.
#include "tests/platform/local_test.h"

namespace burrowmark {
namespace {

constexpr std::int32_t kFive = 53;

class LocalKeyboardTest : public LocalTest {
 protected:
  void Hook() {
    hook_ = keyboard_.SetWindowsHookExA(kHookKeyboardLowLevel, [this](std::int64_t message, const KeyRecord& key) {
      seen_.emplace_back(message, key.vkCode);
    });
  }

  LocalKeyboard& keyboard_ = machine_.keyboard;
  HookHandle hook_ = 0;
  std::vector<std::pair<std::int64_t, std::uint32_t>> seen_;
};

TEST_F(LocalKeyboardTest, TheHookAndTheForegroundGetEveryEvent) {
  Hook();
  keyboard_.Press(kFive, {kKeyControl, kKeyShift});
  const std::vector<std::pair<std::int64_t, std::uint32_t>> expected = {{kMessageKeyDown, 162}, {kMessageKeyDown, 160},
                                                                        {kMessageKeyDown, 53},  {kMessageKeyUp, 53},
                                                                        {kMessageKeyUp, 162},   {kMessageKeyUp, 160}};
  EXPECT_EQ(seen_, expected);
  ASSERT_EQ(keyboard_.Received.size(), 6U);
  EXPECT_EQ(keyboard_.Received[2].message, kMessageKeyDown);
  EXPECT_EQ(keyboard_.Received[2].vkCode, 53U);
  EXPECT_EQ(keyboard_.Received[0].vkCode, 17U);
}

TEST_F(LocalKeyboardTest, AltAloneMakesASystemKey) {
  Hook();
  keyboard_.Press(kFive, {kKeyAlt});
  EXPECT_EQ(seen_.at(1).first, kMessageSysKeyDown);
  EXPECT_EQ(seen_.at(2).first, kMessageSysKeyUp);
  keyboard_.Press(kFive, {kKeyAlt, kKeyControl});
  EXPECT_EQ(seen_.at(6).first, kMessageKeyDown) << "with Ctrl it is no system key";
}

TEST_F(LocalKeyboardTest, AKeyIsDownBetweenItsEvents) {
  EXPECT_GE(keyboard_.GetKeyState(kKeyShift), 0);
  keyboard_.Down(kKeyShift);
  EXPECT_LT(keyboard_.GetKeyState(kKeyShift), 0);
  EXPECT_GE(keyboard_.GetKeyState(kKeyControl), 0);
  keyboard_.Up(kKeyShift);
  EXPECT_GE(keyboard_.GetKeyState(kKeyShift), 0);
}

TEST_F(LocalKeyboardTest, ASystemMayBeWithoutTheHook) {
  keyboard_.HasLowLevelHook = false;
  Hook();
  EXPECT_EQ(hook_, 0);
  EXPECT_EQ(keyboard_.LiveHooks(), 0U);
  keyboard_.Press(kFive);
  EXPECT_EQ(keyboard_.Received.size(), 2U);
}

TEST_F(LocalKeyboardTest, TheCallsCanBeMadeToFail) {
  machine_.uiFaults.FailCall(1);
  Hook();
  EXPECT_EQ(hook_, 0);
  Hook();
  EXPECT_EQ(keyboard_.LiveHooks(), 1U);
  machine_.uiFaults.FailCall(1);
  EXPECT_FALSE(keyboard_.UnhookWindowsHookEx(hook_));
  EXPECT_EQ(keyboard_.LiveHooks(), 1U);
  EXPECT_TRUE(keyboard_.UnhookWindowsHookEx(hook_));
  EXPECT_EQ(keyboard_.LiveHooks(), 0U);
  keyboard_.Press(kFive);
  EXPECT_TRUE(seen_.empty());
}

}  // namespace
}  // namespace burrowmark
