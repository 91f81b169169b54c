// The registry of the real system.
#pragma once

#include <map>
#include <memory>

#include "platform/registry_api.h"

namespace burrowmark {

// Hands out numbers of its own instead of the system's handles, so that a key which was closed already is told from
// one that the system opened meanwhile under the same handle. Keys still open are closed with the object.
class Win32Registry final : public RegistryApi {
 public:
  Win32Registry();
  ~Win32Registry() override;
  Win32Registry(const Win32Registry&) = delete;
  Win32Registry& operator=(const Win32Registry&) = delete;

  std::int32_t RegOpenKeyExA(RegistryKey parent, const std::wstring& subKey, std::uint32_t access,
                             RegistryKey& key) override;
  std::int32_t RegCreateKeyA(RegistryKey parent, const std::wstring& subKey, RegistryKey& key) override;
  std::int32_t RegCloseKey(RegistryKey key) override;
  std::int32_t RegQueryValueExA(RegistryKey key, const std::wstring& name, std::size_t room, std::uint32_t& type,
                                std::wstring& data) override;
  std::int32_t RegSetValueExA(RegistryKey key, const std::wstring& name, std::uint32_t type,
                              const std::wstring& data) override;
  std::int32_t RegDeleteValueA(RegistryKey key, const std::wstring& name) override;
  std::int32_t RegDeleteKeyA(RegistryKey key, const std::wstring& name) override;

 private:
  class OpenKey;

  std::map<RegistryKey, std::unique_ptr<OpenKey>> open_;
  std::uint64_t lastHandle_ = 0x100;
};

}  // namespace burrowmark
