// The native window of a control.
#pragma once

#include <windows.h>

#include <memory>
#include <optional>
#include <string>

#include "platform/peers/ui_peers.h"
#include "platform/win32/handles.h"
#include "platform/win32/windows/drop_target.h"
#include "platform/win32/windows/form_window.h"

namespace burrowmark {

// Where a control is made: its form, and the window that it is in.
struct ChildPlace {
  FormWindow& form;
  HWND parent;
};

class ChildWindow {
 public:
  ChildWindow(const wchar_t* className, const std::wstring& text, DWORD style, const ChildPlace& place,
              ControlState& control, DWORD extendedStyle = 0);
  virtual ~ChildWindow();
  ChildWindow(const ChildWindow&) = delete;
  ChildWindow& operator=(const ChildWindow&) = delete;

  HWND Handle() const { return window_; }
  void Retire();
  bool IsRetired() const { return control_ == nullptr; }

  void Place() const;
  void ShowOrHide() const;
  void EnableOrDisable() const;
  void SetStyle(DWORD bits, bool on) const;
  void FollowTabStop() const { SetStyle(WS_TABSTOP, control_->TabStop()); }
  void FollowScale();
  void ShowTip() { form_.ShowTip(window_, control_->ToolTipText()); }
  void SetText(const std::wstring& text) const { ::SetWindowTextW(window_, text.c_str()); }

 protected:
  // What the control told its form, until the retirement: a command's number, or the record of a notification.
  virtual void Command(UINT notification);
  // The same for a window of many items, with the number of the one that it is about.
  virtual void CommandFrom(UINT item, UINT notification);
  virtual LRESULT Notify(NMHDR& record);
  // A message of the mouse before the system's own procedure sees it. None: that goes on.
  virtual std::optional<LRESULT> Mouse(const MouseMessage& mouse, UINT message, WPARAM wParam, LPARAM lParam);
  // Any other message before the system's own procedure sees it. None: that goes on.
  virtual std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam);
  // The form has another scale; font and place are those of the new one.
  virtual void Rescaled();
  // The height in pixels that the system is told where the control is as high as this.
  virtual int NativeHeight(int height) const { return height; }
  // To the control's class directly. To send a message costs several times as much, which counts where there are
  // thousands.
  LRESULT Native(UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::CallWindowProcW(native_, window_, message, wParam, lParam);
  }
  FormWindow& TheForm() const { return form_; }
  std::int32_t Dpi() const { return form_.Dpi(); }
  // Twips that a text needs in the control's font, drawn as DrawText does with `format`; `around` is what the control
  // adds to that, in pixels of the design.
  Size NeededByText(const std::wstring& text, UINT format, SIZE around) const;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                    DWORD_PTR data);
  std::optional<LRESULT> Receive(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> Character(WPARAM character, LPARAM lParam);

  FormWindow& form_;
  ControlState* control_;  // none after the retirement
  HWND window_ = nullptr;
  WNDPROC native_ = nullptr;
  std::unique_ptr<DropRegistration> drop_;
};

// The peer of a control whose window is a system's own.
template <typename KindPeer, typename Base = ChildWindow>
class ChildPeer : public KindPeer, protected Base {
 public:
  using Base::Base;

  void Retire() final { ChildWindow::Retire(); }
  WindowHandle Window() const final { return FromHwnd(ChildWindow::Handle()); }
  void PlaceChanged() final { ChildWindow::Place(); }
  void VisibleChanged() final { ChildWindow::ShowOrHide(); }
  void EnabledChanged() final { ChildWindow::EnableOrDisable(); }
  void TabStopChanged() final { ChildWindow::FollowTabStop(); }
  void ToolTipChanged() override { ChildWindow::ShowTip(); }
  void ScaleChanged() override { ChildWindow::FollowScale(); }
  void TakeFocus() final { ::SetFocus(ChildWindow::Handle()); }
};

}  // namespace burrowmark
