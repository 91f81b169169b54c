#include "platform/local/screen/local_entry_controls.h"

#include <algorithm>
#include <optional>

#include "platform/key_codes.h"

namespace burrowmark {
namespace {

std::int32_t LengthOf(const std::wstring& text) { return static_cast<std::int32_t>(text.size()); }

// The characters that go together at a place, the two of a line's end or one; 0 at the end of the text.
std::int32_t StepAt(const std::wstring& text, std::int32_t at) {
  if (at < 0 || at >= LengthOf(text)) return 0;
  return text.compare(static_cast<std::size_t>(at), 2, L"\r\n") == 0 ? 2 : 1;
}

std::int32_t StepBefore(const std::wstring& text, std::int32_t at) {
  if (at <= 0) return 0;
  return StepAt(text, at - 2) == 2 ? 2 : 1;
}

// Where a key leads from an entry; none for a key that leads nowhere.
std::optional<std::int32_t> EntryBy(std::int32_t keyCode, std::int32_t from, std::int32_t last) {
  switch (keyCode) {
    case kKeyCodeUp:
      return std::min(std::max(from - 1, 0), last);
    case kKeyCodeDown:
      return std::min(from + 1, last);
    case kKeyCodeHome:
      return std::min(0, last);
    case kKeyCodeEnd:
      return last;
    default:
      return std::nullopt;
  }
}

std::int32_t LastOf(const ComboBoxState& box) { return static_cast<std::int32_t>(box.Items().size()) - 1; }

// Opens the list of a combo box, or closes it.
bool TurnsList(std::int32_t keyCode, std::int32_t shift) {
  const bool isArrow = keyCode == kKeyCodeUp || keyCode == kKeyCodeDown;
  return keyCode == kKeyCodeF4 || (isArrow && (shift & kAltMask) != 0);
}

}  // namespace

LocalTextBox::LocalTextBox(LocalProcess& process, LocalDesktop& desktop, WindowHandle parent, TextBoxState& box)
    : LocalControl(process, desktop, parent, ShownKind::kTextBox, box) {
  Shown().useMnemonic = false;
  Shown().multiLine = box.MultiLine();
  Shown().UserType = [this](const std::wstring& text) { Control().UserType(text); };
  Shown().PressKey = [this](std::int32_t keyCode, std::int32_t shift) { Press(keyCode, shift); };
  Shown().Entered = [this] { MoveCaret(0, LengthOf(Control().Text())); };
  ShowAll();
}

void LocalTextBox::ShowAll() {
  Shown().text = Control().Text();
  Shown().selection = Control().Selection();
  Shown().readOnly = Control().ReadOnly();
  Shown().wantsEnter = Control().MultiLine() && !Control().ReadOnly();
}

void LocalTextBox::Press(std::int32_t keyCode, std::int32_t shift) {
  const std::wstring text = Control().Text();
  const auto [start, length] = Control().Selection();
  const std::int32_t end = start + length;
  switch (keyCode) {
    case kKeyCodeReturn:
      return Control().UserType(L"\r\n");
    case kKeyCodeBackspace:
      return length > 0 ? Erase(start, length) : Erase(start - StepBefore(text, start), StepBefore(text, start));
    case kKeyCodeDelete:
      return length > 0 ? Erase(start, length) : Erase(start, StepAt(text, start));
    case kKeyCodeLeft:
      return MoveCaret(length > 0 ? start : start - StepBefore(text, start));
    case kKeyCodeRight:
      return MoveCaret(length > 0 ? end : end + StepAt(text, end));
    case kKeyCodeHome:
      return MoveCaret(0);
    case kKeyCodeEnd:
      return MoveCaret(LengthOf(text));
    case 'A':
      if ((shift & kCtrlMask) != 0) MoveCaret(0, LengthOf(text));
      return;
    default:
      return;
  }
}

void LocalTextBox::Erase(std::int32_t start, std::int32_t length) {
  std::wstring text = Control().Text();
  text.erase(static_cast<std::size_t>(start), static_cast<std::size_t>(length));
  Report(text, {start, 0});
}

void LocalTextBox::MoveCaret(std::int32_t to, std::int32_t selected) { Report(Control().Text(), {to, selected}); }

void LocalTextBox::Report(const std::wstring& text, const TextSelection& selection) {
  Control().UserText(text, selection);
  if (!IsRetired()) ShowAll();
}

LocalComboBox::LocalComboBox(LocalProcess& process, LocalDesktop& desktop, WindowHandle parent, ComboBoxState& box)
    : LocalControl(process, desktop, parent, ShownKind::kComboBox, box) {
  Shown().useMnemonic = false;
  Shown().UserChoose = [this](std::int32_t index) {
    Mark(index);
    Close(true);
  };
  Shown().UserFocus = [this, &box](bool has) {
    if (!has && Shown().listOpen) Close(false);
    box.UserFocus(has);
  };
  Shown().PressKey = [this](std::int32_t keyCode, std::int32_t shift) {
    Shown().listOpen ? PressInList(keyCode, shift) : Press(keyCode, shift);
  };
  ItemsChanged();
}

void LocalComboBox::ItemsChanged() {
  Shown().items = Control().Items();
  IndexChanged();
}

void LocalComboBox::IndexChanged() { Mark(Control().ListIndex()); }

void LocalComboBox::Mark(std::int32_t index) {
  Shown().index = index;
  Shown().text = index < 0 ? L"" : Control().Items()[static_cast<std::size_t>(index)];
}

void LocalComboBox::Press(std::int32_t keyCode, std::int32_t shift) {
  if (TurnsList(keyCode, shift)) {
    Shown().listOpen = true;
  } else if (const auto entry = EntryBy(keyCode, Control().ListIndex(), LastOf(Control()))) {
    Control().UserChoose(*entry);
  }
}

void LocalComboBox::PressInList(std::int32_t keyCode, std::int32_t shift) {
  if (keyCode == kKeyCodeReturn || keyCode == kKeyCodeEscape || TurnsList(keyCode, shift)) {
    Close(keyCode != kKeyCodeEscape);
  } else if (const auto entry = EntryBy(keyCode, Shown().index, LastOf(Control()))) {
    Mark(*entry);
  }
}

void LocalComboBox::Close(bool choose) {
  Shown().listOpen = false;
  const std::int32_t marked = Shown().index;
  IndexChanged();
  if (choose) Control().UserChoose(marked);
}

}  // namespace burrowmark
