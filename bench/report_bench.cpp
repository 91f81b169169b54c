// A report on a folder of many files, beside a walk through it that does nothing.
#include <benchmark/benchmark.h>

#include "bench/bench_machine.h"
#include "core/numbers.h"
#include "tools/folder_report.h"

namespace burrowmark {
namespace {

constexpr wchar_t kFolder[] = L"C:\\Reported";

class BenchFolder : public BenchMachine {
 public:
  explicit BenchFolder(std::int64_t files) {
    machine.AddFolders(kFolder);
    for (std::int64_t i = 0; i < files; ++i) {
      machine.AddFile(kFolder + (L"\\a file with a name of some length " + DecimalText(i) + L".txt"), "content");
    }
  }
};

void BareWalk(benchmark::State& state) {
  BenchFolder folder(state.range(0));
  for (auto _ : state) {
    folder.machine.files.WalkFolder(kFolder, [](const FolderEntry&, const FileFacts&) { return true; });
  }
}
BENCHMARK(BareWalk)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

void Report(benchmark::State& state, const wchar_t* target) {
  BenchFolder folder(state.range(0));
  ReportRequest request;
  request.Folder = kFolder;
  request.Delimiter = L";";
  request.Target = target;
  request.Moment = Now(folder.machine.clock);
  request.Columns.fill(true);
  for (auto _ : state) {
    ReportRun run;
    if (!WriteReport(request, folder.machine.files, folder.machine.facts, run)) state.SkipWithError("no report");
  }
}
BENCHMARK_CAPTURE(Report, text, L"C:\\out.csv")->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Report, page, L"C:\\out.html")->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Report, clipboard, L"")->Arg(10000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace burrowmark
