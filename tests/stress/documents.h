// The configuration files of a stress run, and what they may hold.
//
// Every document has a mark, a letter in front of the title of each of its items ("B~3 old"), and as its summary. What
// follows the letter tells the items of a document apart, and never changes.
#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "config/config_file.h"
#include "config/config_reader.h"
#include "core/file_names.h"
#include "core/text.h"
#include "platform/characters.h"
#include "platform/local/machine.h"

namespace burrowmark::stress {

inline constexpr wchar_t kNoMark = L'-';  // of a tree that the program made

struct FileRow {
  std::wstring path;
  wchar_t mark;  // kNoMark: it isn't there at first
};
inline const FileRow kFiles[] = {{L"C:\\Program Files\\Burrowmark\\default.bwmk", L'A'},
                                 {L"C:\\Docs\\b.bwmk", L'B'},
                                 {L"C:\\Docs\\c.bwmk", L'C'},
                                 {L"D:\\d.bwmk", L'D'},
                                 {L"C:\\Docs\\new.bwmk", kNoMark}};

// The items of every document: groups of one title, living and dead shortcuts, one that opens all beside it, which has
// the title that they all have; some with a hot key.
inline const NewMenuItem kItems[] = {
    {.Caption = L"0", .OwnerName = kRootOwner, .Name = MIT_GROUP_USER, .SubMenu = true},
    {.Caption = L"1", .OwnerName = MIT_GROUP_USER, .Name = L"N1", .SubMenu = true},
    {.Caption = L"2", .OwnerName = MIT_GROUP_USER, .Name = L"N2", .FolderPath = L"C:\\Windows", .KeyboardCode = 49},
    {.Caption = L"3", .OwnerName = MIT_GROUP_USER, .Name = L"N3", .FolderPath = L"C:\\Gone\\", .KeyboardCode = 50},
    {.Caption = L"4", .OwnerName = L"N1", .Name = L"N4", .FolderPath = L"C:\\Gone\\"},
    {.Caption = L"5", .OwnerName = L"N1", .Name = L"N5", .FolderPath = L"C:\\Windows"},
    {.Caption = L"6", .OwnerName = L"N1", .Name = L"N6", .ItemType = MIT_OPENALL, .KeyboardCode = 51},
    {.Caption = L"1", .OwnerName = MIT_GROUP_USER, .Name = L"N7", .SubMenu = true},
    {.Caption = L"8", .OwnerName = L"N7", .Name = L"N8", .FolderPath = L"C:\\Gone\\", .KeyboardCode = 52}};

// "B~3" of "B~3 old"; empty for a text without a mark.
inline std::wstring IdOf(const std::wstring& title) {
  return title.size() > 1 && title[1] == L'~' ? title.substr(0, title.find(L' ')) : std::wstring();
}

// The file with this name or path, however it is spelt; empty for another.
inline std::wstring Known(const std::wstring& nameOrPath) {
  const std::wstring name = UpperCaseText(GetFileName(nameOrPath));
  for (const FileRow& row : kFiles) {
    if (UpperCaseText(GetFileName(row.path)) == name) return row.path;
  }
  return {};
}

struct Tree {
  wchar_t mark = kNoMark;
  bool mixed = false;  // it holds things of two documents
  std::multiset<std::wstring> titles;

  // A title, or another text that only a document of that mark has; texts without a mark don't count.
  void Add(const std::wstring& text, bool isTitle = true) {
    const std::wstring id = IdOf(text);
    if (id.empty()) return;
    mixed = mixed || (mark != kNoMark && mark != id[0]);
    mark = id[0];
    if (isTitle) titles.insert(text);
  }
  friend bool operator==(const Tree&, const Tree&) = default;
};

class Documents {
 public:
  // `fail` hears of what mustn't be and doesn't come back. The machine must outlive this object.
  Documents(LocalMachine& machine, std::function<void(const std::string&)> fail)
      : machine_(machine), fail_(std::move(fail)), app_(machine.platform()) {
    app_.AC[Appearance::kSystemFolders] = false;
    machine.drives.Add(L'D');
    for (const wchar_t* folder : {L"C:\\Docs", L"D:\\"}) machine.AddFolders(folder);
    for (const FileRow& row : kFiles) {
      if (row.mark != kNoMark) Make(row);
    }
  }

  // What a file holds now; none if it can't be read.
  std::optional<Tree> Read(const std::wstring& path) {
    if (!IsThere(path)) return std::nullopt;
    const auto [known, isNew] = trees_.try_emplace(machine_.BytesOf(path));
    if (isNew) known->second = Parse(known->first);
    return known->second;
  }
  // What the user sees and may save.
  void Shown(const Tree& tree) {
    std::vector<Tree>& moments = moments_[tree.mark];
    if (moments.empty() || moments.back() != tree) moments.push_back(tree);
  }
  // The user wanted the item to go: it may be missing from now on.
  void Deleted(const std::wstring& id) { deleted_.insert(id); }
  // The user chose this file for the tree.
  void ChosenFor(const std::wstring& path, wchar_t mark) { chosen_[path] = mark; }
  void ForgetChoices() { chosen_.clear(); }
  // Puts something in place of a file that nobody can read.
  void Damage(const std::wstring& path) {
    machine_.AddFile(path, "no file of ours");
    files_[path] = {L'!', "no file of ours"};
  }
  // The files that are there, by path; and as they were then.
  std::map<std::wstring, std::string> Bytes() const {
    std::map<std::wstring, std::string> all;
    for (const FileRow& row : kFiles) {
      if (IsThere(row.path)) all[row.path] = machine_.BytesOf(row.path);
    }
    return all;
  }
  void PutBack(const std::map<std::wstring, std::string>& files) {
    for (const FileRow& row : kFiles) {
      if (const auto file = files.find(row.path); file != files.end()) {
        machine_.AddFile(row.path, file->second);
      } else if (IsThere(row.path)) {
        std::filesystem::remove(machine_.RealPath(row.path));
      }
    }
  }
  // Every file holds what its own document was at some moment.
  void Check() {
    for (const FileRow& row : kFiles) {
      if (const std::optional<Tree> tree = Read(row.path)) CheckFile(row.path, *tree);
    }
  }
  // Whether two trees are the same, but for items that were to go.
  bool Same(const Tree& one, const Tree& other) const {
    const auto rest = [this](std::multiset<std::wstring> titles) {
      std::erase_if(titles, [this](const std::wstring& title) { return deleted_.contains(IdOf(title)); });
      return titles;
    };
    return one.mark == other.mark && rest(one.titles) == rest(other.titles);
  }
  bool AnyFileHolds(const Tree& tree) {
    return std::any_of(std::begin(kFiles), std::end(kFiles), [&](const FileRow& row) {
      const std::optional<Tree> file = Read(row.path);
      return file && Same(*file, tree);
    });
  }

 private:
  struct File {
    wchar_t mark = kNoMark;
    std::string bytes;
  };

  bool IsThere(const std::wstring& path) const { return std::filesystem::is_regular_file(machine_.RealPath(path)); }

  void Make(const FileRow& row) {
    const std::wstring start = std::wstring(1, row.mark) + L"~";
    Document document;
    document.Store = std::make_shared<clsMenuCollection>(machine_.clock);
    document.Summary.SummaryTitle = start;
    for (NewMenuItem item : kItems) {
      item.Caption = start + item.Caption;
      if (item.FolderPath.ends_with(L'\\')) item.FolderPath += item.Caption;
      document.Store->AddNewMenuItem(item);
    }
    ConfigFileWriteAs(app_, document, row.path);
    files_[row.path] = {row.mark, machine_.BytesOf(row.path)};
    Shown(Read(row.path).value());
  }

  std::optional<Tree> Parse(const std::string& bytes) {
    clsMenuCollection store(machine_.clock);
    ConfigContent content;
    if (!ReadConfig(app_, bytes, store, content)) return std::nullopt;
    Tree tree;
    for (std::int32_t i = 1; i <= store.Count(); ++i) tree.Add(store.Item(i)->Caption());
    tree.Add(content.summary.SummaryTitle, false);
    return tree;
  }

  void CheckFile(const std::wstring& path, const Tree& tree) {
    const std::string name = ToUtf8(path);
    if (tree.mixed) fail_("things of two documents in " + name);
    const auto chosen = chosen_.find(path);
    const bool wanted = chosen != chosen_.end() && chosen->second == tree.mark;
    const bool known = files_.contains(path) && files_[path].mark != kNoMark;
    if (known && files_[path].mark != tree.mark && !wanted && !(tree.mark == kNoMark && IsKeptAside(path))) {
      fail_("the tree of another document in " + name);
    }
    const std::vector<Tree>& moments = moments_[tree.mark];
    const auto isIt = [&](const Tree& moment) { return Same(moment, tree); };
    if (tree.mark != kNoMark && std::none_of(moments.rbegin(), moments.rend(), isIt)) {
      fail_("a tree that nobody ever saw in " + name);
    }
    files_[path] = {tree.mark, machine_.BytesOf(path)};
  }

  // What stood there before stands beside it.
  bool IsKeptAside(const std::wstring& path) {
    const std::wstring folder = path.substr(0, path.rfind(L'\\') + 1);
    for (const auto& entry : std::filesystem::directory_iterator(machine_.RealPath(path).parent_path())) {
      const std::wstring other = FromUtf8(entry.path().filename().string());
      const bool isCopy = other.find(L"(unreadable)") != std::wstring::npos;
      if (isCopy && machine_.BytesOf(folder + other) == files_[path].bytes) return true;
    }
    return false;
  }

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
