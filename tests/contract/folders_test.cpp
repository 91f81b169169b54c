// What a folder holds.
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
    for (const FolderEntry& entry : entries) {
      EXPECT_TRUE(listed.emplace(entry.name, entry.attributes).second) << "twice: " << ToUtf8(entry.name);
    }
    return listed;
  }
};
INSTANTIATE_TEST_SUITE_P(Systems, FoldersContract, ::testing::ValuesIn(Systems()), KindName);

TEST_P(FoldersContract, AllEntriesComeOnceInTheirSpellingWithTheirAttributes) {
  const std::wstring names[] = {L"b.txt",      L"A.LNK",      L"Caf\u00E9 \u20AC", L"\u041F\u0430\u043F\u043A\u0430",
                                L"\U0001F98A", L"a & b = [c]"};
  for (const std::wstring& name : names) ASSERT_TRUE(Make(In(name)));
  ASSERT_TRUE(files_.CreateFolder(In(L"Sub")) && Make(In(L"Sub\\below")) && files_.CreateFolder(In(L"Hidden")));
  ASSERT_TRUE(files_.SetFileAttributesA(In(L"b.txt"), kFileHidden | kFileSystem | kFileArchive));
  ASSERT_TRUE(files_.SetFileAttributesA(In(L"Hidden"), kFileHidden));

  const std::map<std::wstring, std::uint32_t> listed = List(system_->Folder());
  EXPECT_EQ(listed.size(), std::size(names) + 2);
  for (const std::wstring& name : names) EXPECT_EQ(listed.count(name), 1U) << ToUtf8(name);
  for (const auto& [name, attributes] : listed) {
    EXPECT_EQ(attributes, files_.GetFileAttributesA(In(name))) << ToUtf8(name);
  }
  constexpr std::uint32_t kMask = kFileHidden | kFileSystem | kFileDirectory;
  EXPECT_EQ(listed.at(L"b.txt") & kMask, kFileHidden | kFileSystem);
  EXPECT_EQ(listed.at(L"Sub") & kMask, kFileDirectory);
  EXPECT_EQ(listed.at(L"Hidden") & kMask, kFileHidden | kFileDirectory);
}

TEST_P(FoldersContract, AFolderIsListedWhateverTheSpellingOfItsPath) {
  ASSERT_TRUE(files_.CreateFolder(In(L"Folder")) && Make(In(L"Folder\\x")));
  for (const wchar_t* name : {L"Folder", L"folder\\", L"FOLDER/", L"folder\\..\\folder", L".\\folder"}) {
    EXPECT_EQ(List(In(name)).count(L"x"), 1U) << ToUtf8(name);
  }
  for (const wchar_t* root : {L"C:", L"c:\\"}) {
    bool found = false;
    for (const auto& [name, attributes] : List(root)) found = found || EqualIgnoringCase(name, L"Windows");
    EXPECT_TRUE(found) << ToUtf8(root);
  }
}

TEST_P(FoldersContract, AnEmptyFolderHasNoEntries) {
  ASSERT_TRUE(files_.CreateFolder(In(L"empty")));
  EXPECT_TRUE(List(In(L"empty")).empty()) << "neither the folder itself nor its parent is an entry";
}

TEST_P(FoldersContract, WhatIsNoFolderIsNotListed) {
  ASSERT_TRUE(Make(In(L"file")) && files_.CreateFolder(In(L"folder")));
  for (const std::wstring& path : {In(L"missing"), In(L"file"), In(L"file\\below"), In(L"fold*"), In(L"missing\\below"),
                                   std::wstring(), std::wstring(L"folder"), std::wstring(L"C:folder")}) {
    SCOPED_TRACE(ToUtf8(path));
    std::vector<FolderEntry> entries = {{L"from before", 0}};
    EXPECT_FALSE(files_.ListFolder(path, entries));
    EXPECT_TRUE(entries.empty());
  }
}

TEST_P(FoldersContract, ADeletedFolderGoesWithAllThatIsInIt) {
  const std::wstring below = In(L"gone") + L"\\a folder of a rather long name \u0416" + std::wstring(120, L'n');
  ASSERT_TRUE(files_.CreateFolder(In(L"gone")) && files_.CreateFolder(below) && files_.CreateFolder(below + L"\\x"));
  ASSERT_TRUE(files_.CreateFolder(In(L"gone too")) && Make(In(L"stays")));
  for (const std::wstring& path : {In(L"gone\\file"), below + L"\\fixed", below + L"\\x\\hidden"}) {
    ASSERT_TRUE(Make(path));
    ASSERT_TRUE(files_.SetFileAttributesA(path, kFileReadOnly | kFileHidden | kFileSystem));
  }
  ASSERT_TRUE(files_.SetFileAttributesA(below, kFileReadOnly | kFileSystem));

  EXPECT_TRUE(files_.DeleteFolder(In(L"GONE\\")));
  EXPECT_TRUE(files_.DeleteFolder(In(L"gone too")));
  for (const wchar_t* name : {L"gone", L"missing", L"stays", L"stays\\below"}) {
    EXPECT_FALSE(files_.DeleteFolder(In(name))) << ToUtf8(name);
  }
  EXPECT_FALSE(files_.DeleteFolder(L"folder"));
  EXPECT_EQ(List(system_->Folder()).size(), 1U);
}

TEST_P(FoldersContract, WhatAnotherProgramHoldsStaysInADeletedFolder) {
  ASSERT_TRUE(files_.CreateFolder(In(L"a")) && files_.CreateFolder(In(L"a\\b")) && files_.CreateFolder(In(L"a\\c")));
  ASSERT_TRUE(Make(In(L"a\\b\\held"), "held") && Make(In(L"a\\b\\free")) && Make(In(L"a\\c\\free")));
  std::shared_ptr<void> hold = system_->HoldOpen(In(L"a\\b\\held"));
  EXPECT_FALSE(files_.DeleteFolder(In(L"a")));
  hold.reset();
  EXPECT_EQ(Content(In(L"a\\b\\held")), "held");
  EXPECT_EQ(List(In(L"a")).size(), 1U);
  EXPECT_EQ(List(In(L"a\\b")).size(), 1U);
  EXPECT_TRUE(files_.DeleteFolder(In(L"a")));
}

TEST_P(FoldersContract, WhatALinkLeadsToIsNotDeleted) {
  ASSERT_TRUE(files_.CreateFolder(In(L"elsewhere")) && Make(In(L"elsewhere\\file"), "kept"));
  ASSERT_TRUE(files_.CreateFolder(In(L"folder")) && files_.CreateFolder(In(L"folder\\below")));
  if (!system_->LinkFolder(In(L"folder\\below\\link"), In(L"elsewhere"))) {
    GTEST_SKIP() << "no links to folders can be made here";
  }
  ASSERT_TRUE(system_->LinkFolder(In(L"link"), In(L"elsewhere")));
  EXPECT_EQ(Content(In(L"link\\file")), "kept");
  const bool removed = !system_->IsWine();  // it takes the link for its target, which isn't empty
  EXPECT_EQ(files_.DeleteFolder(In(L"folder")), removed);
  EXPECT_EQ(files_.DeleteFolder(In(L"link")), removed);
  EXPECT_EQ(files_.FolderExists(In(L"folder")) || files_.FolderExists(In(L"link")), !removed);
  EXPECT_EQ(Content(In(L"elsewhere\\file")), "kept");
}

TEST_P(FoldersContract, APathMayBeLongerThanTheOldLimit) {
  if (GetParam().name == "Local" && sizeof(wchar_t) == 2) GTEST_SKIP() << "the C library below has the old limit";
  std::wstring folder = system_->Folder();
  while (folder.size() < 400) {
    folder += L'\\' + std::wstring(45, L'n');
    ASSERT_TRUE(files_.CreateFolder(folder)) << folder.size();
  }
  ASSERT_TRUE(Make(folder + L"\\x"));
  EXPECT_EQ(List(folder).count(L"x"), 1U);
}

}  // namespace
}  // namespace burrowmark
