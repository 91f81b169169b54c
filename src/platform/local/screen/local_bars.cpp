#include "platform/local/screen/local_bars.h"

namespace burrowmark {
namespace {

// Pixels at 96 dots per inch.
constexpr std::int32_t kTextHeight = 15;
constexpr std::int32_t kToolbarMargins = 10;
constexpr std::int32_t kStatusBarMargins = 8;

}  // namespace

LocalToolbar::LocalToolbar(LocalProcess& process, LocalDesktop& desktop, WindowHandle parent, ToolbarState& toolbar)
    : LocalControl(process, desktop, parent, ShownKind::kToolbar, toolbar) {
  Shown().UserButtonClick = [&toolbar](std::size_t button) { toolbar.UserButtonClick(button); };
  Shown().UserButtonMenuClick = [&toolbar](std::size_t button, std::size_t entry) {
    toolbar.UserButtonMenuClick(button, entry);
  };
  ButtonsChanged();
}

void LocalToolbar::ButtonsChanged() {
  Shown().buttons = Control().Buttons();
  Shown().images = Control().Images();
}

void LocalToolbar::ButtonEnabledChanged(std::size_t button) {
  Shown().buttons[button].enabled = Control().Buttons()[button].enabled;
}

std::int32_t LocalToolbar::NeededHeight() const {
  const auto& buttons = Control().Buttons();
  const bool hasText = std::any_of(buttons.begin(), buttons.end(), [](const auto& b) { return !b.caption.empty(); });
  const std::int32_t height = Control().Images().size + (hasText ? kTextHeight : 0) + kToolbarMargins;
  return ToTwips(height, kDesignDpi);
}

LocalStatusBar::LocalStatusBar(LocalProcess& process, LocalDesktop& desktop, WindowHandle parent, StatusBarState& bar)
    : LocalControl(process, desktop, parent, ShownKind::kStatusBar, bar) {
  Shown().panels = bar.Panels();
}

void LocalStatusBar::PanelChanged(std::size_t panel) { Shown().panels[panel] = Control().Panels()[panel]; }

std::int32_t LocalStatusBar::NeededHeight() const { return ToTwips(kTextHeight + kStatusBarMargins, kDesignDpi); }

}  // namespace burrowmark
