#include "platform/win32/files/type_name.h"

#include <windows.h>
// These want windows.h ahead of them.
#include <objbase.h>
#include <shellapi.h>

namespace burrowmark {
namespace {

// The shell asks for this of a thread that calls it.
class ShellThread {
 public:
  ShellThread() : entered_(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE))) {}
  ~ShellThread() {
    if (entered_) ::CoUninitialize();
  }
  ShellThread(const ShellThread&) = delete;
  ShellThread& operator=(const ShellThread&) = delete;

 private:
  bool entered_;
};

}  // namespace

// With the attributes given, the file needn't be there, and isn't looked for.
std::wstring ReadTypeName(const std::wstring& extension, bool isFolder) {
  const ShellThread thread;
  SHFILEINFOW info = {};
  const std::wstring name = L"file" + extension;
  const DWORD attributes = isFolder ? FILE_ATTRIBUTE_DIRECTORY : FILE_ATTRIBUTE_NORMAL;
  ::SHGetFileInfoW(name.c_str(), attributes, &info, sizeof(info), SHGFI_TYPENAME | SHGFI_USEFILEATTRIBUTES);
  return info.szTypeName;
}

}  // namespace burrowmark
