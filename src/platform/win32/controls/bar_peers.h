// Toolbars and status bars of the system.
#pragma once

#include <memory>
#include <vector>

#include "platform/win32/controls/icon_image.h"
#include "platform/win32/controls/image_lists.h"
#include "platform/win32/windows/child_window.h"

namespace burrowmark {

class Win32Toolbar final : public ChildPeer<ToolbarPeer> {
 public:
  Win32Toolbar(const ChildPlace& place, ToolbarState& toolbar);
  void ButtonsChanged() override { ShowAll(); }
  void ButtonEnabledChanged(std::size_t button) override;
  std::int32_t NeededHeight() const override;

 private:
  struct Alive {};
  struct ShownImages {
    ImageList images;
    ImageList disabled;
    std::int32_t dpi = 0;
    friend bool operator==(const ShownImages&, const ShownImages&) = default;
  };

  void CommandFrom(UINT item, UINT notification) override;
  LRESULT Notify(NMHDR& record) override;
  void Rescaled() override { ShowAll(); }
  void ShowAll();
  void ShowImages();
  void AddButtons();
  void DropDown(int item);
  LRESULT Send(UINT message, WPARAM wParam, LPARAM lParam) const;
  const ToolbarButtonState* ButtonOf(int item) const;
  bool HasText() const;
  SIZE ButtonSize() const;

  ToolbarState& toolbar_;
  ShownImages shown_;
  ImageListHandle images_;
  ImageListHandle disabledImages_;
  std::shared_ptr<Alive> alive_ = std::make_shared<Alive>();
};

class Win32StatusBar final : public ChildPeer<StatusBarPeer> {
 public:
  Win32StatusBar(const ChildPlace& place, StatusBarState& bar);
  void PanelChanged(std::size_t panel) override;
  std::int32_t NeededHeight() const override;

 private:
  std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
  void Rescaled() override { ShowAll(); }
  void ShowAll();
  void Divide(int width) const;
  int IconSize() const;

  StatusBarState& bar_;
  std::vector<IconImage> icons_;
};

}  // namespace burrowmark
