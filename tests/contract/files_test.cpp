// Making, reading, moving, copying and deleting files.
#include "tests/contract/system_under_test.h"

namespace burrowmark {
namespace {

constexpr std::uint32_t kReadOnlyAndHidden = kFileReadOnly | kFileHidden;

class FilesContract : public ContractTest {};
INSTANTIATE_TEST_SUITE_P(Systems, FilesContract, ::testing::ValuesIn(Systems()), KindName);

TEST_P(FilesContract, WhatWasWrittenIsReadBackByteForByte) {
  std::string allBytes;
  for (int byte = 0; byte < 256; ++byte) allBytes += static_cast<char>(byte);
  std::string large;
  while (large.size() < 3'000'000) large += allBytes;
  const std::string contents[] = {"", "x", "line\r\nline\n\x1a after the old end mark", allBytes, large};
  for (const std::string& content : contents) {
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

TEST_P(FilesContract, AClosedFileTakesNothingMore) {
  const std::unique_ptr<OutputFile> file = files_.CreateNewFile(In(L"a"));
  ASSERT_TRUE(file && file->Write("kept") && file->Close());
  EXPECT_FALSE(file->Write("lost"));
  EXPECT_FALSE(file->Flush());
  EXPECT_FALSE(file->Close());
  EXPECT_EQ(Content(In(L"a")), "kept");
}

TEST_P(FilesContract, AFileBeingWrittenIsReadableButStaysWhereItIs) {
  ASSERT_TRUE(Make(In(L"other"), "other"));
  std::unique_ptr<OutputFile> file = files_.CreateNewFile(In(L"a"));
  ASSERT_TRUE(file && file->Write("half"));
  EXPECT_EQ(Content(In(L"a")), "half");
  EXPECT_FALSE(files_.DeleteFileA(In(L"A")));
  EXPECT_FALSE(files_.MoveFileExA(In(L"a"), In(L"b")));
  EXPECT_FALSE(files_.MoveFileExA(In(L"other"), In(L"a")));
  EXPECT_FALSE(files_.CreateNewFile(In(L"a")));

  file.reset();  // lets go of it as Close does
  EXPECT_EQ(Content(In(L"a")), "half");
  EXPECT_TRUE(files_.DeleteFileA(In(L"a")));
}

TEST_P(FilesContract, ANewFileNeedsAFreeNameInAFolderThatExists) {
  ASSERT_TRUE(Make(In(L"file"), "first"));
  ASSERT_TRUE(files_.CreateFolder(In(L"folder")));
  for (const wchar_t* name : {L"file", L"FILE", L"folder", L"missing\\file", L"file\\below", L"new\\"}) {
    EXPECT_FALSE(files_.CreateNewFile(In(name))) << ::testing::PrintToString(std::wstring(name));
  }
  EXPECT_EQ(Content(In(L"file")), "first");
}

TEST_P(FilesContract, AMissingOrUnreadableFileGivesNoBytes) {
  ASSERT_TRUE(files_.CreateFolder(In(L"folder")));
  for (const std::wstring& path :
       {In(L"missing"), In(L"folder"), In(L"folder\\x\\y"), std::wstring(), std::wstring(L"a")}) {
    std::string bytes = "from before";
    EXPECT_FALSE(files_.ReadWholeFile(path, bytes));
    EXPECT_EQ(bytes, "");
  }
}

TEST_P(FilesContract, AMoveReplacesTheTargetInOneStep) {
  ASSERT_TRUE(Make(In(L"new"), "new content") && Make(In(L"old"), "old"));
  ASSERT_TRUE(files_.CreateFolder(In(L"folder")));
  EXPECT_TRUE(files_.MoveFileExA(In(L"new"), In(L"OLD")));
  EXPECT_FALSE(files_.FileExists(In(L"new")));
  EXPECT_EQ(Content(In(L"old")), "new content");

  EXPECT_TRUE(files_.MoveFileExA(In(L"old"), In(L"folder\\elsewhere")));
  EXPECT_EQ(Content(In(L"folder\\elsewhere")), "new content");
  EXPECT_TRUE(files_.MoveFileExA(In(L"folder\\elsewhere"), In(L"folder\\ELSEWHERE")));
  EXPECT_EQ(Content(In(L"folder\\elsewhere")), "new content");
}

TEST_P(FilesContract, AMoveThatCannotBeLeavesBothAsTheyWere) {
  ASSERT_TRUE(Make(In(L"file"), "file"));
  ASSERT_TRUE(files_.CreateFolder(In(L"folder")));
  EXPECT_FALSE(files_.MoveFileExA(In(L"missing"), In(L"file")));
  EXPECT_FALSE(files_.MoveFileExA(In(L"file"), In(L"folder")));
  EXPECT_FALSE(files_.MoveFileExA(In(L"file"), In(L"missing\\file")));
  EXPECT_FALSE(files_.MoveFileExA(In(L"folder"), In(L"renamed")));
  EXPECT_FALSE(files_.MoveFileExA(In(L"folder"), In(L"file")));
  EXPECT_EQ(Content(In(L"file")), "file");
  EXPECT_TRUE(files_.FolderExists(In(L"folder")));
}

TEST_P(FilesContract, ACopyHasContentAndAttributesOfItsSource) {
  const std::string content = "content\r\n\x1a end";
  ASSERT_TRUE(Make(In(L"source"), content));
  ASSERT_TRUE(files_.SetFileAttributesA(In(L"source"), kFileReadOnly | kFileHidden | kFileArchive));
  EXPECT_TRUE(files_.CopyFileA(In(L"source"), In(L"copy"), true));
  EXPECT_EQ(Content(In(L"copy")), content);
  EXPECT_EQ(Content(In(L"source")), content);
  EXPECT_EQ(files_.GetFileAttributesA(In(L"copy")).value_or(0) & kReadOnlyAndHidden, kReadOnlyAndHidden);
}

TEST_P(FilesContract, ACopyReplacesItsTargetOnlyIfToldSo) {
  ASSERT_TRUE(Make(In(L"source"), "content") && Make(In(L"target"), "a longer content before"));
  EXPECT_FALSE(files_.CopyFileA(In(L"source"), In(L"TARGET"), true));
  EXPECT_EQ(Content(In(L"target")), "a longer content before");
  ASSERT_TRUE(files_.SetFileAttributesA(In(L"source"), kReadOnlyAndHidden));
  EXPECT_TRUE(files_.CopyFileA(In(L"source"), In(L"target"), false));
  EXPECT_EQ(Content(In(L"target")), "content");
  if (system_->IsWine()) GTEST_SKIP() << "under Wine a replaced target keeps its attributes";
  EXPECT_EQ(files_.GetFileAttributesA(In(L"target")).value_or(0) & kReadOnlyAndHidden, kReadOnlyAndHidden);
}

TEST_P(FilesContract, ACopyThatCannotBeChangesNothing) {
  ASSERT_TRUE(Make(In(L"file"), "file"));
  ASSERT_TRUE(files_.CreateFolder(In(L"folder")));
  EXPECT_FALSE(files_.CopyFileA(In(L"missing"), In(L"file"), false));
  EXPECT_FALSE(files_.CopyFileA(In(L"folder"), In(L"new"), false));
  EXPECT_FALSE(files_.CopyFileA(In(L"file"), In(L"folder"), false));
  EXPECT_FALSE(files_.CopyFileA(In(L"file"), In(L"missing\\file"), false));
  EXPECT_FALSE(files_.CopyFileA(In(L"file"), In(L"FILE"), false));
  EXPECT_EQ(Content(In(L"file")), "file");
  EXPECT_FALSE(files_.FileExists(In(L"new")));
}

TEST_P(FilesContract, OnlyAFileCanBeDeletedAsAFile) {
  ASSERT_TRUE(Make(In(L"file")));
  ASSERT_TRUE(files_.CreateFolder(In(L"folder")));
  EXPECT_FALSE(files_.DeleteFileA(In(L"missing")));
  EXPECT_FALSE(files_.DeleteFileA(In(L"folder")));
  EXPECT_TRUE(files_.FolderExists(In(L"folder")));
  EXPECT_TRUE(files_.DeleteFileA(In(L"FILE")));
  EXPECT_FALSE(files_.FileExists(In(L"file")));
  EXPECT_FALSE(files_.DeleteFileA(In(L"file")));
}

TEST_P(FilesContract, AReadOnlyFileIsNeitherDeletedNorReplaced) {
  ASSERT_TRUE(Make(In(L"fixed"), "fixed") && Make(In(L"other"), "other"));
  ASSERT_TRUE(files_.SetFileAttributesA(In(L"fixed"), kFileReadOnly));
  EXPECT_FALSE(files_.DeleteFileA(In(L"fixed")));
  EXPECT_FALSE(files_.MoveFileExA(In(L"other"), In(L"FIXED")));
  EXPECT_EQ(Content(In(L"fixed")), "fixed");
  EXPECT_EQ(Content(In(L"other")), "other");

  EXPECT_TRUE(files_.MoveFileExA(In(L"fixed"), In(L"renamed")));
  EXPECT_TRUE(files_.SetFileAttributesA(In(L"renamed"), 0));
  EXPECT_TRUE(files_.DeleteFileA(In(L"renamed")));
}

TEST_P(FilesContract, ACopyDoesNotReplaceAReadOnlyOrHiddenFile) {
  if (system_->IsWine()) GTEST_SKIP() << "Wine replaces them, against the documentation of CopyFile";
  ASSERT_TRUE(Make(In(L"source"), "source"));
  for (const std::uint32_t attribute : {kFileReadOnly, kFileHidden}) {
    const std::wstring target = In(L"target " + std::to_wstring(attribute));
    ASSERT_TRUE(Make(target, "target") && files_.SetFileAttributesA(target, attribute));
    EXPECT_FALSE(files_.CopyFileA(In(L"source"), target, false));
    EXPECT_EQ(Content(target), "target");
  }
}

TEST_P(FilesContract, AFileThatAnotherProgramHoldsIsLeftAlone) {
  ASSERT_TRUE(Make(In(L"held"), "held") && Make(In(L"other"), "other"));
  std::shared_ptr<void> hold = system_->HoldOpen(In(L"held"));
  EXPECT_EQ(Content(In(L"held")), "(unreadable)");
  EXPECT_FALSE(files_.DeleteFileA(In(L"held")));
  EXPECT_FALSE(files_.MoveFileExA(In(L"held"), In(L"new")));
  EXPECT_FALSE(files_.MoveFileExA(In(L"other"), In(L"Held")));
  EXPECT_FALSE(files_.CopyFileA(In(L"held"), In(L"new"), false));
  EXPECT_FALSE(files_.CopyFileA(In(L"other"), In(L"held"), false));
  EXPECT_FALSE(files_.CreateNewFile(In(L"held")));
  EXPECT_TRUE(files_.FileExists(In(L"held")));
  EXPECT_EQ(Content(In(L"other")), "other");
  EXPECT_FALSE(files_.FileExists(In(L"new")));

  hold.reset();
  EXPECT_EQ(Content(In(L"held")), "held");
  EXPECT_TRUE(files_.MoveFileExA(In(L"other"), In(L"held")));
}

}  // namespace
}  // namespace burrowmark
