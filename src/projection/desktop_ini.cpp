#include "projection/desktop_ini.h"

namespace burrowmark {
namespace {

constexpr char kInfoTip[] = "InfoTip = Contains shortcuts to your favorite folders.\r\n";
constexpr wchar_t kFileName[] = L"\\Desktop.ini";

std::wstring Text(const Application& app) {
  return L"[.ShellClassInfo]\r\n"
         L"IconFile = " +
         app.AppCommand +
         L"\r\n"
         L"IconIndex = 0\r\n"
         L"ConfirmFileOp = 0\r\n"
         L"OriginalIcon = %\r\n";
}

// A file that was left from before is in the way, with attributes that keep it from being written.
bool RemoveOld(FileSystem& files, const std::wstring& path) {
  const std::optional<std::uint32_t> attributes = files.GetFileAttributesA(path);
  if (!attributes) return true;
  files.SetFileAttributesA(path, *attributes & ~(kFileHidden | kFileSystem));
  if (files.DeleteFileA(path)) return true;
  files.SetFileAttributesA(path, *attributes);
  return false;
}

}  // namespace

void WriteDesktopIni(Application& app, const std::wstring& folder) {
  FileSystem& files = app.platform.files;
  WindowSystem& windows = app.platform.windows;
  const std::wstring path = folder + kFileName;
  if (!RemoveOld(files, path)) return;
  const std::unique_ptr<OutputFile> file = files.CreateNewFile(path);
  if (!file) return;
  windows.DoEvents();
  std::string bytes;
  app.platform.system.ToAnsi(Text(app), bytes);
  if (!file->Write(bytes + kInfoTip)) return;
  windows.DoEvents();
  if (!file->Close()) return;
  windows.DoEvents();
  files.SetFileAttributesA(path, kFileHidden | kFileSystem);
  files.SetFileAttributesA(folder, kFileSystem);
}

bool HasOwnDesktopIni(Application& app, const std::wstring& folder) {
  std::string bytes;
  return app.platform.files.ReadWholeFile(folder + kFileName, bytes) && bytes.ends_with(kInfoTip);
}

}  // namespace burrowmark
