// Whether folders are there, asked so that a server that is away holds nobody up for long.
#pragma once

#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "platform/platform.h"

namespace burrowmark {

enum class FolderAnswer : std::uint8_t { kThere, kMissing, kNoAnswer };

// The path stands on a server: its own, or that of the drive that it names. No server is asked.
bool IsNetworkPlace(FileSystem& files, const std::wstring& path);
// What a path stands on, in capitals: "\\\\SERVER", or the drive "X:"; empty for a path that names neither.
std::wstring PlaceOf(const std::wstring& path);

// "\\server\share" of a path on a server, "X:\" of one on a drive, in the letter case of the path.
std::wstring ShareOf(const std::wstring& path);

// For the paths of one task. A folder on the machine itself is asked for directly. One on a server has some seconds; a
// server that didn't answer in that time isn't asked again by this object.
class FolderTests {
 public:
  // What the platform refers to must outlive this object. `patience` is what a server gets, in milliseconds.
  explicit FolderTests(const Platform& platform, std::int32_t patience = 3000)
      : files_(platform.files), workers_(platform.workers), patience_(patience) {}

  // Asks the servers of all these paths at the same time, so that those that are away cost their time once.
  void AskServers(const std::vector<std::wstring>& paths);
  // Of a folder, or of a drive with a medium in it or not.
  FolderAnswer Test(const std::wstring& path);
  // Of a folder that can be looked into now: not of a drive without a medium, nor of one whose server is away.
  FolderAnswer TestContent(const std::wstring& path);
  // Runs a question about a path: as work of platform/workers.h where that is on a server, so that it may outlive this
  // call. The question's own false: its share or drive isn't there, and isn't asked again. False without an answer.
  bool Ask(const std::wstring& path, const std::function<bool(FileSystem& files)>& question);

 private:
  FileSystem& files_;
  Workers& workers_;
  std::int32_t patience_;
  std::set<std::wstring> silent_;  // servers, shares and drives that aren't asked any more, in capitals
};

}  // namespace burrowmark
