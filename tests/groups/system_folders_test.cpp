#include "groups/system_folders.h"

#include <gtest/gtest.h>

#include "core/hot_keys.h"
#include "core/registry.h"
#include "core/registry_keys.h"
#include "groups/special_folders.h"
#include "tests/support/menu_scene.h"

namespace burrowmark {
namespace {

using test::TitlesUnder;

class SystemFolders : public testing::Test {
 protected:
  SystemFolders() {
    app_.WindowsFolder = L"C:\\Windows";
    AddFixedEntries(app_, store_, false);
  }
  void Set(RegistryKey root, const wchar_t* key, const std::wstring& name, const std::wstring& path, bool make = true) {
    registry_.SetKeyValue(root, key, name, path);
    if (make) machine_.AddFolders(path);
  }
  // A folder of each origin.
  void MakeSome() {
    for (const wchar_t* name : {L"AppData", L"Fonts"}) {
      Set(RegistryKey::kCurrentUser, kShellFoldersKey, name, std::wstring(L"C:\\u\\") + name);
    }
    Set(RegistryKey::kCurrentUser, kShellFoldersKey, L"Programs", L"C:\\u\\Start Menu\\Programs");
    Set(RegistryKey::kLocalMachine, kCurrentVersionKey, L"MediaPath", L"C:\\m");
    Set(RegistryKey::kLocalMachine, kShellFoldersKey, L"Common Startup", L"C:\\a");
    for (const wchar_t* name : {L"Cursors", L"System32\\drivers\\etc"}) {
      machine_.AddFolders(std::wstring(L"C:\\Windows\\") + name);
    }
  }

  test::MenuScene scene_;
  LocalMachine& machine_ = scene_.machine;
  Application& app_ = scene_.app;
  clsMenuCollection& store_ = app_.MainStore();
  clsRegHandler registry_{machine_.registry};
};

TEST_F(SystemFolders, WhatIsThereStandsInItsGroupAndTheImportantAheadIfTheUserWants) {
  MakeSome();
  SetupSystemFolders(app_, store_);
  EXPECT_EQ(TitlesUnder(store_, MIT_PATHS_SYSTEM),
            L"All Users Personal Windows Desktop Favorites My Documents Send To Windows");
  EXPECT_EQ(TitlesUnder(store_, MIT_PATHS_SYSTEM_P), L"Start Menu Application Data Recent");
  EXPECT_EQ(TitlesUnder(store_, MIT_PATHS_SYSTEM_W),
            L"Cursors Fonts Media System32 System32_drivers System32_drivers_etc");
  EXPECT_EQ(TitlesUnder(store_, MIT_PATHS_SYSTEM_PSM), L"Programs Start Menu");
  EXPECT_EQ(TitlesUnder(store_, MIT_PATHS_SYSTEM_ASM), L"Startup");
  const auto path = [&](const wchar_t* title, const wchar_t* owner) {
    return store_.CaptionExists2(title, owner, false, L"")->FolderPath;
  };
  EXPECT_EQ(path(L"System32_drivers_etc", MIT_PATHS_SYSTEM_W), L"C:\\Windows\\System32\\drivers\\etc");
  EXPECT_EQ(path(L"Media", MIT_PATHS_SYSTEM_W), L"C:\\m");
  EXPECT_EQ(path(L"Start Menu", MIT_PATHS_SYSTEM_PSM), L"C:\\u\\Start Menu");
  EXPECT_EQ(path(L"Startup", MIT_PATHS_SYSTEM_ASM), L"C:\\a");
  RemoveSystemFolders(app_, store_);
  app_.AC[Appearance::kImportantFirst] = false;
  SetupSystemFolders(app_, store_);
  EXPECT_EQ(TitlesUnder(store_, MIT_PATHS_SYSTEM), L"All Users Personal Windows");
  EXPECT_TRUE(store_.CaptionExists(L"Send To", MIT_PATHS_SYSTEM_P, false, L""));
}

TEST_F(SystemFolders, WhatIsNotThereIsLeftOutWithoutAWord) {
  Set(RegistryKey::kCurrentUser, kShellFoldersKey, L"History", L"C:\\no such folder", false);
  SetupSystemFolders(app_, store_);
  EXPECT_FALSE(store_.CaptionExists(L"History", MIT_PATHS_SYSTEM, false, L""));
  EXPECT_FALSE(store_.CaptionExists(L"Start Menu", MIT_PATHS_SYSTEM_PSM, false, L""));
  EXPECT_TRUE(store_.ItemExists(MIT_PATHS_SYSTEM_ASM));  // groups are always made
}

TEST_F(SystemFolders, TheGroupGoesAheadOfTheDrivesAndGoesWhole) {
  MakeSome();
  store_.AddNewMenuItem({.Caption = L"Drives",
                         .OwnerName = kRootOwner,
                         .Name = MIT_PATHS_DRIVES,
                         .SubMenu = true,
                         .BeforeKey = MIT_HF_DRIVES_SEP});
  const std::wstring before = test::NamesOf(store_);
  SetupSystemFolders(app_, store_);
  EXPECT_EQ(TitlesUnder(store_, kRootOwner), L"Help  System Folders Drives  Options Organize Folders");
  const ItemRef fonts = store_.CaptionExists2(L"Fonts", MIT_PATHS_SYSTEM_W, false, L"");
  fonts->KeyboardCode = 50;
  RefreshHotKeys(app_, app_.MainDocument.Store);
  RemoveSystemFolders(app_, store_);
  EXPECT_EQ(test::NamesOf(store_), before);
  EXPECT_TRUE(app_.HotKeyItems.Items.empty());
}

TEST_F(SystemFolders, TheResolversLadder) {
  machine_.facts.WindowsFolder = L"D:\\WINNT";
  EXPECT_EQ(GetSpecialFolderPath(app_, L"SystemRoot"), L"D:\\WINNT");
  EXPECT_EQ(GetSpecialFolderPath(app_, L"System32"), L"C:\\Windows\\System32");
  app_.WindowsFolder = L"D:\\WINNT";
  machine_.facts.SystemFolder = L"E:\\sys";
  EXPECT_EQ(GetSpecialFolderPath(app_, L"System32"), L"E:\\sys");
  EXPECT_EQ(GetSpecialFolderPath(app_, L"desktop"), L"C:\\Users\\User\\Desktop");  // the registry's names ignore case
  Set(RegistryKey::kLocalMachine, kShellFoldersKey, L"Common Administrative Tools", L"C:\\all\\ADMINI~1", false);
  EXPECT_EQ(GetSpecialFolderPath(app_, L"Common Administrative Tools"), L"C:\\all\\ADMINI~1");
  machine_.AddFolders(L"C:\\all\\Admini~1");
  EXPECT_EQ(GetSpecialFolderPath(app_, L"Common Administrative Tools"), L"C:\\all\\Admini~1");
}

}  // namespace
}  // namespace burrowmark
