// The eighteen options as the user meets them.
#pragma once

#include <span>

namespace burrowmark {

struct OptionRow {
  const wchar_t* caption;
  bool recommended;  // what the Default button gives
  const wchar_t* description;
};

// A row for each setting of a group, in the order of their names.
std::span<const OptionRow> GeneralRows();
std::span<const OptionRow> AppearanceRows();
std::span<const OptionRow> AdvancedRows();

}  // namespace burrowmark
