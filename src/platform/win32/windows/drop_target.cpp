#include "platform/win32/windows/drop_target.h"

#include <commctrl.h>
#include <shellapi.h>
#include <shlobj.h>

#include <algorithm>
#include <optional>

#include "platform/from_system.h"
#include "platform/key_codes.h"
#include "platform/win32/shell/com_object.h"
#include "platform/win32/shell/counted_object.h"
#include "platform/win32/windows/drag_source.h"
#include "platform/win32/windows/form_window.h"

namespace burrowmark {
namespace {

// Near its upper and lower edge a window scrolls: pixels at 96 dots per inch, and milliseconds.
constexpr int kScrollInset = 20;
constexpr ULONGLONG kScrollDelay = 200;
constexpr ULONGLONG kScrollInterval = 50;

FORMATETC FilesFormat() { return {CF_HDROP, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL}; }

bool Holds(IDataObject& data, FORMATETC format) { return data.QueryGetData(&format) == S_OK; }

std::wstring PathOf(HDROP drop, UINT number) {
  std::wstring path(::DragQueryFileW(drop, number, nullptr, 0), L'\0');
  ::DragQueryFileW(drop, number, path.data(), static_cast<UINT>(path.size()) + 1);
  return path;
}

std::vector<std::wstring> FilesOf(IDataObject& data) {
  std::vector<std::wstring> files;
  FORMATETC format = FilesFormat();
  STGMEDIUM medium = {};
  if (data.GetData(&format, &medium) != S_OK) return files;
  const auto drop = reinterpret_cast<HDROP>(medium.hGlobal);
  const UINT count = ::DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0);
  for (UINT number = 0; number < count; ++number) files.push_back(PathOf(drop, number));
  ::ReleaseStgMedium(&medium);
  return files;
}

std::int32_t ShiftOf(DWORD keys) {
  return ((keys & MK_SHIFT) != 0 ? kShiftMask : 0) | ((keys & MK_CONTROL) != 0 ? kCtrlMask : 0) |
         ((keys & MK_ALT) != 0 ? kAltMask : 0);
}

}  // namespace

class DropTarget final : public CountedObject<IDropTarget> {
 public:
  DropTarget(HWND window, ControlState& control, const FormWindow& form)
      : CountedObject(IID_IDropTarget), window_(window), control_(&control), form_(&form) {}

  void Retire() { control_ = nullptr; }

  HRESULT STDMETHODCALLTYPE DragEnter(IDataObject* data, DWORD keys, POINTL at, DWORD* effect) override {
    seen_ = {};
    seen_.files = data != nullptr && Holds(*data, FilesFormat());
    seen_.ours = data != nullptr && Holds(*data, OwnDragFormat());
    scrollAt_.reset();
    Look(keys, at, *effect, DragState::kEnter);
    POINT point = {at.x, at.y};
    if (picture_) picture_->DragEnter(window_, data, &point, *effect);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE DragOver(DWORD keys, POINTL at, DWORD* effect) override {
    ScrollNearEdge(at);
    Look(keys, at, *effect, DragState::kOver);
    POINT point = {at.x, at.y};
    if (picture_) picture_->DragOver(&point, *effect);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE DragLeave() override {
    if (picture_) picture_->DragLeave();
    Tell([this] { return control_->UserDragOver(seen_, DragState::kLeave); });
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Drop(IDataObject* data, DWORD keys, POINTL at, DWORD* effect) override {
    POINT point = {at.x, at.y};
    if (picture_) picture_->Drop(data, &point, *effect);
    See(keys, at, *effect);
    const std::vector<std::wstring> files =
        seen_.files && data != nullptr ? FilesOf(*data) : std::vector<std::wstring>();
    *effect = Tell([&] { return control_->UserDragDrop(seen_, files); });
    return S_OK;
  }

 private:
  // What the control says, also where it has gone or fails.
  template <typename Call>
  DWORD Tell(Call call) {
    return FromSystem([&] { return control_ == nullptr ? DWORD{DROPEFFECT_NONE} : DWORD{call()}; },
                      DWORD{DROPEFFECT_NONE});
  }
  void See(DWORD keys, POINTL at, DWORD allowed) {
    POINT point = {at.x, at.y};
    ::ScreenToClient(window_, &point);
    seen_.shift = ShiftOf(keys);
    seen_.x = control_ == nullptr ? 0 : ToTwips(point.x, form_->Dpi());
    seen_.y = control_ == nullptr ? 0 : ToTwips(point.y, form_->Dpi());
    seen_.allowed = allowed;
  }
  void Look(DWORD keys, POINTL at, DWORD& effect, DragState state) {
    See(keys, at, effect);
    effect = Tell([&] { return control_->UserDragOver(seen_, state); });
  }

  // One line at a time, after a rest there.
  void ScrollNearEdge(POINTL at) {
    if (control_ == nullptr) return;
    RECT rows = {};
    ::GetWindowRect(window_, &rows);
    RECT header = {};
    const HWND above = ::FindWindowExW(window_, nullptr, WC_HEADERW, nullptr);
    if (above != nullptr && ::IsWindowVisible(above) != FALSE) ::GetWindowRect(above, &header);
    rows.top = std::max(rows.top, header.bottom);
    const int inset = Scaled(kScrollInset, form_->Dpi(), kDesignDpi);
    const bool up = at.y < rows.top + inset;
    if (!up && at.y < rows.bottom - inset) return scrollAt_.reset();
    const ULONGLONG now = ::GetTickCount64();
    if (!scrollAt_) scrollAt_ = now + kScrollDelay;
    if (now < *scrollAt_) return;
    scrollAt_ = now + kScrollInterval;
    if (picture_) picture_->Show(FALSE);
    ::SendMessageW(window_, WM_VSCROLL, up ? SB_LINEUP : SB_LINEDOWN, 0);
    if (picture_) picture_->Show(TRUE);
  }

  HWND window_;
  ControlState* control_;  // none after the retirement
  const FormWindow* form_;
  DragEvent seen_;
  std::optional<ULONGLONG> scrollAt_;  // while the mouse is near an edge
  // Moves the picture of what is dragged, if its source has one.
  ComObject<IDropTargetHelper> picture_{CLSID_DragDropHelper, IID_IDropTargetHelper};
};

DropRegistration::DropRegistration(HWND window, ControlState& control, const FormWindow& form) : window_(window) {
  ::OleInitialize(nullptr);
  target_ = new DropTarget(window, control, form);
  ::RegisterDragDrop(window, target_);
}

DropRegistration::~DropRegistration() {
  target_->Retire();
  ::RevokeDragDrop(window_);
  target_->Release();
  ::OleUninitialize();
}

void DropRegistration::Retire() { target_->Retire(); }

}  // namespace burrowmark
