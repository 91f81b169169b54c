#include "config/config_listing.h"

#include <set>
#include <vector>

#include "core/numbers.h"

namespace burrowmark {
namespace {

constexpr wchar_t kLineEnd[] = L"\r\n";

struct CountLine {
  const wchar_t* text;
  std::int32_t CollectionCounts::*count;
};

constexpr CountLine kCountLines[] = {
    {L"Number of shortcuts: ", &CollectionCounts::Shortcuts},
    {L"Number of Folder Shortcuts: ", &CollectionCounts::FolderShortcuts},
    {L"Number of Windows Explorer Shortcuts: ", &CollectionCounts::ExplorerShortcuts},
    {L"Number of Open-All shortcuts: ", &CollectionCounts::OpenAll},
    {L"Number of groups: ", &CollectionCounts::Groups},
};

std::wstring EntryLine(const clsMenuItem& item) {
  const std::wstring indent(static_cast<std::size_t>(item.GetNestingLevel()), L' ');
  const std::wstring title =
      item.SubMenu() ? L"[" + item.Caption() + L"]" : item.Caption() + L" (" + item.FolderPath + L")";
  return indent + title + kLineEnd;
}

// Lists the entry `root` and all that it holds, in store order. Groups that are being listed are kept on a list of our
// own, so that no depth is too deep, and each group is entered once, so that a circle of owners ends.
void WriteTextBranch(std::wstring& text, const clsMenuCollection& store, const wchar_t* root) {
  struct Branch {
    std::wstring root;
    std::int32_t next = 1;
  };
  std::vector<Branch> open{{root}};
  std::set<std::wstring> entered{root};
  while (!open.empty()) {
    if (open.back().next > store.Count()) {
      open.pop_back();
      continue;
    }
    const ItemRef item = store.Item(open.back().next++);
    if (item->Name() == open.back().root) {
      text += EntryLine(*item);
    } else if (item->OwnerName() == open.back().root) {
      if (!item->SubMenu()) {
        text += EntryLine(*item);
      } else if (entered.insert(item->Name()).second) {
        open.push_back({item->Name()});
      }
    }
  }
}

}  // namespace

std::wstring WriteTextReport(const Application& app, const Document& document) {
  const clsMenuCollection& store = *document.Store;
  std::wstring text = document.CurrentConfigFile + kLineEnd + kLineEnd;
  const CollectionCounts counts = store.CountCollection();
  for (const CountLine& line : kCountLines) text += line.text + DecimalText(counts.*line.count) + kLineEnd;
  text += kLineEnd;
  WriteTextBranch(text, store, MIT_GROUP_USER);
  if (app.AC[Appearance::kSystemFolders]) WriteTextBranch(text, store, MIT_PATHS_SYSTEM);
  return text;
}

}  // namespace burrowmark
