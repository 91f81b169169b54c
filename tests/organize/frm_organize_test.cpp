// The editor's window as a person meets it: panes, status bar, commands, layout, and the ways out of it.
#include <gtest/gtest.h>

#include "config/config_file.h"
#include "core/registry.h"
#include "core/registry_keys.h"
#include "organize/enabling.h"
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
  std::wstring Layout(const std::wstring& name) {
    std::wstring text;
    clsRegHandler(machine_.registry).GetKeyValue(RegistryKey::kCurrentUser, kLayoutKey, name, text);
    return text;
  }
  void SetLayout(const std::wstring& name, const std::wstring& text) {
    clsRegHandler(machine_.registry).SetKeyValue(RegistryKey::kCurrentUser, kLayoutKey, name, text);
  }
  bool IsClosed() const { return !form_.Loaded(); }
  // A change as an edit makes it.
  void Change(const std::wstring& title = L"Changed") {
    form_.WorkCollection->AddNewMenuItem({.Caption = title, .OwnerName = MIT_GROUP_USER, .FolderPath = L"C:\\Beta"});
    form_.Changed = true;
  }
  bool FileHas(const std::wstring& path, const std::string& text) {
    return machine_.BytesOf(path).find(text) != std::string::npos;
  }
  bool MenuHas(const std::wstring& text) { return scene_.NativeTexts().find(text) != std::wstring::npos; }
  void WriteOther() { ConfigFileWrite(app_, *app_.MainStore, kOther, false); }

  test::OrganizeScene scene_;
  LocalMachine& machine_ = scene_.machine;
  Application& app_ = scene_.app;
  frmOrganize& form_ = scene_.form;
};

// --- panes

TEST_F(Organize, OpensOnThePersonalGroup) {
  scene_.Open();
  EXPECT_EQ(scene_.Window().caption, L"Organize Folders");
  EXPECT_EQ(scene_.Nodes(), L"0 Organized Folders|1 Personal|2 Alpha|3 Inner|2 Beta|2 Gamma|1 Drives");
  EXPECT_EQ(scene_.Rows(), L"Alpha|Beta|Gamma");
  EXPECT_EQ(scene_.Column(2), L"||Shift+Ctrl+5");
  EXPECT_EQ(scene_.Column(3), L"|C:\\Beta|C:\\Gamma");
  EXPECT_EQ(scene_.Column(4), L"|The second|");
  EXPECT_EQ(scene_.Column(5), L"Never|Never|Never");
  EXPECT_EQ(scene_.Column(6), L"11/5/2003 2:07:09 PM|11/5/2003 2:07:09 PM|11/5/2003 2:07:09 PM");
  EXPECT_EQ(scene_.Status(), L"3 object(s)|Personal Group||Personal");
  EXPECT_EQ(scene_.Buttons(), L"New Up WindowsExplorer Properties");
}

TEST_F(Organize, OnlyGroupsHaveNodesUnlessAllIsWanted) {
  scene_.app.MainStore->AddNewMenuItem({.Caption = L"Top", .OwnerName = kRootOwner, .FolderPath = L"C:\\Beta"});
  scene_.Open();
  scene_.Window().ChooseMenu({L"View", L"Show All in Left Pane"});
  EXPECT_EQ(scene_.Nodes(), L"0 Organized Folders|1 Personal|2 Alpha|1 Drives|1 Top");
  EXPECT_EQ(scene_.Rows(), L"Alpha|Beta|Gamma");
  scene_.Window().ChooseMenu({L"View", L"Show All in Left Pane"});
  scene_.Window().ClickNode(scene_.Tree(), L"Personal");
  scene_.Window().ClickNode(scene_.Tree(), L"Beta");
  EXPECT_EQ(scene_.Rows(), L"Alpha|Beta|Gamma");
  EXPECT_EQ(scene_.Status(), L"1 object(s) selected|Folder Shortcut|The second|Beta");
}

TEST_F(Organize, DrivesShowATextInsteadOfRows) {
  scene_.Open();
  scene_.Window().ClickNode(scene_.Tree(), L"Drives");
  EXPECT_EQ(scene_.Rows(), L"");
  EXPECT_TRUE(scene_.Control(ShownKind::kTextBox).visible);
  EXPECT_EQ(scene_.Control(ShownKind::kTextBox).place, scene_.Control(ShownKind::kListView).place);
  scene_.Window().ClickNode(scene_.Tree(), L"Organized Folders");
  EXPECT_FALSE(scene_.Control(ShownKind::kTextBox).visible);
  EXPECT_EQ(scene_.Rows(), L"Personal|Drives");
  EXPECT_EQ(scene_.Status(), L"2 object(s)|Organized Folders||Organized Folders");
}

TEST_F(Organize, GoesDownByEnterAndUpByBackspace) {
  scene_.Open();
  scene_.ClickRow(L"Alpha");
  scene_.Window().Press(kKeyCodeReturn);
  EXPECT_EQ(scene_.Rows(), L"Inner");
  EXPECT_EQ(scene_.Status(), L"1 object(s)|Group||Alpha");
  scene_.Window().Press(kKeyCodeReturn);  // nothing is current here yet
  EXPECT_EQ(scene_.Rows(), L"Inner");
  scene_.Window().Press(kKeyCodeBackspace);
  EXPECT_EQ(scene_.Rows(), L"Alpha|Beta|Gamma");
  scene_.Window().ClickButton(scene_.Toolbar(), L"keyUp");
  EXPECT_EQ(scene_.Rows(), L"Personal|Drives");
  scene_.Window().Press(kKeyCodeBackspace);  // the root has nothing above it
  EXPECT_EQ(scene_.Rows(), L"Personal|Drives");
}

TEST_F(Organize, DoubleClicksOpenFolders) {
  scene_.Open();
  scene_.Window().DoubleClickRow(scene_.List(), scene_.RowOf(L"Gamma"));
  scene_.Window().DoubleClickNode(scene_.Tree(), L"Beta");
  scene_.Window().DoubleClickNode(scene_.Tree(), L"Alpha");  // opens the node alone
  ASSERT_EQ(machine_.shell.Launches.size(), 2U);
  EXPECT_EQ(machine_.shell.Launches[0].parameters, L"/e,C:\\Gamma");
  EXPECT_EQ(machine_.shell.Launches[1].parameters, L"C:\\Beta");
}

TEST_F(Organize, TheStatusBarFollowsTheSelection) {
  scene_.Open();
  scene_.ClickRow(L"Beta");
  EXPECT_EQ(scene_.Status(), L"1 object(s) selected|Folder Shortcut|The second|Beta");
  EXPECT_EQ(scene_.Buttons(), L"New Change Up WindowsExplorer Cut Copy Delete Properties");
  scene_.ClickRow(L"Gamma", kLeftButton, kCtrlMask);
  EXPECT_EQ(scene_.Status(), L"2 object(s) selected|Multiple selection||Personal");
  scene_.Window().ClickRow(scene_.List(), -1);
  machine_.windows.DoEvents();
  EXPECT_EQ(scene_.Status(), L"3 object(s)|Personal Group||Personal");
}

TEST_F(Organize, AColumnSortsUpAndDownAndShowsIt) {
  scene_.Open();
  const auto header = [this](std::size_t column) {
    return scene_.Control(ShownKind::kListView).list->columns[column].text;
  };
  scene_.Window().ClickColumn(scene_.List(), 3);
  EXPECT_EQ(header(3), L"Target Location+");
  EXPECT_EQ(scene_.Rows(), L"Alpha|Beta|Gamma");
  scene_.Window().ClickColumn(scene_.List(), 3);
  EXPECT_EQ(header(3), L"Target Location-");
  EXPECT_EQ(scene_.Rows(), L"Gamma|Beta|Alpha");
  form_.AddListItem(*form_.WorkCollection->GetMenuItemFromName(L"I"), false, false);
  EXPECT_EQ(scene_.Rows(), L"Gamma|Beta|Alpha|Inner");
  EXPECT_EQ(header(3), L"Target Location-");
  scene_.Window().ChooseMenu({L"View", L"Arrange Icons", L"by Name"});
  EXPECT_EQ(header(3), L"Target Location");
  EXPECT_EQ(header(0), L"Name+");
  scene_.Window().ClickColumn(scene_.List(), 0);
  scene_.Window().ClickColumn(scene_.List(), 0);
  EXPECT_EQ(header(0), L"Name+");
  EXPECT_EQ(scene_.Rows(), L"Alpha|Beta|Gamma|Inner");
}

TEST_F(Organize, RowsAndNodesArePatchedOneByOne) {
  scene_.Open();
  clsMenuCollection& store = *form_.WorkCollection;
  const ItemRef first = store.AddNewMenuItem({.Caption = L"Aaa", .OwnerName = MIT_GROUP_USER, .Name = L"X"});
  form_.AddTreeNode(*first, {});
  const ItemRef second = store.AddNewMenuItem({.Caption = L"Bbb", .OwnerName = MIT_GROUP_USER, .Name = L"Y"});
  form_.AddTreeNode(*second, L"A");
  const ItemRef third = store.AddNewMenuItem({.Caption = L"Ccc", .OwnerName = MIT_GROUP_USER, .Name = L"Z"});
  EXPECT_NE(form_.AddTreeNodeBefore(*third, L"B"), nullptr);
  EXPECT_EQ(form_.AddTreeNodeBefore(*third, L"B"), nullptr);
  EXPECT_EQ(scene_.Nodes(),
            L"0 Organized Folders|1 Personal|2 Aaa|2 Alpha|3 Inner|2 Bbb|2 Ccc|2 Beta|2 Gamma|1 Drives");
  first->SetCaption(L"Other");
  first->UserDescription = L"Told";
  form_.AddListItem(*first, true, false);
  form_.RefreshTreeNode(L"CX", *first);
  form_.RefreshListItem(L"CX", *first);
  EXPECT_TRUE(form_.ListKeyExists(L"CX"));
  EXPECT_EQ(scene_.Column(4), L"|The second||Told");
  form_.SetListItemText(L"X", L"Row");
  EXPECT_EQ(scene_.Rows(), L"Alpha|Beta|Gamma|Row");
  form_.RemoveListItem(L"X");
  form_.RemoveTreeNode(L"X");
  form_.RemoveTreeNode(L"nobody");
  EXPECT_FALSE(form_.TreeKeyExists(L"CX"));
  EXPECT_EQ(scene_.Rows(), L"Alpha|Beta|Gamma");
}

// --- what can be used

TEST(OrganizeEnabling, EveryKindOfTargetHasItsCommands) {
  // Letters of the kinds for which it is on: ordinary, generated, personal; never the root.
  const std::vector<std::pair<std::wstring, std::wstring>> expected = {
      {L"mnuPopupCut", L"o"},
      {L"mnuPopupCopy", L"o"},
      {L"mnuPopupDelete", L"og"},
      {L"mnuPopupRename", L"o"},
      {L"mnuPopupModify", L"o"},
      {L"mnuPopupProperties", L"ogp"},
      {L"mnuPopupCopyShortcut", L"ogp"},
      {L"mnuViewProperties", L"ogp"},
      {L"mnuEditCut", L"o"},
      {L"mnuEditCopy", L"o"},
      {L"mnuEditDelete", L"og"},
      {L"mnuEditRename", L"op"},
      {L"mnuEditModify", L"o"},
      {L"mnuEditCopyShortcut", L"o"},
      {L"keyNew", L"ogp"},
      {L"keyChange", L"o"},
      {L"keyUp", L"ogp"},
      {L"keyCut", L"o"},
      {L"keyCopy", L"o"},
      {L"keyDelete", L"og"},
      {L"keyProperties", L"ogp"},
  };
  std::vector<std::pair<std::wstring, std::wstring>> found;
  for (const auto& rows : {PopupEnabling(), ViewEnabling(), EditEnabling(), ToolbarEnabling()}) {
    for (const EnablingRow& row : rows) {
      std::wstring kinds;
      if (row.IsOnFor(KindOfTarget(L"CN1"))) kinds += L'o';
      if (row.IsOnFor(KindOfTarget(L"CMIT_PATHS_DRIVES"))) kinds += L'g';
      EXPECT_EQ(row.IsOnFor(KindOfTarget(L"CMIT_PATHS_SYSTEM")), row.IsOnFor(KindOfTarget(L"CMIT_PATHS_DRIVES")));
      if (row.IsOnFor(KindOfTarget(L"CMIT_GROUP_USER"))) kinds += L'p';
      if (row.IsOnFor(KindOfTarget(L"MIT_HF_ROOT")) || row.IsOnFor(KindOfTarget({}))) kinds += L'r';
      found.emplace_back(row.name, kinds);
    }
  }
  EXPECT_EQ(found, expected);
}

TEST_F(Organize, PopupsAreThoseOfWhatWasClicked) {
  scene_.Open();
  machine_.user.NextPopup([](ShownPopup& popup) {
    EXPECT_EQ(popup.Texts().front(), L"Windows Explorer");
    EXPECT_EQ(popup.Default(), L"Windows Explorer");
  });
  scene_.ClickRow(L"Beta", kRightButton);
  machine_.user.NextPopup([](ShownPopup& popup) { EXPECT_EQ(popup.Default(), L"Explore"); });
  scene_.ClickRow(L"Alpha", kRightButton);
  machine_.user.NextPopup([](ShownPopup& popup) {
    EXPECT_EQ(popup.Texts(), (std::vector<std::wstring>{L"New", L"-", L"Paste (disabled)", L"-", L"Arrange Icons",
                                                        L"Select All", L"-", L"Properties..."}));
  });
  scene_.Window().ClickRow(scene_.List(), -1, kRightButton);
  machine_.user.NextPopup([](ShownPopup& popup) {
    EXPECT_EQ(popup.Default(), L"Collapse");
    EXPECT_EQ(popup.Texts()[popup.Texts().size() - 3], L"Restore...");
    popup.Choose({L"Collapse"});
  });
  scene_.Window().ClickNode(scene_.Tree(), L"Personal", kRightButton);
  machine_.user.NextPopup([](ShownPopup& popup) { EXPECT_EQ(popup.Default(), L"Expand"); });
  scene_.Window().ClickNode(scene_.Tree(), L"Personal", kRightButton);
}

TEST_F(Organize, CommandsGoToTheirWindows) {
  scene_.Open();
  scene_.ClickRow(L"Beta");
  scene_.Window().ChooseMenu({L"Tools", L"Folder Report..."});
  scene_.Window().ChooseMenu({L"File", L"New..."});
  form_.Init(L"/ADD \"C:\\Some folder\" ");
  scene_.Window().ToggleNode(scene_.Tree(), L"Alpha");
  scene_.Window().ClickNode(scene_.Tree(), L"Inner");
  form_.Init(L"/ADD C:\\x");
  EXPECT_EQ(scene_.heard, (std::vector<std::string>{"report C:\\Beta", "new MIT_GROUP_USER MIT_PATH_EXPLORER ",
                                                    "new MIT_GROUP_USER MIT_PATH_EXPLORER C:\\Some folder",
                                                    "new A MIT_PATH_EXPLORER C:\\x"}));
  machine_.files.DeleteFolder(L"C:\\Inner");
  machine_.user.NextBox(L"Folder 'C:\\Inner' does not exist or is not a directory.", kAnswerOk);
  scene_.Window().ChooseMenu({L"Tools", L"Folder Report..."});
  scene_.Window().ChooseMenu({L"Tools", L"Find..."});
  scene_.Window().ChooseMenu({L"Help", L"Support"});
  ASSERT_EQ(machine_.shell.Launches.size(), 2U);
  EXPECT_EQ(machine_.shell.Launches[0].file, L"C:\\Inner");
  EXPECT_EQ(machine_.shell.Launches[1].file, L"http://www.kestrelan.example/products/bm/support.html");
}

TEST_F(Organize, LabelsAreRenamedInBothPanesAndBadOnesRefused) {
  scene_.Open();
  const auto rename = [this](const std::wstring& title) {
    scene_.Window().Press(kKeyCodeF2);
    scene_.Window().TypeLabel(title);
    scene_.Window().Press(kKeyCodeReturn);
  };
  scene_.ClickRow(L"Alpha");
  rename(L"Omega");
  EXPECT_EQ(scene_.Rows(), L"Omega|Beta|Gamma");
  EXPECT_EQ(scene_.Nodes(), L"0 Organized Folders|1 Personal|2 Omega|3 Inner|2 Beta|2 Gamma|1 Drives");
  EXPECT_EQ(form_.WorkCollection->GetMenuItemFromName(L"I")->ItemLocation, L"\\\\Personal\\Omega");
  EXPECT_TRUE(form_.Changed);
  form_.Changed = false;
  machine_.user.NextBox(L"cannot contain any of the following characters", kAnswerOk);
  rename(L"a*b");
  scene_.ClickRow(L"Beta");
  machine_.user.NextBox(L"Cannot rename Gamma: An item with the name you specified already exists.", kAnswerOk);
  rename(L"Gamma");
  for (const wchar_t* same : {L"Beta", L""}) rename(same);
  EXPECT_EQ(scene_.Rows(), L"Omega|Beta|Gamma");
  EXPECT_FALSE(form_.Changed);
  scene_.Window().ClickNode(scene_.Tree(), L"Drives");
  scene_.Window().Press(kKeyCodeF2);
  EXPECT_THROW(scene_.Window().TypeLabel(L"x"), std::logic_error);
}

// --- layout

TEST_F(Organize, PanesShareTheRoom) {
  scene_.Open();
  scene_.Window().Resize(1000, 700);
  const auto place = [this](ShownKind kind) { return scene_.Control(kind).place; };
  const Rect tree = place(ShownKind::kTreeView);
  const Rect list = place(ShownKind::kListView);
  EXPECT_EQ(list.left - tree.right, 4);
  EXPECT_EQ(list.bottom, tree.bottom);
  EXPECT_EQ(tree.bottom, place(ShownKind::kStatusBar).top);
  EXPECT_EQ(list.right, scene_.Window().client.right - 8);
  scene_.Window().ChooseMenu({L"View", L"Status Bar"});
  EXPECT_EQ(place(ShownKind::kTreeView).bottom, scene_.Window().client.bottom);
  scene_.Window().Resize(20, 200);
  EXPECT_EQ(place(ShownKind::kListView).right - place(ShownKind::kListView).left, 0);
}

TEST_F(Organize, TheSplitterIsDragged) {
  scene_.Open();
  const auto edge = [this] { return ToTwips(scene_.Control(ShownKind::kTreeView).place.right, kDesignDpi); };
  const std::int32_t from = edge() + 30;
  scene_.Window().Mouse(0, MouseAction::kMove, {0, 0, from, 3000});
  EXPECT_EQ(scene_.Window().pointer, kPointerSizeWE);
  scene_.Window().Mouse(0, MouseAction::kDown, {kLeftButton, 0, from, 3000});
  scene_.Window().Mouse(0, MouseAction::kMove, {kLeftButton, 0, 6000, 3000});
  scene_.Window().Mouse(0, MouseAction::kUp, {kLeftButton, 0, 6000, 3000});
  EXPECT_EQ(edge(), 6000);
  scene_.Window().Mouse(scene_.List(), MouseAction::kMove, {0, 0, 100, 100});
  EXPECT_EQ(scene_.Window().pointer, kPointerDefault);
  scene_.Window().Resize(1200, 700);
  EXPECT_EQ(edge(), 6000);
}

TEST_F(Organize, TheLayoutComesBack) {
  scene_.Open();
  scene_.Window().ChooseMenu({L"View", L"Large Icons"});
  scene_.Window().ChooseMenu({L"View", L"Status Bar"});
  scene_.Window().ChooseMenu({L"View", L"Toolbar", L"Show Text"});
  scene_.Window().DragColumn(scene_.List(), 0, 3000);
  scene_.Window().Resize(900, 600);
  scene_.Window().Close();
  EXPECT_EQ(Layout(L"I1") + Layout(L"I2") + Layout(L"I3") + Layout(L"I4"), L"FalsekeyViewsIcoLargeFalseTrue");
  EXPECT_EQ(Layout(L"ICHW1"), L"3000");
  EXPECT_EQ(Layout(L"W"), L"13500");
  scene_.Open();
  EXPECT_EQ(scene_.Window().place.right - scene_.Window().place.left, 900);
  EXPECT_FALSE(scene_.Control(ShownKind::kStatusBar).visible);
  EXPECT_EQ(scene_.Control(ShownKind::kListView).list->view, ListViewMode::kIcon);
  EXPECT_EQ(scene_.Control(ShownKind::kListView).list->columns[0].width, 3000);
  const auto& button = scene_.Control(ShownKind::kToolbar).buttons.front();
  EXPECT_EQ(button.caption + L"|" + button.toolTip, L"|New");
  EXPECT_EQ(scene_.Window().MenuTexts({L"View"})[4], L"(o) Large Icons");
}

TEST_F(Organize, BadLayoutValuesAreTheDefaults) {
  SetLayout(L"I1", L"perhaps");
  SetLayout(L"I2", L"keyViewsNothing");
  SetLayout(L"I6", L"99999");
  SetLayout(L"ICHW2", L"wide");
  for (const wchar_t* name : {L"L", L"T"}) SetLayout(name, L"90000");  // off every screen
  for (const wchar_t* name : {L"W", L"H"}) SetLayout(name, L"9000");
  SetLayout(L"S", L"1");
  scene_.Open();
  EXPECT_TRUE(scene_.Control(ShownKind::kStatusBar).visible);
  EXPECT_EQ(scene_.Control(ShownKind::kListView).list->columns[1].width, 1900);
  EXPECT_EQ(scene_.Window().state, FormWindowState::kNormal);
  for (const std::wstring& text : scene_.Window().MenuTexts({L"View"}))
    EXPECT_NE(text.substr(0, 3), L"(o)") << text.size();
  form_.Unload();
  SetLayout(L"S", L"0");
  scene_.Open();
  EXPECT_LE(scene_.Window().place.right, WindowStack::kScreen.right);
  EXPECT_LE(scene_.Window().place.bottom, WindowStack::kScreen.bottom);
}

TEST_F(Organize, AlwaysOnTopLastsAsLongAsTheWindow) {
  scene_.Open();
  scene_.Window().ChooseSystemMenu(L"Always On Top");
  EXPECT_TRUE(scene_.Window().topMost);
  EXPECT_TRUE(app_.AlwaysOnTop);
  form_.Unload();
  scene_.Open();
  EXPECT_FALSE(scene_.Window().topMost);
  EXPECT_EQ(scene_.Window().systemMenu, (std::vector<SystemMenuEntry>{{555, L"Always On Top", false}}));
}

TEST_F(Organize, NothingOfAnEarlierOpeningShows) {
  scene_.Open();
  scene_.Window().ClickColumn(scene_.List(), 0);
  const std::int32_t edge = ToTwips(scene_.Control(ShownKind::kTreeView).place.right, kDesignDpi) + 30;
  scene_.Window().Mouse(0, MouseAction::kMove, {0, 0, edge, 3000});
  scene_.Window().Mouse(0, MouseAction::kDown, {kLeftButton, 0, edge, 3000});
  form_.Unload();
  scene_.Open();
  EXPECT_EQ(scene_.Control(ShownKind::kListView).list->columns[0].text, L"Name");
  EXPECT_EQ(scene_.Window().pointer, kPointerDefault);
  EXPECT_FALSE(scene_.Control(ShownKind::kPicture).visible);  // the splitter's bar
  scene_.Window().ClickColumn(scene_.List(), 0);
  EXPECT_EQ(scene_.Control(ShownKind::kListView).list->columns[0].text, L"Name+");
}

// --- the ways out

TEST_F(Organize, WithoutChangesNothingIsWrittenAndNothingAsked) {
  scene_.Open();
  machine_.files.DeleteFileA(L"C:\\default.bwmk");
  scene_.Window().ChooseMenu({L"File", L"Exit Discarding Changes"});
  EXPECT_TRUE(IsClosed());
  EXPECT_FALSE(machine_.files.FileExists(L"C:\\default.bwmk"));
  EXPECT_FALSE(app_.IsOpen(SingleWindow::kOrganize));
}

TEST_F(Organize, ChangesReachTheFileTheMenuAndTheProjections) {
  app_.ADVC = {};
  app_.ADVC[2] = app_.ADVC[6] = true;  // project on the Desktop, at closing
  InitOrganizedFoldersPaths(app_);
  scene_.Open();
  Change();
  EXPECT_FALSE(MenuHas(L"Changed"));
  scene_.Window().Close();
  EXPECT_TRUE(IsClosed());
  EXPECT_TRUE(FileHas(L"C:\\default.bwmk", "Changed"));
  EXPECT_TRUE(MenuHas(L"Changed"));
  EXPECT_EQ(scene_.WrongNumbers(), "");
  EXPECT_TRUE(machine_.files.FileExists(app_.OrganizedFoldersDesktop + L"\\Changed.lnk"));
  EXPECT_FALSE(machine_.files.FolderExists(app_.OrganizedFoldersSendTo));
}

// The steps of closing as the disk and the registry see them, in their order.
TEST_F(Organize, ClosingGoesThroughItsStepsInOrder) {
  struct Case {
    const char* what;
    bool changes;
    bool otherFile;
    std::int32_t answer;  // to the question about another file
    bool projects;
    const char* steps;
  };
  const Case cases[] = {
      {"nothing changed", false, false, 0, true, "layout "},
      {"the default file", true, false, 0, true, "layout default desktop send favorites "},
      {"the default file, projections off", true, false, 0, false, "layout default "},
      {"another file, yes", true, true, kAnswerYes, true, "layout other "},
      {"another file, no", true, true, kAnswerNo, true, "layout "},
      {"another file, cancel", true, true, kAnswerCancel, true, "layout "},
  };
  app_.ADVC = {false, false, true, true, true};
  InitOrganizedFoldersPaths(app_);
  const std::pair<std::string, const char*> marks[] = {
      {"RegSetValueExA HKEY_CURRENT_USER\\Software\\Kestrelan\\Burrowmark\\frmOrg", "layout "},
      {"MoveFileExA C:\\default", "default "},
      {"MoveFileExA C:\\other", "other "},
      {"CreateFolder " + ToUtf8(app_.OrganizedFoldersDesktop), "desktop "},
      {"CreateFolder " + ToUtf8(app_.OrganizedFoldersSendTo), "send "},
      {"CreateFolder " + ToUtf8(app_.OrganizedFoldersFavorites), "favorites "},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.what);
    app_.ADVC[6] = row.projects;
    for (const ProjectionTarget& target : kProjectionTargets) DeleteOrganizedFolders(app_, target);
    scene_.Open();
    WriteOther();
    if (row.otherFile) form_.Init(std::wstring(L"/OPEN ") + kOther);
    if (row.changes) Change();
    machine_.faults.Clear();
    if (row.answer != 0) machine_.user.NextBox(L"Do you want to save the changes", row.answer);
    scene_.Window().Close();
    std::string steps;
    for (const std::string& call : machine_.faults.Record()) {
      for (const auto& [mark, step] : marks) {
        if (call.starts_with(mark) && steps.find(step) == std::string::npos) steps += step;
      }
    }
    EXPECT_EQ(steps, row.steps);
    EXPECT_EQ(IsClosed(), row.answer != kAnswerCancel);
    form_.Changed = false;
    form_.Unload();
  }
}

TEST_F(Organize, DiscardingAsksAndNoSaves) {
  struct Case {
    std::int32_t answer;
    bool closes;
    bool saves;
  };
  for (const Case& row :
       {Case{kAnswerCancel, false, false}, Case{kAnswerYes, true, false}, Case{kAnswerNo, true, true}}) {
    scene_.Open();
    Change(L"Word" + std::to_wstring(row.answer));
    machine_.user.NextBox(L"Are you sure you want to exit and lose any changes", row.answer);
    scene_.Window().ChooseMenu({L"File", L"Exit Discarding Changes"});
    EXPECT_EQ(IsClosed(), row.closes) << row.answer;
    EXPECT_EQ(MenuHas(L"Word" + std::to_wstring(row.answer)), row.saves) << row.answer;
    form_.Changed = false;
    form_.Unload();
  }
}

TEST_F(Organize, AnotherFileAsksAndNeverReachesTheMenu) {
  for (const std::int32_t answer : {kAnswerCancel, kAnswerNo, kAnswerYes}) {
    scene_.Open();
    WriteOther();
    form_.Init(std::wstring(L"/OPEN ") + kOther);
    EXPECT_EQ(scene_.Window().caption, L"Organize Folders - other.bwmk");
    Change();
    machine_.user.NextBox(L"Do you want to save the changes you made to other.bwmk?", answer);
    scene_.Window().Close();
    EXPECT_EQ(IsClosed(), answer != kAnswerCancel);
    EXPECT_EQ(FileHas(kOther, "Changed"), answer == kAnswerYes);
    EXPECT_FALSE(MenuHas(L"Changed"));
    form_.Changed = false;
    form_.Unload();
  }
  EXPECT_FALSE(FileHas(L"C:\\default.bwmk", "Changed"));
}

TEST_F(Organize, AFailedSaveKeepsTheWindowAndEverythingInIt) {
  scene_.Open();
  Change();
  machine_.files.SetFileAttributesA(L"C:\\default.bwmk", kFileReadOnly);
  machine_.user.NextBox(L"Error saving configuration file default.bwmk\r\nFile is read-only.", kAnswerOk);
  scene_.Window().Close();
  EXPECT_FALSE(IsClosed());
  EXPECT_TRUE(form_.Changed);
  EXPECT_FALSE(MenuHas(L"Changed"));
  machine_.files.SetFileAttributesA(L"C:\\default.bwmk", 0);
  scene_.Window().Close();
  EXPECT_TRUE(IsClosed());
  EXPECT_TRUE(MenuHas(L"Changed"));
}

TEST_F(Organize, OpeningAsksAboutChangesAndABadFileChangesNothing) {
  scene_.Open();
  machine_.AddFile(L"C:\\bad.bwmk", "nothing of ours");
  Change();
  machine_.user.NextBox(L"Do you want to save the changes you made to default.bwmk?", kAnswerCancel);
  form_.Init(L"/OPEN C:\\bad.bwmk");
  machine_.user.NextBox(L"Do you want to save the changes you made to default.bwmk?", kAnswerNo);
  machine_.user.NextBox(L"Error opening configuration file bad.bwmk", kAnswerOk);
  form_.Init(L"/OPEN C:\\bad.bwmk");
  EXPECT_TRUE(form_.Changed);
  EXPECT_FALSE(form_.FileOpened);
  EXPECT_EQ(scene_.Window().caption, L"Organize Folders");
  form_.SaveOnExit = false;
}

// --- the File menu

constexpr wchar_t kSaveTitle[] = L"Save Configuration File As";

TEST_F(Organize, FilesAreOpenedAndTheDefaultOneComesBack) {
  scene_.Open();
  WriteOther();
  const auto entries = [this] { return scene_.Window().MenuTexts({L"File"}).size(); };
  const std::size_t before = entries();
  machine_.user.NextFile(L"Open Configuration File", std::nullopt);
  scene_.Window().ChooseMenu({L"File", L"Open..."});
  EXPECT_FALSE(form_.FileOpened);
  machine_.user.NextFile(L"Open Configuration File", kOther);
  scene_.Window().ChooseMenu({L"File", L"Open..."});
  EXPECT_EQ(scene_.Window().caption, L"Organize Folders - other.bwmk");
  EXPECT_EQ(entries(), before + 2);
  Change();
  machine_.user.NextBox(L"Do you want to save the changes you made to other.bwmk?", kAnswerYes);
  scene_.Window().ChooseMenu({L"File", L"Open Default"});
  EXPECT_TRUE(FileHas(kOther, "Changed"));
  EXPECT_EQ(scene_.Window().caption, L"Organize Folders");
  EXPECT_EQ(entries(), before);
  EXPECT_FALSE(form_.Changed);
}

TEST_F(Organize, SavingReachesTheFileAtOnceAndTheMenuAtTheEnd) {
  scene_.Open();
  Change(L"Saved");
  machine_.user.NextBox(L"Default configuration file is successfully saved.", kAnswerOk);
  scene_.Window().ChooseMenu({L"File", L"Save"});
  EXPECT_TRUE(FileHas(L"C:\\default.bwmk", "Saved"));
  EXPECT_FALSE(form_.Changed);
  EXPECT_FALSE(MenuHas(L"Saved"));
  Change(L"Discarded");
  machine_.user.NextBox(L"Are you sure", kAnswerYes);
  scene_.Window().ChooseMenu({L"File", L"Exit Discarding Changes"});
  EXPECT_TRUE(MenuHas(L"Saved"));
  EXPECT_FALSE(MenuHas(L"Discarded"));
}

TEST_F(Organize, SavingUnderAnotherNameAsksAndAListingChangesNoName) {
  scene_.Open();
  Change();
  machine_.user.NextFile(kSaveTitle, L"C:\\list", 2);
  machine_.user.NextBox(L"Configuration file list.txt is successfully saved.", kAnswerOk);
  scene_.Window().ChooseMenu({L"File", L"Save As..."});
  EXPECT_TRUE(FileHas(L"C:\\list.txt", "Changed"));
  EXPECT_EQ(scene_.Window().caption, L"Organize Folders");
  EXPECT_FALSE(form_.Changed);
  WriteOther();
  for (const std::int32_t answer : {kAnswerNo, kAnswerYes}) {
    machine_.user.NextFile(kSaveTitle, kOther, 1);
    machine_.user.NextBox(L"File C:\\other.bwmk already exists.\r\nDo you want to replace it?", answer);
    if (answer == kAnswerYes) machine_.user.NextBox(L"other.bwmk is successfully saved.", kAnswerOk);
    scene_.Window().ChooseMenu({L"File", L"Save As..."});
    EXPECT_EQ(FileHas(kOther, "Changed"), answer == kAnswerYes);
  }
  EXPECT_EQ(scene_.Window().caption, L"Organize Folders - other.bwmk");
  Change();
  machine_.files.SetFileAttributesA(kOther, kFileReadOnly);
  machine_.user.NextBox(L"Error saving configuration file other.bwmk\r\nFile is read-only.", kAnswerOk);
  scene_.Window().Press(L'S', kCtrlMask);
  EXPECT_TRUE(form_.Changed);
  form_.SaveOnExit = false;
}

TEST_F(Organize, AnotherFileBecomesTheDefaultOne) {
  scene_.Open();
  WriteOther();
  form_.Init(std::wstring(L"/OPEN ") + kOther);
  machine_.user.NextBox(L"Do you want to make other.bwmk the default configuration file?", kAnswerNo);
  scene_.Window().ChooseMenu({L"File", L"Set As Default"});
  EXPECT_EQ(app_.ConfigFile, L"C:\\default.bwmk");
  machine_.user.NextBox(L"Do you want to make other.bwmk the default configuration file?", kAnswerYes);
  machine_.user.NextBox(L"other.bwmk is now the default configuration file.", kAnswerOk);
  scene_.Window().ChooseMenu({L"File", L"Set As Default"});
  EXPECT_EQ(scene_.Window().caption, L"Organize Folders");
  std::wstring registered;
  clsRegHandler(machine_.registry).GetKeyValue(RegistryKey::kCurrentUser, kSettingsKey, kConfigFileValue, registered);
  EXPECT_EQ(registered, kOther);
  Change();
  form_.Changed = false;
  scene_.Window().Close();  // no question, though nothing counts as changed
  EXPECT_TRUE(FileHas(kOther, "Changed"));
  EXPECT_TRUE(MenuHas(L"Changed"));
}

TEST_F(Organize, TheEndOfTheSessionSavesWithoutAsking) {
  scene_.Open();
  Change();
  form_.SaveForSessionEnd();
  EXPECT_TRUE(FileHas(L"C:\\default.bwmk", "Changed"));
  form_.SaveOnExit = false;
}

TEST_F(Organize, TheTipComesOnceAtTheFirstActivation) {
  app_.ShowTips = true;
  scene_.Open();
  form_.UserActivate(false);
  form_.UserActivate(true);
  EXPECT_EQ(scene_.heard, (std::vector<std::string>{"tip"}));
}

}  // namespace
}  // namespace burrowmark
