// Drags of what this program shows. They stay within it: what they hold means nothing to other programs.
#pragma once

#include <windows.h>

#include <objidl.h>

#include <cstdint>

namespace burrowmark {

// The format that a drag of this process alone has.
FORMATETC OwnDragFormat();

// Runs a drag out of a window until the button is let go, Esc is pressed, or it is taken back; what became of it.
std::uint32_t RunDrag(HWND window, std::uint32_t allowed);

// Ends the drag that runs, if one does, as Esc would.
void CancelDrag();

}  // namespace burrowmark
