#include "platform/win32/files/drive_facts.h"

#include <windows.h>
// It wants windows.h ahead of it.
#include <winnetwk.h>

#include "platform/characters.h"
#include "platform/file_system.h"
#include "platform/win32/files/quiet_drives.h"
#include "platform/win32/system_library.h"

namespace burrowmark {
namespace {

static_assert(kDriveTypeUnknown == DRIVE_UNKNOWN && kDriveTypeNone == DRIVE_NO_ROOT_DIR);
static_assert(kDriveTypeRemovable == DRIVE_REMOVABLE && kDriveTypeFixed == DRIVE_FIXED);
static_assert(kDriveTypeRemote == DRIVE_REMOTE && kDriveTypeCompactDisc == DRIVE_CDROM);
static_assert(kDriveTypeMemory == DRIVE_RAMDISK);

constexpr DWORD kUsualShare = MAX_PATH;

std::wstring RootOf(wchar_t letter) { return {letter, L':', L'\\'}; }

// The share that a drive was connected to, as this machine remembers it: the server isn't asked. Empty if none is
// known.
std::wstring ShareOf(wchar_t letter) {
  // Loaded with the first drive of a network.
  static const SystemLibrary library(L"mpr.dll");
  const auto connection = library.Find<decltype(&::WNetGetConnectionW)>("WNetGetConnectionW");
  if (connection == nullptr) return {};
  const std::wstring drive = {letter, L':'};
  std::wstring share(kUsualShare, L'\0');
  auto room = static_cast<DWORD>(share.size());
  DWORD result = connection(drive.c_str(), share.data(), &room);
  if (result == ERROR_MORE_DATA) {
    share.resize(room);
    result = connection(drive.c_str(), share.data(), &room);
  }
  // A drive that was connected before and isn't now keeps its share.
  if (result != NO_ERROR && result != ERROR_CONNECTION_UNAVAIL) return {};
  share.resize(share.find(L'\0') == std::wstring::npos ? 0 : share.find(L'\0'));
  return share;
}

}  // namespace

std::int32_t DriveType(wchar_t letter) { return static_cast<std::int32_t>(::GetDriveTypeW(RootOf(letter).c_str())); }

bool VolumeLabel(wchar_t letter, std::wstring& label) {
  const QuietDrives quiet;
  wchar_t text[MAX_PATH + 1] = {};
  if (::GetVolumeInformationW(RootOf(letter).c_str(), text, MAX_PATH + 1, nullptr, nullptr, nullptr, nullptr, 0) == 0) {
    return false;
  }
  label = text;
  return true;
}

std::vector<std::wstring> ListDrives() {
  std::vector<std::wstring> list;
  const DWORD present = ::GetLogicalDrives();
  for (wchar_t letter = L'A'; letter <= L'Z'; ++letter) {
    if (((present >> (letter - L'A')) & 1U) == 0) continue;
    const std::int32_t type = DriveType(letter);
    std::wstring note;
    if (type == kDriveTypeFixed) VolumeLabel(letter, note);
    if (type == kDriveTypeRemote) note = ShareOf(letter);
    list.push_back({LowerCase(letter), L':'});
    if (!note.empty()) list.back() += L" [" + note + L"]";
  }
  return list;
}

}  // namespace burrowmark
