#include "platform/local/machine.h"

#include <fstream>
#include <stdexcept>
#include <utility>

#include "platform/characters.h"
#include "platform/local/disk/disk.h"

namespace burrowmark {
namespace {

namespace fs = std::filesystem;

constexpr const wchar_t* kFolders[] = {L"C:\\Windows\\System32", L"C:\\Users\\User\\AppData\\Local\\Temp",
                                       L"C:\\Program Files\\Burrowmark"};
constexpr wchar_t kExplorer[] = L"C:\\Windows\\explorer.exe";
constexpr wchar_t kShellFolders[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";

struct UserFolder {
  const wchar_t* value;
  const wchar_t* path;
};

constexpr UserFolder kUserFolders[] = {
    {L"AppData", L"C:\\Users\\User\\AppData\\Roaming"},
    {L"Desktop", L"C:\\Users\\User\\Desktop"},
    {L"Favorites", L"C:\\Users\\User\\Favorites"},
    {L"Personal", L"C:\\Users\\User\\Documents"},
    {L"Recent", L"C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Recent"},
    {L"SendTo", L"C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\SendTo"},
};

void Require(bool done, const std::wstring& path) {
  if (!done) throw std::runtime_error("the local machine can't do this: " + ToUtf8(path));
}

}  // namespace

LocalMachine::LocalMachine(fs::path folder) : LocalMachine(std::move(folder), std::make_shared<LocalSession>()) {}

LocalMachine::LocalMachine(fs::path folder, std::shared_ptr<LocalSession> session)
    : folder_(std::move(folder)),
      session_(std::move(session)),
      drives(folder_),
      files(folder_, drives, faults),
      registry(folder_, faults),
      shell(files, facts, uiFaults),
      windows(menuTree_, session_, uiFaults),
      user(windows, shell),
      menus(menuTree_, windows, drawing, facts, user, uiFaults),
      dialogs(user, windows),
      keyboard(uiFaults),
      workers(windows),
      network(drives, faults) {
  windows.FileTest = [this](const std::wstring& path) { return HasFile(path); };
  if (fs::exists(folder_ / "drives")) return;
  fs::create_directories(folder_);
  Furnish();
  faults.Clear();
}

std::unique_ptr<LocalMachine> LocalMachine::AnotherProcess() {
  return std::unique_ptr<LocalMachine>(new LocalMachine(folder_, session_));
}

void LocalMachine::Furnish() {
  Require(drives.Add(L'C'), L"C:");
  for (const wchar_t* path : kFolders) AddFolders(path);
  AddFile(kExplorer);
  RegistryKey key = RegistryKey::kNone;
  Require(registry.RegCreateKeyA(RegistryKey::kCurrentUser, kShellFolders, key) == kErrorSuccess, kShellFolders);
  for (const UserFolder& row : kUserFolders) {
    AddFolders(row.path);
    const std::wstring text(row.path);
    Require(registry.RegSetValueExA(key, row.value, kRegSz, text + L'\0') == kErrorSuccess, row.value);
  }
  registry.RegCloseKey(key);
}

void LocalMachine::AddFolders(const std::wstring& path) {
  const std::optional<WindowsPath> name = ParseWindowsPath(path);
  Require(name && drives.MakeFolders(*name), path);
}

void LocalMachine::AddFile(const std::wstring& path, std::string_view bytes) {
  const std::optional<WindowsPath> name = ParseWindowsPath(path);
  Require(name && !name->IsRoot() && drives.MakeFolders(name->Parent()), path);
  std::ofstream out(RealPath(path), std::ios::binary | std::ios::trunc);
  out << bytes;
  out.close();
  Require(!out.fail(), path);
}

std::string LocalMachine::BytesOf(const std::wstring& path) const {
  std::string bytes;
  Require(ReadDiskFile(RealPath(path), bytes), path);
  return bytes;
}

fs::path LocalMachine::RealPath(const std::wstring& path) const {
  const std::optional<WindowsPath> name = ParseWindowsPath(path);
  return name ? drives.Place(*name).value_or(fs::path()) : fs::path();
}

bool LocalMachine::HasFile(const std::wstring& path) const {
  const fs::path real = RealPath(path);
  return !real.empty() && fs::is_regular_file(real);
}

}  // namespace burrowmark
