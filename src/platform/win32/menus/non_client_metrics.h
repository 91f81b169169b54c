// Fonts of the user's choice at a scale.
#pragma once

#include <windows.h>

#include <cstdint>

#include "platform/win32/system_library.h"

namespace burrowmark {

// `user` is user32.dll. The heights of the menu's and the message's font are those at that scale.
NONCLIENTMETRICSW NonClientMetrics(const SystemLibrary& user, std::int32_t dpi);

}  // namespace burrowmark
