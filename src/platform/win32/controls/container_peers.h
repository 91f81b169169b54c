// Controls that others are in, as the system shows them.
#pragma once

#include "platform/win32/controls/icon_image.h"
#include "platform/win32/windows/child_window.h"
#include "platform/win32/windows/window_class.h"

namespace burrowmark {

// The kind of window that a picture is.
class PictureClass : public WindowClass {
 public:
  static constexpr wchar_t kName[] = L"BurrowmarkPicture";
  PictureClass() : WindowClass(kName, ::DefWindowProcW, nullptr, ::LoadCursorW(nullptr, IDC_ARROW)) {}
};

class Win32Picture final : public ChildPeer<PicturePeer> {
 public:
  Win32Picture(const ChildPlace& place, PictureState& picture);
  void IconChanged() override;
  void BackColorChanged() override;
  void BorderChanged() override;

 private:
  std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
  using ChildWindow::Handle;

  int IconPixels() const;
  void Draw(HDC context);
  LRESULT BehindTexts(HDC context) const;

  PictureState& picture_;
  IconImage icon_;
  std::int32_t iconDpi_ = 0;  // that it was loaded for
};

class Win32Frame final : public ChildPeer<FramePeer> {
 public:
  Win32Frame(const ChildPlace& place, FrameState& frame);
  void CaptionChanged() override { SetText(frame_.Caption()); }
  Size NeededSize() const override;

 private:
  std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
  using ChildWindow::Handle;

  LRESULT AskBackground(HDC context, HWND control) const;
  void Erase(HDC context) const;

  FrameState& frame_;
};

}  // namespace burrowmark
