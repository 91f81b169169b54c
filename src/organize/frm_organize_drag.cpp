// What is dragged within the editor, out of it, and into it from other programs.
//
// The events of a drag come inside the source's own loop. They look, mark and take notes; a drop is worked off when the
// program is at rest.
#include <algorithm>
#include <utility>

#include "core/file_names.h"
#include "core/folder_tests.h"
#include "core/form_services.h"
#include "core/settings.h"
#include "organize/frm_organize.h"
#include "organize/node_keys.h"
#include "platform/key_codes.h"

namespace burrowmark {
namespace {

constexpr std::int32_t kHoverTime = 1250;  // milliseconds until a closed node opens
constexpr wchar_t kTitle[] = L"Burrowmark";

bool StaysInPlace(const std::wstring& key) {
  return key.empty() || key == MIT_HF_ROOT || NameOfKey(key) == MIT_GROUP_USER || NameOfKey(key) == MIT_PATHS_SYSTEM;
}

// The text behind the last backslash.
std::wstring GetPathTail(const std::wstring& path) { return path.substr(path.rfind(L'\\') + 1); }

// A folder's own name, or a drive's letter.
std::wstring TitleOfFolder(std::wstring path) {
  if (path.size() > 3 && path.ends_with(L'\\')) path.pop_back();
  const std::wstring tail = GetPathTail(path);
  return ReplaceBadFileChars(tail.empty() ? path.substr(0, 1) : tail);
}

}  // namespace

void frmOrganize::ConnectDrags() {
  tree_.View.SetOLEDrop(true);
  tree_.View.OLEStartDrag = [this](std::uint32_t& allowed) { StartTreeDrag(allowed); };
  tree_.View.OLECompleteDrag = [this](std::uint32_t) { EndDragState(); };
  tree_.View.OLEDragOver = [this](const DragEvent& event, DragState state, std::uint32_t& effect) {
    TreeDragOver(event, state, effect);
  };
  tree_.View.OLEDragDrop = [this](const DragEvent& event, const std::vector<std::wstring>& files,
                                  std::uint32_t& effect) { TreeDragDrop(event, files, effect); };
  list_.View.SetOLEDrop(true);
  list_.View.OLEStartDrag = [this](std::uint32_t& allowed) { StartListDrag(allowed); };
  list_.View.OLECompleteDrag = [this](std::uint32_t) { EndDragState(); };
  list_.View.OLEDragOver = [this](const DragEvent& event, DragState state, std::uint32_t& effect) {
    ListDragOver(event, state, effect);
  };
  list_.View.OLEDragDrop = [this](const DragEvent& event, const std::vector<std::wstring>& files,
                                  std::uint32_t& effect) { ListDragDrop(event, files, effect); };
  TimerOLE_.Tick = [this] { ExpandHoverNode(); };
}

// --- out of a pane

void frmOrganize::StartTreeDrag(std::uint32_t& allowed) {
  TreeNode* node = tree_.View.Find(HitKey_);
  if (ListRightButton_ || TreeRightButton_ || node == nullptr || StaysInPlace(HitKey_)) return;
  tree_.View.SetSelectedItem(node);
  BeginDrag(0, HitKey_, allowed);
}

void frmOrganize::StartListDrag(std::uint32_t& allowed) {
  ListItem* row = list_.View.Find(HitKey_);
  if (ListRightButton_ || TreeRightButton_ || row == nullptr || StaysInPlace(HitKey_)) return;
  list_.View.SetSelectedItem(row);
  BeginDrag(1, HitKey_, allowed);
}

// What is dragged is what a cut would take, though nothing turns grey.
void frmOrganize::BeginDrag(std::int16_t pane, const std::wstring& key, std::uint32_t& allowed) {
  drag_ = {pane, key};
  TreeActive_ = pane == 0;
  ListActive_ = pane == 1;
  FuncCopy(PasteMode::kMove, false);
  tree_.View.SetDropHighlight(nullptr);
  list_.View.SetDropHighlight(nullptr);
  if (!ClipboardItems_.Empty()) allowed = kEffectCopy | kEffectMove;
}

void frmOrganize::EndDragState() {
  StopExpandTimer();
  tree_.View.SetDropHighlight(nullptr);
  list_.View.SetDropHighlight(nullptr);
  if (std::exchange(drag_, {}).SourcePane < 0) return;
  // The pane on the right still shows the group that it showed.
  const bool root = list_.Group() == kRootOwner;
  TreeNode* shown = tree_.View.Find(root ? std::wstring(MIT_HF_ROOT) : KeyOfName(list_.Group()));
  if (shown != nullptr) tree_.View.SetSelectedItem(shown);
}

// --- over a pane

// A group, other than the one that is dragged.
bool frmOrganize::TakesDrop(const std::wstring& key) const {
  if (key == MIT_HF_ROOT || key == drag_.Key) return false;
  const ItemRef item = WorkCollection()->GetMenuItemFromName(NameOfKey(key));
  return item && item->SubMenu();
}

// Ctrl copies; Shift, and no key at all, move. Of other programs files alone are taken.
std::uint32_t frmOrganize::EffectOf(const DragEvent& event) {
  if (event.files) return EffectOnFiles(event.allowed);
  if (drag_.SourcePane < 0) return kEffectNone;
  const bool copies = (event.shift & kCtrlMask) != 0 && (event.shift & kShiftMask) == 0;
  ClipboardItems_.Mode = copies ? PasteMode::kCopy : PasteMode::kMove;
  return copies ? kEffectCopy : kEffectMove;
}

void frmOrganize::ListDragOver(const DragEvent& event, DragState state, std::uint32_t& effect) {
  ListItem* row = state == DragState::kLeave ? nullptr : list_.View.HitTest(event.x, event.y);
  list_.View.SetDropHighlight(row);
  if (state == DragState::kLeave) return;
  if (row != nullptr) {
    if (TakesDrop(row->Key())) effect = EffectOf(event);
  } else if (drag_.SourcePane != 1 && !(event.files && list_.Group() == kRootOwner)) {
    effect = EffectOf(event);  // to the group that is shown
  }
}

void frmOrganize::TreeDragOver(const DragEvent& event, DragState state, std::uint32_t& effect) {
  const bool leaves = state == DragState::kLeave || ListRightButton_ || TreeRightButton_;
  TreeNode* node = leaves ? nullptr : tree_.View.HitTest(event.x, event.y);
  HoverKey_ = node == nullptr ? std::wstring() : node->Key();
  tree_.View.SetDropHighlight(node);
  if (leaves) StopExpandTimer();
  if (node == nullptr) return;
  if (node->Children() > 0) StartExpandTimer();
  if (TakesDrop(HoverKey_)) effect = EffectOf(event);
}

void frmOrganize::StartExpandTimer() {
  TimerOLE_.SetInterval(kHoverTime);
  TimerOLE_.SetEnabled(true);
}

void frmOrganize::StopExpandTimer() {
  TimerOLE_.SetEnabled(false);
  TimerOLE_.SetInterval(0);
}

void frmOrganize::ExpandHoverNode() {
  TreeNode* node = tree_.View.Find(HoverKey_);
  if (node == nullptr || node->Children() == 0 || node->Expanded()) return;
  node->SetExpanded(true);
  StopExpandTimer();
}

// --- dropped

// Waits until the program is at rest; forgotten if the window or its tree has gone by then.
void frmOrganize::AfterDrag(std::function<void()> work) {
  app_.Requests.Add([this, life = std::weak_ptr<bool>(life_), tree = WorkCollection(), work = std::move(work)] {
    if (!life.expired() && WorkCollection() == tree) work();
  });
}

// What is dragged now, and as it is dragged now, whatever the clipboard holds then.
void frmOrganize::PasteAfterDrag(const std::wstring& target) {
  AfterDrag([this, dragged = ClipboardItems_, target] {
    ClipboardItems_ = dragged;
    FuncPaste(target, true);
  });
}

void frmOrganize::ListDragDrop(const DragEvent& event, const std::vector<std::wstring>& files, std::uint32_t& effect) {
  const ListItem* row = list_.View.HitTest(event.x, event.y);
  list_.View.SetDropHighlight(nullptr);
  effect = EffectOf(event);
  if (event.files) {
    const TreeNode* node = tree_.View.SelectedItem();
    const std::wstring group = node == nullptr ? std::wstring() : node->Key();
    AfterDrag([this, files, key = row == nullptr ? group : row->Key()] { DropFiles(files, key); });
  } else if (drag_.SourcePane >= 0) {
    PasteAfterDrag(row == nullptr ? list_.Group() : NameOfKey(row->Key()));
  }
}

void frmOrganize::TreeDragDrop(const DragEvent& event, const std::vector<std::wstring>& files, std::uint32_t& effect) {
  StopExpandTimer();
  tree_.View.SetDropHighlight(nullptr);
  if (ListRightButton_ || TreeRightButton_) return;
  const TreeNode* node = tree_.View.HitTest(event.x, event.y);
  if (node == nullptr) node = tree_.View.SelectedItem();
  if (node == nullptr) return;
  effect = EffectOf(event);
  if (event.files) {
    AfterDrag([this, files, key = node->Key()] {
      if (TreeNode* target = tree_.View.Find(key)) tree_.View.SetSelectedItem(target);
      ShowSelectedNode(false);
      DropFiles(files, key);
    });
  } else if (drag_.SourcePane >= 0) {
    PasteAfterDrag(NameOfKey(node->Key()));
  }
}

// --- folders from other programs

void frmOrganize::DropFiles(const std::vector<std::wstring>& paths, const std::wstring& key) {
  if (paths.empty() || key.empty()) return;
  if (key == MIT_HF_ROOT) return Inform(L"Can't add new items here.");
  if (!OnlyFolders(paths)) return;
  app_.platform.windows.SetForegroundWindow(Window());
  if (paths.size() == 1 && app_.GC[General::kDialogForOneDroppedPath]) {
    return NewItemInGroup(NameOfKey(key), {}, paths.front());
  }
  if (const ItemRef group = GroupForNewItems(NameOfKey(key))) AddFolders(paths, *group);
}

// All are looked at before any is added; the user is told of the first that is none.
bool frmOrganize::OnlyFolders(const std::vector<std::wstring>& paths) {
  const Hourglass busy(*this);
  FolderTests tests(app_.platform);
  const auto other = std::find_if(paths.begin(), paths.end(), [&tests](const std::wstring& path) {
    return tests.Test(path) != FolderAnswer::kThere;
  });
  if (other == paths.end()) return true;
  const std::wstring text = L"Cannot add " + GetPathTail(*other) + L".\r\nOnly folders can be added to Burrowmark.";
  app_.platform.dialogs.MessageBoxA(Window(), text, kTitle, kBoxCritical);
  return false;
}

void frmOrganize::AddFolders(const std::vector<std::wstring>& paths, const clsMenuItem& group) {
  std::vector<ItemRef> made;
  const Hourglass busy(*this);
  EditTree(paths.size() == 1 ? L"New Item" : L"New Items", [&](TreeEdit& edit) {
    for (const std::wstring& path : paths) {
      made.push_back(edit.AddNew({.Caption = TitleOfFolder(path),
                                  .OwnerName = group.Name(),
                                  .FolderPath = path,
                                  .ItemType = MIT_PATH,
                                  .OpenType = MIT_PATH_EXPLORER,
                                  .RenameOnConflict = true}));
    }
  });
  ShowNewRows(made);
}

}  // namespace burrowmark
