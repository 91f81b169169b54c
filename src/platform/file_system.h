// Files, folders and drives: the scripting file-system service and what a safe save needs besides.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/system_facts.h"

namespace burrowmark {

// Attribute bits of files and folders (winnt.h).
inline constexpr std::uint32_t kFileReadOnly = 1;
inline constexpr std::uint32_t kFileHidden = 2;
inline constexpr std::uint32_t kFileSystem = 4;
inline constexpr std::uint32_t kFileDirectory = 16;
inline constexpr std::uint32_t kFileArchive = 32;
inline constexpr std::uint32_t kFileCompressed = 2048;

// One entry of a folder.
struct FolderEntry {
  std::wstring name;  // in the letter case of the disk
  std::uint32_t attributes = 0;
  bool isLink = false;  // leads to a folder elsewhere
};

// What the disk knows of a file or a folder. Moments are on the user's clock, and absent where the disk keeps none.
struct FileFacts {
  std::uint64_t size = 0;  // bytes; 0 for a folder
  std::uint32_t attributes = 0;
  std::optional<LocalTime> created;
  std::optional<LocalTime> modified;
  std::optional<LocalTime> accessed;
  std::wstring shortName;  // of eight and three characters; empty where there is none beside the name itself
};

// Takes one entry after the other; false ends the walk.
using FolderVisitor = std::function<bool(const FolderEntry& entry, const FileFacts& facts)>;

// Kinds of drive that GetDriveTypeA tells apart (fileapi.h): what isn't known, a letter without a drive, removable,
// fixed, remote, compact disc, memory disk.
inline constexpr std::int32_t kDriveTypeUnknown = 0;
inline constexpr std::int32_t kDriveTypeNone = 1;
inline constexpr std::int32_t kDriveTypeRemovable = 2;
inline constexpr std::int32_t kDriveTypeFixed = 3;
inline constexpr std::int32_t kDriveTypeRemote = 4;
inline constexpr std::int32_t kDriveTypeCompactDisc = 5;
inline constexpr std::int32_t kDriveTypeMemory = 6;

// A new file that is being written. Each call gives false on failure; whatever was written until then stays.
// Letting go of the object closes the file.
class OutputFile {
 public:
  virtual ~OutputFile() = default;
  virtual bool Write(std::string_view bytes) = 0;
  // Brings everything written so far onto the disk itself.
  virtual bool Flush() = 0;
  virtual bool Close() = 0;
  // From now on the file goes with the object, and with the process, unless Close succeeds first.
  virtual bool DeleteUnlessClosed() = 0;
};

// Paths are absolute: a drive letter with a colon, or two backslashes with server and share. Letter case doesn't count.
// A call never throws and never shows anything; one that can't be carried out gives false or nothing.
class FileSystem {
 public:
  virtual ~FileSystem() = default;

  virtual bool FileExists(const std::wstring& path) = 0;
  virtual bool FolderExists(const std::wstring& path) = 0;
  // True for the letter of a drive that the machine has ("C", "C:" or "C:\"), with a medium in it or not.
  virtual bool DriveExists(const std::wstring& path) = 0;

  // True if both paths lead to one file, whatever way they are spelled; where one isn't there, if they are the same
  // full path without regard to letter case.
  virtual bool IsSameFile(const std::wstring& path, const std::wstring& other) = 0;

  // The attribute bits of a file or a folder; nothing if there is neither.
  virtual std::optional<std::uint32_t> GetFileAttributesA(const std::wstring& path) = 0;
  virtual bool SetFileAttributesA(const std::wstring& path, std::uint32_t attributes) = 0;

  // What the disk knows of a file or a folder; nothing if there is neither.
  virtual std::optional<FileFacts> GetFileFacts(const std::wstring& path) = 0;

  // Reads a whole file. `bytes` is empty on failure.
  virtual bool ReadWholeFile(const std::wstring& path, std::string& bytes) = 0;
  // Makes a file that must not exist yet, and opens it for writing; no object on failure.
  virtual std::unique_ptr<OutputFile> CreateNewFile(const std::wstring& path) = 0;
  // Gives a file another name on the same drive in one step: a file of that name is replaced, unless it is read-only
  // or held open by another program. On failure both are as they were.
  virtual bool MoveFileExA(const std::wstring& from, const std::wstring& to) = 0;
  // Fails on a read-only file and on one that another program holds open.
  virtual bool DeleteFileA(const std::wstring& path) = 0;
  virtual bool CopyFileA(const std::wstring& from, const std::wstring& to, bool failIfExists) = 0;
  // Makes one folder; its parent must exist. A folder that exists already is a failure.
  virtual bool CreateFolder(const std::wstring& path) = 0;
  // Removes a folder with all that is in it, read-only or not; never the root of a drive or a share. Of a link to
  // another folder the link alone goes, and what it leads to stays. What can't be removed is passed over, and the
  // result is false.
  virtual bool DeleteFolder(const std::wstring& path) = 0;

  // What a folder holds, in the disk's order, without "." and "..". False, and nothing, if it can't be listed.
  virtual bool ListFolder(const std::wstring& path, std::vector<FolderEntry>& entries) = 0;

  // Shows `visit` what a folder holds, as ListFolder lists it, with the facts of each entry: in one pass, without
  // opening a file or following a link. False if the folder can't be listed to its end, or `visit` ended it.
  virtual bool WalkFolder(const std::wstring& path, const FolderVisitor& visit) = 0;
  // What the user's system calls files of an extension (".txt"; empty for none), or a folder. The disk isn't asked.
  virtual std::wstring GetTypeName(const std::wstring& extension, bool isFolder) = 0;

  // The machine's drives in the order of their letters, as "x:" with a small letter, with what is known of them without
  // touching a server or a removable medium: "x: [label]" for a fixed drive that has one, "x: [\\server\share]" for a
  // remote drive.
  virtual std::vector<std::wstring> DriveList() = 0;
  // The kind of a drive ("x:", "X:" or "X:\"), without touching its medium.
  virtual std::int32_t GetDriveTypeA(const std::wstring& drive) = 0;
  // The name of the volume in a drive; false without a medium. No box of the system's asks for one.
  virtual bool GetVolumeInformationA(const std::wstring& drive, std::wstring& label) = 0;
};

}  // namespace burrowmark
