// A window of the program.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/window_system.h"
#include "ui/control.h"
#include "ui/menu_doors.h"

namespace burrowmark {

class Form;
class FormMenus;

enum class ShowMode : std::uint8_t { Modeless, Modal };
using enum ShowMode;

// Why a form shall unload.
enum class UnloadMode : std::uint8_t { kUser, kCode };

// Whom a form stands in front of: another form, a window of which nothing but the handle is known, or nobody.
class FormOwner {
 public:
  FormOwner() = default;
  FormOwner(Form& form) : form_(&form) {}
  FormOwner(WindowHandle window) : window_(window) {}

  Form* TheForm() const { return form_; }
  WindowHandle Window() const;
  friend bool operator==(const FormOwner&, const FormOwner&) = default;

 private:
  Form* form_ = nullptr;
  WindowHandle window_ = 0;
};

// A form is loaded when it has a window. It can be unloaded and loaded again; its state and that of its controls stays.
class Form : public FormState, public ControlSite {
 public:
  // `client` is the size of what is within the frame.
  Form(WindowSystem& windows, const wchar_t* name, const Size& client);
  // Nothing of the form may be running.
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::wstring& Name() const { return name_; }
  bool Loaded() const { return peer_ != nullptr; }
  ControlSite& Site() final { return *this; }
  WindowHandle Window() const final;  // 0 while it isn't loaded

  // Makes the window, which stays hidden. Nothing happens if it is there.
  void Load();
  // Loads and shows. Modal: returns when the form is hidden or unloaded, and the owner takes no input until then; its
  // owner takes it again before this window goes. A form that shows already isn't shown again.
  void Show(ShowMode mode = Modeless);
  void Show(ShowMode mode, const FormOwner& owner);
  void Hide();
  // First unloads the forms that this one owns, the last one shown first. False if one of them, or this one, refused.
  bool Unload(UnloadMode mode = UnloadMode::kCode);
  // Throws the window away and makes it anew from the state, without events.
  void Realise();
  // Above the program's other windows, with the focus; a minimised form becomes a normal one.
  void BringToFront();

  const std::wstring& Caption() const final { return caption_; }
  void SetCaption(std::wstring_view caption);
  FormBorder Border() const final { return border_; }
  void SetBorder(FormBorder border);
  const Box& Place() const final { return geometry_.place; }
  void SetPlace(const Box& place);
  // Inside the frame, as it was told last.
  const Size& Client() const { return geometry_.client; }
  Size DesignClient() const final { return design_; }
  StartUpPosition StartUp() const final { return placed_ ? StartUpPosition::kManual : startUp_; }
  void SetStartUp(StartUpPosition position) { startUp_ = position; }
  void SetOwner(const FormOwner& owner);
  WindowHandle OwnerWindow() const final { return owner_.Window(); }
  bool Visible() const final { return visible_; }
  bool IsModal() const { return modal_; }
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  bool TakesInput() const final { return enabled_ && modalChildren_ == 0; }
  FormWindowState WindowState() const final { return geometry_.state; }
  void SetWindowState(FormWindowState state);
  bool TopMost() const final { return topMost_; }
  void SetTopMost(bool topMost);
  std::int32_t MousePointer() const final { return mousePointer_; }
  void SetMousePointer(std::int32_t pointer);
  std::int32_t Icon() const final { return icon_; }
  void SetIcon(std::int32_t number);
  // Form_KeyDown sees every key ahead of the control with the focus.
  bool KeyPreview() const { return keyPreview_; }
  void SetKeyPreview(bool on) { keyPreview_ = on; }
  const std::vector<Control*>& Controls() const final { return controls_; }
  // The control with the focus; none while that is elsewhere.
  Control* ActiveControl() const final { return focused_; }

  WindowHandle EnterButton() const final;

  const std::vector<MenuEntryState*>& MenuEntries() const final;
  const std::vector<SystemMenuEntry>& SystemMenuEntries() const final { return systemMenu_; }
  // At the end of the system menu, behind a line, where it stays. Its id is above 0, below 0xF000, and its own.
  void AddSystemMenuEntry(SystemMenuEntry entry);
  // Of an id that no entry has nothing is changed.
  void SetSystemMenuChecked(std::int32_t id, bool checked);

  void UserClose() final;
  void UserMove(const FormGeometry& geometry) final;
  void UserActivate(bool active) final;
  bool UserKey(std::int32_t keyCode, std::int32_t shift) final;
  void UserEscape() final;
  void UserOpenMenu(MenuEntryState& entry) final;
  void UserChooseMenu(MenuEntryState& entry) final;
  void UserSystemCommand(std::int32_t id) final;
  void UserScale() final;
  void UserMouse(MouseAction action, const MouseEvent& event) final;
  void UserLoseMouse() final;
  void WindowLost() final;

 protected:
  virtual void Form_Load() {}
  virtual void Form_QueryUnload(bool& Cancel, UnloadMode mode);
  virtual void Form_Unload(bool& Cancel);
  // The client area has another size, or its screen another scale; once after the loading too.
  virtual void Form_Resize() {}
  virtual void Form_Activate() {}
  virtual void Form_Deactivate() {}
  // The window is there, ahead of Form_Load; it has gone.
  virtual void WindowMade() {}
  virtual void WindowGone() {}
  // Ahead of Form_Unload.
  virtual void WindowGoing() {}
  // Runs messages until the form isn't modal any more.
  virtual void RunModal();
  // Keeps so many more (or fewer) windows in front of this one, which takes no input while there are any.
  void Block(int forms);
  // A key code of 0 keeps the key from everybody else.
  virtual void Form_KeyDown(std::int32_t& KeyCode, std::int32_t Shift);
  // F1 alone, unless Form_KeyDown took it. Whether there is help for the form.
  virtual bool Form_Help() { return false; }
  // An entry of the form in the system menu was chosen.
  virtual void Form_SystemCommand(std::int32_t id);
  // The mouse where no control is.
  virtual void Form_MouseDown(const MouseEvent& event);
  virtual void Form_MouseMove(const MouseEvent& event);
  virtual void Form_MouseUp(const MouseEvent& event);

 private:
  friend class FormMenus;  // which tells of itself, and pops up
  class Modality;
  // Peers of a window that has gone from the screen; controls go ahead of their form.
  struct Remains {
    std::unique_ptr<FormPeer> form;
    std::vector<std::unique_ptr<ControlPeer>> controls;
  };

  void Enter(Control& control) final { controls_.push_back(&control); }
  void Leave(Control& control) final;
  bool IsReachable() const final { return peer_ && visible_ && TakesInput() && !unloading_; }
  void MoveFocus(Control* control) final;
  void HandFocusOn() final;
  Control* NextStop(const Control& control) const;
  Control* DefaultButton() const final { return default_; }
  void SetDefaultButton(Control* button) final;
  Control* CancelButton() const final { return cancel_; }
  void SetCancelButton(Control* button) final { cancel_ = button; }
  Control* ButtonOfEnter() const final;
  void BeginEvent() final { ++running_; }
  void EndEvent() final;

  void MakePeers();
  void RetirePeers();
  void DropPeers();
  void TellOwned() const;
  void BuryRemains();
  bool MayUnload(UnloadMode mode);
  bool UnloadOwned(UnloadMode mode);
  bool TellUnload();
  void LetGo();

  void MakeVisible();
  void ShowModal();
  void EnterModal();
  void LeaveModal();

  void TellDefaultMoved(Control* before);
  bool RunShortcut(std::int32_t keyCode, std::int32_t shift);
  void EnterMenus(MenuDoors& menus);
  void LeaveMenus();

  template <typename Change>
  void Tell(Change change) {
    if (peer_) (peer_.get()->*change)();
  }

  WindowSystem& windows_;
  std::wstring name_;
  Size design_;
  std::wstring caption_;
  FormBorder border_ = FormBorder::kFixedDialog;
  StartUpPosition startUp_ = StartUpPosition::kCenterOwner;
  FormGeometry geometry_;
  FormOwner owner_;
  std::vector<Form*> owned_;  // in the order in which they took this form as their owner
  bool visible_ = false;
  bool placed_ = false;  // by code or by its showing, since it was loaded
  bool enabled_ = true;
  bool topMost_ = false;
  bool keyPreview_ = false;
  std::int32_t mousePointer_ = kPointerDefault;
  MouseEvent mouse_;  // where it was last; the button is those that are held
  std::int32_t icon_ = 0;

  bool modal_ = false;
  FormOwner blocked_;  // by this form while it is modal
  int modalChildren_ = 0;

  std::vector<Control*> controls_;  // in tab order
  Control* focused_ = nullptr;
  Control* default_ = nullptr;
  Control* cancel_ = nullptr;

  MenuDoors* menus_ = nullptr;
  std::vector<SystemMenuEntry> systemMenu_;

  std::unique_ptr<FormPeer> peer_;
  std::vector<Remains> remains_;
  int running_ = 0;
  bool loading_ = false;
  bool unloading_ = false;
};

}  // namespace burrowmark
