// The Options dialog over the local machine. Marks, as medians: it opens in 50 ms, and an Apply that changes nothing
// takes 20 ms.
#include <benchmark/benchmark.h>

#include <memory>

#include "bench/bench_machine.h"
#include "options/frm_options.h"

namespace burrowmark {
namespace {

void OpenTheOptions(benchmark::State& state) {
  BenchMachine bench;
  Application app(bench.platform());
  for (auto _ : state) {
    auto dialog = std::make_unique<frmOptions>(app);
    dialog->Init(app.MainDocument, [](const OptionSteps&) {});
    dialog->Show();
    state.PauseTiming();
    dialog.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(OpenTheOptions)->Unit(benchmark::kMillisecond);

void ApplyNothing(benchmark::State& state) {
  BenchMachine bench;
  Application app(bench.platform());
  frmOptions dialog(app);
  dialog.Init(app.MainDocument, [&state](const OptionSteps&) { state.SkipWithError("something to do"); });
  dialog.Show();
  ShownWindow& window = bench.machine.user.Window(L"Options");
  WindowHandle tree = 0;
  for (const auto& control : window.controls) {
    if (tree == 0 && control->kind == ShownKind::kTreeView) tree = control->window;
  }
  for (auto _ : state) {
    state.PauseTiming();
    window.CheckNode(tree, L"Ask before deleting items");
    state.ResumeTiming();
    window.Click(L"Apply");
  }
}
BENCHMARK(ApplyNothing)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace burrowmark
