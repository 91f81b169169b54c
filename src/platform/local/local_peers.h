// Peers of the local machine: what they show is kept as data.
#pragma once

#include "platform/local/local_session.h"
#include "platform/local/shown_window.h"
#include "platform/ui_peers.h"

namespace burrowmark {

class LocalPeers final : public Peers {
 public:
  // `windows` must outlive this object and all peers.
  LocalPeers(LocalWindows& windows, LocalSession& session) : windows_(windows), session_(session) {}

  std::unique_ptr<FormPeer> MakePeer(FormState& form) override;
  std::unique_ptr<LabelPeer> MakePeer(WindowHandle parent, LabelState& label) override;
  std::unique_ptr<ButtonPeer> MakePeer(WindowHandle parent, ButtonState& button) override;
  std::unique_ptr<AnimationPeer> MakePeer(WindowHandle parent, AnimationState& animation) override;

 private:
  LocalWindows& windows_;
  LocalSession& session_;
};

}  // namespace burrowmark
