// The groups that the program makes by itself: what a start and an opening of the menu wait for, on the local machine.
//
// Marks, as medians: 26 drives that haven't changed looked over in 5 ms, the System Folders with all their rows in
// 50 ms, the recent folders of 2,000 links in 1 s.
#include <benchmark/benchmark.h>

#include "bench/bench_machine.h"
#include "core/application.h"
#include "core/numbers.h"
#include "core/registry.h"
#include "core/registry_keys.h"
#include "groups/drives.h"
#include "groups/personal_group.h"
#include "groups/system_folders.h"
#include "menu/menu_setup.h"

namespace burrowmark {
namespace {

void DriveCheck(benchmark::State& state) {
  BenchMachine bench;
  Application app(bench.platform());
  DriveFolders& drives = bench.machine.drives;
  constexpr std::int32_t kTypes[] = {kDriveTypeRemovable, kDriveTypeFixed, kDriveTypeRemote, kDriveTypeCompactDisc};
  for (wchar_t letter = L'A'; letter <= L'Z'; ++letter) {
    drives.Add(letter);
    const std::int32_t type = kTypes[static_cast<std::size_t>(letter) % std::size(kTypes)];
    drives.SetFacts(letter, {type, L"A label", type == kDriveTypeRemote ? L"\\\\server\\share" : L""});
  }
  AddFixedEntries(app, app.MainStore(), false);
  SetupDrives(app, app.MainStore());
  if (app.DrivesCollection.size() != 26) state.SkipWithError("not all drives");
  for (auto _ : state) {
    if (DrivesChanged(app)) state.SkipWithError("changed");
  }
}
BENCHMARK(DriveCheck)->Unit(benchmark::kMillisecond);

constexpr const wchar_t* kUserFolders[] = {
    L"Desktop",   L"Favorites",     L"History",     L"Personal", L"SendTo",   L"AppData",  L"Administrative Tools",
    L"Cache",     L"Local AppData", L"My Pictures", L"NetHood",  L"Recent",   L"Programs", L"Local Settings",
    L"PrintHood", L"Startup",       L"Cookies",     L"Fonts",    L"Templates"};
constexpr const wchar_t* kMachineFolders[] = {L"Common AppData",
                                              L"Common Desktop",
                                              L"Common Documents",
                                              L"Common Programs",
                                              L"Common Start Menu",
                                              L"Common Startup",
                                              L"Common Administrative Tools",
                                              L"Common Templates"};
constexpr const wchar_t* kCurrentVersionFolders[] = {L"ProgramFilesDir", L"CommonFilesDir", L"MediaPath"};
constexpr const wchar_t* kWindowsFolders[] = {
    L"Cursors", L"Downloaded Program Files", L"Inf", L"Java", L"Offline Web Pages", L"Speech", L"System", L"Tasks",
    L"Temp",    L"System32\\drivers\\etc"};

// Makes folders that the registry lists under their own names.
template <std::size_t count>
void AddListed(LocalMachine& machine, RegistryKey root, const wchar_t* key, const wchar_t* const (&names)[count]) {
  for (const wchar_t* name : names) {
    const std::wstring path = std::wstring(L"C:\\Folders\\Start Menu\\") + name;
    machine.AddFolders(path);
    clsRegHandler(machine.registry).SetKeyValue(root, key, name, path);
  }
}

void SystemFolders(benchmark::State& state) {
  BenchMachine bench;
  Application app(bench.platform());
  app.WindowsFolder = L"C:\\Windows";
  AddListed(bench.machine, RegistryKey::kCurrentUser, kShellFoldersKey, kUserFolders);
  AddListed(bench.machine, RegistryKey::kLocalMachine, kShellFoldersKey, kMachineFolders);
  AddListed(bench.machine, RegistryKey::kLocalMachine, kCurrentVersionKey, kCurrentVersionFolders);
  for (const wchar_t* name : kWindowsFolders) bench.machine.AddFolders(app.WindowsFolder + L"\\" + name);
  constexpr std::int32_t kRows = 49;
  for (auto _ : state) {
    state.PauseTiming();
    clsMenuCollection store(app.platform.clock);
    AddFixedEntries(app, store, false);
    const std::int32_t before = store.Count();
    state.ResumeTiming();
    SetupSystemFolders(app, store);
    if (store.Count() != before + 1 + kRows) state.SkipWithError("not all rows");
  }
}
BENCHMARK(SystemFolders)->Unit(benchmark::kMillisecond);

// One folder less than would end the search.
void RecentFolders(benchmark::State& state) {
  constexpr std::int64_t kFolders = 24;
  BenchMachine bench;
  Application app(bench.platform());
  app.RecentFolder = L"C:\\Recent";
  bench.machine.AddFolders(app.RecentFolder);
  for (std::int64_t i = 0; i < state.range(0); ++i) {
    const std::wstring file = L"C:\\Work\\" + DecimalText(i % kFolders) + L"\\File " + DecimalText(i) + L".txt";
    bench.machine.AddFile(file);
    bench.machine.shell.WriteShellLink(app.RecentFolder + L"\\File " + DecimalText(i) + L".lnk",
                                       {file, {}, kShowNormal});
  }
  for (auto _ : state) {
    clsMenuCollection store(app.platform.clock);
    SetupPersonalGroup(app, store, PersonalContent::kRecentFolders);
    if (store.Count() != 1 + kFolders) state.SkipWithError("not all folders");
  }
}
BENCHMARK(RecentFolders)->Arg(2000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace burrowmark
