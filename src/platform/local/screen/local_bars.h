// Toolbars and status bars of the local machine.
#pragma once

#include "platform/local/screen/local_control.h"

namespace burrowmark {

class LocalToolbar final : public LocalControl<ToolbarPeer, ToolbarState> {
 public:
  LocalToolbar(LocalProcess& process, LocalDesktop& desktop, WindowHandle parent, ToolbarState& toolbar);
  void ButtonsChanged() override;
  void ButtonEnabledChanged(std::size_t button) override;
  std::int32_t NeededHeight() const override;
};

class LocalStatusBar final : public LocalControl<StatusBarPeer, StatusBarState> {
 public:
  LocalStatusBar(LocalProcess& process, LocalDesktop& desktop, WindowHandle parent, StatusBarState& bar);
  void PanelChanged(std::size_t panel) override;
  std::int32_t NeededHeight() const override;
};

}  // namespace burrowmark
