// The drives of the local machine: what a test makes them, and that the program leaves their media alone.
#include "platform/characters.h"
#include "tests/platform/local_test.h"

namespace burrowmark {
namespace {

constexpr wchar_t kShare[] = L"\\\\Server\\Share";

class LocalDrivesTest : public LocalTest {
 protected:
  LocalDrivesTest() {
    const struct {
      wchar_t letter;
      DriveFacts facts;
    } rows[] = {{L'A', {kDriveTypeRemovable, L"floppy", {}}},    {L'C', {kDriveTypeFixed, L"System [1]\u0416", {}}},
                {L'D', {kDriveTypeCompactDisc, L"MUSIC", {}}},   {L'E', {kDriveTypeFixed, L"", {}}},
                {L'M', {kDriveTypeMemory, L"memory", {}}},       {L'U', {kDriveTypeRemovable, L"stick", {}}},
                {L'X', {kDriveTypeRemote, L"far away", kShare}}, {L'Y', {kDriveTypeRemote, L"", {}}}};
    for (const auto& row : rows) {
      EXPECT_TRUE(machine_.drives.Has(row.letter) || machine_.drives.Add(row.letter));
      EXPECT_TRUE(machine_.drives.SetFacts(row.letter, row.facts));
    }
  }

  LocalFileSystem& files_ = machine_.files;
};

TEST_F(LocalDrivesTest, TheListTellsLabelsOfFixedDrivesAndSharesOfRemoteOnes) {
  const std::vector<std::wstring> expected = {L"a:", L"c: [System [1]\u0416]",  L"d:", L"e:", L"m:",
                                              L"u:", L"x: [\\\\Server\\Share]", L"y:"};
  EXPECT_EQ(files_.DriveList(), expected);
  EXPECT_EQ(LocalMachine(folder_).files.DriveList(), expected) << "a machine opened again has the same drives";
}

TEST_F(LocalDrivesTest, TheListTouchesNoServerAndNoMediumThatCanBeTakenOut) {
  files_.DriveList();
  for (const wchar_t letter : std::wstring(L"ACDEMUXY")) {
    const std::wstring drive = {letter, L':'};
    EXPECT_TRUE(files_.DriveExists(drive));
    EXPECT_NE(files_.GetDriveTypeA(drive), kDriveTypeNone);
  }
  for (const wchar_t letter : std::wstring(L"ADMUXY"))
    EXPECT_EQ(machine_.drives.MediumTouches(letter), 0U) << ToUtf8({&letter, 1});

  std::wstring label;
  std::vector<FolderEntry> entries;
  files_.GetVolumeInformationA(L"D:", label);
  files_.FolderExists(L"u:\\");
  files_.ListFolder(L"X:\\", entries);
  for (const wchar_t letter : std::wstring(L"DUX"))
    EXPECT_EQ(machine_.drives.MediumTouches(letter), 1U) << ToUtf8({&letter, 1});
  EXPECT_EQ(machine_.drives.MediumTouches(L'A'), 0U);
}

TEST_F(LocalDrivesTest, ALabelNeedsAMedium) {
  std::wstring label;
  EXPECT_TRUE(files_.GetVolumeInformationA(L"d:", label));
  EXPECT_EQ(label, L"MUSIC");
  EXPECT_TRUE(files_.GetVolumeInformationA(L"X:\\", label));
  EXPECT_EQ(label, L"far away");
  EXPECT_TRUE(files_.GetVolumeInformationA(L"e:", label));
  EXPECT_EQ(label, L"");

  ASSERT_TRUE(machine_.drives.TakeMediumOut(L'D') && machine_.drives.TakeMediumOut(L'C'));
  EXPECT_FALSE(files_.GetVolumeInformationA(L"D:", label));
  EXPECT_EQ(files_.GetDriveTypeA(L"D:"), kDriveTypeCompactDisc);
  EXPECT_EQ(files_.DriveList().at(1), L"c:");
  ASSERT_TRUE(machine_.drives.PutMediumIn(L'D'));
  EXPECT_TRUE(files_.GetVolumeInformationA(L"D:", label));
}

TEST_F(LocalDrivesTest, ADriveThatWasTakenAwayIsInNoList) {
  ASSERT_TRUE(machine_.drives.Remove(L'X'));
  EXPECT_EQ(files_.GetDriveTypeA(L"x:"), kDriveTypeNone);
  EXPECT_EQ(files_.DriveList().size(), 7U);
  ASSERT_TRUE(machine_.drives.Add(L'X'));
  EXPECT_EQ(files_.DriveList().at(6), L"x: [\\\\Server\\Share]") << "it comes back as it was";
}

TEST_F(LocalDrivesTest, ANewDriveIsFixedAndHasNoLabel) {
  ASSERT_TRUE(machine_.drives.Add(L'Q'));
  EXPECT_EQ(files_.GetDriveTypeA(L"q:"), kDriveTypeFixed);
  EXPECT_EQ(files_.DriveList().at(5), L"q:");
}

TEST_F(LocalDrivesTest, EntriesComeInTheOrderOfTheDisk) {
  for (const wchar_t* name : {L"beta", L"Alpha", L"_x", L"\u00E9", L"GAMMA", L"alpha 2"}) {
    machine_.AddFolders(std::wstring(L"E:\\") + name);
  }
  std::ofstream(machine_.RealPath(L"E:\\Alpha").parent_path() / "a:b?") << "no name that Windows could have";
  std::vector<FolderEntry> entries;
  ASSERT_TRUE(files_.ListFolder(L"e:", entries));
  std::vector<std::wstring> names;
  names.reserve(entries.size());
  for (const FolderEntry& entry : entries) names.push_back(entry.name);
  EXPECT_EQ(names, std::vector<std::wstring>({L"Alpha", L"alpha 2", L"beta", L"GAMMA", L"_x", L"\u00E9"}));
}

TEST_F(LocalDrivesTest, TheCompressedBitIsTheSystemsToSet) {
  machine_.AddFolders(L"C:\\Folder");
  machine_.AddFile(L"C:\\file");
  EXPECT_TRUE(files_.SetFileAttributesA(L"C:\\Folder", kFileCompressed));
  EXPECT_EQ(files_.GetFileAttributesA(L"C:\\Folder"), kFileDirectory);

  EXPECT_TRUE(files_.MarkCompressed(L"C:\\FOLDER") && files_.MarkCompressed(L"C:\\file"));
  EXPECT_FALSE(files_.MarkCompressed(L"C:\\missing"));
  EXPECT_TRUE(files_.SetFileAttributesA(L"C:\\Folder", kFileHidden));
  EXPECT_EQ(files_.GetFileAttributesA(L"C:\\Folder"), kFileDirectory | kFileHidden | kFileCompressed);
  EXPECT_EQ(LocalMachine(folder_).files.GetFileAttributesA(L"C:\\file"), kFileArchive | kFileCompressed);
  std::vector<FolderEntry> entries;
  ASSERT_TRUE(files_.ListFolder(L"C:\\", entries));
  std::uint32_t listed = 0;
  for (const FolderEntry& entry : entries) {
    if (entry.name == L"Folder") listed = entry.attributes;
  }
  EXPECT_EQ(listed, kFileDirectory | kFileHidden | kFileCompressed);
}

}  // namespace
}  // namespace burrowmark
