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

struct FormStateDefaults {
  std::int32_t width = 0;  // twips; 0 keeps the size of the design
  std::int32_t height = 0;
  bool maximised = false;
};

// Gives a loaded form its last place, size and state, or its place alone. Where one of them isn't known the form stands
// in the middle of the screen, in its default size. A form that was left minimised opens as a normal one, and one that
// would lie off every screen is moved onto the first.
void LoadFormState(Application& app, Form& form, bool positionOnly, const FormStateDefaults& defaults);
// Keeps them. The place and the size are those of the normal window: of another one only the state is kept.
void SaveFormState(Application& app, const Form& form, bool positionOnly);

// Width and height of the first screen, in twips.
Size ScreenSize(Application& app);

}  // namespace burrowmark
