// The editor's window as a person meets it: panes, status bar, commands, layout, and the ways out of it.
#include <gtest/gtest.h>

#include "config/config_file.h"
#include "core/registry_keys.h"
#include "groups/system_folders.h"
#include "platform/characters.h"
#include "platform/key_codes.h"
#include "projection/organized_folders.h"
#include "tests/organize/organize_scene.h"

namespace burrowmark {
namespace {

constexpr wchar_t kOther[] = L"C:\\other.bwmk";
constexpr wchar_t kLayoutKey[] = L"Software\\Kestrelan\\Burrowmark\\frmOrg";

class Organize : public testing::Test {
 protected:
  std::wstring Layout(const std::wstring& name) { return scene_.Registered(kLayoutKey, name); }
  void SetLayout(const std::wstring& name, const std::wstring& text) { scene_.Register(kLayoutKey, name, text); }
  frmOrganize& form() { return scene_.form(); }
  bool IsClosed() { return !form().Loaded(); }
  // A change as an edit makes it.
  void Change(const std::wstring& title = L"Changed") {
    form().WorkCollection()->AddNewMenuItem({.Caption = title, .OwnerName = MIT_GROUP_USER, .FolderPath = L"C:\\Beta"});
    form().Edited.Changed = true;
  }
  bool FileHas(const std::wstring& path, const std::string& text) {
    return machine_.BytesOf(path).find(text) != std::string::npos;
  }
  bool MenuHas(const std::wstring& text) { return scene_.NativeTexts().find(text) != std::wstring::npos; }
  void WriteOther() {
    Document other = app_.MainDocument;
    ConfigFileWriteAs(app_, other, kOther);
  }

  test::OrganizeScene scene_;
  LocalMachine& machine_ = scene_.machine;
  Application& app_ = scene_.app;
};

class OpenOrganize : public Organize {
 protected:
  OpenOrganize() { scene_.Open(); }
};

// --- panes

TEST_F(OpenOrganize, OpensOnThePersonalGroup) {
  EXPECT_EQ(scene_.Window().caption, L"Organize Folders");
  EXPECT_EQ(scene_.Nodes(), L"0 Organized Folders|1 Personal|2 Alpha|3 Inner|2 Beta|2 Gamma|1 Drives");
  EXPECT_EQ(scene_.Rows(), L"Alpha|Beta|Gamma");
  EXPECT_EQ(scene_.Column(2), L"||Shift+Ctrl+5");
  EXPECT_EQ(scene_.Column(3), L"|C:\\Beta|C:\\Gamma");
  EXPECT_EQ(scene_.Column(4), L"|The second|");
  EXPECT_EQ(scene_.Column(5), L"Never|Never|Never");
  EXPECT_TRUE(scene_.Column(6).starts_with(L"11/5/2003 2:07:09 PM|"));
  EXPECT_EQ(scene_.Status(), L"3 object(s)|Personal Group||Personal");
}

TEST_F(Organize, OnlyGroupsHaveNodesUnlessAllIsWanted) {
  scene_.app.MainStore().AddNewMenuItem({.Caption = L"Top", .OwnerName = kRootOwner, .FolderPath = L"C:\\Beta"});
  scene_.Open();
  scene_.Window().ChooseMenu({L"View", L"Show All in Left Pane"});
  EXPECT_EQ(scene_.Nodes(), L"0 Organized Folders|1 Personal|2 Alpha|1 Drives|1 Top");
  scene_.Window().ChooseMenu({L"View", L"Show All in Left Pane"});
  scene_.Window().ClickNode(scene_.Tree(), L"Personal");
  scene_.Window().ClickNode(scene_.Tree(), L"Beta");
  EXPECT_EQ(scene_.Rows(), L"Alpha|Beta|Gamma");
  EXPECT_EQ(scene_.Status(), L"1 object(s) selected|Folder Shortcut|The second|Beta");
}

TEST_F(OpenOrganize, ANewNodeStandsAmongTheSiblingsThatHaveOne) {
  scene_.Window().ChooseMenu({L"View", L"Show All in Left Pane"});  // off
  const auto add = [this](const wchar_t* title, const std::wstring& owner) {
    std::wstring name;
    form().EditTree(L"New", [&](TreeEdit& edit) {
      name = edit.AddNew({.Caption = title, .OwnerName = owner, .SubMenu = true})->Name();
    });
    return name;
  };
  const std::wstring personal = MIT_GROUP_USER;
  const std::wstring middle = add(L"Middle", personal);
  add(L"Aaa", personal);
  add(L"Only", middle);
  EXPECT_EQ(scene_.Nodes(), L"0 Organized Folders|1 Personal|2 Aaa|2 Alpha|2 Middle|3 Only|1 Drives");
}

TEST_F(OpenOrganize, DrivesShowATextInsteadOfRows) {
  for (const wchar_t* node : {L"Drives", L"Organized Folders"}) {
    scene_.Window().ClickNode(scene_.Tree(), node);
    EXPECT_EQ(scene_.Control(ShownKind::kTextBox).visible, scene_.Rows().empty());
  }
  EXPECT_EQ(scene_.Control(ShownKind::kTextBox).place, scene_.Control(ShownKind::kListView).place);
  EXPECT_EQ(scene_.Rows(), L"Personal|Drives");
  EXPECT_EQ(scene_.Status(), L"2 object(s)|Organized Folders||Organized Folders");
}

TEST_F(OpenOrganize, GoesDownByEnterAndUpByBackspace) {
  scene_.ClickRow(L"Alpha");
  // Nothing is current in Alpha yet, and a refresh stays where it is.
  for (const std::int32_t key : {kKeyCodeReturn, kKeyCodeReturn, kKeyCodeF5}) {
    scene_.Window().Press(key);
    EXPECT_EQ(scene_.Rows(), L"Inner");
    EXPECT_EQ(scene_.Status(), L"1 object(s)|Group||Alpha");
  }
  scene_.Window().Press(kKeyCodeBackspace);
  EXPECT_EQ(scene_.Rows(), L"Alpha|Beta|Gamma");
  scene_.Window().ClickButton(scene_.Toolbar(), L"keyUp");
  scene_.Window().Press(kKeyCodeBackspace);  // the root has nothing above it
  EXPECT_EQ(scene_.Rows(), L"Personal|Drives");
}

TEST_F(OpenOrganize, DoubleClicksOpenFolders) {
  scene_.Window().DoubleClickRow(scene_.List(), scene_.RowOf(L"Gamma"));
  scene_.Window().DoubleClickNode(scene_.Tree(), L"Beta");
  scene_.Window().DoubleClickNode(scene_.Tree(), L"Alpha");  // opens the node alone
  ASSERT_EQ(machine_.shell.Launches.size(), 2U);
  EXPECT_EQ(machine_.shell.Launches[0].parameters + machine_.shell.Launches[1].parameters, L"/e,C:\\GammaC:\\Beta");
}

TEST_F(OpenOrganize, TheStatusBarFollowsTheSelection) {
  scene_.ClickRow(L"Beta");
  EXPECT_EQ(scene_.Status(), L"1 object(s) selected|Folder Shortcut|The second|Beta");
  scene_.ClickRow(L"Gamma", kLeftButton, kCtrlMask);
  EXPECT_EQ(scene_.Status(), L"2 object(s) selected|Multiple selection||Personal");
  scene_.Window().ClickRow(scene_.List(), -1);
  machine_.windows.DoEvents();
  EXPECT_EQ(scene_.Status(), L"3 object(s)|Personal Group||Personal");
}

TEST_F(OpenOrganize, AColumnSortsUpAndDownAndShowsIt) {
  const auto header = [this](std::size_t column) {
    return scene_.Control(ShownKind::kListView).list->columns[column].text;
  };
  scene_.ClickRow(L"Beta");
  scene_.Window().ClickColumn(scene_.List(), 3);
  EXPECT_EQ(header(3), L"Target Location+");
  EXPECT_EQ(scene_.Rows(), L"Alpha|Beta|Gamma");
  scene_.Window().ClickColumn(scene_.List(), 3);
  EXPECT_EQ(header(3), L"Target Location-");
  EXPECT_EQ(scene_.Rows(), L"Gamma|Beta|Alpha");
  scene_.Window().ClickButton(scene_.Toolbar(), L"keyWindowsExplorer");  // Beta is selected still
  EXPECT_EQ(machine_.shell.Launches.back().parameters, L"C:\\Beta");
  scene_.Window().ChooseMenu({L"View", L"Arrange Icons", L"by Name"});
  EXPECT_EQ(header(3), L"Target Location");
  EXPECT_EQ(header(0), L"Name+");
  EXPECT_EQ(scene_.Rows(), L"Alpha|Beta|Gamma");
}

// --- what can be used

TEST_F(Organize, EveryKindOfTargetHasItsCommands) {
  app_.AC[Appearance::kSystemFolders] = true;
  SetupSystemFolders(app_, app_.MainStore());
  scene_.Open();
  // The entries of a menu in order: on, off, a line.
  const auto marks = [](const std::vector<std::wstring>& texts) {
    std::wstring line;
    for (const std::wstring& text : texts) line += text == L"-" ? L'|' : text.ends_with(L"(disabled)") ? L'.' : L'+';
    return line;
  };
  struct Case {
    const wchar_t* node;
    const wchar_t* edit;   // Undo | Cut Copy Paste | Delete Rename Change | Copy Target Location | the selection
    const wchar_t* popup;  // Collapse | Find Report | as in Edit | Restore | Properties
    const wchar_t* buttons;
  };
  const Case cases[] = {
      {L"Organized Folders", L".|...|...|.|+++", L"+|++|...|...|.|.", L"WindowsExplorer"},
      {L"Personal", L".|...|.+.|.|+++", L"+|++|...|...|+|+|+", L"New Up WindowsExplorer Properties"},
      {L"System Folders", L".|...|+..|.|+++", L"+|++|...|+..|+|+|+", L"New Up WindowsExplorer Delete Properties"},
      {L"Alpha", L".|++.|+++|+|+++", L"+|++|++.|+++|+|+", L"New Change Up WindowsExplorer Cut Copy Delete Properties"},
  };
  for (const Case& row : cases) {
    scene_.Window().ClickNode(scene_.Tree(), row.node);
    EXPECT_EQ(marks(scene_.Window().MenuTexts({L"Edit"})), row.edit);
    EXPECT_EQ(scene_.Buttons(), row.buttons);
    machine_.user.NextPopup([&](ShownPopup& popup) { EXPECT_EQ(marks(popup.Texts()), row.popup); });
    scene_.Window().ClickNode(scene_.Tree(), row.node, kRightButton);
  }
}

TEST_F(OpenOrganize, PopupsAreThoseOfWhatWasClicked) {
  const auto defaultIs = [this](const wchar_t* entry) {
    machine_.user.NextPopup([entry](ShownPopup& popup) { EXPECT_EQ(popup.Default(), entry); });
  };
  defaultIs(L"Windows Explorer");
  scene_.ClickRow(L"Beta", kRightButton);
  defaultIs(L"Explore");
  scene_.ClickRow(L"Alpha", kRightButton);
  machine_.user.NextPopup([](ShownPopup& popup) {
    EXPECT_EQ(popup.Texts(), (std::vector<std::wstring>{L"New", L"-", L"Paste (disabled)", L"-", L"Arrange Icons",
                                                        L"Select All", L"-", L"Properties..."}));
  });
  scene_.Window().ClickRow(scene_.List(), -1, kRightButton);
  machine_.user.NextPopup([](ShownPopup& popup) {
    EXPECT_EQ(popup.Default(), L"Collapse");
    popup.Choose({L"Collapse"});
  });
  scene_.Window().ClickNode(scene_.Tree(), L"Personal", kRightButton);
  defaultIs(L"Expand");
  scene_.Window().ClickNode(scene_.Tree(), L"Personal", kRightButton);
}

TEST_F(OpenOrganize, CommandsActOnWhatIsSelected) {
  scene_.Window().ClickButton(scene_.Toolbar(), L"keyWindowsExplorer");
  EXPECT_EQ(machine_.shell.Launches.back().parameters, L"C:\\Users\\User\\Documents");  // a group has no folder
  scene_.ClickRow(L"Beta");
  scene_.Window().ChooseMenu({L"Tools", L"Find..."});
  EXPECT_EQ(machine_.shell.Launches.back().file, L"C:\\Beta");
  scene_.Window().ChooseMenu({L"Help", L"Support"});
  EXPECT_EQ(machine_.shell.Launches.back().file, L"http://www.kestrelan.example/products/bm/support.html");
}

TEST_F(OpenOrganize, LabelsAreRenamedInBothPanesAndBadOnesRefused) {
  const auto rename = [this](const std::wstring& title) {
    scene_.Window().Press(kKeyCodeF2);
    scene_.Window().TypeLabel(title);
    scene_.Window().Press(kKeyCodeReturn);
  };
  scene_.ClickRow(L"Gamma");
  rename(L"Delta");
  scene_.ClickRow(L"Alpha");
  rename(L"Omega");
  EXPECT_EQ(scene_.Rows(), L"Omega|Beta|Delta");
  EXPECT_EQ(scene_.Column(2), L"||Shift+Ctrl+5");
  EXPECT_EQ(scene_.Nodes(), L"0 Organized Folders|1 Personal|2 Omega|3 Inner|2 Beta|2 Delta|1 Drives");
  EXPECT_TRUE(std::exchange(form().Edited.Changed, false));
  machine_.user.NextBox(L"cannot contain any of the following characters", kAnswerOk);
  rename(L"a*b");
  scene_.ClickRow(L"Beta");
  machine_.user.NextBox(L"Cannot rename Delta: An item with the name you specified already exists.", kAnswerOk);
  rename(L"Delta");
  for (const wchar_t* same : {L"Beta", L"", L"  "}) rename(same);
  EXPECT_EQ(scene_.Rows(), L"Omega|Beta|Delta");
  EXPECT_FALSE(form().Edited.Changed);
  scene_.Window().ClickNode(scene_.Tree(), L"Drives");
  scene_.Window().Press(kKeyCodeF2);
  EXPECT_THROW(scene_.Window().TypeLabel(L"x"), std::logic_error);
  form().Edited.Changed = true;
  scene_.Window().Close();
  EXPECT_EQ(app_.MainStore().GetMenuItemFromName(L"I")->ItemLocation, L"\\\\Personal\\Omega");
  EXPECT_EQ(app_.MainStore().GetMenuItemFromName(L"G")->KeyboardCode, 53);
}

// --- layout

TEST_F(OpenOrganize, PanesShareTheRoom) {
  scene_.Window().Resize(1000, 700);
  const auto place = [this](ShownKind kind) { return scene_.Control(kind).place; };
  const Rect tree = place(ShownKind::kTreeView);
  const Rect list = place(ShownKind::kListView);
  EXPECT_EQ(list, (Rect{tree.right + 4, list.top, scene_.Window().client.right - 8, tree.bottom}));
  EXPECT_EQ(tree.bottom, place(ShownKind::kStatusBar).top);
  scene_.Window().ChooseMenu({L"View", L"Status Bar"});
  EXPECT_EQ(place(ShownKind::kTreeView).bottom, scene_.Window().client.bottom);
  scene_.Window().Resize(20, 200);
  EXPECT_EQ(place(ShownKind::kListView).right - place(ShownKind::kListView).left, 0);
}

TEST_F(OpenOrganize, TheSplitterIsDragged) {
  const auto edge = [this] { return ToTwips(scene_.Control(ShownKind::kTreeView).place.right, kDesignDpi); };
  const std::int32_t from = edge() + 30;
  scene_.Window().Mouse(0, MouseAction::kMove, {0, 0, from, 3000});
  EXPECT_EQ(scene_.Window().pointer, kPointerSizeWE);
  scene_.Window().Mouse(0, MouseAction::kDown, {kLeftButton, 0, from, 3000});
  scene_.Window().Mouse(0, MouseAction::kMove, {kLeftButton, 0, 6000, 3000});
  scene_.Window().Mouse(0, MouseAction::kUp, {kLeftButton, 0, 6000, 3000});
  scene_.Window().Mouse(scene_.List(), MouseAction::kMove, {0, 0, 100, 100});
  EXPECT_EQ(scene_.Window().pointer, kPointerDefault);
  scene_.Window().Resize(1200, 700);
  EXPECT_EQ(edge(), 6000);
}

TEST_F(OpenOrganize, TheLayoutComesBack) {
  scene_.Window().ChooseMenu({L"View", L"Large Icons"});
  scene_.Window().ChooseMenu({L"View", L"Status Bar"});
  scene_.Window().ChooseMenu({L"View", L"Toolbar", L"Show Text"});
  scene_.Window().DragColumn(scene_.List(), 0, 3000);
  scene_.Window().Resize(900, 600);
  scene_.Window().Close();
  EXPECT_EQ(Layout(L"I1") + Layout(L"I2") + Layout(L"I3") + Layout(L"I4"), L"FalsekeyViewsIcoLargeFalseTrue");
  EXPECT_EQ(Layout(L"ICHW1") + L" " + Layout(L"W"), L"3000 13500");
  SetLayout(L"ICHW1", L"2500");
  scene_.Open();
  EXPECT_EQ(scene_.Window().place.right - scene_.Window().place.left, 900);
  EXPECT_FALSE(scene_.Control(ShownKind::kStatusBar).visible);
  EXPECT_EQ(scene_.Control(ShownKind::kListView).list->view, ListViewMode::kIcon);
  EXPECT_EQ(scene_.Control(ShownKind::kListView).list->columns[0].width, 2500);
  EXPECT_EQ(scene_.Control(ShownKind::kToolbar).buttons.front().caption, L"");
  EXPECT_EQ(scene_.Window().MenuTexts({L"View"})[4], L"(o) Large Icons");
}

TEST_F(Organize, BadLayoutValuesAreTheDefaults) {
  SetLayout(L"I1", L"perhaps");
  SetLayout(L"I2", L"keyViewsNothing");
  SetLayout(L"ICHW2", L"wide");
  for (const wchar_t* name : {L"L", L"T"}) SetLayout(name, L"90000");  // off every screen
  for (const wchar_t* name : {L"W", L"H"}) SetLayout(name, L"9000");
  scene_.Open();
  EXPECT_TRUE(scene_.Control(ShownKind::kStatusBar).visible);
  EXPECT_EQ(scene_.Control(ShownKind::kListView).list->columns[1].width, 1900);
  EXPECT_LE(scene_.Window().place.right, WindowStack::kScreen.right);
  EXPECT_LE(scene_.Window().place.bottom, WindowStack::kScreen.bottom);
}

// --- the ways out

TEST_F(Organize, WithoutChangesNothingIsWrittenAndNothingAsked) {
  app_.ADVC[Advanced::kOnDesktop] = app_.ADVC[Advanced::kProjectAtClosing] = true;
  InitOrganizedFoldersPaths(app_);
  scene_.Open();
  machine_.files.DeleteFileA(L"C:\\default.bwmk");
  scene_.Window().ChooseMenu({L"File", L"Exit Discarding Changes"});
  EXPECT_TRUE(IsClosed());
  EXPECT_FALSE(machine_.files.FileExists(L"C:\\default.bwmk"));
  EXPECT_FALSE(machine_.files.FolderExists(app_.OrganizedFoldersDesktop));
}

TEST_F(Organize, ChangesReachTheFileTheMenuAndTheProjections) {
  for (const bool projects : {false, true}) {
    app_.ADVC = SettingValues<Advanced>(false);
    app_.ADVC[Advanced::kOnDesktop] = app_.ADVC[Advanced::kInSendTo] =
        true;                                           // project on the Desktop and in Send To ...
    app_.ADVC[Advanced::kProjectAtClosing] = projects;  // ... at closing
    InitOrganizedFoldersPaths(app_);
    scene_.Open();
    const std::wstring title = L"Changed" + std::to_wstring(projects);
    Change(title);
    EXPECT_FALSE(MenuHas(title));
    scene_.Window().Close();
    EXPECT_TRUE(IsClosed());
    EXPECT_TRUE(FileHas(L"C:\\default.bwmk", ToUtf8(title)));
    EXPECT_TRUE(MenuHas(title));
    EXPECT_EQ(scene_.WrongNumbers(), "");
    EXPECT_EQ(machine_.files.FileExists(app_.OrganizedFoldersDesktop + L"\\" + title + L".lnk"), projects);
    EXPECT_EQ(machine_.files.FileExists(app_.OrganizedFoldersSendTo + L"\\" + title + L".lnk"), projects);
    EXPECT_FALSE(machine_.files.FolderExists(app_.OrganizedFoldersFavorites));
  }
}

TEST_F(Organize, DiscardingAsksAndNoSaves) {
  for (const std::int32_t answer : {kAnswerCancel, kAnswerYes, kAnswerNo}) {
    scene_.Open();
    Change(L"Word" + std::to_wstring(answer));
    machine_.user.NextBox(L"Are you sure you want to exit and lose any changes", answer);
    scene_.Window().ChooseMenu({L"File", L"Exit Discarding Changes"});
    EXPECT_EQ(IsClosed(), answer != kAnswerCancel) << answer;
    EXPECT_EQ(MenuHas(L"Word" + std::to_wstring(answer)), answer == kAnswerNo) << answer;
    form().Edited.Changed = false;
    form().Unload();
  }
}

TEST_F(Organize, AnotherFileAsksAndNeverReachesTheMenu) {
  for (const std::int32_t answer : {kAnswerCancel, kAnswerNo, kAnswerYes}) {
    scene_.Open();
    WriteOther();
    form().Init(std::wstring(L"/OPEN ") + kOther);
    EXPECT_EQ(scene_.Window().caption, L"Organize Folders - other.bwmk");
    Change();
    machine_.user.NextBox(L"Do you want to save the changes you made to other.bwmk?", answer);
    scene_.Window().Close();
    EXPECT_EQ(IsClosed(), answer != kAnswerCancel);
    EXPECT_EQ(FileHas(kOther, "Changed"), answer == kAnswerYes);
    EXPECT_FALSE(MenuHas(L"Changed"));
    form().Edited.Changed = false;
    form().Unload();
  }
  EXPECT_FALSE(FileHas(L"C:\\default.bwmk", "Changed"));
}

TEST_F(OpenOrganize, AFailedSaveKeepsTheWindowAndEverythingInIt) {
  Change();
  machine_.files.SetFileAttributesA(L"C:\\default.bwmk", kFileReadOnly);
  machine_.user.NextBox(L"Error saving configuration file default.bwmk\r\nFile is read-only.", kAnswerOk);
  scene_.Window().Close();
  EXPECT_FALSE(IsClosed());
  EXPECT_TRUE(form().Edited.Changed);
  EXPECT_FALSE(MenuHas(L"Changed"));
  machine_.files.SetFileAttributesA(L"C:\\default.bwmk", 0);
  scene_.Window().Close();
  EXPECT_TRUE(IsClosed());
  EXPECT_TRUE(MenuHas(L"Changed"));
}

TEST_F(OpenOrganize, OpeningAsksAboutChangesAndABadFileChangesNothing) {
  machine_.AddFile(L"C:\\bad.bwmk", "nothing of ours");
  Change();
  machine_.user.NextBox(L"Do you want to save the changes you made to default.bwmk?", kAnswerCancel);
  form().Init(L"/OPEN C:\\bad.bwmk");
  machine_.user.NextBox(L"Do you want to save the changes you made to default.bwmk?", kAnswerNo);
  machine_.user.NextBox(L"Error opening configuration file bad.bwmk", kAnswerOk);
  form().Init(L"/OPEN C:\\bad.bwmk");
  WriteOther();
  machine_.files.SetFileAttributesA(L"C:\\default.bwmk", kFileReadOnly);
  machine_.user.NextBox(L"Do you want to save the changes you made to default.bwmk?", kAnswerYes);
  machine_.user.NextBox(L"Error saving configuration file default.bwmk", kAnswerOk);
  form().Init(std::wstring(L"/OPEN ") + kOther);  // what couldn't be saved stays in the window
  EXPECT_TRUE(form().Edited.Changed);
  EXPECT_EQ(scene_.Window().caption, L"Organize Folders");
  form().SaveOnExit = false;
}

class OrganizeSystemFolders : public Organize {
 protected:
  OrganizeSystemFolders() {
    app_.AC[Appearance::kSystemFolders] = true;
    SetupSystemFolders(app_, app_.MainStore());
    scene_.Open();
  }
};

TEST_F(OrganizeSystemFolders, AFileKeepsItsOwnWhenTheDeletedOnesAreGivenUp) {
  WriteOther();
  const std::wstring nodes = scene_.Nodes();
  scene_.Window().ClickNode(scene_.Tree(), L"System Folders");
  machine_.user.NextBox(L"Do you want to delete System Folders group?", kAnswerYes);
  scene_.Window().Press(kKeyCodeDelete);
  EXPECT_EQ(scene_.Nodes().find(L"System Folders"), std::wstring::npos);
  machine_.user.NextBox(L"Do you want to save the changes you made to default.bwmk?", kAnswerNo);
  form().Init(std::wstring(L"/OPEN ") + kOther);
  EXPECT_EQ(scene_.Nodes(), nodes);
}

TEST_F(OrganizeSystemFolders, WhatWasDeletedAndSavedStaysAwayWhateverOptionChanged) {
  const ItemRef gone = form().WorkCollection()->Children(MIT_PATHS_SYSTEM).front();
  app_.AC[Appearance::kImportantFirst] = !app_.AC[Appearance::kImportantFirst];  // as in the Options dialog
  form().EditTree(L"Delete", [&gone](TreeEdit& edit) { edit.TakeOut(gone); });
  machine_.user.NextBox(L"Default configuration file is successfully saved.", kAnswerOk);
  scene_.Window().Press(L'S', kCtrlMask);
  scene_.Window().Close();
  EXPECT_FALSE(app_.MainStore().ItemExists(gone->Name()));
}

// --- the File menu

constexpr wchar_t kSaveTitle[] = L"Save Configuration File As";

TEST_F(OpenOrganize, FilesAreOpenedAndTheDefaultOneComesBack) {
  WriteOther();
  const auto entries = [this] { return scene_.Window().MenuTexts({L"File"}).size(); };
  const std::size_t before = entries();
  for (const std::optional<std::wstring>& file : {std::optional<std::wstring>(), std::optional<std::wstring>(kOther)}) {
    machine_.user.NextFile(L"Open Configuration File", file);
    scene_.Window().ChooseMenu({L"File", L"Open..."});
    EXPECT_EQ(scene_.Window().caption, file ? L"Organize Folders - other.bwmk" : L"Organize Folders");
    EXPECT_EQ(entries(), before + (file ? 2 : 0));
  }
  Change();
  machine_.user.NextBox(L"Do you want to save the changes you made to other.bwmk?", kAnswerYes);
  scene_.Window().ChooseMenu({L"File", L"Open Default"});
  EXPECT_TRUE(FileHas(kOther, "Changed"));
  EXPECT_EQ(scene_.Window().caption, L"Organize Folders");
  EXPECT_EQ(entries(), before);
}

TEST_F(OpenOrganize, SavingReachesTheFileAtOnceAndTheMenuAtTheEnd) {
  Change(L"Saved");
  machine_.user.NextBox(L"Default configuration file is successfully saved.", kAnswerOk);
  scene_.Window().Press(L'S', kCtrlMask);
  EXPECT_TRUE(FileHas(L"C:\\default.bwmk", "Saved"));
  EXPECT_FALSE(MenuHas(L"Saved"));
  Change(L"Discarded");
  machine_.user.NextBox(L"Are you sure", kAnswerYes);
  scene_.Window().ChooseMenu({L"File", L"Exit Discarding Changes"});
  EXPECT_TRUE(MenuHas(L"Saved"));
  EXPECT_FALSE(MenuHas(L"Discarded"));
}

TEST_F(OpenOrganize, SavingUnderAnotherNameAsksAndAListingChangesNoName) {
  Change();
  machine_.user.NextFile(kSaveTitle, L"C:\\list", 2);
  machine_.user.NextBox(L"Configuration file list.txt is successfully saved.", kAnswerOk);
  scene_.Window().ChooseMenu({L"File", L"Save As..."});
  EXPECT_TRUE(FileHas(L"C:\\list.txt", "Changed"));
  EXPECT_EQ(scene_.Window().caption, L"Organize Folders");
  EXPECT_TRUE(form().Edited.Changed);  // a listing can't be read back
  WriteOther();
  for (const std::int32_t answer : {kAnswerNo, kAnswerYes}) {
    machine_.user.NextFile(kSaveTitle, kOther, 1);
    machine_.user.NextBox(L"File C:\\other.bwmk already exists.\r\nDo you want to replace it?", answer);
    if (answer == kAnswerYes) machine_.user.NextBox(L"other.bwmk is successfully saved.", kAnswerOk);
    scene_.Window().ChooseMenu({L"File", L"Save As..."});
    EXPECT_EQ(FileHas(kOther, "Changed"), answer == kAnswerYes);
  }
  EXPECT_EQ(scene_.Window().caption, L"Organize Folders - other.bwmk");
}

TEST_F(OpenOrganize, AnotherFileBecomesTheDefaultOne) {
  WriteOther();
  form().Init(std::wstring(L"/OPEN ") + kOther);
  for (const std::int32_t answer : {kAnswerNo, kAnswerYes}) {
    machine_.user.NextBox(L"Do you want to make other.bwmk the default configuration file?", answer);
    if (answer == kAnswerYes) machine_.user.NextBox(L"other.bwmk is now the default configuration file.", kAnswerOk);
    scene_.Window().ChooseMenu({L"File", L"Set As Default"});
    EXPECT_EQ(scene_.Registered(kSettingsKey, kConfigFileValue), answer == kAnswerYes ? kOther : L"");
  }
  EXPECT_EQ(scene_.Window().caption, L"Organize Folders");
  Change();
  form().Edited.Changed = false;
  scene_.Window().Close();  // no question, though nothing counts as changed
  EXPECT_TRUE(FileHas(kOther, "Changed"));
  EXPECT_TRUE(MenuHas(L"Changed"));
}

TEST_F(OpenOrganize, DiscardedEditsDontReachTheNewDefaultFileEither) {
  WriteOther();
  form().Init(std::wstring(L"/OPEN ") + kOther);
  machine_.user.NextBox(L"Do you want to make other.bwmk the default configuration file?", kAnswerYes);
  machine_.user.NextBox(L"other.bwmk is now the default configuration file.", kAnswerOk);
  scene_.Window().ChooseMenu({L"File", L"Set As Default"});
  Change();
  machine_.user.NextBox(L"Are you sure you want to exit and lose any changes", kAnswerYes);
  scene_.Window().ChooseMenu({L"File", L"Exit Discarding Changes"});
  EXPECT_FALSE(FileHas(kOther, "Changed") || MenuHas(L"Changed"));
  EXPECT_EQ(app_.MainDocument.CurrentConfigFile, kOther);
}

}  // namespace
}  // namespace burrowmark
