// Copying a group into another one in the editor, and taking that back, over the local machine.
#include <benchmark/benchmark.h>

#include <memory>

#include "bench/bench_machine.h"
#include "core/numbers.h"
#include "organize/frm_organize.h"
#include "organize/subtree.h"
#include "platform/key_codes.h"

namespace burrowmark {
namespace {

// A tree of so many shortcuts, a tenth of them in one group.
class BenchEdits {
 public:
  explicit BenchEdits(std::int64_t items) : app_(machine_.platform()) {
    clsMenuCollection& store = app_.MainStore();
    store.AddNewMenuItem({.Caption = L"Personal", .OwnerName = kRootOwner, .Name = MIT_GROUP_USER, .SubMenu = true});
    store.AddNewMenuItem({.Caption = L"From", .OwnerName = MIT_GROUP_USER, .Name = L"From", .SubMenu = true});
    store.AddNewMenuItem({.Caption = L"To", .OwnerName = MIT_GROUP_USER, .Name = L"To", .SubMenu = true});
    for (std::int64_t i = 0; i < items; ++i) {
      const auto item = std::make_shared<clsMenuItem>(machine_.machine.clock);
      item->SetCaption(L"A shortcut with a title of some length " + DecimalText(i));
      item->SetOwnerName(i % 10 == 0 ? L"From" : MIT_GROUP_USER);
      item->FolderPath = L"C:\\Windows";
      store.AddOne(item, true, true);
    }
    form_.Show();
  }
  ~BenchEdits() {
    form_.SaveOnExit = false;
    form_.Unload();
  }

  void CopyAndPaste() {
    ItemClipboard clipboard;
    clipboard.Take(machine_.machine.clock, *form_.WorkCollection(),
                   form_.WorkCollection()->GetMenuItemFromName(L"From"));
    std::vector<ItemRef> pasted;
    form_.EditTree(L"Paste", [&](TreeEdit& edit) { PasteItems(edit, clipboard, L"To", {}, pasted); });
  }
  // All rows of the group that is shown.
  void DeleteRows() {
    form_.EditTree(L"Delete", [&](TreeEdit& edit) {
      for (const ItemRef& item : edit.Store().Children(L"From")) DeleteSubtree(edit, item);
    });
  }
  void ShowFrom() { form_.RefreshViews(L"CFrom", true); }
  void TakeBack() { machine_.machine.user.Window(L"Organize Folders").Press('Z', kCtrlMask); }

 private:
  BenchMachine machine_;
  Application app_;
  frmOrganize form_{app_};
};

void CopyAndPasteAGroup(benchmark::State& state) {
  BenchEdits edits(state.range(0));
  for (auto _ : state) {
    edits.CopyAndPaste();
    state.PauseTiming();
    edits.TakeBack();
    state.ResumeTiming();
  }
}
BENCHMARK(CopyAndPasteAGroup)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

void TakeAPasteBack(benchmark::State& state) {
  BenchEdits edits(state.range(0));
  for (auto _ : state) {
    state.PauseTiming();
    edits.CopyAndPaste();
    state.ResumeTiming();
    edits.TakeBack();
  }
}
BENCHMARK(TakeAPasteBack)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

void DeleteRowsAndTakeThatBack(benchmark::State& state) {
  BenchEdits edits(state.range(0));
  edits.ShowFrom();
  for (auto _ : state) {
    edits.DeleteRows();
    edits.TakeBack();
  }
}
BENCHMARK(DeleteRowsAndTakeThatBack)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace burrowmark
