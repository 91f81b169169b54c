// Names of drives.
#pragma once

#include <optional>
#include <string_view>

#include "platform/characters.h"

namespace burrowmark {

// The letter, as a capital, of what names a drive and nothing else: "x", "x:" or "x:\".
inline std::optional<wchar_t> DriveLetter(std::wstring_view drive) {
  if (drive.empty() || !std::wstring_view(L":\\").starts_with(drive.substr(1))) return std::nullopt;
  const wchar_t letter = UpperCase(drive.front());
  if (letter < L'A' || letter > L'Z') return std::nullopt;
  return letter;
}

}  // namespace burrowmark
