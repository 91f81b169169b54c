// Which path means which file or folder, and what attributes they have.
#include "platform/characters.h"
#include "tests/contract/system_under_test.h"

namespace burrowmark {
namespace {

constexpr std::uint32_t kSettable = kFileReadOnly | kFileHidden | kFileSystem;

class NamesContract : public ContractTest {
 protected:
  std::uint32_t Attributes(const std::wstring& path) { return files_.GetFileAttributesA(path).value_or(0); }
};
INSTANTIATE_TEST_SUITE_P(Systems, NamesContract, ::testing::ValuesIn(Systems()), KindName);

TEST_P(NamesContract, FilesAndFoldersAreToldApart) {
  ASSERT_TRUE(Make(In(L"file")) && files_.CreateFolder(In(L"folder")));
  struct Row {
    const wchar_t* name;
    bool isFile;
    bool isFolder;
  };
  constexpr Row kRows[] = {{L"file", true, false},      {L"folder", false, true},   {L"folder\\", false, true},
                           {L"missing", false, false},  {L"file\\x", false, false}, {L"missing\\x", false, false},
                           {L"folder\\x", false, false}};
  for (const Row& row : kRows) {
    SCOPED_TRACE(ToUtf8(row.name));
    EXPECT_EQ(files_.FileExists(In(row.name)), row.isFile);
    EXPECT_EQ(files_.FolderExists(In(row.name)), row.isFolder);
    EXPECT_EQ(files_.GetFileAttributesA(In(row.name)).has_value(), row.isFile || row.isFolder);
  }
}

TEST_P(NamesContract, AFileIsNotFoundBehindAClosingBackslash) {
  if (system_->IsWine()) GTEST_SKIP() << "Wine passes over the closing backslash";
  ASSERT_TRUE(Make(In(L"file")));
  EXPECT_FALSE(files_.FileExists(In(L"file\\")));
}

TEST_P(NamesContract, OnlyAbsolutePathsMeanAnything) {
  for (const wchar_t* path :
       {L"", L"C", L"\\", L"\\\\", L"Windows", L".", L"C:Windows", L"\\Windows", L"1:\\", L":\\"}) {
    SCOPED_TRACE(ToUtf8(path));
    EXPECT_FALSE(files_.FileExists(path));
    EXPECT_FALSE(files_.FolderExists(path));
    EXPECT_FALSE(files_.GetFileAttributesA(path));
    EXPECT_FALSE(files_.CreateFolder(path));
    EXPECT_FALSE(files_.CreateNewFile(path));
  }
  EXPECT_FALSE(files_.CreateNewFile(In(std::wstring(L"a\0b", 3))));
  EXPECT_FALSE(files_.FileExists(In(L"a")));
}

TEST_P(NamesContract, LetterCaseDoesNotCount) {
  ASSERT_TRUE(files_.CreateFolder(In(L"Folder \u00C4")));
  ASSERT_TRUE(Make(In(L"folder \u00E4\\Datei \u0416.txt"), "content"));
  EXPECT_TRUE(files_.FolderExists(In(L"FOLDER \u00E4")));
  EXPECT_EQ(Content(In(L"FOLDER \u00C4\\DATEI \u0436.TXT")), "content");
  EXPECT_FALSE(files_.CreateFolder(In(L"folder \u00E4")));
}

TEST_P(NamesContract, SlashesAndDotsLeadToTheSamePlace) {
  ASSERT_TRUE(files_.CreateFolder(In(L"folder")) && Make(In(L"folder\\file"), "content"));
  for (const wchar_t* name : {L"folder/file", L"folder\\\\file", L"folder\\.\\file", L"folder\\..\\folder\\file",
                              L".\\folder\\file", L"folder\\file.", L"folder\\file "}) {
    EXPECT_EQ(Content(In(name)), "content") << ToUtf8(name);
  }
  EXPECT_TRUE(files_.FolderExists(In(L"folder\\..")));
  EXPECT_TRUE(files_.FolderExists(L"C:\\..\\Windows"));
  EXPECT_TRUE(files_.FolderExists(L"c:"));
}

TEST_P(NamesContract, NamesOfAllAlphabetsAreCarriedThroughEveryCall) {
  for (const wchar_t* word : {L"na\u00EFve caf\u00E9 \u20AC", L"\u041F\u0430\u043F\u043A\u0430", L"\u6587\u4EF6\u5939",
                              L"\u05E2\u05D1\u05E8\u05D9\u05EA", L"\U0001F98A", L"a & b = c; [d] 'e' #f %g^ {h}~!"}) {
    const std::wstring name(word);
    SCOPED_TRACE(ToUtf8(name));
    ASSERT_TRUE(files_.CreateFolder(In(name)));
    const std::wstring path = In(name) + L'\\' + name;
    EXPECT_TRUE(Make(path + L"1", "content"));
    EXPECT_TRUE(files_.MoveFileExA(path + L"1", path + L"2"));
    EXPECT_TRUE(files_.SetFileAttributesA(path + L"2", kFileHidden));
    EXPECT_TRUE(files_.CopyFileA(path + L"2", path + L"3", true));
    EXPECT_EQ(Content(path + L"3"), "content");
    EXPECT_EQ(Attributes(path + L"3") & kSettable, kFileHidden);
    EXPECT_TRUE(files_.DeleteFileA(path + L"2"));
    EXPECT_FALSE(files_.FileExists(path + L"2"));
  }
}

TEST_P(NamesContract, SomeNamesAreNeverFilesOrFolders) {
  for (const wchar_t* name : {L"a*b", L"a?b", L"a<b", L"a>b", L"a|b", L"a\"b", L"a\tb", L"*"}) {
    SCOPED_TRACE(ToUtf8(name));
    EXPECT_FALSE(Make(In(name)));
    EXPECT_FALSE(files_.CreateFolder(In(name)));
    EXPECT_FALSE(files_.FileExists(In(name)));
    EXPECT_FALSE(files_.FolderExists(In(name)));
  }
  EXPECT_FALSE(files_.CreateNewFile(In(L"NUL"))) << "what is written to a device is lost";
  EXPECT_FALSE(Make(In(std::wstring(256, L'x'))));
  EXPECT_TRUE(Make(In(std::wstring(255 - 1, L'x'))));
}

TEST_P(NamesContract, PathsMayBeLongerThanTheOldLimit) {
  std::wstring folder = system_->Folder();
  while (folder.size() < 500) {
    folder += L'\\' + std::wstring(45, L'n');
    ASSERT_TRUE(files_.CreateFolder(folder)) << folder.size();
  }
  EXPECT_TRUE(files_.FolderExists(folder));
  EXPECT_TRUE(Make(folder + L"\\a", "content"));
  EXPECT_TRUE(files_.SetFileAttributesA(folder + L"/A", kFileHidden));
  EXPECT_EQ(Attributes(folder + L"\\.\\a") & kSettable, kFileHidden);
  EXPECT_TRUE(files_.MoveFileExA(folder + L"\\a", folder + L"\\b"));
  EXPECT_TRUE(files_.CopyFileA(folder + L"\\b", In(L"short"), true));
  EXPECT_EQ(Content(In(L"short")), "content");
  EXPECT_EQ(Content(folder + L"\\x\\..\\b"), "content");
  EXPECT_TRUE(files_.DeleteFileA(folder + L"\\b"));
  EXPECT_FALSE(files_.FileExists(folder + L"\\b"));
}

TEST_P(NamesContract, FoldersAreMadeOneAtATime) {
  EXPECT_FALSE(files_.CreateFolder(In(L"a\\b")));
  EXPECT_TRUE(files_.CreateFolder(In(L"a")));
  EXPECT_FALSE(files_.CreateFolder(In(L"a")));
  EXPECT_TRUE(files_.CreateFolder(In(L"a\\b\\")));
  EXPECT_TRUE(files_.FolderExists(In(L"a\\b")));
  ASSERT_TRUE(Make(In(L"file")));
  EXPECT_FALSE(files_.CreateFolder(In(L"file")));
  EXPECT_FALSE(files_.CreateFolder(In(L"file\\below")));
}

TEST_P(NamesContract, DrivesAreAskedForByTheirLetterAlone) {
  for (const wchar_t* path : {L"C", L"c", L"C:", L"c:", L"C:\\", L"c:\\"})
    EXPECT_TRUE(files_.DriveExists(path)) << ToUtf8(path);
  for (const wchar_t* path : {L"", L":", L"\\", L"C\\", L"CC", L"C::", L"C:x", L"C:/", L"C:\\\\", L"C:\\Windows", L" C",
                              L"\u0421", L"1", L"\\\\server\\share"}) {
    EXPECT_FALSE(files_.DriveExists(path)) << ToUtf8(path);
  }
}

TEST_P(NamesContract, NothingIsFoundOnADriveThatIsMissing) {
  std::wstring letter = L"A";
  while (letter < L"Z" && files_.DriveExists(letter)) ++letter[0];
  ASSERT_FALSE(files_.DriveExists(letter));
  EXPECT_FALSE(files_.FolderExists(letter + L":\\"));
  EXPECT_FALSE(files_.CreateFolder(letter + L":\\folder"));
  EXPECT_FALSE(files_.CreateNewFile(letter + L":\\file"));
}

TEST_P(NamesContract, AttributesOfAFileStick) {
  for (const std::uint32_t bits : {kFileHidden, kFileSystem, kFileReadOnly, kSettable, 0U}) {
    const std::wstring path = In(L"file " + std::to_wstring(bits));
    ASSERT_TRUE(Make(path));
    EXPECT_EQ(Attributes(path) & (kSettable | kFileArchive | kFileDirectory), kFileArchive);
    EXPECT_TRUE(files_.SetFileAttributesA(path, bits | kFileArchive));
    EXPECT_EQ(Attributes(path) & (kSettable | kFileArchive), bits | kFileArchive);
    EXPECT_TRUE(files_.MoveFileExA(path, path + L" moved"));
    EXPECT_EQ(Attributes(path + L" moved") & kSettable, bits);
    EXPECT_TRUE(files_.SetFileAttributesA(path + L" moved", kFileArchive));
    EXPECT_EQ(Attributes(path + L" moved") & kSettable, 0U);
  }
  EXPECT_FALSE(files_.SetFileAttributesA(In(L"missing"), kFileHidden));
}

TEST_P(NamesContract, AFileThatReplacesAnotherKeepsItsOwnAttributes) {
  ASSERT_TRUE(Make(In(L"new")) && Make(In(L"old")));
  ASSERT_TRUE(files_.SetFileAttributesA(In(L"old"), kFileHidden | kFileSystem));
  ASSERT_TRUE(files_.MoveFileExA(In(L"new"), In(L"old")));
  EXPECT_EQ(Attributes(In(L"old")) & kSettable, 0U);

  ASSERT_TRUE(files_.SetFileAttributesA(In(L"old"), kFileHidden) && files_.DeleteFileA(In(L"old")));
  ASSERT_TRUE(Make(In(L"OLD")));
  EXPECT_EQ(Attributes(In(L"old")) & kSettable, 0U) << "a new file has nothing of one deleted before";
}

TEST_P(NamesContract, TheArchiveBitCanBeTakenAway) {
  if (system_->IsWine()) GTEST_SKIP() << "Wine gives every file the archive bit";
  ASSERT_TRUE(Make(In(L"file")) && files_.SetFileAttributesA(In(L"file"), kFileHidden));
  EXPECT_EQ(Attributes(In(L"file")) & (kSettable | kFileArchive), kFileHidden);
}

TEST_P(NamesContract, AttributesOfAFolderStick) {
  ASSERT_TRUE(files_.CreateFolder(In(L"folder")));
  EXPECT_EQ(Attributes(In(L"folder")) & (kSettable | kFileDirectory), kFileDirectory);
  EXPECT_TRUE(files_.SetFileAttributesA(In(L"Folder"), kFileHidden | kFileSystem));
  EXPECT_EQ(Attributes(In(L"folder\\")) & (kSettable | kFileDirectory), kFileHidden | kFileSystem | kFileDirectory);
  if (system_->IsWine()) GTEST_SKIP() << "under Wine a folder never becomes read-only";
  EXPECT_TRUE(files_.SetFileAttributesA(In(L"folder"), kFileReadOnly));
  EXPECT_EQ(Attributes(In(L"folder")) & (kSettable | kFileDirectory), kFileReadOnly | kFileDirectory);
  EXPECT_TRUE(Make(In(L"folder\\file"))) << "files can be made in a read-only folder";
}

}  // namespace
}  // namespace burrowmark
