// The commands of the editor: a row for each, in the order of its menus.
#include <algorithm>
#include <iterator>

#include "core/help.h"
#include "organize/frm_organize.h"
#include "organize/node_keys.h"
#include "platform/key_codes.h"
#include "projection/organized_folders.h"
#include "tools/about.h"
#include "tools/frm_network_drives.h"
#include "tools/frm_personal_network_info.h"
#include "tools/tip.h"

namespace burrowmark {
namespace {

constexpr MenuShortcut Ctrl(wchar_t letter) { return {static_cast<std::int32_t>(letter), kCtrlMask}; }
constexpr MenuShortcut Key(std::int32_t code) { return {code, 0}; }

// The buttons, with the entry that does the same.
struct ButtonRow {
  const wchar_t* key;
  const wchar_t* menu;
};

constexpr ButtonRow kButtons[] = {
    {L"keyNew", L"mnuFileNewItem"},
    {L"keyChange", L"mnuEditModify"},
    {L"keyWindowsExplorer", L"mnuToolsWindowsExplorer"},
    {L"keyCut", L"mnuEditCut"},
    {L"keyCopy", L"mnuEditCopy"},
    {L"keyPaste", L"mnuEditPaste"},
    {L"keyDelete", L"mnuEditDelete"},
    {L"keyProperties", L"mnuViewProperties1"},
    {L"keyProperties1", L"mnuViewProperties1"},
    {L"keyProperties2", L"mnuViewProperties2"},
};

const wchar_t* MenuOfButton(const std::wstring& key) {
  const auto* row = std::find_if(std::begin(kButtons), std::end(kButtons),
                                 [&key](const ButtonRow& button) { return key == button.key; });
  return row == std::end(kButtons) ? nullptr : row->menu;
}

}  // namespace

// A row of a menu and what it runs: an entry's command, or what a menu does before it opens.
struct frmOrganize::CommandRow {
  using Run = void (*)(frmOrganize& form);

  MenuRow row;
  Run run;
};

std::span<const frmOrganize::CommandRow> frmOrganize::Commands() {
  constexpr CommandRow::Run kNothing = [](frmOrganize&) {};
  constexpr auto Line = [](std::int32_t level, const wchar_t* name) {
    return CommandRow{{level, name, kMenuLine}, kNothing};
  };
  constexpr auto Holds = [](std::int32_t level, const wchar_t* name, const wchar_t* caption) {
    return CommandRow{{level, name, caption}, kNothing};
  };
  constexpr auto Opens = [](std::int32_t level, const wchar_t* name, const wchar_t* caption, CommandRow::Run run) {
    return CommandRow{{level, name, caption}, run};
  };
  static constexpr CommandRow kCommands[] = {
      Holds(0, L"mnuFile", L"&File"),
      {{1, L"mnuFileNewItem", L"&New...", Ctrl(L'N')}, [](frmOrganize& form) { form.NewItem(MIT_PATH_EXPLORER); }},
      Line(1, L"mnuFileSep1"),
      {{1, L"mnuFileOpen", L"&Open...", Ctrl(L'O')}, [](frmOrganize& form) { form.OpenConfigCommand(); }},
      {{1, L"mnuFileOpenDefault", L"Open &Default"}, [](frmOrganize& form) { form.OpenConfigFile({}); }},
      Line(1, L"mnuFileSep2"),
      {{1, L"mnuFileSave", L"&Save", Ctrl(L'S')}, [](frmOrganize& form) { form.SaveConfigCommand(); }},
      {{1, L"mnuFileSaveAs", L"Save &As..."}, [](frmOrganize& form) { form.SaveConfigAsCommand(); }},
      {{1, L"mnuFileSetDefault", L"Set As Defaul&t"}, [](frmOrganize& form) { form.SetDefaultCommand(); }},
      Line(1, L"mnuFileSep3"),
      {{1, L"mnuFileProperties", L"&Information..."}, [](frmOrganize& form) { form.ShowInformation(); }},
      {{1, L"mnuOptionsSettings", L"O&ptions..."}, [](frmOrganize& form) { form.OptionsCommand(); }},
      Line(1, L"mnuFileSep4"),
      {{1, L"mnuFileExitDiscardChanges", L"Exit Discarding &Changes"},
       [](frmOrganize& form) { form.ExitDiscardingChanges(); }},
      {{1, L"mnuFileExit", L"E&xit"}, [](frmOrganize& form) { form.Unload(); }},
      Opens(0, L"mnuEdit", L"&Edit", [](frmOrganize& form) { form.OpenEditMenu(); }),
      {{1, L"mnuEditUndo", L"&Undo", Ctrl(L'Z')}, [](frmOrganize& form) { form.UndoCommand(); }},
      Line(1, L"mnuEditSepUndo"),
      {{1, L"mnuEditCut", L"Cu&t", Ctrl(L'X')}, [](frmOrganize& form) { form.CutOrCopy(PasteMode::kMove); }},
      {{1, L"mnuEditCopy", L"&Copy", Ctrl(L'C')}, [](frmOrganize& form) { form.CutOrCopy(PasteMode::kCopy); }},
      {{1, L"mnuEditPaste", L"&Paste", Ctrl(L'V')}, [](frmOrganize& form) { form.PasteCommand({}); }},
      Line(1, L"mnuEditSep1"),
      {{1, L"mnuEditDelete", L"&Delete", Key(kKeyCodeDelete)}, [](frmOrganize& form) { form.DeleteCommand(); }},
      {{1, L"mnuEditRename", L"Rena&me", Key(kKeyCodeF2)}, [](frmOrganize& form) { form.RenameCommand(); }},
      {{1, L"mnuEditModify", L"C&hange...", Key(kKeyCodeF4)}, [](frmOrganize& form) { form.ChangeCommand(); }},
      Line(1, L"mnuEditSep2"),
      Holds(1, L"mnuEditCopyShortcut", L"Copy Target &Location"),
      {{2, L"mnuEditCopyAsIs", L"&As Is"}, [](frmOrganize& form) { form.CopyTargetLocations(false); }},
      {{2, L"mnuEditCopyComplete", L"&Complete Network Path"},
       [](frmOrganize& form) { form.CopyTargetLocations(true); }},
      Line(1, L"mnuEditSep3"),
      {{1, L"mnuEditSelectAll", L"Select &All", Ctrl(L'A')},
       [](frmOrganize& form) { form.SetAllListItemsSelected(true); }},
      {{1, L"mnuEditDeselectAll", L"D&eselect All"}, [](frmOrganize& form) { form.SetAllListItemsSelected(false); }},
      {{1, L"mnuEditInvertSelection", L"&Invert Selection"}, [](frmOrganize& form) { form.list_.InvertSelection(); }},
      Opens(0, L"mnuView", L"&View", [](frmOrganize& form) { form.OpenViewMenu(); }),
      {{1, L"mnuViewStatBar", L"&Status Bar"},
       [](frmOrganize& form) { form.SetStatusBarVisible(!form.layout_.StatusBar); }},
      Holds(1, L"mnuViewToolbar", L"&Toolbar"),
      {{2, L"mnuViewTlbText", L"Show &Text"}, [](frmOrganize& form) { form.ToggleToolbarText(); }},
      {{2, L"mnuViewTlbButtons", L"&Large Buttons"}, [](frmOrganize& form) { form.ToggleToolbarImages(); }},
      {{1, L"mnuViewAllLeftPane", L"Show &All in Left Pane"}, [](frmOrganize& form) { form.ToggleAllLeftPane(); }},
      Line(1, L"mnuViewSep1"),
      {{1, L"mnuViewIcoLarge", L"Lar&ge Icons"}, [](frmOrganize& form) { form.ApplyView(L"keyViewsIcoLarge"); }},
      {{1, L"mnuViewIcoSmall", L"S&mall Icons"}, [](frmOrganize& form) { form.ApplyView(L"keyViewsIcoSmall"); }},
      {{1, L"mnuViewList", L"&List"}, [](frmOrganize& form) { form.ApplyView(L"keyViewsList"); }},
      {{1, L"mnuViewDetails", L"&Details"}, [](frmOrganize& form) { form.ApplyView(L"keyViewsDetails"); }},
      {{1, L"mnuViewGrid", L"Details with Gr&id"}, [](frmOrganize& form) { form.ApplyView(L"keyViewsGrid"); }},
      Line(1, L"mnuViewSep2"),
      Holds(1, L"mnuViewArrange", L"Arrange Ic&ons"),
      {{2, L"mnuViewArrangeName", L"by &Name"}, [](frmOrganize& form) { form.ArrangeBy(1); }},
      {{2, L"mnuViewArrangeType", L"by &Type"}, [](frmOrganize& form) { form.ArrangeBy(2); }},
      {{2, L"mnuViewArrangeKeyboard", L"by &Keyboard Shortcut"}, [](frmOrganize& form) { form.ArrangeBy(3); }},
      {{2, L"mnuViewArrangeTarget", L"by Target &Location"}, [](frmOrganize& form) { form.ArrangeBy(4); }},
      {{2, L"mnuViewArrangeDescription", L"by &Description"}, [](frmOrganize& form) { form.ArrangeBy(5); }},
      {{2, L"mnuViewArrangeModified", L"by Date &Modified"}, [](frmOrganize& form) { form.ArrangeBy(6); }},
      {{2, L"mnuViewArrangeCreated", L"by Date &Created"}, [](frmOrganize& form) { form.ArrangeBy(7); }},
      Holds(1, L"mnuViewProperties", L"&Properties"),
      {{2, L"mnuViewProperties1", L"&Shortcut", {kKeyCodeReturn, kAltMask}},
       [](frmOrganize& form) { form.ShowItemProperties(false); }},
      {{2, L"mnuViewProperties2", L"&Target Location"}, [](frmOrganize& form) { form.ShowFolderProperties({}); }},
      {{2, L"mnuViewPropertiesDisplay", L"&Desktop"},
       [](frmOrganize& form) { form.ShowFolderProperties(form.app_.DesktopFolder); }},
      {{2, L"mnuViewPropertiesMyDocs", L"&My Documents"},
       [](frmOrganize& form) { form.ShowFolderProperties(form.app_.PersonalFolder); }},
      {{1, L"mnuViewRefresh", L"&Refresh", Key(kKeyCodeF5)}, [](frmOrganize& form) { form.RefreshCommand(); }},
      Opens(0, L"mnuTools", L"&Tools", [](frmOrganize& form) { form.SetToolsState(); }),
      {{1, L"mnuToolsWindowsExplorer", L"&Windows Explorer"}, [](frmOrganize& form) { form.PopupWindowsExplorer(); }},
      {{1, L"mnuToolsFind", L"&Find..."}, [](frmOrganize& form) { form.FindCommand(); }},
      {{1, L"mnuToolsReport", L"Folder &Report..."}, [](frmOrganize& form) { form.ReportCommand(); }},
      Line(1, L"mnuToolsSep1"),
      {{1, L"mnuToolsVerifyShortcuts", L"&Verify Shortcuts..."}, [](frmOrganize& form) { form.VerifyShortcuts(); }},
      Line(1, L"mnuToolsSep2"),
      {{1, L"mnuToolsNetworkDrives", L"&Network Drives..."},
       [](frmOrganize& form) { frmNetworkDrives(form.app_).Show(Modal, form); }},
      {{1, L"mnuToolsPersonalNetworkInfo", L"&Personal Network Info..."},
       [](frmOrganize& form) { frmPersonalNetworkInfo(form.app_).Show(Modal, form); }},
      Line(1, L"mnuToolsSep3"),
      Holds(1, L"mnuToolsRefresh", L"Refresh Organi&zed Folders"),
      {{2, L"mnuToolsRefreshDesktop", L"on the &Desktop"},
       [](frmOrganize& form) { form.RefreshProjection(kProjectionTargets[0]); }},
      {{2, L"mnuToolsRefreshSendTo", L"in the &Send To"},
       [](frmOrganize& form) { form.RefreshProjection(kProjectionTargets[1]); }},
      {{2, L"mnuToolsRefreshFavorites", L"in the &Favorites"},
       [](frmOrganize& form) { form.RefreshProjection(kProjectionTargets[2]); }},
      Holds(1, L"mnuToolsRestore", L"Res&tore"),
      {{2, L"mnuToolsRestorePersonal", L"&Personal Group..."},
       [](frmOrganize& form) { form.ShowRestoreWizard(MIT_GROUP_USER); }},
      {{2, L"mnuToolsRestoreSystemFolders", L"&System Folders Group..."},
       [](frmOrganize& form) { form.ShowRestoreWizard(MIT_PATHS_SYSTEM); }},
      Holds(0, L"mnuHelp", L"&Help"),
      {{1, L"mnuHelpContents", L"&Contents"}, [](frmOrganize& form) { ShowHelp(form.app_, kHelpContents); }},
      {{1, L"mnuHelpIndex", L"&Index"}, [](frmOrganize& form) { ShowHelp(form.app_, kHelpIndex); }},
      Line(1, L"mnuHelpSep1"),
      {{1, L"mnuHelpHomePage", L"&Home Page"}, [](frmOrganize& form) { form.OpenWebPage(L"/products/bm/"); }},
      {{1, L"mnuHelpInternetServicesSupport", L"&Support"},
       [](frmOrganize& form) { form.OpenWebPage(L"/products/bm/support.html"); }},
      {{1, L"mnuHelpCheckLatestVersion", L"Check Latest &Version"},
       [](frmOrganize& form) { form.OpenWebPage(L"/products/bm/versions.html"); }},
      Line(1, L"mnuHelpSep2"),
      {{1, L"mnuHelpTip", L"&Tip of the Day..."}, [](frmOrganize& form) { frmTip(form.app_).Show(Modal, form); }},
      Line(1, L"mnuHelpSep3"),
      {{1, L"mnuHelpAbout", L"&About Burrowmark..."}, [](frmOrganize& form) { frmAbout(form.app_).Show(Modal, form); }},
      Holds(0, L"mnuPopup", L"Popup"),
      {{1, L"mnuPopupExplore", L"&Explore"}, [](frmOrganize& form) { form.PopupExplore(); }},
      {{1, L"mnuPopupWindowsExplorer", L"&Windows Explorer"}, [](frmOrganize& form) { form.PopupWindowsExplorer(); }},
      Line(1, L"mnuPopupSep1"),
      {{1, L"mnuPopupFind", L"&Find..."}, [](frmOrganize& form) { form.FindCommand(); }},
      {{1, L"mnuPopupReport", L"Folder Repor&t..."}, [](frmOrganize& form) { form.ReportCommand(); }},
      Line(1, L"mnuPopupSep2"),
      {{1, L"mnuPopupCut", L"C&ut"}, [](frmOrganize& form) { form.CutOrCopy(PasteMode::kMove); }},
      {{1, L"mnuPopupCopy", L"&Copy"}, [](frmOrganize& form) { form.CutOrCopy(PasteMode::kCopy); }},
      {{1, L"mnuPopupPaste", L"&Paste"},
       [](frmOrganize& form) { form.PasteCommand(NameOfKey(form.GetSelectedTarget().Key)); }},
      Line(1, L"mnuPopupSep3"),
      {{1, L"mnuPopupDelete", L"&Delete"}, [](frmOrganize& form) { form.DeleteCommand(); }},
      {{1, L"mnuPopupRename", L"Rena&me"}, [](frmOrganize& form) { form.RenameCommand(); }},
      {{1, L"mnuPopupModify", L"C&hange..."}, [](frmOrganize& form) { form.ChangeCommand(); }},
      Line(1, L"mnuPopupSep4"),
      Holds(1, L"mnuPopupCopyShortcut", L"Copy Target &Location"),
      {{2, L"mnuPopupCopyAsIs", L"&As Is"}, [](frmOrganize& form) { form.CopyTargetLocations(false); }},
      {{2, L"mnuPopupCopyComplete", L"&Complete Network Path"},
       [](frmOrganize& form) { form.CopyTargetLocations(true); }},
      Line(1, L"mnuPopupSepRestore"),
      {{1, L"mnuPopupRestore", L"Re&store..."},
       [](frmOrganize& form) { form.ShowRestoreWizard(NameOfKey(form.GetSelectedTarget().Key)); }},
      Line(1, L"mnuPopupSep5"),
      {{1, L"mnuPopupProperties", L"P&roperties..."}, [](frmOrganize& form) { form.ShowItemProperties(false); }},
      Holds(0, L"mnuPopup2", L"Popup2"),
      Holds(1, L"mnuPopup2New", L"&New"),
      {{2, L"mnuPopup2NewExplorer", L"&Double Pane Shortcut..."},
       [](frmOrganize& form) { form.NewItem(MIT_PATH_EXPLORER); }},
      {{2, L"mnuPopup2NewShortcut", L"&Single Pane Shortcut..."},
       [](frmOrganize& form) { form.NewItem(MIT_PATH_SHORTCUT); }},
      {{2, L"mnuPopup2NewOpenAll", L"&Open-All Shortcut..."}, [](frmOrganize& form) { form.NewItem(MIT_OPENALL); }},
      {{2, L"mnuPopup2NewGroup", L"&Group..."}, [](frmOrganize& form) { form.NewItem(MIT_GROUP_GENERAL); }},
      Line(1, L"mnuPopup2Sep1"),
      {{1, L"mnuPopup2Paste", L"&Paste"}, [](frmOrganize& form) { form.PasteCommand({}); }},
      Line(1, L"mnuPopup2Sep2"),
      Holds(1, L"mnuPopup2Arrange", L"Arrange &Icons"),
      {{2, L"mnuPopup2ArrangeName", L"by &Name"}, [](frmOrganize& form) { form.ArrangeBy(1); }},
      {{2, L"mnuPopup2ArrangeType", L"by &Type"}, [](frmOrganize& form) { form.ArrangeBy(2); }},
      {{2, L"mnuPopup2ArrangeKeyboard", L"by &Keyboard Shortcut"}, [](frmOrganize& form) { form.ArrangeBy(3); }},
      {{2, L"mnuPopup2ArrangeTarget", L"by Target &Location"}, [](frmOrganize& form) { form.ArrangeBy(4); }},
      {{2, L"mnuPopup2ArrangeDescription", L"by &Description"}, [](frmOrganize& form) { form.ArrangeBy(5); }},
      {{2, L"mnuPopup2ArrangeModified", L"by Date &Modified"}, [](frmOrganize& form) { form.ArrangeBy(6); }},
      {{2, L"mnuPopup2ArrangeCreated", L"by Date &Created"}, [](frmOrganize& form) { form.ArrangeBy(7); }},
      {{1, L"mnuPopup2SelectAll", L"Select &All"}, [](frmOrganize& form) { form.SetAllListItemsSelected(true); }},
      Line(1, L"mnuPopup2Sep3"),
      {{1, L"mnuPopup2Properties", L"P&roperties..."}, [](frmOrganize& form) { form.ShowItemProperties(true); }},
      Holds(0, L"mnuToolbar", L"Toolbar"),
      {{1, L"mnuToolbarText", L"Show &Text"}, [](frmOrganize& form) { form.ToggleToolbarText(); }},
      {{1, L"mnuToolbarButtons", L"&Large Buttons"}, [](frmOrganize& form) { form.ToggleToolbarImages(); }},
  };
  return kCommands;
}

std::vector<MenuRow> frmOrganize::MenuRows() {
  std::vector<MenuRow> rows;
  for (const CommandRow& command : Commands()) rows.push_back(command.row);
  return rows;
}

void frmOrganize::ConnectMenus() {
  for (const wchar_t* popup : {L"mnuPopup", L"mnuPopup2", L"mnuToolbar"}) menus_[popup].SetVisible(false);
  for (const CommandRow& command : Commands()) {
    menus_[command.row.name].Click = [this, run = command.run] { run(*this); };
  }
}

// --- the toolbar's buttons

void frmOrganize::ConnectBars() {
  tlbMain.ButtonClick = tlbMain.ButtonMenuClick = [this](const std::wstring& key) {
    if (key == L"keyUp") return GoUp();
    if (const wchar_t* menu = MenuOfButton(key)) Raise(menus_[menu].Click);
  };
  tlbMain.MouseDown = [this](const MouseEvent& event) {
    if (event.button == kRightButton) menus_.PopupMenu(L"mnuToolbar");
  };
  tlbMain.MouseMove = [this](const MouseEvent&) { splitter_.ResetCursor(); };
  strip_.stbMain.MouseMove = [this](const MouseEvent&) { splitter_.ResetCursor(); };
}

}  // namespace burrowmark
