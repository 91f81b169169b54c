#include "config/config_format.h"

#include <algorithm>
#include <iterator>

#include "platform/characters.h"

namespace burrowmark {

const SummarySection* FindSummarySection(std::wstring_view marker) {
  const auto* found = std::find_if(std::begin(kSummarySections), std::end(kSummarySections),
                                   [marker](const SummarySection& section) { return section.marker == marker; });
  return found == std::end(kSummarySections) ? nullptr : found;
}

bool IsLeftOutOfFiles(const clsMenuItem& item) {
  if (item.Separator() || item.ItemType == MIT_DRIVE) return true;
  const std::wstring& name = item.Name();
  return name.starts_with(L"MIT_") &&
         (name == MIT_HF_SETTINGS || name == MIT_HF_HELP || name == MIT_HF_ORGANIZE || name == MIT_PATHS_DRIVES);
}

std::wstring DecodeConfig(std::string_view bytes, const SystemFacts& system, bool& utf8) {
  const std::string marker = ToUtf8(kUtf8Marker) + '\0';
  utf8 = bytes.starts_with(marker);
  return utf8 ? FromUtf8(bytes.substr(marker.size())) : system.FromAnsi(bytes);
}

std::string EncodeConfig(std::wstring_view text, const SystemFacts& system, bool utf8) {
  std::string bytes;
  if (!utf8 && system.ToAnsi(text, bytes)) return bytes;
  return ToUtf8(kUtf8Marker) + '\0' + ToUtf8(text);
}

std::vector<std::wstring_view> SplitTokens(std::wstring_view text) {
  std::vector<std::wstring_view> tokens;
  tokens.reserve(static_cast<std::size_t>(std::count(text.begin(), text.end(), L'\0')));
  std::size_t start = 0;
  for (std::size_t end = text.find(L'\0'); end != std::wstring_view::npos; end = text.find(L'\0', start)) {
    tokens.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  return tokens;
}

void AppendToken(std::wstring& text, std::wstring_view token) {
  if (token.find(L'\0') == std::wstring_view::npos) {
    text += token;
  } else {
    std::copy_if(token.begin(), token.end(), std::back_inserter(text), [](wchar_t c) { return c != L'\0'; });
  }
  text.push_back(L'\0');
}

void AppendSummary(std::wstring& text, const ConfigSummary& summary) {
  for (const SummarySection& section : kSummarySections) {
    if ((summary.*section.text).empty()) continue;
    AppendToken(text, section.marker);
    AppendToken(text, summary.*section.text);
    AppendToken(text, kSectionEnd);
  }
}

}  // namespace burrowmark
