#include "ui/form.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/key_codes.h"

namespace burrowmark {
namespace {

// Sets a flag for as long as it lives.
class Flag {
 public:
  explicit Flag(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
  ~Flag() { flag_ = before_; }
  Flag(const Flag&) = delete;
  Flag& operator=(const Flag&) = delete;

 private:
  bool& flag_;
  bool before_;
};

}  // namespace

WindowHandle FormOwner::Window() const { return form_ != nullptr ? form_->Window() : window_; }

void Form::EndEvent() {
  if (--running_ == 0) BuryRemains();
}

Form::Form(WindowSystem& windows, const wchar_t* name, const Size& client)
    : windows_(windows), name_(name), design_(client) {}

Form::~Form() {
  for (Form* form : owned_) {
    form->owner_ = FormOwner();
    form->blocked_ = FormOwner();
    form->Tell(&FormPeer::OwnerChanged);
  }
  LeaveModal();
  if (peer_) peer_->Retire();
  peer_ = nullptr;
  SetOwner(FormOwner());
}

void Form::Form_QueryUnload(bool&, UnloadMode) {}
void Form::Form_Unload(bool&) {}
void Form::Form_KeyDown(std::int32_t&, std::int32_t) {}
void Form::Form_SystemCommand(std::int32_t) {}
void Form::Form_MouseDown(const MouseEvent&) {}
void Form::Form_MouseMove(const MouseEvent&) {}
void Form::Form_MouseUp(const MouseEvent&) {}

WindowHandle Form::Window() const { return peer_ ? peer_->Window() : 0; }

void Form::Leave(Control& control) {
  // Its controls go one by one when the form itself goes; the user sees nothing of that, and no event comes of it.
  if (peer_) RetirePeers();
  std::erase(controls_, &control);
  if (focused_ == &control) focused_ = nullptr;
}

// --- loading and unloading

void Form::Load() {
  if (peer_ || loading_) return;
  const Running running(*this);
  {
    const Flag loading(loading_);
    MakePeers();
    WindowMade();
    Form_Load();
  }
  if (peer_) Form_Resize();
}

void Form::MakePeers() {
  peer_ = windows_.peers().MakePeer(static_cast<FormState&>(*this));
  for (Control* control : controls_) control->MakePeer(windows_.peers());
}

void Form::Realise() {
  if (!peer_) return;
  const Running running(*this);
  const Control* focused = focused_;
  const bool blocks = modal_ && blocked_.TheForm() == nullptr && blocked_.Window() != 0;
  if (blocks) peer_->BlockOwner(false);
  DropPeers();
  TellOwned();  // their windows would go with the old one
  MakePeers();
  TellOwned();
  if (blocks) peer_->BlockOwner(true);
  if (visible_) peer_->VisibleChanged();
  if (focused != nullptr && focused->ThePeer() != nullptr) focused->ThePeer()->TakeFocus();
}

void Form::TellOwned() const {
  for (Form* form : owned_) form->Tell(&FormPeer::OwnerChanged);
}

void Form::RetirePeers() {
  for (Control* control : controls_) {
    if (ControlPeer* peer = control->ThePeer()) peer->Retire();
  }
  peer_->Retire();
}

void Form::DropPeers() {
  RetirePeers();
  Remains remains;
  remains.form = std::move(peer_);
  for (Control* control : controls_) {
    remains.controls.push_back(control->TakePeer());
    control->dragIn_ = false;
    control->PeerTaken();
  }
  focused_ = nullptr;
  remains_.push_back(std::move(remains));
}

void Form::BuryRemains() {
  if (remains_.empty()) return;
  // An event may have come out of the middle of a native window's own work, which must be through with it first.
  windows_.Post([remains = std::make_shared<std::vector<Remains>>(std::exchange(remains_, {}))] { remains->clear(); });
}

bool Form::Unload(UnloadMode mode) {
  if (!peer_) return true;
  if (unloading_) return false;
  const Running running(*this);
  const Flag unloading(unloading_);
  if (!MayUnload(mode)) return false;
  LetGo();
  return true;
}

bool Form::MayUnload(UnloadMode mode) {
  if (!UnloadOwned(mode)) return false;
  bool cancel = false;
  Form_QueryUnload(cancel, mode);
  return !cancel && TellUnload();
}

// False: the form refused.
bool Form::TellUnload() {
  WindowGoing();
  bool cancel = false;
  Form_Unload(cancel);
  return !cancel;
}

bool Form::UnloadOwned(UnloadMode mode) {
  const std::vector<Form*> owned = owned_;
  for (auto form = owned.rbegin(); form != owned.rend(); ++form) {
    const bool stillOwned = std::find(owned_.begin(), owned_.end(), *form) != owned_.end();
    if (stillOwned && !(*form)->Unload(mode)) return false;
  }
  return true;
}

void Form::LetGo() {
  LeaveModal();
  visible_ = false;
  placed_ = false;
  DropPeers();
  SetOwner(FormOwner());
  WindowGone();
}

void Form::WindowLost() {
  if (!peer_) return;
  const Running running(*this);
  for (Form* form : std::vector<Form*>(owned_)) form->WindowLost();
  if (!unloading_) TellUnload();
  if (peer_) LetGo();
}

// --- showing

void Form::Show(ShowMode mode, const FormOwner& owner) {
  SetOwner(owner);
  Show(mode);
}

void Form::Show(ShowMode mode) {
  const Running running(*this);
  Load();
  if (!peer_ || visible_) return;
  if (mode == Modal) return ShowModal();
  MakeVisible();
}

void Form::MakeVisible() {
  visible_ = true;
  peer_->VisibleChanged();
  placed_ = true;
}

void Form::Hide() {
  if (!visible_) return;
  const Running running(*this);
  LeaveModal();
  visible_ = false;
  Tell(&FormPeer::VisibleChanged);
}

// Ends with the call that made a form modal, whatever ended it.
class Form::Modality {
 public:
  explicit Modality(Form& form) : form_(form) { form_.EnterModal(); }
  ~Modality() {
    if (form_.modal_) form_.Hide();
  }
  Modality(const Modality&) = delete;
  Modality& operator=(const Modality&) = delete;

 private:
  Form& form_;
};

void Form::ShowModal() {
  const Modality modality(*this);
  MakeVisible();
  RunModal();
}

void Form::RunModal() {
  windows_.RunModal(Window(), [this] { return modal_; });
}

void Form::EnterModal() {
  modal_ = true;
  blocked_ = owner_;
  if (Form* owner = blocked_.TheForm()) {
    owner->Block(1);
  } else if (blocked_.Window() != 0) {
    peer_->BlockOwner(true);
  }
}

void Form::LeaveModal() {
  if (!std::exchange(modal_, false)) return;
  const FormOwner blocked = std::exchange(blocked_, FormOwner());
  if (Form* owner = blocked.TheForm()) {
    owner->Block(-1);
  } else if (blocked.Window() != 0 && peer_) {
    peer_->BlockOwner(false);
  }
}

void Form::Block(int forms) {
  const bool before = TakesInput();
  modalChildren_ += forms;
  if (TakesInput() != before) Tell(&FormPeer::TakesInputChanged);
}

void Form::BringToFront() {
  if (!peer_) return;
  if (WindowState() == FormWindowState::kMinimized) SetWindowState(FormWindowState::kNormal);
  peer_->BringToFront();
}

void Form::SetOwner(const FormOwner& owner) {
  if (owner == owner_ || modal_) return;
  if (Form* before = owner_.TheForm()) std::erase(before->owned_, this);
  owner_ = owner;
  if (Form* now = owner_.TheForm()) now->owned_.push_back(this);
  Tell(&FormPeer::OwnerChanged);
}

// --- state

void Form::SetCaption(std::wstring_view caption) {
  if (Assign(caption_, std::wstring(caption))) Tell(&FormPeer::CaptionChanged);
}

void Form::SetBorder(FormBorder border) {
  if (Assign(border_, border)) Realise();
}

void Form::SetPlace(const Box& place) {
  placed_ = true;
  if (Assign(geometry_.place, place)) Tell(&FormPeer::PlaceChanged);
}

void Form::SetEnabled(bool enabled) {
  const bool before = TakesInput();
  enabled_ = enabled;
  if (TakesInput() != before) Tell(&FormPeer::TakesInputChanged);
}

void Form::SetWindowState(FormWindowState state) {
  if (Assign(geometry_.state, state)) Tell(&FormPeer::WindowStateChanged);
}

void Form::SetTopMost(bool topMost) {
  if (Assign(topMost_, topMost)) Tell(&FormPeer::TopMostChanged);
}

void Form::SetMousePointer(std::int32_t pointer) {
  if (Assign(mousePointer_, pointer)) Tell(&FormPeer::MousePointerChanged);
}

void Form::SetIcon(std::int32_t number) {
  if (Assign(icon_, number)) Tell(&FormPeer::IconChanged);
}

// --- menus

const std::vector<MenuEntryState*>& Form::MenuEntries() const {
  static const std::vector<MenuEntryState*> kNone;
  return menus_ == nullptr ? kNone : menus_->Entries();
}

void Form::EnterMenus(MenuDoors& menus) {
  menus_ = &menus;
  Tell(&FormPeer::MenusChanged);
}

void Form::LeaveMenus() {
  if (peer_) RetirePeers();
  menus_ = nullptr;
}

void Form::AddSystemMenuEntry(SystemMenuEntry entry) {
  systemMenu_.push_back(std::move(entry));
  Tell(&FormPeer::SystemMenuChanged);
}

void Form::SetSystemMenuChecked(std::int32_t id, bool checked) {
  const auto entry = std::find_if(systemMenu_.begin(), systemMenu_.end(), [id](const auto& e) { return e.id == id; });
  if (entry != systemMenu_.end() && Assign(entry->checked, checked)) Tell(&FormPeer::SystemMenuChanged);
}

// --- focus and the buttons of Enter and Esc

void Form::MoveFocus(Control* control) {
  Control* enterBefore = ButtonOfEnter();
  Control* before = std::exchange(focused_, control);
  TellDefaultMoved(enterBefore);
  if (before != nullptr) Raise(before->LostFocus);
  if (control != nullptr && focused_ == control) Raise(control->GotFocus);
}

void Form::HandFocusOn() {
  if (focused_ == nullptr || focused_->IsReachable()) return;
  const bool toDefault = focused_->ShowsDefaultWithFocus() && default_ != nullptr && default_->IsReachable();
  if (Control* next = toDefault ? default_ : NextStop(*focused_)) next->SetFocus();
}

// Where the Tab key would stop behind a control; none if nowhere.
Control* Form::NextStop(const Control& control) const {
  std::vector<Control*> others = controls_;
  std::rotate(others.begin(), std::find(others.begin(), others.end(), &control), others.end());
  const auto next = std::find_if(others.begin(), others.end(),
                                 [](const Control* other) { return other->TabStop() && other->IsReachable(); });
  return next == others.end() ? nullptr : *next;
}

Control* Form::ButtonOfEnter() const {
  return focused_ != nullptr && focused_->ShowsDefaultWithFocus() ? focused_ : default_;
}

void Form::SetDefaultButton(Control* button) {
  Control* before = ButtonOfEnter();
  default_ = button;
  TellDefaultMoved(before);
}

void Form::TellDefaultMoved(Control* before) {
  Control* now = ButtonOfEnter();
  if (now == before) return;
  if (before != nullptr) before->DefaultMoved();
  if (now != nullptr) now->DefaultMoved();
}

WindowHandle Form::EnterButton() const {
  const Control* button = ButtonOfEnter();
  return button == nullptr ? 0 : button->Window();
}

// --- doors

void Form::UserClose() {
  if (TakesInput()) Unload(UnloadMode::kUser);
}

void Form::UserMove(const FormGeometry& geometry) {
  const Running running(*this);
  const bool resized = geometry.client != geometry_.client;
  geometry_ = geometry;
  if (resized && peer_ && !loading_) Form_Resize();
}

void Form::UserActivate(bool active) {
  const Running running(*this);
  if (!active) UserLoseMouse();
  active ? Form_Activate() : Form_Deactivate();
}

bool Form::UserKey(std::int32_t keyCode, std::int32_t shift) {
  if (!IsReachable()) return false;
  const Running running(*this);
  if (keyPreview_) Form_KeyDown(keyCode, shift);
  if (keyCode == 0 || !IsReachable()) return true;
  if (keyCode == kKeyCodeF1 && shift == 0 && Form_Help()) return true;
  const bool used = std::any_of(controls_.begin(), controls_.end(),
                                [=](Control* control) { return control->UserFormKey(keyCode, shift); });
  return used || !IsReachable() || RunShortcut(keyCode, shift);
}

bool Form::RunShortcut(std::int32_t keyCode, std::int32_t shift) {
  if (menus_ == nullptr || (focused_ != nullptr && focused_->UsesKey(keyCode, shift))) return false;
  return menus_->UserShortcut({keyCode, shift});
}

void Form::UserEscape() {
  if (cancel_ != nullptr) cancel_->UserPress();
}

void Form::UserOpenMenu(MenuEntryState& entry) {
  if (menus_ != nullptr) menus_->UserOpen(entry);
}

void Form::UserChooseMenu(MenuEntryState& entry) {
  if (menus_ != nullptr) menus_->UserChoose(entry);
}

void Form::UserSystemCommand(std::int32_t id) {
  if (!IsReachable()) return;
  const Running running(*this);
  Form_SystemCommand(id);
}

// Every press has one end, whether the button is let go or the mouse taken away.
void Form::UserMouse(MouseAction action, const MouseEvent& event) {
  if (action != MouseAction::kUp && !IsReachable()) return;
  const Running running(*this);
  const std::int32_t held = mouse_.button;
  if (action == MouseAction::kUp && (held & event.button) == 0) return;
  mouse_ = event;
  mouse_.button = action == MouseAction::kDown ? held | event.button : held;
  if (action == MouseAction::kUp) mouse_.button &= ~event.button;
  switch (action) {
    case MouseAction::kDown:
      return Form_MouseDown(event);
    case MouseAction::kMove:
      return Form_MouseMove(event);
    case MouseAction::kUp:
      return Form_MouseUp(event);
  }
}

void Form::UserLoseMouse() {
  const Running running(*this);
  for (const std::int32_t button : {kLeftButton, kRightButton}) {
    MouseEvent event = mouse_;
    event.button = button;
    UserMouse(MouseAction::kUp, event);
  }
}

void Form::UserScale() {
  for (Control* control : controls_) {
    if (ControlPeer* peer = control->ThePeer()) peer->ScaleChanged();
  }
  if (!peer_ || loading_) return;
  const Running running(*this);
  Form_Resize();  // bars may need another height
}

}  // namespace burrowmark
