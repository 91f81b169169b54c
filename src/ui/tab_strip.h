// A row of tabs, of which one is in front. What belongs to a tab is the form's to show and to hide.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ui/control.h"

namespace burrowmark {

// Tabs count from 1. Ctrl and the Tab key go on to the next one wherever the focus is on the form.
class TabStrip final : public ControlOf<TabStripState, TabStripPeer> {
 public:
  TabStrip(ControlParent& parent, const wchar_t* name, const Box& place, std::vector<std::wstring> tabs);

  // Another tab is in front, whoever did that.
  std::function<void()> Click;

  const std::vector<std::wstring>& Tabs() const override { return tabs_; }
  std::int32_t SelectedTab() const override { return selected_; }
  // A tab that isn't there changes nothing.
  void SetSelectedTab(std::int32_t tab);
  // What is free below the tabs, within what the strip is in. Asks the window, which depends on fonts: for the moment
  // in which a form places what belongs to the tabs. The strip's own place while the form isn't loaded.
  Box AreaBelow() const;

  void UserSelect(std::int32_t tab) override;

 private:
  bool UserFormKey(std::int32_t keyCode, std::int32_t shift) override;

  std::vector<std::wstring> tabs_;
  std::int32_t selected_ = 0;
};

}  // namespace burrowmark
