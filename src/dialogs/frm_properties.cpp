#include "dialogs/frm_properties.h"

#include <utility>

#include "core/hot_keys.h"
#include "core/program_dialogs.h"
#include "core/regional_formats.h"
#include "core/store_copy.h"
#include "dialogs/frm_add_modify.h"

namespace burrowmark {
namespace {

constexpr Size kClient{6600, 5925};
constexpr std::int32_t kIconSize = 32;
constexpr wchar_t kTitle[] = L"Burrowmark";

// Groups that can't be changed.
constexpr const wchar_t* kFixedGroups[] = {kRootOwner, MIT_GROUP_USER, MIT_PATHS_DRIVES, MIT_PATHS_SYSTEM};

bool IsFixedGroup(const clsMenuItem& item) {
  for (const wchar_t* name : kFixedGroups) {
    if (item.Name() == name) return true;
  }
  return false;
}

ItemRef CopyOf(const Clock& clock, const clsMenuItem& item) {
  auto copy = std::make_shared<clsMenuItem>(clock);
  CloneMenuItem(item, *copy);
  return copy;
}

// Other types of item tell their own short description.
std::wstring TypeText(const clsMenuItem& item) {
  if (item.SubMenu()) return L"Group";
  if (item.ItemType == MIT_OPENALL) return L"Open-All";
  if (item.ItemType != MIT_PATH) return item.Description;
  return item.OpenType == MIT_PATH_EXPLORER ? L"Folder Shortcut (double pane)" : L"Folder Shortcut (single pane)";
}

std::wstring TimeText(Date time, const SystemFacts& system) {
  return time == 0 ? L"Never" : FormatLongDateTime(time, system);
}

}  // namespace

frmProperties::frmProperties(Application& app)
    : ProgramForm(app, ProgramWindow::kProperties, L"frmProperties", kClient) {
  SetCaption(L"Properties");
  for (Label* label : {&lblName, &lblPath}) label->SetUseMnemonic(false);
  // As the system draws the page of a tab.
  for (PictureBox* picture : {&picPage, &picIcon}) picture->SetBackColor(kColorWindow);
  txtLocation.SetReadOnly(true);
  cmdFinish.SetDefault(true);
  cmdCancel.SetCancel(true);
  cmdApply.SetEnabled(false);
  cmdFinish.SetToolTipText(L"Accept changes");
  cmdCancel.SetToolTipText(L"Don't accept changes");
  cmdApply.SetToolTipText(L"Apply changes");
  cmdChange.SetToolTipText(L"Change");
  cmdCopyToClipboard.SetToolTipText(L"Copy target location to Clipboard");

  cmdChange.Click = [this] { Change(); };
  cmdCopyToClipboard.Click = [this] { CopyTarget(); };
  cmdFinish.Click = [this] { Finish(); };
  cmdCancel.Click = [this] { Unload(); };
  cmdApply.Click = [this] { ApplyNow(); };
}

void frmProperties::Init(const clsMenuItem& item, std::shared_ptr<clsMenuCollection> collection) {
  Item_ = CopyOf(app_.platform.clock, item);
  Collection_ = std::move(collection);
  cmdChange.SetEnabled(!IsFixedGroup(item));
  Fill();
}

void frmProperties::Form_Resize() { picPage.SetPlace(SSTab1.AreaBelow()); }

void frmProperties::Form_Unload(bool&) {
  if (Cancelled && Applied_) {
    Cancelled = false;
    Item_ = Applied_;
    HotKeyHolder = nullptr;
  }
}

void frmProperties::Fill() {
  const SystemFacts& system = app_.platform.system;
  picIcon.SetIcon(Item_->IconID, kIconSize);
  lblName.SetCaption(Item_->Caption());
  lblType.SetCaption(TypeText(*Item_));
  txtLocation.SetText(Item_->ItemLocation);
  lblPath.SetCaption(Item_->FolderPath);
  lblPath.SetToolTipText(Item_->FolderPath);
  lblKeyboard.SetCaption(HotKeyText(Item_->KeyboardCode));
  lblTimeCreated.SetCaption(TimeText(Item_->TimeCreated, system));
  lblTimeModified.SetCaption(TimeText(Item_->TimeModified, system));
  lblTimeAccessed.SetCaption(Item_->SubMenu() ? std::wstring() : TimeText(Item_->TimeAccessed, system));
}

void frmProperties::Change() {
  frmAddModify dialog(app_);
  dialog.Init({.Mode = 1,
               .Location = Item_->ItemLocation,
               .Item = Item_,
               .OwnerName = Item_->OwnerName(),
               .Collection = Collection_});
  dialog.Show(Modal, *this);
  if (dialog.Cancelled) return;
  Item_->ModifyMenuItem(ChangeOf(dialog.GetParameters()));
  if (dialog.HotKeyHolder) HotKeyHolder = dialog.HotKeyHolder;
  Fill();
  cmdApply.SetEnabled(true);
}

void frmProperties::CopyTarget() {
  if (Item_->FolderPath.empty()) return app_.platform.windows.Beep();
  const bool copied = app_.platform.clipboard.SetText(Item_->FolderPath);
  app_.platform.dialogs.MessageBoxA(Window(), copied ? L"The data has been copied to the Clipboard." : kClipboardFailed,
                                    kTitle, copied ? kBoxInformation : kBoxCritical);
}

void frmProperties::ApplyNow() {
  cmdApply.SetEnabled(false);
  ForgetUnusedHolder();
  Applied_ = CopyOf(app_.platform.clock, *Item_);
  if (Apply) Apply(Item_);
  HotKeyHolder = nullptr;
}

void frmProperties::Finish() {
  ForgetUnusedHolder();
  Cancelled = false;
  Unload();
}

// A later change may have given the copy another key.
void frmProperties::ForgetUnusedHolder() {
  if (HotKeyHolder && HotKeyHolder->KeyboardCode != Item_->KeyboardCode) HotKeyHolder = nullptr;
}

}  // namespace burrowmark
