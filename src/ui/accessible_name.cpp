#include "ui/accessible_name.h"

#include <algorithm>
#include <cwctype>
#include <vector>

namespace burrowmark {
namespace {

constexpr wchar_t kMark = L'&';

std::wstring WithoutMark(const Control& control) {
  std::wstring text;
  const std::wstring& caption = *control.CaptionText();
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (control.MarksMnemonic() && caption[i] == kMark && ++i == caption.size()) break;
    text += caption[i];
  }
  return text;
}

}  // namespace

std::wstring AccessibleName(const Control& control) {
  if (control.CaptionText() != nullptr) return WithoutMark(control);
  const std::vector<Control*>& all = control.Parent().Site().Controls();
  for (auto ahead = std::find(all.rbegin(), all.rend(), &control); ahead != all.rend(); ++ahead) {
    if (&(*ahead)->Parent() != &control.Parent() || *ahead == &control) continue;
    if ((*ahead)->NamesNext()) return WithoutMark(**ahead);
    if ((*ahead)->TabStop() && (*ahead)->Visible()) break;
  }
  return {};
}

wchar_t MnemonicOf(const Control& control) {
  return control.MarksMnemonic() ? MnemonicIn(*control.CaptionText()) : L'\0';
}

wchar_t MnemonicIn(const std::wstring& caption) {
  for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] == kMark && caption[++i] != kMark)
      return static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(caption[i])));
  }
  return L'\0';
}

}  // namespace burrowmark
