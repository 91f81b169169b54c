#include "platform/win32/windows/message_records.h"

#include <algorithm>

#include "platform/win32/handles.h"

namespace burrowmark {
namespace {

static_assert(kMessageNull == WM_NULL && kMessageCancelMode == WM_CANCELMODE);
static_assert(kMessageDrawItem == WM_DRAWITEM && kMessageMeasureItem == WM_MEASUREITEM);
static_assert(kMessageCopyData == WM_COPYDATA && kMessageMenuChar == WM_MENUCHAR);
static_assert(kMessageMenuRightButtonUp == WM_MENURBUTTONUP && kMessageMouseMove == WM_MOUSEMOVE);
static_assert(kMessageLeftButtonUp == WM_LBUTTONUP && kMessageRightButtonUp == WM_RBUTTONUP);
static_assert(kControlMenu == ODT_MENU && kMessageContextMenu == WM_CONTEXTMENU);

}  // namespace

BorrowedContext::BorrowedContext(HDC context, HFONT font)
    : context_(context),
      fontBefore_(::GetCurrentObject(context, OBJ_FONT)),
      modeBefore_(::SetBkMode(context, TRANSPARENT)),
      textColorBefore_(::GetTextColor(context)) {
  if (font != nullptr) ::SelectObject(context, font);
}

BorrowedContext::~BorrowedContext() {
  ::SelectObject(context_, fontBefore_);
  ::SetBkMode(context_, modeBefore_);
  ::SetTextColor(context_, textColorBefore_);
}

DecodedMessage::DecodedMessage(HWND window, UINT number, WPARAM wParam, LPARAM lParam, UINT selectedState,
                               const MenuFont& font) {
  message_.window = FromHwnd(window);
  message_.number = number;
  message_.wParam = static_cast<std::int64_t>(wParam);
  message_.lParam = lParam;
  if (number == WM_MEASUREITEM) DecodeMeasure();
  if (number == WM_DRAWITEM) DecodeDraw(selectedState, font);
  if (number == WM_COPYDATA) DecodeText();
}

void DecodedMessage::WriteBack() const {
  if (message_.measure == nullptr) return;
  auto* record = reinterpret_cast<MEASUREITEMSTRUCT*>(message_.lParam);
  record->itemWidth = static_cast<UINT>(std::max(measure_.itemWidth, 0));
  record->itemHeight = static_cast<UINT>(std::max(measure_.itemHeight, 0));
}

void DecodedMessage::DecodeMeasure() {
  const auto* record = reinterpret_cast<const MEASUREITEMSTRUCT*>(message_.lParam);
  if (record == nullptr) return;
  measure_.controlType = record->CtlType;
  measure_.itemID = static_cast<std::int32_t>(record->itemID);
  measure_.itemWidth = static_cast<std::int32_t>(record->itemWidth);
  measure_.itemHeight = static_cast<std::int32_t>(record->itemHeight);
  message_.measure = &measure_;
}

void DecodedMessage::DecodeDraw(UINT selectedState, const MenuFont& font) {
  const auto* record = reinterpret_cast<const DRAWITEMSTRUCT*>(message_.lParam);
  if (record == nullptr) return;
  draw_.controlType = record->CtlType;
  draw_.itemID = static_cast<std::int32_t>(record->itemID);
  draw_.itemState = EntryState(record->itemState, selectedState);
  draw_.context = FromHdc(record->hDC);
  draw_.rect = FromRECT(record->rcItem);
  message_.draw = &draw_;
  context_.emplace(record->hDC, record->CtlType == ODT_MENU ? font.Current() : nullptr);
}

void DecodedMessage::DecodeText() {
  const auto* record = reinterpret_cast<const COPYDATASTRUCT*>(message_.lParam);
  whole_ =
      record != nullptr && record->cbData % sizeof(wchar_t) == 0 && (record->cbData == 0 || record->lpData != nullptr);
  if (!whole_) return;
  message_.lParam = static_cast<std::int64_t>(record->dwData);
  if (record->cbData > 0) {
    message_.text.assign(static_cast<const wchar_t*>(record->lpData), record->cbData / sizeof(wchar_t));
  }
}

UINT EntryState(UINT state, UINT selectedState) {
  return (state & ODS_SELECTED) != 0 ? selectedState : state & ~static_cast<UINT>(ODS_NOACCEL);
}

}  // namespace burrowmark
