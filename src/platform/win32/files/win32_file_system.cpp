#include "platform/win32/files/win32_file_system.h"

#include <windows.h>

#include <algorithm>
#include <new>
#include <stdexcept>
#include <tuple>

#include "platform/characters.h"
#include "platform/drive_letter.h"
#include "platform/win32/files/drive_facts.h"
#include "platform/win32/files/file_facts.h"
#include "platform/win32/files/file_handle.h"
#include "platform/win32/files/folder_listing.h"
#include "platform/win32/files/folder_removal.h"
#include "platform/win32/files/quiet_drives.h"
#include "platform/win32/files/system_path.h"
#include "platform/win32/files/type_name.h"

namespace burrowmark {
namespace {

constexpr DWORD kReadStep = 1U << 16;
constexpr std::size_t kLargestWrite = 1U << 20;

bool IsFolder(std::uint32_t attributes) { return (attributes & kFileDirectory) != 0; }

class Win32OutputFile final : public OutputFile {
 public:
  explicit Win32OutputFile(const std::wstring& path)
      : file_(::CreateFileW(path.c_str(), GENERIC_WRITE | DELETE, FILE_SHARE_READ, nullptr, CREATE_NEW,
                            FILE_ATTRIBUTE_NORMAL, nullptr)) {}

  bool IsDiskFile() const { return file_.IsDiskFile(); }

  bool Write(std::string_view bytes) override {
    const QuietDrives quiet;
    while (file_.IsOpen() && !bytes.empty()) {
      const auto step = static_cast<DWORD>(std::min(bytes.size(), kLargestWrite));
      DWORD written = 0;
      if (::WriteFile(file_.Get(), bytes.data(), step, &written, nullptr) == 0 || written == 0) return false;
      bytes.remove_prefix(written);
    }
    return file_.IsOpen();
  }

  bool Flush() override {
    const QuietDrives quiet;
    return file_.IsOpen() && ::FlushFileBuffers(file_.Get()) != 0;
  }

  bool Close() override {
    const bool kept = !goes_ || SetDeleted(false);
    return file_.Close() && kept;
  }

  bool DeleteUnlessClosed() override {
    goes_ = SetDeleted(true);
    return goes_;
  }

 private:
  // What the system does with the file when its last handle is closed, by whomever.
  bool SetDeleted(bool deleted) {
    FILE_DISPOSITION_INFO disposition = {};
    disposition.DeleteFile = deleted ? TRUE : FALSE;
    return file_.IsOpen() &&
           ::SetFileInformationByHandle(file_.Get(), FileDispositionInfo, &disposition, sizeof disposition) != 0;
  }

  FileHandle file_;
  bool goes_ = false;
};

bool ReadAll(const FileHandle& file, std::string& bytes) {
  for (;;) {
    const std::size_t before = bytes.size();
    bytes.resize(before + kReadStep);
    DWORD got = 0;
    const bool done = ::ReadFile(file.Get(), bytes.data() + before, kReadStep, &got, nullptr) != 0;
    bytes.resize(before + (done ? got : 0));
    if (!done || got == 0) return done;
  }
}

// What the system knows a file by, whatever its path; none for a file that isn't there.
std::optional<std::tuple<DWORD, DWORD, DWORD>> IdentityOf(const std::wstring& path) {
  const std::optional<std::wstring> name = SystemPath(path);
  if (!name) return std::nullopt;
  const QuietDrives quiet;
  constexpr DWORD kSharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const FileHandle file(::CreateFileW(name->c_str(), 0, kSharing, nullptr, OPEN_EXISTING, 0, nullptr));
  BY_HANDLE_FILE_INFORMATION information = {};
  if (!file.IsDiskFile() || ::GetFileInformationByHandle(file.Get(), &information) == FALSE) return std::nullopt;
  return std::tuple(information.dwVolumeSerialNumber, information.nFileIndexHigh, information.nFileIndexLow);
}

std::wstring FullPath(const std::wstring& path) {
  std::wstring full(path.size() + MAX_PATH, L'\0');
  const DWORD length = ::GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
  if (length == 0 || length >= full.size()) return path;
  full.resize(length);
  return full;
}

}  // namespace

std::optional<std::uint32_t> Win32FileSystem::GetFileAttributesA(const std::wstring& path) {
  const std::optional<std::wstring> name = SystemPath(path);
  if (!name) return std::nullopt;
  const QuietDrives quiet;
  const DWORD attributes = ::GetFileAttributesW(name->c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return std::nullopt;
  return attributes;
}

bool Win32FileSystem::IsSameFile(const std::wstring& path, const std::wstring& other) {
  const auto one = IdentityOf(path);
  const auto two = IdentityOf(other);
  if (one && two) return *one == *two;
  return !one && !two && EqualIgnoringCase(FullPath(path), FullPath(other));
}

bool Win32FileSystem::FileExists(const std::wstring& path) {
  const std::optional<std::uint32_t> attributes = GetFileAttributesA(path);
  return attributes && !IsFolder(*attributes);
}

bool Win32FileSystem::FolderExists(const std::wstring& path) {
  const std::optional<std::uint32_t> attributes = GetFileAttributesA(path);
  return attributes && IsFolder(*attributes);
}

bool Win32FileSystem::DriveExists(const std::wstring& path) {
  const std::optional<wchar_t> letter = DriveLetter(path);
  return letter && ((::GetLogicalDrives() >> (*letter - L'A')) & 1U) != 0;
}

bool Win32FileSystem::SetFileAttributesA(const std::wstring& path, std::uint32_t attributes) {
  const std::optional<std::wstring> name = SystemPath(path);
  const QuietDrives quiet;
  return name && ::SetFileAttributesW(name->c_str(), attributes & ~kFileDirectory) != 0;
}

std::optional<FileFacts> Win32FileSystem::GetFileFacts(const std::wstring& path) { return ReadFileFacts(path); }

bool Win32FileSystem::ReadWholeFile(const std::wstring& path, std::string& bytes) {
  bytes.clear();
  const std::optional<std::wstring> name = SystemPath(path);
  if (!name) return false;
  const QuietDrives quiet;
  const FileHandle file(::CreateFileW(name->c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                      OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
  if (!file.IsDiskFile()) return false;
  try {
    if (ReadAll(file, bytes)) return true;
  } catch (const std::bad_alloc&) {
  } catch (const std::length_error&) {
  }
  bytes.clear();  // it didn't come to an end, or it is larger than the memory
  return false;
}

std::unique_ptr<OutputFile> Win32FileSystem::CreateNewFile(const std::wstring& path) {
  const std::optional<std::wstring> name = SystemPath(path);
  if (!name) return nullptr;
  const QuietDrives quiet;
  auto file = std::make_unique<Win32OutputFile>(*name);
  if (!file->IsDiskFile()) return nullptr;
  return file;
}

bool Win32FileSystem::MoveFileExA(const std::wstring& from, const std::wstring& to) {
  const std::optional<std::wstring> oldName = SystemPath(from);
  const std::optional<std::wstring> newName = SystemPath(to);
  if (!oldName || !newName || !FileExists(from)) return false;
  // The system leaves it to its file systems whether a read-only file is replaced, so it is asked for here.
  const std::uint32_t target = GetFileAttributesA(to).value_or(0);
  if ((target & kFileReadOnly) != 0 && !EqualIgnoringCase(from, to)) return false;
  const QuietDrives quiet;
  return ::MoveFileExW(oldName->c_str(), newName->c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

bool Win32FileSystem::DeleteFileA(const std::wstring& path) {
  const std::optional<std::wstring> name = SystemPath(path);
  const QuietDrives quiet;
  return name && ::DeleteFileW(name->c_str()) != 0;
}

bool Win32FileSystem::CopyFileA(const std::wstring& from, const std::wstring& to, bool failIfExists) {
  const std::optional<std::wstring> source = SystemPath(from);
  const std::optional<std::wstring> target = SystemPath(to);
  const QuietDrives quiet;
  return source && target && ::CopyFileW(source->c_str(), target->c_str(), failIfExists ? TRUE : FALSE) != 0;
}

bool Win32FileSystem::CreateFolder(const std::wstring& path) {
  const std::optional<std::wstring> name = SystemPath(path);
  const QuietDrives quiet;
  return name && ::CreateDirectoryW(name->c_str(), nullptr) != 0;
}

bool Win32FileSystem::DeleteFolder(const std::wstring& path) { return RemoveFolder(path); }

bool Win32FileSystem::ListFolder(const std::wstring& path, std::vector<FolderEntry>& entries) {
  return ReadFolder(path, entries);
}

bool Win32FileSystem::WalkFolder(const std::wstring& path, const FolderVisitor& visit) {
  return VisitFolder(path, visit);
}

std::wstring Win32FileSystem::GetTypeName(const std::wstring& extension, bool isFolder) {
  return ReadTypeName(extension, isFolder);
}

std::vector<std::wstring> Win32FileSystem::DriveList() { return ListDrives(); }

std::int32_t Win32FileSystem::GetDriveTypeA(const std::wstring& drive) {
  const std::optional<wchar_t> letter = DriveLetter(drive);
  return letter && drive.size() > 1 ? DriveType(*letter) : kDriveTypeNone;
}

bool Win32FileSystem::GetVolumeInformationA(const std::wstring& drive, std::wstring& label) {
  label.clear();
  const std::optional<wchar_t> letter = DriveLetter(drive);
  return letter && drive.size() > 1 && VolumeLabel(*letter, label);
}

}  // namespace burrowmark
