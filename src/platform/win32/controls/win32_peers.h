// Peers of the real system.
#pragma once

#include <windows.h>

#include <map>

#include "platform/peers/ui_peers.h"
#include "platform/win32/controls/container_peers.h"
#include "platform/win32/controls/control_fonts.h"
#include "platform/win32/windows/child_window.h"
#include "platform/win32/windows/form_window.h"
#include "platform/win32/windows/screen_dpi.h"
#include "platform/win32/windows/window_class.h"

namespace burrowmark {

class Win32Peers final : public Peers {
 public:
  // `dpi` must outlive this object, and this object all peers.
  explicit Win32Peers(const ScreenDpi& dpi);
  Win32Peers(const Win32Peers&) = delete;
  Win32Peers& operator=(const Win32Peers&) = delete;

  // The keys of forms; for every message that a loop takes. True if the message is done with.
  bool Translate(MSG& message);

  std::unique_ptr<FormPeer> MakePeer(FormState& form) override;
  std::unique_ptr<LabelPeer> MakePeer(WindowHandle parent, LabelState& label) override;
  std::unique_ptr<ButtonPeer> MakePeer(WindowHandle parent, ButtonState& button) override;
  std::unique_ptr<AnimationPeer> MakePeer(WindowHandle parent, AnimationState& animation) override;
  std::unique_ptr<TextBoxPeer> MakePeer(WindowHandle parent, TextBoxState& box) override;
  std::unique_ptr<PicturePeer> MakePeer(WindowHandle parent, PictureState& picture) override;
  std::unique_ptr<LinePeer> MakePeer(WindowHandle parent, LineState& line) override;
  std::unique_ptr<CheckBoxPeer> MakePeer(WindowHandle parent, CheckBoxState& box) override;
  std::unique_ptr<OptionPeer> MakePeer(WindowHandle parent, OptionState& option) override;
  std::unique_ptr<ComboBoxPeer> MakePeer(WindowHandle parent, ComboBoxState& box) override;
  std::unique_ptr<FramePeer> MakePeer(WindowHandle parent, FrameState& frame) override;
  std::unique_ptr<TabStripPeer> MakePeer(WindowHandle parent, TabStripState& strip) override;

  std::unique_ptr<ToolbarPeer> MakePeer(WindowHandle parent, ToolbarState& toolbar) override;
  std::unique_ptr<StatusBarPeer> MakePeer(WindowHandle parent, StatusBarState& bar) override;
  std::unique_ptr<ListViewPeer> MakePeer(WindowHandle parent, ListViewState& list) override;
  std::unique_ptr<TreeViewPeer> MakePeer(WindowHandle parent, TreeViewState& tree) override;

 private:
  ChildPlace PlaceIn(WindowHandle parent) const;

  const ScreenDpi& dpi_;
  ControlFonts fonts_;
  WindowClass class_;
  PictureClass pictures_;
  std::map<HWND, FormWindow*> forms_;
};

}  // namespace burrowmark
