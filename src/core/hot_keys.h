// The list of items that have a hot key.
#pragma once

#include "core/application.h"

namespace burrowmark {

// Codes of the ten hot keys: the virtual-key codes of the digits in the main row.
inline constexpr std::int32_t kFirstHotKey = 48;
inline constexpr std::int32_t kLastHotKey = 57;

// Text of a hot key's code: "Shift+Ctrl+5" for 53, empty for none.
std::wstring HotKeyText(std::int32_t KeyboardCode);

// True if an item of that name is in `HotKeyItems`.
bool HotKeyItemExists(const Application& app, const clsMenuItem& item);

// The first item of `HotKeyItems` with this code. False if none has it, and `item` is none then.
bool FindHotKeyItem(const Application& app, std::int32_t KeyboardCode, ItemRef& item);

// Makes `HotKeyItems` anew from a store. Of two items with one name the second loses its code; codes aren't compared.
void RefreshHotKeys(Application& app, std::shared_ptr<clsMenuCollection> store);
// The same after a change of a store, if the list is that store's.
void RefreshHotKeysOf(Application& app, const clsMenuCollection& store);

}  // namespace burrowmark
