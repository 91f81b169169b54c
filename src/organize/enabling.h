// Which commands of the editor can be used on what is selected.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>

namespace burrowmark {

// Menus that are set to what is selected when they open.
enum class MenuKind : std::uint8_t { kPopup, kPopup2, kEdit = 4, kView };

// Kinds of target as the commands tell them apart.
enum class TargetKind : std::uint8_t {
  kOrdinary,
  kGenerated,  // System Folders, Drives
  kPersonal,   // the personal group
  kRoot,       // the root of the tree, or nothing
};

TargetKind KindOfTarget(const std::wstring& key);

// A menu entry or a button, and for each kind of target whether it is on.
struct EnablingRow {
  const wchar_t* name;
  std::array<bool, 4> on;

  bool IsOnFor(TargetKind kind) const { return on.at(static_cast<std::size_t>(kind)); }
};

std::span<const EnablingRow> PopupEnabling();
std::span<const EnablingRow> EditEnabling();
std::span<const EnablingRow> ViewEnabling();
// Without Paste, which also needs something to paste.
std::span<const EnablingRow> ToolbarEnabling();

}  // namespace burrowmark
