// What the windows of a process ask of it.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/window_handle.h"

namespace burrowmark {

class ShownPopup;

class LocalProcess {
 public:
  virtual WindowHandle AddHandle() = 0;
  virtual void RemoveHandle(WindowHandle window) = 0;
  // Dots per inch of the screen.
  virtual std::int32_t Scale() const = 0;
  virtual bool HasFile(const std::wstring& path) const = 0;
  // Runs something that the person did, by the message queue; at once unless the program is busy.
  virtual void RunGesture(std::function<void()> gesture) = 0;
  // Shows a menu that popped up to the person, until they are done with it.
  virtual void MeetPopup(ShownPopup& popup) = 0;
  // Runs something from the message queue.
  virtual void Post(std::function<void()> work) = 0;

 protected:
  LocalProcess() = default;
  LocalProcess(const LocalProcess&) = default;
  LocalProcess& operator=(const LocalProcess&) = default;
  ~LocalProcess() = default;
};

}  // namespace burrowmark
