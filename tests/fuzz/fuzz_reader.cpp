#include <cstdint>
#include <cstdlib>
#include <iostream>

#include "tests/support/config_check.h"
#include "tests/support/scratch_machine.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static burrowmark::test::ScratchMachine scratch;
  const std::string broken =
      burrowmark::test::BrokenBy(scratch.app, std::string_view(reinterpret_cast<const char*>(data), size));
  if (broken.empty()) return 0;
  std::cerr << "broken: " << broken << '\n';
  std::abort();
}
