// A library that tells that it was loaded: it makes a file of its own name in C:\taken.
#include <windows.h>

BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID unused) {
  (void)unused;
  if (reason != DLL_PROCESS_ATTACH) return TRUE;
  wchar_t own[MAX_PATH];
  wchar_t file[MAX_PATH] = L"C:\\taken\\";
  GetModuleFileNameW(module, own, MAX_PATH);
  const wchar_t* name = own;
  for (const wchar_t* at = own; *at != L'\0'; ++at) {
    if (*at == L'\\') name = at + 1;
  }
  lstrcatW(file, name);
  CloseHandle(CreateFileW(file, GENERIC_WRITE, 0, NULL, CREATE_ALWAYS, 0, NULL));
  return TRUE;
}
