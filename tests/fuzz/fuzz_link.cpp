// Whatever the bytes of a shortcut file: it is none, or what was read from it can be written and read again.
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string_view>

#include "platform/local/links/link_file.h"
#include "platform/local/local_facts.h"

namespace burrowmark {
namespace {

void Check(std::string_view bytes) {
  const LocalFacts facts;
  ShellLink link;
  if (!ReadLinkFile(bytes, facts, link)) return;
  const std::optional<WindowsPath> target = ParseWindowsPath(link.target);
  ShellLink again;
  if (target && ReadLinkFile(BuildLinkFile(link, *target, 0, {}, facts), facts, again)) {
    const std::optional<WindowsPath> same = ParseWindowsPath(again.target);
    if (same && same->Text() == target->Text() && again.description == link.description &&
        again.showCommand == link.showCommand) {
      return;
    }
  }
  std::cerr << "the target is no path, or what is written isn't read as it was\n";
  std::abort();
}

}  // namespace
}  // namespace burrowmark

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  burrowmark::Check(std::string_view(reinterpret_cast<const char*>(data), size));
  return 0;
}
