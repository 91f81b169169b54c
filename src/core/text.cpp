#include "core/text.h"

#include <algorithm>

namespace burrowmark {

std::wstring UpperCaseText(std::wstring_view text) {
  std::wstring upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(), [](wchar_t c) { return UpperCase(c); });
  return upper;
}

std::wstring LowerCaseText(std::wstring_view text) {
  std::wstring lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), [](wchar_t c) { return LowerCase(c); });
  return lower;
}

std::wstring Trim(std::wstring_view text) { return std::wstring(TrimmedPart(text)); }

std::wstring_view TrimmedPart(std::wstring_view text) {
  const std::size_t first = text.find_first_not_of(L' ');
  if (first == std::wstring_view::npos) return {};
  return text.substr(first, text.find_last_not_of(L' ') - first + 1);
}

std::wstring WithDoubledAmpersands(std::wstring_view text) {
  if (text.find(L'&') == std::wstring_view::npos) return std::wstring(text);
  std::wstring doubled;
  for (const wchar_t character : text) doubled.append(character == L'&' ? 2 : 1, character);
  return doubled;
}

std::vector<std::wstring> Split(std::wstring_view text, wchar_t separator) {
  std::vector<std::wstring> parts;
  std::size_t start = 0;
  for (std::size_t end = text.find(separator); end != std::wstring_view::npos; end = text.find(separator, start)) {
    parts.emplace_back(text.substr(start, end - start));
    start = end + 1;
  }
  parts.emplace_back(text.substr(start));
  return parts;
}

const wchar_t* BooleanWord(bool value) { return value ? L"True" : L"False"; }

}  // namespace burrowmark
