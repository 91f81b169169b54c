#include "ui/text_box.h"

#include <algorithm>
#include <iterator>

#include "platform/key_codes.h"

namespace burrowmark {
namespace {

constexpr std::int32_t kEditingKeys[] = {kKeyCodeBackspace, kKeyCodeDelete, kKeyCodeInsert,  kKeyCodeLeft,
                                         kKeyCodeRight,     kKeyCodeUp,     kKeyCodeDown,    kKeyCodeHome,
                                         kKeyCodeEnd,       kKeyCodePageUp, kKeyCodePageDown};
constexpr std::int32_t kCtrlKeys[] = {'A', 'C', 'V', 'X', 'Z'};

bool IsOneOf(std::int32_t key, const std::int32_t* begin, const std::int32_t* end) {
  return std::find(begin, end, key) != end;
}

std::wstring WithLineEnds(const std::wstring& text) {
  std::wstring lines;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != L'\r' && text[i] != L'\n') {
      lines += text[i];
      continue;
    }
    if (text[i] == L'\r' && i + 1 < text.size() && text[i + 1] == L'\n') ++i;
    lines += L"\r\n";
  }
  return lines;
}

std::int32_t LengthOf(const std::wstring& text) { return static_cast<std::int32_t>(text.size()); }

}  // namespace

TextBox::TextBox(ControlParent& parent, const wchar_t* name, const Box& place, std::wstring_view text)
    : ControlOf(parent, name, place), text_(WithLineEnds(std::wstring(text))) {}

void TextBox::SetText(const std::wstring& text) {
  if (!Assign(text_, WithLineEnds(text))) return;
  selection_ = {};
  Tell(&TextBoxPeer::TextChanged);
  Changed();
}

void TextBox::SetReadOnly(bool readOnly) {
  if (Assign(readOnly_, readOnly)) Tell(&TextBoxPeer::ReadOnlyChanged);
}

void TextBox::SetMaxLength(std::int32_t characters) {
  if (Assign(maxLength_, characters)) Tell(&TextBoxPeer::MaxLengthChanged);
}

void TextBox::SetSelection(std::int32_t start, std::int32_t length) {
  if (Assign(selection_, Within(start, length))) Tell(&TextBoxPeer::SelectionChanged);
}

void TextBox::SelectAll() { SetSelection(0, LengthOf(text_)); }

TextSelection TextBox::Within(std::int32_t start, std::int32_t length) const {
  const std::int32_t from = std::clamp(start, 0, LengthOf(text_));
  return {from, std::clamp(length, 0, LengthOf(text_) - from)};
}

bool TextBox::UsesKey(std::int32_t keyCode, std::int32_t shift) const {
  if ((shift & kAltMask) != 0) return false;
  if (keyCode == kKeyCodeReturn) return multiLine_ && !readOnly_;
  if ((shift & kCtrlMask) != 0 && IsOneOf(keyCode, std::begin(kCtrlKeys), std::end(kCtrlKeys))) return true;
  return IsOneOf(keyCode, std::begin(kEditingKeys), std::end(kEditingKeys));
}

void TextBox::Changed() {
  const ControlSite::Running running(Site());
  Raise(Change);
}

void TextBox::UserText(const std::wstring& text, const TextSelection& selection) {
  if (!IsReachable() || (readOnly_ && text != text_)) return;
  const bool changed = Assign(text_, text);
  selection_ = Within(selection.start, selection.length);
  if (changed) Changed();
}

void TextBox::UserType(const std::wstring& text) {
  if (!IsReachable() || readOnly_) return;
  std::wstring typed = multiLine_ ? WithLineEnds(std::wstring(text)) : text.substr(0, text.find_first_of(L"\r\n"));
  std::wstring whole = text_;
  const auto start = static_cast<std::size_t>(selection_.start);
  whole.erase(start, static_cast<std::size_t>(selection_.length));
  if (maxLength_ > 0)
    typed.resize(std::min(typed.size(), static_cast<std::size_t>(std::max(maxLength_ - LengthOf(whole), 0))));
  whole.insert(start, typed);
  const TextSelection caret{selection_.start + LengthOf(typed), 0};
  if (whole == text_) return SetSelection(caret.start, caret.length);
  text_ = std::move(whole);
  selection_ = caret;
  Tell(&TextBoxPeer::TextChanged);
  Changed();
}

}  // namespace burrowmark
