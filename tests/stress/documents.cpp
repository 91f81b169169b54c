#include "tests/stress/documents.h"

#include <algorithm>

#include "config/config_file.h"
#include "config/config_reader.h"
#include "core/file_names.h"
#include "core/text.h"
#include "platform/characters.h"

namespace burrowmark::stress {
namespace {

struct FileRow {
  const wchar_t* path;
  wchar_t mark;  // kNoMark: it isn't there at first
};

constexpr FileRow kFiles[] = {{L"C:\\Program Files\\Burrowmark\\default.bwmk", L'A'},
                              {L"C:\\Docs\\b.bwmk", L'B'},
                              {L"C:\\Docs\\c.bwmk", L'C'},
                              {L"D:\\d.bwmk", L'D'},
                              {L"C:\\Docs\\new.bwmk", kNoMark}};

// The items of every document, behind its personal group: groups of one title, living and dead shortcuts, one that
// opens all beside it, which has the title that they all have; some with a hot key.
struct ItemRow {
  const wchar_t* id;
  const wchar_t* owner;  // the name of a row above
  const wchar_t* name;
  const wchar_t* type;
  bool living;
  std::int32_t hotKey;
};

constexpr ItemRow kItems[] = {
    {L"1", MIT_GROUP_USER, L"N1", MIT_GROUP_GENERAL, true, -1},
    {L"2", MIT_GROUP_USER, L"N2", MIT_PATH, true, 49},
    {L"3", MIT_GROUP_USER, L"N3", MIT_PATH, false, 50},
    {L"4", L"N1", L"N4", MIT_PATH, false, -1},
    {L"5", L"N1", L"N5", MIT_PATH, true, -1},
    {L"6", L"N1", L"N6", MIT_OPENALL, true, 51},
    {L"1", MIT_GROUP_USER, L"N7", MIT_GROUP_GENERAL, true, -1},
    {L"8", L"N7", L"N8", MIT_PATH, false, 52},
};

}  // namespace

void Tree::Add(const std::wstring& text, bool isTitle) {
  const std::wstring id = IdOf(text);
  if (id.empty()) return;
  mixed = mixed || (mark != kNoMark && mark != id[0]);
  mark = id[0];
  if (isTitle) titles.insert(text);
}

std::wstring IdOf(const std::wstring& title) {
  return title.size() > 1 && title[1] == L'~' ? title.substr(0, title.find(L' ')) : std::wstring();
}

Documents::Documents(LocalMachine& machine, std::function<void(const std::string&)> fail)
    : machine_(machine), fail_(std::move(fail)), app_(machine.platform()) {
  app_.AC[Appearance::kSystemFolders] = false;
  for (const wchar_t* folder : {L"C:\\Docs", L"D:\\"}) machine.AddFolders(folder);
  for (const FileRow& row : kFiles) {
    if (row.mark != kNoMark) Make(row.path, row.mark);
  }
}

void Documents::Make(const std::wstring& path, wchar_t mark) {
  const std::wstring start = std::wstring(1, mark) + L"~";
  Document document;
  document.Store = std::make_shared<clsMenuCollection>(machine_.clock);
  document.Summary.SummaryTitle = start;
  document.Store->AddNewMenuItem(
      {.Caption = start + L"0", .OwnerName = kRootOwner, .Name = MIT_GROUP_USER, .SubMenu = true});
  for (const ItemRow& row : kItems) {
    const std::wstring id = start + row.id;
    const bool group = row.type == std::wstring_view(MIT_GROUP_GENERAL);
    document.Store->AddNewMenuItem({.Caption = id,
                                    .OwnerName = row.owner,
                                    .Name = row.name,
                                    .FolderPath = group        ? L""
                                                  : row.living ? L"C:\\Windows"
                                                               : L"C:\\Gone\\" + id,
                                    .ItemType = row.type,
                                    .SubMenu = group,
                                    .KeyboardCode = row.hotKey});
  }
  ConfigFileWriteAs(app_, document, path);
  const std::optional<Tree> tree = Read(path);
  if (!tree || tree->titles.size() != std::size(kItems)) fail_("a document couldn't be made");
  files_[path] = {mark, machine_.BytesOf(path)};
  Shown(*tree);
}

std::vector<std::wstring> Documents::Paths() {
  std::vector<std::wstring> paths;
  for (const FileRow& row : kFiles) paths.emplace_back(row.path);
  return paths;
}

std::wstring Documents::Known(const std::wstring& nameOrPath) {
  const std::wstring name = UpperCaseText(GetFileName(nameOrPath));
  const auto* row = std::find_if(std::begin(kFiles), std::end(kFiles), [&name](const FileRow& file) {
    return UpperCaseText(GetFileName(file.path)) == name;
  });
  return row == std::end(kFiles) ? std::wstring() : row->path;
}

std::optional<Tree> Documents::Read(const std::wstring& path) {
  const std::filesystem::path real = machine_.RealPath(path);
  if (real.empty() || !std::filesystem::is_regular_file(real)) return std::nullopt;
  std::string bytes = machine_.BytesOf(path);
  const auto [known, isNew] = trees_.try_emplace(std::move(bytes));
  if (isNew) known->second = Parse(known->first);
  return known->second;
}

std::optional<Tree> Documents::Parse(const std::string& bytes) {
  clsMenuCollection store(machine_.clock);
  ConfigContent content;
  if (!ReadConfig(app_, bytes, store, content)) return std::nullopt;
  Tree tree;
  for (std::int32_t i = 1; i <= store.Count(); ++i) tree.Add(store.Item(i)->Caption());
  tree.Add(content.summary.SummaryTitle, false);
  return tree;
}

void Documents::Shown(const Tree& tree) {
  std::vector<Tree>& moments = moments_[tree.mark];
  if (moments.empty() || moments.back() != tree) moments.push_back(tree);
}

void Documents::Damage(const std::wstring& path) {
  machine_.AddFile(path, "no file of ours");
  files_[path] = {L'!', "no file of ours"};
}

std::map<std::wstring, std::string> Documents::Bytes() const {
  std::map<std::wstring, std::string> all;
  for (const std::wstring& path : Paths()) {
    if (std::filesystem::is_regular_file(machine_.RealPath(path))) all[path] = machine_.BytesOf(path);
  }
  return all;
}

void Documents::PutBack(const std::map<std::wstring, std::string>& files) {
  for (const std::wstring& path : Paths()) {
    const std::filesystem::path real = machine_.RealPath(path);
    if (files.contains(path)) {
      machine_.AddFile(path, files.at(path));
    } else if (!real.empty()) {
      std::filesystem::remove(real);
    }
  }
}

bool Documents::Same(const Tree& one, const Tree& other) const {
  const auto rest = [this](const Tree& tree) {
    std::multiset<std::wstring> titles = tree.titles;
    std::erase_if(titles, [this](const std::wstring& title) { return deleted_.contains(IdOf(title)); });
    return titles;
  };
  return one.mark == other.mark && rest(one) == rest(other);
}

bool Documents::AnyFileHolds(const Tree& tree) {
  const std::vector<std::wstring> paths = Paths();
  return std::any_of(paths.begin(), paths.end(), [&](const std::wstring& path) {
    const std::optional<Tree> file = Read(path);
    return file && Same(*file, tree);
  });
}

void Documents::Check() {
  for (const std::wstring& path : Paths()) {
    if (const std::optional<Tree> tree = Read(path)) CheckFile(path, *tree);
  }
}

void Documents::CheckFile(const std::wstring& path, const Tree& tree) {
  const std::string name = ToUtf8(path);
  if (tree.mixed) fail_("things of two documents in " + name);
  const auto chosen = chosen_.find(path);
  const bool wanted = chosen != chosen_.end() && chosen->second == tree.mark;
  const bool known = files_.contains(path) && files_[path].mark != kNoMark;
  if (known && files_[path].mark != tree.mark && !wanted && !(tree.mark == kNoMark && IsKeptAside(path))) {
    fail_("the tree of another document in " + name);
  }
  const std::vector<Tree>& moments = moments_[tree.mark];
  const bool seen =
      std::any_of(moments.rbegin(), moments.rend(), [&](const Tree& moment) { return Same(moment, tree); });
  if (tree.mark != kNoMark && !seen) fail_("a tree that nobody ever saw in " + name);
  files_[path] = {tree.mark, machine_.BytesOf(path)};
}

// What stood there before stands beside it.
bool Documents::IsKeptAside(const std::wstring& path) {
  const std::filesystem::path real = machine_.RealPath(path);
  for (const auto& entry : std::filesystem::directory_iterator(real.parent_path())) {
    const std::wstring other = FromUtf8(entry.path().filename().string());
    if (other.find(L"(unreadable)") == std::wstring::npos) continue;
    if (machine_.BytesOf(path.substr(0, path.rfind(L'\\') + 1) + other) == files_[path].bytes) return true;
  }
  return false;
}

}  // namespace burrowmark::stress
