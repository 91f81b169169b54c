// The machine's drives.
#include "platform/characters.h"
#include "tests/contract/system_under_test.h"

namespace burrowmark {
namespace {

class DrivesContract : public ContractTest {
 protected:
  std::wstring MissingDrive() {
    std::wstring drive = L"A:";
    while (drive[0] < L'Z' && files_.DriveExists(drive)) ++drive[0];
    return drive;
  }
};
INSTANTIATE_TEST_SUITE_P(Systems, DrivesContract, ::testing::ValuesIn(Systems()), KindName);

TEST_P(DrivesContract, EveryDriveIsListedOnceInTheOrderOfTheLetters) {
  const std::vector<std::wstring> list = files_.DriveList();
  std::wstring letters;
  for (const std::wstring& entry : list) letters += UpperCase(entry.at(0));
  std::wstring expected;
  for (wchar_t letter = L'A'; letter <= L'Z'; ++letter) {
    if (files_.DriveExists({letter, L':'})) expected += letter;
  }
  EXPECT_EQ(letters, expected);
  EXPECT_NE(letters.find(L'C'), std::wstring::npos);
}

TEST_P(DrivesContract, AnEntryIsASmallLetterAndANoteWhereOneMayBe) {
  for (const std::wstring& entry : files_.DriveList()) {
    SCOPED_TRACE(ToUtf8(entry));
    ASSERT_GE(entry.size(), 2U);
    EXPECT_TRUE(entry[0] >= L'a' && entry[0] <= L'z');
    EXPECT_EQ(entry[1], L':');
    const std::int32_t type = files_.GetDriveTypeA(entry.substr(0, 2));
    EXPECT_NE(type, kDriveTypeNone);
    if (entry.size() == 2) continue;
    EXPECT_TRUE(type == kDriveTypeFixed || type == kDriveTypeRemote) << type;
    EXPECT_TRUE(entry.substr(2).starts_with(L" [") && entry.ends_with(L"]") && entry.size() > 5);
  }
}

TEST_P(DrivesContract, TheNoteOfAFixedDriveIsTheNameOfItsVolume) {
  for (const std::wstring& entry : files_.DriveList()) {
    const std::wstring drive = entry.substr(0, 2);
    std::wstring label;
    if (files_.GetDriveTypeA(drive) != kDriveTypeFixed || !files_.GetVolumeInformationA(drive, label)) continue;
    EXPECT_EQ(entry, label.empty() ? drive : drive + L" [" + label + L"]");
  }
}

TEST_P(DrivesContract, DriveCIsFixedInEverySpelling) {
  for (const wchar_t* drive : {L"c:", L"C:", L"C:\\", L"c:\\"}) {
    SCOPED_TRACE(ToUtf8(drive));
    std::wstring label;
    EXPECT_EQ(files_.GetDriveTypeA(drive), kDriveTypeFixed);
    EXPECT_TRUE(files_.GetVolumeInformationA(drive, label));
    EXPECT_EQ(label.find(L'\0'), std::wstring::npos);
  }
}

TEST_P(DrivesContract, WhatIsNoDriveHasNeitherKindNorLabel) {
  for (const std::wstring& drive :
       {MissingDrive(), MissingDrive() + L'\\', std::wstring(), std::wstring(L"C"), std::wstring(L"C:\\Windows"),
        std::wstring(L"\\\\server\\share"), std::wstring(L"1:"), std::wstring(L"CC:")}) {
    SCOPED_TRACE(ToUtf8(drive));
    std::wstring label = L"from before";
    EXPECT_EQ(files_.GetDriveTypeA(drive), kDriveTypeNone);
    EXPECT_FALSE(files_.GetVolumeInformationA(drive, label));
    EXPECT_EQ(label, L"");
  }
}

}  // namespace
}  // namespace burrowmark
