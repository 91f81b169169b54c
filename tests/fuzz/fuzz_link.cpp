// Whatever the bytes of a shortcut file: it is none, or what was read from it can be written and read again.
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string_view>

#include "platform/local/link_file.h"
#include "platform/local/local_facts.h"

namespace burrowmark {
namespace {

void Require(bool holds, const char* what) {
  if (holds) return;
  std::cerr << "broken: " << what << '\n';
  std::abort();
}

void Check(std::string_view bytes) {
  const LocalFacts facts;
  ShellLink link;
  if (!ReadLinkFile(bytes, facts, link)) return;
  const std::optional<WindowsPath> target = ParseWindowsPath(link.target);
  Require(target.has_value(), "the target is a path");
  ShellLink again;
  const std::string written = BuildLinkFile(link, *target, 0, {}, facts);
  Require(ReadLinkFile(written, facts, again), "a written link is read");
  const std::optional<WindowsPath> same = ParseWindowsPath(again.target);
  Require(same && same->Text() == target->Text(), "the target comes back");
  Require(again.description == link.description && again.showCommand == link.showCommand, "the rest comes back");
}

}  // namespace
}  // namespace burrowmark

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  burrowmark::Check(std::string_view(reinterpret_cast<const char*>(data), size));
  return 0;
}
