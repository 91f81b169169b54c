// Typed letters in a menu whose entries the program draws.
#pragma once

#include <windows.h>

#include <optional>

namespace burrowmark {

// The entry after the highlighted one, and round again, whose text starts with the letter, whatever its case.
std::optional<UINT> EntryOfLetter(HMENU menu, wchar_t letter);

// Not every system's menu loop knows the answer "select" to a typed letter; some pass over it. If the entry isn't
// highlighted now, this sends the loop as many presses of the down key as lead there.
void GoToEntryByKeys(HWND window, HMENU menu, UINT position);

}  // namespace burrowmark
