// What the drives of the local machine are.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

#include "platform/file_system.h"
#include "platform/local/registry/kept_text.h"

namespace burrowmark {

struct DriveFacts {
  std::int32_t type = kDriveTypeFixed;
  std::wstring label;  // of the medium
  std::wstring share;  // of a remote drive: "\\server\share"
};

// Kept in a text file, one line for each drive that isn't a fixed one without a label: letter, type, share and label,
// with tabs between them. Letters are capitals.
class DriveBook {
 public:
  explicit DriveBook(std::filesystem::path file);

  DriveFacts Find(wchar_t letter);
  bool Set(wchar_t letter, const DriveFacts& facts);

 private:
  void Refresh();

  KeptText kept_;
  std::map<wchar_t, DriveFacts> facts_;
};

}  // namespace burrowmark
