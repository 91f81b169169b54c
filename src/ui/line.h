// A thin line between parts of a form: horizontal if it is wider than high, and vertical otherwise.
#pragma once

#include "ui/control.h"

namespace burrowmark {

class Line final : public ControlOf<LineState, LinePeer> {
 public:
  Line(ControlParent& parent, const wchar_t* name, const Box& place) : ControlOf(parent, name, place) {
    StartWithoutTabStop();
  }
};

}  // namespace burrowmark
