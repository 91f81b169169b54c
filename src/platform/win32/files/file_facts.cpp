#include "platform/win32/files/file_facts.h"

#include <windows.h>

#include "platform/win32/files/quiet_drives.h"
#include "platform/win32/files/system_path.h"

namespace burrowmark {
namespace {

// A moment that the disk doesn't keep is zero.
std::optional<LocalTime> OnUsersClock(const FILETIME& moment) {
  SYSTEMTIME universal = {};
  SYSTEMTIME local = {};
  if ((moment.dwLowDateTime == 0 && moment.dwHighDateTime == 0) || ::FileTimeToSystemTime(&moment, &universal) == 0 ||
      ::SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local) == 0) {
    return std::nullopt;
  }
  return LocalTime{local.wYear, local.wMonth, local.wDay, local.wHour, local.wMinute, local.wSecond};
}

// The listing's entry and the system's own answer have the same members.
template <typename Data>
FileFacts FactsFrom(const Data& data) {
  FileFacts facts;
  facts.attributes = data.dwFileAttributes;
  if ((facts.attributes & kFileDirectory) == 0) {
    facts.size = (static_cast<std::uint64_t>(data.nFileSizeHigh) << 32U) | data.nFileSizeLow;
  }
  facts.created = OnUsersClock(data.ftCreationTime);
  facts.modified = OnUsersClock(data.ftLastWriteTime);
  facts.accessed = OnUsersClock(data.ftLastAccessTime);
  return facts;
}

}  // namespace

FileFacts FactsOfFound(const WIN32_FIND_DATAW& found) {
  FileFacts facts = FactsFrom(found);
  facts.shortName = found.cAlternateFileName;
  return facts;
}

// A search for the one name brings everything, the short name too, and also of files that the system keeps for itself.
// Where there is nothing to search, in a root for instance, the system is asked without it. A pattern would find
// another file.
std::optional<FileFacts> ReadFileFacts(const std::wstring& path) {
  const std::optional<std::wstring> name = SystemPath(path);
  if (!name || path.find_first_of(L"*?") != std::wstring::npos) return std::nullopt;
  const QuietDrives quiet;
  WIN32_FIND_DATAW found = {};
  if (const HANDLE search = ::FindFirstFileW(name->c_str(), &found); search != INVALID_HANDLE_VALUE) {
    ::FindClose(search);
    return FactsOfFound(found);
  }
  WIN32_FILE_ATTRIBUTE_DATA data = {};
  if (::GetFileAttributesExW(name->c_str(), GetFileExInfoStandard, &data) == 0) return std::nullopt;
  return FactsFrom(data);
}

}  // namespace burrowmark
