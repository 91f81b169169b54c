// Verbs that act as the user's hand: pointer and keyboard by SendInput.
#include <algorithm>
#include <cwctype>
#include <optional>

#include "driver.h"

namespace driver {
namespace {

struct Button {
  const wchar_t* name;
  DWORD down;
  DWORD up;
};

constexpr Button kButtons[] = {
    {L"left", MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP},
    {L"right", MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP},
};

const Button& ButtonNamed(const std::wstring& name) {
  for (const Button& button : kButtons) {
    if (name == button.name) return button;
  }
  throw BadCall("no such button: " + Utf8(name));
}

void Send(INPUT input) {
  if (SendInput(1, &input, sizeof input) != 1) throw Failure("the input was refused");
}

void SendMouse(DWORD flags) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  Send(input);
}

// Warps the pointer, then says that the mouse moved there: some menus follow only a movement.
void MoveTo(int x, int y) {
  SetCursorPos(x, y);
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
  const int width = std::max(1, GetSystemMetrics(SM_CXSCREEN) - 1);
  const int height = std::max(1, GetSystemMetrics(SM_CYSCREEN) - 1);
  // Absolute positions run from 0 to 65535 over the screen; half a pixel up keeps the rounding on the pixel meant.
  input.mi.dx = static_cast<LONG>((static_cast<std::int64_t>(x) * 65535 + width / 2) / width);
  input.mi.dy = static_cast<LONG>((static_cast<std::int64_t>(y) * 65535 + height / 2) / height);
  Send(input);
}

struct KeyName {
  const wchar_t* name;
  WORD key;
  bool extended;
};

constexpr KeyName kKeys[] = {
    {L"Return", VK_RETURN, false}, {L"Esc", VK_ESCAPE, false},     {L"Tab", VK_TAB, false},
    {L"Space", VK_SPACE, false},   {L"Backspace", VK_BACK, false}, {L"Up", VK_UP, true},
    {L"Down", VK_DOWN, true},      {L"Left", VK_LEFT, true},       {L"Right", VK_RIGHT, true},
    {L"Home", VK_HOME, true},      {L"End", VK_END, true},         {L"PageUp", VK_PRIOR, true},
    {L"PageDown", VK_NEXT, true},  {L"Insert", VK_INSERT, true},   {L"Delete", VK_DELETE, true},
    {L"Apps", VK_APPS, true},      {L"shift", VK_SHIFT, false},    {L"ctrl", VK_CONTROL, false},
    {L"alt", VK_MENU, false},      {L"win", VK_LWIN, true},
};

struct Key {
  WORD code;
  bool extended;
  bool shifted;
};

Key KeyNamed(const std::wstring& name) {
  for (const KeyName& row : kKeys) {
    if (name == row.name) return {row.key, row.extended, false};
  }
  if (name.size() == 1) {
    const SHORT scan = VkKeyScanW(name[0]);
    if (scan != -1) return {static_cast<WORD>(scan & 0xFF), false, (scan & 0x100) != 0};
  }
  if (name.size() > 1 && name[0] == L'F' && std::all_of(name.begin() + 1, name.end(), std::iswdigit)) {
    const int number = std::stoi(name.substr(1));
    if (number >= 1 && number <= 24) return {static_cast<WORD>(VK_F1 + number - 1), false, false};
  }
  throw BadCall("no such key: " + Utf8(name));
}

void SendKey(const Key& key, bool up) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key.code;
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key.code, MAPVK_VK_TO_VSC));
  input.ki.dwFlags = (up ? KEYEVENTF_KEYUP : 0U) | (key.extended ? KEYEVENTF_EXTENDEDKEY : 0U);
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

// The keys of a word such as ctrl+shift+F2, those held down first.
std::vector<Key> ChordOf(const std::wstring& word) {
  std::vector<Key> chord;
  std::size_t begin = 0;
  for (std::size_t plus; (plus = word.find(L'+', begin)) != std::wstring::npos && plus > begin; begin = plus + 1) {
    chord.push_back(KeyNamed(word.substr(begin, plus - begin)));
  }
  const Key last = KeyNamed(word.substr(begin));
  if (last.shifted) chord.push_back(KeyNamed(L"shift"));
  chord.push_back(last);
  return chord;
}

void PressChord(const std::vector<Key>& chord) {
  for (const Key& key : chord) SendKey(key, false);
  std::for_each(chord.rbegin(), chord.rend(), [](const Key& key) { SendKey(key, true); });
}

COLORREF ColourOf(const std::wstring& rrggbb) {
  if (rrggbb.size() != 6) throw BadCall("a colour has six hexadecimal digits");
  const auto value = static_cast<DWORD>(std::stoul(rrggbb, nullptr, 16));
  return RGB((value >> 16) & 0xFF, (value >> 8) & 0xFF, value & 0xFF);
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

class ScreenDC {
 public:
  ScreenDC() : dc_(GetDC(nullptr)) {}
  ScreenDC(const ScreenDC&) = delete;
  ScreenDC& operator=(const ScreenDC&) = delete;
  ~ScreenDC() { ReleaseDC(nullptr, dc_); }
  COLORREF Pixel(POINT point) const { return GetPixel(dc_, point.x, point.y); }

 private:
  HDC dc_;
};

std::int64_t Microseconds() {
  LARGE_INTEGER now{};
  LARGE_INTEGER frequency{};
  QueryPerformanceCounter(&now);
  QueryPerformanceFrequency(&frequency);
  return now.QuadPart * 1'000'000 / frequency.QuadPart;
}

}  // namespace

void MovePointer(Words& words) {
  const int x = words.Int();
  const int y = words.Int();
  words.End();
  MoveTo(x, y);
}

void Click(Words& words) {
  const int x = words.Int();
  const int y = words.Int();
  const std::wstring name = words.More() ? words.Text() : L"left";
  words.End();
  const bool twice = name == L"double";
  const Button& button = ButtonNamed(twice ? L"left" : name);
  MoveTo(x, y);
  for (int i = 0; i < (twice ? 2 : 1); ++i) {
    SendMouse(button.down);
    SendMouse(button.up);
  }
}

void Drag(Words& words) {
  const int x = words.Int();
  const int y = words.Int();
  const int toX = words.Int();
  const int toY = words.Int();
  const Button& button = ButtonNamed(words.More() ? words.Text() : L"left");
  words.End();
  MoveTo(x, y);
  SendMouse(button.down);
  // In small steps with pauses: a drag begins only once the pointer has been seen to travel.
  constexpr int kSteps = 12;
  for (int step = 1; step <= kSteps; ++step) {
    Sleep(30);
    MoveTo(x + (toX - x) * step / kSteps, y + (toY - y) * step / kSteps);
  }
  Sleep(200);
  SendMouse(button.up);
}

void PressKeys(Words& words) {
  constexpr std::wstring_view kTextMark = L"text:";
  while (words.More()) {
    const std::wstring word = words.Text();
    if (word.rfind(kTextMark, 0) == 0) {
      TypeText(std::wstring_view(word).substr(kTextMark.size()));
    } else {
      PressChord(ChordOf(word));
    }
  }
}

void TimeClick(Words& words) {
  const int x = words.Int();
  const int y = words.Int();
  const Button& button = ButtonNamed(words.Text());
  const int pixelX = words.Int();
  const int pixelY = words.Int();
  const POINT point{pixelX, pixelY};
  const COLORREF colour = ColourOf(words.Text());
  const std::int64_t limit = words.Number() * 1000;
  words.End();

  const ScreenDC screen;
  if (MenuCovers(point) || screen.Pixel(point) == colour) throw Failure("the colour is there already");
  MoveTo(x, y);
  SendMouse(button.down);
  const std::int64_t start = Microseconds();
  SendMouse(button.up);
  std::optional<std::int64_t> opened;
  std::int64_t looks = 0;
  while (Microseconds() - start < limit) {
    ++looks;
    if (!opened && MenuCovers(point)) opened = Microseconds() - start;
    if (opened && screen.Pixel(point) == colour) {
      Line().Add("opened", *opened).Add("drawn", Microseconds() - start).Add("looks", looks);
      return;
    }
    Sleep(1);
  }
  throw Failure(opened ? "the menu opened, but the colour didn't come" : "no menu opened");
}

}  // namespace driver
