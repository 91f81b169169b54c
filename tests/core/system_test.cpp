// What the program asks of the system through small services: registry values, versions, files, saving.
#include <gtest/gtest.h>

#include <functional>
#include <span>

#include "core/form_services.h"
#include "core/hot_keys.h"
#include "core/os_detection.h"
#include "core/registry.h"
#include "core/save_file.h"
#include "core/services.h"
#include "platform/characters.h"
#include "tests/support/scratch_machine.h"

namespace burrowmark {
namespace {

constexpr RegistryKey kUser = RegistryKey::kCurrentUser;

class System : public testing::Test {
 protected:
  test::ScratchMachine scratch_;
  LocalMachine& machine_ = scratch_.machine;
  clsRegHandler registry_{machine_.registry};
};

TEST_F(System, RegistryTextsComeBackAndMissingOnesAreEmpty) {
  std::wstring text = L"old";
  EXPECT_FALSE(registry_.GetKeyValue(kUser, L"Software\\None", L"x", text));
  EXPECT_EQ(text, L"");
  EXPECT_TRUE(registry_.SetKeyValue(kUser, L"Software\\New\\Deep", L"x", L"a \x20AC"));
  EXPECT_TRUE(registry_.GetKeyValue(kUser, L"software\\new\\deep", L"X", text));
  EXPECT_EQ(text, L"a \x20AC");
  EXPECT_TRUE(registry_.SetKeyValue(kUser, L"Software\\New", L"x", L""));
  EXPECT_TRUE(registry_.GetKeyValue(kUser, L"Software\\New", L"x", text));
  EXPECT_EQ(text, L"");
  EXPECT_FALSE(registry_.GetKeyValue(kUser, L"Software\\New", L"y", text));
  EXPECT_EQ(machine_.registry.OpenKeys(), 0U);
}

TEST_F(System, ARegistryTextOfMoreThan1024CharactersWithItsEndIsNotRead) {
  std::wstring text;
  registry_.SetKeyValue(kUser, L"K", L"fits", std::wstring(1023, L'x'));
  EXPECT_TRUE(registry_.GetKeyValue(kUser, L"K", L"fits", text));
  EXPECT_EQ(text.size(), 1023U);
  registry_.SetKeyValue(kUser, L"K", L"long", std::wstring(1024, L'x'));
  EXPECT_FALSE(registry_.GetKeyValue(kUser, L"K", L"long", text));
  EXPECT_EQ(text, L"");
}

TEST_F(System, RegistryNumbersReadAsNumbersAndAsHexadecimalText) {
  struct Case {
    std::int32_t number;
    const wchar_t* text;
  };
  // The bytes from the last to the first, unpadded, a last byte of zero left out.
  const Case cases[] = {
      {5, L"&h005"}, {0x0102, L"&h012"}, {-1, L"&hFFFFFFFF"}, {0, L"&h000"}, {0x12345678, L"&h12345678"}};
  for (const Case& row : cases) {
    std::wstring text;
    std::int32_t number = 99;
    EXPECT_TRUE(registry_.SaveKeyValueDWord(kUser, L"K", L"n", row.number));
    EXPECT_TRUE(registry_.GetKeyValue(kUser, L"K", L"n", text));
    EXPECT_EQ(text, row.text);
    EXPECT_TRUE(registry_.GetKeyValueDWord(kUser, L"K", L"n", number));
    EXPECT_EQ(number, row.number);
  }
  std::int32_t number = 99;
  registry_.SetKeyValue(kUser, L"K", L"t", L"5");
  EXPECT_FALSE(registry_.GetKeyValueDWord(kUser, L"K", L"t", number));
  EXPECT_EQ(number, 0);
}

TEST_F(System, RegistryKeysAndValuesAreDeleted) {
  EXPECT_TRUE(registry_.CreateKey(kUser, L"A\\B"));
  EXPECT_TRUE(registry_.SetKeyValue(kUser, L"A\\B", L"v", L"1"));
  EXPECT_FALSE(registry_.DeleteKey(kUser, L"", L"A"));  // B is below it
  EXPECT_TRUE(registry_.DeleteValue(kUser, L"A\\B", L"v"));
  EXPECT_FALSE(registry_.DeleteValue(kUser, L"A\\B", L"v"));
  EXPECT_TRUE(registry_.DeleteKey(kUser, L"A", L"B"));
  EXPECT_FALSE(registry_.DeleteKey(kUser, L"A", L"B"));
  EXPECT_TRUE(registry_.DeleteKey(kUser, L"", L"A"));
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
  EXPECT_TRUE(registry_.DeleteValue(RegistryKey::kClassesRoot, L"Folder\\shell", L"v"));
  EXPECT_TRUE(registry_.CreateKey(RegistryKey::kClassesRoot, L"Folder\\shell\\x"));
  EXPECT_TRUE(registry_.DeleteKey(RegistryKey::kClassesRoot, L"Folder\\shell", L"x"));
  EXPECT_FALSE(registry_.GetKeyValue(kUser, L"Software\\Classes\\Folder\\shell", L"v", text));
}

TEST_F(System, EveryRegistryCallThatFailsMakesTheOperationFail) {
  registry_.SetKeyValue(kUser, L"K", L"v", L"1");
  registry_.CreateKey(kUser, L"K\\sub");
  std::wstring text;
  std::int32_t number = 0;
  const std::function<bool()> operations[] = {
      [&] { return registry_.GetKeyValue(kUser, L"K", L"v", text); },
      [&] { return registry_.SetKeyValue(kUser, L"K", L"v", L"1"); },
      [&] { return registry_.SaveKeyValueDWord(kUser, L"K", L"n", 1); },
      [&] { return registry_.GetKeyValueDWord(kUser, L"K", L"n", number); },
      [&] { return registry_.CreateKey(kUser, L"K"); },
      [&] { return registry_.DeleteKey(kUser, L"K", L"sub"); },
      [&] { return registry_.DeleteValue(kUser, L"K", L"v"); },
  };
  for (const auto& operation : operations) {
    machine_.faults.FailFrom(1);
    EXPECT_FALSE(operation());
    EXPECT_GE(machine_.faults.Failed(), 1U);
    machine_.faults.Clear();
    EXPECT_TRUE(operation());
    registry_.SetKeyValue(kUser, L"K", L"v", L"1");
    registry_.CreateKey(kUser, L"K\\sub");
    EXPECT_EQ(machine_.registry.OpenKeys(), 0U);
  }
  for (const auto& operation : std::span(operations).first(4)) {  // the step behind the opening of the key
    registry_.SaveKeyValueDWord(kUser, L"K", L"n", 1);
    machine_.faults.Clear();
    machine_.faults.FailCall(2);
    EXPECT_FALSE(operation());
    EXPECT_EQ(machine_.registry.OpenKeys(), 0U);
    machine_.faults.Clear();
  }
}

TEST_F(System, VersionsHaveNamesAndKindsOfHook) {
  struct Case {
    SystemVersion version;
    const wchar_t* name;
    bool noHook;
    int selected;
  };
  const Case cases[] = {
      {{3, 51, 0, 2}, L"Windows NT 3.51", true, 1},
      {{4, 0, 0, 1}, L"Windows 95", true, 1},
      {{4, 10, 0, 1}, L"Windows 98", true, 1},
      {{4, 98, 0, 1}, L"Windows ME", true, 1},
      {{4, 0, 0, 2}, L"Windows NT 4.0", false, 1},
      {{5, 0, 0, 2}, L"Windows 2000", false, 257},
      {{5, 1, 0, 2}, L"Windows XP", false, 257},
      {{5, 2, 0, 2}, L"Windows 2003", false, 257},
      {{6, 0, 0, 2}, L"Windows Vista", false, 257},
      {{6, 1, 0, 2}, L"Windows 7", false, 257},
      {{6, 2, 0, 2}, L"Windows 8", false, 257},
      {{6, 3, 0, 2}, L"Windows 8.1", false, 257},
      {{10, 0, 19045, 2}, L"Windows 10", false, 257},
      {{10, 0, 22000, 2}, L"Windows 11", false, 257},
      {{2, 0, 0, 2}, L"", true, 1},
  };
  for (const Case& row : cases) {
    machine_.facts.Version = row.version;
    EXPECT_EQ(GetOSName(machine_.facts), row.name);
    EXPECT_EQ(DetectOs(machine_.facts).NoLowLevelHook, row.noHook) << ToUtf8(row.name);
    EXPECT_EQ(DetectOs(machine_.facts).SelectedState, row.selected) << ToUtf8(row.name);
  }
  machine_.facts.VersionFails = true;
  EXPECT_EQ(GetOSName(machine_.facts), L"");
  EXPECT_TRUE(DetectOs(machine_.facts).NoLowLevelHook);
  EXPECT_EQ(DetectOs(machine_.facts).SelectedState, 1);
}

TEST_F(System, FilesFoldersAndDrives) {
  machine_.AddFile(L"C:\\a\\f.txt", "x");
  EXPECT_TRUE(FolderOrDriveExists(machine_.files, L"C:\\A"));
  EXPECT_TRUE(FolderOrDriveExists(machine_.files, L"C:"));
  EXPECT_FALSE(FolderOrDriveExists(machine_.files, L"C:\\a\\f.txt"));
  EXPECT_FALSE(FolderOrDriveExists(machine_.files, L"Q:"));
  EXPECT_TRUE(FileExists(machine_.files, L"C:\\a\\F.TXT"));
  EXPECT_FALSE(FileExists(machine_.files, L"C:\\a"));
  EXPECT_FALSE(IsFileReadOnly(machine_.files, L"C:\\a\\f.txt"));
  machine_.files.SetFileAttributesA(L"C:\\a\\f.txt", kFileReadOnly);
  EXPECT_TRUE(IsFileReadOnly(machine_.files, L"C:\\a\\f.txt"));
  EXPECT_FALSE(IsFileReadOnly(machine_.files, L"C:\\none"));
  machine_.faults.FailFrom(1);
  EXPECT_FALSE(FolderOrDriveExists(machine_.files, L"C:\\a"));
  EXPECT_FALSE(IsFileReadOnly(machine_.files, L"C:\\a\\f.txt"));
}

TEST_F(System, AFormShowsThatTheProgramIsBusy) {
  Form form(machine_.windows, L"frmBusy", Size{3000, 2000});
  form.SetCaption(L"Busy");
  form.Show();
  SetHourglass(form);
  EXPECT_EQ(machine_.user.Window(L"Busy").pointer, 11);
  SetNormalPointer(form);
  EXPECT_EQ(machine_.user.Window(L"Busy").pointer, 0);
}

TEST_F(System, HotKeysAreListedInOrderAndANameCountsOnce) {
  clsMenuCollection& store = *scratch_.app.MainStore;
  for (const auto& [name, code] : {std::pair{L"a", 50}, {L"b", -1}, {L"c", 50}}) {
    const ItemRef item = test::MakeItem(machine_.clock, name, name, L"g");
    item->KeyboardCode = code;
    store.AddOne(item, true, false);
  }
  RefreshHotKeys(scratch_.app, store);
  ASSERT_EQ(scratch_.app.HotKeyItems.size(), 2U);
  EXPECT_EQ(scratch_.app.HotKeyItems[1], store.Item(3));
  store.Item(3)->SetName(L"a");
  RefreshHotKeys(scratch_.app, store);
  EXPECT_EQ(scratch_.app.HotKeyItems.size(), 1U);
  EXPECT_EQ(store.Item(3)->KeyboardCode, -1);
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
  EXPECT_TRUE(SaveWholeFile(machine_.files, L"C:\\data\\first.bwmk", ""));
  EXPECT_EQ(machine_.BytesOf(L"C:\\data\\first.bwmk"), "");
}

TEST_F(Saving, AFaultAtAnyStepLeavesTheOldOrTheNewFileWhole) {
  ASSERT_TRUE(Save("counting"));
  const std::size_t steps = machine_.faults.Calls();
  ASSERT_GE(steps, 7U);
  std::size_t failedSaves = 0;
  for (const bool once : {true, false}) {
    for (std::size_t step = 1; step <= steps; ++step) {
      machine_.AddFile(kPath, "old content");
      machine_.faults.Clear();
      once ? machine_.faults.FailCall(step) : machine_.faults.FailFrom(step);
      const bool saved = Save("new content, longer than the old");
      ASSERT_GE(machine_.faults.Failed(), 1U) << step;
      machine_.faults.Clear();
      EXPECT_EQ(machine_.BytesOf(kPath), saved ? "new content, longer than the old" : "old content") << step;
      if (!saved) ++failedSaves;
      if (once && !saved) {
        EXPECT_EQ(FilesBeside(), 1) << step;
      }
      std::filesystem::remove_all(machine_.RealPath(L"C:\\data"));
      machine_.AddFile(kPath, "old content");
    }
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

TEST_F(Saving, LeftOversOfAnEarlierSaveAreNotInTheWay) {
  machine_.AddFile(std::wstring(kPath) + L".new", "left over");
  EXPECT_TRUE(Save("new"));
  EXPECT_EQ(machine_.BytesOf(kPath), "new");
  EXPECT_EQ(machine_.BytesOf(std::wstring(kPath) + L".new"), "left over");
  EXPECT_TRUE(CanCreateFilesIn(machine_.files, L"C:\\data"));
  EXPECT_EQ(FilesBeside(), 2);
  EXPECT_FALSE(CanCreateFilesIn(machine_.files, L"C:\\none"));
}

}  // namespace
}  // namespace burrowmark
