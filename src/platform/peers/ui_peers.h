// What forms and controls show themselves with: a peer for each, and what a peer may ask of its form or control.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/peers/ui_bar_peers.h"
#include "platform/peers/ui_container_peers.h"
#include "platform/peers/ui_control.h"
#include "platform/peers/ui_entry_peers.h"
#include "platform/peers/ui_simple_peers.h"
#include "platform/peers/ui_view_peers.h"

namespace burrowmark {

enum class FormBorder : std::uint8_t { kFixedDialog, kSizable };
enum class StartUpPosition : std::uint8_t { kManual, kCenterOwner };
enum class FormWindowState : std::uint8_t { kNormal, kMinimized, kMaximized };

inline constexpr std::int32_t kPointerDefault = 0;
inline constexpr std::int32_t kPointerSizeWE = 9;  // an arrow to the west and the east
inline constexpr std::int32_t kPointerHourglass = 11;

// Where a window is. `place` is that of the normal window, also while it is minimised or maximised; the client area is
// as large as now, and 0 while minimised.
struct FormGeometry {
  Box place;
  Size client;
  FormWindowState state = FormWindowState::kNormal;
  friend bool operator==(const FormGeometry&, const FormGeometry&) = default;
};

class FormState {
 public:
  virtual const std::wstring& Caption() const = 0;
  virtual FormBorder Border() const = 0;
  // The whole window with its frame. Left and top count by the scale of the system, which is one for all screens; width
  // and height by that of the screen that the window is on. A width of 0: as the client area of the design needs it.
  virtual const Box& Place() const = 0;
  virtual Size DesignClient() const = 0;
  virtual StartUpPosition StartUp() const = 0;  // counts as long as nobody has moved the window
  virtual WindowHandle OwnerWindow() const = 0;
  virtual bool Visible() const = 0;
  virtual bool TakesInput() const = 0;  // enabled, and no modal form in front of it
  virtual FormWindowState WindowState() const = 0;
  virtual bool TopMost() const = 0;
  virtual std::int32_t MousePointer() const = 0;
  virtual std::int32_t Icon() const = 0;  // number of the program's icon; 0 for none

  // The window of the button that Enter presses now; 0 for none.
  virtual WindowHandle EnterButton() const = 0;

  // The menus of level 0: those that are visible stand on the bar, which isn't there without any. They stay the same
  // objects as long as the peer.
  virtual const std::vector<MenuEntryState*>& MenuEntries() const = 0;
  virtual const std::vector<SystemMenuEntry>& SystemMenuEntries() const = 0;

  virtual void UserClose() = 0;
  virtual void UserMove(const FormGeometry& geometry) = 0;
  virtual void UserActivate(bool active) = 0;
  // A key before the control with the focus sees it. True: nobody else shall.
  virtual bool UserKey(std::int32_t keyCode, std::int32_t shift) = 0;
  virtual void UserEscape() = 0;  // nobody wanted the Esc key
  // What is below the entry is about to show, and is read after this.
  virtual void UserOpenMenu(MenuEntryState& entry) = 0;
  virtual void UserChooseMenu(MenuEntryState& entry) = 0;
  virtual void UserSystemCommand(std::int32_t id) = 0;
  // The mouse over the client area where no control is; also elsewhere, as long as a button is held that went down
  // here.
  virtual void UserMouse(MouseAction action, const MouseEvent& event) = 0;
  // The system takes the mouse away while buttons are held: they count as let go where the mouse was last.
  virtual void UserLoseMouse() = 0;
  virtual void UserScale() = 0;   // the window is on a screen of another scale
  virtual void WindowLost() = 0;  // the system took the window, with its owner's for instance

 protected:
  FormState() = default;
  FormState(const FormState&) = default;
  FormState& operator=(const FormState&) = default;
  ~FormState() = default;
};

// The window is made hidden; VisibleChanged follows when its controls are in it.
class FormPeer : public Peer {
 public:
  virtual void CaptionChanged() = 0;
  virtual void PlaceChanged() = 0;
  virtual void OwnerChanged() = 0;
  virtual void VisibleChanged() = 0;
  virtual void TakesInputChanged() = 0;
  virtual void WindowStateChanged() = 0;
  virtual void TopMostChanged() = 0;
  virtual void MousePointerChanged() = 0;
  virtual void IconChanged() = 0;
  virtual void BringToFront() = 0;
  // The entries of the bar, or one of them.
  virtual void MenusChanged() = 0;
  // There are more of the form's entries in the system menu, or one has another check.
  virtual void SystemMenuChanged() = 0;
  // Shows what is below an entry at the mouse, or at the control with the focus if a key was pressed last; returns when
  // it is gone and what was chosen has been told. `defaultEntry`, if any, is drawn bold.
  virtual void PopupMenu(MenuEntryState& popup, const MenuEntryState* defaultEntry) = 0;
  // Keeps an owner that is no form from the user as long as a modal form is in front of it, or gives it back.
  virtual void BlockOwner(bool block) = 0;
  virtual std::int32_t Dpi() const = 0;
};

// One overload for each kind, so that a kind that a system can't show doesn't compile. `parent` is the window that the
// control is in. The state must outlive the peer, or at least its retirement.
class Peers {
 public:
  virtual ~Peers() = default;
  virtual std::unique_ptr<FormPeer> MakePeer(FormState& form) = 0;
  virtual std::unique_ptr<LabelPeer> MakePeer(WindowHandle parent, LabelState& label) = 0;
  virtual std::unique_ptr<ButtonPeer> MakePeer(WindowHandle parent, ButtonState& button) = 0;
  virtual std::unique_ptr<AnimationPeer> MakePeer(WindowHandle parent, AnimationState& animation) = 0;

  virtual std::unique_ptr<ToolbarPeer> MakePeer(WindowHandle parent, ToolbarState& toolbar) = 0;
  virtual std::unique_ptr<StatusBarPeer> MakePeer(WindowHandle parent, StatusBarState& bar) = 0;
  virtual std::unique_ptr<TextBoxPeer> MakePeer(WindowHandle parent, TextBoxState& box) = 0;
  virtual std::unique_ptr<PicturePeer> MakePeer(WindowHandle parent, PictureState& picture) = 0;
  virtual std::unique_ptr<ListViewPeer> MakePeer(WindowHandle parent, ListViewState& list) = 0;
  virtual std::unique_ptr<TreeViewPeer> MakePeer(WindowHandle parent, TreeViewState& tree) = 0;
  virtual std::unique_ptr<LinePeer> MakePeer(WindowHandle parent, LineState& line) = 0;
  virtual std::unique_ptr<CheckBoxPeer> MakePeer(WindowHandle parent, CheckBoxState& box) = 0;
  virtual std::unique_ptr<OptionPeer> MakePeer(WindowHandle parent, OptionState& option) = 0;
  virtual std::unique_ptr<ComboBoxPeer> MakePeer(WindowHandle parent, ComboBoxState& box) = 0;
  virtual std::unique_ptr<FramePeer> MakePeer(WindowHandle parent, FrameState& frame) = 0;
  virtual std::unique_ptr<TabStripPeer> MakePeer(WindowHandle parent, TabStripState& strip) = 0;
};

}  // namespace burrowmark
