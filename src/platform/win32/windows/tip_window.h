// The tool tips of a form's controls.
#pragma once

#include <windows.h>

#include <string>

namespace burrowmark {

// One window for all of them, made with the first tip.
class TipWindow {
 public:
  TipWindow() = default;
  ~TipWindow();
  TipWindow(const TipWindow&) = delete;
  TipWindow& operator=(const TipWindow&) = delete;

  // Shows a text while the mouse rests on a control of the form; an empty one takes it away.
  void Show(HWND form, HWND control, const std::wstring& text);
  // The font, and how wide a tip gets before it breaks, in pixels.
  void SetLook(HFONT font, int width) const;

 private:
  HWND window_ = nullptr;  // goes with its form's, if that is the first to go
};

}  // namespace burrowmark
