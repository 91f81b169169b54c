// Rows of tabs as the system has them.
#pragma once

#include "platform/win32/windows/child_window.h"

namespace burrowmark {

class Win32TabStrip final : public ChildPeer<TabStripPeer> {
 public:
  Win32TabStrip(const ChildPlace& place, TabStripState& strip);
  void SelectedTabChanged() override;
  Box AreaBelow() const override;

 private:
  LRESULT Notify(NMHDR& record) override;
  std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
  using ChildWindow::Handle;

  void SpareOthers() const;

  TabStripState& strip_;
};

}  // namespace burrowmark
