// "Organize Folders", the editor of the tree.
//
// It works on a copy of the menu's store, which takes that store's place when the window closes. Its two panes mirror
// the copy and are never the truth.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "config/config_file.h"
#include "core/program_form.h"
#include "core/progress.h"
#include "organize/enabling.h"
#include "organize/organize_layout.h"
#include "projection/organized_folders.h"
#include "ui/label.h"
#include "ui/list_view.h"
#include "ui/menu.h"
#include "ui/picture_box.h"
#include "ui/status_bar.h"
#include "ui/text_box.h"
#include "ui/toolbar.h"
#include "ui/tree_view.h"

namespace burrowmark {

class frmOrganize final : public ProgramForm {
 public:
  explicit frmOrganize(Application& app);

  // Runs "/ADD path" or "/OPEN path" on the loaded window.
  void Init(const std::wstring& Command);
  void SetFormCaption();
  // Fills the tree again; shows the node of that key, the first below the root for an empty one.
  void RefreshViews(const std::wstring& Key, bool Expand);
  // Replaces what is edited by a file's content. False: everything is as it was.
  bool FuncConfigFileLoad(const std::wstring& Path);
  // Writes what is edited to its file; with `Rebuild` it becomes the menu's document too.
  bool FuncConfigFileSave(bool Rebuild);
  // Asks about what was changed, and loads.
  void OpenConfigFile(const std::wstring& Path);
  // The user's session ends: what was changed is written without a question.
  void SaveForSessionEnd();
  // Deletes a shortcut of the tree.
  void DeleteShortcut(const ItemRef& item);

  // Patch single nodes and rows after a change of `WorkCollection`. One that isn't shown is nobody's fault.
  // A node stands behind the nearest earlier sibling that has a node, else ahead of the nearest later one, else last.
  void AddTreeNode(const clsMenuItem& item);
  void RefreshTreeNode(const std::wstring& Key, const clsMenuItem& item);
  void RemoveTreeNode(const std::wstring& Name);
  // A row comes to the end, and turns the sorting off unless `Sorted` is true.
  void AddListItem(const clsMenuItem& item, bool Ghosted, bool Sorted);
  // Grey if the item was cut.
  void AddListItemGhosted(const clsMenuItem& item);
  void RefreshListItem(const std::wstring& Key, const clsMenuItem& item);
  void SetListItemText(const std::wstring& Name, const std::wstring& text);
  void RemoveListItem(const std::wstring& Name);

  const std::shared_ptr<clsMenuCollection>& WorkCollection() const { return Edited.Store; }
  bool InGesture() const override;
  void CancelGesture() override;

  Document Edited;              // no tree while the window is closed
  bool DefaultChanged = false;  // another file became the default one
  bool SaveOnExit = true;
  bool FileOpened = false;         // another file was opened in this window
  bool SavedToDefault = false;     // the default file was written from this window
  bool ListChangedByTool = false;  // the list of shortcuts changed items

 private:
  struct CommandRow;
  static std::span<const CommandRow> Commands();
  static std::vector<MenuRow> MenuRows();

  // --- life and layout (frm_organize.cpp, frm_organize_layout.cpp)
  void Form_Load() override;
  void AdoptDefaultFile();
  void Form_Activate() override;
  void Form_Resize() override;
  void Form_KeyDown(std::int32_t& KeyCode, std::int32_t Shift) override;
  void Form_MouseDown(const MouseEvent& event) override;
  void Form_MouseMove(const MouseEvent& event) override;
  void Form_MouseUp(const MouseEvent& event) override;
  void Form_SystemCommand(std::int32_t id) override;
  void ConnectPanes();
  void ConnectBars();
  void LoadLayout();
  void SaveLayout();
  void ArrangeControls();
  void SetSplitterBounds();
  void ResetSplitterCursor();
  void SetStatusBarVisible(bool visible);
  void SetToolbarImages(bool large);
  void SetToolbarText(bool on);
  void ToggleToolbarImages();
  void ToggleToolbarText();
  void AddAlwaysOnTopItem();
  void StayOnTop(bool on);
  bool IsOverSplitter(std::int32_t x) const;

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
  void ReportSystemGroup(const OpenedConfig& opened);
  void RefreshDefaultCommands();
  bool ReportSaveError();
  void TellSaveError(const std::wstring& path);
  void OpenConfigCommand();
  void SaveConfigCommand();
  void SaveConfigAsCommand();
  bool MayReplace(const std::wstring& path);
  bool SaveListing(const std::wstring& path);
  void TellSaved(const std::wstring& path);
  void SetDefaultCommand();

  // --- panes (frm_organize_views.cpp)
  void FillTree();
  bool HasNode(const clsMenuItem& item) const { return item.SubMenu() || layout_.AllLeftPane; }
  void AddTreeNodeAt(const clsMenuItem& item, const std::wstring& neighbour, TreeRelation relation);
  void ShowSelectedNode(bool KeepList);
  void ShowGroupInList();
  void ListGroup(const std::wstring& group);
  void ShowDrivesText();
  void WriteColumns(ListItem& row, const clsMenuItem& item);
  void ArrangeBy(std::int32_t Column);
  void ClearSortMark();
  void ApplyView(const std::wstring& viewKey);
  void SetViewCheckMarks(const std::wstring& viewKey);
  void ToggleAllLeftPane();
  void RefreshCommand();
  void GoUp();
  void OpenSelectedListItem(bool NoOpen);
  void EnsureCurrentListItem();
  bool HasSelection() const { return ListView1.SelectedCount() > 0; }
  void SetAllListItemsSelected(bool selected);
  void InvertSelection();

  // --- status bar and the strip above the list (frm_organize_status.cpp)
  struct StatusFacts {
    std::int32_t Count = 0;
    std::wstring Caption;
    std::int32_t Image = 0;
    bool Selected = false;
    std::wstring TypeText;
    std::wstring PathText;
    std::wstring DetailText;
  };
  void SetStatusBar(StatusFacts facts);
  void SetStatusBarSelected();
  void ShowStatusOfNode(const TreeNode& node);

  // --- what the mouse and the keyboard do in the panes (frm_organize_panes.cpp)
  void EnterTree();
  void EnterList();
  void TreeMouseDown(const MouseEvent& event);
  void TreeMouseUp();
  void TreeNodeClick();
  void TreeDblClick();
  void TreeKeyDown(std::int32_t& KeyCode);
  void ListMouseDown(const MouseEvent& event);
  void ListMouseUp();
  void ListItemClick(const ListItem& row);
  void ListClick();
  void ListKeyDown(std::int32_t& KeyCode);

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
  void SetMenuState(MenuKind Kind, const std::wstring& Key, std::int32_t Image, bool Expanded);
  void SetPopupState(const std::wstring& Key, std::int32_t Image, bool Expanded);
  void SetToolsState();
  void OpenEditMenu();
  void OpenViewMenu();
  void EnableMenu(const wchar_t* name, bool on);
  void EnableButton(const std::wstring& key, bool on);
  void SetToolbarState(const std::wstring& Key);
  bool ClipboardEmpty() const { return !ClipboardItems_ || ClipboardItems_->Count() < 1; }
  void FollowActivePane();
  void ConnectMenus();
  static bool IsBuilt(std::wstring_view menu);
  void PopupExplore();
  void PopupWindowsExplorer();
  void FindCommand();
  void RefreshProjection(const ProjectionTarget& place);
  void OpenWebPage(const std::wstring& path);

  std::int16_t ActivePane_ = 0;  // 0: the tree, 1: the list
  bool TreeActive_ = false;      // the pane that a command acts on
  bool ListActive_ = false;
  std::wstring CurrentGroup_;  // whose items the list shows
  std::int32_t SortColumn_ = 0;
  bool ListItemClicked_ = false;  // since the last button went down in the list
  bool NodeClicked_ = false;
  bool ListRightButton_ = false;
  bool TreeRightButton_ = false;
  bool FirstActivate_ = false;
  bool SplitterDragging_ = false;
  bool SplitterCursorSet_ = false;
  bool TreeWidthSet_ = false;
  std::int32_t SplitterLeft_ = 0;
  std::int32_t SplitterRight_ = 0;
  OrganizeLayout layout_;
  std::optional<StatusFacts> lastStatus_;
  std::shared_ptr<clsMenuCollection> ClipboardItems_;  // what was cut or copied
  std::set<std::wstring> CutKeys_;                     // of the rows that a cut made grey

  // What lies above others comes first.
  PictureBox Picture1{*this, L"Picture1", Box{}};
  Toolbar tlbMain;
  TreeView TreeView1{*this, L"TreeView1", Box{}};
  PictureBox picInfoMain{*this, L"picInfoMain", Box{0, 0, 3000, 360}};
  PictureBox picInfo{picInfoMain, L"picInfo", Box{60, 0, 240, 240}};
  Label lblInfo{picInfoMain, L"lblInfo", Box{390, 0, 3000, 225}};
  TextBox txtInfoDrives;
  ListView ListView1{*this, L"ListView1", Box{}};
  StatusBar stbMain;
  FormMenus menus_;
};

}  // namespace burrowmark
