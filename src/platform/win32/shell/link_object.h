// Shortcut files by the shell's own object for them.
#pragma once

#include <string>

#include "platform/shell.h"

namespace burrowmark {

// As Shell::ReadShellLink and Shell::WriteShellLink. The thread must be in an apartment.
bool LoadLink(const std::wstring& path, ShellLink& link);
bool SaveLink(const std::wstring& path, const ShellLink& link);

}  // namespace burrowmark
