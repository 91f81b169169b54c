#include "platform/local/person/local_user.h"

#include <stdexcept>
#include <utility>

#include "platform/characters.h"

namespace burrowmark {
namespace {

std::uint32_t UpMessage(LocalUser::Button button) {
  return button == LocalUser::Button::kLeft ? kMessageLeftButtonUp : kMessageRightButtonUp;
}

std::uint32_t DownMessage(LocalUser::Button button) { return UpMessage(button) - 1; }

}  // namespace

LocalUser::LocalUser(LocalWindows& windows, LocalShell& shell) : windows_(windows), shell_(shell) {
  windows_.Person = [this](ShownWindow& window, const std::function<bool()>& open) { return MeetWindow(window, open); };
  windows_.PopupPerson = [this](ShownPopup& popup) { MeetPopup(popup); };
}

void LocalUser::LetItRun() {
  if (!windows_.IsBusy()) windows_.DoEvents();
}

void LocalUser::Send(std::uint32_t message, std::int64_t wParam) {
  windows_.PostMessageA(windows_.Main(), message, wParam, 0);
}

void LocalUser::SendTray(const std::vector<std::uint32_t>& mouseMessages) {
  const TrayIcon* icon = shell_.Tray();
  if (icon == nullptr) throw std::logic_error("there is no tray icon");
  if ((icon->flags & kTrayHasMessage) == 0) return;
  for (const std::uint32_t message : mouseMessages) {
    windows_.PostMessageA(icon->window, icon->callbackMessage, icon->id, message);
  }
  LetItRun();
}

void LocalUser::MoveOverTray() { SendTray({kMessageMouseMove}); }

void LocalUser::ClickTray(Button button) { SendTray({kMessageMouseMove, DownMessage(button), UpMessage(button)}); }

void LocalUser::PressTray() { SendTray({kMessageTrayKey}); }

void LocalUser::StartTaskBar() {
  shell_.HasTaskBar = true;
  Send(windows_.RegisterWindowMessageA(kTaskbarCreated), 0);
  LetItRun();
}

void LocalUser::EndSession() {
  Send(kMessageQueryEndSession, 0);
  Send(kMessageEndSession, 1);
  LetItRun();
}

std::string LocalUser::Complaints() const {
  std::string all = complaints_;
  if (!menus_.empty()) all += "menus that never came: " + std::to_string(menus_.size()) + "\n";
  for (const WindowScript& window : windowScripts_) {
    all += "a window that never came: " + ToUtf8(window.caption) + "\n";
  }
  if (!popups_.empty()) all += "popups that never came: " + std::to_string(popups_.size()) + "\n";
  for (const FileScript& file : files_) all += "a file dialog that never came: " + ToUtf8(file.title) + "\n";
  for (const BoxAnswer& box : boxes_) all += "a box that never came: " + ToUtf8(box.part) + "\n";
  return all;
}

std::string LocalUser::TakeComplaints() {
  std::string all = Complaints();
  complaints_.clear();
  menus_.clear();
  boxes_.clear();
  popups_.clear();
  files_.clear();
  windowScripts_.clear();
  return all;
}

void LocalUser::Complain(const std::string& what) {
  complaints_ += what + "\n";
  throw std::logic_error(what);
}

MenuActions LocalUser::TakeMenu() {
  if (menus_.empty() && AnyMenu) return AnyMenu();
  if (menus_.empty()) Complain("a menu that nobody expected");
  MenuActions actions = std::move(menus_.front());
  menus_.pop_front();
  return actions;
}

BoxAnswer LocalUser::TakeBox(const std::wstring& text, std::uint32_t style) {
  if (boxes_.empty() && AnyBox) return AnyBox(text, style);
  if (boxes_.empty() || text.find(boxes_.front().part) == std::wstring::npos) {
    Complain("a box that nobody expected: " + ToUtf8(text));
  }
  BoxAnswer answer = std::move(boxes_.front());
  boxes_.pop_front();
  return answer;
}

FileScript LocalUser::TakeFile(const std::wstring& title) {
  if (files_.empty() && AnyFile) return AnyFile(title);
  if (files_.empty() || files_.front().title != title) Complain("a file dialog that nobody expected: " + ToUtf8(title));
  FileScript script = std::move(files_.front());
  files_.pop_front();
  return script;
}

void LocalUser::MeetPopup(ShownPopup& popup) {
  if (popups_.empty() && windows_.Input) return;
  if (popups_.empty()) Complain("a popup that nobody expected");
  const auto script = std::move(popups_.front());
  popups_.pop_front();
  try {
    script(popup);
  } catch (const std::exception& failure) {
    Complain(std::string("in a popup: ") + failure.what());
  }
}

ShownWindow& LocalUser::Window(const std::wstring& caption) const {
  const std::shared_ptr<ShownWindow> window = windows_.Desktop.WithCaption(caption);
  if (!window) throw std::logic_error("there is no window " + ToUtf8(caption));
  return *window;  // the desktop keeps it
}

bool LocalUser::MeetWindow(ShownWindow& window, const std::function<bool()>& open) {
  if (windowScripts_.empty() && windows_.Input) return false;
  if (windowScripts_.empty() || windowScripts_.front().caption != window.caption) {
    Complain("a window that nobody expected: " + ToUtf8(window.caption));
  }
  const WindowScript next = std::move(windowScripts_.front());
  windowScripts_.pop_front();
  try {
    next.script(window);
  } catch (const std::exception& failure) {
    Complain("in the window " + ToUtf8(next.caption) + ": " + failure.what());
  }
  windows_.DoEvents();
  if (open()) Complain("a window that is still open: " + ToUtf8(next.caption));
  return true;
}

}  // namespace burrowmark
