#include "platform/win32/files/system_path.h"

#include <windows.h>

namespace burrowmark {
namespace {

// From this length on a path gets the prefix: a folder's path must leave room for a short file name within MAX_PATH.
constexpr std::size_t kLongPath = MAX_PATH - 12;
constexpr wchar_t kLongPrefix[] = L"\\\\?\\";
constexpr wchar_t kLongSharePrefix[] = L"\\\\?\\UNC\\";

bool IsSeparator(wchar_t c) { return c == L'\\' || c == L'/'; }

bool IsLetter(wchar_t c) { return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z'); }

bool OnDrive(const std::wstring& path) {
  return path.size() >= 2 && IsLetter(path[0]) && path[1] == L':' && (path.size() == 2 || IsSeparator(path[2]));
}

bool OnShare(const std::wstring& path) {
  return path.size() > 2 && IsSeparator(path[0]) && IsSeparator(path[1]) && path[2] != L'?' && path[2] != L'.';
}

// Behind the prefix the system takes a path as it stands, so "..", "/" and the like must be gone before.
std::wstring FullPath(const std::wstring& path) {
  const DWORD room = ::GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  std::wstring full(room, L'\0');
  const DWORD length = ::GetFullPathNameW(path.c_str(), room, full.data(), nullptr);
  full.resize(length < room ? length : 0);
  return full;
}

}  // namespace

std::optional<std::wstring> SystemPath(const std::wstring& path) {
  const bool onDrive = OnDrive(path);
  if ((!onDrive && !OnShare(path)) || path.find(L'\0') != std::wstring::npos) return std::nullopt;
  if (onDrive && path.size() == 2) return path + L'\\';  // without it the drive's current folder would be meant
  if (path.size() < kLongPath) return path;
  const std::wstring full = FullPath(path);
  if (full.empty()) return std::nullopt;
  return onDrive ? kLongPrefix + full : kLongSharePrefix + full.substr(2);
}

}  // namespace burrowmark
