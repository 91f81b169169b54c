// How much room a text needs, where there is no font to ask.
#pragma once

#include <string>

#include "platform/twips.h"

namespace burrowmark {

// Twips. Lines break at spaces where they would be wider than `width`; 0: they don't break.
Size EstimateText(const std::wstring& text, std::int32_t width = 0);

// Without the marks of a mnemonic; two of them are one that shows.
std::wstring WithoutMarks(const std::wstring& text);

}  // namespace burrowmark
