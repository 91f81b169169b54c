// The user's choice of colours that stand out.
#pragma once

#include <windows.h>

namespace burrowmark {

inline bool HighContrastIsOn() {
  HIGHCONTRASTW contrast = {};
  contrast.cbSize = sizeof(contrast);
  return ::SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0) != FALSE &&
         (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

}  // namespace burrowmark
