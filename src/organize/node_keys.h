// Keys of the editor's nodes and rows.
#pragma once

#include <string>

#include "core/mit_words.h"

namespace burrowmark {

// A node and a row have the key "C" and the `Name` of their item. The root, which has no item, has MIT_HF_ROOT.
inline std::wstring KeyOfName(const std::wstring& name) { return L"C" + name; }
inline std::wstring NameOfKey(const std::wstring& key) { return key.empty() ? key : key.substr(1); }

}  // namespace burrowmark
