// The handle of a window.
#pragma once

#include <cstdint>

namespace burrowmark {

// As the system gives it, widened; 0 is none.
using WindowHandle = std::int64_t;

}  // namespace burrowmark
