// The menus of the editor's window.
#pragma once

#include <cstdint>
#include <span>

#include "ui/menu.h"

namespace burrowmark {

// Menus that are set to what is selected when they open.
enum class MenuKind : std::uint8_t { kPopup, kPopup2, kTools, kEdit = 4, kView };

std::span<const MenuRow> OrganizeMenuRows();

}  // namespace burrowmark
