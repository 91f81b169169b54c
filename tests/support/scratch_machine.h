// A local machine in a folder of its own that goes with the test, and the application on it.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "core/application.h"
#include "platform/local/machine.h"

namespace burrowmark::test {

// An empty folder that nobody else has; removed with everything in it at the end.
class ScratchFolder {
 public:
  ScratchFolder();
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

// The clock stands at kNow until a test changes it. A menu or a box that nobody expected, or that never came, fails the
// test.
class ScratchMachine {
 public:
  static constexpr LocalTime kNow{2003, 11, 5, 14, 7, 9};

  ScratchMachine();
  ~ScratchMachine();
  ScratchMachine(const ScratchMachine&) = delete;
  ScratchMachine& operator=(const ScratchMachine&) = delete;

  // A text value of the user's part of the registry; empty without one.
  std::wstring Registered(const wchar_t* key, const std::wstring& value);
  void Register(const wchar_t* key, const std::wstring& value, const std::wstring& text);

  ScratchFolder folder;
  LocalMachine machine;
  Application app;
};

// One item with what most tests need of it.
ItemRef MakeItem(const Clock& clock, const std::wstring& name, const std::wstring& caption, const std::wstring& owner,
                 bool group = false);

// Names of a store's entries in order, a blank between them.
std::wstring NamesOf(const clsMenuCollection& store);
// The same of the titles under one owner.
std::wstring TitlesUnder(const clsMenuCollection& store, const std::wstring& owner);

}  // namespace burrowmark::test
