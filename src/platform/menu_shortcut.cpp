#include "platform/menu_shortcut.h"

#include "platform/key_codes.h"

namespace burrowmark {
namespace {

constexpr std::int32_t kFirstFunctionKey = 0x70;
constexpr std::int32_t kLastFunctionKey = 0x87;

struct KeyName {
  std::int32_t key;
  const wchar_t* name;
};

constexpr KeyName kKeyNames[] = {{8, L"Backspace"},
                                 {kKeyCodeTab, L"Tab"},
                                 {kKeyCodeReturn, L"Enter"},
                                 {27, L"Esc"},
                                 {kKeyCodeSpace, L"Space"},
                                 {33, L"Page Up"},
                                 {34, L"Page Down"},
                                 {35, L"End"},
                                 {36, L"Home"},
                                 {37, L"Left"},
                                 {38, L"Up"},
                                 {39, L"Right"},
                                 {40, L"Down"},
                                 {45, L"Ins"},
                                 {46, L"Del"}};

struct MaskName {
  std::int32_t mask;
  const wchar_t* name;
};

constexpr MaskName kMaskNames[] = {{kCtrlMask, L"Ctrl+"}, {kAltMask, L"Alt+"}, {kShiftMask, L"Shift+"}};

std::wstring NameOf(std::int32_t key) {
  if ((key >= L'A' && key <= L'Z') || (key >= L'0' && key <= L'9')) return {static_cast<wchar_t>(key)};
  if (key >= kFirstFunctionKey && key <= kLastFunctionKey) return L'F' + std::to_wstring(key - kFirstFunctionKey + 1);
  for (const KeyName& row : kKeyNames) {
    if (row.key == key) return row.name;
  }
  return L"";
}

}  // namespace

std::wstring ShortcutText(const MenuShortcut& shortcut) {
  const std::wstring name = NameOf(shortcut.key);
  if (name.empty()) return name;
  std::wstring text;
  for (const MaskName& row : kMaskNames) {
    if ((shortcut.shift & row.mask) != 0) text += row.name;
  }
  return text + name;
}

}  // namespace burrowmark
