// Peers of the local machine: what they show is kept as data.
#pragma once

#include "platform/local/person/local_process.h"
#include "platform/local/screen/local_desktop.h"
#include "platform/peers/ui_peers.h"

namespace burrowmark {

class LocalPeers final : public Peers {
 public:
  // Both must outlive this object and all peers.
  LocalPeers(LocalProcess& process, LocalDesktop& desktop) : process_(process), desktop_(desktop) {}

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
  LocalProcess& process_;
  LocalDesktop& desktop_;
};

}  // namespace burrowmark
