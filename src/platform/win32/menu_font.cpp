#include "platform/win32/menu_font.h"

namespace burrowmark {
namespace {

using ParametersForDpiCall = BOOL(WINAPI*)(UINT, UINT, void*, UINT, UINT);

}  // namespace

MenuFont::~MenuFont() {
  if (fontBefore_ != nullptr) ::SelectObject(context_, fontBefore_);
  if (font_ != nullptr) ::DeleteObject(font_);
  if (context_ != nullptr) ::DeleteDC(context_);
}

HDC MenuFont::Context(std::int32_t dpi) {
  if (context_ == nullptr) context_ = ::CreateCompatibleDC(nullptr);
  if (dpi == dpi_ || context_ == nullptr) return context_;
  const LOGFONTW description = Description(dpi);
  const HFONT font = ::CreateFontIndirectW(&description);
  if (font == nullptr) return context_;
  const HGDIOBJ before = ::SelectObject(context_, font);
  if (font_ == nullptr) {
    fontBefore_ = before;
  } else {
    ::DeleteObject(font_);
  }
  font_ = font;
  dpi_ = dpi;
  return context_;
}

void MenuFont::Forget() {
  dpi_ = 0;
  ++changes_;
}

LOGFONTW MenuFont::Description(std::int32_t dpi) const {
  NONCLIENTMETRICSW metrics = {};
  metrics.cbSize = sizeof(metrics);
  const auto forDpi = user_.Find<ParametersForDpiCall>("SystemParametersInfoForDpi");
  if (forDpi != nullptr &&
      forDpi(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0, static_cast<UINT>(dpi)) != FALSE) {
    return metrics.lfMenuFont;
  }
  ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
  const int systemDpi = context_ == nullptr ? 0 : ::GetDeviceCaps(context_, LOGPIXELSX);
  if (systemDpi > 0) metrics.lfMenuFont.lfHeight = ::MulDiv(metrics.lfMenuFont.lfHeight, dpi, systemDpi);
  return metrics.lfMenuFont;
}

}  // namespace burrowmark
