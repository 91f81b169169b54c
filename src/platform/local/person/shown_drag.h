// What a person drags across the windows of the local machine.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/local/person/shown_window.h"

namespace burrowmark {

class ShownDrag {
 public:
  // Out of a control of this program.
  explicit ShownDrag(std::uint32_t allowed) {
    event_.allowed = allowed;
    event_.ours = true;
  }
  // Files and folders, out of another program.
  ShownDrag(std::uint32_t allowed, std::vector<std::wstring> files) : files_(std::move(files)) {
    event_.allowed = allowed;
    event_.files = true;
  }

  // Where the mouse goes; a row of -1 and an empty text are the empty space below.
  void OverRow(const ShownWindow& window, WindowHandle list, std::int32_t row, std::int32_t shift = 0);
  void OverNode(const ShownWindow& window, WindowHandle tree, const std::wstring& text, std::int32_t shift = 0);
  void Over(const ShownWindow& window, WindowHandle control);
  void Leave();
  void Drop();
  // The Esc key, unless it was dropped already. What became of it.
  std::uint32_t GiveUp();

  // What a drop would do here, or did.
  std::uint32_t Effect = kEffectNone;

 private:
  void Move(const ShownWindow& window, WindowHandle control, const MouseEvent& at);

  DragEvent event_;
  std::vector<std::wstring> files_;
  std::shared_ptr<ShownControl> over_;
};

}  // namespace burrowmark
