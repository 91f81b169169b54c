#include "core/settings.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "core/registry.h"
#include "core/registry_keys.h"
#include "platform/characters.h"
#include "tests/support/scratch_machine.h"

namespace burrowmark {
namespace {

class Settings : public testing::Test {
 protected:
  test::ScratchMachine scratch_;
  Application& app_ = scratch_.app;
  clsRegHandler registry_{scratch_.machine.registry};
};

TEST_F(Settings, AFirstStartHasGeneralAndAppearanceOnAndAdvancedOff) {
  app_.GC[0] = app_.AC[6] = false;
  app_.ADVC[7] = true;
  LoadSettings(app_);
  EXPECT_EQ(std::count(app_.GC.begin(), app_.GC.end(), true), 3);
  EXPECT_EQ(std::count(app_.AC.begin(), app_.AC.end(), true), 7);
  EXPECT_EQ(std::count(app_.ADVC.begin(), app_.ADVC.end(), true), 0);
}

TEST_F(Settings, WhatIsSavedIsLoadedAndStoredAsNumbers) {
  app_.AppCommand = L"\"C:\\x\\burrowmark.exe\"";
  for (const bool on : {true, false}) {
    app_.GC = {on, !on, on};
    app_.AC[6] = on;
    app_.ADVC[0] = app_.ADVC[7] = on;
    SaveSettings(app_);
    EXPECT_EQ(scratch_.Registered(kSettingsKey, L"GC0") + scratch_.Registered(kSettingsKey, L"GC1"),
              on ? L"-10" : L"0-1");
    EXPECT_EQ(scratch_.Registered(kRunKey, L"Burrowmark"), on ? app_.AppCommand : L"");
    for (const bool noHook : {false, true}) {
      Application other(scratch_.machine.platform());
      other.Os.NoLowLevelHook = noHook;
      LoadSettings(other);
      EXPECT_EQ(other.GC, app_.GC);
      EXPECT_EQ(other.AC, app_.AC);
      EXPECT_EQ(other.ADVC[0], on);
      EXPECT_EQ(other.ADVC[7], on && !noHook);  // a system without the hook has no hot keys
    }
  }
}

TEST_F(Settings, OddTextsAreReadAsTheyMayStand) {
  const std::pair<const wchar_t*, bool> cases[] = {{L" -1 ", true}, {L"1", true}, {L"False", false},
                                                   {L"0", false},   {L"", true},  {L"nonsense", true}};
  for (const auto& [text, value] : cases) {
    registry_.SetKeyValue(RegistryKey::kCurrentUser, kSettingsKey, L"AC2", text);
    LoadSettings(app_);
    EXPECT_EQ(app_.AC[2], value) << ToUtf8(text);
  }
  registry_.SaveKeyValueDWord(RegistryKey::kCurrentUser, kSettingsKey, L"AC2", 0);
  LoadSettings(app_);
  EXPECT_FALSE(app_.AC[2]);
}

}  // namespace
}  // namespace burrowmark
