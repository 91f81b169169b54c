#include "config/config_file.h"

#include <algorithm>
#include <vector>

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

// The folders of the default file for a program whose own folder can't be written to, from the top; the first one is
// the system's. None if the system doesn't name it.
std::vector<std::wstring> DataFolders(Application& app) {
  std::wstring folder;
  clsRegHandler(app.platform.registry).GetKeyValue(RegistryKey::kCurrentUser, kShellFoldersKey, L"AppData", folder);
  if (!app.platform.files.FolderExists(folder)) return {};
  return {folder, folder + L"\\Kestrelan", folder + L"\\Kestrelan\\Burrowmark"};
}

std::wstring DefaultNameIn(const std::wstring& folder) { return folder + L"\\" + kDefaultConfigName; }

// Makes the folders of application data when the first file is saved there.
void MakeFoldersOf(Application& app, const std::wstring& path) {
  const std::vector<std::wstring> folders = DataFolders(app);
  if (folders.empty() || !EqualIgnoringCase(path, DefaultNameIn(folders.back()))) return;
  for (const std::wstring& folder : folders) {
    if (!app.platform.files.FolderExists(folder)) app.platform.files.CreateFolder(folder);
  }
}

// True if a file can be saved in the last of these folders, once those that are missing are made.
bool CanSaveBelow(FileSystem& files, const std::vector<std::wstring>& folders) {
  const auto there = std::find_if(folders.rbegin(), folders.rend(),
                                  [&files](const std::wstring& folder) { return files.FolderExists(folder); });
  return there != folders.rend() && CanSave(files, DefaultNameIn(*there));
}

// True if the drive with its medium, or the share, that a path stands on is there.
bool IsPlaceThere(FileSystem& files, const std::wstring& path) {
  if (!path.starts_with(L"\\\\")) return files.FolderExists(path.substr(0, 3));
  const std::size_t share = path.find(L'\\', 2);
  return share != std::wstring::npos && files.FolderExists(path.substr(0, path.find(L'\\', share + 1)));
}

// A listing is in the ANSI code page; where a title would lose characters there it is UTF-8 with a byte order mark.
std::string ListingBytes(const Application& app, const Document& document) {
  const std::wstring text = WriteTextReport(app, document);
  std::string bytes;
  return app.platform.system.ToAnsi(text, bytes) ? bytes : kUtf8Bom + ToUtf8(text);
}

// "x (word).bwmk" of "x.bwmk".
std::wstring NameWith(const std::wstring& path, const std::wstring& word) {
  const std::size_t dot = path.rfind(L'.');
  const std::size_t slash = path.rfind(L'\\');
  const bool hasExtension = dot != std::wstring::npos && (slash == std::wstring::npos || dot > slash);
  const std::size_t end = hasExtension ? dot : path.size();
  return path.substr(0, end) + L" (" + word + L")" + path.substr(end);
}

// A free name beside a file, "x (unreadable).bwmk" and so on; empty if too many are taken.
std::wstring NameForCopy(FileSystem& files, const std::wstring& path) {
  for (int i = 1; i <= kMostUnreadableCopies; ++i) {
    const std::wstring copy = NameWith(path, i == 1 ? L"unreadable" : L"unreadable " + DecimalText(i));
    if (!files.FileExists(copy)) return copy;
  }
  return {};
}

bool IsSameVersion(const std::optional<FileFacts>& left, const std::optional<FileFacts>& right) {
  if (!left || !right) return !left && !right;
  return left->size == right->size && left->modified == right->modified;
}

std::wstring PreviousName(const std::wstring& path) { return NameWith(path, L"previous"); }

// Before the first save of a day the version before it is kept. Where that can't be done the save goes on: the user
// wants the edits first.
void KeepPrevious(Application& app, const std::wstring& path) {
  FileSystem& files = app.platform.files;
  const std::optional<FileFacts> facts = files.GetFileFacts(path);
  if (!facts || !facts->modified) return;
  const LocalTime& written = *facts->modified;
  const LocalTime now = app.platform.clock.GetLocalTime();
  if (written.year == now.year && written.month == now.month && written.day == now.day) return;
  std::string bytes;
  if (files.ReadWholeFile(path, bytes) && !bytes.empty()) SaveWholeFile(files, PreviousName(path), bytes);
}

void RemoveLeftOvers(FileSystem& files, const std::wstring& path) {
  RemoveLeftOver(files, path);
  RemoveLeftOver(files, PreviousName(path));
}

// A file that wasn't whole is kept as it was already, and mustn't take the place of a good version.
bool Save(Application& app, Document& document) {
  const std::wstring& path = document.CurrentConfigFile;
  RemoveLeftOvers(app.platform.files, path);
  MakeFoldersOf(app, path);
  const std::string bytes = BuildConfig(app, *document.Store, document.Summary);
  if (document.Content == FileContent::kWhole) KeepPrevious(app, path);
  if (!SaveWholeFile(app.platform.files, path, bytes)) return false;
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
  // A registered file on a drive that is away just now stays registered, and the tree stays that file's.
  const bool away = !registered.empty() && !IsPlaceThere(files, registered);
  const std::wstring beside = DefaultNameIn(app.AppPath);
  const bool isBeside = FileExists(files, beside);
  const bool canSaveBeside = CanSave(files, beside);
  if (isBeside && canSaveBeside) return {beside, beside, !away};
  const std::vector<std::wstring> folders = DataFolders(app);
  const std::wstring own = folders.empty() ? beside : DefaultNameIn(folders.back());
  if (!folders.empty() && FileExists(files, own)) return {own, own, !away && CanSave(files, own)};
  if (isBeside) return {own, beside, !away && CanSaveBelow(files, folders)};
  if (away || (!registered.empty() && CanSave(files, registered))) return {registered, {}, false};
  return {canSaveBeside ? beside : own, {}, false};
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
  RemoveLeftOvers(app.platform.files, path);
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
    if (app.platform.files.IsSameFile(path, document.CurrentConfigFile)) {
      if (!KeepOldFile(app, other)) return false;
    } else {
      other.Content = FileContent::kWhole;  // what is there isn't this tree's, and may well be worth keeping for a day
      other.KeptAs.clear();
      other.KeptOf.reset();
    }
    if (!Save(app, other)) return false;
    document = other;
    return true;
  });
}

bool ConfigFileExport(Application& app, const Document& document, const std::wstring& path) {
  return Attempt([&] { return SaveWholeFile(app.platform.files, path, ListingBytes(app, document)); });
}

bool ConfigFileUpdateSummary(Application& app, Document& document) {
  const std::wstring& path = document.CurrentConfigFile;
  if (!app.platform.files.FileExists(path)) return true;
  // The file isn't the one that the tree was read from.
  if (document.Content == FileContent::kNone || document.Content == FileContent::kUnreadable) return false;
  return Attempt([&] {
    std::string bytes;
    std::string replaced;
    clsMenuCollection unused(app.platform.clock);
    ConfigContent content;
    if (!KeepOldFile(app, document) || !app.platform.files.ReadWholeFile(path, bytes) ||
        !ReadConfig(app, bytes, unused, content) || !ReplaceSummary(app, bytes, document.Summary, replaced)) {
      return false;
    }
    if (document.Content == FileContent::kWhole) KeepPrevious(app, path);
    if (!SaveWholeFile(app.platform.files, path, replaced)) return false;
    document.KeptOf = app.platform.files.GetFileFacts(path);
    return true;
  });
}

bool KeepOldFile(Application& app, Document& document) {
  FileSystem& files = app.platform.files;
  const std::wstring& path = document.CurrentConfigFile;
  if (document.Content == FileContent::kWhole || !files.FileExists(path)) return true;
  const std::optional<FileFacts> facts = files.GetFileFacts(path);
  if (!document.KeptAs.empty() && IsSameVersion(facts, document.KeptOf)) return true;
  const std::wstring copy = NameForCopy(files, path);
  if (copy.empty() || !files.CopyFileA(path, copy, true)) return false;
  document.KeptAs = copy;
  document.KeptOf = facts;
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
