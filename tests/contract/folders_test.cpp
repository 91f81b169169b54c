// Which path means which file, folder or drive, and what a folder holds.
#include <map>

#include "platform/characters.h"
#include "tests/contract/system_under_test.h"

namespace burrowmark {
namespace {

class FoldersContract : public ContractTest {
 protected:
  // Names and attributes in an order of our own: the disk's is its own affair.
  std::map<std::wstring, std::uint32_t> List(const std::wstring& path) {
    std::vector<FolderEntry> entries = {{L"from before", 0}};
    EXPECT_TRUE(files_.ListFolder(path, entries)) << ToUtf8(path);
    std::map<std::wstring, std::uint32_t> listed;
    for (const FolderEntry& entry : entries) listed.emplace(entry.name, entry.attributes);
    EXPECT_EQ(listed.size(), entries.size()) << "each comes once";
    return listed;
  }
};

TEST_F(FoldersContract, FilesAndFoldersAreToldApartInEveryLetterCase) {
  ASSERT_TRUE(Make(In(L"file \u00E4")) && files_.CreateFolder(In(L"Folder \u0416")));
  const std::pair<const wchar_t*, char> rows[] = {{L"FILE \u00C4", 'f'},     {L"folder \u0436", 'd'},
                                                  {L"Folder \u0416\\", 'd'}, {L"missing", ' '},
                                                  {L"file \u00E4\\x", ' '},  {L"Folder \u0416\\x", ' '}};
  for (const auto& [name, kind] : rows) {
    EXPECT_EQ(files_.FileExists(In(name)), kind == 'f') << ToUtf8(name);
    EXPECT_EQ(files_.FolderExists(In(name)), kind == 'd') << ToUtf8(name);
  }
}

TEST_F(FoldersContract, OnlyAbsolutePathsMeanAnything) {
  for (const wchar_t* path : {L"", L"C", L"\\", L"\\\\", L"Windows", L".", L"C:Windows", L"\\Windows"}) {
    SCOPED_TRACE(ToUtf8(path));
    EXPECT_FALSE(files_.FileExists(path));
    EXPECT_FALSE(files_.FolderExists(path));
    EXPECT_FALSE(files_.CreateFolder(path));
    EXPECT_FALSE(files_.CreateNewFile(path));
  }
}

TEST_F(FoldersContract, NamesOfAllAlphabetsAreCarriedThroughEveryCall) {
  for (const wchar_t* word : {L"caf\u00E9 \u20AC", L"\u041F\u0430\u043F\u043A\u0430", L"\U0001F98A & b = c; [d] %g^"}) {
    const std::wstring name(word);
    SCOPED_TRACE(ToUtf8(name));
    ASSERT_TRUE(files_.CreateFolder(In(name)));
    const std::wstring path = In(name) + L'\\' + name;
    EXPECT_TRUE(Make(path + L"1", "content"));
    EXPECT_TRUE(files_.MoveFileExA(path + L"1", path + L"2"));
    EXPECT_TRUE(files_.SetFileAttributesA(path + L"2", kFileHidden));
    EXPECT_TRUE(files_.CopyFileA(path + L"2", path + L"3", true));
    EXPECT_EQ(Content(path + L"3"), "content");
    EXPECT_TRUE(files_.DeleteFileA(path + L"2"));
    EXPECT_FALSE(files_.FileExists(path + L"2"));
  }
}

TEST_F(FoldersContract, SomeNamesAreNeverFilesOrFolders) {
  for (const wchar_t* name : {L"a*b", L"a?b", L"a<b", L"a>b", L"a|b", L"a\"b"}) {
    EXPECT_FALSE(Make(In(name))) << ToUtf8(name);
    EXPECT_FALSE(files_.CreateFolder(In(name))) << ToUtf8(name);
  }
  EXPECT_FALSE(Make(In(std::wstring(256, L'x'))));
}

TEST_F(FoldersContract, PathsMayBeLongerThanTheOldLimit) {
  std::wstring folder = system_->Folder();
  while (folder.size() < 500) {
    folder += L'\\' + std::wstring(45, L'n');
    ASSERT_TRUE(files_.CreateFolder(folder)) << folder.size();
  }
  EXPECT_TRUE(files_.FolderExists(folder));
  EXPECT_TRUE(Make(folder + L"\\a", "content"));
  EXPECT_TRUE(files_.MoveFileExA(folder + L"\\a", folder + L"\\b"));
  EXPECT_EQ(List(folder).size(), 1U);
  EXPECT_TRUE(files_.CopyFileA(folder + L"\\b", In(L"short"), true));
  EXPECT_EQ(Content(In(L"short")), "content");
  EXPECT_TRUE(files_.DeleteFileA(folder + L"\\b"));
}

TEST_F(FoldersContract, FoldersAreMadeOneAtATime) {
  EXPECT_FALSE(files_.CreateFolder(In(L"a\\b")));
  EXPECT_TRUE(files_.CreateFolder(In(L"a")));
  EXPECT_FALSE(files_.CreateFolder(In(L"A")));
  EXPECT_TRUE(files_.CreateFolder(In(L"a\\b\\")));
  EXPECT_TRUE(files_.FolderExists(In(L"a\\b")));
}

TEST_F(FoldersContract, AllEntriesComeInTheirSpellingWithTheirAttributes) {
  EXPECT_TRUE(List(system_->Folder()).empty()) << "neither the folder itself nor its parent is an entry";
  const wchar_t* names[] = {L"b.txt", L"A.LNK", L"Caf\u00E9 \u20AC", L"\u041F\u0430\u043F\u043A\u0430", L"\U0001F98A"};
  for (const wchar_t* name : names) ASSERT_TRUE(Make(In(name)));
  ASSERT_TRUE(files_.CreateFolder(In(L"Sub")) && Make(In(L"Sub\\below")) && files_.CreateFolder(In(L"Hidden")));
  ASSERT_TRUE(files_.SetFileAttributesA(In(L"b.txt"), kFileHidden | kFileSystem));
  ASSERT_TRUE(files_.SetFileAttributesA(In(L"Hidden"), kFileHidden));

  std::map<std::wstring, std::uint32_t> listed = List(system_->Folder());
  EXPECT_EQ(listed.size(), std::size(names) + 2);
  for (const wchar_t* name : names) EXPECT_EQ(listed.count(name), 1U) << ToUtf8(name);
  constexpr std::uint32_t kMask = kFileHidden | kFileSystem | kFileDirectory;
  EXPECT_EQ(listed[L"b.txt"] & kMask, kFileHidden | kFileSystem);
  EXPECT_EQ(listed[L"Sub"] & kMask, kFileDirectory);
  EXPECT_EQ(listed[L"Hidden"] & kMask, kFileHidden | kFileDirectory);
  EXPECT_EQ(List(In(L"SUB\\")).count(L"below"), 1U);
}

TEST_F(FoldersContract, WhatIsNoFolderIsNotListed) {
  ASSERT_TRUE(Make(In(L"file")) && files_.CreateFolder(In(L"folder")));
  for (const std::wstring& path :
       {In(L"missing"), In(L"file"), In(L"fold*"), std::wstring(), std::wstring(L"folder")}) {
    std::vector<FolderEntry> entries = {{L"from before", 0}};
    EXPECT_FALSE(files_.ListFolder(path, entries)) << ToUtf8(path);
    EXPECT_TRUE(entries.empty());
  }
}

TEST_F(FoldersContract, AWalkShowsWhatTheListingShowsWithTheFactsOfEachEntry) {
  ASSERT_TRUE(Make(In(L"a long name of a file.txt"), "content") && Make(In(L"b"), "") && Make(In(L"c"), "c"));
  ASSERT_TRUE(files_.CreateFolder(In(L"Sub")) && Make(In(L"Sub\\below")));
  ASSERT_TRUE(files_.SetFileAttributesA(In(L"b"), kFileHidden | kFileReadOnly));
  const bool linked = system_->LinkFolder(In(L"link"), system_->Folder());
  std::map<std::wstring, std::uint32_t> shown;
  EXPECT_TRUE(files_.WalkFolder(system_->Folder(), [&](const FolderEntry& entry, const FileFacts& facts) {
    SCOPED_TRACE(ToUtf8(entry.name));
    shown.emplace(entry.name, entry.attributes);
    EXPECT_EQ(entry.isLink, entry.name == L"link");
    EXPECT_EQ(facts.attributes, entry.attributes);
    if (entry.isLink) return true;
    const std::optional<FileFacts> alone = files_.GetFileFacts(In(entry.name));
    const auto minute = [](const std::optional<LocalTime>& time) { return time ? time->hour * 60 + time->minute : -1; };
    EXPECT_TRUE(alone && alone->size == facts.size && alone->shortName == facts.shortName &&
                minute(alone->modified) == minute(facts.modified) && minute(alone->created) == minute(facts.created));
    return true;
  }));
  EXPECT_EQ(shown, List(system_->Folder()));
  EXPECT_EQ(shown.size(), linked ? 5U : 4U) << "nothing from below, and nothing of what the link leads to";

  int visits = 0;
  const auto stopAtTwo = [&visits](const FolderEntry&, const FileFacts&) { return ++visits < 2; };
  EXPECT_FALSE(files_.WalkFolder(system_->Folder(), stopAtTwo));
  EXPECT_EQ(visits, 2);
  for (const wchar_t* name : {L"missing", L"b", L"Su*"}) {
    EXPECT_FALSE(files_.WalkFolder(In(name), stopAtTwo)) << ToUtf8(name);
  }
  EXPECT_EQ(visits, 2);
}

TEST_F(FoldersContract, KindsOfFilesHaveNames) {
  const std::wstring folder = files_.GetTypeName({}, true);
  const std::wstring unknown = files_.GetTypeName(L".burrow", false);
  EXPECT_NE(folder, L"");
  EXPECT_NE(files_.GetTypeName({}, false), L"");
  EXPECT_TRUE(unknown.find(L"BURROW") != std::wstring::npos || unknown.find(L"burrow") != std::wstring::npos)
      << ToUtf8(unknown);
  EXPECT_NE(unknown, folder);
}

TEST_F(FoldersContract, ADeletedFolderGoesWithAllThatIsInIt) {
  const std::wstring below = In(L"gone") + L"\\a folder of a rather long name \u0416" + std::wstring(120, L'n');
  ASSERT_TRUE(files_.CreateFolder(In(L"gone")) && files_.CreateFolder(below) && files_.CreateFolder(below + L"\\x"));
  ASSERT_TRUE(Make(In(L"stays")));
  for (const std::wstring& path : {In(L"gone\\file"), below + L"\\fixed", below + L"\\x\\hidden"}) {
    ASSERT_TRUE(Make(path));
    ASSERT_TRUE(files_.SetFileAttributesA(path, kFileReadOnly | kFileHidden | kFileSystem));
  }
  ASSERT_TRUE(files_.SetFileAttributesA(below, kFileReadOnly | kFileSystem));

  EXPECT_TRUE(files_.DeleteFolder(In(L"GONE")));
  for (const wchar_t* name : {L"gone", L"stays"}) EXPECT_FALSE(files_.DeleteFolder(In(name))) << ToUtf8(name);
  EXPECT_EQ(List(system_->Folder()).size(), 1U);
}

TEST_F(FoldersContract, WhatAnotherProgramHoldsStaysInADeletedFolder) {
  ASSERT_TRUE(files_.CreateFolder(In(L"a")) && files_.CreateFolder(In(L"a\\b")) && files_.CreateFolder(In(L"a\\c")));
  ASSERT_TRUE(Make(In(L"a\\b\\held"), "held") && Make(In(L"a\\b\\free")) && Make(In(L"a\\c\\free")));
  std::shared_ptr<void> hold = system_->HoldOpen(In(L"a\\b\\held"));
  EXPECT_FALSE(files_.DeleteFolder(In(L"a")));
  hold.reset();
  EXPECT_EQ(Content(In(L"a\\b\\held")), "held");
  EXPECT_EQ(List(In(L"a")).size(), 1U);
  EXPECT_EQ(List(In(L"a\\b")).size(), 1U);
}

TEST_F(FoldersContract, WhatALinkLeadsToIsNotDeleted) {
  ASSERT_TRUE(files_.CreateFolder(In(L"elsewhere")) && Make(In(L"elsewhere\\file"), "kept"));
  ASSERT_TRUE(files_.CreateFolder(In(L"folder")) && files_.CreateFolder(In(L"folder\\below")));
  if (!system_->LinkFolder(In(L"folder\\below\\link"), In(L"elsewhere"))) {
    GTEST_SKIP() << "no links to folders can be made here";
  }
  EXPECT_EQ(Content(In(L"folder\\below\\link\\file")), "kept");
  // Wine takes the link for its target, which isn't empty.
  EXPECT_EQ(files_.DeleteFolder(In(L"folder")), !system_->IsWine());
  EXPECT_EQ(files_.FolderExists(In(L"folder")), system_->IsWine());
  EXPECT_EQ(Content(In(L"elsewhere\\file")), "kept");
}

TEST_F(FoldersContract, EveryDriveIsListedInTheOrderOfTheLettersWithTheNameOfAFixedOne) {
  std::wstring letters;
  for (const std::wstring& entry : files_.DriveList()) {
    SCOPED_TRACE(ToUtf8(entry));
    const std::wstring drive = entry.substr(0, 2);
    letters += UpperCase(drive[0]);
    EXPECT_EQ(drive, std::wstring({LowerCase(drive[0]), L':'}));
    const std::int32_t type = files_.GetDriveTypeA(drive);
    EXPECT_NE(type, kDriveTypeNone);
    std::wstring label;
    if (type == kDriveTypeRemote) continue;
    if (type == kDriveTypeFixed) files_.GetVolumeInformationA(drive, label);
    EXPECT_EQ(entry, label.empty() ? drive : drive + L" [" + label + L"]");
  }
  std::wstring expected;
  for (wchar_t letter = L'A'; letter <= L'Z'; ++letter) {
    if (files_.DriveExists({letter, L':'})) expected += letter;
  }
  EXPECT_EQ(letters, expected);
}

TEST_F(FoldersContract, ADriveIsAskedForByItsLetter) {
  std::wstring label;
  for (const wchar_t* drive : {L"C:", L"c:", L"C:\\"}) {
    EXPECT_TRUE(files_.DriveExists(drive)) << ToUtf8(drive);
    EXPECT_EQ(files_.GetDriveTypeA(drive), kDriveTypeFixed);
    EXPECT_TRUE(files_.GetVolumeInformationA(drive, label));
  }
  std::wstring missing = L"A:";
  while (missing[0] < L'Z' && files_.DriveExists(missing)) ++missing[0];
  for (const std::wstring& drive : {missing, std::wstring(L"C:\\Windows"), std::wstring(L"\\\\a\\b")}) {
    EXPECT_FALSE(files_.DriveExists(drive)) << ToUtf8(drive);
    EXPECT_EQ(files_.GetDriveTypeA(drive), kDriveTypeNone) << ToUtf8(drive);
    EXPECT_FALSE(files_.GetVolumeInformationA(drive, label)) << ToUtf8(drive);
  }
  EXPECT_FALSE(files_.FolderExists(missing + L"\\"));
}

}  // namespace
}  // namespace burrowmark
