// Whether folders are there, asked so that a server that is away holds nobody up for long.
#pragma once

#include <cstdint>
#include <set>
#include <string>

#include "platform/platform.h"

namespace burrowmark {

enum class FolderAnswer : std::uint8_t { kThere, kMissing, kNoAnswer };

// The path stands on a server: its own, or that of the drive that it names. No server is asked.
bool IsNetworkPlace(FileSystem& files, const std::wstring& path);
// What a path stands on, in capitals: "\\\\SERVER", or the drive "X:"; empty for a path that names neither.
std::wstring PlaceOf(const std::wstring& path);

// For the paths of one task. A folder on the machine itself is asked for directly. One on a server has three seconds;
// a server that didn't answer in that time isn't asked again by this object.
class FolderTests {
 public:
  // What the platform refers to must outlive this object.
  explicit FolderTests(const Platform& platform) : files_(platform.files), workers_(platform.workers) {}

  // Of a folder, or of a drive with a medium in it or not.
  FolderAnswer Test(const std::wstring& path);

 private:
  FileSystem& files_;
  Workers& workers_;
  std::set<std::wstring> silent_;  // servers and drives that didn't answer, in capitals
};

}  // namespace burrowmark
