#include "tests/support/scratch_machine.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <set>

#include "core/text.h"

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

std::string UniqueKeysIn(const clsMenuCollection& store) {
  std::set<std::wstring> keys;
  for (std::int32_t i = 1; i <= store.Count(); ++i) {
    if (!keys.insert(UpperCaseText(store.Item(i)->Name())).second) return "two of " + ToUtf8(store.Item(i)->Name());
  }
  return {};
}

std::string OwnersAheadIn(const clsMenuCollection& store) {
  std::set<std::wstring> seen;
  for (std::int32_t i = 1; i <= store.Count(); ++i) {
    const clsMenuItem& item = *store.Item(i);
    seen.insert(item.Name());
    if (store.ItemExists(item.OwnerName()) && !seen.contains(item.OwnerName())) {
      return ToUtf8(item.Name()) + " stands ahead of its owner " + ToUtf8(item.OwnerName());
    }
  }
  return {};
}

}  // namespace burrowmark::test
