// Whatever the bytes of a configuration file: the read ends, the store holds together, and what was read can be
// written, read again and given a new summary without losing an item.
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string_view>

#include "config/config_listing.h"
#include "config/config_reader.h"
#include "config/config_writer.h"
#include "core/failure.h"
#include "core/hot_keys.h"
#include "menu/menu_setup.h"
#include "tests/support/scratch_machine.h"

namespace burrowmark {
namespace {

void Require(bool holds, const char* what) {
  if (holds) return;
  std::cerr << "broken: " << what << '\n';
  std::abort();
}

void CheckStore(Application& app, clsMenuCollection& store) {
  Require(test::UniqueKeysIn(store).empty(), "unique keys");
  for (std::int32_t i = 1; i <= store.Count(); ++i) {
    store.ItemFullPath(*store.Item(i));
    store.GetItemRootNode(*store.Item(i));
  }
  AddFixedEntries(app, store, false);
  RefreshHotKeys(app, store);
  Require(test::UniqueKeysIn(store).empty(), "unique keys with the fixed entries");
  Skip([&] { WriteTextReport(app, store); });
}

std::string ReadAndWrite(Application& app, const std::string& bytes, std::int32_t& count) {
  clsMenuCollection store(app.platform.clock);
  ConfigContent content;
  Require(ReadConfig(app, bytes, store, content), "a written file is read");
  count = store.Count();
  return BuildConfig(app, store);
}

// A date of 0 is read as now, and a negative code as none: after that nothing changes any more.
void CheckRoundTrip(Application& app, const clsMenuCollection& store) {
  std::int32_t first = 0;
  std::int32_t second = 0;
  const std::string settled = ReadAndWrite(app, BuildConfig(app, store), first);
  Require(ReadAndWrite(app, settled, second) == settled, "a file that was read is written as it was");
  Require(first == second, "no item is lost");
  app.Summary.SummaryTitle = L"[END:]";
  std::string replaced;
  Require(ReplaceSummary(app, settled, replaced), "a summary is replaced");
  ReadAndWrite(app, replaced, second);
  Require(first == second, "no item is lost by a new summary");
}

void Check(Application& app, std::string_view bytes) {
  app.AC[0] = bytes.size() % 2 == 0;
  app.Summary = {};
  clsMenuCollection store(app.platform.clock);
  ConfigContent content;
  const bool read = ReadConfig(app, bytes, store, content);
  if (read) CheckRoundTrip(app, store);
  CheckStore(app, store);
  std::string replaced;
  ReplaceSummary(app, bytes, replaced);
}

}  // namespace
}  // namespace burrowmark

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static burrowmark::test::ScratchMachine scratch;
  burrowmark::Check(scratch.app, std::string_view(reinterpret_cast<const char*>(data), size));
  return 0;
}
