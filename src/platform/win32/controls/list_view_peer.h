// A list view of the system.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/win32/controls/image_lists.h"
#include "platform/win32/controls/view_window.h"

namespace burrowmark {

// The control asks for texts and images when it draws, so that rows are made quickly and always show what the state
// says. What is selected, current, ghosted and checked is kept in the control too.
class Win32ListView final : public ChildPeer<ListViewPeer, ViewWindow> {
 public:
  Win32ListView(const ChildPlace& place, ListViewState& list);

  void ScaleChanged() override;
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
  void EnsureVisible(std::int32_t row) override;
  void StartLabelEdit(std::int32_t row) override;
  void CancelLabelEdit() override;
  void BeginUpdate() override { StartUpdate(); }
  void EndUpdate() override;
  std::int32_t HitTest(std::int32_t x, std::int32_t y) const override;

 private:
  using ChildWindow::Handle;
  LRESULT Notify(NMHDR& record) override;
  std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
  void Pressed(const MouseEvent&) override {}
  void Clicked(const MouseEvent&) override { list_.UserClick(); }
  void DoubleClicked() override { list_.UserDoubleClick(); }
  void KeyHandled() override {}
  std::optional<std::intptr_t> Current() const override;
  RECT RectOf(std::intptr_t current) const override;
  void PressAgain(std::intptr_t current) override;

  bool HasRow(std::int32_t row) const { return row >= 0 && row < list_.RowCount(); }
  void AskForTexts(std::int32_t row, std::int32_t column);
  // The columns behind the first of a row that is going to be drawn or read.
  void NeedTexts(std::int32_t row);
  void NeedTextsFor(UINT message, WPARAM wParam, LPARAM lParam);
  void SetState(std::int32_t row, UINT state, UINT mask);
  void ShowState(std::int32_t row);
  void LoadImages();
  void FitListColumn();
  void Answer(NMLVDISPINFOW& record) const;
  void ItemChanged(const NMLISTVIEW& record);
  void Hint(const NMLVGETINFOTIPW& record) const;
  LRESULT BeginLabelEdit(const NMLVDISPINFOW& record);
  LRESULT EndLabelEdit(const NMLVDISPINFOW& record);
  LRESULT Draw(NMLVCUSTOMDRAW& record) const;
  static COLORREF TextColor(Color color);
  void TakeSystemColors() const;
  void ColumnDragged(const NMHEADERW& record);

  ListViewState& list_;
  ImageListHandle icons_;
  ImageListHandle smallIcons_;
  // The control knows rows by numbers of their own, so that it can be told a new order.
  std::vector<std::int32_t> numbers_;  // by row
  std::int32_t nextNumber_ = 0;
  // By number: the control knows that it has to ask for the texts. To tell it costs more than to make the row.
  std::vector<bool> asks_;
  bool isListColumnStale_ = true;  // the width of the columns that a plain list breaks into
};

}  // namespace burrowmark
