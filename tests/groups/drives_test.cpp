#include "groups/drives.h"

#include <gtest/gtest.h>

#include <functional>

#include "tests/support/menu_scene.h"

namespace burrowmark {
namespace {

class Drives : public testing::Test {
 protected:
  Drives() {
    scene_.AddPersonal();
    AddFixedEntries(app_, app_.MainStore(), false);
  }
  void AddDrive(wchar_t letter, std::int32_t type, const std::wstring& label = {}, const std::wstring& share = {}) {
    machine_.drives.Add(letter);
    machine_.drives.SetFacts(letter, {type, label, share});
  }
  void OpenMenu() { scene_.Choose(MenuActions().Cancel()); }

  test::MenuScene scene_;
  LocalMachine& machine_ = scene_.machine;
  Application& app_ = scene_.app;
};

TEST_F(Drives, EntriesOfTheListAreTakenApart) {
  AddDrive(L'B', 2);
  AddDrive(L'D', 5, L"DATA");
  AddDrive(L'E', 5);
  machine_.drives.TakeMediumOut(L'E');
  AddDrive(L'X', 4, L"", L"\\\\server\\share");
  AddDrive(L'Z', 2);
  const std::tuple<const wchar_t*, const wchar_t*, std::int32_t> cases[] = {
      {L"b:", L"B: (3.5-Inch Floppy Disk)", 2},
      {L"z:", L"Z: (Removable Disk)", 6},
      {L"z: [usb]", L"Z: (usb)", 2},
      {L"d:", L"D: (DATA)", 5},
      {L"e:", L"E: (Compact Disc)", 5},
      {L"x: [\\\\server\\share]", L"X: (\\\\server\\share)", 4},
      {L"c:", L"C:", 3},
      {L"q:", L"Q:", 1},
      {L"c: ", L"C: ()", 3},
  };
  for (const auto& [entry, name, type] : cases) {
    const clsDrive drive = ParseDriveEntry(app_, entry);
    EXPECT_EQ(drive.Name, name);
    EXPECT_EQ(drive.LocalName, drive.Name.substr(0, 2) + L"\\") << ToUtf8(entry);
    EXPECT_EQ(drive.DriveType, type) << ToUtf8(entry);
  }
}

TEST_F(Drives, TheGroupComesAtTheFirstOpeningAndFollowsTheMachine) {
  AddDrive(L'D', 5, L"DATA");
  scene_.Start();
  const std::pair<std::function<void()>, const wchar_t*> changes[] = {
      {[] {}, L"Drives[C: D: (DATA)] "},
      {[&] { AddDrive(L'U', 2); }, L"Drives[C: D: (DATA) U: (Removable Disk)] "},
      {[&] { machine_.drives.TakeMediumOut(L'D'); }, L"Drives[C: D: (Compact Disc) U: (Removable Disk)] "},
      {[&] { machine_.drives.Remove(L'U'); }, L"Drives[C: D: (Compact Disc)] "},
  };
  EXPECT_EQ(scene_.NativeTexts(), L"Help - Personal[] - Options Organize Folders");
  for (const auto& [change, group] : changes) {
    change();
    OpenMenu();
    EXPECT_EQ(scene_.NativeTexts(), L"Help - Personal[] " + std::wstring(group) + L"- Options Organize Folders");
    EXPECT_EQ(scene_.WrongNumbers(), "");
  }
  app_.AC[Appearance::kDrives] = false;
  OpenMenu();
  EXPECT_EQ(scene_.NativeTexts(), L"Help - Personal[] - Options Organize Folders");
}

TEST_F(Drives, ItemsHoldWhatOpensThem) {
  AddDrive(L'U', 2);
  SetupDrives(app_, app_.MainStore());
  EXPECT_EQ(app_.MainStore().GetMenuItemFromName(MIT_PATHS_DRIVES)->ItemType, MIT_PATHS_DRIVES);
  const ItemRef drive = app_.MainStore().CaptionExists2(L"U: (Removable Disk)", MIT_PATHS_DRIVES, false, L"");
  ASSERT_TRUE(drive);
  EXPECT_EQ(drive->FolderPath + L" " + drive->ItemType + L" " + drive->OpenType + L" " + drive->Remark,
            L"U:\\ MIT_DRIVE MIT_PATH_EXPLORER REMARK_AUTO");
  EXPECT_EQ(drive->IconID, 13);
}

TEST_F(Drives, ACheckAtAnOpeningTouchesTheMediumOfADiscWithoutALabelAlone) {
  AddDrive(L'A', 2);
  AddDrive(L'D', 5, L"DATA");
  AddDrive(L'U', 2);
  AddDrive(L'X', 4, L"", L"\\\\server\\share");
  scene_.Start();
  OpenMenu();
  const std::size_t once = machine_.drives.MediumTouches(L'D');
  machine_.faults.Clear();
  OpenMenu();
  EXPECT_EQ(machine_.drives.MediumTouches(L'D'), once + 1);
  for (const wchar_t letter : {L'A', L'U', L'X'}) EXPECT_EQ(machine_.drives.MediumTouches(letter), 0U);
  for (const std::string& call : machine_.faults.Record()) {
    EXPECT_TRUE(call.starts_with("DriveList") || call.starts_with("DriveExists") || call.starts_with("GetDriveTypeA") ||
                call == "GetVolumeInformationA D:")
        << call;
  }
}

TEST_F(Drives, AnotherStoreMarksTheMenuAndUnchangedDrivesLeaveItAlone) {
  scene_.Start();
  OpenMenu();
  const std::int32_t id = app_.MainStore().GetMenuItemFromName(MIT_PATHS_DRIVES)->ID();
  OpenMenu();
  EXPECT_EQ(app_.MainStore().GetMenuItemFromName(MIT_PATHS_DRIVES)->ID(), id);
  clsMenuCollection other(machine_.clock);
  AddFixedEntries(app_, other, false);
  SetupDrives(app_, other);
  EXPECT_TRUE(app_.DrivesRebuildNeeded);
  RemoveDrives(app_, other);
  EXPECT_FALSE(other.ItemExists(MIT_PATHS_DRIVES));
}

}  // namespace
}  // namespace burrowmark
