// The local registry as a text that can be read and written.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace burrowmark {

struct RegistryValue {
  std::wstring name;
  std::uint32_t type = 0;
  std::wstring data;  // as it crosses the seam
};

struct RegistryNode {
  std::wstring path;                             // from the root on, as it was spelt when the key was made
  std::map<std::wstring, RegistryValue> values;  // by folded name
};

// All keys by folded path, "HKEY_CURRENT_USER\SOFTWARE".
using RegistryTree = std::map<std::wstring, RegistryNode>;

// One line for each key, "[HKEY_CURRENT_USER\Software]", and one for each of its values below it: the name in quotes,
// the type as a word and the data; a value of another type is left out. What would break a line or a quote is written
// as
// ^{code}, with the character's code in hexadecimal digits; so is ^ itself.
std::string RegistryToText(const RegistryTree& tree);
// Lines that aren't of this form are passed over.
RegistryTree RegistryFromText(std::string_view text);

}  // namespace burrowmark
