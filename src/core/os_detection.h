// Which system this is, and what hangs on it.
#pragma once

#include <cstdint>
#include <string>

#include "platform/system_facts.h"

namespace burrowmark {

// Draw states of a menu entry that count as selected (the bits of winuser.h's ODS_ family): the first up to major
// version 4, the second, with the bit for hidden accelerators, from 5 on.
inline constexpr std::int32_t kSelectedStateOld = 1;
inline constexpr std::int32_t kSelectedStateNew = 257;

struct OsDetection {
  bool NoLowLevelHook = true;  // the system has no low-level keyboard hook
  std::int32_t SelectedState = kSelectedStateOld;
};

OsDetection DetectOs(const SystemFacts& system);

// The system's name as people know it; empty if it doesn't tell its version.
std::wstring GetOSName(const SystemFacts& system);

}  // namespace burrowmark
