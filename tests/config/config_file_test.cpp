#include "config/config_file.h"

#include <gtest/gtest.h>

#include "config/config_reader.h"
#include "config/config_writer.h"
#include "core/registry.h"
#include "core/registry_keys.h"
#include "tests/support/scratch_machine.h"

namespace burrowmark {
namespace {

using test::NamesOf;
using namespace std::string_literals;

// Tokens of a file, written with "\n" for the NUL that closes each.
std::string File(std::string text) {
  std::replace(text.begin(), text.end(), '\n', '\0');
  return text;
}

// A group, a folder shortcut and a title.
const std::string kSmallFile = File(
    "[MIT_GROUP_USER:]\n"
    "0\nMIT_GROUP_USER\nPersonal\n1280\n-1\n2\nFalse\nTrue\nMIT_GROUP_GENERAL\nMIT_PATH_SHORTCUT\n3\nPersonal Group\n"
    "\n\nPersonal\\\n\\\\\n\n\nContains your shortcuts\n5|11|2003|14|7|9|\n\n\n"
    "0\nN1\nProjects\n1280\nMIT_GROUP_USER\n4\nFalse\nFalse\nMIT_PATH\nMIT_PATH_EXPLORER\n3\nFolder Shortcut\n"
    "D:\\Projects\n\n\\\n\\\\Personal\n\n\n\n5|11|2003|14|7|9|\n\n\n"
    "[END:]\n"
    "[SUMMARY_TITLE:]\nMy folders\n[END:]\n");

class Config : public testing::Test {
 protected:
  static constexpr const wchar_t* kPath = L"C:\\data\\tree.bwmk";

  Config() { machine_.AddFolders(L"C:\\data"); }

  bool Read(const std::string& bytes) {
    machine_.AddFile(kPath, bytes);
    store_ = std::make_unique<clsMenuCollection>(machine_.clock);
    return ConfigFileRead(app_, *store_, kPath, missing_, ignored_);
  }
  bool Write(bool plainText = false) { return ConfigFileWrite(app_, *store_, kPath, plainText); }

  test::ScratchMachine scratch_;
  LocalMachine& machine_ = scratch_.machine;
  Application& app_ = scratch_.app;
  std::unique_ptr<clsMenuCollection> store_ = std::make_unique<clsMenuCollection>(machine_.clock);
  bool missing_ = false;
  bool ignored_ = false;
};

TEST_F(Config, TheSmallFileIsWrittenByteForByte) {
  const ItemRef group = test::MakeItem(machine_.clock, MIT_GROUP_USER, L"Personal", kRootOwner, true);
  group->flags = 1280;
  group->UserDescription = L"Contains your shortcuts";
  store_->AddOne(group, true, true);
  const ItemRef leaf = test::MakeItem(machine_.clock, L"N1", L"Projects", MIT_GROUP_USER);
  leaf->flags = 1280;
  leaf->OpenType = MIT_PATH_EXPLORER;
  leaf->FolderPath = L"D:\\Projects";
  leaf->ItemPath = L"\\";
  store_->AddOne(leaf, true, true);
  app_.AC[0] = false;
  app_.Summary.SummaryTitle = L"My folders";
  ASSERT_TRUE(Write());
  EXPECT_EQ(machine_.BytesOf(kPath), kSmallFile);
}

TEST_F(Config, TheSmallFileIsReadFieldByField) {
  machine_.clock.Fixed->year = 2020;
  ASSERT_TRUE(Read(kSmallFile));
  EXPECT_TRUE(missing_);
  EXPECT_FALSE(ignored_);
  const ItemRef leaf = store_->GetMenuItemFromName(L"N1");
  ASSERT_TRUE(leaf);
  EXPECT_EQ(leaf->Caption(), L"Projects");
  EXPECT_EQ(leaf->OwnerName(), MIT_GROUP_USER);
  EXPECT_EQ(leaf->IconID, 4);
  EXPECT_EQ(leaf->OpenType, MIT_PATH_EXPLORER);
  EXPECT_EQ(leaf->FolderPath, L"D:\\Projects");
  EXPECT_EQ(leaf->ItemLocation, L"\\\\Personal");
  EXPECT_EQ(leaf->KeyboardCode, -1);
  EXPECT_EQ(PackDateText(leaf->TimeCreated), L"5|11|2003|14|7|9|");
  EXPECT_EQ(leaf->TimeModified, 0);
  EXPECT_EQ(app_.CurrentConfigFile, kPath);
  EXPECT_EQ(app_.Summary.SummaryTitle, L"My folders");
  EXPECT_TRUE(
      NamesOf(*store_).starts_with(L"MIT_HF_HELP MIT_HF_HELP_SEP MIT_GROUP_USER N1 MIT_PATHS_SYSTEM MIT_HF_DRIVES_SEP "
                                   L"MIT_HF_SETTINGS MIT_HF_ORGANIZE "));
}

TEST_F(Config, WhatIsReadIsWrittenAsItWas) {
  app_.AC[0] = false;
  ASSERT_TRUE(Read(kSmallFile));
  ASSERT_TRUE(Write());
  EXPECT_EQ(machine_.BytesOf(kPath), kSmallFile);
}

TEST_F(Config, EveryAttributeSurvives) {
  const ItemRef group = test::MakeItem(machine_.clock, MIT_GROUP_USER, L"Personal", kRootOwner, true);
  store_->AddOne(group, true, true);
  const ItemRef leaf = test::MakeItem(machine_.clock, L"Line\nName", L"x", MIT_GROUP_USER);
  leaf->Position = -3;
  leaf->flags = 3328;
  leaf->DriveType = 5;
  leaf->FolderPath = L"\\\\server\\share\\\xE9";
  leaf->ItemPath = L"a\\b\\";
  leaf->Remark = L"[END:]";
  leaf->KeyboardCode = 0;
  leaf->UserDescription = L"[SUMMARY_TITLE:]\r\nsecond line";
  leaf->TimeModified = 37930;
  leaf->TimeAccessed = 0.5;
  store_->AddOne(leaf, true, false);
  app_.Summary = {L"[END:]", L"author", L"category", L"key words", L"two\r\nlines"};
  ASSERT_TRUE(Write());
  app_.Summary = {};
  ASSERT_TRUE(Read(machine_.BytesOf(kPath)));
  const ItemRef read = store_->GetMenuItemFromName(L"Line\nName");
  ASSERT_TRUE(read);
  EXPECT_EQ(read->Position, -3);
  EXPECT_EQ(read->flags, 3328);
  EXPECT_EQ(read->DriveType, 5);
  EXPECT_EQ(read->FolderPath, leaf->FolderPath);
  EXPECT_EQ(read->ItemPath, L"a\\b\\");
  EXPECT_EQ(read->Remark, L"[END:]");
  EXPECT_EQ(read->KeyboardCode, 0);
  EXPECT_EQ(read->UserDescription, leaf->UserDescription);
  EXPECT_EQ(read->TimeModified, 37930);
  EXPECT_EQ(read->TimeAccessed, 0.5);
  EXPECT_EQ(app_.Summary.SummaryTitle, L"[END:]");
  EXPECT_EQ(app_.Summary.SummaryAuthor, L"author");
  EXPECT_EQ(app_.Summary.SummaryComments, L"two\r\nlines");
}

TEST_F(Config, OnlyTheTwoGroupsAndTheirDescendantsAreWritten) {
  app_.AC[0] = false;
  ASSERT_TRUE(Read(kSmallFile));
  app_.AC[0] = true;
  store_->AddNewMenuItem(
      {.Caption = L"System Folders", .OwnerName = kRootOwner, .Name = MIT_PATHS_SYSTEM, .SubMenu = true});
  store_->AddNewMenuItem({.Caption = L"Fonts", .OwnerName = MIT_PATHS_SYSTEM, .Name = L"S1"});
  store_->AddNewMenuItem({.Caption = L"Drives", .OwnerName = kRootOwner, .Name = MIT_PATHS_DRIVES, .SubMenu = true});
  store_->AddNewMenuItem({.Caption = L"C", .OwnerName = MIT_PATHS_DRIVES, .Name = L"D1", .ItemType = MIT_DRIVE});
  store_->AddNewMenuItem({.OwnerName = MIT_GROUP_USER, .Name = L"sep", .Separator = true});
  store_->AddNewMenuItem({.OwnerName = L"nobody", .Name = L"orphan"});
  ASSERT_TRUE(Write());
  const std::string both = machine_.BytesOf(kPath);
  ASSERT_TRUE(Read(both));
  EXPECT_FALSE(missing_);
  EXPECT_EQ(NamesOf(*store_),
            L"MIT_HF_HELP MIT_HF_HELP_SEP MIT_GROUP_USER N1 MIT_PATHS_SYSTEM S1 MIT_HF_DRIVES_SEP "
            L"MIT_HF_SETTINGS MIT_HF_ORGANIZE");
  app_.AC[0] = false;
  ASSERT_TRUE(Read(both));
  EXPECT_TRUE(ignored_);
  EXPECT_FALSE(missing_);
  EXPECT_FALSE(store_->ItemExists(L"S1"));
  EXPECT_EQ(app_.Summary.SummaryTitle, L"My folders");
}

TEST_F(Config, AFileWithoutItemsCanBeReadAgain) {
  ASSERT_TRUE(Write());
  EXPECT_EQ(machine_.BytesOf(kPath), File("[MIT_GROUP_USER:]\n[END:]\n[MIT_PATHS_SYSTEM:]\n[END:]\n"));
  EXPECT_TRUE(Read(machine_.BytesOf(kPath)));
  EXPECT_TRUE(missing_);  // an empty group is made anew as a missing one is
}

TEST_F(Config, FixedEntriesFollowTheSettingsAndNoneComesFromTheFile) {
  std::string record = kSmallFile.substr(kSmallFile.find(File("0\nN1\n")), std::string::npos);
  record = record.substr(0, record.find("[END:]"));
  std::string bytes = File("[MIT_GROUP_USER:]\n");
  for (const char* name : {"MIT_HF_SETTINGS", "MIT_HF_HELP", "MIT_HF_ORGANIZE", "MIT_PATHS_DRIVES", "N2"}) {
    std::string copy = record;
    bytes += copy.replace(2, 2, name);
  }
  std::string drive = record;
  drive.replace(drive.find(File("\nMIT_PATH\n")), 10, File("\nMIT_DRIVE\n"));
  std::string separator = record;
  separator.replace(separator.find("False"), 5, "True");
  bytes += drive + separator + File("[END:]\n");
  app_.AC[0] = app_.AC[2] = app_.AC[3] = false;
  ASSERT_TRUE(Read(bytes));
  EXPECT_EQ(NamesOf(*store_), L"N2 MIT_HF_DRIVES_SEP MIT_HF_ORGANIZE");
  EXPECT_EQ(store_->GetMenuItemFromName(MIT_HF_ORGANIZE)->IconID, 7);
  EXPECT_TRUE(store_->GetMenuItemFromName(MIT_HF_DRIVES_SEP)->Separator());
  app_.AC[2] = true;
  ASSERT_TRUE(Read(bytes));
  EXPECT_EQ(NamesOf(*store_).substr(0, 17), L"N2 MIT_HF_HELP MI");  // no personal group: ahead of the top level
}

TEST_F(Config, AFileThatIsNoneIsAFailedReadThatChangesNothing) {
  ASSERT_TRUE(Read(kSmallFile));
  const std::string bad[] = {"x",
                             "no NUL at all",
                             File("a\nb\n[END:]\n"),
                             std::string(100, '\0'),
                             File("[MIT_GROUP_USER:]\nnot a number\n"),
                             kSmallFile + "[MIT_GROUP_USER:]\0x\0"s};
  for (const std::string& bytes : bad) {
    EXPECT_FALSE(Read(bytes));
    EXPECT_EQ(machine_.BytesOf(kPath), bytes);
    EXPECT_EQ(app_.Summary.SummaryTitle, L"My folders");
  }
  app_.CurrentConfigFile = L"as it was";
  bool missing = false;
  bool ignored = false;
  EXPECT_FALSE(ConfigFileRead(app_, *store_, L"C:\\data\\none.bwmk", missing, ignored));
  EXPECT_EQ(app_.CurrentConfigFile, L"as it was");
}

TEST_F(Config, AnEmptyFileIsDeletedAndAFileThatCannotBeReadIsNot) {
  EXPECT_FALSE(Read(""));
  EXPECT_FALSE(machine_.files.FileExists(kPath));
  machine_.AddFile(kPath, kSmallFile);
  machine_.faults.HeldOpen.insert(L"C:\\DATA\\TREE.BWMK");
  EXPECT_FALSE(ConfigFileRead(app_, *store_, kPath, missing_, ignored_));
  machine_.faults.Clear();
  EXPECT_TRUE(machine_.files.FileExists(kPath));
}

TEST_F(Config, ASummaryStartsEmptyAndARepeatedSectionOverwrites) {
  app_.Summary.SummaryAuthor = L"of the file before";
  ASSERT_TRUE(Read(kSmallFile + File("[SUMMARY_TITLE:]\nlater\n[END:]\n[SUMMARY_KEYWORDS:]\n")));
  EXPECT_EQ(app_.Summary.SummaryAuthor, L"");
  EXPECT_EQ(app_.Summary.SummaryTitle, L"later");
}

TEST_F(Config, TitlesAreFilteredAndNumbersChecked) {
  std::string titled = kSmallFile;
  titled.replace(titled.find("Projects"), 8, "a/b:c");
  ASSERT_TRUE(Read(titled));
  EXPECT_EQ(store_->GetMenuItemFromName(L"N1")->Caption(), L"abc");
  std::string wide = kSmallFile;
  wide.replace(wide.find(File("\n4\nFalse")) + 1, 1, "70000");
  EXPECT_FALSE(Read(wide));
  std::string dated = kSmallFile;
  dated.replace(dated.find("5|11|2003"), 9, "5|11|99999");
  EXPECT_FALSE(Read(dated));
  std::string twice = kSmallFile;
  twice.replace(twice.find(File("\nN1\n")) + 1, 2, "mit_group_user");
  EXPECT_FALSE(Read(twice));  // two equal keys
}

TEST_F(Config, ATextBeyondTheAnsiPageMakesTheFileUtf8) {
  ASSERT_TRUE(Read(kSmallFile));
  store_->GetMenuItemFromName(L"N1")->SetCaption(L"\x41F\x440 \xE9");
  ASSERT_TRUE(Write());
  EXPECT_TRUE(machine_.BytesOf(kPath).starts_with("[UTF-8:]\0[MIT_GROUP_USER:]\0"s));
  ASSERT_TRUE(Read(machine_.BytesOf(kPath)));
  EXPECT_EQ(store_->GetMenuItemFromName(L"N1")->Caption(), L"\x41F\x440 \xE9");
  store_->GetMenuItemFromName(L"N1")->SetCaption(L"\x20AC \xE9");
  ASSERT_TRUE(Write());
  EXPECT_NE(machine_.BytesOf(kPath).find("\x80 \xE9"), std::string::npos);
  EXPECT_TRUE(machine_.BytesOf(kPath).starts_with("[MIT_GROUP_USER:]"));
}

TEST_F(Config, ANulInATextDoesNotBreakTheFile) {
  ASSERT_TRUE(Read(kSmallFile));
  store_->GetMenuItemFromName(L"N1")->UserDescription = L"a\0b"s;
  ASSERT_TRUE(Write());
  ASSERT_TRUE(Read(machine_.BytesOf(kPath)));
  EXPECT_EQ(store_->GetMenuItemFromName(L"N1")->UserDescription, L"ab");
}

TEST_F(Config, TheSummaryIsReplacedAndTheRecordsStayByteForByte) {
  std::string bytes = kSmallFile;
  bytes.replace(bytes.find("Contains your shortcuts"), 23, "[SUMMARY_TITLE:]");  // a text of the user's
  machine_.AddFile(kPath, bytes + File("[OTHER:]\nkept\n"));
  app_.Summary.SummaryTitle = L"New";
  app_.Summary.SummaryComments = L"c";
  ASSERT_TRUE(ConfigFileUpdateSummary(app_, kPath));
  const std::string records = bytes.substr(0, bytes.rfind("[SUMMARY_TITLE:]"));
  const std::string expected =
      records + File("[OTHER:]\nkept\n[SUMMARY_TITLE:]\nNew\n[END:]\n[SUMMARY_COMMENTS:]\nc\n[END:]\n");
  EXPECT_EQ(machine_.BytesOf(kPath), expected);
  ASSERT_TRUE(ConfigFileUpdateSummary(app_, kPath));
  EXPECT_EQ(machine_.BytesOf(kPath), expected);
  app_.Summary = {};
  ASSERT_TRUE(ConfigFileUpdateSummary(app_, kPath));
  EXPECT_EQ(machine_.BytesOf(kPath), records + File("[OTHER:]\nkept\n"));
}

TEST_F(Config, TheSummaryOfADamagedMissingOrReadOnlyFile) {
  EXPECT_TRUE(ConfigFileUpdateSummary(app_, L"C:\\data\\none.bwmk"));
  EXPECT_FALSE(machine_.files.FileExists(L"C:\\data\\none.bwmk"));
  app_.Summary.SummaryTitle = L"New";
  const std::string cut = kSmallFile.substr(0, kSmallFile.find("[END:]"));
  machine_.AddFile(kPath, cut);
  EXPECT_FALSE(ConfigFileUpdateSummary(app_, kPath));
  EXPECT_EQ(machine_.BytesOf(kPath), cut);
  machine_.AddFile(kPath, kSmallFile);
  machine_.files.SetFileAttributesA(kPath, kFileReadOnly);
  EXPECT_FALSE(ConfigFileUpdateSummary(app_, kPath));
  EXPECT_FALSE(Write());
  EXPECT_EQ(machine_.BytesOf(kPath), kSmallFile);
}

TEST_F(Config, ANewSummaryTextCanMakeAnAnsiFileUtf8) {
  std::string bytes = kSmallFile;
  bytes.replace(bytes.find("Projects"), 8, "\xE9t\xE9");
  machine_.AddFile(kPath, bytes);
  app_.Summary.SummaryTitle = L"\x41F";
  ASSERT_TRUE(ConfigFileUpdateSummary(app_, kPath));
  ASSERT_TRUE(Read(machine_.BytesOf(kPath)));
  EXPECT_EQ(store_->GetMenuItemFromName(L"N1")->Caption(), L"\xE9t\xE9");
  EXPECT_EQ(app_.Summary.SummaryTitle, L"\x41F");
}

TEST_F(Config, TheListingShowsCountsAndTheTree) {
  app_.AC[0] = false;
  ASSERT_TRUE(Read(kSmallFile));
  app_.AC[0] = true;
  store_->AddNewMenuItem({.Caption = L"Group", .OwnerName = MIT_GROUP_USER, .Name = L"G", .SubMenu = true});
  store_->AddNewMenuItem({.Caption = L"Inner", .OwnerName = L"G", .FolderPath = L"C:\\i"});
  store_->AddNewMenuItem({.OwnerName = L"G", .ItemType = MIT_OPENALL});
  store_->AddNewMenuItem(
      {.Caption = L"System Folders", .OwnerName = kRootOwner, .Name = MIT_PATHS_SYSTEM, .SubMenu = true});
  ASSERT_TRUE(Write(true));
  EXPECT_EQ(
      machine_.BytesOf(kPath),
      "C:\\data\\tree.bwmk\r\n\r\n"
      "Number of shortcuts: 2\r\nNumber of Folder Shortcuts: 1\r\nNumber of Windows Explorer Shortcuts: 1\r\n"
      "Number of Open-All shortcuts: 1\r\nNumber of groups: 3\r\n\r\n"
      "[Personal]\r\n [Group]\r\n  Inner (C:\\i)\r\n  Open-All ()\r\n Projects (D:\\Projects)\r\n[System Folders]\r\n");
  store_->GetMenuItemFromName(L"N1")->SetCaption(L"\x41F");
  store_->GetMenuItemFromName(MIT_GROUP_USER)->SetOwnerName(L"G");  // a circle of owners ends
  ASSERT_TRUE(Write(true));
  EXPECT_TRUE(
      machine_.BytesOf(kPath).starts_with("\xEF\xBB\xBF"
                                          "C:"));
}

TEST_F(Config, TheDefaultFileIsRegisteredOrBesideTheProgramOrInTheUsersData) {
  GetConfigFileName(app_, false);
  EXPECT_EQ(app_.ConfigFile, L"C:\\Program Files\\Burrowmark\\default.bwmk");
  SaveConfigFileName(app_, L"D:\\mine.bwmk");
  GetConfigFileName(app_, false);
  EXPECT_EQ(app_.ConfigFile, L"D:\\mine.bwmk");
  machine_.faults.FoldersWithoutNewFiles.insert(L"C:\\PROGRAM FILES\\BURROWMARK");
  GetConfigFileName(app_, true);
  EXPECT_EQ(app_.ConfigFile, L"C:\\Users\\User\\AppData\\Roaming\\Kestrelan\\Burrowmark\\default.bwmk");
  EXPECT_TRUE(ConfigFileWrite(app_, *store_, L"", false));
  SaveConfigFileName(app_, L"");
  std::wstring registered;
  clsRegHandler(machine_.registry).GetKeyValue(RegistryKey::kCurrentUser, kSettingsKey, L"ConfigFile", registered);
  EXPECT_EQ(registered, app_.ConfigFile);
}

TEST_F(Config, AnUnreadableFileIsKeptBesideUnderAFreeName) {
  machine_.AddFile(kPath, "one");
  EXPECT_TRUE(KeepUnreadableFile(app_, kPath));
  machine_.AddFile(kPath, "two");
  EXPECT_TRUE(KeepUnreadableFile(app_, kPath));
  EXPECT_EQ(machine_.BytesOf(L"C:\\data\\tree (unreadable).bwmk"), "one");
  EXPECT_EQ(machine_.BytesOf(L"C:\\data\\tree (unreadable) 2.bwmk"), "two");
  EXPECT_FALSE(KeepUnreadableFile(app_, L"C:\\data\\none.bwmk"));
}

// Whatever the bytes, a read ends and leaves a store that holds together.
class DamagedConfig : public Config {
 protected:
  void ReadAndCheck(const std::string& bytes, const std::string& what) {
    const bool read = Read(bytes);
    ASSERT_EQ(test::UniqueKeysIn(*store_), "") << what;
    for (std::int32_t i = 1; i <= store_->Count(); ++i) {  // every walk ends
      store_->ItemFullPath(*store_->Item(i));
      store_->GetItemRootNode(*store_->Item(i));
    }
    ASSERT_EQ(machine_.files.FileExists(kPath), !bytes.empty()) << what;
    if (!bytes.empty()) {
      ASSERT_EQ(machine_.BytesOf(kPath), bytes) << what;
    }
    if (read) {
      ASSERT_TRUE(Write(true)) << what;
    }
  }
};

TEST_F(DamagedConfig, EveryLength) {
  for (std::size_t length = 0; length <= kSmallFile.size(); ++length) {
    ReadAndCheck(kSmallFile.substr(0, length), "length " + std::to_string(length));
  }
}

TEST_F(DamagedConfig, EveryByte) {
  for (std::size_t at = 0; at < kSmallFile.size(); ++at) {
    const auto byte = static_cast<unsigned char>(kSmallFile[at]);
    for (const int value : {byte ^ 1, byte ^ 0x20, byte ^ 0x80, 0, 255, byte + 1}) {
      std::string bytes = kSmallFile;
      bytes[at] = static_cast<char>(static_cast<unsigned char>(value));
      ReadAndCheck(bytes, "byte " + std::to_string(at) + " as " + std::to_string(value));
    }
  }
}

}  // namespace
}  // namespace burrowmark
