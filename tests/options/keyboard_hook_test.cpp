#include "options/keyboard_hook.h"

#include <gtest/gtest.h>

#include "core/hot_keys.h"
#include "tests/support/menu_scene.h"

namespace burrowmark {
namespace {

class HotKeys : public testing::Test {
 protected:
  HotKeys() {
    scene_.AddPersonal();
    scene_.AddShortcut(L"a", L"A", L"C:\\a")->KeyboardCode = 53;
    scene_.AddShortcut(L"b", L"B", L"C:\\b")->KeyboardCode = 48;
    scene_.AddShortcut(L"c", L"C", L"C:\\c")->KeyboardCode = 53;
    scene_.Start();
    RefreshHotKeys(scene_.app, *scene_.app.MainStore);
  }
  std::wstring Opened() {
    machine_.windows.DoEvents();
    std::wstring text;
    for (const Launch& launch : machine_.shell.Launches) text += launch.parameters + L";";
    machine_.shell.Launches.clear();
    return text;
  }

  test::MenuScene scene_;
  LocalMachine& machine_ = scene_.machine;
  KeyboardHook hook_{scene_.app};
};

TEST_F(HotKeys, ShiftAndCtrlWithADigitOpenAndTheKeyGoesOn) {
  hook_.HookKeyboard();
  machine_.keyboard.Press(53, {kKeyShift, kKeyControl});
  EXPECT_TRUE(machine_.shell.Launches.empty());  // from the loop, not from the hook
  EXPECT_EQ(Opened(), L"C:\\a;C:\\c;");
  machine_.keyboard.Press(48, {kKeyControl, kKeyShift});
  EXPECT_EQ(Opened(), L"C:\\b;");
  const auto received = std::count_if(machine_.keyboard.Received.begin(), machine_.keyboard.Received.end(),
                                      [](const ReceivedKey& key) { return key.vkCode == 53; });
  EXPECT_EQ(received, 2);  // down and up
}

TEST_F(HotKeys, EveryOtherChordDoesNothing) {
  hook_.HookKeyboard();
  machine_.keyboard.Press(53, {kKeyControl});
  machine_.keyboard.Press(53, {kKeyShift});
  machine_.keyboard.Press(54, {kKeyShift, kKeyControl});    // nobody's
  machine_.keyboard.Press(0x65, {kKeyShift, kKeyControl});  // the numeric pad
  machine_.keyboard.Press(47, {kKeyShift, kKeyControl});
  machine_.keyboard.Press(58, {kKeyShift, kKeyControl});
  EXPECT_EQ(Opened(), L"");
  machine_.keyboard.Down(kKeyShift);
  machine_.keyboard.Down(kKeyControl);
  machine_.keyboard.Down(48);
  machine_.keyboard.Down(48);  // held: the system repeats it
  EXPECT_EQ(Opened(), L"C:\\b;C:\\b;");
}

TEST_F(HotKeys, TheHookComesAndGoes) {
  hook_.HookKeyboard();
  hook_.HookKeyboard();
  EXPECT_EQ(machine_.keyboard.LiveHooks(), 1U);
  hook_.UnhookKeyboard();
  EXPECT_EQ(machine_.keyboard.LiveHooks(), 0U);
  machine_.keyboard.Press(53, {kKeyShift, kKeyControl});
  EXPECT_EQ(Opened(), L"");
  machine_.keyboard.HasLowLevelHook = false;
  hook_.HookKeyboard();
  EXPECT_FALSE(hook_.IsHooked());
}

TEST_F(HotKeys, CodesHaveTexts) {
  EXPECT_EQ(HotKeyText(48), L"Shift+Ctrl+0");
  EXPECT_EQ(HotKeyText(57), L"Shift+Ctrl+9");
  EXPECT_EQ(HotKeyText(-1), L"");
}

}  // namespace
}  // namespace burrowmark
