// Text helpers of the whole program. Letter case follows platform/characters.h.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/characters.h"

namespace burrowmark {

std::wstring UpperCaseText(std::wstring_view text);
std::wstring LowerCaseText(std::wstring_view text);

// The text without blanks (U+0020) at both ends.
std::wstring Trim(std::wstring_view text);
// The same as a part of `text`, which must outlive it.
std::wstring_view TrimmedPart(std::wstring_view text);

// Each ampersand twice, as the system wants it where a single one marks the letter behind it.
std::wstring WithDoubledAmpersands(std::wstring_view text);

// The parts between separators: one more than there are separators, so an empty text is one empty part.
std::vector<std::wstring> Split(std::wstring_view text, wchar_t separator);

// "True" or "False", as files and lists show a boolean.
const wchar_t* BooleanWord(bool value);

}  // namespace burrowmark
