#include "platform/win32/win32_facts.h"

#include <windows.h>

namespace burrowmark {
namespace {

constexpr UINT kPageGb18030 = 54936;
constexpr DWORD kLongestPath = 32768;  // characters of the longest path that the system has, with its NUL

using RtlGetVersionCall = LONG(WINAPI*)(RTL_OSVERSIONINFOW*);

// Calls one of the system's functions for a folder, which tell the room they need.
template <typename Call>
std::wstring FolderFrom(Call call) {
  std::wstring folder(call(nullptr, 0), L'\0');
  const UINT length = call(folder.data(), static_cast<UINT>(folder.size()));
  if (length >= folder.size()) return {};
  folder.resize(length);
  if (folder.ends_with(L'\\')) folder.pop_back();
  return folder;
}

// Pages that hold every character: the system refuses to look for misfits in them.
bool HoldsAllCharacters(UINT page) { return page == CP_UTF8 || page == kPageGb18030; }

// Puts "?" for surrogates without a partner, the only characters that such a page lacks. True if there was none.
bool ReplaceLoneSurrogates(std::wstring& text) {
  bool whole = true;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool pair = i + 1 < text.size() && IS_SURROGATE_PAIR(text[i], text[i + 1]);
    if (pair) {
      ++i;
    } else if (IS_HIGH_SURROGATE(text[i]) || IS_LOW_SURROGATE(text[i])) {
      text[i] = L'?';
      whole = false;
    }
  }
  return whole;
}

std::string Converted(std::wstring_view text, DWORD flags, const char* misfit, BOOL* usedMisfit) {
  const int length = static_cast<int>(text.size());
  const int room = ::WideCharToMultiByte(CP_ACP, flags, text.data(), length, nullptr, 0, misfit, usedMisfit);
  std::string bytes(static_cast<std::size_t>(room), '\0');
  ::WideCharToMultiByte(CP_ACP, flags, text.data(), length, bytes.data(), room, misfit, usedMisfit);
  return bytes;
}

}  // namespace

bool Win32Facts::GetVersionExA(SystemVersion& version) const {
  // The documented calls tell a program no more than its manifest names; this one tells the truth.
  const HMODULE module = ::GetModuleHandleW(L"ntdll.dll");
  const FARPROC found = module == nullptr ? nullptr : ::GetProcAddress(module, "RtlGetVersion");
  if (found == nullptr) return false;
  const auto call = reinterpret_cast<RtlGetVersionCall>(reinterpret_cast<void (*)()>(found));
  RTL_OSVERSIONINFOW info = {};
  info.dwOSVersionInfoSize = sizeof(info);
  if (call(&info) != 0) return false;
  version = {info.dwMajorVersion, info.dwMinorVersion, info.dwBuildNumber, info.dwPlatformId};
  return true;
}

std::wstring Win32Facts::GetWindowsDirectoryA() const { return FolderFrom(::GetWindowsDirectoryW); }

std::wstring Win32Facts::GetSystemDirectoryA() const { return FolderFrom(::GetSystemDirectoryW); }

std::wstring Win32Facts::GetComputerNameA() const {
  std::wstring name(MAX_COMPUTERNAME_LENGTH + 1, L'\0');
  auto length = static_cast<DWORD>(name.size());
  name.resize(::GetComputerNameW(name.data(), &length) != FALSE ? length : 0);
  return name;
}

std::wstring Win32Facts::GetTempPathA() const {
  return FolderFrom([](LPWSTR folder, UINT room) -> UINT { return ::GetTempPathW(room, folder); });
}

std::wstring Win32Facts::GetModuleFileNameA() const {
  std::wstring path(kLongestPath, L'\0');
  const DWORD length = ::GetModuleFileNameW(nullptr, path.data(), kLongestPath);
  path.resize(length < kLongestPath ? length : 0);
  return path;
}

std::wstring Win32Facts::GetLocaleInfoA(std::int32_t setting) const {
  const auto type = static_cast<LCTYPE>(setting);
  const int room = ::GetLocaleInfoW(LOCALE_USER_DEFAULT, type, nullptr, 0);
  if (room <= 0) return {};
  std::wstring text(static_cast<std::size_t>(room), L'\0');
  const int length = ::GetLocaleInfoW(LOCALE_USER_DEFAULT, type, text.data(), room);
  text.resize(length > 0 ? static_cast<std::size_t>(length - 1) : 0);
  return text;
}

bool Win32Facts::ToAnsi(std::wstring_view text, std::string& bytes) const {
  bytes.clear();
  if (text.empty()) return true;
  if (HoldsAllCharacters(::GetACP())) {
    std::wstring whole(text);
    const bool fits = ReplaceLoneSurrogates(whole);
    bytes = Converted(whole, 0, nullptr, nullptr);
    return fits;
  }
  BOOL usedMisfit = FALSE;
  bytes = Converted(text, WC_NO_BEST_FIT_CHARS, "?", &usedMisfit);
  return usedMisfit == FALSE && !bytes.empty();
}

std::wstring Win32Facts::FromAnsi(std::string_view bytes) const {
  if (bytes.empty()) return {};
  const int length = static_cast<int>(bytes.size());
  const int room = ::MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, nullptr, 0);
  std::wstring text(static_cast<std::size_t>(room), L'\0');
  ::MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, text.data(), room);
  return text;
}

}  // namespace burrowmark
