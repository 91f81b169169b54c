#include "platform/win32/files/folder_removal.h"

#include <windows.h>

#include <optional>
#include <vector>

#include "platform/win32/files/folder_listing.h"
#include "platform/win32/files/quiet_drives.h"
#include "platform/win32/files/system_path.h"

namespace burrowmark {
namespace {

// The path without "..", "/" and the like, and without a backslash at its end; empty on failure.
std::wstring PlainPath(const std::wstring& path) {
  const DWORD room = ::GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  std::wstring plain(room, L'\0');
  const DWORD length = ::GetFullPathNameW(path.c_str(), room, plain.data(), nullptr);
  plain.resize(length < room ? length : 0);
  while (plain.ends_with(L'\\')) plain.pop_back();
  return plain;
}

// Of a plain path: a drive, or a server and its share.
bool IsRoot(const std::wstring& path) {
  if (!path.starts_with(L"\\\\")) return path.find(L'\\') == std::wstring::npos;
  const std::size_t share = path.find(L'\\', 2);
  return share == std::wstring::npos || path.find(L'\\', share + 1) == std::wstring::npos;
}

bool IsLink(const std::wstring& name) {
  WIN32_FIND_DATAW found = {};
  const HANDLE search = ::FindFirstFileW(name.c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return true;  // nobody knows what it is, so it isn't entered
  ::FindClose(search);
  return IsFolderLink(found);
}

void MakeWritable(const std::wstring& name, std::uint32_t attributes) {
  if ((attributes & kFileReadOnly) != 0) ::SetFileAttributesW(name.c_str(), attributes & ~kFileReadOnly);
}

bool RemoveTree(const std::wstring& path, std::uint32_t attributes) {
  const std::optional<std::wstring> name = SystemPath(path);
  if (!name) return false;
  MakeWritable(*name, attributes);
  if ((attributes & kFileDirectory) == 0) return ::DeleteFileW(name->c_str()) != 0;
  std::vector<FolderEntry> entries;
  if (!IsLink(*name)) ReadFolder(path, entries);
  for (const FolderEntry& entry : entries) RemoveTree(path + L'\\' + entry.name, entry.attributes);
  return ::RemoveDirectoryW(name->c_str()) != 0;
}

}  // namespace

bool RemoveFolder(const std::wstring& path) {
  if (!SystemPath(path)) return false;
  const std::wstring plain = PlainPath(path);
  if (plain.empty() || IsRoot(plain)) return false;
  const QuietDrives quiet;
  const std::optional<std::wstring> name = SystemPath(plain);
  const DWORD attributes = name ? ::GetFileAttributesW(name->c_str()) : INVALID_FILE_ATTRIBUTES;
  if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & kFileDirectory) == 0) return false;
  return RemoveTree(plain, attributes);
}

}  // namespace burrowmark
