// The registry calls that the program makes, named as the system names them.
#pragma once

#include <cstdint>
#include <string>

namespace burrowmark {

// Handles of the predefined keys, with the system's own values.
enum class RegistryKey : std::uint64_t {
  kNone = 0,
  kClassesRoot = 0x80000000,
  kCurrentUser = 0x80000001,
  kLocalMachine = 0x80000002,
};

// Results that the program tells apart (winerror.h); every other value is a failure as well.
inline constexpr std::int32_t kErrorSuccess = 0;
inline constexpr std::int32_t kErrorFileNotFound = 2;
inline constexpr std::int32_t kErrorAccessDenied = 5;
inline constexpr std::int32_t kErrorMoreData = 234;

// Value types (winnt.h).
inline constexpr std::uint32_t kRegSz = 1;
inline constexpr std::uint32_t kRegExpandSz = 2;
inline constexpr std::uint32_t kRegBinary = 3;
inline constexpr std::uint32_t kRegDword = 4;
inline constexpr std::uint32_t kRegMultiSz = 7;

// Access masks. The first asks for everything but ownership, the second for reading alone.
inline constexpr std::uint32_t kRegReadWrite = 0x2003F;
inline constexpr std::uint32_t kRegRead = 0x20019;

// True for the types whose data is text.
constexpr bool IsRegistryText(std::uint32_t type) {
  return type == kRegSz || type == kRegExpandSz || type == kRegMultiSz;
}

// Data of a value crosses the seam as characters: of a text type one character for each of the text's, its closing NUL
// included; of any other type one character (0 to 255) for each byte.
//
// Every call returns 0 on success and the system's error number otherwise. Names of keys and values match without
// regard to case. A key that is open must be closed, also when it was deleted meanwhile.
class RegistryApi {
 public:
  virtual ~RegistryApi() = default;

  // Opens an existing key. `access` is a mask of the two above. On failure `key` is kNone.
  virtual std::int32_t RegOpenKeyExA(RegistryKey parent, const std::wstring& subKey, std::uint32_t access,
                                     RegistryKey& key) = 0;
  // Opens a key for reading and writing and makes it, with all keys on the way, where it is missing.
  virtual std::int32_t RegCreateKeyA(RegistryKey parent, const std::wstring& subKey, RegistryKey& key) = 0;
  virtual std::int32_t RegCloseKey(RegistryKey key) = 0;
  // Reads a value of at most `room` characters; a longer one gives kErrorMoreData and leaves `data` empty.
  virtual std::int32_t RegQueryValueExA(RegistryKey key, const std::wstring& name, std::size_t room,
                                        std::uint32_t& type, std::wstring& data) = 0;
  // Stores a value, with `data` as told above.
  virtual std::int32_t RegSetValueExA(RegistryKey key, const std::wstring& name, std::uint32_t type,
                                      const std::wstring& data) = 0;
  virtual std::int32_t RegDeleteValueA(RegistryKey key, const std::wstring& name) = 0;
  // Deletes the key `name` below `key` with its values. A key that still has keys below it is refused.
  virtual std::int32_t RegDeleteKeyA(RegistryKey key, const std::wstring& name) = 0;
};

}  // namespace burrowmark
