// Messages of the mouse as the seam has them.
#pragma once

#include <windows.h>

#include <optional>

#include "platform/peers/ui_control.h"

namespace burrowmark {

struct MouseMessage {
  MouseAction action = MouseAction::kMove;
  MouseEvent event;
};

// None if the message is another one. Also a second press that makes a double click is a button going down.
std::optional<MouseMessage> DecodeMouse(UINT message, WPARAM wParam, LPARAM lParam, std::int32_t dpi);

// kShiftMask and its like, as they are held while the message is handled.
std::int32_t HeldKeys();

}  // namespace burrowmark
