// The registry as the program uses it: one value at a time, settings as text.
#pragma once

#include <cstdint>
#include <string>

#include "platform/registry_api.h"

namespace burrowmark {

// Every operation opens what it needs and closes it again, and gives true only if each step worked; nothing else is
// reported. Keys are opened for reading and writing. A read that this mask is refused for is tried for reading alone; a
// write or a delete that is refused under HKEY_CLASSES_ROOT goes to the user's own classes.
class clsRegHandler {
 public:
  // Longest value that GetKeyValue takes, its closing NUL included.
  static constexpr std::size_t kValueRoom = 1024;

  explicit clsRegHandler(RegistryApi& api) : api_(api) {}

  bool DeleteValue(RegistryKey root, const std::wstring& subKey, const std::wstring& name);
  // Deletes the key `name` under `subKey`; one that has keys of its own stays.
  bool DeleteKey(RegistryKey root, const std::wstring& subKey, const std::wstring& name);
  bool CreateKey(RegistryKey root, const std::wstring& subKey);
  // Stores a text; a missing key comes into being.
  bool SetKeyValue(RegistryKey root, const std::wstring& subKey, const std::wstring& name, const std::wstring& text);
  // Reads a value as text, empty on failure. A number comes as "&h" and the hexadecimal digits of its bytes from the
  // last to the first, each byte unpadded and a last byte of zero left out.
  bool GetKeyValue(RegistryKey root, const std::wstring& subKey, const std::wstring& name, std::wstring& text);
  // Fails for a value of another type; `number` is 0 then.
  bool GetKeyValueDWord(RegistryKey root, const std::wstring& subKey, const std::wstring& name, std::int32_t& number);
  bool SaveKeyValueDWord(RegistryKey root, const std::wstring& subKey, const std::wstring& name, std::int32_t number);

 private:
  struct Value {
    std::uint32_t type = 0;
    std::wstring data;
  };

  bool Query(RegistryKey root, const std::wstring& subKey, const std::wstring& name, Value& value);
  bool Store(RegistryKey root, const std::wstring& subKey, const std::wstring& name, const Value& value);

  RegistryApi& api_;
};

}  // namespace burrowmark
