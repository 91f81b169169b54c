#include "config/config_file.h"

#include "config/config_listing.h"
#include "config/config_reader.h"
#include "config/config_writer.h"
#include "core/failure.h"
#include "core/hot_keys.h"
#include "core/numbers.h"
#include "core/registry.h"
#include "core/registry_keys.h"
#include "core/save_file.h"
#include "menu/menu_setup.h"
#include "platform/characters.h"

namespace burrowmark {
namespace {

constexpr char kUtf8Bom[] = "\xEF\xBB\xBF";
constexpr int kMostUnreadableCopies = 100;

// The folder of the default file for a program whose own folder can't be written to; empty if there is none.
std::wstring ApplicationDataFolder(Application& app) {
  std::wstring folder;
  clsRegHandler(app.platform.registry).GetKeyValue(RegistryKey::kCurrentUser, kShellFoldersKey, L"AppData", folder);
  if (folder.empty()) return {};
  for (const wchar_t* part : {L"\\Kestrelan", L"\\Burrowmark"}) {
    folder += part;
    app.platform.files.CreateFolder(folder);
  }
  return app.platform.files.FolderExists(folder) ? folder : std::wstring();
}

std::wstring DefaultConfigFolder(Application& app) {
  if (CanCreateFilesIn(app.platform.files, app.AppPath)) return app.AppPath;
  const std::wstring folder = ApplicationDataFolder(app);
  return folder.empty() ? app.AppPath : folder;
}

// A listing is in the ANSI code page; where a title would lose characters there it is UTF-8 with a byte order mark.
std::string ListingBytes(const Application& app, const clsMenuCollection& store) {
  const std::wstring text = WriteTextReport(app, store);
  std::string bytes;
  return app.platform.system.ToAnsi(text, bytes) ? bytes : kUtf8Bom + ToUtf8(text);
}

// Keeps a copy of the file that couldn't be read at the start, once. False if that fails: then it must not be
// overwritten.
bool KeepIfUnreadable(Application& app, const std::wstring& file) {
  if (app.UnreadableConfigFile.empty() || !EqualIgnoringCase(app.UnreadableConfigFile, file)) return true;
  if (app.platform.files.FileExists(file) && !KeepUnreadableFile(app, file)) return false;
  app.UnreadableConfigFile.clear();
  return true;
}

}  // namespace

void GetConfigFileName(Application& app, bool ForceDefault) {
  app.ConfigFile.clear();
  if (!ForceDefault) {
    clsRegHandler(app.platform.registry)
        .GetKeyValue(RegistryKey::kCurrentUser, kSettingsKey, kConfigFileValue, app.ConfigFile);
  }
  if (app.ConfigFile.empty()) app.ConfigFile = DefaultConfigFolder(app) + L"\\" + kDefaultConfigName;
}

void SaveConfigFileName(Application& app, const std::wstring& path) {
  clsRegHandler(app.platform.registry)
      .SetKeyValue(RegistryKey::kCurrentUser, kSettingsKey, kConfigFileValue, path.empty() ? app.ConfigFile : path);
}

bool ConfigFileRead(Application& app, clsMenuCollection& store, const std::wstring& path, bool& SystemGroupMissing,
                    bool& SystemGroupIgnored) {
  const std::wstring file = path.empty() ? app.ConfigFile : path;
  ConfigContent content;
  std::string bytes;
  const bool read = app.platform.files.ReadWholeFile(file, bytes);
  if (read && bytes.empty()) app.platform.files.DeleteFileA(file);
  const bool success = read && ReadConfig(app, bytes, store, content);
  SystemGroupMissing = content.SystemGroupMissing;
  SystemGroupIgnored = content.SystemGroupIgnored;
  if (!success) return false;
  app.CurrentConfigFile = file;
  app.Summary = content.summary;
  AddFixedEntries(app, store, SystemGroupMissing);
  RefreshHotKeys(app, store);
  return true;
}

bool ConfigFileWrite(Application& app, const clsMenuCollection& store, const std::wstring& path, bool PlainText) {
  return Attempt([&] {
    const std::wstring file = path.empty() ? app.ConfigFile : path;
    const std::string bytes = PlainText ? ListingBytes(app, store) : BuildConfig(app, store);
    return KeepIfUnreadable(app, file) && SaveWholeFile(app.platform.files, file, bytes);
  });
}

bool ConfigFileUpdateSummary(Application& app, const std::wstring& path) {
  if (!app.platform.files.FileExists(path)) return true;
  return Attempt([&] {
    std::string bytes;
    std::string replaced;
    return app.platform.files.ReadWholeFile(path, bytes) && ReplaceSummary(app, bytes, replaced) &&
           SaveWholeFile(app.platform.files, path, replaced);
  });
}

bool KeepUnreadableFile(Application& app, const std::wstring& path) {
  const std::size_t dot = path.rfind(L'.');
  const std::size_t slash = path.rfind(L'\\');
  const bool hasExtension = dot != std::wstring::npos && (slash == std::wstring::npos || dot > slash);
  const std::wstring base = hasExtension ? path.substr(0, dot) : path;
  const std::wstring extension = hasExtension ? path.substr(dot) : std::wstring();
  for (int i = 1; i <= kMostUnreadableCopies; ++i) {
    const std::wstring number = i == 1 ? std::wstring() : L" " + DecimalText(i);
    const std::wstring copy = base + L" (unreadable)" + number + extension;
    if (app.platform.files.FileExists(copy)) continue;
    return app.platform.files.CopyFileA(path, copy, true);
  }
  return false;
}

}  // namespace burrowmark
