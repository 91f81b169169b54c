// Single characters and byte forms of text: what both sides of the seam must agree on.
#pragma once

#include <string>
#include <string_view>

namespace burrowmark {

// Upper case of one character by the simple mapping of Unicode, in the basic plane. Letters whose capital belongs to
// another alphabet (dotless i, long s, micro sign) stay, as they do in file names.
wchar_t UpperCase(wchar_t character);
// The small letter that has this capital; any other character stays.
wchar_t LowerCase(wchar_t character);

// Text as UTF-8. A surrogate without its partner becomes U+FFFD.
std::string ToUtf8(std::wstring_view text);
// UTF-8 as text. Bytes that aren't UTF-8 become U+FFFD, one for each maximal run that can't be completed.
std::wstring FromUtf8(std::string_view bytes);

// True if the two texts are equal without regard to case.
bool EqualIgnoringCase(std::wstring_view left, std::wstring_view right);
// True if the left text stands ahead of the right one, by their characters in upper case.
bool LessIgnoringCase(std::wstring_view left, std::wstring_view right);

}  // namespace burrowmark
