#include "groups/personal_group.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

#include "core/numbers.h"
#include "tests/support/menu_scene.h"

namespace burrowmark {
namespace {

using test::TitlesUnder;

class PersonalGroup : public testing::Test {
 protected:
  PersonalGroup() { app_.RecentFolder = L"C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Recent"; }
  void MakeDrive(wchar_t letter, int folders, const std::wstring& label = {}) {
    machine_.drives.Add(letter);
    machine_.drives.SetFacts(letter, {3, label, {}});
    for (int i = 10; i < 10 + folders; ++i) machine_.AddFolders(std::wstring(1, letter) + L":\\f" + DecimalText(i));
  }
  void MakeLink(const std::wstring& name, const std::wstring& target) {
    machine_.shell.WriteShellLink(app_.RecentFolder + L"\\" + name + L".lnk", {target, {}, 1});
  }
  std::int32_t Fill(PersonalContent content) {
    SetupPersonalGroup(app_, store_, content);
    return store_.ChildrenNumber(MIT_GROUP_USER);
  }

  test::MenuScene scene_;
  LocalMachine& machine_ = scene_.machine;
  Application& app_ = scene_.app;
  clsMenuCollection& store_ = app_.MainStore();
};

TEST_F(PersonalGroup, TheSampleStandsBehindTheHelpEntries) {
  AddFixedEntries(app_, store_, false);
  EXPECT_EQ(Fill(PersonalContent::kSample), 2);
  EXPECT_EQ(TitlesUnder(store_, kRootOwner), L"Help  Personal  Options Organize Folders");
  EXPECT_EQ(TitlesUnder(store_, L"M1"), L"Desktop Start Menu Open-All");
  EXPECT_EQ(store_.GetMenuItemFromName(L"M3")->FolderPath, L"C:\\Users\\User\\Desktop");
  EXPECT_EQ(store_.GetMenuItemFromName(L"M2")->OpenType, MIT_PATH_EXPLORER);
}

TEST_F(PersonalGroup, TwentyFiveFoldersOfAllDrives) {
  MakeDrive(L'D', 20);
  MakeDrive(L'E', 20);
  // Drive C has Program Files, Users and Windows.
  EXPECT_EQ(Fill(PersonalContent::kDriveFolders), 25);
  EXPECT_TRUE(TitlesUnder(store_, MIT_GROUP_USER).ends_with(L" D_f29 E_f10 E_f11"));
}

TEST_F(PersonalGroup, TwentyFourGroupsOfTwentyFourFolders) {
  MakeDrive(L'D', 30, L"Data");
  for (wchar_t letter = L'E'; letter <= L'Z'; ++letter) MakeDrive(letter, 1);
  for (wchar_t letter = L'A'; letter <= L'B'; ++letter) MakeDrive(letter, 1);
  EXPECT_EQ(Fill(PersonalContent::kDriveGroups), 24);
  EXPECT_EQ(store_.GetMenuItemFromName(L"M4")->Caption(), L"C");
  EXPECT_EQ(store_.GetMenuItemFromName(L"M5")->Caption(), L"D (Data)");
  EXPECT_EQ(store_.ChildrenNumber(L"M5"), 24);
  EXPECT_EQ(store_.CaptionExists2(L"f33", L"M5", false, L"")->FolderPath, L"D:\\f33");
  EXPECT_FALSE(store_.ItemExists(L"M26"));
}

TEST_F(PersonalGroup, ANameThatIsTakenBecomesTheNextFreeOneWithWhatIsUnderIt) {
  for (const wchar_t* name : {L"M1", L"M2"}) scene_.AddGroup(name, name, kRootOwner);
  Fill(PersonalContent::kSample);
  EXPECT_EQ(TitlesUnder(store_, MIT_GROUP_USER), L"My Group My Documents");
  EXPECT_EQ(TitlesUnder(store_, L"M1") + TitlesUnder(store_, L"M2"), L"");
  EXPECT_EQ(TitlesUnder(store_, L"M3"), L"Desktop Start Menu Open-All");
  MakeDrive(L'D', 2);
  scene_.AddGroup(L"M9", L"M9", kRootOwner);
  Fill(PersonalContent::kDriveGroups);
  EXPECT_EQ(TitlesUnder(store_, L"M10"), L"f10 f11");
}

TEST_F(PersonalGroup, HiddenSystemAndCompressedFoldersAndOtherDrivesTakeNoPlace) {
  MakeDrive(L'D', 30);
  machine_.files.SetFileAttributesA(L"D:\\f10", kFileHidden);
  machine_.files.SetFileAttributesA(L"D:\\f11", kFileSystem);
  machine_.files.MarkCompressed(L"D:\\f12");
  machine_.AddFile(L"D:\\a file");
  machine_.drives.Add(L'U');
  machine_.drives.SetFacts(L'U', {2, {}, {}});
  machine_.AddFolders(L"U:\\x");
  machine_.drives.Add(L'E');
  machine_.drives.TakeMediumOut(L'E');
  EXPECT_EQ(Fill(PersonalContent::kDriveGroups), 3);
  EXPECT_TRUE(TitlesUnder(store_, L"M3").starts_with(L"f13 "));
  EXPECT_EQ(store_.ChildrenNumber(L"M4"), 0);  // a drive that can't be read keeps its empty group
  EXPECT_EQ(machine_.drives.MediumTouches(L'U'), 0U);
}

TEST_F(PersonalGroup, RecentDocumentsBecomeTheFoldersThatHoldThem) {
  machine_.AddFile(L"C:\\one\\Docs\\a.txt");
  machine_.AddFile(L"C:\\one\\Docs\\b.txt");
  machine_.AddFolders(L"C:\\two\\Docs");
  MakeLink(L"1", L"C:\\one\\Docs\\a.txt");
  MakeLink(L"2", L"C:\\ONE\\docs\\b.txt");
  MakeLink(L"3", L"C:\\two\\Docs");
  MakeLink(L"4", L"C:\\gone\\x.txt");
  machine_.AddFile(app_.RecentFolder + L"\\5.lnk", "no link");
  machine_.AddFile(L"C:\\root.txt");
  MakeLink(L"7", L"C:\\root.txt");
  EXPECT_EQ(Fill(PersonalContent::kRecentFolders), 3);
  EXPECT_EQ(store_.CaptionExists2(L"Docs", MIT_GROUP_USER, false, L"")->FolderPath, L"C:\\one\\Docs");
  EXPECT_EQ(store_.CaptionExists2(L"Docs2", MIT_GROUP_USER, false, L"")->FolderPath, L"C:\\two\\Docs");
  EXPECT_EQ(store_.CaptionExists2(L"C", MIT_GROUP_USER, false, L"")->FolderPath, L"C:\\");
}

TEST_F(PersonalGroup, TwentyFiveRecentFoldersEachOnceTheLatestFirst) {
  for (int i = 10; i < 40; ++i) {
    const std::wstring folder = L"C:\\r\\" + DecimalText(i);
    machine_.AddFolders(folder);
    for (const wchar_t* name : {L"a", L"b"}) {
      MakeLink(name + DecimalText(i), folder);
      const auto written = std::filesystem::file_time_type::clock::now() - std::chrono::hours(i % 30);
      std::filesystem::last_write_time(machine_.RealPath(app_.RecentFolder + L"\\" + name + DecimalText(i) + L".lnk"),
                                       written);
    }
  }
  const std::vector<std::wstring> folders = BuildRecentFolders(app_);
  ASSERT_EQ(folders.size(), 25U);
  EXPECT_EQ(folders.front(), L"C:\\r\\30");
  EXPECT_EQ(folders.back(), L"C:\\r\\24");
}

// Each would cost seconds.
TEST_F(PersonalGroup, AServerThatIsAwayIsAskedOnceForAllLinks) {
  machine_.AddFolders(L"\\\\live\\share\\Docs");
  machine_.faults.SilentPlaces = {L"\\\\DEAD"};
  for (int i = 0; i < 40; ++i) {
    MakeLink(L"d" + DecimalText(i), L"\\\\dead\\share\\" + DecimalText(i) + L".txt");
    MakeLink(L"g" + DecimalText(i), L"\\\\live\\gone\\" + DecimalText(i) + L".txt");
    MakeLink(L"m" + DecimalText(i), L"\\\\live\\share\\missing.txt");
  }
  MakeLink(L"x", L"\\\\live\\share\\Docs");
  EXPECT_EQ(BuildRecentFolders(app_), std::vector<std::wstring>{L"\\\\live\\share\\Docs"});
  EXPECT_EQ(machine_.workers.VainWaits, 1U);
  EXPECT_EQ(machine_.workers.Waits, 43U) << "the server that is away, the share that is gone, and what is missing";
}

TEST_F(PersonalGroup, WithoutRecentFoldersTheFirstStartMapsTheDrives) {
  EXPECT_EQ(TitlesUnder(*DefaultTree(app_), MIT_GROUP_USER), L"C_Program Files C_Users C_Windows");
  MakeLink(L"1", L"C:\\Windows");
  EXPECT_EQ(TitlesUnder(*DefaultTree(app_), MIT_GROUP_USER), L"Windows");
}

}  // namespace
}  // namespace burrowmark
