// The boundary for calls that come from the system.
#pragma once

#include <utility>

namespace burrowmark {

// The one boundary for calls that come from the system (window procedure, hook, enumeration): nothing gets out.
template <typename Procedure, typename Result>
Result FromSystem(Procedure&& procedure, Result fallback) noexcept {
  try {
    return std::forward<Procedure>(procedure)();
  } catch (...) {
    return fallback;
  }
}

}  // namespace burrowmark
