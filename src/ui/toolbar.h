// A row of buttons along the top of a form.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ui/control.h"

namespace burrowmark {

ToolbarButtonState ToolbarButton(std::wstring key, std::wstring toolTip, std::int32_t image);
ToolbarButtonState ToolbarSeparator();

// Buttons count from 0, separators among them.
class Toolbar final : public ControlOf<ToolbarState, ToolbarPeer> {
 public:
  Toolbar(ControlParent& parent, const wchar_t* name, std::vector<ToolbarButtonState> buttons);

  std::function<void(const std::wstring& key)> ButtonClick;
  std::function<void(const std::wstring& key)> ButtonMenuClick;

  const std::vector<ToolbarButtonState>& Buttons() const override { return buttons_; }
  // Of no button with that key nothing is changed, and nothing is on.
  bool ButtonEnabled(const std::wstring& key) const;
  void SetButtonEnabled(const std::wstring& key, bool enabled);
  void SetButtonText(std::size_t button, std::wstring caption, std::wstring toolTip);
  const ImageList& Images() const override { return images_; }
  const ImageList& DisabledImages() const override { return disabledImages_; }
  void SetImages(ImageList images, ImageList disabled);

  // Puts it along the top of a client area, as high as its buttons need.
  void AlignTop(const Size& client);

  void UserButtonClick(std::size_t button) override;
  void UserButtonMenuClick(std::size_t button, std::size_t entry) override;

 private:
  // The number of buttons if there is none.
  std::size_t Find(const std::wstring& key) const;

  std::vector<ToolbarButtonState> buttons_;
  ImageList images_;
  ImageList disabledImages_;
};

}  // namespace burrowmark
