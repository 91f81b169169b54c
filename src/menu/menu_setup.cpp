#include "menu/menu_setup.h"

namespace burrowmark {
namespace {

NewMenuItem FixedEntry(const wchar_t* name, const wchar_t* caption, const std::wstring& beforeKey) {
  NewMenuItem entry;
  entry.Caption = caption;
  entry.OwnerName = kRootOwner;
  entry.Name = name;
  entry.ItemType = name;
  entry.Remark = REMARK_AUTO;
  entry.BeforeKey = beforeKey;
  return entry;
}

NewMenuItem FixedSeparator(const wchar_t* name, const std::wstring& beforeKey) {
  NewMenuItem entry = FixedEntry(name, L"", beforeKey);
  entry.ItemType.clear();
  entry.Separator = true;
  return entry;
}

// The key that the Help entries stand ahead of; empty in a store without a top level.
std::wstring FirstRootKey(const clsMenuCollection& store) {
  if (store.GetMenuItemFromName(MIT_GROUP_USER)) return MIT_GROUP_USER;
  for (std::int32_t i = 1; i <= store.Count(); ++i) {
    if (store.Item(i)->OwnerName == kRootOwner) return store.Item(i)->Name();
  }
  return {};
}

}  // namespace

void AddFixedEntries(Application& app, clsMenuCollection& store, bool AddSystemGroup) {
  store.AddNewMenuItem(FixedSeparator(MIT_HF_DRIVES_SEP, {}));
  store.AddNewMenuItem(FixedEntry(MIT_HF_ORGANIZE, L"Organize Folders", {}));
  if (app.AC[2]) AddHelpEntries(store);
  if (app.AC[3]) AddOptionsEntry(store);
  static_cast<void>(AddSystemGroup);
}

void AddHelpEntries(clsMenuCollection& store) {
  const std::wstring before = FirstRootKey(store);
  store.AddNewMenuItem(FixedEntry(MIT_HF_HELP, L"Help", before));
  store.AddNewMenuItem(FixedSeparator(MIT_HF_HELP_SEP, before));
}

void AddOptionsEntry(clsMenuCollection& store) {
  store.AddNewMenuItem(FixedEntry(MIT_HF_SETTINGS, L"Options", MIT_HF_ORGANIZE));
}

}  // namespace burrowmark
