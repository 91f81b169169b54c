// Opening the editor, sorting its list and going to another group, over the local machine.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

#include "bench/bench_machine.h"
#include "config/frm_properties_config_file.h"
#include "core/numbers.h"
#include "organize/frm_organize.h"
#include "platform/key_codes.h"
#include "platform/local/person/shown_drag.h"

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
  // Folders of another program fall on the list, and that is taken back.
  void AddDropped(std::int64_t folders) {
    for (std::int64_t i = 0; i < folders; ++i) {
      dropped_.push_back(L"C:\\Dropped\\A folder with a name of some length " + DecimalText(i));
      machine_.machine.AddFolders(dropped_.back());
    }
    app_.GC[General::kAskBeforeDeleting] = false;
  }
  void Drop() {
    ShownWindow& window = machine_.machine.user.Window(form_->Caption());
    ShownDrag drag(kEffectCopy, dropped_);
    for (const auto& control : window.controls) {
      if (control->kind == ShownKind::kListView) drag.OverRow(window, control->window, -1);
    }
    drag.Drop();
    app_.Requests.RunAtRest();
  }
  void TakeBack() { machine_.machine.user.Window(form_->Caption()).Press(L'Z', kCtrlMask); }
  std::int32_t Items() const { return form_->WorkCollection()->Count(); }
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
  std::vector<std::wstring> dropped_;
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

void DropFolders(benchmark::State& state) {
  BenchEditor editor(300);
  editor.AddDropped(state.range(0));
  editor.Open();
  const std::int32_t before = editor.Items();
  for (auto _ : state) {
    editor.Drop();
    state.PauseTiming();
    if (editor.Items() != before + state.range(0)) state.SkipWithError("not all were added");
    editor.TakeBack();
    state.ResumeTiming();
  }
}
BENCHMARK(DropFolders)->Arg(500)->Unit(benchmark::kMillisecond);

void ShowTheInformation(benchmark::State& state) {
  BenchEditor editor(state.range(0));
  for (auto _ : state) editor.Inform();
}
BENCHMARK(ShowTheInformation)->Arg(3000)->Arg(30000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace burrowmark
