// Files and folders of the local machine.
#pragma once

#include <filesystem>
#include <utility>

#include "platform/characters.h"
#include "platform/file_system.h"
#include "platform/local/disk/attribute_book.h"
#include "platform/local/disk/drive_folders.h"
#include "platform/local/disk/windows_path.h"
#include "platform/local/faults.h"

namespace burrowmark {

class LocalFileSystem final : public FileSystem {
 public:
  // `folder` is the machine's; the drives and the faults must outlive this object.
  LocalFileSystem(const std::filesystem::path& folder, DriveFolders& drives, Faults& faults);

  bool FileExists(const std::wstring& path) override;
  bool FolderExists(const std::wstring& path) override;
  bool DriveExists(const std::wstring& path) override;
  bool IsSameFile(const std::wstring& path, const std::wstring& other) override;
  std::optional<std::uint32_t> GetFileAttributesA(const std::wstring& path) override;
  bool SetFileAttributesA(const std::wstring& path, std::uint32_t attributes) override;
  std::optional<FileFacts> GetFileFacts(const std::wstring& path) override;
  bool ReadWholeFile(const std::wstring& path, std::string& bytes) override;
  std::unique_ptr<OutputFile> CreateNewFile(const std::wstring& path) override;
  bool MoveFileExA(const std::wstring& from, const std::wstring& to) override;
  bool DeleteFileA(const std::wstring& path) override;
  bool CopyFileA(const std::wstring& from, const std::wstring& to, bool failIfExists) override;
  bool CreateFolder(const std::wstring& path) override;
  bool DeleteFolder(const std::wstring& path) override;
  bool ListFolder(const std::wstring& path, std::vector<FolderEntry>& entries) override;
  bool WalkFolder(const std::wstring& path, const FolderVisitor& visit) override;
  std::wstring GetTypeName(const std::wstring& extension, bool isFolder) override;
  std::vector<std::wstring> DriveList() override;
  std::int32_t GetDriveTypeA(const std::wstring& drive) override;
  bool GetVolumeInformationA(const std::wstring& drive, std::wstring& label) override;

  // For the families of the machine that keep their things in files. These aren't counted and no fault of a call
  // strikes them; the standing conditions hold.
  bool Load(const std::wstring& path, std::string& bytes);
  // In place of a file that is there.
  bool Store(const std::wstring& path, std::string_view bytes);
  std::optional<std::uint32_t> AttributesOf(const std::wstring& path);
  // Moves a file or a folder into the drive's own folder for such. False if it, or something in it, is held open.
  bool Recycle(const std::wstring& path);
  // The drive that a path is on; a share isn't one.
  DriveFacts FactsOf(const WindowsPath& path) {
    return path.OnShare() ? DriveFacts{kDriveTypeRemote, {}, path.root} : drives_.FactsOf(path.root.front());
  }

  // For tests: the bit that SetFileAttributesA can't set. False if there is nothing at the path.
  bool MarkCompressed(const std::wstring& path);

 private:
  // What stands at a path, or would stand there.
  struct Entry {
    WindowsPath name;
    std::filesystem::path place;
    bool isFile = false;
    bool isFolder = false;
    std::uint32_t attributes = 0;

    bool Exists() const { return isFile || isFolder; }
    bool Has(std::uint32_t attribute) const { return (attributes & attribute) != 0; }
    bool IsSameAs(const Entry& other) const { return EqualIgnoringCase(name.Text(), other.name.Text()); }
  };

  static FileFacts FactsOf(const Entry& entry);
  // Nothing if the folder can't be listed.
  std::optional<std::vector<std::pair<FolderEntry, Entry>>> Inside(const std::wstring& path);
  // What stands at a path that was taken apart, without a touch of its drive being counted.
  Entry Examine(WindowsPath name, std::filesystem::path place);
  // Nothing if the path can't be or the folder that it stands in doesn't exist.
  std::optional<Entry> Look(const std::wstring& path);
  std::optional<Entry> LookForFile(const std::wstring& path);
  bool Held(const Entry& entry) const { return Held(entry.name.Text()); }
  bool Held(const std::wstring& path) const;
  bool MayMakeFileAt(const Entry& entry) const;
  bool MayWriteAt(const Entry& entry) const;
  bool Remember(const Entry& entry, std::uint32_t attributes);
  bool PutBytes(std::string_view bytes, const Entry& target);
  bool RemoveTree(const std::wstring& path, const std::filesystem::path& place);
  // The label of a drive with a medium.
  bool ReadLabel(wchar_t letter, std::wstring& label);

  DriveFolders& drives_;
  Faults& faults_;
  AttributeBook attributes_;
};

}  // namespace burrowmark
