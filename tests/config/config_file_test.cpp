#include "config/config_file.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

#include "config/config_repair.h"
#include "core/registry_keys.h"
#include "core/text.h"
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
    std::optional<OpenedConfig> opened = ConfigFileRead(app_, kPath);
    if (!opened) return false;
    missing_ = opened->SystemGroupMissing;
    ignored_ = opened->SystemGroupIgnored;
    document_ = std::move(opened->document);
    store_ = document_.Store;
    return true;
  }
  bool Write() { return ConfigFileWrite(app_, document_); }

  test::ScratchMachine scratch_;
  LocalMachine& machine_ = scratch_.machine;
  Application& app_ = scratch_.app;
  std::shared_ptr<clsMenuCollection> store_ = std::make_shared<clsMenuCollection>(machine_.clock);
  Document document_{.Store = store_, .CurrentConfigFile = kPath};
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
  document_.Summary.SummaryTitle = L"My folders";
  ASSERT_TRUE(Write());
  EXPECT_EQ(machine_.BytesOf(kPath), kSmallFile);
}

TEST_F(Config, TheSmallFileIsReadAndWrittenAsItWas) {
  ASSERT_TRUE(Read(kSmallFile));
  EXPECT_TRUE(missing_);
  EXPECT_FALSE(ignored_);
  EXPECT_EQ(document_.CurrentConfigFile, kPath);
  EXPECT_EQ(document_.Content, FileContent::kWhole);
  EXPECT_EQ(NamesOf(*store_), L"MIT_GROUP_USER N1");
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
  document_.Summary = {L"[END:]", L"author", L"category", L"key words", L"two\r\nlines"};
  ASSERT_TRUE(Write());
  const std::string bytes = machine_.BytesOf(kPath);
  ASSERT_TRUE(Read(bytes));
  const ItemRef read = store_->GetMenuItemFromName(L"Line\nName");
  ASSERT_TRUE(read);
  EXPECT_EQ(read->KeyboardCode, 0);
  EXPECT_EQ(read->UserDescription, leaf->UserDescription);
  EXPECT_EQ(document_.Summary.SummaryComments, L"two\r\nlines");
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
  EXPECT_EQ(NamesOf(*store_), L"MIT_GROUP_USER N1 MIT_PATHS_SYSTEM S1");
  app_.AC[Appearance::kSystemFolders] = false;
  ASSERT_TRUE(Read(both));
  EXPECT_TRUE(ignored_);
  EXPECT_FALSE(missing_);
  EXPECT_FALSE(store_->ItemExists(L"S1"));
  EXPECT_EQ(document_.Summary.SummaryTitle, L"My folders");
}

TEST_F(Config, TheSystemFoldersSectionMayBeEmptyAndThePersonalGroupMayNot) {
  EXPECT_TRUE(Read(kSmallFile + File("[MIT_PATHS_SYSTEM:]\n[END:]\n")));
  EXPECT_TRUE(missing_);  // an empty group is made anew as a missing one is
  EXPECT_FALSE(Read(File("[MIT_GROUP_USER:]\n[END:]\n[MIT_PATHS_SYSTEM:]\n[END:]\n")));
}

TEST_F(Config, NoFixedEntryComesFromTheFile) {
  const std::size_t start = kSmallFile.find(File("0\nN1\n"));
  const std::string record = kSmallFile.substr(start, kSmallFile.find("[END:]") - start);
  const auto with = [&record](const std::string& old, const std::string& text) {
    return std::string(record).replace(record.find(old), old.size(), text);
  };
  std::string more = with(File("\nMIT_PATH\n"), File("\nMIT_DRIVE\n")) + with("False", "True");
  for (const char* name : {"MIT_HF_SETTINGS", "MIT_HF_HELP", "MIT_HF_ORGANIZE", "MIT_PATHS_DRIVES", "N2"}) {
    more += with("N1", name);
  }
  ASSERT_TRUE(Read(std::string(kSmallFile).insert(start, more)));
  EXPECT_EQ(NamesOf(*store_), L"MIT_GROUP_USER N2 N1");
}

// Entries as "name<owner", a group in capitals, but for generated names; "P" is the personal group, "S" System Folders.
TEST_F(Config, DamagedFilesKeepEveryEntryInItsPlaceOrInThePersonalGroup) {
  const struct {
    const char* trouble;
    std::wstring file;
    std::wstring read;
    bool damaged = true;
  } rows[] = {
      {"none", L"P<- A<P x<A S<- z<S", L"P<- A<P x<A S<- z<S", false},
      {"no owner", L"P<- x<Q B<- y<B", L"P<- x<P B<P y<B"},
      {"a leaf at the root, or as an owner", L"P<- x<- y<x", L"P<- x<P y<P"},
      {"ahead of its owner", L"x<B y<C B<C P<- C<P w<B", L"P<- C<P y<C B<C x<B w<B"},
      {"circles", L"P<- A<B x<A B<C C<B D<D", L"P<- B<P A<B x<A C<B D<P"},
      {"letter case", L"P<- GROUP<P x<Group", L"P<- GROUP<P x<GROUP"},
      {"the personal group in itself", L"P<P x<P", L"P<- x<P"},
      {"one name twice", L"P<- A<P A<P x<A N2<P N1<P", L"P<- A<P N3<P x<A N2<P N1<P"},
  };
  const auto full = [](const std::wstring& word) -> std::wstring {
    return word == L"P" ? MIT_GROUP_USER : word == L"S" ? MIT_PATHS_SYSTEM : word == L"-" ? kRootOwner : word;
  };
  for (const auto& row : rows) {
    std::vector<ItemRef> items;
    for (const std::wstring& entry : Split(row.file, L' ')) {
      const std::vector<std::wstring> parts = Split(entry, L'<');
      const bool group = parts[0] == UpperCaseText(parts[0]) && parts[0][0] != L'N';
      items.push_back(test::MakeItem(machine_.clock, full(parts[0]), parts[0], full(parts[1]), group));
    }
    EXPECT_EQ(RepairItems(items), row.damaged ? Repair::kDone : Repair::kNotNeeded) << row.trouble;
    std::wstring read;
    for (const ItemRef& item : items) read += L" " + item->Name() + L"<" + item->OwnerName();
    std::wstring expected;
    for (const std::wstring& entry : Split(row.read, L' ')) {
      expected += L" " + full(Split(entry, L'<')[0]) + L"<" + full(Split(entry, L'<')[1]);
    }
    EXPECT_EQ(read, expected) << row.trouble;
  }
}

TEST_F(Config, ADamagedFileIsKeptOnceAndTheDaysFirstSaveKeepsTheVersionBefore) {
  const std::wstring previous = L"C:\\data\\tree (previous).bwmk";
  machine_.clock.Fixed.reset();
  const std::string damaged = std::string(kSmallFile).replace(kSmallFile.find("MIT_GROUP_USER\0004"s), 14, "nobody");
  ASSERT_TRUE(Read(damaged));
  EXPECT_EQ(document_.Content, FileContent::kDamaged);
  machine_.AddFile(previous, "good");
  const auto age = [&] {
    const std::filesystem::path file = machine_.RealPath(kPath);
    std::filesystem::last_write_time(file, std::filesystem::last_write_time(file) - std::chrono::hours(25));
  };
  age();
  ASSERT_TRUE(Write() && Write());
  EXPECT_EQ(machine_.BytesOf(L"C:\\data\\tree (unreadable).bwmk"), damaged);
  EXPECT_EQ(document_.Notice, L"Configuration file tree.bwmk is damaged. It is kept as tree (unreadable).bwmk.");
  EXPECT_EQ(machine_.BytesOf(previous), "good") << "a damaged version isn't worth it";
  const std::string saved = machine_.BytesOf(kPath);
  document_.Summary.SummaryTitle = L"New";
  // A fault at any step: the file is the old or the new one, and so is the version before.
  std::size_t step = 0;
  for (bool struck = true; struck;) {
    machine_.AddFile(kPath, saved);
    machine_.AddFile(previous, "good");
    age();
    machine_.faults.Clear();
    machine_.faults.FailCall(++step);
    Document copy = document_;
    const bool written = ConfigFileWrite(app_, copy);
    struck = machine_.faults.Failed() > 0;
    machine_.faults.Clear();
    EXPECT_EQ(machine_.BytesOf(kPath) == saved, !written) << step;
    const std::string before = machine_.BytesOf(previous);
    EXPECT_TRUE(before == saved || before == "good") << step;
    ASSERT_TRUE(ConfigFileRead(app_, kPath)) << step;
    EXPECT_FALSE(machine_.files.FileExists(kPath + L".~burrowmark"s)) << step;
    EXPECT_FALSE(machine_.files.FileExists(previous + L".~burrowmark")) << step;
  }
  EXPECT_GT(step, 15U);
  EXPECT_EQ(machine_.BytesOf(previous), saved);
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
    EXPECT_EQ(document_.Summary.SummaryTitle, L"My folders");
  }
  EXPECT_FALSE(ConfigFileRead(app_, L"C:\\data\\none.bwmk"));
}

TEST_F(Config, AnEmptyFileIsDeletedAndAFileThatCannotBeReadIsNot) {
  EXPECT_FALSE(Read(""));
  EXPECT_FALSE(machine_.files.FileExists(kPath));
  machine_.AddFile(kPath, kSmallFile);
  machine_.faults.HeldOpen.insert(L"C:\\DATA\\TREE.BWMK");
  EXPECT_FALSE(ConfigFileRead(app_, kPath));
  machine_.faults.Clear();
  EXPECT_TRUE(machine_.files.FileExists(kPath));
}

TEST_F(Config, ASummaryStartsEmptyAndARepeatedSectionOverwrites) {
  ASSERT_TRUE(Read(kSmallFile + File("[SUMMARY_TITLE:]\nlater\n[END:]\n[SUMMARY_KEYWORDS:]\n")));
  EXPECT_EQ(document_.Summary.SummaryAuthor, L"");
  EXPECT_EQ(document_.Summary.SummaryTitle, L"later");
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
  ASSERT_TRUE(Read(with(File("\nN1\n"), File("\nmit_group_user\n"))));  // two equal keys
  EXPECT_EQ(NamesOf(*store_), L"MIT_GROUP_USER N1");
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
  ASSERT_TRUE(Read(bytes + File("[OTHER:]\nkept\n")));
  document_.Summary.SummaryTitle = L"New";
  document_.Summary.SummaryComments = L"c";
  ASSERT_TRUE(ConfigFileUpdateSummary(app_, document_));
  const std::string records = bytes.substr(0, bytes.rfind("[SUMMARY_TITLE:]"));
  const std::string expected =
      records + File("[OTHER:]\nkept\n[SUMMARY_TITLE:]\nNew\n[END:]\n[SUMMARY_COMMENTS:]\nc\n[END:]\n");
  EXPECT_EQ(machine_.BytesOf(kPath), expected);
  ASSERT_TRUE(ConfigFileUpdateSummary(app_, document_));
  EXPECT_EQ(machine_.BytesOf(kPath), expected);
  document_.Summary = {};
  ASSERT_TRUE(ConfigFileUpdateSummary(app_, document_));
  EXPECT_EQ(machine_.BytesOf(kPath), records + File("[OTHER:]\nkept\n"));
  machine_.AddFile(kPath, std::string(kSmallFile).replace(kSmallFile.find("Personal"), 1, "\xE9"));
  document_.Summary.SummaryTitle = L"\x41F";  // makes an ANSI file one of UTF-8
  ASSERT_TRUE(ConfigFileUpdateSummary(app_, document_));
  EXPECT_NE(machine_.BytesOf(kPath).find("\xC3\xA9"), std::string::npos);
}

TEST_F(Config, TheSummaryOfADamagedOrMissingFile) {
  EXPECT_TRUE(ConfigFileUpdateSummary(app_, document_));
  EXPECT_FALSE(machine_.files.FileExists(kPath));
  ASSERT_TRUE(Read(kSmallFile));
  document_.Summary.SummaryTitle = L"New";
  const std::string cut = kSmallFile.substr(0, kSmallFile.find("[END:]"));
  for (const std::string& bytes : {cut, "no marker"s, File("[OTHER:]\n"), ""s}) {
    machine_.AddFile(kPath, bytes);
    EXPECT_FALSE(ConfigFileUpdateSummary(app_, document_));
    EXPECT_EQ(machine_.BytesOf(kPath), bytes);
  }
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
  ASSERT_TRUE(ConfigFileExport(app_, document_, kPath));
  EXPECT_EQ(machine_.BytesOf(kPath),
            "C:\\data\\tree.bwmk\r\n\r\n"
            "Number of shortcuts: 2\r\nNumber of Folder Shortcuts: 1\r\nNumber of Windows Explorer Shortcuts: 1\r\n"
            "Number of Open-All shortcuts: 1\r\nNumber of groups: 3\r\n\r\n"
            "[Personal]\r\n [Group]\r\n  D ()\r\n  Inner (C:\\i)\r\n  Open-All ()\r\n Projects (D:\\Projects)\r\n"
            "[System Folders]\r\n");
  store_->GetMenuItemFromName(L"N1")->SetCaption(L"\x41F");
  store_->GetMenuItemFromName(MIT_GROUP_USER)->SetOwnerName(L"G");  // a circle of owners ends
  ASSERT_TRUE(ConfigFileExport(app_, document_, kPath));
  EXPECT_TRUE(machine_.BytesOf(kPath).starts_with("\xEF\xBB\xBF"));
}

// Where the default file is, by what stands where; "D:" is a drive that comes and goes.
TEST_F(Config, TheDefaultFileIsTheFirstThatIsThereAndOnlyOneThatCanBeSavedIsRegistered) {
  const std::wstring beside = L"C:\\Program Files\\Burrowmark\\default.bwmk";
  const std::wstring data = scratch_.Registered(kShellFoldersKey, L"AppData") + L"\\Kestrelan\\Burrowmark";
  const std::wstring own = data + L"\\default.bwmk";
  const std::wstring mine = L"D:\\mine.bwmk";
  const auto expect = [&](const std::wstring& path, const std::wstring& source, bool registers) {
    const DefaultFile file = FindDefaultFile(app_);
    EXPECT_EQ(file.path, path);
    EXPECT_EQ(file.source, source);
    EXPECT_EQ(file.registers, registers);
  };
  machine_.AddFolders(app_.AppPath);
  expect(beside, {}, false);
  machine_.faults.FoldersWithoutNewFiles.insert(UpperCaseText(app_.AppPath));
  expect(own, {}, false);
  EXPECT_FALSE(machine_.files.FolderExists(data));
  machine_.AddFile(beside);
  expect(own, beside, true);
  app_.ConfigFile = own;
  ASSERT_TRUE(ConfigFileWriteAs(app_, document_, own));  // makes the folder
  expect(own, own, true);
  machine_.faults.FoldersWithoutNewFiles.insert(UpperCaseText(data));
  expect(own, own, false);
  machine_.faults.Clear();
  expect(beside, beside, true);
  machine_.files.DeleteFileA(beside);
  expect(own, own, true);  // a start that may write beside the program doesn't hide it

  ASSERT_TRUE(machine_.drives.Add(L'D'));
  machine_.AddFile(mine);
  SaveConfigFileName(app_, mine);
  expect(mine, mine, false);
  ASSERT_TRUE(machine_.drives.Remove(L'D'));
  expect(own, own, false);
  machine_.files.DeleteFileA(own);
  expect(mine, {}, false);  // the tree made meanwhile belongs to it
  EXPECT_EQ(OwnPath(app_, L"c:" + UpperCaseText(own).substr(2)), own);
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
