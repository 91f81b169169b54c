#include "core/services.h"

namespace burrowmark {

bool FolderOrDriveExists(FileSystem& files, const std::wstring& path) {
  return files.FolderExists(path) || files.DriveExists(path);
}

bool FileExists(FileSystem& files, const std::wstring& path) { return files.FileExists(path); }

bool IsFileReadOnly(FileSystem& files, const std::wstring& path) {
  return (files.GetFileAttributesA(path).value_or(0) & kFileReadOnly) != 0;
}

}  // namespace burrowmark
