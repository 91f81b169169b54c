// Rows with columns, shown in one of four ways.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "ui/control.h"

namespace burrowmark {

class ListView;

// Belongs to its list view and goes with its row.
class ListItem final : private ListItemState {
 public:
  ListItem(ListView& list, std::wstring key);

  const std::wstring& Key() const { return key_; }
  const std::wstring& Text() const { return texts.front(); }
  void SetText(std::wstring text);
  // The columns behind the first, counted from 1. One that was never written is empty.
  const std::wstring& SubItem(std::size_t index) const;
  void SetSubItem(std::size_t index, std::wstring text);
  // Of a column counted from 0, the row's own text.
  void SetForeColor(std::size_t column, Color color);
  Color ForeColor(std::size_t column) const;
  std::int32_t Icon() const { return icon; }
  std::int32_t SmallIcon() const { return smallIcon; }
  void SetIcons(std::int32_t large, std::int32_t small);
  const std::wstring& ToolTipText() const { return toolTip; }
  void SetToolTipText(std::wstring text);
  bool Ghosted() const { return ghosted; }
  void SetGhosted(bool on);
  bool Selected() const { return selected; }
  void SetSelected(bool on);
  bool Checked() const { return checked; }
  void SetChecked(bool on);
  // Counted from 1.
  std::int32_t Index() const;
  void EnsureVisible();

  std::wstring Tag;

 private:
  friend class ListView;

  ListView& list_;
  std::wstring key_;
  std::int32_t row_ = -1;
};

enum class SortOrder : std::uint8_t { kAscending, kDescending };

// Selecting, label edits and clicks raise events for the user alone.
class ListView final : public ControlOf<ListViewState, ListViewPeer> {
 public:
  ListView(ControlParent& parent, const wchar_t* name, const Box& place);
  ~ListView();

  // A row became selected and the current one.
  std::function<void(ListItem&)> ItemClick;
  std::function<void(ListItem&)> ItemCheck;
  std::function<void()> Click;  // after ItemClick, and also where no row is
  std::function<void()> DblClick;
  std::function<void(std::int32_t column)> ColumnClick;  // counted from 1
  std::function<void(bool& Cancel)> BeforeLabelEdit;     // of the current row
  std::function<void(bool& Cancel, std::wstring& NewString)> AfterLabelEdit;
  std::function<void()> Paint;  // the rows are going to be drawn

  // New rows stand at the end, or at their sorted place while Sorted is on. None if the key is taken.
  ListItem* Add(std::wstring key, std::wstring text, std::int32_t icon = 0, std::int32_t smallIcon = 0);
  // False if there is no such row. The current row goes to nobody.
  bool Remove(const std::wstring& key);
  void Clear();
  std::int32_t Count() const { return static_cast<std::int32_t>(items_.size()); }
  // Counted from 1.
  ListItem& Item(std::int32_t index) const { return *items_.at(static_cast<std::size_t>(index) - 1); }
  ListItem* Find(const std::wstring& key) const;

  // The current row. To set it by code selects it too; to set none leaves what is selected.
  ListItem* SelectedItem() const;
  void SetSelectedItem(ListItem* item);
  std::int32_t SelectedCount() const;
  // The first from the top; none if nothing is selected.
  ListItem* FirstSelected() const;
  void SetAllSelected(bool on);
  ListItem* DropHighlight() const;
  void SetDropHighlight(ListItem* item);
  // At a point of a mouse event; none where no row is, and while the form isn't loaded.
  ListItem* HitTest(std::int32_t x, std::int32_t y) const;
  // Opens the label of the current row, if LabelEdit is on.
  void StartLabelEdit();
  // The row whose label is open, also while AfterLabelEdit runs; it may be another one than the current. None without.
  ListItem* EditedItem() const { return edited_; }
  void CancelLabelEdit();

  // By the texts that are shown, without regard to case; equal ones keep their order. SortKey counts columns from 0.
  bool Sorted() const { return sorted_; }
  void SetSorted(bool on);
  std::int32_t SortKey() const { return sortKey_; }
  void SetSortKey(std::int32_t column);
  SortOrder Order() const { return order_; }
  void SetOrder(SortOrder order);

  ListViewMode View() const override { return view_; }
  void SetView(ListViewMode view);
  bool GridLines() const override { return gridLines_; }
  void SetGridLines(bool on);
  bool MultiSelect() const override { return multiSelect_; }
  bool CheckBoxes() const override { return checkBoxes_; }
  bool LabelEdit() const override { return labelEdit_; }
  // These hold for the windows that are made from then on.
  void SetMultiSelect(bool on) { multiSelect_ = on; }
  void SetCheckBoxes(bool on) { checkBoxes_ = on; }
  void SetLabelEdit(bool on) { labelEdit_ = on; }
  const ImageList& Icons() const override { return icons_; }
  const ImageList& SmallIcons() const override { return smallIcons_; }
  void SetImages(ImageList icons, ImageList smallIcons);
  const std::vector<ListColumn>& Columns() const override { return columns_; }
  void AddColumn(std::wstring text, std::int32_t width);
  // Columns counted from 1; the width is in twips and follows what the user drags.
  void SetColumnText(std::int32_t column, std::wstring text);
  void SetColumnWidth(std::int32_t column, std::int32_t width);

  // Nothing is drawn while it lives: for many changes at once.
  class Update {
   public:
    explicit Update(ListView& list);
    ~Update();
    Update(const Update&) = delete;
    Update& operator=(const Update&) = delete;

   private:
    ListView& list_;
  };

  std::int32_t RowCount() const override { return Count(); }
  const ListItemState& Row(std::int32_t row) const override;
  std::int32_t CurrentRow() const override;
  std::int32_t DropRow() const override;
  void UserRowState(std::int32_t row, bool selected, bool current) override;
  void UserCheck(std::int32_t row, bool checked) override;
  void UserClick() override;
  void UserDoubleClick() override;
  void UserColumnClick(std::int32_t column) override;
  void UserColumnWidth(std::int32_t column, std::int32_t width) override;
  bool UserBeginLabelEdit(std::int32_t row) override;
  bool UserEndLabelEdit(std::int32_t row, const std::optional<std::wstring>& text) override;
  void PeerTaken() override { edited_ = nullptr; }
  void UserPaint() override;

 private:
  friend class ListItem;

  static std::int32_t RowOf(const ListItem* item) { return item == nullptr ? -1 : item->row_; }
  ListItem* ItemAt(std::int32_t row) const;
  // The item shall stand behind the other one.
  bool IsBehind(const ListItem& item, const ListItem& other) const;
  void SortNow();
  void Renumber(std::size_t from);
  void DeselectOthers(const ListItem& item);
  void Tell(void (ListViewPeer::*change)(std::int32_t), std::int32_t row);
  using ControlOf::Tell;

  std::vector<std::unique_ptr<ListItem>> items_;
  std::unordered_map<std::wstring, ListItem*> byKey_;
  std::vector<ListColumn> columns_;
  ListItem* current_ = nullptr;
  ListItem* drop_ = nullptr;
  ImageList icons_;
  ImageList smallIcons_;
  ListViewMode view_ = ListViewMode::kReport;
  bool gridLines_ = false;
  bool multiSelect_ = true;
  bool checkBoxes_ = false;
  bool labelEdit_ = false;
  ListItem* edited_ = nullptr;
  bool sorted_ = false;
  std::int32_t sortKey_ = 0;
  SortOrder order_ = SortOrder::kAscending;
};

}  // namespace burrowmark
