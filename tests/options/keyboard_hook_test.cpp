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
    RefreshHotKeys(scene_.app, scene_.app.MainDocument.Store);
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
  EXPECT_EQ(machine_.keyboard.Received.size(), 12U);  // down and up of each key
}

TEST_F(HotKeys, EveryOtherChordDoesNothing) {
  hook_.HookKeyboard();
  for (const auto key : {kKeyControl, kKeyShift}) machine_.keyboard.Press(53, {key});
  // Nobody's digit, that of the numeric pad, and the keys beside the digits.
  for (const int code : {54, 0x65, 47, 58}) machine_.keyboard.Press(code, {kKeyShift, kKeyControl});
  EXPECT_EQ(Opened(), L"");
  // Held down, the system repeats it; what comes before it is opened is the same press.
  for (const int code : {kKeyShift, kKeyControl, 48, 48}) machine_.keyboard.Down(code);
  EXPECT_EQ(Opened(), L"C:\\b;");
  machine_.keyboard.Down(48);
  EXPECT_EQ(Opened(), L"C:\\b;");
}

TEST_F(HotKeys, TheHookComesAndGoes) {
  hook_.HookKeyboard();
  hook_.HookKeyboard();
  EXPECT_EQ(machine_.keyboard.LiveHooks(), 1U);
  hook_.UnhookKeyboard();
  EXPECT_EQ(machine_.keyboard.LiveHooks(), 0U);
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
