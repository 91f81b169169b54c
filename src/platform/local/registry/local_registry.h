// The registry of the local machine.
#pragma once

#include <filesystem>
#include <map>

#include "platform/local/faults.h"
#include "platform/local/registry/kept_text.h"
#include "platform/local/registry/registry_text.h"
#include "platform/registry_api.h"

namespace burrowmark {

// In the record of calls and in the refused keys a key's path starts with the root's full name, as in
// "HKEY_CURRENT_USER\Software"; the name of a value follows its key behind a backslash.
class LocalRegistry final : public RegistryApi {
 public:
  // `folder` is the machine's; the faults must outlive this object.
  LocalRegistry(const std::filesystem::path& folder, Faults& faults);

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

  // How many keys are open and wait for RegCloseKey.
  std::size_t OpenKeys() const { return open_.size(); }

 private:
  struct OpenKey {
    std::wstring path;
    bool writable = false;
  };

  void Refresh();
  std::int32_t Save();
  const OpenKey* Opened(RegistryKey key) const;
  std::wstring Subject(RegistryKey key, const std::wstring& name) const;
  std::int32_t Locate(RegistryKey parent, const std::wstring& subKey, std::wstring& path) const;
  std::int32_t Usable(RegistryKey key, bool forWriting) const;
  RegistryKey Hand(const std::wstring& path, bool writable);
  bool IsRefused(const std::wstring& path) const;
  bool HasKeysBelow(const std::wstring& path) const;
  RegistryNode& Node(RegistryKey key);

  Faults& faults_;
  KeptText kept_;
  RegistryTree tree_;
  std::map<RegistryKey, OpenKey> open_;
  std::uint64_t lastHandle_ = 0x100;
};

}  // namespace burrowmark
