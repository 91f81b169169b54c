#include "groups/frm_wizard.h"

#include "core/form_services.h"

namespace burrowmark {
namespace {

constexpr Size kClient{9600, 5235};
constexpr std::int32_t kIconSize = 32;
constexpr std::int32_t kWarningIcon = 14;

struct WizardTexts {
  const wchar_t* title;
  const wchar_t* heading;
  const wchar_t* description;
  const wchar_t* next;
  std::int32_t icon;
};

constexpr WizardTexts kTexts[] = {
    {L"Restore Personal Group Wizard", L"Restore Personal Group", L"Confirm restoring Personal group",
     L"To continue, select how you want to restore Personal group and click Finish.", 2},
    {L"Restore System Folders Group Wizard", L"Restore System Folders Group", L"Confirm restoring System Folders group",
     L"To restore System Folders group, click Finish.", 2},
};

}  // namespace

frmWizard::frmWizard(Application& app) : ProgramForm(app, ProgramWindow::kWizard, L"frmWizard", kClient) {
  for (PictureBox* picture : {&picTop, &picNaslov}) picture->SetBackColor(kColorWindow);
  picInfo.SetIcon(kWarningIcon, kIconSize);
  lblExplanation.SetCaption(
      L"All changes will be erased and the initial group content will be restored. Until the window is closed, Undo "
      L"in the Edit menu takes this back.");
  // There is one page, the last.
  cmdBack.SetEnabled(false);
  cmdNext.SetCaption(L"Finish");
  cmdNext.SetDefault(true);
  cmdCancel.SetCancel(true);
  cmdNext.Click = [this] { Next(); };
  cmdCancel.Click = [this] { Unload(); };
}

void frmWizard::Init(WizardMode mode, const std::wstring& title) {
  const WizardTexts& texts = kTexts[static_cast<std::size_t>(mode)];
  SetCaption(title.empty() ? texts.title : title);
  lblNaslov.SetCaption(texts.heading);
  lblOpis.SetCaption(texts.description);
  lblNext.SetCaption(texts.next);
  picNaslov.SetIcon(texts.icon, kIconSize);
  for (OptionButton* option : {&optChoice0, &optChoice1, &optChoice2, &optChoice3, &optChoice4}) {
    option->SetVisible(mode == WizardMode::kPersonal);
  }
  optChoice4.SetValue(true);
}

PersonalContent frmWizard::GetChoice() const {
  if (optChoice0.Value()) return PersonalContent::kBlank;
  if (optChoice1.Value()) return PersonalContent::kSample;
  if (optChoice2.Value()) return PersonalContent::kDriveFolders;
  if (optChoice3.Value()) return PersonalContent::kDriveGroups;
  return PersonalContent::kRecentFolders;
}

void frmWizard::Next() {
  {
    const Hourglass busy(*this);
    if (Finish) Finish();
  }
  Unload();
}

}  // namespace burrowmark
