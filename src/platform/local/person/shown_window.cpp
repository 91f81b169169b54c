#include "platform/local/person/shown_window.h"

#include <algorithm>
#include <cwctype>
#include <stdexcept>

#include "platform/characters.h"
#include "platform/key_codes.h"
#include "platform/local/screen/text_needs.h"

namespace burrowmark {
namespace {

constexpr wchar_t kMark = L'&';

wchar_t MarkedIn(const std::wstring& text) {
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != kMark) continue;
    if (text[++i] != kMark) return text[i];
  }
  return L'\0';
}

wchar_t MnemonicOf(const ShownControl& control) {
  if (!control.useMnemonic || control.kind == ShownKind::kAnimation) return L'\0';
  return MarkedIn(control.text);
}

bool SameLetter(wchar_t one, wchar_t other) {
  return std::towlower(static_cast<std::wint_t>(one)) == std::towlower(static_cast<std::wint_t>(other));
}

// The character that a key makes besides what it does itself; 0 for none, and for those that are typed as a text.
std::int32_t CharacterOf(std::int32_t keyCode, std::int32_t shift) {
  if (keyCode == kKeyCodeBackspace || keyCode == kKeyCodeSpace) return keyCode;
  const bool isLetter = keyCode >= 'A' && keyCode <= 'Z';
  return isLetter && (shift & kCtrlMask) != 0 ? keyCode - 'A' + 1 : 0;
}

// The character that is left of one when the control has been told.
std::int32_t PressCharacter(const ShownControl* control, std::int32_t character) {
  const auto door = control == nullptr ? nullptr : control->UserKeyPress;
  return door ? door(character) : character;
}

// One that can be clicked.
std::size_t FindButton(const ShownControl& toolbar, const std::wstring& key) {
  const auto& buttons = toolbar.buttons;
  const auto found = std::find_if(buttons.begin(), buttons.end(), [&key](const auto& b) { return b.key == key; });
  if (found == buttons.end()) throw std::logic_error("there is no button " + ToUtf8(key));
  if (!found->enabled) throw std::logic_error("the button can't be clicked: " + ToUtf8(key));
  return static_cast<std::size_t>(found - buttons.begin());
}

}  // namespace

// --- what can be read

ShownControl* ShownWindow::Find(const std::wstring& text) const {
  const auto found = std::find_if(controls.begin(), controls.end(), [&text](const auto& control) {
    return control->text == text || WithoutMarks(control->text) == text;
  });
  return found == controls.end() ? nullptr : found->get();
}

std::shared_ptr<ShownControl> ShownWindow::Shared(WindowHandle handle) const {
  const auto found = std::find_if(controls.begin(), controls.end(),
                                  [handle](const auto& control) { return control->window == handle; });
  return found == controls.end() ? nullptr : *found;
}

ShownControl* ShownWindow::Focused() const {
  const auto found =
      std::find_if(controls.begin(), controls.end(), [](const auto& control) { return control->focused; });
  return found == controls.end() ? nullptr : found->get();
}

std::wstring ShownWindow::LabelTexts() const {
  std::wstring texts;
  for (const auto& control : controls) {
    if (control->kind == ShownKind::kLabel && control->visible) texts += control->text + L"\n";
  }
  return texts;
}

bool ShownWindow::CanBeUsed(const ShownControl& control) const {
  if (!control.visible || !control.enabled) return false;
  const ShownControl* parent = WithWindow(control.parent);
  return parent == nullptr || CanBeUsed(*parent);
}

// --- gestures

void ShownWindow::ClickOn(const ShownControl* control) const {
  if (control == nullptr || !CanBeUsed(*control)) return;
  const std::function<void()> door = control->UserClick;
  if (door) door();
}

void ShownWindow::CheckUsable() const {
  if (!IsOpen() || !visible) throw std::logic_error("the window isn't on the screen: " + ToUtf8(caption));
  if (!enabled) throw std::logic_error("a modal window is in front of this one: " + ToUtf8(caption));
}

void ShownWindow::Do(const std::function<void()>& gesture) {
  CheckUsable();
  stack_.RunGesture(window, gesture);
}

void ShownWindow::Click(const std::wstring& button) {
  const ShownControl* control = Find(button);
  if (control == nullptr || !control->UserClick) throw std::logic_error("there is no button " + ToUtf8(button));
  if (!CanBeUsed(*control)) throw std::logic_error("the button can't be clicked: " + ToUtf8(button));
  Do([this, handle = control->window] {
    ShownControl* clicked = WithWindow(handle);
    SetFocus(clicked);
    ClickOn(clicked);
  });
}

void ShownWindow::Press(std::int32_t keyCode, std::int32_t shift) {
  Do([this, keyCode, shift] { RunKey(keyCode, shift); });
}

void ShownWindow::Type(const std::wstring& text) {
  const ShownControl* focused = Focused();
  if (focused == nullptr || !focused->UserType) throw std::logic_error("the focus is where nothing can be typed");
  Do([this, text] {
    for (const wchar_t character : text) TypeCharacter(character);
  });
}

void ShownWindow::TypeCharacter(wchar_t character) const {
  const std::int32_t left = PressCharacter(Focused(), static_cast<std::int32_t>(character));
  const ShownControl* target = Focused();
  const auto door = left == 0 || target == nullptr ? nullptr : target->UserType;
  if (door) door(std::wstring(1, static_cast<wchar_t>(left)));
}

void ShownWindow::Choose(WindowHandle control, std::int32_t index) {
  const ShownControl* shown = WithWindow(control);
  if (shown == nullptr || !shown->UserChoose) throw std::logic_error("there is nothing to choose from");
  if (!CanBeUsed(*shown)) throw std::logic_error("nothing can be chosen there now");
  if (index < 0 || static_cast<std::size_t>(index) >= shown->items.size()) throw std::logic_error("no such entry");
  Do([this, control, index] {
    SetFocus(WithWindow(control));
    const ShownControl* chosen = WithWindow(control);
    const auto door = chosen == nullptr ? nullptr : chosen->UserChoose;
    if (door) door(index);
  });
}

void ShownWindow::PressAlt(wchar_t character) {
  Do([this, character] {
    const auto key = static_cast<std::int32_t>(std::towupper(static_cast<std::wint_t>(character)));
    if (!form_->UserKey(key, kAltMask)) RunMnemonic(character);
  });
}

void ShownWindow::Mouse(WindowHandle control, MouseAction action, const MouseEvent& event) {
  Do([this, control, action, event] {
    if (control == 0) return form_->UserMouse(action, event);
    const ShownControl* under = WithWindow(control);
    if (under == nullptr) throw std::logic_error("there is no such control for the mouse");
    const auto door = under->UserMouse;
    if (door) door(action, event);
  });
}

void ShownWindow::LoseMouse() {
  Do([this] { form_->UserLoseMouse(); });
}

// --- menus and bars

void ShownWindow::ChooseMenu(const MenuPath& path) {
  Do([this, path] {
    MenuEntryState& entry = WalkMenus(*form_, form_->MenuEntries(), path, false);
    if (IsOpen()) form_->UserChooseMenu(entry);
  });
}

void ShownWindow::ChooseSystemMenu(const std::wstring& text) {
  const auto entry = std::find_if(systemMenu.begin(), systemMenu.end(),
                                  [&text](const auto& e) { return e.text == text || WithoutMarks(e.text) == text; });
  if (entry == systemMenu.end()) throw std::logic_error("there is no entry in the system menu: " + ToUtf8(text));
  Do([this, id = entry->id] { form_->UserSystemCommand(id); });
}

std::vector<std::wstring> ShownWindow::MenuTexts(const MenuPath& path) {
  CheckUsable();
  const auto& bar = form_->MenuEntries();
  return LooksOf(path.empty() ? bar : WalkMenus(*form_, bar, path, true).children);
}

// The person looks and closes it again.
bool ShownWindow::OpenFromBar(wchar_t character) {
  for (MenuEntryState* entry : form_->MenuEntries()) {
    if (!entry->visible || !SameLetter(MarkedIn(entry->caption), character)) continue;
    if (entry->enabled) form_->UserOpenMenu(*entry);
    return true;
  }
  return false;
}

ShownControl& ShownWindow::Usable(WindowHandle handle) const {
  ShownControl* control = WithWindow(handle);
  if (control == nullptr || !CanBeUsed(*control)) throw std::logic_error("there is no such bar, or it can't be used");
  return *control;
}

void ShownWindow::ClickButton(WindowHandle toolbar, const std::wstring& key) {
  Do([this, toolbar, key] {
    const ShownControl& bar = Usable(toolbar);
    const std::size_t button = FindButton(bar, key);
    const auto door = bar.UserButtonClick;
    if (door) door(button);
  });
}

void ShownWindow::ChooseButtonMenu(WindowHandle toolbar, const std::wstring& key, const std::wstring& text) {
  Do([this, toolbar, key, text] {
    const ShownControl& bar = Usable(toolbar);
    const std::size_t button = FindButton(bar, key);
    const auto& menu = bar.buttons[button].menu;
    const auto entry = std::find_if(menu.begin(), menu.end(),
                                    [&text](const auto& e) { return e.text == text || WithoutMarks(e.text) == text; });
    if (entry == menu.end()) throw std::logic_error("there is no entry in the button's menu: " + ToUtf8(text));
    const auto door = bar.UserButtonMenuClick;
    if (door) door(button, static_cast<std::size_t>(entry - menu.begin()));
  });
}

std::vector<std::wstring> ShownWindow::PanelTexts(WindowHandle statusBar) const {
  const ShownControl* bar = WithWindow(statusBar);
  if (bar == nullptr) throw std::logic_error("there is no such status bar");
  std::vector<std::wstring> texts;
  for (const StatusPanelState& panel : bar->panels) texts.push_back(panel.text);
  return texts;
}

void ShownWindow::ShowBar() {
  const auto& entries = form_->MenuEntries();
  hasBar = std::any_of(entries.begin(), entries.end(), [](const MenuEntryState* entry) { return entry->visible; });
  FitClient();
}

void ShownWindow::Close() {
  Do([this] { form_->UserClose(); });
}

void ShownWindow::MoveTo(std::int32_t left, std::int32_t top) {
  Do([this, left, top] {
    place = {left, top, left + place.right - place.left, top + place.bottom - place.top};
    Report();
  });
}

void ShownWindow::Resize(std::int32_t width, std::int32_t height) {
  Do([this, width, height] {
    place.right = place.left + width;
    place.bottom = place.top + height;
    FitClient();
    Report();
  });
}

void ShownWindow::SetState(FormWindowState newState) {
  Do([this, newState] {
    TakeState(newState);
    Report();
  });
}

void ShownWindow::ChangeScale(std::int32_t newDpi) {
  Do([this, newDpi] {
    dpi = newDpi;
    place.right = place.left + ToPixels(form_->Place().width, dpi);
    place.bottom = place.top + ToPixels(form_->Place().height, dpi);
    FitClient();
    Report();
    if (form_ != nullptr) form_->UserScale();
  });
}

// --- place

Rect ShownWindow::PlacedRect() const {
  const Box& box = form_->Place();
  const std::int32_t left = ToPixels(box.left, WindowStack::kSystemDpi);
  const std::int32_t top = ToPixels(box.top, WindowStack::kSystemDpi);
  if (box.width > 0) return {left, top, left + ToPixels(box.width, dpi), top + ToPixels(box.height, dpi)};
  const Size design = form_->DesignClient();
  const std::int32_t width = ToPixels(design.width, dpi) + Scaled(kFrame.left + kFrame.right, dpi, kDesignDpi);
  const std::int32_t height = ToPixels(design.height, dpi) + Scaled(FrameHeight(), dpi, kDesignDpi);
  return {left, top, left + width, top + height};
}

void ShownWindow::Put(const Rect& around) {
  place = PlacedRect();
  if (form_->StartUp() == StartUpPosition::kCenterOwner) {
    const std::int32_t right = (around.left + around.right - (place.right - place.left)) / 2 - place.left;
    const std::int32_t down = (around.top + around.bottom - (place.bottom - place.top)) / 2 - place.top;
    place = {place.left + right, place.top + down, place.right + right, place.bottom + down};
  }
  FitClient();
}

void ShownWindow::TakeState(FormWindowState newState) {
  state = newState;
  FitClient();
}

void ShownWindow::FitClient() {
  const auto frame = [this](std::int32_t length) { return Scaled(length, dpi, kDesignDpi); };
  const Rect& screen = WindowStack::kScreen;
  switch (state) {
    case FormWindowState::kNormal:
      client = {0, 0, place.right - place.left - frame(kFrame.left + kFrame.right),
                place.bottom - place.top - frame(FrameHeight())};
      return;
    case FormWindowState::kMaximized:
      client = {0, 0, screen.right, screen.bottom - frame(FrameHeight() - kFrame.bottom)};
      return;
    case FormWindowState::kMinimized:
      client = {};
      return;
  }
}

void ShownWindow::Report() {
  FormGeometry geometry{form_->Place(), {ToTwips(client.right, dpi), ToTwips(client.bottom, dpi)}, state};
  // What was set in twips stays as it was set, as long as it comes to the pixels that are there.
  if (geometry.place.width <= 0 || place != PlacedRect()) {
    geometry.place = {ToTwips(place.left, WindowStack::kSystemDpi), ToTwips(place.top, WindowStack::kSystemDpi),
                      ToTwips(place.right - place.left, dpi), ToTwips(place.bottom - place.top, dpi)};
  }
  // A hidden window takes on its state when it shows.
  if (!form_->Visible()) geometry.state = form_->WindowState();
  form_->UserMove(geometry);
}

// --- keys

void ShownWindow::RunKey(std::int32_t keyCode, std::int32_t shift) {
  if (ShownControl* edited = Edited()) return RunEditKey(*edited, keyCode);
  if (const ShownControl* focused = Focused(); focused != nullptr && focused->listOpen && keyCode != kKeyCodeTab) {
    return RunOwnKey(keyCode, shift);
  }
  if (form_->UserKey(keyCode, shift)) return;
  if (const ShownControl* focused = Focused(); focused != nullptr && focused->UserKeyDown) {
    const auto door = focused->UserKeyDown;
    if (door(keyCode, shift) || !IsOpen()) return;
  }
  if (const std::int32_t character = CharacterOf(keyCode, shift);
      character != 0 && PressCharacter(Focused(), character) == 0) {
    return;
  }
  switch (keyCode) {
    case kKeyCodeTab:
      return MoveFocus((shift & kShiftMask) != 0);
    case kKeyCodeReturn:
      if (const ShownControl* focused = Focused(); focused == nullptr || !focused->wantsEnter) return PressEnter();
      break;
    case kKeyCodeEscape:
      return form_->UserEscape();
    case kKeyCodeSpace:
      ClickOn(Focused());
      break;
    default:
      break;
  }
  if (IsOpen()) RunOwnKey(keyCode, shift);
}

void ShownWindow::RunOwnKey(std::int32_t keyCode, std::int32_t shift) {
  const ShownControl* focused = Focused();
  const auto press = focused == nullptr ? nullptr : focused->PressKey;
  if (press) press(keyCode, shift);
}

void ShownWindow::PressEnter() { ClickOn(WithWindow(form_->EnterButton())); }

std::vector<ShownControl*> ShownWindow::TabStops() const {
  std::vector<ShownControl*> stops;
  for (const auto& control : controls) {
    if (control->tabStop && CanBeUsed(*control)) stops.push_back(control.get());
  }
  return stops;
}

void ShownWindow::MoveFocus(bool backwards) {
  const std::vector<ShownControl*> stops = TabStops();
  if (stops.empty()) return;
  const auto now = std::find(stops.begin(), stops.end(), Focused());
  const std::size_t count = stops.size();
  if (now == stops.end()) return EnterByKey(backwards ? stops.back() : stops.front());
  const auto at = static_cast<std::size_t>(now - stops.begin());
  EnterByKey(stops[(at + (backwards ? count - 1 : 1)) % count]);
}

void ShownWindow::EnterByKey(ShownControl* control) {
  SetFocus(control);
  const ShownControl* focused = Focused();
  const auto door = focused == nullptr ? nullptr : focused->Entered;
  if (door) door();
}

void ShownWindow::RunMnemonic(wchar_t character) {
  const auto marked = std::find_if(controls.begin(), controls.end(), [this, character](const auto& control) {
    return CanBeUsed(*control) && SameLetter(MnemonicOf(*control), character);
  });
  if (marked == controls.end()) {
    OpenFromBar(character);
    return;
  }
  if ((*marked)->UserClick) {
    const std::shared_ptr<ShownControl> button = *marked;
    SetFocus(button.get());
    return ClickOn(button.get());
  }
  // A text has no use for the focus itself: it goes to what the text stands in front of.
  const auto next = std::find_if(marked, controls.end(),
                                 [this](const auto& control) { return control->tabStop && CanBeUsed(*control); });
  if (next != controls.end()) EnterByKey(next->get());
}

// --- focus

void ShownWindow::SetFocus(ShownControl* control) {
  ShownControl* before = Focused();
  if (before == control) return;
  if (before != nullptr && before->labelEdit) RunEditKey(*before, kKeyCodeReturn);
  if (before != nullptr) {
    before->focused = false;
    if (const auto door = before->UserFocus) door(false);
  }
  if (control == nullptr || !IsOpen() || Focused() != nullptr) return;
  control->focused = true;
  if (const auto door = control->UserFocus) door(true);
}

void ShownWindow::Activate(bool active) {
  if (!active) {
    ShownControl* focused = Focused();
    const auto kept = std::find_if(controls.begin(), controls.end(),
                                   [focused](const auto& control) { return control.get() == focused; });
    if (kept != controls.end()) focusBefore_ = *kept;
    SetFocus(nullptr);
  } else if (const auto before = focusBefore_.lock(); before && CanBeUsed(*before)) {
    SetFocus(before.get());
  } else if (const auto stops = TabStops(); !stops.empty()) {
    SetFocus(stops.front());
  }
  if (form_ != nullptr) form_->UserActivate(active);
}

void ShownWindow::Retire() {
  form_ = nullptr;
  visible = false;
  stack_.Deactivate(*this);
}

}  // namespace burrowmark
