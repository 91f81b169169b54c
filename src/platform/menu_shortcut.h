// How a menu names the keys that choose an entry without it.
#pragma once

#include <string>

#include "platform/peers/ui_bar_peers.h"

namespace burrowmark {

// As "Ctrl+Shift+X"; empty for none, and for a key that has no name.
std::wstring ShortcutText(const MenuShortcut& shortcut);

}  // namespace burrowmark
