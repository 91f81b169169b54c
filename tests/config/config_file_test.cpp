#include "config/config_file.h"

#include <gtest/gtest.h>

#include "core/registry_keys.h"
#include "tests/support/config_check.h"
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
  app_.AC[Appearance::kSystemFolders] = false;
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
  app_.Summary.SummaryTitle = L"My folders";
  ASSERT_TRUE(Write());
  EXPECT_EQ(machine_.BytesOf(kPath), kSmallFile);
}

TEST_F(Config, TheSmallFileIsReadAndWrittenAsItWas) {
  ASSERT_TRUE(Read(kSmallFile));
  EXPECT_TRUE(missing_);
  EXPECT_FALSE(ignored_);
  EXPECT_EQ(app_.CurrentConfigFile, kPath);
  EXPECT_TRUE(
      NamesOf(*store_).starts_with(L"MIT_HF_HELP MIT_HF_HELP_SEP MIT_GROUP_USER N1 MIT_PATHS_SYSTEM MIT_HF_DRIVES_SEP "
                                   L"MIT_HF_SETTINGS MIT_HF_ORGANIZE "));
  app_.AC[Appearance::kSystemFolders] = false;
  machine_.clock.Fixed->year = 2020;
  ASSERT_TRUE(Read(kSmallFile));
  ASSERT_TRUE(Write());
  EXPECT_EQ(machine_.BytesOf(kPath), kSmallFile);
}

TEST_F(Config, EveryAttributeSurvives) {
  ASSERT_TRUE(Read(kSmallFile));
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
  const std::string bytes = machine_.BytesOf(kPath);
  ASSERT_TRUE(Read(bytes));
  const ItemRef read = store_->GetMenuItemFromName(L"Line\nName");
  ASSERT_TRUE(read);
  EXPECT_EQ(read->KeyboardCode, 0);
  EXPECT_EQ(read->UserDescription, leaf->UserDescription);
  EXPECT_EQ(app_.Summary.SummaryComments, L"two\r\nlines");
  ASSERT_TRUE(Write());
  EXPECT_EQ(machine_.BytesOf(kPath), bytes);
}

TEST_F(Config, OnlyTheTwoGroupsAndTheirDescendantsAreWritten) {
  app_.AC[Appearance::kSystemFolders] = false;
  ASSERT_TRUE(Read(kSmallFile));
  app_.AC[Appearance::kSystemFolders] = true;
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
  app_.AC[Appearance::kSystemFolders] = false;
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
  const std::size_t start = kSmallFile.find(File("0\nN1\n"));
  const std::string record = kSmallFile.substr(start, kSmallFile.find("[END:]") - start);
  const auto with = [&record](const std::string& old, const std::string& text) {
    return std::string(record).replace(record.find(old), old.size(), text);
  };
  std::string bytes =
      File("[MIT_GROUP_USER:]\n") + with(File("\nMIT_PATH\n"), File("\nMIT_DRIVE\n")) + with("False", "True");
  for (const char* name : {"MIT_HF_SETTINGS", "MIT_HF_HELP", "MIT_HF_ORGANIZE", "MIT_PATHS_DRIVES", "N2"}) {
    bytes += with("N1", name);
  }
  bytes += File("[END:]\n");
  app_.AC[Appearance::kSystemFolders] = app_.AC[Appearance::kHelp] = app_.AC[Appearance::kOptions] = false;
  ASSERT_TRUE(Read(bytes));
  EXPECT_EQ(NamesOf(*store_), L"N2 MIT_HF_DRIVES_SEP MIT_HF_ORGANIZE");
  EXPECT_TRUE(store_->GetMenuItemFromName(MIT_HF_DRIVES_SEP)->Separator());
  app_.AC[Appearance::kHelp] = true;
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
  EXPECT_FALSE(ConfigFileRead(app_, *store_, L"C:\\data\\none.bwmk", missing_, ignored_));
  EXPECT_EQ(app_.CurrentConfigFile, kPath);
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

TEST_F(Config, TitlesAreFilteredAndNumbersAndNamesChecked) {
  const auto with = [](const std::string& old, const std::string& text) {
    std::string bytes = kSmallFile;
    return bytes.replace(bytes.find(old), old.size(), text);
  };
  ASSERT_TRUE(Read(with("Projects", "a/b:c")));
  EXPECT_EQ(store_->GetMenuItemFromName(L"N1")->Caption(), L"abc");
  EXPECT_FALSE(Read(with(File("\n4\n"), File("\n70000\n"))));
  EXPECT_FALSE(Read(with("5|11|2003", "5|11|99999")));
  EXPECT_FALSE(Read(with(File("\nN1\n"), File("\nmit_group_user\n"))));  // two equal keys
}

TEST_F(Config, ATextBeyondTheAnsiPageMakesTheFileUtf8) {
  ASSERT_TRUE(Read(kSmallFile));
  store_->GetMenuItemFromName(L"N1")->SetCaption(L"\x41F\x440 \xE9");
  store_->GetMenuItemFromName(L"N1")->UserDescription = L"a\0b"s;  // a NUL doesn't break the file
  ASSERT_TRUE(Write());
  EXPECT_TRUE(machine_.BytesOf(kPath).starts_with("[UTF-8:]\0[MIT_GROUP_USER:]\0"s));
  ASSERT_TRUE(Read(machine_.BytesOf(kPath)));
  EXPECT_EQ(store_->GetMenuItemFromName(L"N1")->Caption(), L"\x41F\x440 \xE9");
  EXPECT_EQ(store_->GetMenuItemFromName(L"N1")->UserDescription, L"ab");
  store_->GetMenuItemFromName(L"N1")->SetCaption(L"\x20AC \xE9");
  ASSERT_TRUE(Write());
  EXPECT_NE(machine_.BytesOf(kPath).find("\x80 \xE9"), std::string::npos);
  EXPECT_TRUE(machine_.BytesOf(kPath).starts_with("[MIT_GROUP_USER:]"));
}

TEST_F(Config, TheSummaryIsReplacedAndTheRecordsStayByteForByte) {
  std::string bytes = kSmallFile;
  const std::string texts = File("\n\nContains your shortcuts");  // ahead of it the remark and the hot key
  bytes.replace(bytes.find(texts), texts.size(), File("[END:]\n\n[SUMMARY_TITLE:]"));  // texts of the user's
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
  machine_.AddFile(kPath, kSmallFile.substr(0, 30) + "\xE9" + kSmallFile.substr(31));
  app_.Summary.SummaryTitle = L"\x41F";  // makes an ANSI file one of UTF-8
  ASSERT_TRUE(ConfigFileUpdateSummary(app_, kPath));
  EXPECT_NE(machine_.BytesOf(kPath).find("\xC3\xA9"), std::string::npos);
}

TEST_F(Config, TheSummaryOfADamagedOrMissingFile) {
  EXPECT_TRUE(ConfigFileUpdateSummary(app_, L"C:\\data\\none.bwmk"));
  EXPECT_FALSE(machine_.files.FileExists(L"C:\\data\\none.bwmk"));
  app_.Summary.SummaryTitle = L"New";
  const std::string cut = kSmallFile.substr(0, kSmallFile.find("[END:]"));
  machine_.AddFile(kPath, cut);
  EXPECT_FALSE(ConfigFileUpdateSummary(app_, kPath));
  EXPECT_EQ(machine_.BytesOf(kPath), cut);
}

TEST_F(Config, TheListingShowsCountsAndTheTree) {
  app_.AC[Appearance::kSystemFolders] = false;
  ASSERT_TRUE(Read(kSmallFile));
  app_.AC[Appearance::kSystemFolders] = true;
  store_->AddNewMenuItem({.Caption = L"Group", .OwnerName = MIT_GROUP_USER, .Name = L"G", .SubMenu = true});
  store_->AddNewMenuItem({.Caption = L"Inner", .OwnerName = L"G", .FolderPath = L"C:\\i"});
  store_->AddNewMenuItem({.OwnerName = L"G", .ItemType = MIT_OPENALL});
  store_->AddNewMenuItem({.Caption = L"D", .OwnerName = L"G", .ItemType = MIT_DRIVE});  // counts nowhere
  store_->AddNewMenuItem(
      {.Caption = L"System Folders", .OwnerName = kRootOwner, .Name = MIT_PATHS_SYSTEM, .SubMenu = true});
  ASSERT_TRUE(Write(true));
  EXPECT_EQ(machine_.BytesOf(kPath),
            "C:\\data\\tree.bwmk\r\n\r\n"
            "Number of shortcuts: 2\r\nNumber of Folder Shortcuts: 1\r\nNumber of Windows Explorer Shortcuts: 1\r\n"
            "Number of Open-All shortcuts: 1\r\nNumber of groups: 3\r\n\r\n"
            "[Personal]\r\n [Group]\r\n  D ()\r\n  Inner (C:\\i)\r\n  Open-All ()\r\n Projects (D:\\Projects)\r\n"
            "[System Folders]\r\n");
  store_->GetMenuItemFromName(L"N1")->SetCaption(L"\x41F");
  store_->GetMenuItemFromName(MIT_GROUP_USER)->SetOwnerName(L"G");  // a circle of owners ends
  ASSERT_TRUE(Write(true));
  EXPECT_TRUE(machine_.BytesOf(kPath).starts_with("\xEF\xBB\xBF"));
}

TEST_F(Config, TheDefaultFileIsRegisteredOrBesideTheProgram) {
  GetConfigFileName(app_, false);
  EXPECT_EQ(app_.ConfigFile, L"C:\\Program Files\\Burrowmark\\default.bwmk");
  SaveConfigFileName(app_, L"D:\\mine.bwmk");
  GetConfigFileName(app_, false);
  EXPECT_EQ(app_.ConfigFile, L"D:\\mine.bwmk");
  GetConfigFileName(app_, true);
  SaveConfigFileName(app_, L"");
  EXPECT_EQ(scratch_.Registered(kSettingsKey, kConfigFileValue), app_.ConfigFile);
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

TEST_F(Config, WhateverTheBytesAReadEndsAndLeavesAStoreThatHoldsTogether) {
  for (std::size_t length = 0; length <= kSmallFile.size(); ++length) {
    ASSERT_EQ(test::BrokenBy(app_, kSmallFile.substr(0, length)), "") << "length " << length;
  }
  for (std::size_t at = 0; at < kSmallFile.size(); ++at) {
    for (const int value : {kSmallFile[at] ^ 1, kSmallFile[at] ^ 0x20, 0, 255}) {
      std::string bytes = kSmallFile;
      bytes[at] = static_cast<char>(value);
      ASSERT_EQ(test::BrokenBy(app_, bytes), "") << "byte " << at << " as " << value;
    }
  }
}

}  // namespace
}  // namespace burrowmark
