// The commands of a window that has a toolbar, a popup menu and keys for them.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>

#include "platform/peers/ui_bar_peers.h"

namespace burrowmark {

// What a button, an entry and a key do; an empty name or no key where there is none.
template <typename Window>
struct CommandRow {
  const wchar_t* button;
  const wchar_t* menu;
  MenuShortcut key;
  void (Window::*run)();
};

// None where no row says so.
template <typename Row, std::size_t kCount>
const Row* CommandOfButton(const Row (&rows)[kCount], const std::wstring& button) {
  const Row* row = std::find_if(rows, rows + kCount, [&button](const Row& one) { return button == one.button; });
  return row == rows + kCount ? nullptr : row;
}

template <typename Row, std::size_t kCount>
const Row* CommandOfKey(const Row (&rows)[kCount], const MenuShortcut& key) {
  const Row* row = std::find_if(rows, rows + kCount, [&key](const Row& one) { return one.key == key; });
  return row == rows + kCount ? nullptr : row;
}

}  // namespace burrowmark
