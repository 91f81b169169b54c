// Opening the editor, sorting its list and going to another group, over the local machine.
#include <benchmark/benchmark.h>

#include <memory>

#include "bench/bench_machine.h"
#include "config/frm_properties_config_file.h"
#include "core/numbers.h"
#include "organize/frm_organize.h"

namespace burrowmark {
namespace {

// A personal group that holds so many shortcuts.
class BenchEditor {
 public:
  explicit BenchEditor(std::int64_t items) : app_(machine_.platform()) {
    clsMenuCollection& store = app_.MainStore();
    store.AddNewMenuItem({.Caption = L"Personal", .OwnerName = kRootOwner, .Name = MIT_GROUP_USER, .SubMenu = true});
    for (std::int64_t i = 0; i < items; ++i) {
      const auto item = std::make_shared<clsMenuItem>(machine_.machine.clock);
      item->SetCaption(L"A shortcut with a title of some length " + DecimalText(i));
      item->SetOwnerName(MIT_GROUP_USER);
      item->FolderPath = L"C:\\Windows";
      store.AddOne(item, true, true);
    }
  }
  void Open() {
    form_ = std::make_unique<frmOrganize>(app_);
    form_->Show();
  }
  void Close() { form_->Unload(); }
  void Refresh() { form_->RefreshViews({}, true); }
  void Inform() {
    frmPropertiesConfigFile dialog(app_);
    dialog.Init(app_.MainDocument);
    dialog.Show();
    dialog.Unload();
  }

 private:
  BenchMachine machine_;
  Application app_;
  std::unique_ptr<frmOrganize> form_;
};

void OpenTheEditor(benchmark::State& state) {
  BenchEditor editor(state.range(0));
  for (auto _ : state) {
    editor.Open();
    state.PauseTiming();
    editor.Close();
    state.ResumeTiming();
  }
}
BENCHMARK(OpenTheEditor)->Arg(300)->Arg(3000)->Unit(benchmark::kMillisecond);

void RefreshThePanes(benchmark::State& state) {
  BenchEditor editor(state.range(0));
  editor.Open();
  for (auto _ : state) editor.Refresh();
}
BENCHMARK(RefreshThePanes)->Arg(300)->Arg(3000)->Unit(benchmark::kMillisecond);

void ShowTheInformation(benchmark::State& state) {
  BenchEditor editor(state.range(0));
  for (auto _ : state) editor.Inform();
}
BENCHMARK(ShowTheInformation)->Arg(3000)->Arg(30000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace burrowmark
