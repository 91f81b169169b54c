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

// Each empty if all is well, otherwise what is wrong: no two keys of a store are equal; every owner that it holds
// stands ahead of what it owns.
std::string UniqueKeysIn(const clsMenuCollection& store);
std::string OwnersAheadIn(const clsMenuCollection& store);

}  // namespace burrowmark::test
