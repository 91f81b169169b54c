#include "platform/win32/shell/win32_registry.h"

#include <windows.h>

#include <algorithm>
#include <limits>
#include <vector>

namespace burrowmark {
namespace {

static_assert(kRegReadWrite == (KEY_ALL_ACCESS & ~(DELETE | WRITE_DAC | WRITE_OWNER)));
static_assert(kRegRead == KEY_READ);

std::int32_t Result(LSTATUS status) { return static_cast<std::int32_t>(status); }

// The system would read a name up to its first NUL only.
bool IsName(const std::wstring& name) { return name.find(L'\0') == std::wstring::npos; }

// Characters that `bytes` bytes of data become on this side of the seam.
std::size_t CharactersOf(std::uint32_t type, std::size_t bytes) {
  return IsRegistryText(type) ? (bytes + sizeof(wchar_t) - 1) / sizeof(wchar_t) : bytes;
}

std::wstring Unpacked(std::uint32_t type, const std::vector<wchar_t>& buffer, std::size_t bytes) {
  if (IsRegistryText(type)) return {buffer.data(), CharactersOf(type, bytes)};
  std::wstring data;
  data.reserve(bytes);
  for (std::size_t i = 0; i < bytes; ++i) {
    const auto pair = static_cast<unsigned>(buffer[i / sizeof(wchar_t)]);
    data += static_cast<wchar_t>(i % sizeof(wchar_t) == 0 ? pair & 0xFF : pair >> 8);
  }
  return data;
}

}  // namespace

// A key of the system: one that is always there, or one that must be closed.
class Win32Registry::OpenKey {
 public:
  OpenKey(HKEY handle, bool predefined) : handle_(handle), predefined_(predefined) {}
  ~OpenKey() { Close(); }
  OpenKey(const OpenKey&) = delete;
  OpenKey& operator=(const OpenKey&) = delete;

  HKEY Get() const { return handle_; }
  bool IsPredefined() const { return predefined_; }
  LSTATUS Close() {
    if (predefined_ || handle_ == nullptr) return ERROR_SUCCESS;
    const LSTATUS status = ::RegCloseKey(handle_);
    handle_ = nullptr;
    return status;
  }

 private:
  HKEY handle_;
  bool predefined_;
};

Win32Registry::Win32Registry() {
  open_[RegistryKey::kClassesRoot] = std::make_unique<OpenKey>(HKEY_CLASSES_ROOT, true);
  open_[RegistryKey::kCurrentUser] = std::make_unique<OpenKey>(HKEY_CURRENT_USER, true);
  open_[RegistryKey::kLocalMachine] = std::make_unique<OpenKey>(HKEY_LOCAL_MACHINE, true);
}

Win32Registry::~Win32Registry() = default;

std::int32_t Win32Registry::RegOpenKeyExA(RegistryKey parent, const std::wstring& subKey, std::uint32_t access,
                                          RegistryKey& key) {
  key = RegistryKey::kNone;
  const auto from = open_.find(parent);
  if (from == open_.end()) return ERROR_INVALID_HANDLE;
  if (!IsName(subKey)) return ERROR_INVALID_PARAMETER;
  HKEY handle = nullptr;
  const LSTATUS status = ::RegOpenKeyExW(from->second->Get(), subKey.c_str(), 0, access, &handle);
  if (status != ERROR_SUCCESS) return Result(status);
  key = static_cast<RegistryKey>(++lastHandle_);
  open_[key] = std::make_unique<OpenKey>(handle, handle == from->second->Get());
  return kErrorSuccess;
}

std::int32_t Win32Registry::RegCreateKeyA(RegistryKey parent, const std::wstring& subKey, RegistryKey& key) {
  key = RegistryKey::kNone;
  const auto from = open_.find(parent);
  if (from == open_.end()) return ERROR_INVALID_HANDLE;
  if (!IsName(subKey)) return ERROR_INVALID_PARAMETER;
  HKEY handle = nullptr;
  const LSTATUS status = ::RegCreateKeyExW(from->second->Get(), subKey.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                           kRegReadWrite, nullptr, &handle, nullptr);
  if (status != ERROR_SUCCESS) return Result(status);
  key = static_cast<RegistryKey>(++lastHandle_);
  open_[key] = std::make_unique<OpenKey>(handle, handle == from->second->Get());
  return kErrorSuccess;
}

std::int32_t Win32Registry::RegCloseKey(RegistryKey key) {
  const auto found = open_.find(key);
  if (found == open_.end()) return ERROR_INVALID_HANDLE;
  const LSTATUS status = found->second->Close();
  // The roots stay in the table; what was handed out under a number of ours goes, also when it stands for a root.
  if (key != RegistryKey::kClassesRoot && key != RegistryKey::kCurrentUser && key != RegistryKey::kLocalMachine) {
    open_.erase(found);
  }
  return Result(status);
}

std::int32_t Win32Registry::RegQueryValueExA(RegistryKey key, const std::wstring& name, std::size_t room,
                                             std::uint32_t& type, std::wstring& data) {
  type = 0;
  data.clear();
  const auto found = open_.find(key);
  if (found == open_.end()) return ERROR_INVALID_HANDLE;
  if (!IsName(name)) return ERROR_INVALID_PARAMETER;
  const HKEY handle = found->second->Get();
  DWORD kind = 0;
  DWORD bytes = 0;
  LSTATUS status = ::RegQueryValueExW(handle, name.c_str(), nullptr, &kind, nullptr, &bytes);
  if (status != ERROR_SUCCESS) return Result(status);
  type = kind;
  if (CharactersOf(kind, bytes) > room) return kErrorMoreData;
  // One element more than needed: an odd byte at the end has its place, and no data isn't no buffer.
  std::vector<wchar_t> buffer(bytes / sizeof(wchar_t) + 1);
  status = ::RegQueryValueExW(handle, name.c_str(), nullptr, &kind, reinterpret_cast<BYTE*>(buffer.data()), &bytes);
  if (status != ERROR_SUCCESS) return Result(status);
  // Another program may have replaced the value between the two calls.
  type = kind;
  if (CharactersOf(kind, bytes) > room) return kErrorMoreData;
  data = Unpacked(kind, buffer, bytes);
  return kErrorSuccess;
}

std::int32_t Win32Registry::RegSetValueExA(RegistryKey key, const std::wstring& name, std::uint32_t type,
                                           const std::wstring& data) {
  const auto found = open_.find(key);
  if (found == open_.end()) return ERROR_INVALID_HANDLE;
  if (!IsName(name) || data.size() > std::numeric_limits<DWORD>::max() / sizeof(wchar_t)) {
    return ERROR_INVALID_PARAMETER;
  }
  if (IsRegistryText(type)) {
    const auto bytes = static_cast<DWORD>(data.size() * sizeof(wchar_t));
    return Result(::RegSetValueExW(found->second->Get(), name.c_str(), 0, type,
                                   reinterpret_cast<const BYTE*>(data.c_str()), bytes));
  }
  std::vector<BYTE> bytes(data.size());
  std::transform(data.begin(), data.end(), bytes.begin(), [](wchar_t c) { return static_cast<BYTE>(c & 0xFF); });
  return Result(
      ::RegSetValueExW(found->second->Get(), name.c_str(), 0, type, bytes.data(), static_cast<DWORD>(bytes.size())));
}

std::int32_t Win32Registry::RegDeleteValueA(RegistryKey key, const std::wstring& name) {
  const auto found = open_.find(key);
  if (found == open_.end()) return ERROR_INVALID_HANDLE;
  if (!IsName(name)) return ERROR_INVALID_PARAMETER;
  return Result(::RegDeleteValueW(found->second->Get(), name.c_str()));
}

std::int32_t Win32Registry::RegDeleteKeyA(RegistryKey key, const std::wstring& name) {
  const auto found = open_.find(key);
  if (found == open_.end()) return ERROR_INVALID_HANDLE;
  if (!IsName(name)) return ERROR_INVALID_PARAMETER;
  return Result(::RegDeleteKeyW(found->second->Get(), name.c_str()));
}

}  // namespace burrowmark
