// What comes from outside the task in hand, and when it may run.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <vector>

#include "platform/window_system.h"

namespace burrowmark {

class Busy;
class ProgramWindows;

// What the program may be busy with.
enum class BusyWith : std::uint8_t {
  kStart,    // it isn't up yet
  kWork,     // something that lets messages run and mustn't be cut into: a save, a projection, a walk, an unload
  kMenu,     // the menu on the tray
  kWalk,     // several shortcuts are being opened one after the other
  kBox,      // a message box or a file dialog
  kWindow,   // a modal window
  kOptions,  // a modal window that goes when a command comes
};

// The program is at rest when it waits in its own loop, is busy with nothing and no window is in the middle of a
// gesture. Requests run then and only then, one after the other, in the order in which they came.
class Requests {
 public:
  // All must outlive this object. `bringForward` shows the user what a request waits for.
  Requests(WindowSystem& system, ProgramWindows& windows, std::function<void()> bringForward);
  Requests(const Requests&) = delete;
  Requests& operator=(const Requests&) = delete;

  void Add(std::function<void()> request);
  // The same for a command from outside. A window that goes for it goes as soon as nothing stands over it.
  void AddCommand(std::function<void()> command);
  // Runs before the program is at rest too, under boxes and modal windows; waits for work alone, and for the menu,
  // which it ends.
  void AddPrompt(std::function<void()> prompt);

  // Ends the program by `End`, when it is at rest. Boxes, windows and gestures end meanwhile as if the user had given
  // them up, and new ones don't come up; work comes to its own end. What `End` itself asks is asked. While that runs,
  // another call does nothing.
  void EndProgram();
  std::function<void()> End;
  bool IsEnding() const { return ending_; }

  bool IsBusy() const { return !busy_.empty(); }
  bool IsBusyWith(BusyWith what) const;

  // For the loop, when nothing else runs.
  void RunAtRest();

 private:
  friend class Busy;

  bool AtRest() const;
  void Leave(const Busy& busy);
  void RunPrompts();
  void ClearWaySoon();
  void ClearWay();
  void WindDownSoon();
  void WindDown();

  WindowSystem& system_;
  ProgramWindows& windows_;
  std::function<void()> bringForward_;
  std::vector<const Busy*> busy_;  // the innermost last
  std::deque<std::function<void()>> waiting_;
  std::deque<std::function<void()>> prompts_;
  bool commandWaits_ = false;
  bool ending_ = false;
  bool endRuns_ = false;
};

// The program is busy as long as this lives. `giveUp` ends it as the user would by giving it up; without one it comes
// to its own end.
class Busy {
 public:
  Busy(Requests& requests, BusyWith what, std::function<void()> giveUp = {});
  ~Busy();
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;

 private:
  friend class Requests;

  Requests& requests_;
  BusyWith what_;
  std::function<void()> giveUp_;
};

}  // namespace burrowmark
