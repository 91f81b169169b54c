#include "platform/local/disk/drive_folders.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "platform/characters.h"
#include "platform/local/disk/disk.h"

namespace burrowmark {
namespace {

namespace fs = std::filesystem;

constexpr char kPresent[] = "drives";
constexpr char kWithoutMedium[] = "drives without medium";
constexpr char kAway[] = "drives taken away";
constexpr char kShares[] = "shares";

bool Exists(const fs::path& path) {
  std::error_code error;
  return fs::exists(path, error);
}

bool IsFolder(const fs::path& path) {
  std::error_code error;
  return fs::is_directory(path, error);
}

// The entry of this name: looked up as spelt first, which spares reading the folder.
std::optional<fs::path> FindChild(const fs::path& folder, std::wstring_view name) {
  fs::path spelt = folder / DiskName(name);
  if (Exists(spelt)) return spelt;
  std::error_code error;
  for (fs::directory_iterator it(folder, error); !error && it != fs::directory_iterator(); it.increment(error)) {
    if (EqualIgnoringCase(NameFromDisk(it->path().filename()), name)) return it->path();
  }
  return std::nullopt;
}

// Server and share of a root, which is "\\server\share".
std::pair<std::wstring_view, std::wstring_view> ServerAndShare(std::wstring_view root) {
  root.remove_prefix(2);
  const std::size_t end = root.find(L'\\');
  return {root.substr(0, end), root.substr(end + 1)};
}

}  // namespace

DriveFolders::DriveFolders(fs::path folder) : folder_(std::move(folder)), book_(folder_ / "drives.txt") {}

bool DriveFolders::Shift(const char* from, const char* to, wchar_t letter) const {
  const fs::path name = DiskName(std::wstring_view(&letter, 1));
  std::error_code error;
  if (!Exists(folder_ / from / name) || Exists(folder_ / to / name)) return false;
  fs::create_directories(folder_ / to, error);
  fs::rename(folder_ / from / name, folder_ / to / name, error);
  return !error;
}

bool DriveFolders::Add(wchar_t letter) {
  if (Has(letter)) return false;
  std::error_code error;
  return Shift(kAway, kPresent, letter) ||
         fs::create_directories(folder_ / kPresent / DiskName(std::wstring_view(&letter, 1)), error);
}

bool DriveFolders::Remove(wchar_t letter) {
  return Shift(kPresent, kAway, letter) || Shift(kWithoutMedium, kAway, letter);
}

bool DriveFolders::TakeMediumOut(wchar_t letter) { return Shift(kPresent, kWithoutMedium, letter); }

bool DriveFolders::PutMediumIn(wchar_t letter) { return Shift(kWithoutMedium, kPresent, letter); }

bool DriveFolders::Has(wchar_t letter) const {
  return HasMedium(letter) || Exists(folder_ / kWithoutMedium / DiskName(std::wstring_view(&letter, 1)));
}

bool DriveFolders::HasMedium(wchar_t letter) const {
  return Exists(folder_ / kPresent / DiskName(std::wstring_view(&letter, 1)));
}

fs::path DriveFolders::Root(const WindowsPath& path) const {
  if (!path.OnShare()) return folder_ / kPresent / DiskName(path.root.substr(0, 1));
  const auto [server, share] = ServerAndShare(path.root);
  const fs::path all = folder_ / kShares;
  const fs::path serverFolder = FindChild(all, server).value_or(all / DiskName(server));
  return FindChild(serverFolder, share).value_or(serverFolder / DiskName(share));
}

std::optional<fs::path> DriveFolders::Find(const WindowsPath& path) const {
  std::optional<fs::path> place = Root(path);
  for (const std::wstring& name : path.names) {
    place = FindChild(*place, name);
    if (!place) return std::nullopt;
  }
  if (!Exists(*place) || (path.folderOnly && !IsFolder(*place))) return std::nullopt;
  return place;
}

std::optional<fs::path> DriveFolders::Place(const WindowsPath& path) const {
  if (path.IsRoot()) return Root(path);
  const std::optional<fs::path> parent = Find(path.Parent());
  if (!parent) return std::nullopt;
  return FindChild(*parent, path.names.back()).value_or(*parent / DiskName(path.names.back()));
}

bool DriveFolders::MakeFolders(const WindowsPath& path) const {
  fs::path place = Root(path);
  std::error_code error;
  if (path.OnShare()) fs::create_directories(place, error);
  if (error || !IsFolder(place)) return false;
  for (const std::wstring& name : path.names) {
    place = FindChild(place, name).value_or(place / DiskName(name));
    fs::create_directory(place, error);
    if (!IsFolder(place)) return false;
  }
  return true;
}

std::vector<std::wstring> DriveFolders::SharesOf(std::wstring_view server) const {
  std::vector<std::wstring> shares;
  const auto folder =
      FindChild(folder_ / kShares, server.substr(std::min(server.find_first_not_of(L'\\'), server.size())));
  std::error_code error;
  if (!folder) return shares;
  for (const fs::directory_entry& share : fs::directory_iterator(*folder, error)) {
    shares.push_back(NameFromDisk(share.path().filename()));
  }
  std::sort(shares.begin(), shares.end());
  return shares;
}

}  // namespace burrowmark
