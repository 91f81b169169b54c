// "Organize Folders", the editor of the tree.
//
// It works on a copy of the menu's document, which takes that one's place when the window closes. The window holds the
// document, two panes that mirror its tree, a strip and a bar that tell of what is selected, and the commands.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "config/config_file.h"
#include "core/program_form.h"
#include "core/progress.h"
#include "groups/personal_group.h"
#include "options/option_steps.h"
#include "organize/edit_history.h"
#include "organize/enabling.h"
#include "organize/item_clipboard.h"
#include "organize/list_pane.h"
#include "organize/organize_layout.h"
#include "organize/paste.h"
#include "organize/splitter.h"
#include "organize/status_strip.h"
#include "organize/tree_pane.h"
#include "projection/organized_folders.h"
#include "tools/network_drives.h"
#include "ui/menu.h"
#include "ui/timer.h"
#include "ui/toolbar.h"

namespace burrowmark {

class frmOrganize final : public ProgramForm {
 public:
  explicit frmOrganize(Application& app);

  // Runs "/ADD path" or "/OPEN path" on the loaded window.
  void Init(const std::wstring& Command);
  void SetFormCaption();
  // Fills the panes again; shows the node of that key, the first below the root for an empty one.
  void RefreshViews(const std::wstring& Key, bool Expand);
  // Replaces what is edited by a file's content, an empty path's by the default file's. False: everything is as it was.
  bool FuncConfigFileLoad(const std::wstring& Path);
  // Writes what is edited to its file; with `Rebuild` it becomes the menu's document too.
  bool FuncConfigFileSave(bool Rebuild);
  // Asks about what was changed, and loads.
  void OpenConfigFile(const std::wstring& Path);
  // The user's session ends: what was changed is written without a question.
  void SaveForSessionEnd();
  // Deletes a shortcut of the tree.
  void DeleteShortcut(const ItemRef& item);

  // Edits the tree. The panes follow, and the command of that name can be taken back as one step. A failure ends the
  // edit where it stands.
  void EditTree(const std::wstring& name, const std::function<void(TreeEdit&)>& edit);

  const std::shared_ptr<clsMenuCollection>& WorkCollection() const { return Edited.Store; }
  bool InGesture() const override;
  void CancelGesture() override;

  Document Edited;              // no tree while the window is closed
  bool DefaultChanged = false;  // another file became the default one
  bool SaveOnExit = true;
  bool FileOpened = false;      // another file was opened in this window
  bool SavedToDefault = false;  // the default file was written from this window

 private:
  struct CommandRow;
  static std::span<const CommandRow> Commands();
  static std::vector<MenuRow> MenuRows();

  // --- life and layout (frm_organize.cpp, frm_organize_layout.cpp)
  Size FirstSize() const override;
  void Form_Load() override;
  void AdoptDefaultFile();
  void Form_Activate() override;
  void Form_Resize() override;
  void Form_KeyDown(std::int32_t& KeyCode, std::int32_t Shift) override;
  void Form_MouseDown(const MouseEvent& event) override { splitter_.MouseDown(event); }
  void Form_MouseMove(const MouseEvent& event) override { splitter_.MouseMove(event); }
  void Form_MouseUp(const MouseEvent& event) override;
  void Form_SystemCommand(std::int32_t id) override;
  void ConnectPanes();
  void ConnectBars();
  void LoadLayout();
  void SaveLayout();
  void ArrangeControls();
  void SetTreeWidth(std::int32_t width);
  void SetStatusBarVisible(bool visible);
  void SetToolbarImages(bool large);
  void SetToolbarText(bool on);
  void ToggleToolbarImages();
  void ToggleToolbarText();
  void AddAlwaysOnTopItem();
  void StayOnTop(bool on);

  // --- closing (frm_organize_close.cpp)
  void Form_Unload(bool& Cancel) override;
  bool SaveChanges();
  void FollowDefaultFile();
  bool TakeDefaultFile();
  void ReplaceMenu(Document document);
  void ProjectAll(Work& work);
  bool EditsDefaultFile() const { return Edited.CurrentConfigFile == app_.ConfigFile; }
  void Release();
  void ExitDiscardingChanges();

  // --- files (frm_organize_files.cpp)
  bool SaveBeforeOpening();
  std::int32_t AskToSave();
  void LoadOrComplain(const std::wstring& path);
  std::optional<OpenedConfig> ReadInPlace(const std::wstring& path);
  void ReportSystemGroup(const OpenedConfig& opened, bool isDefault);
  void RefreshDefaultCommands();
  bool ReportSaveError();
  void TellSaveError(const std::wstring& path);
  void OpenConfigCommand();
  void SaveConfigCommand();
  void SaveConfigAsCommand();
  bool MayReplace(const std::wstring& path);
  bool WriteAs(const std::wstring& path, bool asText);
  void TellSaved(const std::wstring& path);
  void SetDefaultCommand();
  void ShowInformation();

  // --- panes (frm_organize_views.cpp)
  void ShowSelectedNode(bool KeepList);
  void ShowStatusOfNode(const TreeNode& node);
  void SetStatusBarSelected();
  void ArrangeBy(std::int32_t Column);
  void ApplyView(const std::wstring& viewKey);
  void SetViewCheckMarks(const std::wstring& viewKey);
  void ToggleAllLeftPane();
  void RefreshCommand();
  void GoUp();
  void OpenSelectedListItem(bool NoOpen);
  void SetAllListItemsSelected(bool selected);
  PanesState Panes() const;
  void RestorePanes(const PanesState& panes, const TreeChange& change);

  // --- what the mouse and the keyboard do in the panes (frm_organize_panes.cpp)
  void EnterTree();
  void EnterList();
  void TreeMouseDown(const MouseEvent& event);
  void TreeMouseUp();
  void TreeNodeClick();
  void TreeDblClick();
  void TreeKeyDown(std::int32_t& KeyCode, std::int32_t Shift);
  bool PaneKeyDown(std::int32_t KeyCode, std::int32_t Shift);
  void ListMouseDown(const MouseEvent& event);
  void ListMouseUp();
  void ListItemClick(const ListItem& row);
  void ListClick();
  void ListKeyDown(std::int32_t& KeyCode, std::int32_t Shift);
  void EscapeFromList();

  // --- edits of the tree (frm_organize_edit.cpp)
  void EditOn(TreeEdit& open, const std::function<void(TreeEdit&)>& edit);
  void FollowEdit(TreeEdit& edit);
  std::wstring SelectedNodeKey() const;
  void SelectRows(const std::vector<std::wstring>& keys);
  void SetToolbarOfRow();
  void UndoCommand();
  void SetTreeOptions(const SettingValues<Appearance>& values);
  void ForgetEdits();
  std::vector<ItemRef> SelectedItems();
  void CutOrCopy(PasteMode mode);
  void FuncCopy(PasteMode mode, bool Ghost);
  void ClearClipboard();
  void RefreshGhosts();
  // An empty target is the selected node.
  void PasteCommand(const std::wstring& target);
  void FuncPaste(std::wstring target, bool inDrag = false);
  void ShowNewRows(const std::vector<ItemRef>& items);
  void RefusePaste(const PastePlace& place);
  void ShowSameDestinationError(const std::wstring& Name);
  ClashAnswer AskAboutClash(const clsMenuItem& existing, const clsMenuItem& incoming);
  void DeleteCommand();
  void FuncDelete();
  bool AskAboutGeneratedGroups(std::vector<ItemRef>& items);
  std::wstring RowBeside(const std::vector<ItemRef>& items) const;
  void DeleteItems(const std::vector<ItemRef>& items);
  void DeleteGeneratedGroup(TreeEdit& edit, const clsMenuItem& group);
  void Inform(const std::wstring& text);

  // --- the groups that can be made anew (frm_organize_restore.cpp)
  void ShowRestoreWizard(const std::wstring& group);
  bool RestoreShortcuts(const std::wstring& group, PersonalContent content);

  // --- single items (frm_organize_items.cpp)
  void NewItem(const std::wstring& Kind);
  void NewItemInGroup(const std::wstring& group, const std::wstring& Kind, const std::wstring& Path);
  ItemRef GroupForNewItems(const std::wstring& Name);
  std::wstring GroupForAdding() const;
  void ChangeCommand();
  void ChangeItem(const ItemRef& item);
  void ShowItemProperties(bool FromBackground);
  void FuncPropertiesRefresh(TreeEdit& edit, const ItemRef& item, const clsMenuItem& copy, const ItemRef& hotKeyHolder);
  std::vector<clsNetworkDrive> MappedDrives();
  void CopyTargetLocations(bool complete);
  void ShowFolderProperties(std::wstring Path);
  void VerifyShortcuts();

  // --- drag and drop (frm_organize_drag.cpp)
  // What is dragged out of a pane.
  struct PaneDrag {
    std::int16_t SourcePane = -1;  // 0: the tree, 1: the list, -1: nothing of ours is dragged
    std::wstring Key;              // of the node or row
  };
  void ConnectDrags();
  void StartTreeDrag(std::uint32_t& allowed);
  void StartListDrag(std::uint32_t& allowed);
  void BeginDrag(std::int16_t pane, const std::wstring& key, std::uint32_t& allowed);
  void EndDragState();
  bool TakesDrop(const std::wstring& key) const;
  std::uint32_t EffectOf(const DragEvent& event);
  void ListDragOver(const DragEvent& event, DragState state, std::uint32_t& effect);
  void TreeDragOver(const DragEvent& event, DragState state, std::uint32_t& effect);
  void ListDragDrop(const DragEvent& event, const std::vector<std::wstring>& files, std::uint32_t& effect);
  void TreeDragDrop(const DragEvent& event, const std::vector<std::wstring>& files, std::uint32_t& effect);
  void StartExpandTimer();
  void StopExpandTimer();
  void ExpandHoverNode();
  void AfterDrag(std::function<void()> work);
  void PasteAfterDrag(const std::wstring& target);
  void DropFiles(const std::vector<std::wstring>& paths, const std::wstring& key);
  bool OnlyFolders(const std::vector<std::wstring>& paths);
  void AddFolders(const std::vector<std::wstring>& paths, const clsMenuItem& group);

  // --- options (frm_organize_options.cpp)
  void OptionsCommand();
  void KeepChosenGroups(const SettingValues<Appearance>& before);
  void BringMenuUpToOptions();

  // --- renaming in place (frm_organize_rename.cpp)
  void ConnectLabels();
  void RenameCommand();
  void RenameItem(const std::wstring& Key, bool& Cancel, const std::wstring& NewString);
  void TellRenameError(const std::wstring& text);

  // --- commands (frm_organize_commands.cpp)
  struct Target {
    std::wstring Path;
    std::int32_t Image = 0;
    std::wstring Key;
  };
  Target GetSelectedTarget() const;
  std::wstring KeyForCommands() const;
  void SetMenuState(MenuKind Kind, const std::wstring& Key, std::int32_t Image, bool Expanded);
  void SetPopupState(const std::wstring& Key, std::int32_t Image, bool Expanded);
  void SetToolsState();
  void OpenEditMenu();
  void OpenViewMenu();
  void EnableMenu(const wchar_t* name, bool on) { menus_[name].SetEnabled(on); }
  void EnableButton(const std::wstring& key, bool on) { tlbMain.SetButtonEnabled(key, on); }
  void SetToolbarState(const std::wstring& Key);
  void SetToolbarPaste();
  void FollowActivePane();
  void ConnectMenus();
  void PopupExplore();
  void PopupWindowsExplorer();
  void FindCommand();
  void ReportCommand();
  void RefreshProjection(const ProjectionTarget& place);
  void OpenWebPage(const std::wstring& path);

  std::int16_t ActivePane_ = 0;  // 0: the tree, 1: the list
  bool TreeActive_ = false;      // the pane that a command acts on
  bool ListActive_ = false;
  bool ListItemClicked_ = false;  // since the last button went down in the list
  bool NodeClicked_ = false;
  bool ListRightButton_ = false;
  bool TreeRightButton_ = false;
  bool FirstActivate_ = false;
  bool TreeWidthSet_ = false;
  OrganizeLayout layout_;
  ItemClipboard ClipboardItems_;
  std::wstring HitKey_;  // of the row or node under the mouse when a button went down
  PaneDrag drag_;
  std::wstring HoverKey_;  // of the node that something is dragged over
  Timer TimerOLE_{app_.platform.windows};
  std::shared_ptr<bool> life_ = std::make_shared<bool>(true);  // a request asks whether this is still there
  EditHistory history_;
  TreeEdit* openEdit_ = nullptr;  // that is going on
  // As they were before an edit, not saved yet, that took a generated group out.
  std::optional<SettingValues<Appearance>> optionsBefore_;
  OptionValues optionsOfMenu_;  // those that the menu's tree follows

  // What lies above others comes first.
  Splitter splitter_{*this};
  Toolbar tlbMain;
  TreePane tree_{*this, Edited, ClipboardItems_.CutKeys};
  StatusStrip strip_{*this};
  ListPane list_{*this, app_, Edited, ClipboardItems_.CutKeys};
  FormMenus menus_;
};

}  // namespace burrowmark
