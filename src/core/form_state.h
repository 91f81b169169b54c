// Where the windows that remember their place keep it.
#pragma once

#include <cstdint>
#include <string>

#include "core/application.h"
#include "ui/form.h"

namespace burrowmark {

// The registry key of a form by its name, under HKEY_CURRENT_USER; of one that remembers nothing, the program's own key
// with a backslash at its end.
std::wstring GetFormRegKey(const std::wstring& formName);

// Gives a loaded form its last place, size and state; one that can't be sized has its place alone, and one that
// remembers nothing stays as it is. Where one of them isn't known the form stands in the middle of the screen, in its
// first size: twips, with the frame, and 0 keeps the size that it has. A form that was left minimised opens as a normal
// one, and one that would lie off every screen is moved onto the first.
void LoadFormState(Application& app, Form& form, const Size& first);
// Keeps them. The place and the size are those of the normal window: of another one only the state is kept.
void SaveFormState(Application& app, const Form& form);

// Width and height of the first screen, in twips.
Size ScreenSize(Application& app);

}  // namespace burrowmark
