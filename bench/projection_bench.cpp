// What the user waits for when the tree is written to the disk as folders and link files, on the local machine.
//
// Mark, as a median: 1,000 links that weren't there in 1.5 s.
#include <benchmark/benchmark.h>

#include "bench/bench_machine.h"
#include "core/numbers.h"
#include "projection/organized_folders.h"

namespace burrowmark {
namespace {

constexpr std::int64_t kGroups = 20;

void Fill(clsMenuCollection& store, std::int64_t links) {
  store.AddNewMenuItem({.Caption = L"Personal", .OwnerName = kRootOwner, .Name = MIT_GROUP_USER, .SubMenu = true});
  for (std::int64_t i = 0; i < kGroups; ++i) {
    const std::wstring name = L"G" + DecimalText(i);
    store.AddNewMenuItem({.Caption = name, .OwnerName = MIT_GROUP_USER, .Name = name, .SubMenu = true});
  }
  for (std::int64_t i = 0; i < links; ++i) {
    store.AddNewMenuItem({.Caption = L"A shortcut with a title of some length " + DecimalText(i),
                          .OwnerName = L"G" + DecimalText(i % kGroups),
                          .FolderPath = L"C:\\Windows\\System32"});
  }
}

void Projection(benchmark::State& state) {
  const std::int64_t links = state.range(0);
  BenchMachine bench;
  Application app(bench.platform());
  InitOrganizedFoldersPaths(app);
  Fill(app.MainStore(), links);
  const std::wstring last = app.OrganizedFoldersDesktop + L"\\G" + DecimalText((links - 1) % kGroups) +
                            L"\\A shortcut with a title of some length " + DecimalText(links - 1) + L".lnk";
  std::int64_t runs = 0;
  for (auto _ : state) {
    RefreshOrganizedFoldersDesktop(app, app.MainDocument.Store, false);
    state.PauseTiming();
    if (!app.platform.files.FileExists(last)) state.SkipWithError("not written");
    // Put aside, not removed: a disk may be slow to give out anew what was freed a moment ago.
    std::filesystem::rename(bench.machine.RealPath(app.OrganizedFoldersDesktop),
                            bench.machine.RealPath(L"C:\\Old " + DecimalText(++runs)));
    state.ResumeTiming();
  }
}
BENCHMARK(Projection)->Arg(300)->Arg(1000)->Arg(3000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace burrowmark
