#include "groups/system_folders.h"

#include <gtest/gtest.h>

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
  // Every folder of the table stands on the machine.
  void MakeAll() {
    for (const wchar_t* name : {L"Desktop", L"Favorites", L"History", L"Personal", L"SendTo", L"AppData",
                                L"Administrative Tools", L"Cache", L"Local AppData", L"Local Settings", L"My Pictures",
                                L"NetHood", L"PrintHood", L"Recent", L"Startup", L"Cookies", L"Fonts", L"Templates"}) {
      Set(RegistryKey::kCurrentUser, kShellFoldersKey, name, std::wstring(L"C:\\u\\") + name);
    }
    Set(RegistryKey::kCurrentUser, kShellFoldersKey, L"Programs", L"C:\\u\\Start Menu\\Programs");
    for (const wchar_t* name : {L"ProgramFilesDir", L"CommonFilesDir", L"MediaPath"}) {
      Set(RegistryKey::kLocalMachine, kCurrentVersionKey, name, std::wstring(L"C:\\m\\") + name);
    }
    for (const wchar_t* name :
         {L"Common AppData", L"Common Desktop", L"Common Documents", L"Common Templates",
          L"Common Administrative Tools", L"Common Programs", L"Common Start Menu", L"Common Startup"}) {
      Set(RegistryKey::kLocalMachine, kShellFoldersKey, name, std::wstring(L"C:\\a\\") + name);
    }
    for (const wchar_t* name : {L"Cursors", L"Downloaded Program Files", L"Inf", L"Java", L"Offline Web Pages",
                                L"Speech", L"System", L"System32\\drivers\\etc", L"Tasks", L"Temp"}) {
      machine_.AddFolders(std::wstring(L"C:\\Windows\\") + name);
    }
  }

  test::MenuScene scene_;
  LocalMachine& machine_ = scene_.machine;
  Application& app_ = scene_.app;
  clsMenuCollection& store_ = *app_.MainStore;
  clsRegHandler registry_{machine_.registry};
};

TEST_F(SystemFolders, AllFortyNineRowsFindTheirPlace) {
  MakeAll();
  SetupSystemFolders(app_, store_);
  EXPECT_EQ(TitlesUnder(store_, MIT_PATHS_SYSTEM),
            L"All Users Personal Windows Desktop Favorites History My Documents Program Files Send To Windows");
  EXPECT_EQ(TitlesUnder(store_, MIT_PATHS_SYSTEM_PSM), L"Programs Start Menu Startup");
  EXPECT_EQ(TitlesUnder(store_, MIT_PATHS_SYSTEM_ASM), L"Administrative Tools Programs Start Menu Startup");
  EXPECT_EQ(TitlesUnder(store_, MIT_PATHS_SYSTEM_A), L"Start Menu Application Data Desktop Documents Templates");
  std::int32_t rows = 0;
  for (const wchar_t* owner : {MIT_PATHS_SYSTEM, MIT_PATHS_SYSTEM_A, MIT_PATHS_SYSTEM_P, MIT_PATHS_SYSTEM_W,
                               MIT_PATHS_SYSTEM_PSM, MIT_PATHS_SYSTEM_ASM}) {
    rows += store_.ChildrenNumber(owner);
  }
  EXPECT_EQ(rows, 49);
  EXPECT_EQ(store_.CaptionExists2(L"System32_drivers_etc", MIT_PATHS_SYSTEM_W, false, L"")->FolderPath,
            L"C:\\Windows\\System32\\drivers\\etc");
  EXPECT_EQ(store_.CaptionExists2(L"Start Menu", MIT_PATHS_SYSTEM_PSM, false, L"")->FolderPath, L"C:\\u\\Start Menu");
  EXPECT_EQ(store_.CaptionExists2(L"Send To", MIT_PATHS_SYSTEM, false, L"")->OpenType, MIT_PATH_EXPLORER);
  EXPECT_EQ(store_.GetMenuItemFromName(MIT_PATHS_SYSTEM)->UserDescription,
            L"Contains shortcuts to Windows system folders");
  EXPECT_EQ(store_.GetMenuItemFromName(MIT_PATHS_SYSTEM)->ItemType, MIT_PATHS_SYSTEM);
  EXPECT_EQ(test::OwnersAheadIn(store_), "");
  EXPECT_EQ(TitlesUnder(store_, kRootOwner), L"Help  System Folders  Options Organize Folders");
}

TEST_F(SystemFolders, ImportantRowsStandWithTheOthersIfTheUserWants) {
  MakeAll();
  app_.AC[5] = false;
  SetupSystemFolders(app_, store_);
  EXPECT_EQ(TitlesUnder(store_, MIT_PATHS_SYSTEM), L"All Users Personal Windows");
  EXPECT_EQ(store_.ChildrenNumber(MIT_PATHS_SYSTEM_P), 16);
  EXPECT_TRUE(store_.CaptionExists(L"Windows", MIT_PATHS_SYSTEM_W, false, L""));
}

TEST_F(SystemFolders, WhatIsNotThereIsLeftOutWithoutAWord) {
  Set(RegistryKey::kCurrentUser, kShellFoldersKey, L"History", L"C:\\no such folder", false);
  SetupSystemFolders(app_, store_);
  EXPECT_FALSE(store_.CaptionExists(L"History", MIT_PATHS_SYSTEM, false, L""));
  EXPECT_FALSE(store_.CaptionExists(L"Start Menu", MIT_PATHS_SYSTEM_PSM, false, L""));
  EXPECT_TRUE(store_.ItemExists(MIT_PATHS_SYSTEM_ASM));  // groups are always made
  machine_.faults.FailFrom(1);
  clsMenuCollection other(machine_.clock);
  AddFixedEntries(app_, other, false);
  SetupSystemFolders(app_, other);
  EXPECT_EQ(other.ChildrenNumber(MIT_PATHS_SYSTEM), 3);
}

TEST_F(SystemFolders, TheGroupGoesAheadOfTheDrivesAndGoesWhole) {
  MakeAll();
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
  app_.HotKeyItems = {fonts};
  RemoveSystemFolders(app_, store_);
  EXPECT_EQ(test::NamesOf(store_), before);
  EXPECT_TRUE(app_.HotKeyItems.empty());
  app_.HotKeyItems = {fonts};
  RemoveSystemFolders(app_, store_);
  EXPECT_EQ(app_.HotKeyItems.size(), 1U);  // nothing went, so the list isn't made anew
}

TEST_F(SystemFolders, TheResolversLadder) {
  machine_.facts.WindowsFolder = L"D:\\WINNT";
  EXPECT_EQ(GetSpecialFolderPath(app_, L"SystemRoot"), L"D:\\WINNT");
  EXPECT_EQ(GetSpecialFolderPath(app_, L"System32"), L"C:\\Windows\\System32");
  app_.WindowsFolder = L"D:\\WINNT";
  machine_.facts.SystemFolder = L"E:\\sys";
  EXPECT_EQ(GetSpecialFolderPath(app_, L"System32"), L"E:\\sys");
  EXPECT_EQ(GetSpecialFolderPath(app_, L"desktop"), L"C:\\Users\\User\\Desktop");  // the registry's names ignore case
  EXPECT_EQ(GetSpecialFolderPath(app_, L"systemroot"), L"");                       // the ladder's own don't
  EXPECT_EQ(GetSpecialFolderPath(app_, L"Start Menu"), L"");
  Set(RegistryKey::kCurrentUser, kShellFoldersKey, L"Programs", L"no backslash", false);
  EXPECT_EQ(GetSpecialFolderPath(app_, L"Start Menu"), L"");
  Set(RegistryKey::kLocalMachine, kShellFoldersKey, L"Common Administrative Tools", L"C:\\all\\ADMINI~1", false);
  EXPECT_EQ(GetSpecialFolderPath(app_, L"Common Administrative Tools"), L"C:\\all\\ADMINI~1");
  machine_.AddFolders(L"C:\\all\\Admini~1");
  EXPECT_EQ(GetSpecialFolderPath(app_, L"Common Administrative Tools"), L"C:\\all\\Admini~1");
}

}  // namespace
}  // namespace burrowmark
