// The list of all shortcuts over a large tree, half of it on a server that is away.
#include <benchmark/benchmark.h>

#include "bench/bench_machine.h"
#include "core/numbers.h"
#include "tools/frm_shortcuts_list.h"

namespace burrowmark {
namespace {

// Until the window is there with all rows.
void ShowShortcutsList(benchmark::State& state) {
  BenchMachine machine;
  Application app(machine.platform());
  for (std::int64_t i = 0; i < state.range(0); ++i) {
    const auto item = std::make_shared<clsMenuItem>(machine.machine.clock);
    item->SetCaption(L"A shortcut with a title of some length " + DecimalText(i));
    item->SetOwnerName(MIT_GROUP_USER);
    item->FolderPath = i % 2 == 0 ? L"C:\\Windows" : L"\\\\away\\share\\" + DecimalText(i);
    app.MainStore().AddOne(item, true, true);
  }
  machine.machine.faults.SilentPlaces = {L"\\\\AWAY"};
  for (auto _ : state) {
    frmShortcutsList list(app);
    list.Init(app.MainDocument.Store, {});
    list.Show();
    state.PauseTiming();
    list.Unload();
    machine.machine.windows.DoEvents();
    state.ResumeTiming();
  }
}
BENCHMARK(ShowShortcutsList)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace burrowmark
