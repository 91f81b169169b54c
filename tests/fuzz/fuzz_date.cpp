// Whatever the text of a date: it is a date that packs and unpacks to itself, or a failure.
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>

#include "core/dates.h"
#include "core/failure.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::wstring text(data, data + size);
  burrowmark::Skip([&text] {
    const burrowmark::Date date = burrowmark::UnpackDateText(text);
    if (burrowmark::UnpackDateText(burrowmark::PackDateText(date)) == date) return;
    std::cerr << "doesn't come back: " << date << '\n';
    std::abort();
  });
  return 0;
}
