// The bytes of shortcut files, in the documented format of the shell's.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/local/disk/windows_path.h"
#include "platform/shell.h"
#include "platform/system_facts.h"

namespace burrowmark {

// Whatever the bytes. False, with `link` as it was, if they are no shortcut file or it names no file. `facts` knows
// the page of texts that aren't Unicode.
bool ReadLinkFile(std::string_view bytes, const SystemFacts& facts, ShellLink& link);

// The volume that a link's target is on.
struct LinkVolume {
  std::int32_t type = 0;  // as GetDriveTypeA has it
  std::wstring label;
};

// `target` is the link's taken apart, `attributes` are those of what is there, 0 if nothing is.
std::string BuildLinkFile(const ShellLink& link, const WindowsPath& target, std::uint32_t attributes,
                          const LinkVolume& volume, const SystemFacts& facts);

}  // namespace burrowmark
