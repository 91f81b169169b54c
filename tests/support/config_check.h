// What must hold whatever the bytes of a configuration file are.
#pragma once

#include <string>
#include <string_view>

#include "core/application.h"

namespace burrowmark::test {

// Reads the bytes in memory: the read ends, the store holds together, and what was read can be written, read again and
// given a new summary without losing an item. The result is what is broken, empty if nothing is.
std::string BrokenBy(Application& app, std::string_view bytes);

}  // namespace burrowmark::test
