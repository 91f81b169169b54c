#include "platform/local/screen/local_list_view.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/key_codes.h"

namespace burrowmark {

LocalListView::LocalListView(LocalProcess& process, LocalDesktop& desktop, WindowHandle parent, ListViewState& list)
    : LocalControl(process, desktop, parent, ShownKind::kListView, list) {
  Shown().list = list_;
  list_->multiSelect = list.MultiSelect();
  list_->checkBoxes = list.CheckBoxes();
  for (std::int32_t row = 0; row < list.RowCount(); ++row) list_->rows.push_back(list.Row(row));
  list_->columns = list.Columns();
  list_->current = list.CurrentRow();
  list_->drop = list.DropRow();
  ViewChanged();
  AddDoors();
}

void LocalListView::AddDoors() {
  Shown().UserMouse = [this](MouseAction action, const MouseEvent& event) { Mouse(action, event); };
  Shown().PressKey = [this](std::int32_t keyCode, std::int32_t shift) { Key(keyCode, shift); };
  Shown().EndLabelEdit = [this](const std::optional<std::wstring>& text) {
    Control().UserEndLabelEdit(std::exchange(edited_, -1), text);
  };
  list_->DoubleClick = [this](const MouseEvent& event) { DoubleClick(event); };
  list_->Check = [this](std::int32_t row) { Check(row); };
  list_->ClickColumn = [this](std::int32_t column) { Control().UserColumnClick(column); };
  list_->DragColumn = [this](std::int32_t column, std::int32_t width) {
    list_->columns.at(static_cast<std::size_t>(column)).width = width;
    Control().UserColumnWidth(column, width);
    Drawn();
  };
}

// It is drawn once for all that happened since the last time.
void LocalListView::Drawn() {
  if (std::exchange(*willDraw_, true)) return;
  Process().Post([this, alive = std::weak_ptr<bool>(willDraw_)] {
    const std::shared_ptr<bool> willDraw = alive.lock();
    if (!willDraw) return;
    *willDraw = false;
    if (!IsRetired() && FormWindow().visible && FormWindow().CanBeUsed(Shown())) Control().UserPaint();
  });
}

// --- what changed

void LocalListView::ViewChanged() {
  list_->view = Control().View();
  list_->gridLines = Control().GridLines();
  Drawn();
}

void LocalListView::ColumnChanged(std::int32_t) {
  list_->columns = Control().Columns();
  Drawn();
}

void LocalListView::RowAdded(std::int32_t row) {
  list_->rows.insert(std::next(list_->rows.begin(), row), ListItemState());
  RowChanged(row);
  RowStateChanged(row);
  if (list_->current >= row) ++list_->current;
  if (edited_ >= row) ++edited_;
  if (list_->drop >= row) ++list_->drop;
  Drawn();
}

void LocalListView::RowRemoved(std::int32_t row) {
  list_->rows.erase(std::next(list_->rows.begin(), row));
  if (stale_ && *stale_ > row) --*stale_;
  if (list_->current > row) --list_->current;
  if (list_->drop > row) --list_->drop;
  if (edited_ > row) --edited_;
  Drawn();
}

void LocalListView::RowsCleared() {
  list_->rows.clear();
  stale_.reset();
  list_->current = -1;
  list_->drop = -1;
  Drawn();
}

void LocalListView::RowsMoved(const std::vector<std::int32_t>& before) {
  std::vector<ListItemState> moved;
  moved.reserve(before.size());
  for (const std::int32_t row : before) moved.push_back(std::move(Row(row)));
  list_->rows = std::move(moved);
  if (stale_) stale_ = 0;
  const auto follow = [&before](std::int32_t& row) {
    if (row >= 0) row = static_cast<std::int32_t>(std::find(before.begin(), before.end(), row) - before.begin());
  };
  follow(list_->current);
  follow(list_->drop);
  follow(edited_);
  Drawn();
}

void LocalListView::RowChanged(std::int32_t row) {
  Drawn();
  if (updates_ > 0) {
    stale_ = std::min(stale_.value_or(row), row);
  } else {
    ReadRow(row);
  }
}

void LocalListView::ReadRow(std::int32_t row) {
  const bool selected = Row(row).selected;
  Row(row) = Control().Row(row);
  Row(row).selected = selected;
}

void LocalListView::EndUpdate() {
  if (--updates_ > 0 || !stale_) return;
  for (std::int32_t row = *std::exchange(stale_, std::nullopt); HasRow(row); ++row) ReadRow(row);
}

void LocalListView::RowStateChanged(std::int32_t row) {
  Row(row).selected = Control().Row(row).selected;
  Row(row).ghosted = Control().Row(row).ghosted;
  Row(row).checked = Control().Row(row).checked;
  Drawn();
}

void LocalListView::CurrentRowChanged() {
  list_->current = Control().CurrentRow();
  Drawn();
}

void LocalListView::DropRowChanged() {
  list_->drop = Control().DropRow();
  Drawn();
}

void LocalListView::StartLabelEdit(std::int32_t row) {
  TakeFocus();
  if (IsRetired() || !HasRow(row) || !Control().UserBeginLabelEdit(row) || IsRetired() || !HasRow(row)) return;
  edited_ = row;
  Shown().labelEdit = Row(row).texts.front();
}

void LocalListView::CancelLabelEdit() {
  edited_ = -1;
  Shown().labelEdit.reset();
}

std::int32_t LocalListView::HitTest(std::int32_t, std::int32_t y) const {
  return list_->RowAt(ToPixels(y, kDesignDpi));
}

bool LocalListView::HasRow(std::int32_t row) const {
  return row >= 0 && row < static_cast<std::int32_t>(list_->rows.size());
}

// --- what the user does

void LocalListView::SetRow(std::int32_t row, bool selected, bool current) {
  if (IsRetired() || !HasRow(row)) return;
  const bool wasCurrent = list_->current == row;
  if (Row(row).selected == selected && wasCurrent == current) return;
  Row(row).selected = selected;
  if (current) list_->current = row;
  if (!current && wasCurrent) list_->current = -1;
  Drawn();
  Control().UserRowState(row, selected, current);
}

void LocalListView::MakeCurrent(std::int32_t row) {
  const std::int32_t before = list_->current;
  if (HasRow(before) && before != row) SetRow(before, Row(before).selected, false);
  if (HasRow(row)) SetRow(row, Row(row).selected, true);
}

// The row that may raise an event comes last.
void LocalListView::SelectOnly(std::int32_t first, std::int32_t last) {
  const auto [low, high] = std::minmax(first, last);
  const std::int32_t now = list_->current;
  for (std::int32_t row = 0; HasRow(row); ++row) {
    if (row != now) SetRow(row, row >= low && row <= high, false);
  }
  if (HasRow(now)) SetRow(now, now >= low && now <= high, true);
}

void LocalListView::Mouse(MouseAction action, const MouseEvent& event) {
  switch (action) {
    case MouseAction::kDown:
      return PressDown(event);
    case MouseAction::kMove:
      return Control().UserMouse(action, event);
    case MouseAction::kUp:
      return LetGo(event);
  }
}

void LocalListView::PressDown(const MouseEvent& event) {
  if (!FormWindow().CanBeUsed(Shown())) return;
  FormWindow().SetFocus(&Shown());
  if (IsRetired()) return;
  Control().UserMouse(MouseAction::kDown, event);
  if (IsRetired()) return;
  pressed_ = event.button == kLeftButton;
  leftAlone_.reset();
  const std::int32_t row = HitTest(event.x, event.y);
  const bool adds = list_->multiSelect && (event.shift & kCtrlMask) != 0;
  const bool extends = list_->multiSelect && (event.shift & kShiftMask) != 0;
  if (row < 0) {
    if (!adds && !extends) SelectOnly(-1, -1);
    return;
  }
  const bool wasSelected = Row(row).selected;
  MakeCurrent(row);
  if (!HasRow(row)) return;
  if (extends) return SelectOnly(anchor_, row);
  anchor_ = row;
  if (adds) return SetRow(row, !wasSelected, true);
  if (!wasSelected) return SelectOnly(row, row);
  if (event.button == kLeftButton) leftAlone_ = row;
}

void LocalListView::LetGo(const MouseEvent& event) {
  if (const std::optional<std::int32_t> row = std::exchange(leftAlone_, std::nullopt)) SelectOnly(*row, *row);
  if (std::exchange(pressed_, false) && event.button == kLeftButton && !IsRetired()) Control().UserClick();
  if (!IsRetired()) Control().UserMouse(MouseAction::kUp, event);
}

void LocalListView::DoubleClick(const MouseEvent& event) {
  Control().UserDoubleClick();
  if (!IsRetired()) Control().UserMouse(MouseAction::kUp, event);
}

void LocalListView::Check(std::int32_t row) {
  if (!list_->checkBoxes || !HasRow(row)) return;
  Row(row).checked = !Row(row).checked;
  Drawn();
  Control().UserCheck(row, Row(row).checked);
}

void LocalListView::Key(std::int32_t keyCode, std::int32_t shift) {
  const std::int32_t last = static_cast<std::int32_t>(list_->rows.size()) - 1;
  const std::int32_t now = list_->current;
  switch (keyCode) {
    case kKeyCodeUp:
      return MoveTo(std::max(now - 1, 0), shift);
    case kKeyCodeDown:
      return MoveTo(std::min(now + 1, last), shift);
    case kKeyCodeHome:
      return MoveTo(0, shift);
    case kKeyCodeEnd:
      return MoveTo(last, shift);
    case kKeyCodeSpace:
      if (list_->checkBoxes) return Check(now);
      if (HasRow(now)) SetRow(now, (shift & kCtrlMask) == 0 || !Row(now).selected, true);
      return;
    case kKeyCodeF10:
      if (shift == kShiftMask) ContextKey();
      return;
    case kKeyCodeApps:
      return ContextKey();
    default:
      return;
  }
}

void LocalListView::MoveTo(std::int32_t row, std::int32_t shift) {
  if (!HasRow(row)) return;
  MakeCurrent(row);
  if (list_->multiSelect && (shift & kShiftMask) != 0) return SelectOnly(anchor_, row);
  if (list_->multiSelect && (shift & kCtrlMask) != 0) return;
  anchor_ = row;
  SelectOnly(row, row);
}

void LocalListView::ContextKey() {
  const std::int32_t row = list_->current;
  const std::int32_t y = row < 0 ? 0 : list_->TopOf(row) + kShownRowHeight / 2;
  const MouseEvent event{kRightButton, 0, 0, ToTwips(y, kDesignDpi)};
  Control().UserMouse(MouseAction::kDown, event);
  if (!IsRetired() && row >= 0) MakeCurrent(row);
  if (!IsRetired()) Control().UserMouse(MouseAction::kUp, event);
}

}  // namespace burrowmark
