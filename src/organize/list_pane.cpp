#include "organize/list_pane.h"

#include <algorithm>
#include <iterator>

#include "core/dates.h"
#include "core/hot_keys.h"
#include "organize/node_keys.h"

namespace burrowmark {
namespace {

constexpr Color kGrey = 0x808080;
constexpr wchar_t kDrivesText[] = L"Content of Drives group is automatically generated and cannot be edited.";

struct Column {
  const wchar_t* text;
  std::int32_t width;
};

constexpr Column kColumns[] = {
    {L"Name", 2700},        {L"Type", 1900},     {L"Keyboard Shortcut", 1800}, {L"Target Location", 3900},
    {L"Description", 2600}, {L"Modified", 2000}, {L"Created", 2000},
};

// Columns behind the first, as the list counts them.
enum SubItem : std::size_t { kType = 1, kKeyboard, kTarget, kDescription, kModified, kCreated };

struct ViewRow {
  const wchar_t* key;
  ListViewMode mode;
  bool gridLines;
};

constexpr ViewRow kViews[] = {
    {L"keyViewsIcoLarge", ListViewMode::kIcon, false}, {L"keyViewsIcoSmall", ListViewMode::kSmallIcon, false},
    {L"keyViewsList", ListViewMode::kList, false},     {L"keyViewsDetails", ListViewMode::kReport, false},
    {L"keyViewsGrid", ListViewMode::kReport, true},
};

// The images of items by their number: the program's first thirteen icons.
ImageList ItemImages(std::int32_t size) { return {size, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13}}; }

bool HasRow(const clsMenuItem& item) { return !item.Separator() && item.Remark != REMARK_AUTO; }

std::wstring DateText(Date date, const SystemFacts& system) {
  return date == 0 ? L"Never" : DefaultDateText(date, system);
}

}  // namespace

ListPane::ListPane(ControlParent& form, Application& app, const Document& document,
                   const std::set<std::wstring>& cutKeys)
    : lblView(form, L"Content"),
      txtInfoDrives(form, L"txtInfoDrives", Box{}, kDrivesText),
      View(form, L"ListView1", Box{}),
      app_(app),
      document_(document),
      cutKeys_(cutKeys) {
  for (const Column& column : kColumns) View.AddColumn(column.text, column.width);
  View.SetImages(ItemImages(32), ItemImages(16));
  View.SetLabelEdit(true);
  txtInfoDrives.SetMultiLine(true);
  txtInfoDrives.SetScrollBar(false);
  txtInfoDrives.SetReadOnly(true);
  txtInfoDrives.SetTabStop(false);
  txtInfoDrives.SetVisible(false);
}

void ListPane::SetPlace(const Box& place) {
  View.SetPlace(place);
  txtInfoDrives.SetPlace(place);
}

// --- rows

void ListPane::ShowGroup(const std::wstring& group) {
  txtInfoDrives.SetVisible(group == MIT_PATHS_DRIVES);
  group_ = group;
  if (group == MIT_PATHS_DRIVES) return View.Clear();
  sort_.Reset();
  const ListView::Update update(View);
  View.Clear();
  for (const ItemRef& item : document_.Store->Children(group)) {
    if (HasRow(*item)) AddListItem(*item, cutKeys_.contains(KeyOfName(item->Name())));
  }
}

void ListPane::ShowGroupOfRow(const std::wstring& group) {
  const ListView::Update update(View);
  View.Clear();
  txtInfoDrives.SetVisible(group == MIT_PATHS_DRIVES);
  for (const ItemRef& item : document_.Store->Children(group)) AddListItem(*item, false);
  group_ = group;
  View.SetSelectedItem(nullptr);
}

void ListPane::AddListItem(const clsMenuItem& item, bool Ghosted) {
  if (item.OwnerName() == MIT_PATHS_DRIVES) return;
  View.SetSorted(false);  // ahead of the adding, so that the row stands at the end
  ListItem* row = View.Add(KeyOfName(item.Name()), item.Caption(), item.IconID, item.IconID);
  if (row == nullptr) return;
  WriteColumns(*row, item);
  row->SetGhosted(Ghosted);
  row->SetSelected(false);
}

void ListPane::WriteColumns(ListItem& row, const clsMenuItem& item) {
  const bool openAll = item.ItemType == MIT_OPENALL;
  const SystemFacts& system = app_.platform.system;
  row.Tag = item.FolderPath;
  row.SetToolTipText(item.UserDescription);
  row.SetSubItem(kType, openAll ? L"Open-All Shortcut" : item.Description);
  row.SetSubItem(kKeyboard, HotKeyText(item.KeyboardCode));
  row.SetForeColor(kKeyboard, app_.ADVC[Advanced::kHotKeys] ? kColorOfControl : kGrey);
  row.SetSubItem(kTarget, item.FolderPath);
  row.SetForeColor(kTarget, item.SubMenu() || openAll ? kGrey : kColorOfControl);
  row.SetSubItem(kDescription, item.UserDescription);
  row.SetSubItem(kModified, DateText(item.TimeModified, system));
  row.SetSubItem(kCreated, DateText(item.TimeCreated, system));
}

void ListPane::Follow(const TreeChange& change) {
  if (change.Empty()) return;
  const ListView::Update update(View);
  for (const ItemRef& item : change.Out) View.Remove(KeyOfName(item->Name()));
  for (const ItemRef& item : change.In) {
    if (item->OwnerName() == group_ && HasRow(*item)) AddListItem(*item, cutKeys_.contains(KeyOfName(item->Name())));
  }
  for (const ItemRef& item : change.Changed) {
    ListItem* row = View.Find(KeyOfName(item->Name()));
    if (row == nullptr) continue;
    row->SetText(item->Caption());
    row->SetIcons(item->IconID, item->IconID);
    WriteColumns(*row, *item);
  }
}

void ListPane::Ghost(const std::set<std::wstring>& keys, bool on) {
  for (const std::wstring& key : keys) {
    if (ListItem* row = View.Find(key)) row->SetGhosted(on);
  }
}

void ListPane::Release() {
  View.Clear();
  group_.clear();
}

// --- selection

void ListPane::EnsureCurrentListItem() {
  const ListItem* current = View.SelectedItem();
  if (HasSelection() && (current == nullptr || !current->Selected())) View.SetSelectedItem(View.FirstSelected());
}

std::vector<std::wstring> ListPane::SelectedKeys() const {
  std::vector<std::wstring> keys;
  for (std::int32_t i = 1; i <= View.Count(); ++i) {
    if (View.Item(i).Selected()) keys.push_back(View.Item(i).Key());
  }
  return keys;
}

void ListPane::Select(const std::vector<std::wstring>& keys) {
  const ListView::Update update(View);
  View.SetAllSelected(false);
  View.SetSelectedItem(nullptr);
  ListItem* last = nullptr;
  for (const std::wstring& key : keys) {
    ListItem* row = View.Find(key);
    if (row == nullptr) continue;
    row->SetSelected(true);
    last = row;
  }
  if (last == nullptr) return;
  View.SetSelectedItem(last);
  last->EnsureVisible();
}

void ListPane::InvertSelection() {
  for (std::int32_t i = 1; i <= View.Count(); ++i) View.Item(i).SetSelected(!View.Item(i).Selected());
}

// --- order and view

bool ListPane::ApplyView(const std::wstring& viewKey) {
  const auto* view =
      std::find_if(std::begin(kViews), std::end(kViews), [&viewKey](const ViewRow& row) { return viewKey == row.key; });
  if (view == std::end(kViews)) return false;
  View.SetView(view->mode);
  View.SetGridLines(view->gridLines);
  return true;
}

}  // namespace burrowmark
