// Takes what is dragged over a control's window, from this program and from others.
#pragma once

#include <windows.h>

#include <oleidl.h>

#include "platform/peers/ui_control.h"

namespace burrowmark {

class DropTarget;
class FormWindow;

// The window takes drops as long as this lives.
class DropRegistration {
 public:
  DropRegistration(HWND window, ControlState& control, const FormWindow& form);
  ~DropRegistration();
  DropRegistration(const DropRegistration&) = delete;
  DropRegistration& operator=(const DropRegistration&) = delete;

  // From now on nothing is told to the control.
  void Retire();

 private:
  HWND window_;
  DropTarget* target_;
};

}  // namespace burrowmark
