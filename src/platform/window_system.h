// The message loop and the hidden main window.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/drawing.h"
#include "platform/menus.h"
#include "platform/peers/ui_peers.h"
#include "platform/window_handle.h"

namespace burrowmark {

// Numbers of the messages that the program handles by number (winuser.h).
inline constexpr std::uint32_t kMessageNull = 0;
inline constexpr std::uint32_t kMessageCancelMode = 31;
inline constexpr std::uint32_t kMessageDrawItem = 43;
inline constexpr std::uint32_t kMessageMeasureItem = 44;
inline constexpr std::uint32_t kMessageCopyData = 74;
inline constexpr std::uint32_t kMessageContextMenu = 123;  // of the tray: its icon's menu by the mouse or a key
inline constexpr std::uint32_t kMessageMenuChar = 288;
inline constexpr std::uint32_t kMessageMenuRightButtonUp = 290;
inline constexpr std::uint32_t kMessageMouseMove = 512;
inline constexpr std::uint32_t kMessageLeftButtonUp = 514;
inline constexpr std::uint32_t kMessageRightButtonUp = 517;
inline constexpr std::uint32_t kMessageTrayKey = 1025;  // Enter or Space on the tray icon

// Kind of control of a measure or draw record that is a menu's entry.
inline constexpr std::uint32_t kControlMenu = 1;

// What a measuring is asked for and answers.
struct MeasureRecord {
  std::uint32_t controlType = 0;
  std::int32_t itemID = 0;  // command number, or the popup of a group
  std::int32_t itemWidth = 0;
  std::int32_t itemHeight = 0;
};

struct DrawRecord {
  std::uint32_t controlType = 0;
  std::int32_t itemID = 0;
  std::uint32_t itemState = 0;
  DeviceContext context = 0;
  Rect rect;
};

// One message to the main window. The pointers are set for the message that they belong to and for no other.
struct WindowMessage {
  WindowHandle window = 0;
  std::uint32_t number = 0;
  std::int64_t wParam = 0;
  std::int64_t lParam = 0;
  MeasureRecord* measure = nullptr;
  const DrawRecord* draw = nullptr;
  std::wstring text;  // of copied data
};

// What a hook did with a message: nothing, so that the window's own procedure goes on, or it has a result of its own.
struct MessageResult {
  bool handled = false;
  std::int64_t value = 0;
};

// What the hidden main window hears of by itself. A handler that is empty isn't called.
struct MainWindowEvents {
  std::function<void(std::uint32_t mouseMessage)> TrayMouse;  // the mouse over the tray icon, or a key
  std::function<void()> TaskbarCreated;                       // the task bar is there, for the first time or again
  std::function<void(std::int32_t dpi)> DpiChanged;           // of the screen that it is on, the main one
  // The user's session ends for good. The window may be gone before anything else runs.
  std::function<void()> SessionEnding;
  std::function<void()> Close;   // somebody wants the window gone; it stays unless this destroys it
  std::function<void()> Unload;  // the window is going: the last thing it does
  // The loop has handled a message, or starts: nothing of the program runs, and no loop but RunLoop's own. Never told
  // from within DoEvents, RunModal, a menu, a box or any other loop of the system's.
  std::function<void()> AtRest;
};

class WindowSystem {
 public:
  virtual ~WindowSystem() = default;

  // The hidden window of the program with a menu bar of one popup of one entry; 0 on failure. There is one at a time.
  // The events must stay until the window is gone.
  virtual WindowHandle CreateMainWindow(const std::wstring& title, MainWindowEvents& events) = 0;
  // Runs Unload and takes the window away; the loop ends when no other window is left.
  virtual void DestroyMainWindow(WindowHandle window) = 0;
  // Puts a procedure ahead of the window's own one, or takes it away again (an empty one).
  virtual void SetWindowHook(WindowHandle window, std::function<MessageResult(WindowMessage&)> hook) = 0;
  // Dots per inch of the screen that the mouse is on, and of the main one, where the tray is.
  virtual std::int32_t MouseScreenDpi() = 0;
  virtual std::int32_t MainScreenDpi() = 0;

  // The screens without their task bars, the main one first, in twips by the scale of the system.
  virtual std::vector<Box> Screens() = 0;

  // The number of a message by its name; the same in all processes.
  virtual std::uint32_t RegisterWindowMessageA(const std::wstring& name) = 0;
  virtual bool PostMessageA(WindowHandle window, std::uint32_t message, std::int64_t wParam, std::int64_t lParam) = 0;
  // Sends a message and waits for its result, 0 on failure; to another process not longer than five seconds.
  virtual std::int64_t SendMessageA(WindowHandle window, std::uint32_t message, std::int64_t wParam,
                                    std::int64_t lParam) = 0;
  // Sends a text to a window of another process as copied data with a number; its answer, 0 on failure or after five
  // seconds. That process may come to the front with it. The message's wParam is this process's number.
  virtual std::int64_t SendText(WindowHandle window, std::uint32_t number, const std::wstring& text) = 0;
  virtual std::int64_t ProcessNumber() = 0;
  // Brings the window to the front, or the box that stands over it and keeps it from the user.
  virtual void SetForegroundWindow(WindowHandle window) = 0;
  // Ends what a person does with the mouse or in a menu of any window of the program, as if they had given it up.
  virtual void CancelModes() = 0;

  // Claims the name for this process as long as it runs; false if another process has it.
  virtual bool ClaimInstance(const std::wstring& name) = 0;

  // Lets all pending messages run.
  virtual void DoEvents() = 0;
  // Runs messages until the main window and all others are gone.
  virtual void RunLoop() = 0;
  // Runs messages for a window that nothing of the program goes on without, as long as `open` says so. Returns earlier
  // if the whole program shall end.
  virtual void RunModal(WindowHandle window, const std::function<bool()>& open) = 0;
  // What forms and their controls are shown with.
  virtual Peers& peers() = 0;
  // Runs `work` from the loop, after the message that is being handled. This alone may be called from any thread; the
  // work runs on the loop's.
  virtual void Post(std::function<void()> work) = 0;
  // Runs `work` once after that many milliseconds.
  virtual void PostLater(std::int32_t milliseconds, std::function<void()> work) = 0;
  virtual void Beep() = 0;
};

}  // namespace burrowmark
