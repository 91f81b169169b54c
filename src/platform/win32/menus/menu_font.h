// The font of menus at a scale.
#pragma once

#include <windows.h>

#include <cstdint>

#include "platform/win32/system_library.h"

namespace burrowmark {

class MenuFont {
 public:
  MenuFont() = default;
  ~MenuFont();
  MenuFont(const MenuFont&) = delete;
  MenuFont& operator=(const MenuFont&) = delete;

  // A context for measuring with the font at that scale. It stays, whatever scale is asked for later.
  HDC Context(std::int32_t dpi);
  // The font of the scale that was measured with last, so that a drawing agrees with it; none before any measuring.
  HFONT Current() const { return font_; }

  // The user chose other fonts: the next measuring makes the font again.
  void Forget();
  // Counts how often that happened.
  std::uint32_t Changes() const { return changes_; }

 private:
  LOGFONTW Description(std::int32_t dpi) const;

  SystemLibrary user_{L"user32.dll"};
  HDC context_ = nullptr;
  HGDIOBJ fontBefore_ = nullptr;
  HFONT font_ = nullptr;
  std::int32_t dpi_ = 0;
  std::uint32_t changes_ = 0;
};

}  // namespace burrowmark
