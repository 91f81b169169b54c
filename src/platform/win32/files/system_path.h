// Paths in the form in which they are handed to the system.
#pragma once

#include <optional>
#include <string>

namespace burrowmark {

// `path` as the system's calls take it, with the prefix that lifts the limit of 260 characters if it needs one.
// Nothing if the path isn't absolute or has a NUL in it, behind which the system wouldn't read on.
std::optional<std::wstring> SystemPath(const std::wstring& path);

}  // namespace burrowmark
