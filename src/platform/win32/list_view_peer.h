// A list view of the system.
#pragma once

#include <vector>

#include "platform/win32/child_window.h"

namespace burrowmark {

class Win32ListView final : public ChildPeer<ListViewPeer> {
 public:
  Win32ListView(const ChildPlace& place, ListViewState& list);
  void ViewChanged() override { ShowAll(); }
  void ColumnChanged(std::int32_t) override { ShowAll(); }
  void RowAdded(std::int32_t) override { ShowAll(); }
  void RowRemoved(std::int32_t) override { ShowAll(); }
  void RowsCleared() override { ShowAll(); }
  void RowsMoved(const std::vector<std::int32_t>&) override { ShowAll(); }
  void RowChanged(std::int32_t) override { ShowAll(); }
  void RowStateChanged(std::int32_t) override {}
  void CurrentRowChanged() override {}
  void DropRowChanged() override {}
  void EnsureVisible(std::int32_t) override {}
  void StartLabelEdit(std::int32_t) override {}
  void BeginUpdate() override {}
  void EndUpdate() override {}
  std::int32_t HitTest(std::int32_t, std::int32_t) const override { return -1; }

 private:
  void ShowAll();

  ListViewState& list_;
};

}  // namespace burrowmark
