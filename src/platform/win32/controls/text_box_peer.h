// Text boxes as the system has them.
#pragma once

#include "platform/win32/windows/child_window.h"

namespace burrowmark {

class Win32TextBox final : public ChildPeer<TextBoxPeer> {
 public:
  Win32TextBox(const ChildPlace& place, TextBoxState& box);
  void TextChanged() override;
  void SelectionChanged() override;
  void ReadOnlyChanged() override;
  void MaxLengthChanged() override;

 private:
  void Command(UINT notification) override;
  std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
  using ChildWindow::Handle;

  LRESULT WantedKeys(const MSG* message) const;
  void Report();

  TextBoxState& box_;
  bool showing_ = false;  // the state, so that what the window tells is nothing new
};

}  // namespace burrowmark
