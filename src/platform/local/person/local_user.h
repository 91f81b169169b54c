// The person at the local machine: what a test lets them do, and what the next menus and boxes will meet.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/local/local_shell.h"
#include "platform/local/menus/menu_actions.h"
#include "platform/local/screen/local_windows.h"

namespace burrowmark {

struct BoxAnswer {
  std::wstring part;  // of the text of the box that it is for
  std::int32_t answer = 0;
  std::function<void()> meanwhile;
};

struct FileScript {
  std::wstring title;  // of the dialog that it is for
  std::optional<std::wstring> path;
  std::int32_t filterIndex = 1;
};

// A gesture reaches the program by its message queue, and runs at once unless the program is busy. One that can't be
// made throws std::logic_error.
class LocalUser {
 public:
  // Both must outlive this object.
  LocalUser(LocalWindows& windows, LocalShell& shell);
  LocalUser(const LocalUser&) = delete;
  LocalUser& operator=(const LocalUser&) = delete;

  enum class Button : std::uint8_t { kLeft, kRight };
  void MoveOverTray();
  void ClickTray(Button button);
  // Enter on the icon.
  void PressTray();
  void LoseTaskBar() { shell_.LoseTaskBar(); }
  // The task bar is there, for the first time or again.
  void StartTaskBar();
  void EndSession();

  // What happens in the next popup, and what is answered to the next box whose text must contain `part`. In order.
  // `meanwhile` runs while the box is open.
  void NextMenu(MenuActions actions) { menus_.push_back(std::move(actions)); }
  void NextBox(const std::wstring& part, std::int32_t answer, std::function<void()> meanwhile = {}) {
    boxes_.push_back({part, answer, std::move(meanwhile)});
  }

  // What is chosen in the next menu that a form pops up, or what is done with it. In order.
  void NextPopup(MenuPath path) {
    NextPopup([path = std::move(path)](ShownPopup& popup) { popup.Choose(path); });
  }
  void NextPopup(std::function<void(ShownPopup&)> script) { popups_.push_back(std::move(script)); }
  // What is answered to the next file dialog, which must have this title; no path cancels it. In order.
  void NextFile(const std::wstring& title, std::optional<std::wstring> path, std::int32_t filterIndex = 1) {
    files_.push_back({title, std::move(path), filterIndex});
  }

  // Meet what no script was given for; one that is empty lets it fail. A menu that closes early is no fault then.
  std::function<BoxAnswer(const std::wstring& text, std::uint32_t style)> AnyBox;
  std::function<FileScript(const std::wstring& title)> AnyFile;
  std::function<MenuActions()> AnyMenu;

  // What is done in the next modal window, which must have this caption. It must be gone after that. In order.
  void NextWindow(const std::wstring& caption, std::function<void(ShownWindow&)> script) {
    windowScripts_.push_back({caption, std::move(script)});
  }
  // The topmost window on the screen with that caption.
  ShownWindow& Window(const std::wstring& caption) const;

  // Everything that wasn't as expected, and everything that was expected and didn't come; empty if all is well.
  std::string Complaints() const;
  // The same, and they are forgotten.
  std::string TakeComplaints();
  // Keeps what went wrong for Complaints, also where nobody sees the std::logic_error that this throws.
  [[noreturn]] void Complain(const std::string& what);
  // For those who show menus and boxes.
  MenuActions TakeMenu();
  BoxAnswer TakeBox(const std::wstring& text, std::uint32_t style);
  FileScript TakeFile(const std::wstring& title);

 private:
  void SendTray(const std::vector<std::uint32_t>& mouseMessages);
  void Send(std::uint32_t message, std::int64_t wParam);
  void LetItRun();
  bool MeetWindow(ShownWindow& window, const std::function<bool()>& open);
  void MeetPopup(ShownPopup& popup);

  struct WindowScript {
    std::wstring caption;
    std::function<void(ShownWindow&)> script;
  };

  LocalWindows& windows_;
  LocalShell& shell_;
  std::deque<MenuActions> menus_;
  std::deque<BoxAnswer> boxes_;
  std::deque<std::function<void(ShownPopup&)>> popups_;
  std::deque<FileScript> files_;
  std::deque<WindowScript> windowScripts_;
  std::string complaints_;
};

}  // namespace burrowmark
