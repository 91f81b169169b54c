// The text on the clipboard, as another program finds it.
#include "driver.h"

namespace driver {

void ReadClipboard(Words&) {
  if (OpenClipboard(nullptr) == 0) throw Failure("another program holds the clipboard");
  const HANDLE data = GetClipboardData(CF_UNICODETEXT);
  const auto* text = data == nullptr ? nullptr : static_cast<const wchar_t*>(GlobalLock(data));
  Line().Add("text", text == nullptr ? L"" : text);
  if (text != nullptr) GlobalUnlock(data);
  CloseClipboard();
}

}  // namespace driver
