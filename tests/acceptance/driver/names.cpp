// What screen readers hear of controls.
#include "driver.h"

// This wants windows.h ahead of it.
#include <oleacc.h>

namespace driver {
namespace {

BOOL CALLBACK PrintNameLine(HWND window, LPARAM) {
  void* found = nullptr;
  if (FAILED(AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible, &found))) {
    return TRUE;
  }
  auto* const object = static_cast<IAccessible*>(found);
  VARIANT self = {};
  self.vt = VT_I4;
  self.lVal = CHILDID_SELF;
  VARIANT role = {};
  BSTR name = nullptr;
  object->get_accRole(self, &role);
  object->get_accName(self, &name);
  Line()
      .Add("class_name", ClassOf(window))
      .Add("visible", IsWindowVisible(window) != 0)
      .Add("role", std::int64_t{role.vt == VT_I4 ? role.lVal : 0})
      .Add("name", std::wstring_view(name == nullptr ? L"" : name));
  SysFreeString(name);
  object->Release();
  return TRUE;
}

}  // namespace

void ListNames(Words& words) {
  CoInitialize(nullptr);
  EnumChildWindows(words.Window(), PrintNameLine, 0);
  CoUninitialize();
}

}  // namespace driver
