// The screen of the real system. The person's gestures are the messages that the mouse and the keyboard make.
#pragma once

#ifdef _WIN32

#include "platform/window_system.h"
#include "tests/contract/screen_under_test.h"

namespace burrowmark {

class Win32Screen final : public ScreenUnderTest {
 public:
  explicit Win32Screen(WindowSystem& windows) : windows_(windows) {}

  bool Exists(WindowHandle window) override;
  std::wstring TextOf(WindowHandle window) override;
  bool IsShown(WindowHandle window) override;
  bool IsEnabled(WindowHandle window) override;
  bool HasFocus(WindowHandle control) override;
  bool IsActive(WindowHandle form) override;
  bool IsTopMost(WindowHandle form) override;
  WindowHandle OwnerOf(WindowHandle form) override;
  bool IsDefault(WindowHandle button) override;
  Rect PlaceOf(WindowHandle form, WindowHandle control) override;
  Size ClientOf(WindowHandle form) override;
  void Click(WindowHandle form, WindowHandle button) override;
  void Press(WindowHandle form, std::int32_t keyCode, std::int32_t shift) override;
  void PressAlt(WindowHandle form, wchar_t character) override;
  void Close(WindowHandle form) override;
  void Resize(WindowHandle form, std::int32_t width, std::int32_t height) override;
  void ChangeScale(WindowHandle form, std::int32_t dpi) override;
  void Type(WindowHandle form, const std::wstring& text) override;
  std::pair<std::int32_t, std::int32_t> SelectedIn(WindowHandle box) override;
  std::int32_t CheckOf(WindowHandle box) override;
  std::int32_t EntryCountOf(WindowHandle combo) override;
  void ChooseEntry(WindowHandle form, WindowHandle combo, std::int32_t index) override;
  void ChooseTab(WindowHandle form, WindowHandle strip, std::int32_t index) override;
  std::int32_t TabOf(WindowHandle strip) override;
  void NextWindow(const std::wstring& caption, std::function<void()> script) override;
  std::string Complaints() override;

  Titles MenuTexts(WindowHandle form, const Titles& path) override;
  bool ChooseMenu(WindowHandle form, const Titles& path) override;
  void OpenMenuByLetter(WindowHandle form, wchar_t character) override;
  Titles SystemMenuTexts(WindowHandle form) override;
  void ChooseSystemMenu(WindowHandle form, const std::wstring& text) override;
  void NextPopup(const std::wstring& title, Titles& seen) override;
  Titles ButtonTexts(WindowHandle toolbar) override;
  void ClickButton(WindowHandle form, WindowHandle toolbar, std::size_t button) override;
  void ChooseButtonMenu(WindowHandle form, WindowHandle toolbar, std::size_t button, const std::wstring& text) override;
  Titles PanelTexts(WindowHandle form, WindowHandle statusBar) override;
  void NextFile(const std::wstring& title, const std::wstring& path) override;

 private:
  // Looks again and again, and runs the script once there is such a window.
  void WhenThereIs(std::function<WindowHandle()> find, std::function<void(WindowHandle)> script, int tries);

  WindowSystem& windows_;
  int waiting_ = 0;
};

}  // namespace burrowmark

#endif
