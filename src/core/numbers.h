// Numbers as text and back.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/system_facts.h"

namespace burrowmark {

// Decimal text without padding.
std::wstring DecimalText(std::int64_t value);

// A boolean as it is stored: "-1" or "0".
std::wstring BooleanNumberText(bool value);

// A whole number from its text: decimal with an optional sign, or "&h" and hexadecimal digits, blanks around it
// allowed. Throws ConversionFailure where the text is none, OverflowFailure where it doesn't fit.
std::int32_t ToInt32(std::wstring_view text);
std::int16_t ToInt16(std::wstring_view text);

// "True" and "False" in any letter case, or a number: 0 is false, every other true. Throws as ToInt32 does.
bool ToBoolean(std::wstring_view text);

// A number in one of the pictures "#.0", "#,0", "#,#" and "#,#.00", with the signs of the user's locale. A "," asks for
// groups of three digits; each "0" is a digit that always shows, each "#" one that shows only if it counts, so that
// ".5" has no digit before its point under "#.0" and 0 is an empty text under "#,#". Halves are rounded away from zero.
std::wstring FormatNumber(double value, std::wstring_view picture, const SystemFacts& system);

}  // namespace burrowmark
