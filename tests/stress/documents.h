// The configuration files of a stress run, and what they may hold.
//
// Every document has a mark, a letter in front of the title of each of its items ("B~3 old"), and as its summary. What
// follows the letter tells the items of a document apart, and never changes.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "core/application.h"
#include "platform/local/machine.h"

namespace burrowmark::stress {

inline constexpr wchar_t kNoMark = L'-';  // of a tree that the program made

struct Tree {
  wchar_t mark = kNoMark;
  bool mixed = false;  // it holds things of two documents
  std::multiset<std::wstring> titles;

  // A title, or another text that only a document of that mark has; texts without a mark don't count.
  void Add(const std::wstring& text, bool isTitle = true);
  friend bool operator==(const Tree&, const Tree&) = default;
};

// "B~3" of "B~3 old"; empty for a text without a mark.
std::wstring IdOf(const std::wstring& title);

class Documents {
 public:
  // `fail` hears of what mustn't be and doesn't come back. The machine must outlive this object.
  Documents(LocalMachine& machine, std::function<void(const std::string&)> fail);

  static std::vector<std::wstring> Paths();
  // The one with this file name or path, whatever its letter case; empty for another.
  static std::wstring Known(const std::wstring& nameOrPath);

  // What a file holds now; none if it can't be read.
  std::optional<Tree> Read(const std::wstring& path);
  // What the user sees and may save.
  void Shown(const Tree& tree);
  // The user wanted the item to go: it may be missing from now on.
  void Deleted(const std::wstring& id) { deleted_.insert(id); }
  // The user chose this file for the tree.
  void ChosenFor(const std::wstring& path, wchar_t mark) { chosen_[path] = mark; }
  void ForgetChoices() { chosen_.clear(); }
  // Puts something in place of a file that nobody can read.
  void Damage(const std::wstring& path);
  // The files that are there, by path; and as they were then.
  std::map<std::wstring, std::string> Bytes() const;
  void PutBack(const std::map<std::wstring, std::string>& files);
  // Every file holds what its own document was at some moment.
  void Check();
  // Whether two trees are the same, but for items that were to go.
  bool Same(const Tree& one, const Tree& other) const;
  bool AnyFileHolds(const Tree& tree);

 private:
  void Make(const std::wstring& path, wchar_t mark);
  std::optional<Tree> Parse(const std::string& bytes);
  void CheckFile(const std::wstring& path, const Tree& tree);
  bool IsKeptAside(const std::wstring& path);

  struct File {
    wchar_t mark = kNoMark;
    std::string bytes;
  };

  LocalMachine& machine_;
  std::function<void(const std::string&)> fail_;
  Application app_;
  std::map<std::wstring, File> files_;  // as they were seen last
  std::map<wchar_t, std::vector<Tree>> moments_;
  std::map<std::wstring, wchar_t> chosen_;
  std::set<std::wstring> deleted_;
  std::map<std::string, std::optional<Tree>> trees_;  // of all bytes that were ever there
};

}  // namespace burrowmark::stress
