// Making the personal group or the System Folders group anew.
#include "core/failure.h"
#include "core/progress.h"
#include "groups/frm_wizard.h"
#include "groups/system_folders.h"
#include "organize/frm_organize.h"
#include "organize/node_keys.h"

namespace burrowmark {

void frmOrganize::ShowRestoreWizard(const std::wstring& group) {
  const bool personal = group == MIT_GROUP_USER;
  if (!personal && group != MIT_PATHS_SYSTEM) return;
  frmWizard wizard(app_);
  wizard.Init(personal ? WizardMode::kPersonal : WizardMode::kSystemFolders);
  wizard.Finish = [this, &wizard, &group, personal] {
    if (!RestoreShortcuts(group, wizard.GetChoice())) return;
    const wchar_t* name = personal ? L"Personal" : L"System Folders";
    app_.platform.dialogs.MessageBoxA(
        wizard.Window(), L"The content of " + std::wstring(name) + L" group has been successfully restored.",
        L"Burrowmark", kBoxInformation);
  };
  wizard.Show(Modal, *this);
}

// What takes long, and may let messages run, comes first; then the group goes and comes back in one step.
bool frmOrganize::RestoreShortcuts(const std::wstring& group, PersonalContent content) {
  const Work work(app_);
  const bool personal = group == MIT_GROUP_USER;
  const bool done = Attempt([&] {
    PersonalEntries entries;
    if (personal) entries = ReadPersonalContent(app_, content);
    EditTree(L"Restore", [&](TreeEdit& edit) {
      edit.Around([&](clsMenuCollection& store) {
        if (personal) {
          RemovePersonalGroup(app_, store);
          SetupPersonalGroup(app_, store, entries);
        } else {
          RemoveSystemFolders(app_, store);
          SetupSystemFolders(app_, store);
        }
      });
    });
    RefreshViews(KeyOfName(group), true);
    return true;
  });
  // Keys and clicks that came meanwhile were for the wizard, not for the box that follows.
  app_.platform.windows.DoEvents();
  return done;
}

}  // namespace burrowmark
