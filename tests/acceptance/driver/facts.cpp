// Verbs that tell facts of the desktop: colours, sizes, texts as the menu's font draws them, registry values.
#include <cstdio>

#include "driver.h"

namespace driver {
namespace {

// The menu's font on a screen of the system's resolution.
class MenuFont {
 public:
  MenuFont() {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    if (!SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, GetDpiForSystem())) {
      throw Failure("the menu's font is unknown");
    }
    font_ = CreateFontIndirectW(&metrics.lfMenuFont);
  }
  MenuFont(const MenuFont&) = delete;
  MenuFont& operator=(const MenuFont&) = delete;
  ~MenuFont() { DeleteObject(font_); }
  HFONT Handle() const { return font_; }

 private:
  HFONT font_ = nullptr;
};

// A bitmap in memory with a device context to draw on it.
class Canvas {
 public:
  Canvas(int width, int height) : dc_(CreateCompatibleDC(nullptr)) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    bitmap_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits_, nullptr, 0);
    old_ = SelectObject(dc_, bitmap_);
  }
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;
  ~Canvas() {
    SelectObject(dc_, old_);
    DeleteObject(bitmap_);
    DeleteDC(dc_);
  }
  HDC DC() const { return dc_; }
  const std::uint32_t* Pixels() const { return static_cast<const std::uint32_t*>(bits_); }

 private:
  HDC dc_;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ old_ = nullptr;
  void* bits_ = nullptr;
};

SIZE SizeOf(const MenuFont& font, const std::wstring& text) {
  const Canvas canvas(1, 1);
  const HGDIOBJ old = SelectObject(canvas.DC(), font.Handle());
  SIZE size{};
  GetTextExtentPoint32W(canvas.DC(), text.c_str(), static_cast<int>(text.size()), &size);
  SelectObject(canvas.DC(), old);
  return size;
}

class UserKey {
 public:
  UserKey(const std::wstring& name, bool create) {
    const LSTATUS status =
        create ? RegCreateKeyExW(HKEY_CURRENT_USER, name.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &key_, nullptr)
               : RegOpenKeyExW(HKEY_CURRENT_USER, name.c_str(), 0, KEY_READ, &key_);
    if (status != ERROR_SUCCESS) throw Failure("no such key");
  }
  UserKey(const UserKey&) = delete;
  UserKey& operator=(const UserKey&) = delete;
  ~UserKey() { RegCloseKey(key_); }
  HKEY Handle() const { return key_; }

 private:
  HKEY key_ = nullptr;
};

}  // namespace

void ShowColours(Words& words) {
  words.End();
  for (int index = 0; index <= COLOR_MENUBAR; ++index) {
    const DWORD colour = GetSysColor(index);
    wchar_t text[8];
    std::swprintf(text, 8, L"%02x%02x%02x", GetRValue(colour), GetGValue(colour), GetBValue(colour));
    Line().Add("index", static_cast<std::int64_t>(index)).Add("colour", text);
  }
}

void ShowMenuText(Words& words) {
  const std::wstring text = words.Text();
  words.End();
  const MenuFont font;
  const SIZE size = SizeOf(font, text);
  const Canvas canvas(size.cx, size.cy);
  RECT all{0, 0, size.cx, size.cy};
  FillRect(canvas.DC(), &all, GetSysColorBrush(COLOR_MENU));
  const HGDIOBJ old = SelectObject(canvas.DC(), font.Handle());
  SetBkMode(canvas.DC(), TRANSPARENT);
  SetTextColor(canvas.DC(), RGB(0, 0, 0));
  DrawTextW(canvas.DC(), text.c_str(), static_cast<int>(text.size()), &all, DT_NOCLIP);
  SelectObject(canvas.DC(), old);
  GdiFlush();

  std::wstring pixels;
  for (LONG i = 0; i < size.cx * size.cy; ++i) {
    wchar_t pixel[8];
    std::swprintf(pixel, 8, L"%06x", static_cast<unsigned>(canvas.Pixels()[i] & 0xFFFFFF));
    pixels += pixel;
  }
  Line().Add("width", std::int64_t{size.cx}).Add("height", std::int64_t{size.cy}).Add("pixels", pixels);
}

void ShowMetrics(Words& words) {
  words.End();
  RECT work{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  Line()
      .Add("width", std::int64_t{GetSystemMetrics(SM_CXSCREEN)})
      .Add("height", std::int64_t{GetSystemMetrics(SM_CYSCREEN)})
      .Add("work", work)
      .Add("dpi", std::int64_t{GetDpiForSystem()});
}

void ReadValue(Words& words) {
  const std::wstring keyName = words.Text();
  const std::wstring valueName = words.Text();
  words.End();
  const UserKey key(keyName, false);
  DWORD type = 0;
  DWORD size = 0;
  if (RegQueryValueExW(key.Handle(), valueName.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS) {
    throw Failure("no such value");
  }
  std::vector<BYTE> bytes(size + sizeof(wchar_t));
  RegQueryValueExW(key.Handle(), valueName.c_str(), nullptr, &type, bytes.data(), &size);
  if (type == REG_DWORD) {
    Line().Add("type", std::int64_t{type}).Add("number", std::int64_t{*reinterpret_cast<DWORD*>(bytes.data())});
  } else {
    Line().Add("type", std::int64_t{type}).Add("text", reinterpret_cast<const wchar_t*>(bytes.data()));
  }
}

void WriteValue(Words& words) {
  const std::wstring keyName = words.Text();
  const std::wstring valueName = words.Text();
  const std::wstring text = words.Text();
  words.End();
  const UserKey key(keyName, true);
  const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  if (RegSetValueExW(key.Handle(), valueName.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()), size) !=
      ERROR_SUCCESS) {
    throw Failure("the value wasn't written");
  }
}

void DeleteKey(Words& words) {
  const std::wstring name = words.Text();
  words.End();
  const LSTATUS status = RegDeleteTreeW(HKEY_CURRENT_USER, name.c_str());
  if (status != ERROR_SUCCESS && status != ERROR_FILE_NOT_FOUND) throw Failure("the key wasn't deleted");
}

// The system takes a desktop down a second after its last program, task bar and all.
void HoldDesktop(Words& words) {
  words.End();
  GetDesktopWindow();
  while (std::getchar() != EOF) {
  }
}

}  // namespace driver
