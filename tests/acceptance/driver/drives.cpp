// Drives that come and go while programs run: by the service that Wine's own settings use.
#include <windows.h>

#include <winioctl.h>

#include <cstring>
#include <vector>

#include "driver.h"

namespace driver {
namespace {

// Wine's device of drives takes this record, with the path of the host's folder behind it (Wine's ddk/mountmgr.h).
struct UnixDrive {
  ULONG size;
  ULONG type;
  ULONG fileSystem;
  DWORD serial;
  ULONGLONG device;
  WCHAR letter;
  USHORT mountPointOffset;  // 0: no folder
  USHORT deviceOffset;
  USHORT labelOffset;
};

constexpr DWORD kDefineDrive = CTL_CODE('m', 32, METHOD_BUFFERED, FILE_READ_ACCESS | FILE_WRITE_ACCESS);

void Define(WCHAR letter, ULONG type, const std::string& folder) {
  std::vector<char> record(sizeof(UnixDrive) + folder.size() + 1);
  UnixDrive drive{};
  drive.size = static_cast<ULONG>(record.size());
  drive.type = type;
  drive.letter = letter;
  drive.mountPointOffset = folder.empty() ? 0 : sizeof(UnixDrive);
  std::memcpy(record.data(), &drive, sizeof drive);
  std::memcpy(record.data() + sizeof drive, folder.c_str(), folder.size() + 1);
  HANDLE manager =
      CreateFileW(L"\\\\.\\MountPointManager", GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  if (manager == INVALID_HANDLE_VALUE) throw Failure("nobody manages drives here");
  DWORD returned = 0;
  const BOOL done = DeviceIoControl(manager, kDefineDrive, record.data(), drive.size, nullptr, 0, &returned, nullptr);
  CloseHandle(manager);
  if (!done) throw Failure("the drive was refused");
}

}  // namespace

void AddDrive(Words& words) {
  const WCHAR letter = words.Text().at(0);
  Define(letter, DRIVE_FIXED, Utf8(words.Text()));
}

void RemoveDrive(Words& words) { Define(words.Text().at(0), DRIVE_NO_ROOT_DIR, {}); }

}  // namespace driver
