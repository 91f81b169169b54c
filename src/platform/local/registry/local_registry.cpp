#include "platform/local/registry/local_registry.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/local/folded.h"

namespace burrowmark {
namespace {

// Further results of the system (winerror.h) that the program doesn't tell apart.
constexpr std::int32_t kErrorInvalidHandle = 6;
constexpr std::int32_t kErrorInvalidParameter = 87;
constexpr std::int32_t kErrorBadPathName = 161;
constexpr std::int32_t kErrorRegistryIoFailed = 1016;

constexpr std::size_t kLongestKeyName = 255;
constexpr std::uint32_t kMayWrite = 2 | 4;  // the rights to set values and to make keys

struct RootName {
  RegistryKey key;
  const wchar_t* name;
};

constexpr RootName kRoots[] = {{RegistryKey::kClassesRoot, L"HKEY_CLASSES_ROOT"},
                               {RegistryKey::kCurrentUser, L"HKEY_CURRENT_USER"},
                               {RegistryKey::kLocalMachine, L"HKEY_LOCAL_MACHINE"}};

const RootName* RootOf(RegistryKey key) {
  const auto* root =
      std::find_if(std::begin(kRoots), std::end(kRoots), [key](const RootName& row) { return row.key == key; });
  return root == std::end(kRoots) ? nullptr : root;
}

// Appends the names of `subKey` to `path`. Empty names, as behind a closing backslash, are passed over.
std::int32_t AppendNames(std::wstring_view subKey, std::wstring& path) {
  if (subKey.starts_with(L'\\')) return kErrorBadPathName;
  if (subKey.find(L'\0') != std::wstring_view::npos) return kErrorInvalidParameter;
  while (!subKey.empty()) {
    const std::size_t length = std::min(subKey.find(L'\\'), subKey.size());
    if (length > kLongestKeyName) return kErrorInvalidParameter;
    if (length > 0) path.append(L"\\").append(subKey.substr(0, length));
    subKey.remove_prefix(std::min(length + 1, subKey.size()));
  }
  return kErrorSuccess;
}

}  // namespace

LocalRegistry::LocalRegistry(const std::filesystem::path& folder, Faults& faults)
    : faults_(faults), kept_(folder / "registry.txt") {
  for (const RootName& root : kRoots) tree_[root.name].path = root.name;
}

void LocalRegistry::Refresh() {
  if (!kept_.Refresh()) return;
  tree_ = RegistryFromText(kept_.Text());
  for (const RootName& root : kRoots) tree_[root.name].path = root.name;
}

std::int32_t LocalRegistry::Save() {
  if (kept_.Save(RegistryToText(tree_))) return kErrorSuccess;
  tree_ = RegistryFromText(kept_.Text());
  return kErrorRegistryIoFailed;
}

const LocalRegistry::OpenKey* LocalRegistry::Opened(RegistryKey key) const {
  const auto found = open_.find(key);
  return found == open_.end() ? nullptr : &found->second;
}

std::wstring LocalRegistry::Subject(RegistryKey key, const std::wstring& name) const {
  const RootName* root = RootOf(key);
  const OpenKey* opened = Opened(key);
  const std::wstring path = root != nullptr ? root->name : opened != nullptr ? opened->path : L"";
  return name.empty() ? path : path + L'\\' + name;
}

std::int32_t LocalRegistry::Usable(RegistryKey key, bool forWriting) const {
  if (RootOf(key) != nullptr) return kErrorSuccess;
  const OpenKey* opened = Opened(key);
  if (opened == nullptr) return kErrorInvalidHandle;
  return forWriting && !opened->writable ? kErrorAccessDenied : kErrorSuccess;
}

std::int32_t LocalRegistry::Locate(RegistryKey parent, const std::wstring& subKey, std::wstring& path) const {
  const std::int32_t result = Usable(parent, false);
  if (result != kErrorSuccess) return result;
  path = Subject(parent, L"");
  return AppendNames(subKey, path);
}

RegistryKey LocalRegistry::Hand(const std::wstring& path, bool writable) {
  lastHandle_ += 4;
  const auto handle = static_cast<RegistryKey>(lastHandle_);
  open_[handle] = {path, writable};
  return handle;
}

bool LocalRegistry::IsRefused(const std::wstring& path) const {
  const std::wstring folded = Folded(path) + L'\\';
  return std::any_of(faults_.RefusedKeys.begin(), faults_.RefusedKeys.end(),
                     [&folded](const std::wstring& refused) { return folded.starts_with(refused + L'\\'); });
}

bool LocalRegistry::HasKeysBelow(const std::wstring& path) const {
  const std::wstring start = Folded(path) + L'\\';
  const auto next = tree_.lower_bound(start);
  return next != tree_.end() && next->first.starts_with(start);
}

RegistryNode& LocalRegistry::Node(RegistryKey key) { return tree_[Folded(Subject(key, L""))]; }

std::int32_t LocalRegistry::RegOpenKeyExA(RegistryKey parent, const std::wstring& subKey, std::uint32_t access,
                                          RegistryKey& key) {
  key = RegistryKey::kNone;
  if (faults_.Strikes("RegOpenKeyExA", Subject(parent, subKey))) return kErrorAccessDenied;
  Refresh();
  std::wstring path;
  const std::int32_t result = Locate(parent, subKey, path);
  if (result != kErrorSuccess) return result;
  const auto found = tree_.find(Folded(path));
  if (found == tree_.end()) return kErrorFileNotFound;
  const bool writable = (access & kMayWrite) != 0;
  if (writable && IsRefused(path)) return kErrorAccessDenied;
  key = Hand(found->second.path, writable);
  return kErrorSuccess;
}

std::int32_t LocalRegistry::RegCreateKeyA(RegistryKey parent, const std::wstring& subKey, RegistryKey& key) {
  key = RegistryKey::kNone;
  if (faults_.Strikes("RegCreateKeyA", Subject(parent, subKey))) return kErrorAccessDenied;
  Refresh();
  std::wstring path;
  std::int32_t result = Locate(parent, subKey, path);
  if (result != kErrorSuccess) return result;
  if (IsRefused(path)) return kErrorAccessDenied;
  const std::size_t keysBefore = tree_.size();
  for (std::size_t end = path.find(L'\\'); end != std::wstring::npos; end = path.find(L'\\', end + 1)) {
    RegistryNode& way = tree_[Folded(path.substr(0, end))];
    if (way.path.empty()) way.path = path.substr(0, end);
  }
  RegistryNode& node = tree_[Folded(path)];
  if (node.path.empty()) node.path = path;
  const std::wstring spelt = node.path;
  if (tree_.size() != keysBefore) result = Save();
  if (result == kErrorSuccess) key = Hand(spelt, true);
  return result;
}

std::int32_t LocalRegistry::RegCloseKey(RegistryKey key) {
  const bool struck = faults_.Strikes("RegCloseKey", Subject(key, L""));
  if (RootOf(key) != nullptr) return struck ? kErrorInvalidHandle : kErrorSuccess;
  return open_.erase(key) == 0 || struck ? kErrorInvalidHandle : kErrorSuccess;
}

std::int32_t LocalRegistry::RegQueryValueExA(RegistryKey key, const std::wstring& name, std::size_t room,
                                             std::uint32_t& type, std::wstring& data) {
  data.clear();
  type = 0;
  if (faults_.Strikes("RegQueryValueExA", Subject(key, name))) return kErrorAccessDenied;
  Refresh();
  const std::int32_t result = Usable(key, false);
  if (result != kErrorSuccess) return result;
  const auto& values = Node(key).values;
  const auto found = values.find(Folded(name));
  if (found == values.end()) return kErrorFileNotFound;
  type = found->second.type;
  if (found->second.data.size() > room) return kErrorMoreData;
  data = found->second.data;
  return kErrorSuccess;
}

std::int32_t LocalRegistry::RegSetValueExA(RegistryKey key, const std::wstring& name, std::uint32_t type,
                                           const std::wstring& data) {
  if (faults_.Strikes("RegSetValueExA", Subject(key, name))) return kErrorAccessDenied;
  Refresh();
  const std::int32_t result = Usable(key, true);
  if (result != kErrorSuccess) return result;
  RegistryValue& value = Node(key).values[Folded(name)];
  if (value.name.empty()) value.name = name;
  value.type = type;
  value.data = data;
  return Save();
}

std::int32_t LocalRegistry::RegDeleteValueA(RegistryKey key, const std::wstring& name) {
  if (faults_.Strikes("RegDeleteValueA", Subject(key, name))) return kErrorAccessDenied;
  Refresh();
  const std::int32_t result = Usable(key, true);
  if (result != kErrorSuccess) return result;
  return Node(key).values.erase(Folded(name)) == 0 ? kErrorFileNotFound : Save();
}

std::int32_t LocalRegistry::RegDeleteKeyA(RegistryKey key, const std::wstring& name) {
  if (faults_.Strikes("RegDeleteKeyA", Subject(key, name))) return kErrorAccessDenied;
  Refresh();
  std::wstring path;
  const std::int32_t result = Locate(key, name, path);
  if (result != kErrorSuccess) return result;
  const std::wstring folded = Folded(path);
  if (!tree_.contains(folded)) return kErrorFileNotFound;
  const bool isRoot = path.find(L'\\') == std::wstring::npos;
  if (isRoot || IsRefused(path) || HasKeysBelow(path)) return kErrorAccessDenied;
  tree_.erase(folded);
  return Save();
}

}  // namespace burrowmark
