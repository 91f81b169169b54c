// Text as 16-bit units, lowest byte first, as files of the real system hold it.
#pragma once

#include <string>
#include <string_view>

namespace burrowmark {

std::string ToUtf16Bytes(std::wstring_view text);
// A last odd byte is left out; a surrogate without its partner stays as it is where that can be.
std::wstring FromUtf16Bytes(std::string_view bytes);

}  // namespace burrowmark
