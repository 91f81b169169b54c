// The attributes of files and folders that differ from what a file or a folder has by itself.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include "platform/local/registry/kept_text.h"

namespace burrowmark {

// Kept in a text file, one line for each: five letters for read-only, hidden, system, archive and compressed, then the
// path. They aren't kept as mode bits of the disk, which don't bind a privileged user and don't know them all.
// Paths are Windows paths in their shortest spelling; letter case doesn't count.
class AttributeBook {
 public:
  explicit AttributeBook(std::filesystem::path file);

  // The bits; nothing if the path isn't in the book.
  std::optional<std::uint32_t> Find(const std::wstring& path);
  bool Set(const std::wstring& path, std::uint32_t attributes);
  bool Forget(const std::wstring& path);
  // What is known of `from` holds for `to` from now on.
  bool Rename(const std::wstring& from, const std::wstring& to);

 private:
  void Refresh();
  bool Save();

  KeptText kept_;
  std::map<std::wstring, std::uint32_t> attributes_;  // by folded path
};

}  // namespace burrowmark
