// A kind of window of our own, and the object that a window belongs to.
#pragma once

#include <windows.h>

namespace burrowmark {

// Registers a kind of window and takes it away again. It may be registered already, by another object of its kind,
// which then takes it away.
class WindowClass {
 public:
  WindowClass(const wchar_t* name, WNDPROC procedure, HBRUSH background = nullptr, HCURSOR cursor = nullptr)
      : name_(name) {
    WNDCLASSEXW description = {};
    description.cbSize = sizeof(description);
    description.lpfnWndProc = procedure;
    description.hInstance = Module();
    description.hbrBackground = background;
    description.hCursor = cursor;
    description.lpszClassName = name;
    registered_ = ::RegisterClassExW(&description) != 0;
  }
  ~WindowClass() {
    if (registered_) ::UnregisterClassW(name_, Module());
  }
  WindowClass(const WindowClass&) = delete;
  WindowClass& operator=(const WindowClass&) = delete;

  static HINSTANCE Module() { return ::GetModuleHandleW(nullptr); }

 private:
  const wchar_t* name_;
  bool registered_ = false;
};

// The object that was given to CreateWindowEx as its parameter; none before the window hears of that.
template <typename Object>
Object* ObjectOfWindow(HWND window, UINT message, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(lParam);
    ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
  }
  return reinterpret_cast<Object*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
}

}  // namespace burrowmark
