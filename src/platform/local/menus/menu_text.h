// Texts with ampersands that underline the character behind them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace burrowmark {

// What is seen of such a text: without the ampersands, two of them being one that is seen.
inline std::wstring WithoutPrefixes(std::wstring_view text) {
  std::wstring seen;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == L'&' && ++i == text.size()) break;
    seen += text[i];
  }
  return seen;
}

}  // namespace burrowmark
