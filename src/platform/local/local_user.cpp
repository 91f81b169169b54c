#include "platform/local/local_user.h"

#include <stdexcept>
#include <utility>

#include "platform/characters.h"

namespace burrowmark {
namespace {

constexpr std::uint32_t kDoubleClick = 1;  // from the message of a button that comes up to the one of its second click

std::uint32_t UpMessage(LocalUser::Button button) {
  return button == LocalUser::Button::kLeft ? kMessageLeftButtonUp : kMessageRightButtonUp;
}

std::uint32_t DownMessage(LocalUser::Button button) { return UpMessage(button) - 1; }

}  // namespace

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

void LocalUser::DoubleClickTray(Button button) {
  SendTray(
      {kMessageMouseMove, DownMessage(button), UpMessage(button), UpMessage(button) + kDoubleClick, UpMessage(button)});
}

void LocalUser::StartTaskBar() {
  shell_.HasTaskBar = true;
  Send(windows_.RegisterWindowMessageA(kTaskbarCreated), 0);
  LetItRun();
}

void LocalUser::ChangeDpi(std::int32_t dpi) {
  windows_.Dpi = dpi;
  constexpr std::int32_t kHighWord = 0x10000;
  Send(kMessageDpiChanged, dpi * kHighWord + dpi);
  LetItRun();
}

void LocalUser::TryToEndSession() {
  Send(kMessageQueryEndSession, 0);
  Send(kMessageEndSession, 0);
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
  for (const BoxAnswer& box : boxes_) all += "a box that never came: " + ToUtf8(box.part) + "\n";
  return all;
}

std::string LocalUser::TakeComplaints() {
  std::string all = Complaints();
  complaints_.clear();
  menus_.clear();
  boxes_.clear();
  return all;
}

void LocalUser::Complain(const std::string& what) {
  complaints_ += what + "\n";
  throw std::logic_error(what);
}

MenuActions LocalUser::TakeMenu() {
  if (menus_.empty()) Complain("a menu that nobody expected");
  MenuActions actions = std::move(menus_.front());
  menus_.pop_front();
  return actions;
}

BoxAnswer LocalUser::TakeBox(const std::wstring& text) {
  if (boxes_.empty() || text.find(boxes_.front().part) == std::wstring::npos) {
    Complain("a box that nobody expected: " + ToUtf8(text));
  }
  BoxAnswer answer = std::move(boxes_.front());
  boxes_.pop_front();
  return answer;
}

}  // namespace burrowmark
