// The message loop and the main window of the real system.
#pragma once

#include <windows.h>

#include <map>
#include <memory>

#include "platform/win32/controls/win32_peers.h"
#include "platform/win32/windows/main_window.h"
#include "platform/win32/windows/work_queue.h"
#include "platform/window_system.h"

namespace burrowmark {

class Win32Windows final : public WindowSystem {
 public:
  // `majorVersion` is that of the system.
  Win32Windows(MenuFont& font, const ScreenDpi& dpi, std::uint32_t majorVersion);
  ~Win32Windows() override;
  Win32Windows(const Win32Windows&) = delete;
  Win32Windows& operator=(const Win32Windows&) = delete;

  WindowHandle CreateMainWindow(const std::wstring& title, MainWindowEvents& events) override;
  void DestroyMainWindow(WindowHandle window) override;
  void SetWindowHook(WindowHandle window, std::function<MessageResult(WindowMessage&)> hook) override;
  std::int32_t MouseScreenDpi() override;
  std::int32_t MainScreenDpi() override;
  std::vector<Box> Screens() override;

  std::uint32_t RegisterWindowMessageA(const std::wstring& name) override;
  bool PostMessageA(WindowHandle window, std::uint32_t message, std::int64_t wParam, std::int64_t lParam) override;
  std::int64_t SendMessageA(WindowHandle window, std::uint32_t message, std::int64_t wParam,
                            std::int64_t lParam) override;
  std::int64_t SendText(WindowHandle window, std::uint32_t number, const std::wstring& text) override;
  std::int64_t ProcessNumber() override;
  void SetForegroundWindow(WindowHandle window) override;
  void CancelModes() override;

  bool ClaimInstance(const std::wstring& name) override;

  void DoEvents() override;
  void RunLoop() override;
  void RunModal(WindowHandle window, const std::function<bool()>& open) override;
  Peers& peers() override { return peers_; }
  void Post(std::function<void()> work) override;
  void PostLater(std::int32_t milliseconds, std::function<void()> work) override;
  void Beep() override;

 private:
  class Claim;

  void Dispatch(MSG& message);
  bool IsMainWindow(WindowHandle window) const;
  bool AnyWindow() const { return main_ != nullptr && main_->Handle() != nullptr; }

  MenuFont& font_;
  const ScreenDpi& dpi_;
  UINT selectedState_;
  Win32Peers peers_;
  WorkQueue work_;  // may hold windows of forms that wait for their end
  std::unique_ptr<MainWindow> main_;
  std::map<std::wstring, std::unique_ptr<Claim>> claims_;
};

}  // namespace burrowmark
