// The names by which entries that the program draws are known to screen readers.
#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace burrowmark {

// Readers look for a record of the system's making in the data of a drawn entry. It must stay as long as the entry.
class EntryNames {
 public:
  EntryNames();
  ~EntryNames();
  EntryNames(const EntryNames&) = delete;
  EntryNames& operator=(const EntryNames&) = delete;

  // The data of an entry of that text.
  ULONG_PTR Add(const std::wstring& text);
  // Once no entry has these data any more.
  void Remove(const std::vector<ULONG_PTR>& data);

 private:
  struct Record;

  std::map<ULONG_PTR, std::unique_ptr<Record>> records_;
};

ULONG_PTR DataOfEntry(HMENU menu, UINT position);
// The data of all entries of a menu and of the popups below it.
std::vector<ULONG_PTR> DataOfMenu(HMENU menu);

}  // namespace burrowmark
