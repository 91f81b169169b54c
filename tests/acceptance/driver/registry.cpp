// Verbs for texts in the current user's registry.
#include "driver.h"

namespace driver {

void ReadValue(Words& words) {
  const std::wstring key = words.Text();
  const std::wstring name = words.Text();
  wchar_t text[1024] = {};
  DWORD size = sizeof text;
  if (RegGetValueW(HKEY_CURRENT_USER, key.c_str(), name.c_str(), RRF_RT_REG_SZ, nullptr, text, &size) != 0) {
    throw Failure("no such text");
  }
  Line().Add("text", text);
}

void WriteValue(Words& words) {
  const std::wstring key = words.Text();
  const std::wstring name = words.Text();
  const std::wstring text = words.Text();
  const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  if (RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), name.c_str(), REG_SZ, text.c_str(), size) != 0) {
    throw Failure("the value wasn't written");
  }
}

void DeleteKey(Words& words) {
  const LSTATUS status = RegDeleteTreeW(HKEY_CURRENT_USER, words.Text().c_str());
  if (status != ERROR_SUCCESS && status != ERROR_FILE_NOT_FOUND) throw Failure("the key wasn't deleted");
}

}  // namespace driver
