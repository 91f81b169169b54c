// A list view of the local machine.
#pragma once

#include <optional>
#include <vector>

#include "platform/local/screen/local_control.h"

namespace burrowmark {

class LocalListView final : public LocalControl<ListViewPeer, ListViewState> {
 public:
  LocalListView(LocalProcess& process, LocalDesktop& desktop, WindowHandle parent, ListViewState& list);

  void ViewChanged() override;
  void ColumnChanged(std::int32_t column) override;
  void RowAdded(std::int32_t row) override;
  void RowRemoved(std::int32_t row) override;
  void RowsCleared() override;
  void RowsMoved(const std::vector<std::int32_t>& before) override;
  void RowChanged(std::int32_t row) override;
  void RowStateChanged(std::int32_t row) override;
  void CurrentRowChanged() override;
  void DropRowChanged() override;
  void EnsureVisible(std::int32_t) override {}  // all rows are in view
  void StartLabelEdit(std::int32_t row) override;
  void CancelLabelEdit() override;
  void BeginUpdate() override { ++updates_; }
  void EndUpdate() override;
  std::int32_t HitTest(std::int32_t x, std::int32_t y) const override;

 private:
  void AddDoors();
  bool HasRow(std::int32_t row) const;
  ListItemState& Row(std::int32_t row) const { return list_->rows[static_cast<std::size_t>(row)]; }
  void Mouse(MouseAction action, const MouseEvent& event);
  void PressDown(const MouseEvent& event);
  void LetGo(const MouseEvent& event);
  void DoubleClick(const MouseEvent& event);
  void Check(std::int32_t row);
  void Key(std::int32_t keyCode, std::int32_t shift);
  void ContextKey();
  void MoveTo(std::int32_t row, std::int32_t shift);
  // The user's doing: what a row is, and the rows that are selected.
  void SetRow(std::int32_t row, bool selected, bool current);
  void MakeCurrent(std::int32_t row);
  void SelectOnly(std::int32_t first, std::int32_t last);
  void Drawn();
  void ReadRow(std::int32_t row);

  std::shared_ptr<ShownList> list_ = std::make_shared<ShownList>();
  std::shared_ptr<bool> willDraw_ = std::make_shared<bool>(false);
  std::int32_t anchor_ = 0;                // where a range of rows begins
  std::int32_t edited_ = -1;               // the row whose label is edited
  int updates_ = 0;                        // that are going on
  std::optional<std::int32_t> stale_;      // the first row that changed meanwhile
  std::optional<std::int32_t> leftAlone_;  // pressed without a change of what is selected
  bool pressed_ = false;
};

}  // namespace burrowmark
