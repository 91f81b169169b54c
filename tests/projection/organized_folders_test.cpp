// The tree as folders and link files, as the shell and the user find it on the disk.
#include "projection/organized_folders.h"

#include <gtest/gtest.h>

#include "core/registry.h"
#include "core/registry_keys.h"
#include "platform/characters.h"
#include "tests/support/menu_scene.h"

namespace burrowmark {
namespace {

constexpr wchar_t kDesktop[] = L"C:\\Users\\User\\Desktop\\Organized Folders";
constexpr wchar_t kTarget[] = L"C:\\Windows";
constexpr wchar_t kConflict[] =
    L"Folder A already exists. Its contents will be overwritten.\r\nTo fix this problem change the group's name.";
constexpr char kDesktopIni[] =
    "[.ShellClassInfo]\r\nIconFile = \"C:\\Caf\xE9\\burrowmark.exe\"\r\nIconIndex = 0\r\nConfirmFileOp = 0\r\n"
    "OriginalIcon = %\r\nInfoTip = Contains shortcuts to your favorite folders.\r\n";

class OrganizedFolders : public testing::Test {
 protected:
  OrganizedFolders() {
    app_.AppCommand = L"\"C:\\Caf\u00E9\\burrowmark.exe\"";
    InitOrganizedFoldersPaths(app_);
    scene_.AddPersonal();
  }
  void Project() { RefreshOrganizedFoldersDesktop(app_, app_.MainDocument.Store, false); }
  // Everything below a folder but Desktop.ini, in the disk's order: "A[x.lnk] y.lnk".
  std::wstring Tree(const std::wstring& folder = kDesktop) {
    std::vector<FolderEntry> entries;
    files_.ListFolder(folder, entries);
    std::wstring tree;
    for (const FolderEntry& entry : entries) {
      if (entry.name == L"Desktop.ini") continue;
      tree += (tree.empty() ? L"" : L" ") + entry.name;
      if ((entry.attributes & kFileDirectory) != 0) tree += L"[" + Tree(folder + L"\\" + entry.name) + L"]";
    }
    return tree;
  }
  std::wstring Setting(const std::wstring& name) { return scene_.Registered(kSettingsKey, name); }
  ItemRef Add(const std::wstring& name, const std::wstring& caption, const std::wstring& owner = MIT_GROUP_USER) {
    return scene_.AddShortcut(name, caption, kTarget, owner);
  }

  test::MenuScene scene_;
  LocalMachine& machine_ = scene_.machine;
  Application& app_ = scene_.app;
  FileSystem& files_ = machine_.files;
  clsMenuCollection& store_ = app_.MainStore();
};

TEST_F(OrganizedFolders, GroupsAreFoldersAndShortcutsAreLinks) {
  scene_.AddGroup(L"GA", L"A");
  scene_.AddGroup(L"GB", L"B", L"GA");
  Add(L"S", L"S", L"GA");
  Add(L"T", L"T & \u0416");
  Project();
  EXPECT_EQ(Tree(), L"A[B[] S.lnk] T & \u0416.lnk");
  EXPECT_EQ(Setting(L"DirDesktop"), kDesktop);
  for (const wchar_t* link : {L"\\A\\S.lnk", L"\\T & \u0416.lnk"}) {
    ShellLink read;
    ASSERT_TRUE(machine_.shell.ReadShellLink(kDesktop + std::wstring(link), read));
    EXPECT_EQ(read.target, kTarget);
  }
  EXPECT_EQ(files_.GetFileAttributesA(kDesktop), kFileSystem | kFileDirectory);
  EXPECT_FALSE(files_.FileExists(kDesktop + std::wstring(L"\\A\\Desktop.ini")));
}

TEST_F(OrganizedFolders, ALinkWhoseServerDoesNotAnswerStays) {
  scene_.AddGroup(L"GA", L"A");
  for (const wchar_t* name : {L"Kept", L"Moved"}) scene_.AddShortcut(name, name, L"\\\\dead\\share", L"GA");
  Project();
  const std::wstring kept = std::wstring(kDesktop) + L"\\A\\Kept.lnk";
  const std::string bytes = machine_.BytesOf(kept);
  store_.GetMenuItemFromName(L"Moved")->FolderPath = L"\\\\dead\\other";
  Add(L"S", L"S");
  scene_.AddShortcut(L"New", L"New", L"\\\\dead\\share", L"GA");
  machine_.faults.SilentPlaces = {L"\\\\DEAD"};
  Project();
  EXPECT_EQ(Tree(), L"A[Kept.lnk] S.lnk");
  EXPECT_EQ(machine_.BytesOf(kept), bytes);
  EXPECT_EQ(machine_.workers.VainWaits, 1U);
}

TEST_F(OrganizedFolders, OtherItemsArePassedOver) {
  scene_.AddGroup(L"G", L"Empty");
  store_.AddNewMenuItem({.OwnerName = L"G", .ItemType = MIT_OPENALL});
  store_.AddNewMenuItem({.Caption = L"line", .OwnerName = L"G", .Separator = true});
  Add(L"gone", L"gone", L"G")->FolderPath = L"C:\\gone";
  Add(L"file", L"file", L"G")->FolderPath = L"C:\\Windows\\explorer.exe";
  Add(L"odd", L"odd", L"G")->OpenType = L"odd";
  Add(L"drive", L"drive")->FolderPath = L"C:\\";
  AddFixedEntries(app_, app_.MainStore(), true);
  scene_.AddGroup(L"GO", L"Outside", kRootOwner);
  Add(L"O", L"O", L"GO");
  store_.AddNewMenuItem({.Caption = L"Drives", .OwnerName = kRootOwner, .Name = MIT_PATHS_DRIVES, .SubMenu = true});
  store_.AddNewMenuItem({.Caption = L"C", .OwnerName = MIT_PATHS_DRIVES, .FolderPath = L"C:\\", .ItemType = MIT_DRIVE});
  Project();
  EXPECT_EQ(Tree(), L"drive.lnk Empty[]");
  app_.ADVC[Advanced::kWithSystemFolders] = true;
  Project();
  const std::wstring all = Tree();
  EXPECT_TRUE(all.starts_with(L"drive.lnk Empty[] Outside[O.lnk] System Folders[")) << ToUtf8(all);
  for (const wchar_t* none : {L"Drives", L"Help", L"Cursors"}) EXPECT_EQ(all.find(none), std::wstring::npos);
}

TEST_F(OrganizedFolders, TwoGroupsOfOneTitleShareAFolder) {
  scene_.AddGroup(L"G1", L"A");
  Add(L"S1", L"one", L"G1");
  Add(L"S2", L"same", L"G1");
  scene_.AddGroup(L"G2", L"A");
  Add(L"S3", L"same", L"G2")->FolderPath = L"C:\\Users";
  Add(L"S4", L"two", L"G2");
  app_.ADVC[Advanced::kWithSystemFolders] = true;
  machine_.user.NextBox(kConflict, kAnswerOk, [this] { store_.Remove(L"S4"); });
  Project();
  EXPECT_EQ(Tree(), L"A[one.lnk same.lnk two.lnk]");
  ShellLink read;
  machine_.shell.ReadShellLink(kDesktop + std::wstring(L"\\A\\same.lnk"), read);
  EXPECT_EQ(read.target, L"C:\\Users");
}

TEST_F(OrganizedFolders, AMovedItemGoesWhereItStandsNow) {
  scene_.AddGroup(L"GA", L"A");
  const ItemRef group = scene_.AddGroup(L"GB", L"B");
  const ItemRef item = Add(L"S", L"S", L"GA");
  item->SetOwnerName(L"GB");
  group->SetCaption(L"Renamed");
  Project();
  EXPECT_EQ(Tree(), L"A[] Renamed[S.lnk]");
}

TEST_F(OrganizedFolders, ATitleThatTheDiskRefusesTakesItsItemsAlong) {
  scene_.AddGroup(L"G", std::wstring(300, L'n'));
  scene_.AddGroup(L"H", L"below", L"G");
  Add(L"S", L"S", L"H");
  Add(L"long", std::wstring(300, L'n'));
  Add(L"last", L"last");
  Project();
  EXPECT_EQ(Tree(), L"last.lnk");
  EXPECT_EQ(Tree(L"C:\\Users\\User\\Desktop"), L"Organized Folders[last.lnk]");
}

TEST_F(OrganizedFolders, ATitleThatMeansSomethingElseToTheDiskGetsANameOfItsOwn) {
  for (const wchar_t* title : {L"..", L"Ends. .", L"con", L"Aux .txt", L"COM1", L"COM", L"nul x"}) {
    scene_.AddGroup(title, title);
    Add(std::wstring(L"S") + title, L"S", title);
  }
  for (const wchar_t* title : {L"NUL", L"LPT9.a", L" "}) Add(title, title);
  Project();
  EXPECT_EQ(
      Tree(),
      L" _.lnk .._[S.lnk] Aux_ .txt[S.lnk] COM[S.lnk] COM1_[S.lnk] con_[S.lnk] Ends[S.lnk] LPT9_.a.lnk nul x[S.lnk] "
      L"NUL_.lnk");
}

// What the program can't have written isn't lost.
TEST_F(OrganizedFolders, WhatStoodInTheRootGoes) {
  scene_.AddGroup(L"GA", L"mixed");
  scene_.AddGroup(L"GB", L"gone", L"GA");
  Add(L"old", L"old", L"GB");
  Project();
  for (const wchar_t* name : {L"GA", L"GB", L"old"}) store_.Remove(name);
  const std::wstring root = kDesktop;
  machine_.AddFile(root + L"\\by hand\\below\\file");
  machine_.AddFile(root + L"\\locked.lnk", "l");
  machine_.AddFile(root + L"\\A\\locked too");
  machine_.AddFile(root + L"\\mixed\\mine.lnk");
  machine_.shell.WriteShellLink(root + L"\\theirs.lnk", {kTarget, L"Another", kShowNormal});
  machine_.AddFile(L"C:\\elsewhere\\kept", "kept");
  std::error_code noLinks;  // some disks have none
  std::filesystem::create_directory_symlink(machine_.RealPath(L"C:\\elsewhere"), machine_.RealPath(root + L"\\link"),
                                            noLinks);
  machine_.files.SetFileAttributesA(root + L"\\by hand\\below\\file", kFileReadOnly);
  machine_.faults.HeldOpen = {L"C:\\USERS\\USER\\DESKTOP\\ORGANIZED FOLDERS\\LOCKED.LNK",
                              L"C:\\USERS\\USER\\DESKTOP\\ORGANIZED FOLDERS\\A\\LOCKED TOO"};
  Add(L"T", L"T");
  Project();
  EXPECT_EQ(Tree(), L"A[locked too] locked.lnk T.lnk");
  EXPECT_EQ(machine_.BytesOf(L"C:\\elsewhere\\kept"), "kept");
  EXPECT_EQ(machine_.shell.Recycled,
            std::vector<std::wstring>({root + L"\\by hand", root + L"\\mixed\\mine.lnk", root + L"\\theirs.lnk"}));
  machine_.faults.HeldOpen.clear();
  machine_.shell.HasRecycleBin = false;
  Add(L"locked", L"locked");
  Project();
  EXPECT_EQ(Tree(), L"A[locked too] locked.lnk T.lnk");
  EXPECT_EQ(machine_.BytesOf(root + L"\\locked.lnk"), "l");
  machine_.shell.HasRecycleBin = true;
  DeleteOrganizedFoldersDesktop(app_);
  EXPECT_FALSE(files_.FolderExists(root));
}

TEST_F(OrganizedFolders, AFolderThatOthersMadeIsAskedAboutOnce) {
  app_.ADVC[Advanced::kOnDesktop] = true;
  Add(L"T", L"T");
  machine_.AddFile(kDesktop + std::wstring(L"\\mine"), "m");
  const std::wstring question =
      L"Folder " + std::wstring(kDesktop) + L" isn't Burrowmark's. Do you want its content to be replaced?";
  machine_.user.NextBox(question, kAnswerNo);
  Project();
  DeleteOrganizedFoldersDesktop(app_);
  EXPECT_EQ(Tree(), L"mine");
  EXPECT_FALSE(app_.ADVC[Advanced::kOnDesktop]);
  EXPECT_EQ(Setting(L"ADVC2"), L"0");
  machine_.user.NextBox(question, kAnswerYes, [this] { app_.MainDocument.Store = nullptr; });
  const auto store = app_.MainDocument.Store;
  RefreshOrganizedFoldersDesktop(app_, app_.MainDocument.Store, false);
  app_.MainDocument.Store = store;
  Project();
  EXPECT_EQ(Tree(), L"T.lnk");
}

TEST_F(OrganizedFolders, OnlyARootThatIsGoneTurnsItsOptionOff) {
  app_.ADVC[Advanced::kOnDesktop] = app_.ADVC[Advanced::kInSendTo] = true;
  app_.OrganizedFoldersSendTo = L"X:\\away\\Organized Folders";
  CheckOrganizedFoldersExist(app_);
  EXPECT_FALSE(app_.ADVC[Advanced::kOnDesktop]);
  EXPECT_TRUE(app_.ADVC[Advanced::kInSendTo]);
}

TEST_F(OrganizedFolders, WithoutAPlaceNothingIsProjected) {
  Add(L"T", L"T");
  std::filesystem::remove(machine_.RealPath(L"C:\\Users\\User\\Favorites"));
  machine_.user.NextBox(L"Organized Folders have been restored.", kAnswerOk);
  RefreshOrganizedFoldersFavorites(app_, app_.MainDocument.Store, true);
  EXPECT_FALSE(files_.FolderExists(L"C:\\Users\\User\\Favorites"));
  EXPECT_EQ(Setting(L"DirFavorites"), L"");
  clsRegHandler(machine_.registry).DeleteValue(RegistryKey::kCurrentUser, kShellFoldersKey, L"SendTo");
  InitOrganizedFoldersPaths(app_);
  EXPECT_EQ(app_.OrganizedFoldersSendTo, L"");
  machine_.faults.FailFrom(0);
  RefreshOrganizedFoldersSendTo(app_, app_.MainDocument.Store, true);
  EXPECT_EQ(machine_.faults.Calls(), 0U);
}

// Whatever single call fails, the others are made, and the next projection mends what is missing.
TEST_F(OrganizedFolders, NoFailureStopsTheRest) {
  scene_.AddGroup(L"GA", L"A");
  Add(L"S", L"S", L"GA");
  Add(L"T", L"T");
  Project();
  machine_.faults.FailFrom(0);
  Project();
  const std::vector<std::string> calls = machine_.faults.Record();
  ASSERT_GT(calls.size(), 10U);
  for (std::size_t i = 0; i < calls.size(); ++i) {
    SCOPED_TRACE(calls[i]);
    const auto strikes = [&call = calls[i]](const char* name) { return call.starts_with(name); };
    const bool keepsFolder =
        strikes("DeleteFolder") || (strikes("ListFolder") && calls[i].ends_with("Organized Folders"));
    if (keepsFolder) machine_.user.NextBox(kConflict, kAnswerOk);
    machine_.faults.FailCall(i + 1);
    Project();
    EXPECT_EQ(machine_.faults.Failed(), 1U);
    machine_.faults.Clear();
    const std::wstring tree = Tree();
    const bool whole = !strikes("CreateFolder") && !strikes("FolderExists C:\\Windows");
    EXPECT_TRUE(whole ? tree == L"A[S.lnk] T.lnk" : tree == L"T.lnk" || tree == L"A[S.lnk]" || tree == L"A[] T.lnk")
        << ToUtf8(tree);
    Project();
    EXPECT_EQ(Tree(), L"A[S.lnk] T.lnk");
    EXPECT_EQ(machine_.BytesOf(kDesktop + std::wstring(L"\\Desktop.ini")), kDesktopIni);
    EXPECT_EQ(files_.GetFileAttributesA(kDesktop + std::wstring(L"\\Desktop.ini")), kFileHidden | kFileSystem);
  }
}

}  // namespace
}  // namespace burrowmark
