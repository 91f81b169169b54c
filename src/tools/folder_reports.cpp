#include "tools/folder_reports.h"

#include "tools/frm_folder_report.h"

namespace burrowmark {

FolderReports::FolderReports(Application& app) : app_(app) {}

FolderReports::~FolderReports() = default;

// While a box is up it may be one of a wizard that has gone.
void FolderReports::Show(const std::wstring& folder, const FormOwner& owner) {
  if (!app_.Requests.IsBusy()) std::erase_if(wizards_, [](const auto& wizard) { return !wizard->Loaded(); });
  frmFolderReport& wizard = *wizards_.emplace_back(std::make_unique<frmFolderReport>(app_));
  wizard.Load();
  wizard.Init(folder);
  wizard.Show(Modeless, owner);
}

void FolderReports::Unload() {
  for (auto wizard = wizards_.rbegin(); wizard != wizards_.rend(); ++wizard) (*wizard)->Unload();
}

}  // namespace burrowmark
