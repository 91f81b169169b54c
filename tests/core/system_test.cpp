// What the program asks of the system through small services: registry values and settings, files, saving.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "core/hot_keys.h"
#include "core/os_detection.h"
#include "core/registry.h"
#include "core/registry_keys.h"
#include "core/save_file.h"
#include "core/services.h"
#include "core/settings.h"
#include "platform/characters.h"
#include "tests/support/scratch_machine.h"

namespace burrowmark {
namespace {

constexpr RegistryKey kUser = RegistryKey::kCurrentUser;

class System : public testing::Test {
 protected:
  test::ScratchMachine scratch_;
  LocalMachine& machine_ = scratch_.machine;
  Application& app_ = scratch_.app;
  clsRegHandler registry_{machine_.registry};
};

TEST_F(System, RegistryTextsComeBackAndMissingOnesAreEmpty) {
  std::wstring text = L"old";
  EXPECT_FALSE(registry_.GetKeyValue(kUser, L"Software\\None", L"x", text));
  EXPECT_EQ(text, L"");
  // More than 1,024 characters with the end aren't read.
  for (const std::wstring& value : {std::wstring(L"a \x20AC"), std::wstring(1023, L'x'), std::wstring(1024, L'x')}) {
    EXPECT_TRUE(registry_.SetKeyValue(kUser, L"Software\\New\\Deep", L"x", value));
    EXPECT_EQ(registry_.GetKeyValue(kUser, L"software\\new\\deep", L"X", text), value.size() < 1024);
    EXPECT_EQ(text, value.size() < 1024 ? value : L"");
  }
  EXPECT_EQ(machine_.registry.OpenKeys(), 0U);
}

TEST_F(System, RegistryNumbersReadAsNumbersAndAsHexadecimalText) {
  // The bytes from the last to the first, unpadded, a last byte of zero left out.
  for (const auto& [value, expected] : {std::pair{5, L"&h005"}, {0x0102, L"&h012"}, {-1, L"&hFFFFFFFF"}}) {
    std::wstring text;
    std::int32_t number = 99;
    EXPECT_TRUE(registry_.SaveKeyValueDWord(kUser, L"K", L"n", value));
    EXPECT_TRUE(registry_.GetKeyValue(kUser, L"K", L"n", text));
    EXPECT_TRUE(registry_.GetKeyValueDWord(kUser, L"K", L"n", number));
    EXPECT_EQ(text, expected);
    EXPECT_EQ(number, value);
  }
}

TEST_F(System, ARefusedKeyIsReadAllTheSameAndClassesGoToTheUser) {
  std::wstring text;
  registry_.SetKeyValue(RegistryKey::kLocalMachine, L"Software\\X", L"v", L"1");
  machine_.faults.RefusedKeys.insert(L"HKEY_LOCAL_MACHINE\\SOFTWARE");
  EXPECT_TRUE(registry_.GetKeyValue(RegistryKey::kLocalMachine, L"Software\\X", L"v", text));
  EXPECT_EQ(text, L"1");
  EXPECT_FALSE(registry_.SetKeyValue(RegistryKey::kLocalMachine, L"Software\\X", L"v", L"2"));

  machine_.faults.RefusedKeys.insert(L"HKEY_CLASSES_ROOT");
  EXPECT_TRUE(registry_.SetKeyValue(RegistryKey::kClassesRoot, L"Folder\\shell", L"v", L"3"));
  EXPECT_TRUE(registry_.GetKeyValue(kUser, L"Software\\Classes\\Folder\\shell", L"v", text));
  EXPECT_EQ(text, L"3");
  EXPECT_TRUE(registry_.DeleteKey(RegistryKey::kClassesRoot, L"Folder", L"shell"));
  EXPECT_FALSE(registry_.GetKeyValue(kUser, L"Software\\Classes\\Folder\\shell", L"v", text));
}

TEST_F(System, TheKeyboardHookAndTheStateOfASelectedEntryGoByTheVersion) {
  EXPECT_FALSE(DetectOs(machine_.facts).NoLowLevelHook);
  EXPECT_EQ(DetectOs(machine_.facts).SelectedState, 257);
  machine_.facts.VersionFails = true;
  EXPECT_TRUE(DetectOs(machine_.facts).NoLowLevelHook);
  EXPECT_EQ(DetectOs(machine_.facts).SelectedState, 1);
}

TEST_F(System, FilesFoldersAndDrives) {
  const wchar_t* file = L"C:\\a\\f.txt";
  machine_.AddFile(file, "x");
  for (const wchar_t* there : {L"C:\\A", L"C:"}) EXPECT_TRUE(FolderOrDriveExists(machine_.files, there));
  for (const wchar_t* none : {file, L"Q:"}) EXPECT_FALSE(FolderOrDriveExists(machine_.files, none));
  EXPECT_TRUE(FileExists(machine_.files, L"C:\\a\\F.TXT"));
  EXPECT_FALSE(FileExists(machine_.files, L"C:\\a"));
  machine_.faults.FailFrom(1);
  EXPECT_FALSE(FolderOrDriveExists(machine_.files, L"C:\\a"));
}

TEST_F(System, HotKeysAreListedInOrderAndANameCountsOnce) {
  clsMenuCollection& store = app_.MainStore();
  for (const auto& [name, code] : {std::pair{L"a", 50}, {L"b", -1}, {L"c", 50}}) {
    store.AddNewMenuItem({.Name = name, .KeyboardCode = code});
  }
  RefreshHotKeys(app_, app_.MainDocument.Store);
  EXPECT_EQ(app_.HotKeyItems.Items, (std::vector<ItemRef>{store.Item(1), store.Item(3)}));
  store.Item(3)->SetName(L"a");
  RefreshHotKeys(app_, app_.MainDocument.Store);
  EXPECT_EQ(app_.HotKeyItems.Items.size(), 1U);
  EXPECT_EQ(store.Item(3)->KeyboardCode, -1);
}

TEST_F(System, AFirstStartHasGeneralAndAppearanceOnAndAdvancedOff) {
  app_.GC[General::kAskBeforeDeleting] = app_.AC[Appearance::kRedSelection] = false;
  app_.ADVC[Advanced::kHotKeys] = true;
  LoadSettings(app_);
  EXPECT_EQ(app_.GC, SettingValues<General>(true));
  EXPECT_EQ(app_.AC, SettingValues<Appearance>(true));
  EXPECT_EQ(app_.ADVC, SettingValues<Advanced>(false));
}

TEST_F(System, WhatIsSavedIsLoadedAndStoredAsNumbers) {
  app_.AppCommand = L"\"C:\\x\\burrowmark.exe\"";
  for (const bool on : {true, false}) {
    app_.GC[General::kAskBeforeDeleting] = on;
    app_.GC[General::kAskForDeletingDead] = !on;
    app_.AC[Appearance::kRedSelection] = on;
    app_.ADVC[Advanced::kStartWithSession] = app_.ADVC[Advanced::kHotKeys] = on;
    SaveSettings(app_);
    EXPECT_EQ(scratch_.Registered(kSettingsKey, L"GC0") + scratch_.Registered(kSettingsKey, L"GC1"),
              on ? L"-10" : L"0-1");
    EXPECT_EQ(scratch_.Registered(kRunKey, L"Burrowmark"), on ? app_.AppCommand : L"");
    for (const bool noHook : {false, true}) {
      Application other(machine_.platform());
      other.Os.NoLowLevelHook = noHook;
      LoadSettings(other);
      EXPECT_EQ(other.GC, app_.GC);
      EXPECT_EQ(other.AC, app_.AC);
      EXPECT_EQ(other.ADVC[Advanced::kStartWithSession], on);
      EXPECT_EQ(other.ADVC[Advanced::kHotKeys], on && !noHook);  // a system without the hook has no hot keys
    }
  }
}

TEST_F(System, OddTextsAreReadAsTheyMayStand) {
  const std::pair<const wchar_t*, bool> cases[] = {{L" -1 ", true}, {L"1", true}, {L"False", false},
                                                   {L"0", false},   {L"", true},  {L"nonsense", true}};
  for (const auto& [text, value] : cases) {
    registry_.SetKeyValue(RegistryKey::kCurrentUser, kSettingsKey, L"AC2", text);
    LoadSettings(app_);
    EXPECT_EQ(app_.AC[Appearance::kHelp], value) << ToUtf8(text);
  }
  registry_.SaveKeyValueDWord(RegistryKey::kCurrentUser, kSettingsKey, L"AC2", 0);
  LoadSettings(app_);
  EXPECT_FALSE(app_.AC[Appearance::kHelp]);
}

class Saving : public System {
 protected:
  static constexpr const wchar_t* kPath = L"C:\\data\\tree.bwmk";

  Saving() { machine_.AddFile(kPath, "old content"); }
  bool Save(std::string_view bytes) { return SaveWholeFile(machine_.files, kPath, bytes); }
  // The number of files in the folder: a save that fails tidies up where it can.
  std::ptrdiff_t FilesBeside() {
    const std::filesystem::directory_iterator folder(machine_.RealPath(L"C:\\data"));
    return std::distance(begin(folder), end(folder));
  }
};

TEST_F(Saving, TakesThePlaceAndKeepsTheAttributes) {
  machine_.files.SetFileAttributesA(kPath, kFileHidden);
  EXPECT_TRUE(Save("new"));
  EXPECT_EQ(machine_.BytesOf(kPath), "new");
  EXPECT_NE(*machine_.files.GetFileAttributesA(kPath) & kFileHidden, 0U);
  EXPECT_EQ(FilesBeside(), 1);
  machine_.AddFile(std::wstring(kPath) + L".~burrowmark", "left over");  // by an earlier save
  EXPECT_TRUE(Save("newer"));
  EXPECT_EQ(machine_.BytesOf(kPath), "newer");
  EXPECT_TRUE(SaveWholeFile(machine_.files, L"C:\\data\\first.bwmk", ""));
  EXPECT_TRUE(CanSave(machine_.files, L"C:\\data\\second.bwmk"));
  EXPECT_FALSE(CanSave(machine_.files, L"C:\\none\\first.bwmk"));
  EXPECT_EQ(FilesBeside(), 2);
}

TEST_F(Saving, AFaultAtAnyStepLeavesTheOldOrTheNewFileWhole) {
  ASSERT_TRUE(Save("counting"));
  const std::size_t steps = machine_.faults.Calls();
  ASSERT_GE(steps, 7U);
  std::size_t failedSaves = 0;
  for (std::size_t run = 0; run < 2 * steps; ++run) {
    const bool once = run < steps;
    const std::size_t step = run % steps + 1;
    std::filesystem::remove_all(machine_.RealPath(L"C:\\data"));
    machine_.AddFile(kPath, "old content");
    machine_.faults.Clear();
    once ? machine_.faults.FailCall(step) : machine_.faults.FailFrom(step);
    const bool saved = Save("new content, longer than the old");
    ASSERT_GE(machine_.faults.Failed(), 1U) << step;
    machine_.faults.Clear();
    EXPECT_EQ(machine_.BytesOf(kPath), saved ? "new content, longer than the old" : "old content") << step;
    failedSaves += saved ? 0 : 1;
    EXPECT_TRUE(saved || !once || FilesBeside() == 1) << step;
  }
  EXPECT_GE(failedSaves, steps);
}

TEST_F(Saving, ConditionsThatForbidTheSaveLeaveTheOldFile) {
  const std::pair<const char*, std::function<void()>> conditions[] = {
      {"full disk", [&] { machine_.faults.DiskRoom = 3; }},
      {"no new files", [&] { machine_.faults.FoldersWithoutNewFiles.insert(L"C:\\DATA"); }},
      {"held open", [&] { machine_.faults.HeldOpen.insert(L"C:\\DATA\\TREE.BWMK"); }},
      {"read-only", [&] { machine_.files.SetFileAttributesA(kPath, kFileReadOnly); }},
  };
  for (const auto& [name, setUp] : conditions) {
    setUp();
    EXPECT_FALSE(Save("new content")) << name;
    machine_.faults.Clear();
    EXPECT_EQ(machine_.BytesOf(kPath), "old content") << name;
    EXPECT_EQ(FilesBeside(), 1) << name;
    machine_.files.SetFileAttributesA(kPath, 0);
  }
  EXPECT_TRUE(Save("new content"));
  EXPECT_FALSE(SaveWholeFile(machine_.files, L"C:\\data", "a folder is in the way"));
  EXPECT_FALSE(SaveWholeFile(machine_.files, L"C:\\none\\x", "no such folder"));
}

}  // namespace
}  // namespace burrowmark
