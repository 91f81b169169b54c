#include "platform/win32/shell/link_object.h"

#include <windows.h>
// These want windows.h ahead of them.
#include <shlguid.h>
#include <shlobj.h>

#include <memory>
#include <optional>

#include "platform/win32/files/file_handle.h"
#include "platform/win32/files/quiet_drives.h"
#include "platform/win32/files/system_path.h"
#include "platform/win32/shell/com_object.h"

namespace burrowmark {
namespace {

constexpr int kLongestTarget = 32768;

// The object with its two faces.
struct LinkObject {
  ComObject<IShellLinkW> link{CLSID_ShellLink, IID_IShellLinkW};
  ComObject<IPersistFile> file{link.Get(), IID_IPersistFile};

  bool IsThere() const { return link && file; }
};

// Names of environment variables stand for their values.
std::wstring Expanded(const std::wstring& text) {
  const DWORD room = ::ExpandEnvironmentStringsW(text.c_str(), nullptr, 0);
  std::wstring expanded(room, L'\0');
  const DWORD length = ::ExpandEnvironmentStringsW(text.c_str(), expanded.data(), room);
  if (length == 0 || length > room) return text;
  expanded.resize(length - 1);
  return expanded;
}

std::wstring UpToNul(const std::wstring& text) { return text.substr(0, text.find(L'\0')); }

std::wstring PathIn(const LinkObject& object, DWORD form) {
  std::wstring path(kLongestTarget, L'\0');
  return FAILED(object.link->GetPath(path.data(), kLongestTarget, nullptr, form)) ? std::wstring() : UpToNul(path);
}

// The list of items that lead from the desktop to the target has characters that the link's other texts may lack.
std::wstring PathOfItems(const LinkObject& object) {
  PIDLIST_ABSOLUTE items = nullptr;
  if (object.link->GetIDList(&items) != S_OK || items == nullptr) return {};
  const std::unique_ptr<ITEMIDLIST, void (*)(void*)> owner(items, ::CoTaskMemFree);
  std::wstring path(kLongestTarget, L'\0');
  const bool isPath = ::SHGetPathFromIDListEx(items, path.data(), kLongestTarget, GPFIDL_DEFAULT) != FALSE;
  return isPath ? UpToNul(path) : std::wstring();
}

// No file's name has one: it stands where a character was lost.
bool LacksCharacters(const std::wstring& path) { return path.find(L'?') != std::wstring::npos; }

// The link's content; empty on failure.
std::string BytesOf(const LinkObject& object) {
  const ComObject<IPersistStream> content(object.link.Get(), IID_IPersistStream);
  IStream* memory = nullptr;
  if (!content || FAILED(::CreateStreamOnHGlobal(nullptr, TRUE, &memory))) return {};
  const auto release = [](IStream* stream) { stream->Release(); };
  const std::unique_ptr<IStream, decltype(release)> stream(memory, release);
  STATSTG facts = {};
  if (FAILED(content->Save(stream.get(), TRUE)) || FAILED(stream->Stat(&facts, STATFLAG_NONAME))) return {};
  std::string bytes(static_cast<std::size_t>(facts.cbSize.QuadPart), '\0');
  ULONG got = 0;
  const bool done = SUCCEEDED(stream->Seek({}, STREAM_SEEK_SET, nullptr)) &&
                    SUCCEEDED(stream->Read(bytes.data(), static_cast<ULONG>(bytes.size()), &got));
  return done && got == bytes.size() ? bytes : std::string();
}

bool WriteBytes(const std::wstring& name, const std::string& bytes) {
  FileHandle file(
      ::CreateFileW(name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  DWORD written = 0;
  if (!file.IsDiskFile()) return false;
  const bool whole =
      ::WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) != FALSE &&
      written == bytes.size();
  if (file.Close() && whole) return true;
  ::DeleteFileW(name.c_str());
  return false;
}

}  // namespace

bool LoadLink(const std::wstring& path, ShellLink& link) {
  const std::optional<std::wstring> name = SystemPath(path);
  const LinkObject object;
  if (!name || !object.IsThere()) return false;
  const QuietDrives quiet;
  if (FAILED(object.file->Load(name->c_str(), STGM_READ | STGM_SHARE_DENY_NONE))) return false;
  // As it was written first: the other form may be a place where the system believes the target to be now.
  std::wstring target = Expanded(PathIn(object, SLGP_RAWPATH));
  if (target.empty()) target = PathIn(object, 0);
  if (LacksCharacters(target)) target = PathOfItems(object);
  if (target.empty()) return false;
  wchar_t description[INFOTIPSIZE] = {};
  int show = kShowNormal;
  object.link->GetDescription(description, INFOTIPSIZE);
  object.link->GetShowCmd(&show);
  link = {target, description, show};
  return true;
}

bool SaveLink(const std::wstring& path, const ShellLink& link) {
  const std::optional<std::wstring> name = SystemPath(path);
  const LinkObject object;
  if (!name || !SystemPath(link.target) || !object.IsThere()) return false;
  const QuietDrives quiet;
  if (FAILED(object.link->SetPath(link.target.c_str())) ||
      FAILED(object.link->SetDescription(link.description.c_str())) ||
      FAILED(object.link->SetShowCmd(link.showCommand))) {
    return false;
  }
  // The object's own way to save itself as a file may start a program for every file.
  const std::string bytes = BytesOf(object);
  return !bytes.empty() && WriteBytes(*name, bytes);
}

}  // namespace burrowmark
