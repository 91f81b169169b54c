// Files and folders of the real system.
#pragma once

#include "platform/file_system.h"

namespace burrowmark {

class Win32FileSystem final : public FileSystem {
 public:
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
};

}  // namespace burrowmark
