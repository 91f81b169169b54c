// The options from the editor: they change its tree at once, and the menu's when it closes.
#include "core/hot_keys.h"
#include "options/frm_options.h"
#include "organize/frm_organize.h"

namespace burrowmark {

// All that is applied in the dialog is one edit.
void frmOrganize::OptionsCommand() {
  const SettingValues<Appearance> before = app_.AC;
  bool changed = false;
  EditTree(L"Options", [&](TreeEdit& edit) {
    frmOptions dialog(app_);
    dialog.Init(Edited, [&](const OptionSteps& steps) {
      edit.Around([&](clsMenuCollection&) { RunOptionSteps(app_, steps, WorkCollection(), dialog); });
      FollowEdit(edit);
      RefreshHotKeys(app_, WorkCollection());
    });
    dialog.Show(Modal, *this);
    changed = dialog.Changed;
  });
  KeepChosenGroups(before);
  if (!changed) return;
  Edited.Changed = true;
  RefreshViews({}, true);
}

// What the editor's tree followed and the menu's didn't: that other tree wasn't the default file's, or went unsaved.
void frmOrganize::BringMenuUpToOptions() {
  const OptionSteps steps = StepsBetween(optionsOfMenu_, TakeOptions(app_));
  if (!steps.None()) RunOptionStepsOnMenu(app_, steps, *this);
}

}  // namespace burrowmark
