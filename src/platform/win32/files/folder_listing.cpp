#include "platform/win32/files/folder_listing.h"

#include <windows.h>

#include <optional>

#include "platform/win32/files/quiet_drives.h"
#include "platform/win32/files/system_path.h"

namespace burrowmark {
namespace {

// A running search, with the entry that it stands at.
class Search {
 public:
  explicit Search(const std::wstring& pattern)
      : handle_(::FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &found_, FindExSearchNameMatch, nullptr,
                                   FIND_FIRST_EX_LARGE_FETCH)) {}
  ~Search() {
    if (IsOpen()) ::FindClose(handle_);
  }
  Search(const Search&) = delete;
  Search& operator=(const Search&) = delete;

  bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  bool Next() { return ::FindNextFileW(handle_, &found_) != 0; }
  FolderEntry Entry() const { return {found_.cFileName, found_.dwFileAttributes, IsFolderLink(found_)}; }

 private:
  WIN32_FIND_DATAW found_ = {};
  HANDLE handle_;
};

bool IsFolder(const std::wstring& name) {
  const DWORD attributes = ::GetFileAttributesW(name.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool IsItselfOrParent(const std::wstring& name) { return name == L"." || name == L".."; }

}  // namespace

// The system marks other folders in the same way, those that are kept in a cloud for instance; what is in them is
// theirs.
bool IsFolderLink(const WIN32_FIND_DATAW& found) {
  constexpr DWORD kLinkedFolder = FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DIRECTORY;
  if ((found.dwFileAttributes & kLinkedFolder) != kLinkedFolder) return false;
  return found.dwReserved0 == 0 || IsReparseTagNameSurrogate(found.dwReserved0);
}

bool ReadFolder(const std::wstring& path, std::vector<FolderEntry>& entries) {
  entries.clear();
  const std::optional<std::wstring> name = SystemPath(path);
  if (!name) return false;
  const bool isClosed = name->ends_with(L'\\') || name->ends_with(L'/');
  const QuietDrives quiet;
  Search search(*name + (isClosed ? L"*" : L"\\*"));
  // Only a root can be without any entry, itself included.
  if (!search.IsOpen()) return ::GetLastError() == ERROR_FILE_NOT_FOUND && IsFolder(*name);
  do {
    FolderEntry entry = search.Entry();
    if (!IsItselfOrParent(entry.name)) entries.push_back(std::move(entry));
  } while (search.Next());
  if (::GetLastError() == ERROR_NO_MORE_FILES) return true;
  entries.clear();
  return false;
}

}  // namespace burrowmark
