// The names of the eighteen settings, in three groups; their order is that of the registry's values.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace burrowmark {

enum class General : std::uint8_t {
  kAskBeforeDeleting,   // in the editor
  kAskForDeletingDead,  // a shortcut whose folder is gone, when it is opened
  kDialogForOneDroppedPath,
  kCount,
};

enum class Appearance : std::uint8_t {
  kSystemFolders,
  kDrives,
  kHelp,
  kOptions,
  kShortcutIcons,
  kImportantFirst,  // seven rows stand at the top of System Folders
  kRedSelection,
  kCount,
};

enum class Advanced : std::uint8_t {
  kStartWithSession,
  kExplorerVerbs,
  kOnDesktop,  // the tree as a folder with shortcuts, in three places
  kInSendTo,
  kInFavorites,
  kWithSystemFolders,  // they are in those folders too
  kProjectAtClosing,
  kHotKeys,
  kCount,
};

// The values of one group.
template <typename Name>
class SettingValues {
 public:
  explicit SettingValues(bool value) { values_.fill(value); }

  bool& operator[](Name name) { return values_.at(static_cast<std::size_t>(name)); }
  bool operator[](Name name) const { return values_.at(static_cast<std::size_t>(name)); }
  // In the order of their names.
  std::span<bool> All() { return values_; }
  friend bool operator==(const SettingValues&, const SettingValues&) = default;

 private:
  std::array<bool, static_cast<std::size_t>(Name::kCount)> values_{};
};

}  // namespace burrowmark
