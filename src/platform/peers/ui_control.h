// What all controls and their peers have in common.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/twips.h"
#include "platform/window_handle.h"

namespace burrowmark {

enum class MouseAction : std::uint8_t { kDown, kMove, kUp };

// Buttons of the mouse, one bit each.
inline constexpr std::int32_t kLeftButton = 1;
inline constexpr std::int32_t kRightButton = 2;
inline constexpr std::int32_t kMiddleButton = 4;

struct MouseEvent {
  std::int32_t button = 0;  // that went down or up; of a move, all that are down
  std::int32_t shift = 0;   // kShiftMask and its like
  std::int32_t x = 0;       // twips from the left and the top of the control, or of the form's client area
  std::int32_t y = 0;
  friend bool operator==(const MouseEvent&, const MouseEvent&) = default;
};

// What becomes of what is dragged and dropped, one bit each (oleidl.h).
inline constexpr std::uint32_t kEffectNone = 0;
inline constexpr std::uint32_t kEffectCopy = 1;
inline constexpr std::uint32_t kEffectMove = 2;
inline constexpr std::uint32_t kEffectLink = 4;

// The numbers are those of the controls' events.
enum class DragState : std::uint8_t { kEnter, kLeave, kOver };

// Something is dragged over a control.
struct DragEvent {
  std::int32_t shift = 0;  // kShiftMask and its like
  std::int32_t x = 0;      // twips from the corner of the control
  std::int32_t y = 0;
  std::uint32_t allowed = kEffectNone;  // what its source puts up with
  bool files = false;                   // it is files and folders
  bool ours = false;                    // it began in a control of this program
};

// What may be done with files that nobody shall lose: a copy, or else a link.
constexpr std::uint32_t EffectOnFiles(std::uint32_t allowed) {
  return (allowed & kEffectCopy) != 0 ? kEffectCopy : allowed & kEffectLink;
}

// The state of a control as its peer reads it. Functions that start with User are the doors by which what the user did
// comes in.
class ControlState {
 public:
  virtual const Box& Place() const = 0;  // within what the control is in, in twips
  virtual bool Visible() const = 0;
  virtual bool Enabled() const = 0;
  virtual bool TabStop() const = 0;  // the Tab key stops here, in the order in which the controls were made

  // Shows while the mouse rests on the control; empty for none.
  virtual const std::wstring& ToolTipText() const = 0;

  virtual void UserFocus(bool has) = 0;
  virtual void UserMouse(MouseAction action, const MouseEvent& event) = 0;
  // A key while the control has the focus, ahead of what the system makes of it. True: nobody else shall have it.
  virtual bool UserKeyDown(std::int32_t keyCode, std::int32_t shift) = 0;
  // A character that a key made, ahead of what the control makes of it; Enter and Esc are told by UserKeyDown already.
  // The one to go on with, 0 for none.
  virtual std::int32_t UserKeyPress(std::int32_t character) = 0;

  // Something may be dropped on it.
  virtual bool OLEDrop() const = 0;
  // The user drags from where the button went down. `run` carries it to its end, with what may become of it, and tells
  // what became of it. Without any of that it isn't run.
  virtual void UserStartDrag(const std::function<std::uint32_t(std::uint32_t allowed)>& run) = 0;
  // What is dragged is over the control, or leaves it; each one that entered leaves or is dropped. What a drop there
  // and then would do, none if nothing.
  virtual std::uint32_t UserDragOver(const DragEvent& event, DragState state) = 0;
  // It is dropped; the paths if it is files. What was done with it.
  virtual std::uint32_t UserDragDrop(const DragEvent& event, const std::vector<std::wstring>& files) = 0;

 protected:
  ControlState() = default;
  ControlState(const ControlState&) = default;
  ControlState& operator=(const ControlState&) = default;
  ~ControlState() = default;
};

// A peer owns one native window, which goes with it. Its making shows the whole state; after that it is told what
// changed and reads the state again.
class Peer {
 public:
  Peer() = default;
  virtual ~Peer() = default;
  Peer(const Peer&) = delete;
  Peer& operator=(const Peer&) = delete;

  // From now on it uses no door and reads no state. A form's peer also takes its window from the screen. The peer
  // itself may go much later, when nothing of it runs any more.
  virtual void Retire() = 0;
  virtual WindowHandle Window() const = 0;
};

class ControlPeer : public Peer {
 public:
  virtual void PlaceChanged() = 0;
  virtual void VisibleChanged() = 0;
  virtual void EnabledChanged() = 0;
  virtual void TabStopChanged() = 0;
  virtual void ToolTipChanged() = 0;
  // The form has another scale: place and font are worked out again.
  virtual void ScaleChanged() = 0;
  virtual void TakeFocus() = 0;
};

class CaptionPeer : public ControlPeer {
 public:
  virtual void CaptionChanged() = 0;
  // Twips that the caption needs at the scale of now, with what the control draws around it. A text that wraps needs
  // the height that it has in the control's width.
  virtual Size NeededSize() const = 0;
};

}  // namespace burrowmark
