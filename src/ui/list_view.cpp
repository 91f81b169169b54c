#include "ui/list_view.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/characters.h"

namespace burrowmark {
namespace {

const std::wstring& TextAt(const std::vector<std::wstring>& texts, std::size_t column) {
  static const std::wstring none;
  return column < texts.size() ? texts[column] : none;
}

}  // namespace

// --- item

ListItem::ListItem(ListView& list, std::wstring key) : list_(list), key_(std::move(key)) {
  texts.reserve(list.Columns().size());  // mostly all are written, one after the other
  texts.resize(1);
}

void ListItem::SetText(std::wstring text) { SetSubItem(0, std::move(text)); }

const std::wstring& ListItem::SubItem(std::size_t index) const { return TextAt(texts, index); }

void ListItem::SetSubItem(std::size_t index, std::wstring text) {
  if (index >= texts.size()) texts.resize(index + 1);
  if (Assign(texts[index], std::move(text))) list_.Tell(&ListViewPeer::RowChanged, row_);
}

Color ListItem::ForeColor(std::size_t column) const {
  return column < colors.size() ? colors[column] : kColorOfControl;
}

void ListItem::SetForeColor(std::size_t column, Color color) {
  if (color == ForeColor(column)) return;
  if (column >= colors.size()) colors.resize(column + 1, kColorOfControl);
  colors[column] = color;
  list_.Tell(&ListViewPeer::RowChanged, row_);
}

void ListItem::SetIcons(std::int32_t large, std::int32_t small) {
  const bool changed = Assign(icon, large);
  if (Assign(smallIcon, small) || changed) list_.Tell(&ListViewPeer::RowChanged, row_);
}

void ListItem::SetToolTipText(std::wstring text) {
  if (Assign(toolTip, std::move(text))) list_.Tell(&ListViewPeer::RowChanged, row_);
}

void ListItem::SetGhosted(bool on) {
  if (Assign(ghosted, on)) list_.Tell(&ListViewPeer::RowStateChanged, row_);
}

void ListItem::SetSelected(bool on) {
  if (!Assign(selected, on)) return;
  if (on && !list_.multiSelect_) list_.DeselectOthers(*this);
  list_.Tell(&ListViewPeer::RowStateChanged, row_);
}

void ListItem::SetChecked(bool on) {
  if (Assign(checked, on)) list_.Tell(&ListViewPeer::RowStateChanged, row_);
}

std::int32_t ListItem::Index() const { return row_ + 1; }

void ListItem::EnsureVisible() { list_.Tell(&ListViewPeer::EnsureVisible, row_); }

// --- rows

ListView::ListView(ControlParent& parent, const wchar_t* name, const Box& place) : ControlOf(parent, name, place) {}

ListView::~ListView() = default;

void ListView::Tell(void (ListViewPeer::*change)(std::int32_t), std::int32_t row) {
  if (ListViewPeer* peer = KindsPeer()) (peer->*change)(row);
}

ListItem* ListView::ItemAt(std::int32_t row) const {
  return row >= 0 && row < Count() ? items_[static_cast<std::size_t>(row)].get() : nullptr;
}

const ListItemState& ListView::Row(std::int32_t row) const { return *items_.at(static_cast<std::size_t>(row)); }

void ListView::Renumber(std::size_t from) {
  for (; from < items_.size(); ++from) items_[from]->row_ = static_cast<std::int32_t>(from);
}

ListItem* ListView::Add(std::wstring key, std::wstring text, std::int32_t icon, std::int32_t smallIcon) {
  const auto [place, isNew] = byKey_.try_emplace(key);
  if (!isNew) return nullptr;
  auto made = std::make_unique<ListItem>(*this, std::move(key));
  ListItem& item = *made;
  place->second = &item;
  item.texts.front() = std::move(text);
  item.icon = icon;
  item.smallIcon = smallIcon;
  const auto at = !sorted_
                      ? items_.end()
                      : std::upper_bound(items_.begin(), items_.end(), made,
                                         [this](const auto& one, const auto& two) { return IsBehind(*two, *one); });
  const auto added = items_.insert(at, std::move(made));
  Renumber(static_cast<std::size_t>(std::distance(items_.begin(), added)));
  Tell(&ListViewPeer::RowAdded, item.row_);
  return &item;
}

bool ListView::Remove(const std::wstring& key) {
  ListItem* item = Find(key);
  if (item == nullptr) return false;
  if (item == edited_) CancelLabelEdit();
  if (item == current_) SetSelectedItem(nullptr);
  if (item == drop_) SetDropHighlight(nullptr);
  const std::int32_t row = item->row_;
  const auto at = std::next(items_.begin(), row);
  const std::unique_ptr<ListItem> removed = std::move(*at);
  items_.erase(at);
  byKey_.erase(removed->key_);
  Renumber(static_cast<std::size_t>(row));
  Tell(&ListViewPeer::RowRemoved, row);
  return true;
}

void ListView::Clear() {
  if (items_.empty()) return;
  CancelLabelEdit();
  current_ = nullptr;
  drop_ = nullptr;
  byKey_.clear();
  items_.clear();
  Tell(&ListViewPeer::RowsCleared);
}

ListItem* ListView::Find(const std::wstring& key) const {
  const auto found = byKey_.find(key);
  return found == byKey_.end() ? nullptr : found->second;
}

// --- selection

ListItem* ListView::SelectedItem() const { return current_; }
std::int32_t ListView::CurrentRow() const { return RowOf(current_); }

void ListView::SetSelectedItem(ListItem* item) {
  if (item != nullptr) item->SetSelected(true);
  if (Assign(current_, item)) Tell(&ListViewPeer::CurrentRowChanged);
}

std::int32_t ListView::SelectedCount() const {
  return static_cast<std::int32_t>(
      std::count_if(items_.begin(), items_.end(), [](const auto& item) { return item->selected; }));
}

ListItem* ListView::FirstSelected() const {
  const auto found = std::find_if(items_.begin(), items_.end(), [](const auto& item) { return item->selected; });
  return found == items_.end() ? nullptr : found->get();
}

void ListView::SetAllSelected(bool on) {
  if (on && !multiSelect_) return;
  const Update update(*this);
  for (const auto& item : items_) item->SetSelected(on);
}

void ListView::DeselectOthers(const ListItem& item) {
  for (const auto& other : items_) {
    if (other.get() != &item) other->SetSelected(false);
  }
}

ListItem* ListView::DropHighlight() const { return drop_; }
std::int32_t ListView::DropRow() const { return RowOf(drop_); }

void ListView::SetDropHighlight(ListItem* item) {
  if (Assign(drop_, item)) Tell(&ListViewPeer::DropRowChanged);
}

ListItem* ListView::HitTest(std::int32_t x, std::int32_t y) const {
  const ListViewPeer* peer = KindsPeer();
  return peer == nullptr ? nullptr : ItemAt(peer->HitTest(x, y));
}

void ListView::StartLabelEdit() {
  if (labelEdit_ && current_ != nullptr) Tell(&ListViewPeer::StartLabelEdit, current_->row_);
}

void ListView::CancelLabelEdit() {
  if (std::exchange(edited_, nullptr) != nullptr) Tell(&ListViewPeer::CancelLabelEdit);
}

// --- order

bool ListView::IsBehind(const ListItem& item, const ListItem& other) const {
  const auto column = static_cast<std::size_t>(sortKey_);
  const std::wstring& one = TextAt(item.texts, column);
  const std::wstring& two = TextAt(other.texts, column);
  return order_ == SortOrder::kAscending ? LessIgnoringCase(two, one) : LessIgnoringCase(one, two);
}

void ListView::SortNow() {
  if (!sorted_) return;
  std::stable_sort(items_.begin(), items_.end(),
                   [this](const auto& one, const auto& two) { return IsBehind(*two, *one); });
  std::vector<std::int32_t> before;
  before.reserve(items_.size());
  for (const auto& item : items_) before.push_back(item->row_);
  Renumber(0);
  ListViewPeer* peer = KindsPeer();
  if (peer != nullptr && !std::is_sorted(before.begin(), before.end())) peer->RowsMoved(before);
}

void ListView::SetSorted(bool on) {
  if (Assign(sorted_, on)) SortNow();
}

void ListView::SetSortKey(std::int32_t column) {
  if (Assign(sortKey_, column)) SortNow();
}

void ListView::SetOrder(SortOrder order) {
  if (Assign(order_, order)) SortNow();
}

// --- looks

void ListView::SetView(ListViewMode view) {
  if (Assign(view_, view)) Tell(&ListViewPeer::ViewChanged);
}

void ListView::SetGridLines(bool on) {
  if (Assign(gridLines_, on)) Tell(&ListViewPeer::ViewChanged);
}

void ListView::SetImages(ImageList icons, ImageList smallIcons) {
  const bool changed = Assign(icons_, std::move(icons));
  if (Assign(smallIcons_, std::move(smallIcons)) || changed) Tell(&ListViewPeer::ViewChanged);
}

void ListView::AddColumn(std::wstring text, std::int32_t width) {
  columns_.push_back({std::move(text), width});
  Tell(&ListViewPeer::ColumnChanged, static_cast<std::int32_t>(columns_.size()) - 1);
}

void ListView::SetColumnText(std::int32_t column, std::wstring text) {
  ListColumn& changed = columns_.at(static_cast<std::size_t>(column) - 1);
  if (Assign(changed.text, std::move(text))) Tell(&ListViewPeer::ColumnChanged, column - 1);
}

void ListView::SetColumnWidth(std::int32_t column, std::int32_t width) {
  ListColumn& changed = columns_.at(static_cast<std::size_t>(column) - 1);
  if (Assign(changed.width, width)) Tell(&ListViewPeer::ColumnChanged, column - 1);
}

ListView::Update::Update(ListView& list) : list_(list) { list_.Tell(&ListViewPeer::BeginUpdate); }
ListView::Update::~Update() { list_.Tell(&ListViewPeer::EndUpdate); }

// --- doors

void ListView::UserRowState(std::int32_t row, bool selected, bool current) {
  ListItem* item = ItemAt(row);
  if (item == nullptr) return;
  const bool wasBoth = item->selected && current_ == item;
  item->selected = selected;
  if (current) current_ = item;
  if (!current && current_ == item) current_ = nullptr;
  if (wasBoth || !selected || !current || !IsReachable()) return;
  const ControlSite::Running running(Site());
  Raise(ItemClick, *item);
}

void ListView::UserCheck(std::int32_t row, bool checked) {
  ListItem* item = ItemAt(row);
  if (item == nullptr || !IsReachable() || !Assign(item->checked, checked)) return;
  const ControlSite::Running running(Site());
  Raise(ItemCheck, *item);
}

void ListView::UserClick() {
  if (!IsReachable()) return;
  const ControlSite::Running running(Site());
  Raise(Click);
}

void ListView::UserDoubleClick() {
  if (!IsReachable()) return;
  const ControlSite::Running running(Site());
  Raise(DblClick);
}

void ListView::UserColumnClick(std::int32_t column) {
  if (!IsReachable()) return;
  const ControlSite::Running running(Site());
  Raise(ColumnClick, column + 1);
}

void ListView::UserColumnWidth(std::int32_t column, std::int32_t width) {
  if (column >= 0 && static_cast<std::size_t>(column) < columns_.size()) {
    columns_[static_cast<std::size_t>(column)].width = width;
  }
}

bool ListView::UserBeginLabelEdit(std::int32_t row) {
  const ListItem* item = ItemAt(row);
  if (item == nullptr || !IsReachable()) return false;
  const ControlSite::Running running(Site());
  bool cancel = false;
  const std::wstring key = item->Key();
  Raise(BeforeLabelEdit, cancel);
  if (!cancel) edited_ = Find(key);
  return edited_ != nullptr;
}

bool ListView::UserEndLabelEdit(std::int32_t row, const std::optional<std::wstring>& text) {
  const ListItem* item = ItemAt(row);
  if (edited_ == nullptr || item != edited_) return false;
  if (!text || !IsReachable()) {
    edited_ = nullptr;
    return false;
  }
  const ControlSite::Running running(Site());
  const std::wstring key = item->Key();
  bool cancel = false;
  std::wstring newText = *text;
  Raise(AfterLabelEdit, cancel, newText);
  const bool hasGone = std::exchange(edited_, nullptr) == nullptr;
  ListItem* still = Find(key);
  if (cancel || hasGone || still == nullptr) return false;
  still->SetText(std::move(newText));
  return true;
}

void ListView::UserPaint() {
  if (!Paint) return;
  const ControlSite::Running running(Site());
  Raise(Paint);
}

}  // namespace burrowmark
