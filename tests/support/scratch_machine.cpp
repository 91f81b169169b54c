#include "tests/support/scratch_machine.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>

#include "core/registry.h"

namespace burrowmark::test {

ScratchFolder::ScratchFolder() {
  static std::atomic<unsigned> next{0};
  const auto stamp = std::chrono::steady_clock::now().time_since_epoch().count();
  path_ = std::filesystem::temp_directory_path() /
          ("burrowmark-test-" + std::to_string(stamp) + "-" + std::to_string(next++));
  std::filesystem::create_directories(path_);
}

ScratchFolder::~ScratchFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

ScratchMachine::ScratchMachine() : machine(folder.Path()), app(machine.platform()) {
  machine.clock.Fixed = kNow;
  app.AppPath = L"C:\\Program Files\\Burrowmark";
}

ScratchMachine::~ScratchMachine() { EXPECT_EQ(machine.user.Complaints(), ""); }

std::wstring ScratchMachine::Registered(const wchar_t* key, const std::wstring& value) {
  std::wstring text;
  clsRegHandler(machine.registry).GetKeyValue(RegistryKey::kCurrentUser, key, value, text);
  return text;
}

void ScratchMachine::Register(const wchar_t* key, const std::wstring& value, const std::wstring& text) {
  clsRegHandler(machine.registry).SetKeyValue(RegistryKey::kCurrentUser, key, value, text);
}

ItemRef MakeItem(const Clock& clock, const std::wstring& name, const std::wstring& caption, const std::wstring& owner,
                 bool group) {
  auto item = std::make_shared<clsMenuItem>(clock);
  item->SetName(name);
  item->SetCaption(caption);
  item->SetOwnerName(owner);
  item->SetSubMenu(group);
  return item;
}

std::wstring NamesOf(const clsMenuCollection& store) {
  std::wstring names;
  for (std::int32_t i = 1; i <= store.Count(); ++i) names += (i > 1 ? L" " : L"") + store.Item(i)->Name();
  return names;
}

std::wstring TitlesUnder(const clsMenuCollection& store, const std::wstring& owner) {
  std::wstring titles;
  for (std::int32_t i = 1; i <= store.Count(); ++i) {
    if (store.Item(i)->OwnerName() == owner) titles += (titles.empty() ? L"" : L" ") + store.Item(i)->Caption();
  }
  return titles;
}

}  // namespace burrowmark::test
