// Verbs that press keys, and one that clicks and watches the clock.
#include <algorithm>
#include <iterator>
#include <optional>

#include "driver.h"

namespace driver {
namespace {

void Send(INPUT input) {
  if (SendInput(1, &input, sizeof input) != 1) throw Failure("the input was refused");
}

void SendMouse(DWORD flags) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  Send(input);
}

struct KeyName {
  const wchar_t* name;
  WORD key;
};

constexpr KeyName kKeys[] = {
    {L"Return", VK_RETURN}, {L"Esc", VK_ESCAPE},    {L"Space", VK_SPACE},   {L"Backspace", VK_BACK},
    {L"Up", VK_UP},         {L"Down", VK_DOWN},     {L"Left", VK_LEFT},     {L"Right", VK_RIGHT},
    {L"Home", VK_HOME},     {L"End", VK_END},       {L"Apps", VK_APPS},     {L"F2", VK_F2},
    {L"F4", VK_F4},         {L"Insert", VK_INSERT}, {L"Delete", VK_DELETE}, {L"F6", VK_F6},
    {L"shift", VK_SHIFT},   {L"ctrl", VK_CONTROL},  {L"alt", VK_MENU},      {L"Tab", VK_TAB},
};
constexpr WORD kExtended[] = {VK_UP, VK_DOWN, VK_LEFT, VK_RIGHT, VK_HOME, VK_END, VK_APPS, VK_INSERT, VK_DELETE};

WORD KeyNamed(const std::wstring& name) {
  const auto* row =
      std::find_if(std::begin(kKeys), std::end(kKeys), [&name](const KeyName& key) { return name == key.name; });
  if (row != std::end(kKeys)) return row->key;
  const SHORT scan = name.size() == 1 ? VkKeyScanW(name[0]) : SHORT{-1};
  if (scan == -1 || (scan & 0x100) != 0) throw Failure("no such key: " + Utf8(name));
  return static_cast<WORD>(scan & 0xFF);
}

void SendKey(WORD key, bool up) {
  const bool extended = std::find(std::begin(kExtended), std::end(kExtended), key) != std::end(kExtended);
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
  input.ki.dwFlags = (up ? KEYEVENTF_KEYUP : 0U) | (extended ? KEYEVENTF_EXTENDEDKEY : 0U);
  Send(input);
}

void TypeText(std::wstring_view text) {
  for (const wchar_t character : text) {
    for (const DWORD flags : {DWORD{KEYEVENTF_UNICODE}, DWORD{KEYEVENTF_UNICODE | KEYEVENTF_KEYUP}}) {
      INPUT input{};
      input.type = INPUT_KEYBOARD;
      input.ki.wScan = character;
      input.ki.dwFlags = flags;
      Send(input);
    }
  }
}

// A word such as ctrl+shift+F2: all down in their order, then up.
void PressChord(const std::wstring& word) {
  std::vector<WORD> keys;
  for (std::size_t begin = 0, plus = 0; plus != std::wstring::npos; begin = plus + 1) {
    plus = word.find(L'+', begin);
    keys.push_back(KeyNamed(word.substr(begin, plus - begin)));
  }
  for (const WORD key : keys) SendKey(key, false);
  std::for_each(keys.rbegin(), keys.rend(), [](WORD key) { SendKey(key, true); });
}

// A popup menu's window that holds this point of the screen.
bool MenuCovers(POINT point) {
  HWND menu = nullptr;
  while ((menu = FindWindowExW(nullptr, menu, L"#32768", nullptr)) != nullptr) {
    RECT rectangle{};
    if (IsWindowVisible(menu) && GetWindowRect(menu, &rectangle) && PtInRect(&rectangle, point)) return true;
  }
  return false;
}

std::int64_t Microseconds() {
  LARGE_INTEGER now{};
  LARGE_INTEGER frequency{};
  QueryPerformanceCounter(&now);
  QueryPerformanceFrequency(&frequency);
  return now.QuadPart * 1'000'000 / frequency.QuadPart;
}

}  // namespace

void PressKeys(Words& words) {
  constexpr std::wstring_view kTextMark = L"text:";
  while (words.More()) {
    const std::wstring word = words.Text();
    if (word.rfind(kTextMark, 0) == 0) {
      TypeText(std::wstring_view(word).substr(kTextMark.size()));
    } else {
      PressChord(word);
    }
  }
}

void TimeClick(Words& words) {
  const POINT place = words.Point();
  const POINT seen = words.Point();
  const auto red = words.Number(), green = words.Number(), blue = words.Number();
  const auto colour = static_cast<COLORREF>(red | (green << 8) | (blue << 16));
  const std::int64_t limit = words.Number() * 1000;

  const HDC screen = GetDC(nullptr);  // for as long as the driver runs
  if (MenuCovers(seen) || GetPixel(screen, seen.x, seen.y) == colour) throw Failure("the colour is there already");
  SetCursorPos(place.x, place.y);
  SendMouse(MOUSEEVENTF_LEFTDOWN);
  const std::int64_t start = Microseconds();
  SendMouse(MOUSEEVENTF_LEFTUP);
  std::optional<std::int64_t> opened;
  while (Microseconds() - start < limit) {
    if (!opened && MenuCovers(seen)) opened = Microseconds() - start;
    if (opened && GetPixel(screen, seen.x, seen.y) == colour) {
      Line().Add("opened", *opened).Add("drawn", Microseconds() - start);
      return;
    }
    Sleep(1);
  }
  throw Failure(opened ? "the menu opened, but the colour didn't come" : "no menu opened");
}

}  // namespace driver
