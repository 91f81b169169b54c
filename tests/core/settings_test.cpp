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
  std::wstring Stored(const wchar_t* key, const std::wstring& name) {
    std::wstring text;
    return registry_.GetKeyValue(RegistryKey::kCurrentUser, key, name, text) ? text : L"(none)";
  }

  test::ScratchMachine scratch_;
  Application& app_ = scratch_.app;
  clsRegHandler registry_{scratch_.machine.registry};
};

TEST_F(Settings, AFirstStartHasGeneralAndAppearanceOnAndAdvancedOff) {
  app_.GC.fill(false);
  app_.AC.fill(false);
  app_.ADVC.fill(true);
  LoadSettings(app_);
  EXPECT_EQ(app_.GC, (std::array<bool, 3>{true, true, true}));
  EXPECT_EQ(std::count(app_.AC.begin(), app_.AC.end(), true), 7);
  EXPECT_EQ(std::count(app_.ADVC.begin(), app_.ADVC.end(), true), 0);
}

TEST_F(Settings, WhatIsSavedIsLoadedAndStoredAsNumbers) {
  app_.GC = {false, true, false};
  app_.AC[6] = false;
  app_.ADVC[7] = true;
  SaveSettings(app_);
  EXPECT_EQ(Stored(kSettingsKey, L"GC0"), L"0");
  EXPECT_EQ(Stored(kSettingsKey, L"GC1"), L"-1");
  Application other(scratch_.machine.platform());
  other.Os.NoLowLevelHook = false;
  LoadSettings(other);
  EXPECT_EQ(other.GC, app_.GC);
  EXPECT_EQ(other.AC, app_.AC);
  EXPECT_EQ(other.ADVC, app_.ADVC);
  other.Os.NoLowLevelHook = true;
  LoadSettings(other);
  EXPECT_FALSE(other.ADVC[7]);  // a system without the hook has no hot keys
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

TEST_F(Settings, StartWithTheSessionComesAndGoes) {
  app_.AppCommand = L"\"C:\\x\\burrowmark.exe\"";
  app_.ADVC[0] = true;
  SaveSettings(app_);
  EXPECT_EQ(Stored(kRunKey, L"Burrowmark"), app_.AppCommand);
  app_.ADVC[0] = false;
  SaveSettings(app_);
  EXPECT_EQ(Stored(kRunKey, L"Burrowmark"), L"(none)");
}

}  // namespace
}  // namespace burrowmark
