// Faults that a test switches on, and the record of the calls that the program made.
#pragma once

#include <cstddef>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace burrowmark {

// A server that is away was asked: what asked it would wait for good. Only work that the interface thread doesn't wait
// for may come to that.
class SilentPlace : public std::logic_error {
 public:
  using std::logic_error::logic_error;
};

// Every call of the local file system and the local registry, and those of the other families that may fail, ask
// `Strikes` first, under the seam's name of the call ("CreateNewFile", "Write", "RegSetValueExA" ...), and fail as the
// real ones would if the answer is true.
class Faults {
 public:
  // From now on the calls are counted from 1: the one with this number fails, and only that one.
  void FailCall(std::size_t number);
  // The same, and every later one fails too.
  void FailFrom(std::size_t number);
  // Switches everything off, the standing conditions below included, and forgets the calls.
  void Clear();

  // How many calls were counted, and how many of them failed by one of the two settings above.
  std::size_t Calls() const { return calls_; }
  std::size_t Failed() const { return failed_; }
  // The counted calls in order, as "name path" ("FileExists C:\x").
  const std::vector<std::string>& Record() const { return record_; }

  // Standing conditions of the disk and the registry.
  std::optional<std::size_t> DiskRoom;  // bytes that can still be written; a Write past it is cut short and fails
  std::set<std::wstring> HeldOpen;      // files that another program holds open without sharing, upper case
  std::set<std::wstring> SilentPlaces;  // servers ("\\\\SERVER") and drives ("X:") that never answer, upper case
  std::set<std::wstring> FoldersWithoutNewFiles;  // folders in which no file can be made, upper case
  std::optional<std::size_t> WalkEndsAfter;       // entries that a walk still shows until its folder is gone
  // Registry keys that can't be opened for writing, nor any below them: full path, upper case, as in
  // "HKEY_CURRENT_USER\SOFTWARE".
  std::set<std::wstring> RefusedKeys;

  // Throws SilentPlace if the call asks one of those.
  bool Strikes(const char* call, const std::wstring& subject);

 private:
  void MeetSilence(const std::string& call, const std::wstring& subject) const;

  std::size_t calls_ = 0;
  std::size_t failed_ = 0;
  std::size_t failFrom_ = 0;  // 0: nothing fails
  bool once_ = false;
  std::vector<std::string> record_;
};

}  // namespace burrowmark
