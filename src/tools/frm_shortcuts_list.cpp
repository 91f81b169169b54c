#include "tools/frm_shortcuts_list.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

#include "core/dates.h"
#include "core/file_names.h"
#include "core/hot_keys.h"
#include "core/numbers.h"
#include "core/text.h"
#include "dialogs/frm_add_modify.h"
#include "dialogs/frm_properties.h"
#include "menu/menu_actions.h"
#include "platform/key_codes.h"

namespace burrowmark {
namespace {

constexpr Size kDesign{10050, 7290};
constexpr std::int32_t kProgramIcon = 1;
constexpr std::int32_t kValidIcon = 41;
constexpr std::int32_t kInvalidIcon = 42;
constexpr Color kGrey = 0x808080;

// Images of rows; one whose folder isn't known yet has none.
constexpr std::int32_t kValid = 1;
constexpr std::int32_t kInvalid = 2;

struct Column {
  const wchar_t* text;
  std::int32_t width;
};

// The last two headers tell of each other's times.
constexpr Column kColumns[] = {
    {L"Name", 2200},
    {L"Status", 900},
    {L"Location", 1900},
    {L"Keyboard Shortcut", 1900},
    {L"Target Location", 2900},
    {L"Description", 1900},
    {L"Created", 1900},
    {L"Modified", 1900},
};

// Columns behind the first, as the list counts them.
enum SubItem : std::size_t { kStatus = 1, kLocation, kKeyboard, kTarget, kDescription, kCreated, kModified };

enum Panel : std::size_t { kCountPanel = 1, kHotKeyPanel, kValidPanel, kInvalidPanel, kSummaryPanel };

constexpr std::int32_t kRefreshImage = 3;
constexpr MenuRow kMenuRows[] = {
    {0, L"mnuPopup", L"Popup"},
    {1, L"mnuDeleteAll", L"Delete all shortcuts with invalid target &folders", {L'F', kCtrlMask}},
    {1, L"mnuKS", L"Delete all &keyboard shortcuts", {L'K', kCtrlMask}},
    {1, L"mnuSep1", kMenuLine},
    {1, L"mnuDelete", L"&Delete"},
    {1, L"mnuRename", L"Rena&me"},
    {1, L"mnuChange", L"Chan&ge"},
    {1, L"mnuSep2", kMenuLine},
    {1, L"mnuRefresh", L"&Refresh", {kKeyCodeF5, 0}},
    {1, L"mnuProperties", L"Prope&rties"},
};

const ImageList kButtonImages{16, {43, 44, 45, 22, 46, 28, 29}};

std::vector<ToolbarButtonState> ToolbarButtons() {
  return {ToolbarButton(L"keyClean", L"Delete all shortcuts with invalid target locations (CTRL+F)", 1),
          ToolbarButton(L"keyDelShortcuts", L"Delete all hot keys (CTRL+K)", 2),
          ToolbarButton(L"keyRefresh", L"Refresh list (F5)", kRefreshImage),
          ToolbarSeparator(),
          ToolbarButton(L"keyChange", L"Change shortcut (F4)", 4),
          ToolbarButton(L"keyRename", L"Rename shortcut (F2)", 5),
          ToolbarButton(L"keyDelete", L"Delete shortcut (Del)", 6),
          ToolbarButton(L"keyProperties", L"Shortcut's properties", 7)};
}

std::vector<StatusPanelState> Panels() {
  return {{{}, 0, 1500}, {{}, 0, 1500}, {{}, kValidIcon, 1400}, {{}, kInvalidIcon, 1550}, {{}, 0, 0}};
}

bool IsListed(const clsMenuItem& item) { return item.ItemType == MIT_PATH && !item.SubMenu() && !item.Separator(); }

std::wstring KeyOf(const clsMenuItem& item) { return L"C" + item.Name(); }

}  // namespace

const frmShortcutsList::Command frmShortcutsList::kCommands[] = {
    {L"keyClean", L"mnuDeleteAll", {L'F', kCtrlMask}, &frmShortcutsList::DeleteInvalidShortcuts},
    {L"keyDelShortcuts", L"mnuKS", {L'K', kCtrlMask}, &frmShortcutsList::DeleteHotKeys},
    {L"keyRefresh", L"mnuRefresh", {kKeyCodeF5, 0}, &frmShortcutsList::Refresh},
    {L"keyChange", L"mnuChange", {kKeyCodeF4, 0}, &frmShortcutsList::Change},
    {L"keyRename", L"mnuRename", {kKeyCodeF2, 0}, &frmShortcutsList::StartRename},
    {L"keyDelete", L"mnuDelete", {kKeyCodeDelete, 0}, &frmShortcutsList::DeleteSelected},
    {L"keyProperties", L"mnuProperties", {}, &frmShortcutsList::ShowProperties},
};

frmShortcutsList::frmShortcutsList(Application& app)
    : ProgramForm(app, ProgramWindow::kShortcutsList, L"frmShortcutsList", kDesign),
      tlbMain(*this, L"tlbMain", ToolbarButtons()),
      sbar(*this, L"sbar", Panels()),
      menus_(*this, kMenuRows) {
  SetBorder(FormBorder::kSizable);
  SetCaption(L"Folder Shortcuts List");
  SetIcon(kProgramIcon);
  SetKeyPreview(true);
  const ImageList images{16, {kValidIcon, kInvalidIcon}};
  for (const Column& column : kColumns) ListView1.AddColumn(column.text, column.width);
  ListView1.SetImages(images, images);
  ListView1.SetLabelEdit(true);
  ListView1.SetMultiSelect(false);
  tlbMain.SetImages(kButtonImages, kButtonImages);
  menus_[L"mnuPopup"].SetVisible(false);

  tests_.Answered = [this](const std::vector<TargetAnswer>& answers) { TakeAnswers(answers); };
  for (const Command& command : kCommands) menus_[command.menu].Click = [this, &command] { Run(command); };
  tlbMain.ButtonClick = [this](const std::wstring& key) { Run(*CommandOfButton(kCommands, key)); };
  ListView1.ColumnClick = [this](std::int32_t column) {
    const Hourglass busy(*this);
    sort_.Click(column);
  };
  ListView1.DblClick = [this] { OpenSelected(); };
  ListView1.MouseUp = [this](const MouseEvent& event) {
    if (event.button == kRightButton && SelectedRow() != nullptr) menus_.PopupMenu(L"mnuPopup");
  };
  ListView1.AfterLabelEdit = [this](bool& Cancel, std::wstring& NewString) { EndRename(Cancel, NewString); };
}

void frmShortcutsList::Init(std::shared_ptr<clsMenuCollection> store, ShortcutEdits edits) {
  store_ = std::move(store);
  edits_ = std::move(edits);
  FillList();
}

Size frmShortcutsList::FirstSize() const { return kDesign; }

void frmShortcutsList::Form_Resize() {
  const Size area = Client();
  if (WindowState() == FormWindowState::kMinimized || area.height <= 0) return;
  tlbMain.AlignTop(area);
  sbar.AlignBottom(area);
  const std::int32_t top = tlbMain.Place().height;
  ListView1.SetPlace({0, top, area.width, std::max(area.height - top - sbar.Place().height, 0)});
}

void frmShortcutsList::Form_Unload(bool&) {
  tests_.Forget();
  deleting_.reset();
}

void frmShortcutsList::Form_KeyDown(std::int32_t& KeyCode, std::int32_t Shift) {
  if (KeyCode == kKeyCodeEscape && Shift == 0) {
    KeyCode = 0;
    Unload();
    return;
  }
  const Command* command = CommandOfKey(kCommands, {KeyCode, Shift});
  if (command == nullptr) return;
  KeyCode = 0;
  Run(*command);
}

void frmShortcutsList::Run(const Command& command) {
  if (!deleting_) (this->*command.run)();
}

// --- rows

void frmShortcutsList::FillList() {
  const Hourglass busy(*this);
  const ListView::Update update(ListView1);
  tests_.Forget();
  silent_.clear();
  ListView1.Clear();
  ListView1.SetSorted(false);
  std::vector<TargetQuestion> questions;
  for (std::int32_t i = 1; i <= store_->Count(); ++i) {
    const ItemRef item = store_->Item(i);
    if (!IsListed(*item)) continue;
    AddListItem(false, *item);
    questions.push_back({KeyOf(*item), item->FolderPath});
  }
  ListView1.SetOrder(SortOrder::kAscending);
  ListView1.SetSortKey(0);
  ListView1.SetSorted(true);
  ListView1.SetSelectedItem(nullptr);
  tests_.Add(std::move(questions));
  RefreshStatusBar();
}

void frmShortcutsList::AddListItem(bool update, const clsMenuItem& item) {
  ListItem* row = update ? ListView1.Find(KeyOf(item)) : ListView1.Add(KeyOf(item), item.Caption());
  if (row == nullptr) return;
  const SystemFacts& system = app_.platform.system;
  row->Tag = item.FolderPath;
  row->SetSubItem(kLocation, item.ItemLocation);
  // Not the cell that tells the key.
  row->SetForeColor(kLocation, item.KeyboardCode > -1 && !app_.ADVC[Advanced::kHotKeys] ? kGrey : kColorOfControl);
  row->SetSubItem(kKeyboard, HotKeyText(item.KeyboardCode));
  row->SetSubItem(kTarget, item.FolderPath);
  row->SetSubItem(kDescription, item.UserDescription);
  row->SetSubItem(kCreated, item.TimeModified == 0 ? L"Never" : DefaultDateText(item.TimeModified, system));
  row->SetSubItem(kModified, DefaultDateText(item.TimeCreated, system));
  row->SetSelected(false);
}

// The name of the row stays as it is until the list is filled again.
void frmShortcutsList::UpdateRow(const ItemRef& item) {
  if (!item || ListView1.Find(KeyOf(*item)) == nullptr) return;
  if (!IsListed(*item)) return RemoveRows({KeyOf(*item)});
  AddListItem(true, *item);
  tests_.Add({{KeyOf(*item), item->FolderPath}});
  RefreshStatusBar();
}

void frmShortcutsList::TakeAnswers(const std::vector<TargetAnswer>& answers) {
  {
    const ListView::Update update(ListView1);
    for (const TargetAnswer& answer : answers) {
      ListItem* row = ListView1.Find(answer.Asked.Key);
      if (row == nullptr || row->Tag != answer.Asked.Path) continue;
      const bool valid = answer.Answer == FolderAnswer::kThere;
      row->SetIcons(valid ? kValid : kInvalid, valid ? kValid : kInvalid);
      row->SetSubItem(kStatus, valid ? L"Valid" : L"Invalid");
      if (answer.Answer == FolderAnswer::kNoAnswer) {
        silent_.insert(row->Key());
      } else {
        silent_.erase(row->Key());
      }
    }
    if (!tests_.Running() && ListView1.SortKey() == kStatus) {
      ListView1.SetSorted(false);
      ListView1.SetSorted(true);
    }
  }
  RefreshStatusBar();
  if (deleting_ && !tests_.Running()) DeleteTested();
}

// What isn't known yet counts neither as valid nor as invalid.
void frmShortcutsList::RefreshStatusBar() {
  std::int32_t valid = 0;
  std::int32_t invalid = 0;
  std::int32_t hotKeys = 0;
  for (std::int32_t i = 1; i <= ListView1.Count(); ++i) {
    const ListItem& row = ListView1.Item(i);
    valid += row.SmallIcon() == kValid ? 1 : 0;
    invalid += row.SmallIcon() == kInvalid ? 1 : 0;
    hotKeys += row.SubItem(kKeyboard).empty() ? 0 : 1;
  }
  const bool known = valid + invalid == ListView1.Count();
  sbar.SetPanelText(kCountPanel, DecimalText(ListView1.Count()) + L" shortcut(s)");
  sbar.SetPanelText(kHotKeyPanel, DecimalText(hotKeys) + L" with hot keys     ");
  sbar.SetPanelText(kValidPanel, DecimalText(valid) + L" valid");
  sbar.SetPanelText(kInvalidPanel, DecimalText(invalid) + L" invalid");
  const wchar_t* sofar = known ? L"All target locations are valid" : L"Checking target locations...";
  sbar.SetPanelText(kSummaryPanel, invalid > 0 ? L"Some shortcuts have invalid target locations" : sofar);
}

ListItem* frmShortcutsList::SelectedRow() const {
  ListItem* row = ListView1.SelectedItem();
  return row != nullptr && row->Selected() ? row : nullptr;
}

ItemRef frmShortcutsList::ItemOf(const ListItem& row) const { return store_->GetMenuItemFromName(row.Key().substr(1)); }

void frmShortcutsList::RemoveRows(const std::vector<std::wstring>& keys) {
  {
    const ListView::Update update(ListView1);
    // From below, where fewer rows move up.
    std::for_each(keys.rbegin(), keys.rend(), [this](const std::wstring& key) { ListView1.Remove(key); });
  }
  RefreshStatusBar();
}

// --- one shortcut

void frmShortcutsList::OpenSelected() {
  if (const ListItem* row = SelectedRow()) ExploreFolder(app_, row->SubItem(kTarget), true);
}

void frmShortcutsList::DeleteSelected() {
  const ListItem* row = SelectedRow();
  if (row == nullptr) return;
  const std::wstring key = row->Key();
  if (ConfirmDelete(app_, *this, row->Text())) {
    row = ListView1.Find(key);
    const ItemRef item = row == nullptr ? nullptr : ItemOf(*row);
    if (item) {
      const std::int32_t index = row->Index();
      edits_.Remove({item});
      RemoveRows({key});
      // So that the next one can go by the same key.
      if (ListView1.Count() > 0) ListView1.SetSelectedItem(&ListView1.Item(std::min(index, ListView1.Count())));
    }
  }
  ListView1.SetFocus();
}

void frmShortcutsList::StartRename() {
  ListView1.SetFocus();
  if (SelectedRow() != nullptr) ListView1.StartLabelEdit();
}

void frmShortcutsList::EndRename(bool& Cancel, const std::wstring& NewString) {
  constexpr wchar_t kTitle[] = L"Rename Error";
  Cancel = true;
  const std::wstring key = ListView1.EditedItem()->Key();
  const std::wstring old = ListView1.EditedItem()->Text();
  if (HasBadFileChars(NewString)) {
    return Tell(L"An item's name cannot contain any of the following characters: \r\n\t\\ / : * ? \" < > |",
                kBoxCritical, kTitle);
  }
  const ItemRef item = ItemOf(*ListView1.EditedItem());
  if (!item || Trim(NewString).empty() || NewString == item->Caption()) return;
  if (store_->CaptionExists(NewString, item->OwnerName(), item->SubMenu(), item->Name())) {
    return Tell(L"Cannot rename " + old +
                    L": An item with the name you specified already exists.\r\nPlease specify a different name.",
                kBoxCritical, kTitle);
  }
  Cancel = false;
  edits_.Modify(item, {.Caption = NewString, .SubMenu = item->SubMenu(), .KeyboardCode = item->KeyboardCode}, nullptr);
  AddListItem(true, *item);
}

void frmShortcutsList::Change() {
  const ListItem* row = SelectedRow();
  if (row == nullptr) return;
  if (const ItemRef item = ItemOf(*row)) {
    frmAddModify dialog(app_);
    dialog.Init({.Mode = 1,
                 .Location = item->ItemLocation,
                 .Item = item,
                 .OwnerName = item->OwnerName(),
                 .Kind = {},
                 .Path = {},
                 .PresetName = {},
                 .Collection = store_});
    dialog.Show(Modal, *this);
    if (!dialog.Cancelled) {
      edits_.Modify(item, ChangeOf(dialog.GetParameters()), dialog.HotKeyHolder);
      UpdateRow(dialog.HotKeyHolder);
      UpdateRow(item);
    }
  }
  ListView1.SetFocus();
}

void frmShortcutsList::ShowProperties() {
  const ListItem* row = SelectedRow();
  if (row == nullptr) return;
  if (const ItemRef item = ItemOf(*row)) {
    frmProperties dialog(app_);
    const auto take = [&](const ItemRef& copy) {
      const ItemRef holder = dialog.HotKeyHolder;
      edits_.TakeOver(item, *copy, holder);
      UpdateRow(holder);
      UpdateRow(item);
    };
    dialog.Init(*item, store_);
    dialog.Apply = take;
    dialog.Show(Modal, *this);
    if (!dialog.Cancelled) take(dialog.DohvatiMenuItem());
  }
  ListView1.SetFocus();
}

void frmShortcutsList::Refresh() {
  FillList();
  ListView1.SetFocus();
}

// --- many shortcuts

bool frmShortcutsList::Asks(const std::wstring& question, std::uint32_t buttons) {
  return app_.platform.dialogs.MessageBoxA(Window(), question, L"Burrowmark", buttons | kBoxQuestion) == kAnswerYes;
}

void frmShortcutsList::Tell(const std::wstring& text, std::uint32_t icon, const wchar_t* title) {
  app_.platform.dialogs.MessageBoxA(Window(), text, title, icon);
}

// What isn't known to be there is tested at this moment, and goes when the answers are there.
void frmShortcutsList::DeleteInvalidShortcuts() {
  if (!Asks(L"Do you want to delete all folder shortcuts with invalid target locations?")) return;
  std::vector<TargetQuestion> questions;
  for (std::int32_t i = 1; i <= ListView1.Count(); ++i) {
    const ListItem& row = ListView1.Item(i);
    if (row.SmallIcon() != kValid) questions.push_back({row.Key(), row.Tag});
  }
  deleting_.emplace(*this);
  tests_.Forget();
  if (questions.empty()) return DeleteTested();
  tests_.Add(std::move(questions));
}

void frmShortcutsList::DeleteTested() {
  deleting_.reset();
  std::vector<ListItem*> rows;
  for (std::int32_t i = 1; i <= ListView1.Count(); ++i) {
    if (ListView1.Item(i).SmallIcon() == kInvalid) rows.push_back(&ListView1.Item(i));
  }
  std::set<std::wstring> kept;
  if (!AskAboutSilentPlaces(rows, kept)) return;
  std::vector<ItemRef> items;
  std::vector<std::wstring> keys;
  bool found = true;
  for (const ListItem* row : rows) {
    if (kept.contains(PlaceOf(row->Tag)) && silent_.contains(row->Key())) continue;
    const ItemRef item = ItemOf(*row);
    found = item != nullptr;
    if (!found) break;
    items.push_back(item);
    keys.push_back(row->Key());
  }
  if (!items.empty()) {
    edits_.Remove(items);
    RemoveRows(keys);
  }
  if (!found) return Tell(L"Error deleting folder shortcuts with invalid target locations.", kBoxCritical);
  const std::size_t left = rows.size() - items.size();
  Tell(left == 0 ? L"All folder shortcuts with invalid target locations have been deleted."
                 : L"Folder shortcuts with invalid target locations have been deleted, except for " +
                       DecimalText(static_cast<std::int32_t>(left)) + L" whose location doesn't answer.",
       kBoxInformation);
}

// Each place by itself. False: nothing shall be deleted.
bool frmShortcutsList::AskAboutSilentPlaces(const std::vector<ListItem*>& rows, std::set<std::wstring>& kept) {
  struct Silent {
    std::wstring name;  // as the first path writes it
    std::int32_t count = 0;
  };
  std::map<std::wstring, Silent> places;
  for (const ListItem* row : rows) {
    if (!silent_.contains(row->Key())) continue;
    const std::wstring place = PlaceOf(row->Tag);
    Silent& silent = places[place];
    if (++silent.count == 1) silent.name = row->Tag.substr(0, place.size());
  }
  for (const auto& [place, silent] : places) {
    const std::wstring question =
        silent.name + L" doesn't answer. Delete its " + DecimalText(silent.count) + L" shortcuts as well?";
    const std::int32_t answer =
        app_.platform.dialogs.MessageBoxA(Window(), question, L"Burrowmark", kBoxYesNoCancel | kBoxQuestion);
    if (answer == kAnswerCancel) return false;
    if (answer != kAnswerYes) kept.insert(place);
  }
  return true;
}

// The rows go on showing the keys until the list is filled again.
void frmShortcutsList::DeleteHotKeys() {
  if (!Asks(L"Do you want to delete hot keys of all folder shortcuts?")) return;
  std::vector<ItemRef> items;
  bool found = true;
  for (std::int32_t i = 1; found && i <= ListView1.Count(); ++i) {
    if (ListView1.Item(i).SubItem(kKeyboard).empty()) continue;
    const ItemRef item = ItemOf(ListView1.Item(i));
    found = item != nullptr;
    if (found) items.push_back(item);
  }
  if (!items.empty()) edits_.ClearHotKeys(items);
  if (!found) return Tell(L"Error deleting hot keys of all folder shortcuts.", kBoxCritical);
  Tell(L"Hot keys of all folder shortcuts have been deleted.", kBoxInformation);
}

}  // namespace burrowmark
