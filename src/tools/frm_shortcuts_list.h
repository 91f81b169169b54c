// "Folder Shortcuts List": every folder shortcut of a tree in one list, and whether its folder is there.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "core/column_sort.h"
#include "core/command_row.h"
#include "core/form_services.h"
#include "core/program_form.h"
#include "tools/target_tests.h"
#include "ui/label.h"
#include "ui/list_view.h"
#include "ui/menu.h"
#include "ui/status_bar.h"
#include "ui/toolbar.h"

namespace burrowmark {

// How the list changes the tree, which is its caller's; hot keys are looked up anew each time. Items that don't stand
// in the tree any more are passed over.
struct ShortcutEdits {
  std::function<void(const std::vector<ItemRef>& items)> Remove;
  // `holder`, mostly none, loses its hot key to the item.
  std::function<void(const ItemRef& item, const ItemChange& change, const ItemRef& holder)> Modify;
  std::function<void(const ItemRef& item, const clsMenuItem& copy, const ItemRef& holder)> TakeOver;
  std::function<void(const std::vector<ItemRef>& items)> ClearHotKeys;
};

class frmShortcutsList final : public ProgramForm {
 public:
  explicit frmShortcutsList(Application& app);

  // Fills the list, and begins to ask for the folders.
  void Init(std::shared_ptr<clsMenuCollection> store, ShortcutEdits edits);

  bool InGesture() const override { return ListView1.EditedItem() != nullptr; }
  void CancelGesture() override { ListView1.CancelLabelEdit(); }

 private:
  using Command = CommandRow<frmShortcutsList>;
  static const Command kCommands[];

  Size FirstSize() const override;
  void Form_Resize() override;
  void Form_Unload(bool& Cancel) override;
  void Form_KeyDown(std::int32_t& KeyCode, std::int32_t Shift) override;
  void Run(const Command& command);

  void FillList();
  void AddListItem(bool update, const clsMenuItem& item);
  // The row of a shortcut that was changed.
  void UpdateRow(const ItemRef& item);
  void RefreshStatusBar();
  void TakeAnswers(const std::vector<TargetAnswer>& answers);
  ListItem* SelectedRow() const;
  // None if it has gone from the tree.
  ItemRef ItemOf(const ListItem& row) const;

  void OpenSelected();
  void DeleteSelected();
  void StartRename();
  void EndRename(bool& Cancel, const std::wstring& NewString);
  void Change();
  void ShowProperties();
  void Refresh();
  void DeleteInvalidShortcuts();
  void DeleteTested();
  bool AskAboutSilentPlaces(const std::vector<ListItem*>& rows, std::set<std::wstring>& kept);
  void RemoveRows(const std::vector<std::wstring>& keys);
  void DeleteHotKeys();
  bool Asks(const std::wstring& question, std::uint32_t buttons = kBoxYesNoCancel);
  void Tell(const std::wstring& text, std::uint32_t icon, const wchar_t* title = L"Burrowmark");

  std::shared_ptr<clsMenuCollection> store_;
  ShortcutEdits edits_;
  TargetTests tests_{app_.platform};
  std::set<std::wstring> silent_;      // keys of the rows whose server didn't answer
  std::optional<Hourglass> deleting_;  // the dead ones are tested once more; no command runs meanwhile

  Label lblList{*this, L"Shortcuts"};
  ListView ListView1{*this, L"ListView1", Box{}};
  ColumnSort sort_{ListView1, 1};
  Toolbar tlbMain;
  StatusBar sbar;
  FormMenus menus_;
};

}  // namespace burrowmark
