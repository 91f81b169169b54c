// The costs of the store and its file that a user feels: start, save, sorting in.
//
// Marks, as medians: 10,000 records read in 50 ms and written in 50 ms, 10,000 sorted adds in 60 ms. Run with
//   build/release/bench/bench_all --benchmark_repetitions=7 --benchmark_report_aggregates_only=true
#include <benchmark/benchmark.h>

#include <random>

#include "bench/bench_machine.h"
#include "config/config_format.h"
#include "config/config_reader.h"
#include "config/config_writer.h"
#include "core/numbers.h"
#include "core/store_copy.h"
#include "platform/local/local_clock.h"

namespace burrowmark {
namespace {

std::wstring Title(std::mt19937& random) {
  std::wstring title;
  for (int i = 0; i < 14; ++i) title += static_cast<wchar_t>(L'a' + random() % 26);
  return title;
}

// The personal group with a hundred entries in each of its groups.
void Fill(clsMenuCollection& store, const Clock& clock, std::int64_t records) {
  std::mt19937 random(1);
  auto top = std::make_shared<clsMenuItem>(clock);
  top->SetName(MIT_GROUP_USER);
  top->SetCaption(L"Personal");
  top->SetOwnerName(kRootOwner);
  top->SetSubMenu(true);
  store.AddOne(top, true, true);
  std::wstring group = MIT_GROUP_USER;
  for (std::int64_t i = 1; i < records; ++i) {
    const bool isGroup = i % 100 == 1;
    auto item = std::make_shared<clsMenuItem>(clock);
    item->SetName(L"N" + DecimalText(i));
    item->SetCaption(Title(random));
    item->SetOwnerName(isGroup ? std::wstring(MIT_GROUP_USER) : group);
    item->SetSubMenu(isGroup);
    if (isGroup) group = item->Name();
    item->FolderPath = isGroup ? L"" : L"C:\\Users\\User\\Documents\\" + item->Caption();
    store.AddOne(item, true, true);
  }
}

std::string FileOf(Application& app, std::int64_t records) {
  clsMenuCollection store(app.platform.clock);
  Fill(store, app.platform.clock, records);
  return BuildConfig(app, store);
}

void ReadRecords(benchmark::State& state) {
  BenchMachine machine;
  Application app(machine.platform());
  const std::string bytes = FileOf(app, state.range(0));
  for (auto _ : state) {
    auto store = std::make_unique<clsMenuCollection>(app.platform.clock);
    ConfigContent content;
    if (!ReadConfig(app, bytes, *store, content) || store->Count() != state.range(0)) state.SkipWithError("not read");
    state.PauseTiming();
    store.reset();
    state.ResumeTiming();
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}
BENCHMARK(ReadRecords)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

// What no reader of these bytes can do without: decoding them and finding the tokens.
void BareSplit(benchmark::State& state) {
  BenchMachine machine;
  Application app(machine.platform());
  const std::string bytes = FileOf(app, state.range(0));
  for (auto _ : state) {
    bool utf8 = false;
    const std::wstring text = DecodeConfig(bytes, app.platform.system, utf8);
    benchmark::DoNotOptimize(SplitTokens(text).data());
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}
BENCHMARK(BareSplit)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

void WriteRecords(benchmark::State& state) {
  BenchMachine machine;
  Application app(machine.platform());
  clsMenuCollection store(app.platform.clock);
  Fill(store, app.platform.clock, state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(BuildConfig(app, store).data());
}
BENCHMARK(WriteRecords)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

// What no writer of these bytes can do without: putting the tokens one behind the other and encoding them.
void BareCopy(benchmark::State& state) {
  BenchMachine machine;
  Application app(machine.platform());
  bool utf8 = false;
  const std::wstring text = DecodeConfig(FileOf(app, state.range(0)), app.platform.system, utf8);
  const std::vector<std::wstring_view> tokens = SplitTokens(text);
  for (auto _ : state) {
    std::wstring copy;
    for (const std::wstring_view token : tokens) AppendToken(copy, token);
    benchmark::DoNotOptimize(EncodeConfig(copy, app.platform.system, false).data());
  }
}
BENCHMARK(BareCopy)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

void SortedAdds(benchmark::State& state) {
  const LocalClock clock;
  for (auto _ : state) {
    std::mt19937 random(1);
    clsMenuCollection store(clock);
    store.AddNewMenuItem({.Caption = L"Personal", .OwnerName = kRootOwner, .Name = MIT_GROUP_USER, .SubMenu = true});
    for (std::int64_t i = 0; i < state.range(0); ++i) {
      store.AddNewMenuItem({.Caption = Title(random), .OwnerName = MIT_GROUP_USER, .FolderPath = L"C:\\x"});
    }
    if (store.Count() != state.range(0) + 1) state.SkipWithError("not added");
  }
}
BENCHMARK(SortedAdds)->Arg(300)->Arg(3000)->Arg(10000)->Unit(benchmark::kMillisecond);

void CopySubTree(benchmark::State& state) {
  const LocalClock clock;
  clsMenuCollection store(clock);
  Fill(store, clock, state.range(0));
  for (auto _ : state) {
    const auto copy = CopyGroup(clock, store, MIT_GROUP_USER);
    if (copy->Count() != store.Count()) state.SkipWithError("not copied");
  }
}
BENCHMARK(CopySubTree)->Arg(300)->Arg(3000)->Unit(benchmark::kMillisecond);

// What a group holds goes first, from its end, then the group.
void DeleteSubTree(benchmark::State& state) {
  const LocalClock clock;
  clsMenuCollection source(clock);
  Fill(source, clock, state.range(0));
  for (auto _ : state) {
    state.PauseTiming();
    const auto store = CopyGroup(clock, source, MIT_GROUP_USER);
    if (!store->HasChildren(MIT_GROUP_USER)) state.SkipWithError("nothing to delete");
    state.ResumeTiming();
    while (store->Count() > 0) store->Remove(store->Item(store->Count())->Name());
  }
}
BENCHMARK(DeleteSubTree)->Arg(300)->Arg(3000)->Unit(benchmark::kMillisecond);

void NextFreeId(benchmark::State& state) {
  const LocalClock clock;
  clsMenuCollection store(clock);
  Fill(store, clock, state.range(0));
  for (std::int32_t i = 1; i <= store.Count(); ++i) store.Item(i)->SetID(49 + i);
  store.IDCounter = 49 + store.Count();
  for (auto _ : state) benchmark::DoNotOptimize(store.GetNextFreeID());
}
BENCHMARK(NextFreeId)->Arg(10000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace burrowmark
