// What has to be done to the menu, the disk and the system when options change.
#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <memory>

#include "core/application.h"
#include "ui/form.h"

namespace burrowmark {

// All settings at one moment.
struct OptionValues {
  SettingValues<General> GC;
  SettingValues<Appearance> AC;
  SettingValues<Advanced> ADVC;
};

OptionValues TakeOptions(const Application& app);
void PutOptions(Application& app, const OptionValues& values);

// In the order in which they run.
enum class OptionStep : std::uint8_t {
  kHelpOff,
  kHelpOn,
  kOptionsOff,
  kOptionsOn,
  kSystemFoldersOff,
  kSystemFoldersOn,
  kDrivesOff,
  kDrivesOn,
  kDesktopDelete,  // two for each place that the tree is projected to
  kDesktopProject,
  kSendToDelete,
  kSendToProject,
  kFavoritesDelete,
  kFavoritesProject,
  kVerbsOff,
  kVerbsOn,
  kCount,
};

class OptionSteps {
 public:
  void Mark(OptionStep step) { marked_.set(static_cast<std::size_t>(step)); }
  bool Has(OptionStep step) const { return marked_.test(static_cast<std::size_t>(step)); }
  bool None() const { return marked_.none(); }

 private:
  std::bitset<static_cast<std::size_t>(OptionStep::kCount)> marked_;
};

// What leads from the one to the other. Both of the System Folders' steps mean that what the program made of the group
// is made anew. Hot keys have no step, nor has what is read where it is used.
OptionSteps StepsBetween(const OptionValues& before, const OptionValues& after);

// Runs steps on a tree. The progress window stands in front of `owner` while the tree is projected, and messages run
// then.
void RunOptionSteps(Application& app, const OptionSteps& steps, const std::shared_ptr<clsMenuCollection>& store,
                    const FormOwner& owner);
// The same on a copy of the menu's tree, which then takes that one's place. System Folders that were made anew are
// written to the default file too, if the tree is that file's: it would bring the old ones back. A failure is passed
// over.
void RunOptionStepsOnMenu(Application& app, const OptionSteps& steps, const FormOwner& owner);

}  // namespace burrowmark
