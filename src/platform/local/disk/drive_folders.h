// The drives and network shares of the local machine: folders on the disk below it.
#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/local/disk/drive_book.h"
#include "platform/local/disk/windows_path.h"

namespace burrowmark {

// Drive C is the folder "drives/C" of the machine's folder, \\server\share is "shares/server/share". A drive that was
// taken away, or whose medium is out, keeps its files aside until it comes back.
class DriveFolders {
 public:
  explicit DriveFolders(std::filesystem::path folder);

  // `letter` is a capital. These give false if the disk refuses or there is nothing to do.
  bool Add(wchar_t letter);
  bool Remove(wchar_t letter);
  bool TakeMediumOut(wchar_t letter);
  bool PutMediumIn(wchar_t letter);
  // With a medium in it or not.
  bool Has(wchar_t letter) const;
  bool HasMedium(wchar_t letter) const;
  // What the drive is; a fixed one without a label until it is told otherwise. Kept as its files are.
  DriveFacts FactsOf(wchar_t letter) { return book_.Find(letter); }
  bool SetFacts(wchar_t letter, const DriveFacts& facts) { return book_.Set(letter, facts); }

  // Each time the program asks for what is on the drive, its medium or its server is touched.
  void Touch(wchar_t letter) { ++touches_[letter]; }
  std::size_t MediumTouches(wchar_t letter) const {
    const auto found = touches_.find(letter);
    return found == touches_.end() ? 0 : found->second;
  }

  // The place on the disk of a file or folder that exists. Names are matched without regard to case.
  std::optional<std::filesystem::path> Find(const WindowsPath& path) const;
  // The place where a file or folder of this path is or would be; nothing if the folder it stands in doesn't exist.
  std::optional<std::filesystem::path> Place(const WindowsPath& path) const;
  // Makes the folder with all its parents, and the share if it stands on one. False if a file is in the way or the
  // drive is missing.
  bool MakeFolders(const WindowsPath& path) const;
  // The shares of a server ("\\\\server"), in the order of their names.
  std::vector<std::wstring> SharesOf(std::wstring_view server) const;

 private:
  std::filesystem::path Root(const WindowsPath& path) const;
  bool Shift(const char* from, const char* to, wchar_t letter) const;

  std::filesystem::path folder_;
  DriveBook book_;
  std::map<wchar_t, std::size_t> touches_;
};

}  // namespace burrowmark
