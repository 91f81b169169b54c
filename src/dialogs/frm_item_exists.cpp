#include "dialogs/frm_item_exists.h"

namespace burrowmark {
namespace {

constexpr Size kClient{8100, 4455};
constexpr std::int32_t kIconSize = 32;
constexpr std::int32_t kWarningIcon = 14;

std::wstring TimesOf(const clsMenuItem& item, const SystemFacts& system) {
  std::wstring text = L"created: " + DefaultDateText(item.TimeCreated, system);
  if (item.TimeModified != 0) text += L", modified: " + DefaultDateText(item.TimeModified, system);
  return text;
}

}  // namespace

frmItemExists::frmItemExists(Application& app)
    : ProgramForm(app, ProgramWindow::kItemExists, L"frmItemExists", kClient) {
  SetCaption(L"Replace or Rename Existing Item");
  picTitle.SetIcon(kWarningIcon, kIconSize);
  for (Label* label : {&lblTitle, &lblItem1FolderPath, &lblItem2FolderPath}) label->SetUseMnemonic(false);

  cmdRename.SetDefault(true);
  cmdCancel.SetCancel(true);
  cmdReplace.Click = [this] { Answer(Replace); };
  cmdRename.Click = [this] { Answer(Rename); };
  cmdCancel.Click = [this] { Unload(); };
}

void frmItemExists::Init(const clsMenuItem& ExistingItem, const clsMenuItem& NewItem) {
  lblTitle.SetCaption(L"This group already contains an item named " + ExistingItem.Caption() + L".");
  const auto show = [this](const clsMenuItem& item, PictureBox& picture, Label& path, Label& times) {
    picture.SetIcon(item.IconID, kIconSize);
    path.SetCaption(item.FolderPath);
    path.SetToolTipText(item.FolderPath);
    times.SetCaption(TimesOf(item, app_.platform.system));
  };
  show(ExistingItem, picItem1, lblItem1FolderPath, lblItem1Time);
  show(NewItem, picItem2, lblItem2FolderPath, lblItem2Time);
}

void frmItemExists::Form_Load() { Replace = Rename = false; }

void frmItemExists::Answer(bool& answer) {
  answer = true;
  Unload();
}

}  // namespace burrowmark
