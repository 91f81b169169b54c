#include "core/registry.h"

namespace burrowmark {
namespace {

constexpr wchar_t kUserClasses[] = L"Software\\Classes\\";
constexpr std::size_t kDwordBytes = 4;

// An open key that is closed when it goes.
class OpenKey {
 public:
  explicit OpenKey(RegistryApi& api) : api_(api) {}
  ~OpenKey() {
    if (key_ != RegistryKey::kNone) api_.RegCloseKey(key_);
  }
  OpenKey(const OpenKey&) = delete;
  OpenKey& operator=(const OpenKey&) = delete;

  std::int32_t Open(RegistryKey root, const std::wstring& subKey, std::uint32_t access) {
    return api_.RegOpenKeyExA(root, subKey, access, key_);
  }
  std::int32_t Create(RegistryKey root, const std::wstring& subKey) { return api_.RegCreateKeyA(root, subKey, key_); }
  RegistryKey Get() const { return key_; }

 private:
  RegistryApi& api_;
  RegistryKey key_ = RegistryKey::kNone;
};

// Runs a change and, where it is refused under HKEY_CLASSES_ROOT, runs it again on the user's own classes. What an
// earlier change put there is missing under the root on systems that don't show both as one.
template <typename Change>
bool WithUserClasses(RegistryKey root, const std::wstring& subKey, Change change) {
  const std::int32_t result = change(root, subKey);
  const bool elsewhere = result == kErrorAccessDenied || result == kErrorFileNotFound;
  if (!elsewhere || root != RegistryKey::kClassesRoot) return result == kErrorSuccess;
  return change(RegistryKey::kCurrentUser, kUserClasses + subKey) == kErrorSuccess;
}

std::wstring HexText(std::uint32_t byte) {
  constexpr wchar_t kDigits[] = L"0123456789ABCDEF";
  std::wstring text;
  if (byte > 0xF) text += kDigits[byte >> 4 & 0xF];
  return text + kDigits[byte & 0xF];
}

}  // namespace

bool clsRegHandler::DeleteValue(RegistryKey root, const std::wstring& subKey, const std::wstring& name) {
  return WithUserClasses(root, subKey, [&](RegistryKey top, const std::wstring& path) {
    OpenKey key(api_);
    const std::int32_t opened = key.Open(top, path, kRegReadWrite);
    return opened != kErrorSuccess ? opened : api_.RegDeleteValueA(key.Get(), name);
  });
}

bool clsRegHandler::DeleteKey(RegistryKey root, const std::wstring& subKey, const std::wstring& name) {
  return WithUserClasses(root, subKey, [&](RegistryKey top, const std::wstring& path) {
    OpenKey key(api_);
    const std::int32_t opened = key.Open(top, path, kRegReadWrite);
    return opened != kErrorSuccess ? opened : api_.RegDeleteKeyA(key.Get(), name);
  });
}

bool clsRegHandler::CreateKey(RegistryKey root, const std::wstring& subKey) {
  return WithUserClasses(root, subKey, [&](RegistryKey top, const std::wstring& path) {
    OpenKey key(api_);
    return key.Create(top, path);
  });
}

bool clsRegHandler::SetKeyValue(RegistryKey root, const std::wstring& subKey, const std::wstring& name,
                                const std::wstring& text) {
  return Store(root, subKey, name, {kRegSz, text + L'\0'});
}

bool clsRegHandler::GetKeyValue(RegistryKey root, const std::wstring& subKey, const std::wstring& name,
                                std::wstring& text) {
  text.clear();
  Value value;
  if (!Query(root, subKey, name, value)) return false;
  if (value.data.ends_with(L'\0')) value.data.pop_back();
  if (value.type != kRegDword) {
    text = value.data;
    return true;
  }
  text = L"&h";
  for (auto byte = value.data.rbegin(); byte != value.data.rend(); ++byte) {
    text += HexText(static_cast<std::uint32_t>(*byte));
  }
  return true;
}

bool clsRegHandler::GetKeyValueDWord(RegistryKey root, const std::wstring& subKey, const std::wstring& name,
                                     std::int32_t& number) {
  number = 0;
  Value value;
  if (!Query(root, subKey, name, value) || value.type != kRegDword || value.data.size() != kDwordBytes) return false;
  std::uint32_t bits = 0;
  for (auto byte = value.data.rbegin(); byte != value.data.rend(); ++byte) {
    bits = bits << 8 | static_cast<std::uint32_t>(*byte);
  }
  number = static_cast<std::int32_t>(bits);
  return true;
}

bool clsRegHandler::SaveKeyValueDWord(RegistryKey root, const std::wstring& subKey, const std::wstring& name,
                                      std::int32_t number) {
  Value value{kRegDword, {}};
  auto bits = static_cast<std::uint32_t>(number);
  for (std::size_t i = 0; i < kDwordBytes; ++i, bits >>= 8) value.data += static_cast<wchar_t>(bits & 0xFF);
  return Store(root, subKey, name, value);
}

bool clsRegHandler::Query(RegistryKey root, const std::wstring& subKey, const std::wstring& name, Value& value) {
  OpenKey key(api_);
  std::int32_t opened = key.Open(root, subKey, kRegReadWrite);
  if (opened == kErrorAccessDenied) opened = key.Open(root, subKey, kRegRead);
  return opened == kErrorSuccess &&
         api_.RegQueryValueExA(key.Get(), name, kValueRoom, value.type, value.data) == kErrorSuccess;
}

bool clsRegHandler::Store(RegistryKey root, const std::wstring& subKey, const std::wstring& name, const Value& value) {
  return WithUserClasses(root, subKey, [&](RegistryKey top, const std::wstring& path) {
    OpenKey key(api_);
    const std::int32_t opened = key.Create(top, path);
    return opened != kErrorSuccess ? opened : api_.RegSetValueExA(key.Get(), name, value.type, value.data);
  });
}

}  // namespace burrowmark
