// What the local machine needs of the disk below it and the standard library doesn't offer.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace burrowmark {

// Names on the disk are UTF-8.
std::filesystem::path DiskName(std::wstring_view name);
std::wstring NameFromDisk(const std::filesystem::path& path);

// False if the file can't be read as a whole; `bytes` is empty then.
bool ReadDiskFile(const std::filesystem::path& path, std::string& bytes);

// Size and moments of what stands there, by the clock of the disk below, whatever the machine's own clock shows.
FileFacts DiskFacts(const std::filesystem::path& path);

// A new file that is open for writing, until it is closed or the object goes.
class DiskFile {
 public:
  // Makes the file, which must not exist yet; IsOpen tells whether that went well.
  explicit DiskFile(const std::filesystem::path& path);
  ~DiskFile();
  DiskFile(const DiskFile&) = delete;
  DiskFile& operator=(const DiskFile&) = delete;

  bool IsOpen() const { return descriptor_ >= 0; }
  bool Write(std::string_view bytes);
  // Waits until the disk itself has everything.
  bool Flush();
  bool Close();

 private:
  int descriptor_ = -1;
};

}  // namespace burrowmark
