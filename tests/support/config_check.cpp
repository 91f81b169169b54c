#include "tests/support/config_check.h"

#include <set>

#include "config/config_listing.h"
#include "config/config_reader.h"
#include "config/config_writer.h"
#include "core/failure.h"
#include "core/hot_keys.h"
#include "core/text.h"
#include "menu/menu_setup.h"

namespace burrowmark::test {
namespace {

bool KeysDiffer(const clsMenuCollection& store) {
  std::set<std::wstring> keys;
  for (std::int32_t i = 1; i <= store.Count(); ++i) keys.insert(UpperCaseText(store.Item(i)->Name()));
  return keys.size() == static_cast<std::size_t>(store.Count());
}

// Every entry stands behind a group that owns it, up to the two of the top level.
bool OwnersComeFirst(const clsMenuCollection& store) {
  std::set<std::wstring> groups;
  for (std::int32_t i = 1; i <= store.Count(); ++i) {
    const clsMenuItem& item = *store.Item(i);
    const bool top = item.Name() == MIT_GROUP_USER || item.Name() == MIT_PATHS_SYSTEM;
    if (top ? item.OwnerName() != kRootOwner : !groups.contains(item.OwnerName())) return false;
    if (item.SubMenu()) groups.insert(item.Name());
  }
  return true;
}

std::string ReadAndWrite(Application& app, const std::string& bytes, std::int32_t& count) {
  clsMenuCollection store(app.platform.clock);
  ConfigContent content;
  count = ReadConfig(app, bytes, store, content) ? store.Count() : -1;
  return BuildConfig(app, store, content.summary);
}

// A date of 0 is read as now, and a negative code as none: after that nothing changes any more.
std::string BrokenRoundTrip(Application& app, const clsMenuCollection& store) {
  std::int32_t first = 0;
  std::int32_t second = 0;
  const std::string settled = ReadAndWrite(app, BuildConfig(app, store, {}), first);
  if (first < 0) return "a written file isn't read";
  if (ReadAndWrite(app, settled, second) != settled) return "a file that was read isn't written as it was";
  if (first != second) return "an item is lost";
  std::string replaced;
  if (!ReplaceSummary(app, settled, {.SummaryTitle = L"[END:]"}, replaced)) return "a summary isn't replaced";
  ReadAndWrite(app, replaced, second);
  return first == second ? "" : "an item is lost by a new summary";
}

}  // namespace

std::string BrokenBy(Application& app, std::string_view bytes) {
  app.AC[Appearance::kSystemFolders] = bytes.size() % 2 == 0;
  Document document;
  document.Store = std::make_shared<clsMenuCollection>(app.platform.clock);
  clsMenuCollection& store = *document.Store;
  ConfigContent content;
  const bool read = ReadConfig(app, bytes, store, content);
  if (!OwnersComeFirst(store)) return "an entry ahead of its owner, or without one";
  const std::string broken = read ? BrokenRoundTrip(app, store) : std::string();
  for (std::int32_t i = 1; i <= store.Count(); ++i) {  // every walk ends
    store.ItemFullPath(*store.Item(i));
    store.GetItemRootNode(*store.Item(i));
  }
  AddFixedEntries(app, store, false);
  RefreshHotKeys(app, document.Store);
  WriteTextReport(app, document);
  std::string replaced;
  ReplaceSummary(app, bytes, {}, replaced);
  return broken.empty() && !KeysDiffer(store) ? "two equal keys" : broken;
}

}  // namespace burrowmark::test
