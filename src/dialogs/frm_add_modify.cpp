#include "dialogs/frm_add_modify.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "core/file_names.h"
#include "core/folder_tests.h"
#include "core/form_services.h"
#include "core/hot_keys.h"
#include "core/text.h"
#include "dialogs/browse_for_folder.h"
#include "platform/key_codes.h"

namespace burrowmark {
namespace {

constexpr Size kClient{7800, 7725};
constexpr std::int32_t kIconSize = 32;
constexpr std::int16_t kModeNew = 0;
constexpr std::int16_t kModeChange = 1;
constexpr wchar_t kTitle[] = L"Burrowmark";
constexpr wchar_t kOpenAllTitle[] = L"Open-All";
constexpr wchar_t kFirstFolder[] = L"C:\\";
constexpr std::size_t kRootLength = 3;  // of a drive, "C:\"
constexpr wchar_t kNoItem[] = L"-2";    // a name that no item has

struct TypeRow {
  const wchar_t* text;
  const wchar_t* explanation;
  std::int32_t icon;
  const wchar_t* kind;  // the way of opening of a folder shortcut, otherwise the item's type
};

enum Type : std::int32_t { kGroup, kSinglePane, kDoublePane, kOpenAll };

constexpr TypeRow kTypes[] = {
    {L"Group", L"A group to put the items in.", 2, MIT_GROUP_GENERAL},
    {L"Folder Shortcut (single pane)", L"Opens the folder as a folder shortcut in single-pane Windows Explorer.", 3,
     MIT_PATH_SHORTCUT},
    {L"Folder Shortcut (double pane)", L"Opens the folder in Windows Explorer (with both panes).", 4,
     MIT_PATH_EXPLORER},
    {kOpenAllTitle, L"Opens all items in its menu level.", 12, MIT_OPENALL},
};

bool OpensFolder(std::int32_t type) { return type == kSinglePane || type == kDoublePane; }

std::int32_t TypeOf(const std::wstring& kind) {
  const auto* row =
      std::find_if(std::begin(kTypes), std::end(kTypes), [&kind](const TypeRow& type) { return kind == type.kind; });
  return row == std::end(kTypes) ? std::int32_t{kSinglePane}
                                 : static_cast<std::int32_t>(std::distance(std::begin(kTypes), row));
}

std::wstring KindOf(const clsMenuItem& item) {
  if (item.SubMenu()) return MIT_GROUP_GENERAL;
  return item.ItemType == MIT_PATH ? item.OpenType : item.ItemType;
}

// GetFileName takes a path that ends in a backslash for a drive.
std::wstring LastPart(std::wstring path) {
  while (path.size() > kRootLength && path.ends_with(L'\\')) path.pop_back();
  return RemoveBadFileChars(GetFileName(path));
}

void SetAtEnd(TextBox& box, const std::wstring& text) {
  box.SetText(text);
  box.SetSelection(static_cast<std::int32_t>(box.Text().size()), 0);
}

// Enter in a box of one line doesn't end the dialog.
void SwallowEnter(std::int32_t& KeyAscii) {
  if (KeyAscii == kKeyCodeReturn) KeyAscii = 0;
}

// The place of a hot key's code in the list.
std::int32_t IndexOfCode(std::int32_t code) {
  return code < kFirstHotKey || code > kLastHotKey ? 0 : code - kFirstHotKey + 1;
}

// The first of the files is taken.
void TakeDrops(TextBox& box, const std::function<void(const std::wstring& path)>& take) {
  box.SetOLEDrop(true);
  box.OLEDragOver = [](const DragEvent& event, DragState, std::uint32_t& effect) {
    if (event.files) effect = EffectOnFiles(event.allowed);
  };
  box.OLEDragDrop = [take](const DragEvent& event, const std::vector<std::wstring>& files, std::uint32_t& effect) {
    if (files.empty()) return;
    effect = EffectOnFiles(event.allowed);
    take(files.front());
  };
}

}  // namespace

ItemChange ChangeOf(const ItemParameters& parameters) {
  return {.Caption = parameters.Caption,
          .FolderPath = parameters.FolderPath,
          .ItemType = parameters.ItemType,
          .OpenType = parameters.OpenType,
          .SubMenu = parameters.SubMenu,
          .RefreshIcon = true,
          .KeyboardCode = parameters.KeyboardCode,
          .UserDescription = parameters.UserDescription};
}

frmAddModify::frmAddModify(Application& app) : ProgramForm(app, ProgramWindow::kAddModify, L"frmAddModify", kClient) {
  txtLocation.SetReadOnly(true);
  cmdFinish.SetDefault(true);
  cmdCancel.SetCancel(true);
  ShowTips();
  FillLists();
  Connect();
}

void frmAddModify::ShowTips() {
  txtLocation.SetToolTipText(L"Location of this item within Organized Folders");
  cmdBrowse.SetToolTipText(L"Browse for Targer Folder");
  cmdDescErase.SetToolTipText(L"Copy the name of Target Folder");
  cmdKeyboardErase.SetToolTipText(L"Erase Keyboard Shortcut");
}

void frmAddModify::FillLists() {
  for (const TypeRow& type : kTypes) cmbType.AddItem(type.text);
  cmbKeyboardShortcut.AddItem({});
  for (std::int32_t code = kFirstHotKey; code <= kLastHotKey; ++code) cmbKeyboardShortcut.AddItem(HotKeyText(code));
}

void frmAddModify::Connect() {
  cmbType.Click = [this] { ChangeType(); };
  cmbKeyboardShortcut.Click = [this] { ChooseHotKey(); };
  cmdKeyboardErase.Click = [this] { cmbKeyboardShortcut.SetListIndex(0); };
  txtItemName.KeyPress = SwallowEnter;
  txtPath.KeyPress = SwallowEnter;
  txtPath.LostFocus = [this] { txtPath.SetText(GetPath()); };
  TakeDrops(txtPath, [this](const std::wstring& path) { SetPath(path); });
  TakeDrops(txtItemName, [this](const std::wstring& path) { SetItemName(LastPart(path)); });
  cmdDescErase.Click = [this] { TakeNameFromPath(); };
  cmdBrowse.Click = [this] { Browse(); };
  cmdFinish.Click = [this] { Finish(); };
  cmdCancel.Click = [this] { Unload(); };
}

void frmAddModify::Init(AddModifyRequest request) {
  request_ = std::move(request);
  SetCaption(TitleOf());
  txtLocation.SetText(request_.Location);
  if (const ItemRef& item = request_.Item) {
    SetPath(item->FolderPath);
    SetItemName(item->Caption());
    SetDescription(item->UserDescription);
    LastKeyboardIndex_ = IndexOfCode(item->KeyboardCode);
    cmbType.SetListIndex(TypeOf(KindOf(*item)));
  } else {
    SetPath(request_.Path);
    SetItemName(request_.PresetName);
    cmbType.SetListIndex(TypeOf(request_.Kind));
  }
  cmbKeyboardShortcut.SetListIndex(LastKeyboardIndex_);
}

std::wstring frmAddModify::TitleOf() const {
  if (request_.Mode == kModeNew) return L"New Item";
  if (request_.Mode != kModeChange) return L"Create Shortcut";
  switch (TypeOf(KindOf(*request_.Item))) {
    case kGroup:
      return L"Change Group " + request_.Item->Caption();
    case kOpenAll:
      return L"Change Open-All Shortcut";
    default:
      return L"Change Shortcut " + request_.Item->Caption();
  }
}

// The user comes to what is to be entered first.
void frmAddModify::Form_Activate() {
  if (std::exchange(entered_, true)) return;
  TextBox* first = txtItemName.Enabled() ? &txtItemName : &txtDescription;
  if (IsShortcut() && GetPath().empty()) first = &txtPath;
  first->SetFocus();
  first->SelectAll();
}

// --- what was entered

bool frmAddModify::IsShortcut() const { return OpensFolder(cmbType.ListIndex()); }

std::wstring frmAddModify::GetPath() const {
  std::wstring path = Trim(PathArgument(txtPath.Text()));
  if (path.size() == 1) path += L':';
  return path;
}

std::wstring frmAddModify::GetItemName() const { return Trim(txtItemName.Text()); }

std::int32_t frmAddModify::GetKeyboardCode() const {
  const std::int32_t index = cmbKeyboardShortcut.ListIndex();
  return index <= 0 || cmbType.ListIndex() == kGroup ? -1 : kFirstHotKey + index - 1;
}

ItemParameters frmAddModify::GetParameters() const {
  const std::int32_t type = cmbType.ListIndex();
  const std::wstring kind = kTypes[type].kind;
  return {.Caption = type == kOpenAll ? std::wstring() : GetItemName(),
          .FolderPath = OpensFolder(type) ? GetPath() : std::wstring(),
          .SubMenu = type == kGroup,
          .ItemType = OpensFolder(type) ? MIT_PATH : kind,
          .OpenType = OpensFolder(type) ? kind : std::wstring(),
          .KeyboardCode = GetKeyboardCode(),
          .UserDescription = txtDescription.Text()};
}

void frmAddModify::SetPath(const std::wstring& path) { SetAtEnd(txtPath, path); }
void frmAddModify::SetItemName(const std::wstring& name) { SetAtEnd(txtItemName, name); }
void frmAddModify::SetDescription(const std::wstring& description) { SetAtEnd(txtDescription, description); }

// --- type, hot key, path

void frmAddModify::ChangeType() {
  const std::int32_t type = cmbType.ListIndex();
  lblType.SetCaption(kTypes[type].explanation);
  picIcon.SetIcon(kTypes[type].icon, kIconSize);

  // A box that is enabled has the user's own text.
  if (txtItemName.Enabled()) name_ = txtItemName.Text();
  if (txtPath.Enabled()) path_ = txtPath.Text();
  txtItemName.SetEnabled(type != kOpenAll);
  txtItemName.SetText(type == kOpenAll ? kOpenAllTitle : name_);
  for (Control* control :
       {static_cast<Control*>(&txtPath), static_cast<Control*>(&cmdBrowse), static_cast<Control*>(&cmdDescErase)}) {
    control->SetEnabled(OpensFolder(type));
  }
  txtPath.SetText(OpensFolder(type) ? path_ : std::wstring());
  cmbKeyboardShortcut.SetEnabled(type != kGroup);
  cmdKeyboardErase.SetEnabled(type != kGroup);
}

void frmAddModify::ChooseHotKey() {
  const std::int32_t index = cmbKeyboardShortcut.ListIndex();
  if (index == LastKeyboardIndex_) return;
  ItemRef holder;
  const std::int32_t code = GetKeyboardCode();
  const bool found = code >= 0 && FindHotKeyItem(app_, code, holder);
  if (!found || (request_.Item && holder->Name() == request_.Item->Name())) holder = nullptr;
  if (holder && !MayTakeHotKeyOf(*holder)) return cmbKeyboardShortcut.SetListIndex(LastKeyboardIndex_);
  LastKeyboardIndex_ = index;
  HotKeyHolder = holder;
}

bool frmAddModify::MayTakeHotKeyOf(const clsMenuItem& holder) {
  const std::wstring text = L"Keyboard shortcut " + cmbKeyboardShortcut.Text() +
                            L" is already associated with folder shortcut " + holder.Caption() +
                            L".\r\nDo you want to associate the keyboard shortcut to this item?";
  return app_.platform.dialogs.MessageBoxA(Window(), text, kTitle, kBoxWarning | kBoxYesNoCancel) == kAnswerYes;
}

void frmAddModify::TakeNameFromPath() {
  const std::wstring path = GetPath();
  if (!path.empty()) SetItemName(LastPart(path));
}

void frmAddModify::Browse() {
  const std::wstring start = GetPath();
  BrowseParameters parameters{.Title = L"Browse for Target Location",
                              .Prompt = L"Select the target of the folder below:",
                              .StartFolder = start.empty() ? kFirstFolder : start,
                              .IncludeSubfoldersCaption = L"Include subfolders",
                              .OkCaption = L"OK",
                              .CancelCaption = L"Cancel",
                              .NewFolderCaption = L"New folder"};
  const std::wstring folder = BrowseForFolder(app_, *this, parameters);
  if (folder.empty()) return;
  SetPath(folder);
  if (GetItemName().empty()) TakeNameFromPath();
}

// --- OK

void frmAddModify::Finish() {
  if (IsShortcut() && !TargetIsFine()) return;
  if (IsShortcut() && GetItemName().empty()) TakeNameFromPath();
  if (!NameIsFine() || !NameIsFree()) return;
  if (HotKeyHolder && HotKeyHolder->KeyboardCode != GetKeyboardCode()) HotKeyHolder = nullptr;
  Cancelled = false;
  Unload();
}

// A server may take its time.
bool frmAddModify::IsThere(const std::wstring& path) {
  const Hourglass hourglass(*this);
  return FolderTests(app_.platform).Test(path) == FolderAnswer::kThere;
}

bool frmAddModify::TargetIsFine() {
  const std::wstring path = GetPath();
  if (path.empty()) return Refuse(L"Please specify a path for the Target Location.", txtPath);
  if (IsThere(path)) return true;
  const std::wstring text = L"Folder " + path + L" doesn't exist.\r\nDo you want to create shortcut to it anyway?";
  if (app_.platform.dialogs.MessageBoxA(Window(), text, kTitle, kBoxWarning | kBoxYesNoCancel) == kAnswerYes) {
    return true;
  }
  txtPath.SetFocus();
  txtPath.SelectAll();
  return false;
}

bool frmAddModify::NameIsFine() {
  const std::wstring name = GetItemName();
  if (name.empty() && cmbType.ListIndex() != kOpenAll) {
    return Refuse(
        L"Please specify Name for the item. Each item must have a name that uniquely identifies it in its group.",
        txtItemName);
  }
  if (!HasBadFileChars(name)) return true;
  return Refuse(L"An item's Name cannot contain any of the following characters: \r\n\t\\ / : * ? \\\" < > |",
                txtItemName);
}

bool frmAddModify::NameIsFree() {
  const std::wstring name = GetItemName();
  const std::int32_t type = cmbType.ListIndex();
  if (type == kGroup) {
    if (!TitleIsTaken(name, true) && !TitleIsTaken(name, false)) return true;
    return Refuse(L"Group " + name + L" already exists in this group. Please choose another name.", txtItemName);
  }
  if (request_.Mode == kModeChange && request_.Collection->HasChildren(request_.Item->Name())) {
    return Refuse(L"Item " + request_.Item->Caption() + L" containts shortcuts. Only groups can contain shortcuts.",
                  cmbType);
  }
  if (!TitleIsTaken(type == kOpenAll ? kOpenAllTitle : name, false)) return true;
  if (type == kOpenAll) return Refuse(kOneOpenAll, cmbType);
  return Refuse(L"A folder shortcut " + name + L" already exists in this group. Please choose another name.",
                txtItemName);
}

bool frmAddModify::TitleIsTaken(const std::wstring& title, bool group) const {
  const std::wstring name = request_.Item ? request_.Item->Name() : kNoItem;
  return request_.Collection->CaptionExists(title, request_.OwnerName, group, name);
}

bool frmAddModify::Refuse(const std::wstring& text, Control& wrong) {
  app_.platform.dialogs.MessageBoxA(Window(), text, kTitle, kBoxCritical);
  wrong.SetFocus();
  return false;
}

bool frmAddModify::Refuse(const std::wstring& text, TextBox& wrong) {
  Refuse(text, static_cast<Control&>(wrong));
  wrong.SelectAll();
  return false;
}

}  // namespace burrowmark
