// The message loop and the main window of the local machine.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "platform/local/faults.h"
#include "platform/local/menus/menu_tree.h"
#include "platform/local/person/local_session.h"
#include "platform/local/screen/local_desktop.h"
#include "platform/local/screen/local_peers.h"
#include "platform/window_system.h"

namespace burrowmark {

// Messages that the window's own procedure knows besides those of the seam (winuser.h).
inline constexpr std::uint32_t kMessageClose = 16;
inline constexpr std::uint32_t kMessageQueryEndSession = 17;
inline constexpr std::uint32_t kMessageEndSession = 22;
inline constexpr std::uint32_t kMessageDpiChanged = 736;
inline constexpr wchar_t kTaskbarCreated[] = L"TaskbarCreated";

// Where the program lets messages run.
enum class YieldPoint : std::uint8_t { kDoEvents, kBox, kFileDialog, kMenu, kPopup, kModal };

// A message without records and text.
WindowMessage MessageTo(WindowHandle window, std::uint32_t number, std::int64_t wParam, std::int64_t lParam);

// The number of copied data is the message's lParam.
//
// Time stands still until a test lets it pass, or RunLoop has nothing else to do.
class LocalWindows final : public WindowSystem, private LocalProcess {
 public:
  // `menus` and `faults` must outlive this object.
  LocalWindows(MenuTree& menus, std::shared_ptr<LocalSession> session, Faults& faults);
  ~LocalWindows() override;
  LocalWindows(const LocalWindows&) = delete;
  LocalWindows& operator=(const LocalWindows&) = delete;

  std::int32_t Dpi = kDesignDpi;
  // Who is at the machine while RunLoop has nothing to do: makes one gesture, or lets time pass. False: nobody will
  // come any more.
  std::function<bool()> Input;

  LocalDesktop Desktop{*this};
  // Meets a modal window as long as it is open. False: nobody was told to, and Input goes on.
  std::function<bool(ShownWindow& window, const std::function<bool()>& open)> Person;
  // Meets a menu that popped up from a form.
  std::function<void(ShownPopup& popup)> PopupPerson;
  // Hears of every place where messages run in the middle of something, before they do.
  std::function<void(YieldPoint)> Yielding;
  // Whether there is such a file for an animation to play.
  std::function<bool(const std::wstring& path)> FileTest;

  // Lets messages run, for those who show menus and boxes.
  void Yield(YieldPoint point);
  // Lets time pass, with all that falls due in it.
  void Advance(std::int64_t milliseconds);
  // 0 without a main window.
  WindowHandle Main() const { return main_ ? main_->handle : 0; }
  MenuHandle MenuOf(WindowHandle window) const { return window != 0 && window == Main() ? main_->bar : 0; }
  WindowHandle Foreground() const { return session_->Foreground; }
  std::size_t Beeps() const { return beeps_; }
  // How often the window was told to end what it does with the mouse, its menu among it.
  std::size_t CancelledModes() const { return cancelModes_; }
  // True while the program handles something: what comes now waits until it asks for it.
  bool IsBusy() const { return depth_ > 0; }
  // Runs the hook and, unless that has a result, the window's own procedure.
  MessageResult Deliver(WindowMessage& message);

  // While it lives a loop of the system's runs: that of a menu, a box or a modal window.
  class Nested {
   public:
    explicit Nested(LocalWindows& windows) : windows_(windows) { ++windows_.nested_; }
    ~Nested() { --windows_.nested_; }
    Nested(const Nested&) = delete;
    Nested& operator=(const Nested&) = delete;

   private:
    LocalWindows& windows_;
  };

  WindowHandle CreateMainWindow(const std::wstring& title, MainWindowEvents& events) override;
  void DestroyMainWindow(WindowHandle window) override;
  void SetWindowHook(WindowHandle window, std::function<MessageResult(WindowMessage&)> hook) override;
  std::int32_t MouseScreenDpi() override { return Dpi; }
  std::int32_t MainScreenDpi() override { return Dpi; }
  std::vector<Box> Screens() override;
  std::uint32_t RegisterWindowMessageA(const std::wstring& name) override { return session_->MessageNumber(name); }
  bool PostMessageA(WindowHandle window, std::uint32_t message, std::int64_t wParam, std::int64_t lParam) override;
  std::int64_t SendMessageA(WindowHandle window, std::uint32_t message, std::int64_t wParam,
                            std::int64_t lParam) override;
  std::int64_t SendText(WindowHandle window, std::uint32_t number, const std::wstring& text) override;
  std::int64_t ProcessNumber() override { return processNumber_; }
  void SetForegroundWindow(WindowHandle window) override;
  void CancelModes() override;
  bool ClaimInstance(const std::wstring& name) override { return session_->Claim(name, *this); }
  void DoEvents() override { Yield(YieldPoint::kDoEvents); }
  void RunLoop() override;
  void RunModal(WindowHandle window, const std::function<bool()>& open) override;
  Peers& peers() override { return peers_; }
  void Post(std::function<void()> work) override;
  void PostLater(std::int32_t milliseconds, std::function<void()> work) override;
  void Beep() override { ++beeps_; }

 private:
  struct MainWindow {
    WindowHandle handle = 0;
    MenuHandle bar = 0;
    MainWindowEvents* events = nullptr;
    std::function<MessageResult(WindowMessage&)> hook;
    bool going = false;
  };

  MenuHandle MakeBar();
  std::int64_t Deliver(LocalWindows* process, WindowMessage& message);
  std::int64_t OwnProcedure(const WindowMessage& message);
  WindowHandle AddHandle() override { return session_->AddWindow(*this); }
  void RemoveHandle(WindowHandle window) override { session_->RemoveWindow(window); }
  std::int32_t Scale() const override { return Dpi; }
  bool HasFile(const std::wstring& path) const override { return FileTest && FileTest(path); }
  void RunGesture(std::function<void()> gesture) override;
  void MeetPopup(ShownPopup& popup) override;
  bool RunOne();
  void RunPending();
  void LetRun();
  void TellAtRest();
  void RunWhile(const std::function<bool()>& going);
  void RunNextLater();

  MenuTree& menus_;
  std::shared_ptr<LocalSession> session_;
  Faults& faults_;
  std::int64_t processNumber_;
  std::optional<MainWindow> main_;
  LocalPeers peers_;
  std::deque<std::function<void()>> queue_;
  std::multimap<std::int64_t, std::function<void()>> later_;  // by the time when it falls due
  std::int64_t now_ = 0;
  int depth_ = 0;
  int nested_ = 0;
  std::size_t beeps_ = 0;
  std::size_t cancelModes_ = 0;
};

}  // namespace burrowmark
