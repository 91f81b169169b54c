// What the processes of one machine have in common: windows, message numbers, claimed names.
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "platform/window_handle.h"

namespace burrowmark {

class LocalWindows;

// Every process enters its windows and leaves before it goes.
class LocalSession {
 public:
  // A number that no other process has.
  std::int64_t AddProcess() { return ++lastProcess_; }
  WindowHandle AddWindow(LocalWindows& process);
  void RemoveWindow(WindowHandle window) { windows_.erase(window); }
  // The process of a window; none if there is no such window.
  LocalWindows* ProcessOf(WindowHandle window) const;

  // The number of a message, from 0xC000; names match without regard to case. 0 for an empty name, and when all
  // numbers are taken.
  std::uint32_t MessageNumber(const std::wstring& name);
  // True if nobody else has the name.
  bool Claim(const std::wstring& name, const LocalWindows& process);
  // The process and all that it had is gone.
  void Leave(const LocalWindows& process);

  WindowHandle Foreground = 0;

 private:
  std::map<WindowHandle, LocalWindows*> windows_;
  std::int64_t lastProcess_ = 0;
  WindowHandle lastWindow_ = 0x10100;
  std::map<std::wstring, std::uint32_t> numbers_;  // by folded name
  std::map<std::wstring, const LocalWindows*> claims_;
};

}  // namespace burrowmark
