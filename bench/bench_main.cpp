// Runs the benchmarks and prints how their costs grow: a cost of 3,000 entries as a multiple of that of 300, and that
// of reading and writing as a multiple of what no reader and no writer can do without. Medians where a run is repeated.
//
// Marks: growth at most 13, reading and writing at most 5, a report in text at most 2 walks and as a page at most 3.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace {

struct Ratio {
  const char* cost;
  const char* base;
};

constexpr Ratio kRatios[] = {
    {"SortedAdds/3000", "SortedAdds/300"},
    {"FullBuild/3000", "FullBuild/300"},
    {"Rebuild/3000", "Rebuild/300"},
    {"CopySubTree/3000", "CopySubTree/300"},
    {"DeleteSubTree/3000", "DeleteSubTree/300"},
    {"Projection/3000", "Projection/300"},
    {"OpenTheEditor/3000", "OpenTheEditor/300"},
    {"RefreshThePanes/3000", "RefreshThePanes/300"},
    {"CopyAndPasteAGroup/10000", "CopyAndPasteAGroup/1000"},
    {"TakeAPasteBack/10000", "TakeAPasteBack/1000"},
    {"ReadRecords/10000", "BareSplit/10000"},
    {"WriteRecords/10000", "BareCopy/10000"},
    {"Report/text/10000", "BareWalk/10000"},
    {"Report/page/10000", "BareWalk/10000"},
    {"Report/clipboard/10000", "BareWalk/10000"},
    {"Report/page/10000", "Report/page/1000"},
};

class RatioReporter final : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      const bool counts = run.run_type == Run::RT_Iteration ? run.repetitions == 1 : run.aggregate_name == "median";
      if (counts && !run.error_occurred) times_[run.run_name.str()] = run.GetAdjustedCPUTime();
    }
  }

  void PrintRatios() const {
    for (const Ratio& ratio : kRatios) {
      const auto cost = times_.find(ratio.cost);
      const auto base = times_.find(ratio.base);
      if (cost == times_.end() || base == times_.end()) continue;
      std::printf("%-24s : %-24s %6.1f\n", ratio.cost, ratio.base, cost->second / base->second);
    }
  }

 private:
  std::map<std::string, double> times_;
};

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  reporter.PrintRatios();
  return 0;
}
