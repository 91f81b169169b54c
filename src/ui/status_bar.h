// A line of panels along the bottom of a form.
#pragma once

#include <string>
#include <vector>

#include "ui/control.h"

namespace burrowmark {

class StatusBar final : public ControlOf<StatusBarState, StatusBarPeer> {
 public:
  StatusBar(ControlParent& parent, const wchar_t* name, std::vector<StatusPanelState> panels);

  const std::vector<StatusPanelState>& Panels() const override { return panels_; }
  bool SizeGrip() const override { return true; }
  // Panels count from 1. One that isn't there is nobody's fault.
  const std::wstring& PanelText(std::size_t panel) const;
  void SetPanelText(std::size_t panel, std::wstring text);
  void SetPanelIcon(std::size_t panel, std::int32_t icon);

  // Puts it along the bottom of a client area, as high as its texts need.
  void AlignBottom(const Size& client);

 private:
  bool HasPanel(std::size_t panel) const { return panel > 0 && panel <= panels_.size(); }
  void TellPanel(std::size_t panel);

  std::vector<StatusPanelState> panels_;
};

}  // namespace burrowmark
