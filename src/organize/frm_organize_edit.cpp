// Edits of the tree: cut, copy, paste, delete, and taking them back.
#include <algorithm>
#include <utility>

#include "core/failure.h"
#include "core/form_services.h"
#include "core/hot_keys.h"
#include "core/settings.h"
#include "dialogs/frm_add_modify.h"
#include "dialogs/frm_item_exists.h"
#include "groups/drives.h"
#include "groups/system_folders.h"
#include "organize/frm_organize.h"
#include "organize/node_keys.h"
#include "organize/subtree.h"

namespace burrowmark {
namespace {

constexpr wchar_t kTitle[] = L"Burrowmark";

// An edit is open as long as this lives.
class OpenEdit {
 public:
  OpenEdit(TreeEdit*& open, TreeEdit& edit) : open_(open) { open_ = &edit; }
  ~OpenEdit() { open_ = nullptr; }
  OpenEdit(const OpenEdit&) = delete;
  OpenEdit& operator=(const OpenEdit&) = delete;

 private:
  TreeEdit*& open_;
};

// What the tree holds, and where, is these options' to say: they go back with it.
constexpr Appearance kTreeOptions[] = {Appearance::kSystemFolders, Appearance::kDrives, Appearance::kHelp,
                                       Appearance::kOptions, Appearance::kImportantFirst};

// Those of the groups that an edit can take out.
constexpr Appearance kGroupOptions[] = {Appearance::kSystemFolders, Appearance::kDrives};

bool IsGenerated(const clsMenuItem& item) { return item.Name() == MIT_PATHS_SYSTEM || item.Name() == MIT_PATHS_DRIVES; }

}  // namespace

void frmOrganize::Inform(const std::wstring& text) {
  app_.platform.dialogs.MessageBoxA(Window(), text, kTitle, kBoxInformation);
}

// --- an edit and its way back

void frmOrganize::EditTree(const std::wstring& name, const std::function<void(TreeEdit&)>& edit) {
  if (openEdit_ != nullptr) return EditOn(*openEdit_, edit);
  const std::shared_ptr<clsMenuCollection> store = WorkCollection();
  const SettingValues<Appearance> options = app_.AC;
  HistoryStep step{.Name = name, .Tree = {}, .Panes = Panes(), .Options = {}};
  TreeEdit changes(app_.platform.clock, *store);
  {
    const OpenEdit open(openEdit_, changes);
    EditOn(changes, edit);
  }
  step.Tree = changes.Record();
  if (step.Tree.Empty()) return;
  for (const Appearance option : kTreeOptions) {
    if (app_.AC[option] != options[option]) step.Options.emplace_back(option, options[option]);
  }
  history_.Add(std::move(step));
}

// What comes while an edit is open, from a window over the editor, belongs to that one.
void frmOrganize::EditOn(TreeEdit& open, const std::function<void(TreeEdit&)>& edit) {
  Attempt([&] { edit(open); });
  FollowEdit(open);
}

// What is edited so far counts, whatever comes.
void frmOrganize::FollowEdit(TreeEdit& edit) {
  const TreeChange change = edit.TakeChange();
  if (change.Empty()) return;
  Edited.Changed = true;
  RefreshHotKeys(app_, WorkCollection());
  RefreshGhosts();
  const std::wstring node = SelectedNodeKey();
  tree_.Follow(change);
  list_.Follow(change);
  const bool shown = list_.Group() == kRootOwner || WorkCollection()->ItemExists(list_.Group());
  ShowSelectedNode(shown && SelectedNodeKey() == node);
  SetToolbarOfRow();
}

std::wstring frmOrganize::SelectedNodeKey() const {
  const TreeNode* node = tree_.View.SelectedItem();
  return node == nullptr ? std::wstring() : node->Key();
}

void frmOrganize::SelectRows(const std::vector<std::wstring>& keys) {
  list_.Select(keys);
  SetToolbarOfRow();
}

// The buttons are those of a row, not of its group, while rows are what the user works on.
void frmOrganize::SetToolbarOfRow() {
  if (ActivePane_ == 1 && list_.HasSelection()) SetToolbarState(KeyForCommands());
}

void frmOrganize::UndoCommand() {
  std::optional<HistoryStep> step = history_.TakeLast();
  if (!step) return;
  const Hourglass busy(*this);
  const TreeChange change = TakeBack(*WorkCollection(), step->Tree);
  SettingValues<Appearance> options = app_.AC;
  for (const auto& [option, value] : step->Options) {
    options[option] = value;
    if (optionsBefore_ && value) (*optionsBefore_)[option] = true;
  }
  SetTreeOptions(options);
  Edited.Changed = true;
  RefreshGhosts();
  tree_.Follow(change);
  list_.Follow(change);
  RestorePanes(step->Panes, change);
  RefreshHotKeys(app_, WorkCollection());
}

// A group that the user chose to have or not to have stays so, also when the edits are discarded.
void frmOrganize::KeepChosenGroups(const SettingValues<Appearance>& before) {
  if (!optionsBefore_) return;
  for (const Appearance option : kGroupOptions) {
    const bool now = app_.AC[option];
    if (before[option] != now) (*optionsBefore_)[option] = now;
  }
}

void frmOrganize::SetTreeOptions(const SettingValues<Appearance>& values) {
  if (app_.AC[Appearance::kDrives] != values[Appearance::kDrives]) app_.DrivesRebuildNeeded = true;
  for (const Appearance option : kTreeOptions) {
    if (std::exchange(app_.AC[option], values[option]) != values[option]) SaveSetting(app_, option);
  }
}

// Another tree is in the window, or this one goes without being kept.
void frmOrganize::ForgetEdits() {
  history_.Clear();
  ClipboardItems_.LeaveTree();
  RefreshGhosts();
  if (const auto before = std::exchange(optionsBefore_, std::nullopt)) {
    SettingValues<Appearance> values = app_.AC;
    for (const Appearance option : kGroupOptions) values[option] = (*before)[option];
    SetTreeOptions(values);
  }
}

// --- cut and copy

// What a command acts on: the rows that are selected, or the node. The root isn't an item.
std::vector<ItemRef> frmOrganize::SelectedItems() {
  std::vector<std::wstring> keys;
  if (ListActive_) {
    list_.EnsureCurrentListItem();
    keys = list_.SelectedKeys();
  } else if (const TreeNode* node = tree_.View.SelectedItem()) {
    keys.push_back(node->Key());
  }
  std::vector<ItemRef> items;
  for (const std::wstring& key : keys) {
    if (const ItemRef item = WorkCollection()->GetMenuItemFromName(NameOfKey(key))) items.push_back(item);
  }
  return items;
}

void frmOrganize::CutOrCopy(PasteMode mode) {
  FollowActivePane();
  FuncCopy(mode, true);
}

void frmOrganize::FuncCopy(PasteMode mode, bool Ghost) {
  if (ListActive_ ? !list_.HasSelection() : tree_.View.SelectedItem() == nullptr) return;
  std::vector<ItemRef> items = SelectedItems();
  ClearClipboard();
  std::erase_if(items,
                [](const ItemRef& item) { return item->Name() == MIT_GROUP_USER || item->Name() == MIT_PATHS_SYSTEM; });
  if (items.empty()) return Inform(L"Can't move this group.");
  ClipboardItems_.Mode = mode;
  ClipboardItems_.Ghosted = Ghost;
  for (const ItemRef& item : items) ClipboardItems_.Take(app_.platform.clock, *WorkCollection(), item);
  RefreshGhosts();
  SetToolbarPaste();
}

void frmOrganize::ClearClipboard() {
  ClipboardItems_.Clear();
  RefreshGhosts();
  SetToolbarPaste();
}

// What a cut made grey is grey until it stands elsewhere.
void frmOrganize::RefreshGhosts() {
  const std::set<std::wstring> before = ClipboardItems_.CutKeys;
  ClipboardItems_.FindCutKeys();
  tree_.Ghost(before, false);
  list_.Ghost(before, false);
  tree_.Ghost(ClipboardItems_.CutKeys, true);
  list_.Ghost(ClipboardItems_.CutKeys, true);
}

// --- paste

void frmOrganize::PasteCommand(const std::wstring& target) {
  FollowActivePane();
  FuncPaste(target);
}

void frmOrganize::FuncPaste(std::wstring target, bool inDrag) {
  if (ClipboardItems_.Empty()) return;
  const TreeNode* node = tree_.View.SelectedItem();
  if (target.empty() && node != nullptr) target = NameOfKey(node->Key());
  const PastePlace place = FindPastePlace(*WorkCollection(), ClipboardItems_, target, inDrag);
  if (place.Refusal != PasteRefusal::kNone) return RefusePaste(place);
  const Hourglass busy(*this);
  std::vector<ItemRef> pasted;
  const wchar_t* name = ClipboardItems_.Mode == PasteMode::kMove ? L"Move" : L"Copy";
  EditTree(inDrag ? name : L"Paste", [&](TreeEdit& edit) {
    const bool done = PasteItems(edit, ClipboardItems_, place.Text,
                                 {[&](const clsMenuItem& existing, const clsMenuItem& incoming) {
                                    FollowEdit(edit);
                                    return AskAboutClash(existing, incoming);
                                  },
                                  [&] {
                                    FollowEdit(edit);
                                    Inform(kOneOpenAll);
                                  }},
                                 pasted);
    if (done && ClipboardItems_.Mode == PasteMode::kMove) ClipboardItems_.Clear();
  });
  RefreshGhosts();
  SetToolbarPaste();
  ShowNewRows(pasted);
}

// The new rows are the selected ones, where they show.
void frmOrganize::ShowNewRows(const std::vector<ItemRef>& items) {
  std::vector<std::wstring> keys;
  for (const ItemRef& item : items) {
    if (item->OwnerName() == list_.Group()) keys.push_back(KeyOfName(item->Name()));
  }
  if (keys.empty()) return;
  SelectRows(keys);
  ListItemClicked_ = true;
  SetStatusBarSelected();
}

void frmOrganize::RefusePaste(const PastePlace& place) {
  switch (place.Refusal) {
    case PasteRefusal::kRoot:
      return Inform(L"Can't paste items here.");
    case PasteRefusal::kDrives:
      return Inform(L"Can't paste items here. Content of Drives group is automatically generated.");
    case PasteRefusal::kSamePlace:
      ShowSameDestinationError(place.Text);
      if (place.Text.empty()) ClearClipboard();
      return;
    case PasteRefusal::kNone:
    case PasteRefusal::kGone:
      return;
  }
}

void frmOrganize::ShowSameDestinationError(const std::wstring& Name) {
  const bool moves = ClipboardItems_.Mode == PasteMode::kMove;
  const std::wstring text = std::wstring(L"Cannot ") + (moves ? L"move" : L"copy") + L" " + Name +
                            L": The source is the same as the destination.";
  app_.platform.dialogs.MessageBoxA(Window(), text, moves ? L"Error Moving File" : L"Error Copying File", kBoxCritical);
}

ClashAnswer frmOrganize::AskAboutClash(const clsMenuItem& existing, const clsMenuItem& incoming) {
  frmItemExists dialog(app_);
  dialog.Init(existing, incoming);
  dialog.Show(Modal, *this);
  if (dialog.Replace) return ClashAnswer::kReplace;
  return dialog.Rename ? ClashAnswer::kRename : ClashAnswer::kCancel;
}

// --- delete

void frmOrganize::DeleteCommand() {
  FollowActivePane();
  FuncDelete();
}

void frmOrganize::FuncDelete() {
  if (ListActive_ && !list_.HasSelection()) return;
  std::vector<ItemRef> items = SelectedItems();
  const bool fromList = ListActive_;
  const bool several = items.size() > 1;
  if (std::erase_if(items, [](const ItemRef& item) { return item->Name() == MIT_GROUP_USER; }) > 0 || items.empty()) {
    app_.platform.windows.Beep();
  }
  if (items.empty()) return;
  const bool asks = app_.GC[General::kAskBeforeDeleting] && (several || !IsGenerated(*items.front()));
  if (asks && !ConfirmDelete(app_, *this, several ? std::wstring() : items.front()->Caption())) return;
  if (!AskAboutGeneratedGroups(items)) return;
  const std::wstring next = fromList ? RowBeside(items) : std::wstring();
  DeleteItems(items);
  if (!fromList) return tree_.View.SetFocus();
  list_.View.SetFocus();
  if (!next.empty()) SelectRows({next});
}

// Every generated group is asked about by itself; No leaves it out. False: nothing shall be deleted.
bool frmOrganize::AskAboutGeneratedGroups(std::vector<ItemRef>& items) {
  std::vector<ItemRef> kept;
  for (const ItemRef& item : items) {
    if (!IsGenerated(*item)) continue;
    const wchar_t* name = item->Name() == MIT_PATHS_SYSTEM ? L"System Folders" : L"Drives";
    const std::int32_t answer =
        app_.platform.dialogs.MessageBoxA(Window(), DeleteGroupQuestion(name), kTitle, kBoxYesNoCancel | kBoxWarning);
    if (answer == kAnswerCancel) return false;
    if (answer != kAnswerYes) kept.push_back(item);
  }
  for (const ItemRef& item : kept) std::erase(items, item);
  return true;
}

// The key of the row behind those that go, else of the one ahead of them.
std::wstring frmOrganize::RowBeside(const std::vector<ItemRef>& items) const {
  const auto goes = [&items](const ListItem& row) {
    return std::any_of(items.begin(), items.end(),
                       [&row](const ItemRef& item) { return KeyOfName(item->Name()) == row.Key(); });
  };
  const ListView& list = list_.View;
  std::wstring before;
  bool passed = false;
  for (std::int32_t i = 1; i <= list.Count(); ++i) {
    if (goes(list.Item(i))) {
      passed = true;
    } else if (passed) {
      return list.Item(i).Key();
    } else {
      before = list.Item(i).Key();
    }
  }
  return before;
}

void frmOrganize::DeleteItems(const std::vector<ItemRef>& items) {
  const Hourglass busy(*this);
  EditTree(L"Delete", [&](TreeEdit& edit) {
    for (const ItemRef& item : items) {
      IsGenerated(*item) ? DeleteGeneratedGroup(edit, *item) : DeleteSubtree(edit, item);
    }
  });
}

void frmOrganize::DeleteGeneratedGroup(TreeEdit& edit, const clsMenuItem& group) {
  if (!optionsBefore_) optionsBefore_ = app_.AC;
  SettingValues<Appearance> without = app_.AC;
  if (group.Name() == MIT_PATHS_SYSTEM) {
    without[Appearance::kSystemFolders] = false;
    SetTreeOptions(without);
    edit.Around([this](clsMenuCollection& store) { RemoveSystemFolders(app_, store); });
  } else {
    without[Appearance::kDrives] = false;
    SetTreeOptions(without);
    edit.Around([this](clsMenuCollection& store) { RemoveDrives(app_, store); });
  }
}

// The shortcut's folder is gone, and the user wants to be rid of it.
void frmOrganize::DeleteShortcut(const ItemRef& item) { DeleteItems({item}); }

}  // namespace burrowmark
