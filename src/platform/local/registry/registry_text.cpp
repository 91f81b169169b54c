#include "platform/local/registry/registry_text.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <limits>
#include <optional>

#include "platform/characters.h"
#include "platform/local/folded.h"
#include "platform/registry_api.h"

namespace burrowmark {
namespace {

// The type whose data is shown as one number, and how many bytes it has.
constexpr std::size_t kNumberBytes = 4;

struct TypeWord {
  std::uint32_t type;
  std::wstring_view word;
};

constexpr TypeWord kTypeWords[] = {
    {kRegSz, L"text"}, {kRegExpandSz, L"expand"}, {kRegBinary, L"bytes"}, {kRegDword, L"number"}};
constexpr std::wstring_view kDigits = L"0123456789ABCDEF";

bool MustEscape(wchar_t c) {
  const auto code = static_cast<char32_t>(c);
  return code < 0x20 || c == L'"' || c == L'^' || c == L'[' || c == L']' || code == 0x7F ||
         (code >= 0xD800 && code <= 0xDFFF);
}

std::wstring Hexadecimal(std::uint32_t number) {
  std::wstring digits;
  do {
    digits.insert(digits.begin(), kDigits[number & 0xF]);
    number >>= 4;
  } while (number != 0);
  return digits;
}

// Takes the digits of a number in this base off the front of `rest`.
std::optional<std::uint32_t> TakeNumber(std::wstring_view& rest, std::uint32_t base) {
  std::uint64_t number = 0;
  std::size_t length = 0;
  for (; length < rest.size(); ++length) {
    const std::size_t digit = kDigits.substr(0, base).find(rest[length]);
    if (digit == std::wstring_view::npos) break;
    number = number * base + digit;
    if (number > std::numeric_limits<std::uint32_t>::max()) return std::nullopt;
  }
  rest.remove_prefix(length);
  if (length == 0) return std::nullopt;
  return static_cast<std::uint32_t>(number);
}

bool TakeWord(std::wstring_view& rest, std::wstring_view word) {
  if (!rest.starts_with(word)) return false;
  rest.remove_prefix(word.size());
  return true;
}

std::wstring Escaped(std::wstring_view text) {
  std::wstring escaped;
  for (const wchar_t c : text) {
    if (MustEscape(c)) {
      escaped += L"^{" + Hexadecimal(static_cast<std::uint32_t>(c)) + L'}';
    } else {
      escaped += c;
    }
  }
  return escaped;
}

// Takes an escaped text up to `end`, and `end` with it, off the front of `rest`.
std::optional<std::wstring> TakeEscaped(std::wstring_view& rest, wchar_t end) {
  std::wstring text;
  while (!rest.empty() && rest.front() != end) {
    if (TakeWord(rest, L"^{")) {
      const std::optional<std::uint32_t> code = TakeNumber(rest, 16);
      if (!code || !TakeWord(rest, L"}")) return std::nullopt;
      text += static_cast<wchar_t>(*code);
    } else {
      text += rest.front();
      rest.remove_prefix(1);
    }
  }
  if (rest.empty()) return std::nullopt;
  rest.remove_prefix(1);
  return text;
}

std::uint32_t NumberOf(std::wstring_view bytes) {
  std::uint32_t number = 0;
  for (std::size_t i = bytes.size(); i-- > 0;) number = (number << 8) | (static_cast<std::uint32_t>(bytes[i]) & 0xFF);
  return number;
}

std::wstring BytesOf(std::uint32_t number) {
  std::wstring bytes;
  for (std::size_t i = 0; i < kNumberBytes; ++i, number >>= 8) bytes += static_cast<wchar_t>(number & 0xFF);
  return bytes;
}

std::wstring ByteDigits(std::wstring_view bytes) {
  std::wstring text;
  for (const wchar_t c : bytes) {
    const auto byte = static_cast<std::uint32_t>(c) & 0xFF;
    text.append({L' ', kDigits[byte >> 4], kDigits[byte & 0xF]});
  }
  return text;
}

std::wstring ValueLine(const RegistryValue& value) {
  const auto* known = std::find_if(std::begin(kTypeWords), std::end(kTypeWords),
                                   [&value](const TypeWord& row) { return row.type == value.type; });
  if (known == std::end(kTypeWords)) return {};
  const std::wstring start = L'"' + Escaped(value.name) + L"\" " + std::wstring(known->word);
  if (IsRegistryText(value.type)) return start + L" \"" + Escaped(value.data) + L'"';
  if (value.type == kRegDword) return start + L' ' + std::to_wstring(NumberOf(value.data));
  return start + ByteDigits(value.data);
}

std::optional<std::wstring> TakeBytes(std::wstring_view& rest) {
  std::wstring bytes;
  while (TakeWord(rest, L" ")) {
    const std::optional<std::uint32_t> byte = TakeNumber(rest, 16);
    if (!byte || *byte > 0xFF) return std::nullopt;
    bytes += static_cast<wchar_t>(*byte);
  }
  return bytes;
}

std::optional<std::wstring> TakeData(std::wstring_view& rest, std::uint32_t type) {
  if (IsRegistryText(type)) return TakeWord(rest, L" \"") ? TakeEscaped(rest, L'"') : std::nullopt;
  if (type != kRegDword) return TakeBytes(rest);
  if (!TakeWord(rest, L" ")) return std::nullopt;
  const std::optional<std::uint32_t> number = TakeNumber(rest, 10);
  return number ? std::optional(BytesOf(*number)) : std::nullopt;
}

std::optional<RegistryValue> ReadValue(std::wstring_view line) {
  if (!TakeWord(line, L"\"")) return std::nullopt;
  const std::optional<std::wstring> name = TakeEscaped(line, L'"');
  if (!name || !TakeWord(line, L" ")) return std::nullopt;
  const auto* known = std::find_if(std::begin(kTypeWords), std::end(kTypeWords),
                                   [&line](const TypeWord& row) { return TakeWord(line, row.word); });
  if (known == std::end(kTypeWords)) return std::nullopt;
  const std::optional<std::wstring> data = TakeData(line, known->type);
  if (!data || !line.empty()) return std::nullopt;
  return RegistryValue{*name, known->type, *data};
}

}  // namespace

std::string RegistryToText(const RegistryTree& tree) {
  std::string text;
  for (const auto& [folded, node] : tree) {
    text += ToUtf8(L'[' + Escaped(node.path) + L"]\n");
    for (const auto& [foldedName, value] : node.values) text += ToUtf8(ValueLine(value) + L'\n');
  }
  return text;
}

RegistryTree RegistryFromText(std::string_view text) {
  RegistryTree tree;
  RegistryNode* node = nullptr;
  while (!text.empty()) {
    const std::size_t length = std::min(text.find('\n'), text.size());
    const std::wstring decoded = FromUtf8(text.substr(0, length));
    text.remove_prefix(std::min(length + 1, text.size()));
    std::wstring_view line = decoded;
    if (TakeWord(line, L"[")) {
      const std::optional<std::wstring> path = TakeEscaped(line, L']');
      node = path ? &tree[Folded(*path)] : nullptr;
      if (node != nullptr) node->path = *path;
    } else if (const std::optional<RegistryValue> value = node != nullptr ? ReadValue(line) : std::nullopt) {
      node->values[Folded(value->name)] = *value;
    }
  }
  return tree;
}

}  // namespace burrowmark
