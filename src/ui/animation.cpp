#include "ui/animation.h"

namespace burrowmark {

Animation::Animation(ControlParent& parent, const wchar_t* name, const Box& place) : ControlOf(parent, name, place) {
  StartWithoutTabStop();
}

void Animation::Open(std::wstring file) {
  if (file == file_) return;
  Stop();
  file_ = std::move(file);
  Tell(&AnimationPeer::FileChanged);
}

void Animation::Play() { SetPlaying(true); }

void Animation::Stop() { SetPlaying(false); }

void Animation::SetPlaying(bool playing) {
  if (Assign(playing_, playing)) Tell(&AnimationPeer::PlayingChanged);
}

}  // namespace burrowmark
