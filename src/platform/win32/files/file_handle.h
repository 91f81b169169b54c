// An open file of the system.
#pragma once

#include <windows.h>

namespace burrowmark {

class FileHandle {
 public:
  explicit FileHandle(HANDLE handle) : handle_(handle) {}
  ~FileHandle() { Close(); }
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;

  bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  // False for what isn't a file on a disk: the names of devices open too.
  bool IsDiskFile() const { return IsOpen() && ::GetFileType(handle_) == FILE_TYPE_DISK; }
  HANDLE Get() const { return handle_; }
  bool Close() {
    if (!IsOpen()) return false;
    const bool closed = ::CloseHandle(handle_) != 0;
    handle_ = INVALID_HANDLE_VALUE;
    return closed;
  }

 private:
  HANDLE handle_;
};

}  // namespace burrowmark
