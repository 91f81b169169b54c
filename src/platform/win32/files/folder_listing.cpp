#include "platform/win32/files/folder_listing.h"

#include <windows.h>

#include <optional>
#include <string_view>

#include "platform/win32/files/file_facts.h"
#include "platform/win32/files/quiet_drives.h"
#include "platform/win32/files/system_path.h"

namespace burrowmark {
namespace {

// A running search, with the entry that it stands at.
class Search {
 public:
  // Short names cost the disk a look-up each, so they come with `level` alone.
  Search(const std::wstring& pattern, FINDEX_INFO_LEVELS level)
      : handle_(::FindFirstFileExW(pattern.c_str(), level, &found_, FindExSearchNameMatch, nullptr,
                                   FIND_FIRST_EX_LARGE_FETCH)) {}
  ~Search() {
    if (IsOpen()) ::FindClose(handle_);
  }
  Search(const Search&) = delete;
  Search& operator=(const Search&) = delete;

  bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  bool Next() { return ::FindNextFileW(handle_, &found_) != 0; }
  const WIN32_FIND_DATAW& Found() const { return found_; }

 private:
  WIN32_FIND_DATAW found_ = {};
  HANDLE handle_;
};

bool IsFolder(const std::wstring& name) {
  const DWORD attributes = ::GetFileAttributesW(name.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool IsItselfOrParent(std::wstring_view name) { return name == L"." || name == L".."; }

FolderEntry EntryOf(const WIN32_FIND_DATAW& found) {
  return {found.cFileName, found.dwFileAttributes, IsFolderLink(found)};
}

// False if the folder can't be walked to its end, or `visit` ended it.
template <typename Visit>
bool Walk(const std::wstring& path, FINDEX_INFO_LEVELS level, Visit visit) {
  const std::optional<std::wstring> name = SystemPath(path);
  if (!name) return false;
  const bool isClosed = name->ends_with(L'\\') || name->ends_with(L'/');
  const QuietDrives quiet;
  Search search(*name + (isClosed ? L"*" : L"\\*"), level);
  // Only a root can be without any entry, itself included.
  if (!search.IsOpen()) return ::GetLastError() == ERROR_FILE_NOT_FOUND && IsFolder(*name);
  do {
    if (!IsItselfOrParent(search.Found().cFileName) && !visit(search.Found())) return false;
  } while (search.Next());
  return ::GetLastError() == ERROR_NO_MORE_FILES;
}

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
  const bool whole = Walk(path, FindExInfoBasic, [&entries](const WIN32_FIND_DATAW& found) {
    entries.push_back(EntryOf(found));
    return true;
  });
  if (!whole) entries.clear();
  return whole;
}

bool VisitFolder(const std::wstring& path, const FolderVisitor& visit) {
  return Walk(path, FindExInfoStandard,
              [&visit](const WIN32_FIND_DATAW& found) { return visit(EntryOf(found), FactsOfFound(found)); });
}

}  // namespace burrowmark
