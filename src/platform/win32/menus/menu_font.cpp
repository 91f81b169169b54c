#include "platform/win32/menus/menu_font.h"

#include "platform/win32/menus/non_client_metrics.h"

namespace burrowmark {

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

LOGFONTW MenuFont::Description(std::int32_t dpi) const { return NonClientMetrics(user_, dpi).lfMenuFont; }

}  // namespace burrowmark
