#include "options/option_steps.h"

#include <iterator>
#include <string>

#include "config/config_file.h"
#include "core/progress.h"
#include "core/store_copy.h"
#include "groups/drives.h"
#include "groups/system_folders.h"
#include "menu/menu_setup.h"
#include "options/shell_verbs.h"
#include "projection/organized_folders.h"

namespace burrowmark {
namespace {

// The option that leads to two steps by going on or off.
struct SwitchRow {
  bool (*value)(const OptionValues& values);
  OptionStep off;
  OptionStep on;
};

template <Appearance kName>
bool Value(const OptionValues& values) {
  return values.AC[kName];
}
template <Advanced kName>
bool Value(const OptionValues& values) {
  return values.ADVC[kName];
}

constexpr SwitchRow kSwitches[] = {
    {Value<Appearance::kHelp>, OptionStep::kHelpOff, OptionStep::kHelpOn},
    {Value<Appearance::kOptions>, OptionStep::kOptionsOff, OptionStep::kOptionsOn},
    {Value<Appearance::kSystemFolders>, OptionStep::kSystemFoldersOff, OptionStep::kSystemFoldersOn},
    {Value<Appearance::kDrives>, OptionStep::kDrivesOff, OptionStep::kDrivesOn},
    {Value<Advanced::kOnDesktop>, OptionStep::kDesktopDelete, OptionStep::kDesktopProject},
    {Value<Advanced::kInSendTo>, OptionStep::kSendToDelete, OptionStep::kSendToProject},
    {Value<Advanced::kInFavorites>, OptionStep::kFavoritesDelete, OptionStep::kFavoritesProject},
    {Value<Advanced::kExplorerVerbs>, OptionStep::kVerbsOff, OptionStep::kVerbsOn},
};

constexpr OptionStep StepAt(std::size_t place, bool projects) {
  return static_cast<OptionStep>(static_cast<std::size_t>(OptionStep::kDesktopDelete) + 2 * place + (projects ? 1 : 0));
}
static_assert(StepAt(std::size(kProjectionTargets) - 1, true) == OptionStep::kFavoritesProject);

bool RebuildsSystemFolders(const OptionSteps& steps) {
  return steps.Has(OptionStep::kSystemFoldersOff) && steps.Has(OptionStep::kSystemFoldersOn);
}

void RunMenuSteps(Application& app, const OptionSteps& steps, clsMenuCollection& store) {
  if (steps.Has(OptionStep::kHelpOff)) RemoveHelpEntries(app, store);
  if (steps.Has(OptionStep::kHelpOn)) AddHelpEntries(store);
  if (steps.Has(OptionStep::kOptionsOff)) RemoveOptionsEntry(app, store);
  if (steps.Has(OptionStep::kOptionsOn)) AddOptionsEntry(store);
  if (RebuildsSystemFolders(steps)) {
    RebuildSystemFolders(app, store);
  } else if (steps.Has(OptionStep::kSystemFoldersOff)) {
    RemoveSystemFolders(app, store);
  } else if (steps.Has(OptionStep::kSystemFoldersOn)) {
    SetupSystemFolders(app, store);
  }
  if (steps.Has(OptionStep::kDrivesOff)) RemoveDrives(app, store);
  if (steps.Has(OptionStep::kDrivesOn)) SetupDrives(app, store);
}

// The first projection opens the progress window.
void RunProjections(Application& app, const OptionSteps& steps, const std::shared_ptr<clsMenuCollection>& store,
                    const FormOwner& owner) {
  Work work(app);
  bool shown = false;
  for (std::size_t i = 0; i < std::size(kProjectionTargets); ++i) {
    const ProjectionTarget& target = kProjectionTargets[i];
    if (steps.Has(StepAt(i, false))) DeleteOrganizedFolders(app, target);
    if (!steps.Has(StepAt(i, true))) continue;
    const std::wstring text = std::wstring(L"Saving Organized Folders ") + target.where + L"...";
    if (!shown) {
      work.ShowProgress(owner, L"Saving Changes...", text);
    } else {
      work.SetProgressText(text);
    }
    shown = true;
    RefreshOrganizedFolders(app, target, store, false);
  }
}

}  // namespace

OptionValues TakeOptions(const Application& app) { return {app.GC, app.AC, app.ADVC}; }

void PutOptions(Application& app, const OptionValues& values) {
  app.GC = values.GC;
  app.AC = values.AC;
  app.ADVC = values.ADVC;
}

OptionSteps StepsBetween(const OptionValues& before, const OptionValues& after) {
  OptionSteps steps;
  for (const SwitchRow& row : kSwitches) {
    if (row.value(before) != row.value(after)) steps.Mark(row.value(after) ? row.on : row.off);
  }
  const bool otherOrder = before.AC[Appearance::kImportantFirst] != after.AC[Appearance::kImportantFirst];
  if (otherOrder && after.AC[Appearance::kSystemFolders]) {
    steps.Mark(OptionStep::kSystemFoldersOff);
    steps.Mark(OptionStep::kSystemFoldersOn);
  }
  const bool otherContent =
      otherOrder || before.ADVC[Advanced::kWithSystemFolders] != after.ADVC[Advanced::kWithSystemFolders];
  for (std::size_t i = 0; i < std::size(kProjectionTargets); ++i) {
    if (!otherContent || !after.ADVC[kProjectionTargets[i].option]) continue;
    steps.Mark(StepAt(i, false));
    steps.Mark(StepAt(i, true));
  }
  return steps;
}

void RunOptionSteps(Application& app, const OptionSteps& steps, const std::shared_ptr<clsMenuCollection>& store,
                    const FormOwner& owner) {
  RunMenuSteps(app, steps, *store);
  RunProjections(app, steps, store, owner);
  if (steps.Has(OptionStep::kVerbsOff)) RemoveShellVerbs(app);
  if (steps.Has(OptionStep::kVerbsOn)) AddShellVerbs(app);
}

void RunOptionStepsOnMenu(Application& app, const OptionSteps& steps, const FormOwner& owner) {
  auto copy = std::make_shared<clsMenuCollection>(app.platform.clock);
  CopyStore(app.platform.clock, app.MainStore(), *copy);
  RunOptionSteps(app, steps, copy, owner);
  ReplaceMainStore(app, copy);
  const bool isDefault = app.MainDocument.CurrentConfigFile == app.ConfigFile;
  if (!RebuildsSystemFolders(steps) || !isDefault || ConfigFileWrite(app, app.MainDocument)) return;
  app.platform.dialogs.MessageBoxA(app.MainWindow, SaveErrorText(app, app.ConfigFile), L"Burrowmark", kBoxCritical);
}

}  // namespace burrowmark
