// Making, reading, moving, copying and deleting files.
#include "tests/contract/system_under_test.h"

namespace burrowmark {
namespace {

constexpr std::uint32_t kSettable = kFileReadOnly | kFileHidden | kFileSystem;

class FilesContract : public ContractTest {
 protected:
  FilesContract() { EXPECT_TRUE(Make(In(L"file"), "file") && files_.CreateFolder(In(L"folder"))); }
  std::uint32_t Attributes(const std::wstring& path) { return files_.GetFileAttributesA(path).value_or(0); }
};

TEST_F(FilesContract, WhatWasWrittenIsReadBackByteForByte) {
  std::string large;
  while (large.size() < 3'000'000) large += static_cast<char>(large.size());
  for (const std::string& content : {std::string(), std::string("line\r\nline\n\x1a after the old end mark"), large}) {
    const std::wstring path = In(L"file " + std::to_wstring(content.size()));
    const std::unique_ptr<OutputFile> file = files_.CreateNewFile(path);
    ASSERT_TRUE(file);
    EXPECT_TRUE(file->Write(content.substr(0, content.size() / 2)));
    EXPECT_TRUE(file->Flush());
    EXPECT_TRUE(file->Write(content.substr(content.size() / 2)));
    EXPECT_TRUE(file->Close());
    EXPECT_TRUE(Content(path) == content) << content.size() << " bytes";
  }
}

TEST_F(FilesContract, AFileThatGoesUnlessClosedGoesWithItsObject) {
  for (const bool closed : {false, true}) {
    {
      const std::unique_ptr<OutputFile> file = files_.CreateNewFile(In(L"half"));
      ASSERT_TRUE(file && file->DeleteUnlessClosed() && file->Write("content"));
      EXPECT_TRUE(!closed || file->Close());
    }
    EXPECT_EQ(files_.FileExists(In(L"half")), closed);
  }
}

TEST_F(FilesContract, ANewFileNeedsAFreeNameInAFolderThatExists) {
  for (const wchar_t* name : {L"FILE", L"folder", L"missing\\file", L"file\\below"}) {
    EXPECT_FALSE(files_.CreateNewFile(In(name))) << ::testing::PrintToString(std::wstring(name));
  }
  EXPECT_EQ(Content(In(L"file")), "file");
  for (const wchar_t* name : {L"missing", L"folder", L"folder\\x\\y"}) {
    std::string bytes = "from before";
    EXPECT_FALSE(files_.ReadWholeFile(In(name), bytes));
    EXPECT_EQ(bytes, "");
  }
}

TEST_F(FilesContract, AMoveReplacesTheTargetInOneStep) {
  ASSERT_TRUE(Make(In(L"old"), "old") && files_.SetFileAttributesA(In(L"old"), kFileHidden | kFileSystem));
  EXPECT_TRUE(files_.MoveFileExA(In(L"file"), In(L"OLD")));
  EXPECT_FALSE(files_.FileExists(In(L"file")));
  EXPECT_EQ(Content(In(L"old")), "file");
  EXPECT_EQ(Attributes(In(L"old")) & kSettable, 0U) << "the file brings its own attributes";
}

TEST_F(FilesContract, AMoveThatCannotBeLeavesBothAsTheyWere) {
  ASSERT_TRUE(Make(In(L"fixed"), "fixed") && files_.SetFileAttributesA(In(L"fixed"), kFileReadOnly));
  const struct {
    const wchar_t* from;
    const wchar_t* to;
  } rows[] = {{L"missing", L"file"}, {L"file", L"folder"}, {L"file", L"missing\\file"}, {L"file", L"FIXED"}};
  for (const auto& row : rows) {
    EXPECT_FALSE(files_.MoveFileExA(In(row.from), In(row.to))) << ::testing::PrintToString(std::wstring(row.to));
  }
  EXPECT_EQ(Content(In(L"file")), "file");
  EXPECT_EQ(Content(In(L"fixed")), "fixed");
}

TEST_F(FilesContract, ACopyIsWholeAndReplacesNothing) {
  const std::string content = "content\r\n\x1a end";
  ASSERT_TRUE(Make(In(L"source"), content) && files_.SetFileAttributesA(In(L"source"), kFileHidden));
  EXPECT_TRUE(files_.CopyFileA(In(L"source"), In(L"copy"), true));
  EXPECT_EQ(Content(In(L"copy")), content);
  EXPECT_EQ(Content(In(L"source")), content);
  EXPECT_EQ(Attributes(In(L"copy")) & kSettable, kFileHidden);
  EXPECT_FALSE(files_.CopyFileA(In(L"source"), In(L"FILE"), true));
  EXPECT_EQ(Content(In(L"file")), "file");
  EXPECT_FALSE(files_.CopyFileA(In(L"missing"), In(L"new"), true));
  EXPECT_FALSE(files_.FileExists(In(L"new")));
}

TEST_F(FilesContract, OnlyAFileThatMayBeWrittenIsDeleted) {
  EXPECT_FALSE(files_.DeleteFileA(In(L"missing")));
  EXPECT_FALSE(files_.DeleteFileA(In(L"folder")));
  EXPECT_TRUE(files_.SetFileAttributesA(In(L"file"), kFileReadOnly));
  EXPECT_FALSE(files_.DeleteFileA(In(L"file")));
  EXPECT_EQ(Content(In(L"file")), "file");
  EXPECT_TRUE(files_.SetFileAttributesA(In(L"file"), 0));
  EXPECT_TRUE(files_.DeleteFileA(In(L"FILE")));
  EXPECT_FALSE(files_.FileExists(In(L"file")));
}

TEST_F(FilesContract, AFileIsTheSameHoweverItIsSpelled) {
  // Under Wine what removes the test's folder would go round in the link.
  const bool links = !system_->IsWine() && system_->LinkFolder(In(L"link"), In(L"folder"));
  ASSERT_TRUE(Make(In(L"folder\\in")) && Make(In(L"twin"), "file"));
  const struct {
    const wchar_t* one;
    const wchar_t* other;
    bool same;
  } rows[] = {{L"file", L"FILE", true},
              {L"file", L"folder\\..\\File", true},
              {L"folder\\in", links ? L"link\\IN" : L"FOLDER\\in", true},
              {L"file", L"twin", false},
              {L"missing", L"folder\\..\\Missing", true},
              {L"missing", L"gone", false},
              {L"file", L"missing", false}};
  for (const auto& row : rows) {
    EXPECT_EQ(files_.IsSameFile(In(row.one), In(row.other)), row.same)
        << ::testing::PrintToString(std::wstring(row.other));
  }
}

TEST_F(FilesContract, OneCallTellsWhatTheDiskKnows) {
  ASSERT_TRUE(files_.SetFileAttributesA(In(L"file"), kFileHidden | kFileArchive));
  const LocalTime now = platform_.clock.GetLocalTime();
  for (const auto& [name, size, attributes] :
       {std::tuple(L"FILE", 4U, kFileHidden | kFileArchive), std::tuple(L"folder", 0U, kFileDirectory)}) {
    const std::optional<FileFacts> facts = files_.GetFileFacts(In(name));
    ASSERT_TRUE(facts) << ::testing::PrintToString(std::wstring(name));
    EXPECT_EQ(facts->size, size);
    EXPECT_EQ(facts->attributes & (kSettable | kFileArchive | kFileDirectory), attributes);
    EXPECT_EQ(facts->shortName, L"") << "the name itself is short";
    ASSERT_TRUE(facts->modified);
    for (const std::optional<LocalTime>& moment : {facts->created, facts->modified, facts->accessed}) {
      if (!moment) continue;  // not every disk keeps all three
      EXPECT_NEAR(moment->hour * 60 + moment->minute, now.hour * 60 + now.minute, 1);
      EXPECT_EQ(std::tie(moment->year, moment->month, moment->day), std::tie(now.year, now.month, now.day));
    }
  }
  const std::optional<FileFacts> root = files_.GetFileFacts(system_->Folder().substr(0, 3));
  EXPECT_TRUE(root && (root->attributes & kFileDirectory) != 0);
  for (const wchar_t* name : {L"missing", L"fil?", L"file\\", L"missing\\file"}) {
    EXPECT_FALSE(files_.GetFileFacts(In(name))) << ::testing::PrintToString(std::wstring(name));
  }
}

TEST_F(FilesContract, AFileThatAnotherProgramHoldsIsLeftAlone) {
  ASSERT_TRUE(Make(In(L"held"), "held"));
  std::shared_ptr<void> hold = system_->HoldOpen(In(L"held"));
  EXPECT_EQ(Content(In(L"held")), "(unreadable)");
  EXPECT_FALSE(files_.DeleteFileA(In(L"held")));
  EXPECT_FALSE(files_.MoveFileExA(In(L"file"), In(L"Held")));
  EXPECT_FALSE(files_.CopyFileA(In(L"held"), In(L"new"), true));
  EXPECT_TRUE(files_.FileExists(In(L"held")));
  EXPECT_EQ(Content(In(L"file")), "file");

  hold.reset();
  EXPECT_EQ(Content(In(L"held")), "held");
  EXPECT_TRUE(files_.MoveFileExA(In(L"file"), In(L"held")));
}

TEST_F(FilesContract, AttributesStick) {
  for (const std::uint32_t bits : {kFileHidden, kFileSystem, kFileReadOnly, kSettable, 0U}) {
    EXPECT_TRUE(files_.SetFileAttributesA(In(L"FILE"), bits | kFileArchive));
    EXPECT_EQ(Attributes(In(L"file")) & (kSettable | kFileArchive | kFileDirectory), bits | kFileArchive);
  }
  EXPECT_EQ(Attributes(In(L"folder")) & (kSettable | kFileDirectory), kFileDirectory);
  EXPECT_TRUE(files_.SetFileAttributesA(In(L"Folder"), kFileHidden | kFileSystem));
  EXPECT_EQ(Attributes(In(L"folder")) & (kSettable | kFileDirectory), kFileHidden | kFileSystem | kFileDirectory);
  EXPECT_FALSE(files_.SetFileAttributesA(In(L"missing"), kFileHidden));
  EXPECT_FALSE(files_.GetFileAttributesA(In(L"missing")));
}

}  // namespace
}  // namespace burrowmark
