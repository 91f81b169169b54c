#include "platform/win32/controls/control_fonts.h"

#include "platform/win32/menus/non_client_metrics.h"

namespace burrowmark {

HFONT ControlFonts::At(std::int32_t dpi) {
  Font& font = fonts_[dpi];
  if (!font) {
    const NONCLIENTMETRICSW metrics = NonClientMetrics(user_, dpi);
    font.reset(::CreateFontIndirectW(&metrics.lfMessageFont));
  }
  return font.get();
}

}  // namespace burrowmark
