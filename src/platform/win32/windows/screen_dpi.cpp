#include "platform/win32/windows/screen_dpi.h"

#include "platform/drawing.h"

namespace burrowmark {
namespace {

using GetDpiForMonitorCall = HRESULT(WINAPI*)(HMONITOR, int, UINT*, UINT*);
constexpr int kEffectiveDpi = 0;

}  // namespace

std::int32_t ScreenDpi::AtMouse() const {
  POINT mouse = {};
  ::GetCursorPos(&mouse);
  return OfMonitor(::MonitorFromPoint(mouse, MONITOR_DEFAULTTONEAREST));
}

std::int32_t ScreenDpi::OfWindow(HWND window) const {
  return OfMonitor(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST));
}

std::int32_t ScreenDpi::OfMonitor(HMONITOR monitor) const {
  const auto call = shcore_.Find<GetDpiForMonitorCall>("GetDpiForMonitor");
  UINT x = 0;
  UINT y = 0;
  if (call != nullptr && SUCCEEDED(call(monitor, kEffectiveDpi, &x, &y)) && x > 0) return static_cast<std::int32_t>(x);
  return OfSystem();
}

std::int32_t ScreenDpi::OfSystem() {
  const HDC screen = ::GetDC(nullptr);
  if (screen == nullptr) return kDesignDpi;
  const int dpi = ::GetDeviceCaps(screen, LOGPIXELSX);
  ::ReleaseDC(nullptr, screen);
  return dpi > 0 ? dpi : kDesignDpi;
}

}  // namespace burrowmark
