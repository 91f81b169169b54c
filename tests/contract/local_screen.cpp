#include "tests/contract/local_screen.h"

#include <optional>
#include <stdexcept>

namespace burrowmark {

ShownWindow* LocalScreen::Form(WindowHandle form) const { return machine_.windows.Desktop.Find(form).get(); }

ShownControl* LocalScreen::Control(WindowHandle control) const {
  for (const auto& window : machine_.windows.Desktop.History()) {
    ShownControl* found = window->IsOpen() ? window->WithWindow(control) : nullptr;
    if (found != nullptr) return found;
  }
  return nullptr;
}

bool LocalScreen::Exists(WindowHandle window) { return machine_.windows.PostMessageA(window, kMessageNull, 0, 0); }

std::wstring LocalScreen::TextOf(WindowHandle window) {
  if (const ShownWindow* form = Form(window)) return form->caption;
  const ShownControl* control = Control(window);
  return control == nullptr ? L"" : control->text;
}

bool LocalScreen::IsShown(WindowHandle window) {
  if (const ShownWindow* form = Form(window)) return form->visible;
  const ShownControl* control = Control(window);
  return control != nullptr && control->visible;
}

bool LocalScreen::IsEnabled(WindowHandle window) {
  if (const ShownWindow* form = Form(window)) return form->enabled;
  if (const ShownControl* control = Control(window)) return control->enabled;
  return !machine_.windows.Desktop.IsBlocked(window);
}

bool LocalScreen::HasFocus(WindowHandle control) {
  const ShownControl* shown = Control(control);
  return shown != nullptr && shown->focused;
}

bool LocalScreen::IsActive(WindowHandle form) {
  const auto active = machine_.windows.Desktop.Active();
  return active && active.get() == Form(form);
}

bool LocalScreen::IsTopMost(WindowHandle form) { return Form(form)->topMost; }

WindowHandle LocalScreen::OwnerOf(WindowHandle form) { return Form(form)->owner; }

bool LocalScreen::IsDefault(WindowHandle button) { return Control(button)->isDefault; }

Rect LocalScreen::PlaceOf(WindowHandle, WindowHandle control) {
  const ShownControl* shown = Control(control);
  Rect place = shown->place;
  for (shown = Control(shown->parent); shown != nullptr; shown = Control(shown->parent)) {
    place = {place.left + shown->place.left, place.top + shown->place.top, place.right + shown->place.left,
             place.bottom + shown->place.top};
  }
  return place;
}

Size LocalScreen::ClientOf(WindowHandle form) { return {Form(form)->client.right, Form(form)->client.bottom}; }

void LocalScreen::Click(WindowHandle form, WindowHandle button) { Form(form)->Click(TextOf(button)); }

void LocalScreen::Mouse(WindowHandle form, MouseAction action, const MouseEvent& event) {
  Form(form)->Mouse(0, action, event);
}

void LocalScreen::LoseMouse(WindowHandle form) { Form(form)->LoseMouse(); }

void LocalScreen::Press(WindowHandle form, std::int32_t keyCode, std::int32_t shift) {
  Form(form)->Press(keyCode, shift);
}

void LocalScreen::PressAlt(WindowHandle form, wchar_t character) { Form(form)->PressAlt(character); }

void LocalScreen::Close(WindowHandle form) { Form(form)->Close(); }

void LocalScreen::Resize(WindowHandle form, std::int32_t width, std::int32_t height) {
  Form(form)->Resize(width, height);
}

void LocalScreen::ChangeScale(WindowHandle form, std::int32_t dpi) { Form(form)->ChangeScale(dpi); }

void LocalScreen::Type(WindowHandle form, const std::wstring& text) { Form(form)->Type(text); }

std::pair<std::int32_t, std::int32_t> LocalScreen::SelectedIn(WindowHandle box) {
  const TextSelection& selection = Control(box)->selection;
  return {selection.start, selection.start + selection.length};
}

std::int32_t LocalScreen::CheckOf(WindowHandle box) { return static_cast<std::int32_t>(Control(box)->check); }

std::int32_t LocalScreen::EntryCountOf(WindowHandle combo) {
  return static_cast<std::int32_t>(Control(combo)->items.size());
}

void LocalScreen::ChooseEntry(WindowHandle form, WindowHandle combo, std::int32_t index) {
  Form(form)->Choose(combo, index);
}

void LocalScreen::ChooseTab(WindowHandle form, WindowHandle strip, std::int32_t index) {
  Form(form)->Choose(strip, index);
}

std::int32_t LocalScreen::TabOf(WindowHandle strip) { return Control(strip)->index; }

void LocalScreen::NextWindow(const std::wstring& caption, std::function<void()> script) {
  machine_.user.NextWindow(caption, [script = std::move(script)](ShownWindow&) { script(); });
}

// --- menus and bars

LocalScreen::Titles LocalScreen::MenuTexts(WindowHandle form, const Titles& path) {
  return Form(form)->MenuTexts(path);
}

bool LocalScreen::ChooseMenu(WindowHandle form, const Titles& path) {
  try {
    Form(form)->ChooseMenu(path);
    return true;
  } catch (const std::logic_error&) {
    return false;
  }
}

void LocalScreen::OpenMenuByLetter(WindowHandle form, wchar_t character) { Form(form)->PressAlt(character); }

LocalScreen::Titles LocalScreen::SystemMenuTexts(WindowHandle form) {
  Titles texts;
  for (const SystemMenuEntry& entry : Form(form)->systemMenu) {
    texts.push_back(entry.checked ? L"[x] " + entry.text : entry.text);
  }
  return texts;
}

void LocalScreen::ChooseSystemMenu(WindowHandle form, const std::wstring& text) { Form(form)->ChooseSystemMenu(text); }

void LocalScreen::NextPopup(const std::wstring& title, Titles& seen) {
  machine_.user.NextPopup([title, &seen](ShownPopup& popup) {
    seen = popup.Texts();
    for (std::wstring& text : seen) {
      if (text == popup.Default()) text.insert(0, L"* ");
    }
    if (!title.empty()) popup.Choose({title});
  });
}

LocalScreen::Titles LocalScreen::ButtonTexts(WindowHandle toolbar) {
  Titles texts;
  for (const ToolbarButtonState& button : Control(toolbar)->buttons) {
    texts.push_back(button.enabled ? button.caption : button.caption + L" (disabled)");
  }
  return texts;
}

void LocalScreen::ClickButton(WindowHandle form, WindowHandle toolbar, std::size_t button) {
  const ToolbarButtonState& state = Control(toolbar)->buttons.at(button);
  if (state.enabled) Form(form)->ClickButton(toolbar, state.key);
}

void LocalScreen::ChooseButtonMenu(WindowHandle form, WindowHandle toolbar, std::size_t button,
                                   const std::wstring& text) {
  Form(form)->ChooseButtonMenu(toolbar, Control(toolbar)->buttons.at(button).key, text);
}

LocalScreen::Titles LocalScreen::PanelTexts(WindowHandle form, WindowHandle statusBar) {
  return Form(form)->PanelTexts(statusBar);
}

void LocalScreen::NextFile(const std::wstring& title, const std::wstring& path) {
  machine_.user.NextFile(title, path.empty() ? std::nullopt : std::optional(path));
}

}  // namespace burrowmark
