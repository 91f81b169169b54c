#include "ui/status_bar.h"

#include <utility>

namespace burrowmark {

StatusBar::StatusBar(ControlParent& parent, const wchar_t* name, std::vector<StatusPanelState> panels)
    : ControlOf(parent, name, Box()), panels_(std::move(panels)) {
  StartWithoutTabStop();
}

const std::wstring& StatusBar::PanelText(std::size_t panel) const {
  static const std::wstring kNone;
  return HasPanel(panel) ? panels_[panel - 1].text : kNone;
}

void StatusBar::SetPanelText(std::size_t panel, std::wstring text) {
  if (HasPanel(panel) && Assign(panels_[panel - 1].text, std::move(text))) TellPanel(panel);
}

void StatusBar::SetPanelIcon(std::size_t panel, std::int32_t icon) {
  if (HasPanel(panel) && Assign(panels_[panel - 1].icon, icon)) TellPanel(panel);
}

void StatusBar::TellPanel(std::size_t panel) {
  if (StatusBarPeer* peer = KindsPeer()) peer->PanelChanged(panel - 1);
}

void StatusBar::AlignBottom(const Size& client) {
  const StatusBarPeer* peer = KindsPeer();
  const std::int32_t height = peer == nullptr ? Place().height : peer->NeededHeight();
  SetPlace({0, client.height - height, client.width, height});
}

}  // namespace burrowmark
