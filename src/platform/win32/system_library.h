// A library of the system's, for calls that not every system has.
#pragma once

#include <windows.h>

namespace burrowmark {

class SystemLibrary {
 public:
  // Looks in the system's own folder alone, so that a file of that name beside the program isn't taken.
  explicit SystemLibrary(const wchar_t* name)
      : module_(::LoadLibraryExW(name, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32)) {}
  ~SystemLibrary() {
    if (module_ != nullptr) ::FreeLibrary(module_);
  }
  SystemLibrary(const SystemLibrary&) = delete;
  SystemLibrary& operator=(const SystemLibrary&) = delete;

  // A call by its name, of a type that the caller vouches for; none where the library or the call is missing.
  template <typename Call>
  Call Find(const char* name) const {
    const FARPROC found = module_ == nullptr ? nullptr : ::GetProcAddress(module_, name);
    return reinterpret_cast<Call>(reinterpret_cast<void (*)()>(found));
  }

 private:
  HMODULE module_;
};

}  // namespace burrowmark
