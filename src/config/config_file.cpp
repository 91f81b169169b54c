#include "config/config_file.h"

#include "config/config_listing.h"
#include "config/config_reader.h"
#include "config/config_writer.h"
#include "core/failure.h"
#include "core/file_names.h"
#include "core/numbers.h"
#include "core/registry.h"
#include "core/registry_keys.h"
#include "core/save_file.h"
#include "core/services.h"
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

// True if the drive or the share that a path stands on is there.
bool IsPlaceThere(FileSystem& files, const std::wstring& path) {
  if (!path.starts_with(L"\\\\")) return files.DriveExists(path.substr(0, 2));
  const std::size_t share = path.find(L'\\', 2);
  return share != std::wstring::npos && files.FolderExists(path.substr(0, path.find(L'\\', share + 1)));
}

// A listing is in the ANSI code page; where a title would lose characters there it is UTF-8 with a byte order mark.
std::string ListingBytes(const Application& app, const Document& document) {
  const std::wstring text = WriteTextReport(app, document);
  std::string bytes;
  return app.platform.system.ToAnsi(text, bytes) ? bytes : kUtf8Bom + ToUtf8(text);
}

// A free name beside a file, "x (unreadable).bwmk" and so on; empty if too many are taken.
std::wstring NameForCopy(FileSystem& files, const std::wstring& path) {
  const std::size_t dot = path.rfind(L'.');
  const std::size_t slash = path.rfind(L'\\');
  const bool hasExtension = dot != std::wstring::npos && (slash == std::wstring::npos || dot > slash);
  const std::wstring base = hasExtension ? path.substr(0, dot) : path;
  const std::wstring extension = hasExtension ? path.substr(dot) : std::wstring();
  for (int i = 1; i <= kMostUnreadableCopies; ++i) {
    const std::wstring number = i == 1 ? std::wstring() : L" " + DecimalText(i);
    const std::wstring copy = base + L" (unreadable)" + number + extension;
    if (!files.FileExists(copy)) return copy;
  }
  return {};
}

bool Save(Application& app, Document& document) {
  const std::string bytes = BuildConfig(app, *document.Store, document.Summary);
  if (!SaveWholeFile(app.platform.files, document.CurrentConfigFile, bytes)) return false;
  document.Content = FileContent::kWhole;
  document.Changed = false;
  return true;
}

}  // namespace

DefaultFile FindDefaultFile(Application& app) {
  FileSystem& files = app.platform.files;
  std::wstring registered;
  clsRegHandler(app.platform.registry)
      .GetKeyValue(RegistryKey::kCurrentUser, kSettingsKey, kConfigFileValue, registered);
  if (!registered.empty() && FileExists(files, registered)) return {registered, registered, false};
  // A registered file on a drive that is away just now stays registered.
  const bool registers = registered.empty() || IsPlaceThere(files, registered);
  const std::wstring beside = app.AppPath + L"\\" + kDefaultConfigName;
  const bool isBeside = FileExists(files, beside);
  const bool canWriteBeside = CanCreateFilesIn(files, app.AppPath);
  if (isBeside && canWriteBeside) return {beside, beside, registers};
  const std::wstring folder = ApplicationDataFolder(app);
  const std::wstring own = (folder.empty() ? app.AppPath : folder) + L"\\" + kDefaultConfigName;
  if (!folder.empty() && FileExists(files, own)) return {own, own, registers};
  if (isBeside) return {own, beside, registers && !folder.empty()};
  if (!registered.empty()) return {registered, {}, false};
  return {canWriteBeside ? beside : own, {}, false};
}

void SaveConfigFileName(Application& app, const std::wstring& path) {
  clsRegHandler(app.platform.registry).SetKeyValue(RegistryKey::kCurrentUser, kSettingsKey, kConfigFileValue, path);
}

std::wstring OwnPath(Application& app, const std::wstring& path) {
  return app.platform.files.IsSameFile(path, app.ConfigFile) ? app.ConfigFile : path;
}

std::optional<OpenedConfig> ConfigFileRead(Application& app, const std::wstring& path) {
  OpenedConfig opened;
  opened.document.Store = std::make_shared<clsMenuCollection>(app.platform.clock);
  opened.document.CurrentConfigFile = OwnPath(app, path);
  std::string bytes;
  if (!app.platform.files.ReadWholeFile(path, bytes)) return std::nullopt;
  if (bytes.empty()) app.platform.files.DeleteFileA(path);
  ConfigContent content;
  if (!ReadConfig(app, bytes, *opened.document.Store, content)) return std::nullopt;
  opened.document.Summary = content.summary;
  opened.document.Content = content.Damaged ? FileContent::kDamaged : FileContent::kWhole;
  opened.SystemGroupMissing = content.SystemGroupMissing;
  opened.SystemGroupIgnored = content.SystemGroupIgnored;
  return opened;
}

bool ConfigFileWrite(Application& app, Document& document) {
  return Attempt([&] { return KeepOldFile(app, document) && Save(app, document); });
}

bool ConfigFileWriteAs(Application& app, Document& document, const std::wstring& path) {
  return Attempt([&] {
    Document other = document;
    other.CurrentConfigFile = OwnPath(app, path);
    if (!Save(app, other)) return false;
    document = other;
    return true;
  });
}

bool ConfigFileExport(Application& app, const Document& document, const std::wstring& path) {
  return Attempt([&] { return SaveWholeFile(app.platform.files, path, ListingBytes(app, document)); });
}

bool ConfigFileUpdateSummary(Application& app, const Document& document) {
  const std::wstring& path = document.CurrentConfigFile;
  if (!app.platform.files.FileExists(path)) return true;
  return Attempt([&] {
    std::string bytes;
    std::string replaced;
    clsMenuCollection unused(app.platform.clock);
    ConfigContent content;
    return app.platform.files.ReadWholeFile(path, bytes) && ReadConfig(app, bytes, unused, content) &&
           ReplaceSummary(app, bytes, document.Summary, replaced) && SaveWholeFile(app.platform.files, path, replaced);
  });
}

bool KeepOldFile(Application& app, Document& document) {
  FileSystem& files = app.platform.files;
  const std::wstring& path = document.CurrentConfigFile;
  if (document.Content == FileContent::kWhole || !document.KeptAs.empty() || !files.FileExists(path)) return true;
  const std::wstring copy = NameForCopy(files, path);
  if (copy.empty() || !files.CopyFileA(path, copy, true)) return false;
  document.KeptAs = copy;
  if (document.Content == FileContent::kNone) return true;
  const wchar_t* trouble = document.Content == FileContent::kDamaged ? L" is damaged." : L" couldn't be read.";
  document.Notice =
      L"Configuration file " + GetFileName(path) + trouble + L" It is kept as " + GetFileName(copy) + L".";
  return true;
}

std::wstring SaveErrorText(Application& app, const std::wstring& path) {
  const std::wstring text = L"Error saving configuration file " + GetFileName(path);
  return IsFileReadOnly(app.platform.files, path) ? text + L"\r\nFile is read-only." : text;
}

}  // namespace burrowmark
