// The hidden main window of the program.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/win32/menus/menu_font.h"
#include "platform/win32/windows/screen_dpi.h"
#include "platform/win32/windows/window_class.h"
#include "platform/win32/windows/work_queue.h"
#include "platform/window_system.h"

namespace burrowmark {

// What a main window draws on; all of it outlives the window.
struct MainWindowParts {
  MenuFont& font;
  const ScreenDpi& dpi;
  WorkQueue& work;
  UINT selectedState;  // what a selected entry of a menu is drawn with
};

class MainWindow {
 public:
  using Hook = std::function<MessageResult(WindowMessage&)>;

  MainWindow(const std::wstring& title, MainWindowEvents& events, const MainWindowParts& parts);
  // A window that is still there goes without a word: whoever listened may be gone.
  ~MainWindow();
  MainWindow(const MainWindow&) = delete;
  MainWindow& operator=(const MainWindow&) = delete;

  // None after a failure and when the window is gone.
  HWND Handle() const { return window_; }
  void SetHook(Hook hook);
  void Destroy();
  void TellAtRest() const;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Receive(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> AskHook(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT AnswerLetter(wchar_t letter, HMENU menu);
  void FollowMenu(UINT message, LPARAM lParam);
  void MakeUpForRightClick(POINT place);
  void FollowDpi(std::int32_t dpi);
  void Unload();
  void LetTaskbarThrough() const;

  MainWindowEvents* events_;  // none once the window has unloaded
  MainWindowParts parts_;
  UINT taskbarCreated_;
  WindowClass class_;
  HWND window_ = nullptr;
  std::shared_ptr<const Hook> hook_;  // shared with a call that is running, which may take the hook away
  std::int32_t lastDpi_ = 0;
  HMENU selectedMenu_ = nullptr;  // the popup that the user moved in last
  bool toldOfRightClick_ = false;
  bool going_ = false;
};

}  // namespace burrowmark
