// Absolute Windows paths taken apart, as the system does before it looks anything up.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace burrowmark {

struct WindowsPath {
  std::wstring root;                // "C:" with a capital, or "\\server\share" as it was spelt
  std::vector<std::wstring> names;  // what follows the root, without "." and ".."
  bool folderOnly = false;          // the path ended in a separator, so it can't mean a file

  bool IsRoot() const { return names.empty(); }
  bool OnShare() const { return root.front() == L'\\'; }
  // The folder that the last name stands in; of a root the root itself.
  WindowsPath Parent() const;
  // The path in its shortest spelling: "C:\Users", of a root "C:\".
  std::wstring Text() const;
};

// Nothing if the path isn't absolute, or if a name in it is one that no file can have.
std::optional<WindowsPath> ParseWindowsPath(std::wstring_view path);

}  // namespace burrowmark
