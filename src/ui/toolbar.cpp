#include "ui/toolbar.h"

#include <algorithm>
#include <utility>

namespace burrowmark {

ToolbarButtonState ToolbarButton(std::wstring key, std::wstring toolTip, std::int32_t image) {
  ToolbarButtonState button;
  button.key = std::move(key);
  button.toolTip = std::move(toolTip);
  button.image = image;
  return button;
}

ToolbarButtonState ToolbarSeparator() {
  ToolbarButtonState separator;
  separator.style = ToolbarButtonStyle::kSeparator;
  return separator;
}

Toolbar::Toolbar(ControlParent& parent, const wchar_t* name, std::vector<ToolbarButtonState> buttons)
    : ControlOf(parent, name, Box()), buttons_(std::move(buttons)) {
  StartWithoutTabStop();
}

std::size_t Toolbar::Find(const std::wstring& key) const {
  const auto found = std::find_if(buttons_.begin(), buttons_.end(), [&key](const auto& b) { return b.key == key; });
  return static_cast<std::size_t>(found - buttons_.begin());
}

bool Toolbar::ButtonEnabled(const std::wstring& key) const {
  const std::size_t button = Find(key);
  return button < buttons_.size() && buttons_[button].enabled;
}

void Toolbar::SetButtonEnabled(const std::wstring& key, bool enabled) {
  const std::size_t button = Find(key);
  if (button == buttons_.size() || !Assign(buttons_[button].enabled, enabled)) return;
  if (ToolbarPeer* peer = KindsPeer()) peer->ButtonEnabledChanged(button);
}

void Toolbar::SetButtonText(std::size_t button, std::wstring caption, std::wstring toolTip) {
  if (button >= buttons_.size()) return;
  const bool newCaption = Assign(buttons_[button].caption, std::move(caption));
  const bool newToolTip = Assign(buttons_[button].toolTip, std::move(toolTip));
  if (newCaption || newToolTip) Tell(&ToolbarPeer::ButtonsChanged);
}

void Toolbar::SetImages(ImageList images, ImageList disabled) {
  const bool newImages = Assign(images_, std::move(images));
  const bool newDisabled = Assign(disabledImages_, std::move(disabled));
  if (newImages || newDisabled) Tell(&ToolbarPeer::ButtonsChanged);
}

void Toolbar::AlignTop(const Size& client) {
  const ToolbarPeer* peer = KindsPeer();
  SetPlace({0, 0, client.width, peer == nullptr ? Place().height : peer->NeededHeight()});
}

void Toolbar::UserButtonClick(std::size_t button) {
  if (!IsReachable() || button >= buttons_.size() || !buttons_[button].enabled) return;
  const ControlSite::Running running(Site());
  Raise(ButtonClick, std::wstring(buttons_[button].key));
}

void Toolbar::UserButtonMenuClick(std::size_t button, std::size_t entry) {
  if (!IsReachable() || button >= buttons_.size() || !buttons_[button].enabled) return;
  if (entry >= buttons_[button].menu.size()) return;
  const ControlSite::Running running(Site());
  Raise(ButtonMenuClick, std::wstring(buttons_[button].menu[entry].key));
}

}  // namespace burrowmark
