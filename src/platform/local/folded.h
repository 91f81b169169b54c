// The form of a name under which names are told apart where letter case doesn't count.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "platform/characters.h"

namespace burrowmark {

inline std::wstring Folded(std::wstring_view name) {
  std::wstring folded(name);
  std::transform(folded.begin(), folded.end(), folded.begin(), UpperCase);
  return folded;
}

}  // namespace burrowmark
