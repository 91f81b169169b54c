// A place that plays a small film without sound.
#pragma once

#include "ui/control.h"

namespace burrowmark {

// A file that is missing, or that the system can't play, leaves the place empty and still; nobody hears of it.
class Animation final : public ControlOf<AnimationState, AnimationPeer> {
 public:
  Animation(ControlParent& parent, const wchar_t* name, const Box& place);

  const std::wstring& File() const override { return file_; }
  bool Playing() const override { return playing_; }

  // Shows the first picture of an AVI file; a film that plays stops. Another file takes its place, an empty path leaves
  // none.
  void Open(std::wstring file);
  // Plays over and over.
  void Play();
  void Stop();

 private:
  void SetPlaying(bool playing);

  std::wstring file_;
  bool playing_ = false;
};

}  // namespace burrowmark
