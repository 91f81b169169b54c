#include "groups/special_folders.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "core/registry.h"
#include "core/registry_keys.h"
#include "platform/characters.h"

namespace burrowmark {
namespace {

// Keys that are values of the machine's part of the registry.
struct MachineFolder {
  std::wstring_view key;
  const wchar_t* registryKey;
};

constexpr MachineFolder kMachineFolders[] = {
    {L"ProgramFilesDir", kCurrentVersionKey}, {L"CommonFilesDir", kCurrentVersionKey},
    {L"MediaPath", kCurrentVersionKey},       {L"Common Desktop", kShellFoldersKey},
    {L"Common Documents", kShellFoldersKey},  {L"Common AppData", kShellFoldersKey},
    {L"Common Programs", kShellFoldersKey},   {L"Common Start Menu", kShellFoldersKey},
    {L"Common Startup", kShellFoldersKey},    {L"Common Templates", kShellFoldersKey},
};

std::wstring RegistryFolder(const Application& app, RegistryKey root, const wchar_t* registryKey,
                            const std::wstring& key) {
  std::wstring path;
  clsRegHandler(app.platform.registry).GetKeyValue(root, registryKey, key, path);
  return path;
}

std::wstring System32(const Application& app) {
  const std::wstring usual = app.WindowsFolder + L"\\System32";
  return app.platform.files.FolderExists(usual) ? usual : app.platform.system.GetSystemDirectoryA();
}

// The Start Menu holds the Programs, also where it isn't listed itself.
std::wstring StartMenu(const Application& app) {
  const std::wstring programs = GetSpecialFolderPath(app, L"Programs");
  const std::size_t slash = programs.rfind(L'\\');
  return slash == std::wstring::npos ? std::wstring() : programs.substr(0, slash);
}

// The registry's last component may be in another letter case than the disk's.
std::wstring CommonAdministrativeTools(const Application& app) {
  const std::wstring path =
      RegistryFolder(app, RegistryKey::kLocalMachine, kShellFoldersKey, L"Common Administrative Tools");
  const std::size_t slash = path.rfind(L'\\');
  std::vector<FolderEntry> siblings;
  if (slash == std::wstring::npos || !app.platform.files.FolderExists(path)) return path;
  app.platform.files.ListFolder(path.substr(0, slash), siblings);
  const auto found = std::find_if(siblings.begin(), siblings.end(), [&](const FolderEntry& sibling) {
    return EqualIgnoringCase(sibling.name, std::wstring_view(path).substr(slash + 1));
  });
  return found == siblings.end() ? path : path.substr(0, slash + 1) + found->name;
}

}  // namespace

std::wstring GetSpecialFolderPath(const Application& app, const std::wstring& key) {
  if (key == L"SystemRoot") return app.platform.system.GetWindowsDirectoryA();
  if (key == L"System32") return System32(app);
  if (key == L"Start Menu") return StartMenu(app);
  if (key == L"Common Administrative Tools") return CommonAdministrativeTools(app);
  const auto* row = std::find_if(std::begin(kMachineFolders), std::end(kMachineFolders),
                                 [&key](const MachineFolder& folder) { return folder.key == key; });
  if (row != std::end(kMachineFolders)) return RegistryFolder(app, RegistryKey::kLocalMachine, row->registryKey, key);
  return RegistryFolder(app, RegistryKey::kCurrentUser, kShellFoldersKey, key);
}

}  // namespace burrowmark
