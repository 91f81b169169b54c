#include "platform/win32/controls/list_view_peer.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/win32/high_contrast.h"
#include "platform/win32/windows/screen_dpi.h"

namespace burrowmark {
namespace {

// Clipped: other controls may lie over it.
constexpr DWORD kStyle = WS_CLIPSIBLINGS | LVS_SHAREIMAGELISTS | LVS_SHOWSELALWAYS | LVS_AUTOARRANGE;
constexpr DWORD kExtendedStyle = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_INFOTIP;
constexpr UINT kSelection = LVIS_SELECTED | LVIS_FOCUSED;
constexpr int kSpaceInListColumn = 12;  // pixels at 96 dots per inch, beside the icon and the text

DWORD StyleOf(ListViewMode view) {
  switch (view) {
    case ListViewMode::kIcon:
      return LVS_ICON;
    case ListViewMode::kSmallIcon:
      return LVS_SMALLICON;
    case ListViewMode::kList:
      return LVS_LIST;
    case ListViewMode::kReport:
      break;
  }
  return LVS_REPORT;
}

DWORD StyleOf(const ListViewState& list) {
  return kStyle | StyleOf(list.View()) | (list.MultiSelect() ? 0 : LVS_SINGLESEL) |
         (list.LabelEdit() ? LVS_EDITLABELS : 0);
}

// Places of rows by the numbers that the control knows them by.
using Ranks = std::vector<std::int32_t>;

int CALLBACK CompareRanks(LPARAM one, LPARAM two, LPARAM data) {
  const Ranks& ranks = *reinterpret_cast<const Ranks*>(data);
  return ranks[static_cast<std::size_t>(one)] - ranks[static_cast<std::size_t>(two)];
}

LPARAM Address(const void* record) { return reinterpret_cast<LPARAM>(record); }

}  // namespace

Win32ListView::Win32ListView(const ChildPlace& place, ListViewState& list)
    : ChildPeer(WC_LISTVIEWW, StyleOf(list), place, list), list_(list) {
  const Telling telling(*this);
  const DWORD boxes = list.CheckBoxes() ? LVS_EX_CHECKBOXES : 0;
  Native(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(kExtendedStyle | boxes));
  for (std::size_t column = 0; column < list.Columns().size(); ++column) {
    ColumnChanged(static_cast<std::int32_t>(column));
  }
  ViewChanged();
  StartUpdate();
  for (std::int32_t row = 0; row < list.RowCount(); ++row) RowAdded(row);
  StopUpdate();
  CurrentRowChanged();
  DropRowChanged();
}

// --- looks

void Win32ListView::ScaleChanged() {
  const Telling telling(*this);
  FollowScale();
  for (std::size_t column = 0; column < list_.Columns().size(); ++column) {
    ColumnChanged(static_cast<std::int32_t>(column));
  }
  ViewChanged();
}

void Win32ListView::LoadImages() {
  ImageListHandle icons = MakeImageList(list_.Icons(), Dpi());
  ImageListHandle smallIcons = MakeImageList(list_.SmallIcons(), Dpi());
  Native(LVM_SETIMAGELIST, LVSIL_NORMAL, Address(icons.get()));
  Native(LVM_SETIMAGELIST, LVSIL_SMALL, Address(smallIcons.get()));
  icons_ = std::move(icons);
  smallIcons_ = std::move(smallIcons);
}

void Win32ListView::ViewChanged() {
  const Telling telling(*this);
  LoadImages();
  // While it is hidden the header doesn't hear of another font.
  const auto header = reinterpret_cast<HWND>(Native(LVM_GETHEADER, 0, 0));
  ::SendMessageW(header, WM_SETFONT, reinterpret_cast<WPARAM>(TheForm().Font()), FALSE);
  SetStyle(LVS_TYPEMASK, false);
  SetStyle(StyleOf(list_.View()), true);
  Native(LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_GRIDLINES, list_.GridLines() ? LVS_EX_GRIDLINES : 0);
  if (list_.View() == ListViewMode::kIcon) {
    const int across = Scaled(::GetSystemMetrics(SM_CXICONSPACING), Dpi(), ScreenDpi::OfSystem());
    const int down = Scaled(::GetSystemMetrics(SM_CYICONSPACING), Dpi(), ScreenDpi::OfSystem());
    Native(LVM_SETICONSPACING, 0, MAKELPARAM(across, down));
  }
  if (list_.View() != ListViewMode::kReport) Native(LVM_ARRANGE, LVA_DEFAULT, 0);
  isListColumnStale_ = true;
  ::InvalidateRect(Handle(), nullptr, TRUE);
}

void Win32ListView::ColumnChanged(std::int32_t column) {
  const Telling telling(*this);
  const ListColumn& shown = list_.Columns()[static_cast<std::size_t>(column)];
  LVCOLUMNW native = {};
  native.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
  native.pszText = const_cast<wchar_t*>(shown.text.c_str());
  native.cx = ToPixels(shown.width, Dpi());
  native.iSubItem = column;
  if (Native(LVM_SETCOLUMNW, static_cast<WPARAM>(column), Address(&native)) != FALSE) return;
  Native(LVM_INSERTCOLUMNW, static_cast<WPARAM>(column), Address(&native));
  for (std::int32_t row = 0; row < static_cast<std::int32_t>(numbers_.size()); ++row) {
    if (asks_[static_cast<std::size_t>(numbers_[static_cast<std::size_t>(row)])]) AskForTexts(row, column);
  }
}

// The control breaks a plain list into columns as wide as the widest text, and never asks for texts to find out.
void Win32ListView::FitListColumn() {
  if (!std::exchange(isListColumnStale_, false) || list_.View() != ListViewMode::kList) return;
  LRESULT widest = 0;
  for (std::int32_t row = 0; row < list_.RowCount(); ++row) {
    widest = std::max(widest, Native(LVM_GETSTRINGWIDTHW, 0, Address(list_.Row(row).texts.front().c_str())));
  }
  const int beside = kSpaceInListColumn + (smallIcons_ ? list_.SmallIcons().size : 0);
  const int width = static_cast<int>(widest) + Scaled(beside, Dpi(), kDesignDpi);
  const Telling telling(*this);
  Native(LVM_SETCOLUMNWIDTH, 0, MAKELPARAM(width, 0));
}

// --- rows

void Win32ListView::AskForTexts(std::int32_t row, std::int32_t column) {
  LVITEMW item = {};
  item.iSubItem = column;
  item.pszText = LPSTR_TEXTCALLBACKW;
  Native(LVM_SETITEMTEXTW, static_cast<WPARAM>(row), Address(&item));
}

void Win32ListView::NeedTexts(std::int32_t row) {
  if (row < 0 || row >= static_cast<std::int32_t>(numbers_.size())) return;
  const auto number = static_cast<std::size_t>(numbers_[static_cast<std::size_t>(row)]);
  if (asks_[number]) return;
  asks_[number] = true;
  const Telling telling(*this);
  for (std::int32_t column = 1; column < static_cast<std::int32_t>(list_.Columns().size()); ++column) {
    AskForTexts(row, column);
  }
}

// Rows that show, the row that somebody reads, or all where a column is going to fit its texts.
void Win32ListView::NeedTextsFor(UINT message, WPARAM wParam, LPARAM lParam) {
  const auto rows = static_cast<std::int32_t>(numbers_.size());
  switch (message) {
    case WM_PAINT:
    case WM_PRINTCLIENT: {
      if (list_.View() != ListViewMode::kReport) return;
      const auto top = static_cast<std::int32_t>(Native(LVM_GETTOPINDEX, 0, 0));
      const auto page = static_cast<std::int32_t>(Native(LVM_GETCOUNTPERPAGE, 0, 0));
      for (std::int32_t row = top; row <= std::min(top + page + 1, rows - 1); ++row) NeedTexts(row);
      return;
    }
    case LVM_GETITEMTEXTW:
    case LVM_GETITEMTEXTA:
      return NeedTexts(static_cast<std::int32_t>(wParam));
    case LVM_GETITEMW:
    case LVM_GETITEMA:
      return NeedTexts(reinterpret_cast<const LVITEMW*>(lParam)->iItem);
    case WM_NOTIFY: {
      const UINT code = reinterpret_cast<const NMHDR*>(lParam)->code;
      if (code != HDN_DIVIDERDBLCLICKW && code != HDN_DIVIDERDBLCLICKA) return;
      for (std::int32_t row = 0; row < rows; ++row) NeedTexts(row);
      return;
    }
    default:
      return;
  }
}

void Win32ListView::RowAdded(std::int32_t row) {
  const Telling telling(*this);
  LVITEMW item = {};
  item.mask = LVIF_TEXT | LVIF_IMAGE | LVIF_PARAM;
  item.iItem = row;
  item.pszText = LPSTR_TEXTCALLBACKW;
  item.iImage = I_IMAGECALLBACK;
  item.lParam = nextNumber_;
  numbers_.insert(std::next(numbers_.begin(), row), nextNumber_++);
  asks_.push_back(false);
  Native(LVM_INSERTITEMW, 0, Address(&item));
  const ListItemState& shown = list_.Row(row);
  if (shown.selected || shown.ghosted || shown.checked) ShowState(row);
  isListColumnStale_ = true;
}

void Win32ListView::RowRemoved(std::int32_t row) {
  const Telling telling(*this);
  numbers_.erase(std::next(numbers_.begin(), row));
  Native(LVM_DELETEITEM, static_cast<WPARAM>(row), 0);
  CurrentRowChanged();  // the control passes it on to a neighbour
}

void Win32ListView::RowsCleared() {
  const Telling telling(*this);
  numbers_.clear();
  nextNumber_ = 0;
  asks_.clear();
  Native(LVM_DELETEALLITEMS, 0, 0);
}

void Win32ListView::RowsMoved(const std::vector<std::int32_t>& before) {
  const Telling telling(*this);
  Ranks ranks(static_cast<std::size_t>(nextNumber_));
  std::vector<std::int32_t> moved;
  moved.reserve(before.size());
  for (const std::int32_t row : before) {
    const std::int32_t number = numbers_[static_cast<std::size_t>(row)];
    ranks[static_cast<std::size_t>(number)] = static_cast<std::int32_t>(moved.size());
    moved.push_back(number);
  }
  numbers_ = std::move(moved);
  Native(LVM_SORTITEMS, reinterpret_cast<WPARAM>(&ranks), reinterpret_cast<LPARAM>(&CompareRanks));
  if (list_.View() != ListViewMode::kReport) Native(LVM_ARRANGE, LVA_DEFAULT, 0);
  ::InvalidateRect(Handle(), nullptr, TRUE);
}

void Win32ListView::RowChanged(std::int32_t row) {
  isListColumnStale_ = true;
  if (!IsUpdating()) Native(LVM_REDRAWITEMS, static_cast<WPARAM>(row), row);
}

void Win32ListView::EndUpdate() {
  const Telling telling(*this);
  StopUpdate();
}

// --- states of rows

void Win32ListView::SetState(std::int32_t row, UINT state, UINT mask) {
  LVITEMW item = {};
  item.state = state;
  item.stateMask = mask;
  Native(LVM_SETITEMSTATE, static_cast<WPARAM>(row), Address(&item));
}

void Win32ListView::ShowState(std::int32_t row) {
  const ListItemState& shown = list_.Row(row);
  SetState(row, (shown.selected ? LVIS_SELECTED : 0U) | (shown.ghosted ? LVIS_CUT : 0U), LVIS_SELECTED | LVIS_CUT);
  if (list_.CheckBoxes()) SetState(row, INDEXTOSTATEIMAGEMASK(shown.checked ? 2U : 1U), LVIS_STATEIMAGEMASK);
}

void Win32ListView::RowStateChanged(std::int32_t row) {
  const Telling telling(*this);
  ShowState(row);
}

void Win32ListView::CurrentRowChanged() {
  const Telling telling(*this);
  const auto before = Current();
  const std::int32_t row = list_.CurrentRow();
  if (before && *before != row) SetState(static_cast<std::int32_t>(*before), 0, LVIS_FOCUSED);
  if (row < 0) return;
  SetState(row, LVIS_FOCUSED, LVIS_FOCUSED);
  Native(LVM_SETSELECTIONMARK, 0, row);
}

void Win32ListView::DropRowChanged() {
  const Telling telling(*this);
  constexpr WPARAM kFromTheStart = static_cast<WPARAM>(-1);
  const auto before = static_cast<std::int32_t>(Native(LVM_GETNEXTITEM, kFromTheStart, LVNI_DROPHILITED));
  if (before >= 0) SetState(before, 0, LVIS_DROPHILITED);
  if (list_.DropRow() >= 0) SetState(list_.DropRow(), LVIS_DROPHILITED, LVIS_DROPHILITED);
}

void Win32ListView::EnsureVisible(std::int32_t row) { Native(LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE); }

std::int32_t Win32ListView::HitTest(std::int32_t x, std::int32_t y) const {
  LVHITTESTINFO hit = {};
  hit.pt = {ToPixels(x, Dpi()), ToPixels(y, Dpi())};
  const UINT test = list_.View() == ListViewMode::kReport ? LVM_SUBITEMHITTEST : LVM_HITTEST;
  return static_cast<std::int32_t>(Native(test, 0, Address(&hit)));
}

std::optional<std::intptr_t> Win32ListView::Current() const {
  constexpr WPARAM kFromTheStart = static_cast<WPARAM>(-1);
  const LRESULT row = Native(LVM_GETNEXTITEM, kFromTheStart, LVNI_FOCUSED);
  return row < 0 ? std::nullopt : std::optional<std::intptr_t>(row);
}

RECT Win32ListView::RectOf(std::intptr_t current) const {
  RECT rect = {LVIR_LABEL, 0, 0, 0};
  Native(LVM_GETITEMRECT, static_cast<WPARAM>(current), Address(&rect));
  return rect;
}

void Win32ListView::PressAgain(std::intptr_t current) {
  SetState(static_cast<std::int32_t>(current), LVIS_FOCUSED, LVIS_FOCUSED);
}

// --- what the control tells

LRESULT Win32ListView::Notify(NMHDR& record) {
  switch (record.code) {
    case LVN_GETDISPINFOW:
      Answer(reinterpret_cast<NMLVDISPINFOW&>(record));
      return 0;
    case NM_CUSTOMDRAW:
      return Draw(reinterpret_cast<NMLVCUSTOMDRAW&>(record));
    case LVN_ITEMCHANGED:
      if (!IsTelling()) ItemChanged(reinterpret_cast<const NMLISTVIEW&>(record));
      return 0;
    case NM_CLICK:
      NoteClick();
      return 0;
    case NM_DBLCLK:
      NoteDoubleClick();
      return 0;
    case LVN_BEGINDRAG:
      Drag();
      return 0;
    case NM_RCLICK:
      return 1;  // no context menu of its own
    case LVN_COLUMNCLICK:
      list_.UserColumnClick(reinterpret_cast<const NMLISTVIEW&>(record).iSubItem);
      return 0;
    case LVN_GETINFOTIPW:
      Hint(reinterpret_cast<const NMLVGETINFOTIPW&>(record));
      return 0;
    case LVN_BEGINLABELEDITW:
      return BeginLabelEdit(reinterpret_cast<const NMLVDISPINFOW&>(record));
    case LVN_ENDLABELEDITW:
      return EndLabelEdit(reinterpret_cast<const NMLVDISPINFOW&>(record));
    default:
      return 0;
  }
}

std::optional<LRESULT> Win32ListView::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  NeedTextsFor(message, wParam, lParam);
  if (message == WM_PAINT) {
    FitListColumn();
    list_.UserPaint();
    return std::nullopt;
  }
  if (message == WM_SYSCOLORCHANGE) TakeSystemColors();
  if (message == WM_NOTIFY) {  // of its header
    const LRESULT result = ::DefSubclassProc(Handle(), message, wParam, lParam);
    const NMHDR& record = *reinterpret_cast<const NMHDR*>(lParam);
    const bool changed = record.code == HDN_ITEMCHANGEDW || record.code == HDN_ITEMCHANGEDA;
    if (changed && !IsTelling() && !IsRetired()) ColumnDragged(reinterpret_cast<const NMHEADERW&>(record));
    return result;
  }
  return ViewWindow::Handle(message, wParam, lParam);
}

void Win32ListView::ColumnDragged(const NMHEADERW& record) {
  if (record.pitem == nullptr || (record.pitem->mask & HDI_WIDTH) == 0) return;
  list_.UserColumnWidth(record.iItem, ToTwips(record.pitem->cxy, Dpi()));
}

void Win32ListView::Answer(NMLVDISPINFOW& record) const {
  LVITEMW& item = record.item;
  if (!HasRow(item.iItem)) return;
  const ListItemState& row = list_.Row(item.iItem);
  const auto column = static_cast<std::size_t>(item.iSubItem);
  if ((item.mask & LVIF_TEXT) != 0) {
    item.pszText = const_cast<wchar_t*>(column < row.texts.size() ? row.texts[column].c_str() : L"");
  }
  if ((item.mask & LVIF_IMAGE) != 0) item.iImage = list_.View() == ListViewMode::kIcon ? row.icon : row.smallIcon;
}

void Win32ListView::ItemChanged(const NMLISTVIEW& record) {
  if ((record.uChanged & LVIF_STATE) == 0) return;
  const UINT changed = record.uOldState ^ record.uNewState;
  if ((changed & kSelection) != 0) {
    list_.UserRowState(record.iItem, (record.uNewState & LVIS_SELECTED) != 0, (record.uNewState & LVIS_FOCUSED) != 0);
  }
  if (!IsRetired() && (changed & LVIS_STATEIMAGEMASK) != 0) {
    list_.UserCheck(record.iItem, (record.uNewState & LVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(2));
  }
}

void Win32ListView::Hint(const NMLVGETINFOTIPW& record) const {
  if (!HasRow(record.iItem) || record.cchTextMax <= 0) return;
  const std::wstring& text = list_.Row(record.iItem).toolTip;
  if (!text.empty()) ::lstrcpynW(record.pszText, text.c_str(), record.cchTextMax);
}

// It took them when it was made.
void Win32ListView::TakeSystemColors() const {
  const auto back = static_cast<LPARAM>(::GetSysColor(COLOR_WINDOW));
  Native(LVM_SETBKCOLOR, 0, back);
  Native(LVM_SETTEXTBKCOLOR, 0, back);
  Native(LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(::GetSysColor(COLOR_WINDOWTEXT)));
}

// With high contrast every colour is the user's.
COLORREF Win32ListView::TextColor(Color color) {
  if (color == kColorOfControl) return ::GetSysColor(COLOR_WINDOWTEXT);
  return HighContrastIsOn() ? ::GetSysColor(COLOR_GRAYTEXT) : color;
}

// The colour of one column would go on in those behind it.
LRESULT Win32ListView::Draw(NMLVCUSTOMDRAW& record) const {
  const auto row = static_cast<std::int32_t>(record.nmcd.dwItemSpec);
  if (record.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  if (!HasRow(row) || list_.Row(row).colors.empty()) return CDRF_DODEFAULT;
  if (record.nmcd.dwDrawStage == CDDS_ITEMPREPAINT && list_.View() == ListViewMode::kReport) {
    return CDRF_NOTIFYSUBITEMDRAW;
  }
  const std::vector<Color>& colors = list_.Row(row).colors;
  const auto column = (record.nmcd.dwDrawStage & CDDS_SUBITEM) != 0 ? static_cast<std::size_t>(record.iSubItem) : 0;
  const Color color = column < colors.size() ? colors[column] : kColorOfControl;
  record.clrText = TextColor(color);
  return CDRF_NEWFONT;
}

// --- labels

void Win32ListView::StartLabelEdit(std::int32_t row) {
  EnsureVisible(row);
  EditLabel(LVM_EDITLABELW, static_cast<WPARAM>(row), 0);
}

void Win32ListView::CancelLabelEdit() { ::SendMessageW(Handle(), LVM_CANCELEDITLABEL, 0, 0); }

LRESULT Win32ListView::BeginLabelEdit(const NMLVDISPINFOW& record) {
  if (!IsEditAsked() || !list_.UserBeginLabelEdit(record.item.iItem) || IsRetired()) return TRUE;
  LabelEditBegins(LVM_GETEDITCONTROL);
  return FALSE;
}

// The control keeps no texts: whatever the state says then is drawn.
LRESULT Win32ListView::EndLabelEdit(const NMLVDISPINFOW& record) {
  LabelEditEnds();
  if (IsTelling()) return FALSE;
  const wchar_t* text = record.item.pszText;
  list_.UserEndLabelEdit(record.item.iItem, text == nullptr ? std::nullopt : std::optional<std::wstring>(text));
  return FALSE;
}

}  // namespace burrowmark
