#include "core/folder_tests.h"

#include <atomic>
#include <map>
#include <memory>
#include <utility>

#include "core/services.h"
#include "core/text.h"
#include "platform/drive_letter.h"

namespace burrowmark {
namespace {

constexpr wchar_t kSeparators[] = L"\\/";

bool IsSeparator(wchar_t character) { return character == L'\\' || character == L'/'; }

bool IsOnServer(const std::wstring& path) { return path.size() > 2 && IsSeparator(path[0]) && IsSeparator(path[1]); }

bool IsOnDrive(const std::wstring& path) { return path.size() > 1 && path[1] == L':'; }

}  // namespace

bool IsNetworkPlace(FileSystem& files, const std::wstring& path) {
  return IsOnServer(path) || (IsOnDrive(path) && files.GetDriveTypeA(path.substr(0, 2)) == kDriveTypeRemote);
}

std::wstring PlaceOf(const std::wstring& path) {
  if (IsOnServer(path)) return UpperCaseText(L"\\\\" + path.substr(2, path.find_first_of(kSeparators, 2) - 2));
  return IsOnDrive(path) ? UpperCaseText(path.substr(0, 2)) : std::wstring();
}

std::wstring ShareOf(const std::wstring& path) {
  if (!IsOnServer(path)) return path.substr(0, 2) + L"\\";
  const std::size_t behindServer = path.find_first_of(kSeparators, 2);
  return behindServer == std::wstring::npos ? path : path.substr(0, path.find_first_of(kSeparators, behindServer + 1));
}

void FolderTests::AskServers(const std::vector<std::wstring>& paths) {
  std::map<std::wstring, std::shared_ptr<std::atomic<bool>>> servers;
  std::vector<std::function<void()>> works;
  for (const std::wstring& path : paths) {
    if (!IsNetworkPlace(files_, path)) continue;
    std::shared_ptr<std::atomic<bool>>& told = servers[PlaceOf(path)];
    if (told) continue;
    told = std::make_shared<std::atomic<bool>>(false);
    works.emplace_back([told, share = ShareOf(path), &files = files_] {
      files.FolderExists(share);
      *told = true;
    });
  }
  if (!works.empty()) workers_.RunAllWithin(patience_, std::move(works));
  for (const auto& [server, told] : servers) {
    if (!*told) silent_.insert(server);
  }
}

FolderAnswer FolderTests::Test(const std::wstring& path) {
  return files_.DriveExists(path) ? FolderAnswer::kThere : TestContent(path);
}

FolderAnswer FolderTests::TestContent(const std::wstring& path) {
  const auto answer = [](bool there) { return there ? FolderAnswer::kThere : FolderAnswer::kMissing; };
  if (!IsNetworkPlace(files_, path)) return answer(files_.FolderExists(path));
  const auto there = std::make_shared<bool>(false);
  const bool told = Ask(path, [there, path](FileSystem& files) {
    *there = files.FolderExists(path);
    return true;
  });
  return told ? answer(*there) : FolderAnswer::kNoAnswer;
}

bool FolderTests::Ask(const std::wstring& path, const std::function<bool(FileSystem& files)>& question) {
  if (!IsNetworkPlace(files_, path)) return question(files_);
  const std::wstring server = PlaceOf(path);
  const std::wstring share = UpperCaseText(ShareOf(path));
  if (silent_.contains(server) || silent_.contains(share)) return false;
  const auto there = std::make_shared<bool>(false);
  // The file system is there as long as the process.
  const auto work = [there, question, &files = files_] { *there = question(files); };
  if (!workers_.RunWithin(patience_, work)) {
    silent_.insert(server);
    return false;
  }
  if (!*there) silent_.insert(share);
  return *there;
}

}  // namespace burrowmark
