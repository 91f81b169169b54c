// Verbs that read tree and list views of another process. The controls answer into memory of their own process, so the
// records travel there and back.
#include <windows.h>

#include <commctrl.h>

#include <cstring>

#include "remote.h"

namespace driver {
namespace {

constexpr int kTextLength = 512;

LRESULT Ask(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  DWORD_PTR result = 0;
  if (!SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, 5000, &result)) {
    throw Failure("the window didn't answer");
  }
  return static_cast<LRESULT>(result);
}

// A record in the control's process, and behind it a buffer for a text.
template <class Record>
class RemoteRecord {
 public:
  explicit RemoteRecord(HWND window) : window_(window), memory_(window, sizeof(Record) + kTextLength * 2) {}

  wchar_t* TextAddress() const { return reinterpret_cast<wchar_t*>(memory_.At(sizeof(Record))); }

  LRESULT Ask(UINT message, WPARAM wParam, Record& record) const {
    memory_.Write(0, &record, sizeof record);
    const LRESULT result = driver::Ask(window_, message, wParam, reinterpret_cast<LPARAM>(memory_.At(0)));
    memory_.Read(0, &record, sizeof record);
    return result;
  }

  // The control may have pointed the record at a text of its own.
  std::wstring TextAt(const wchar_t* address) const {
    wchar_t text[kTextLength + 1] = {};
    const auto offset = static_cast<std::size_t>(reinterpret_cast<const std::byte*>(address) - memory_.At(0));
    memory_.Read(offset, text, kTextLength * 2);
    return text;
  }

 private:
  HWND window_;
  RemoteMemory memory_;
};

RECT OnScreen(HWND window, RECT rectangle) {
  MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&rectangle), 2);
  return rectangle;
}

struct Tree {
  explicit Tree(HWND control) : window(control), items(control), rectangles(control) {}
  HTREEITEM Next(WPARAM relation, HTREEITEM node) const {
    return reinterpret_cast<HTREEITEM>(Ask(window, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(node)));
  }
  HWND window;
  RemoteRecord<TVITEMW> items;
  RemoteRecord<RECT> rectangles;
};

void PrintNodes(const Tree& tree, HTREEITEM node, int depth) {
  for (; node != nullptr; node = tree.Next(TVGN_NEXT, node)) {
    TVITEMW record{};
    record.mask = TVIF_TEXT;
    record.hItem = node;
    record.pszText = tree.items.TextAddress();
    record.cchTextMax = kTextLength;
    if (!tree.items.Ask(TVM_GETITEMW, 0, record)) throw Failure("a node doesn't answer");
    RECT rectangle{};
    std::memcpy(&rectangle, &node, sizeof(HTREEITEM));  // the control looks for it there
    tree.rectangles.Ask(TVM_GETITEMRECT, TRUE, rectangle);
    Line()
        .Add("depth", std::int64_t{depth})
        .Add("text", tree.items.TextAt(record.pszText))
        .Add("rectangle", OnScreen(tree.window, rectangle));
    PrintNodes(tree, tree.Next(TVGN_CHILD, node), depth + 1);
  }
}

}  // namespace

void ListTree(Words& words) {
  const HWND window = words.Window();
  if (ClassOf(window) != WC_TREEVIEWW) throw Failure("the window is no tree view");
  const Tree tree(window);
  PrintNodes(tree, tree.Next(TVGN_ROOT, nullptr), 0);
}

void ListList(Words& words) {
  const HWND window = words.Window();
  if (ClassOf(window) != WC_LISTVIEWW) throw Failure("the window is no list view");
  const RemoteRecord<LVITEMW> items(window);
  const RemoteRecord<RECT> rectangles(window);
  const auto header = reinterpret_cast<HWND>(Ask(window, LVM_GETHEADER, 0, 0));
  const LRESULT columns = header != nullptr ? Ask(header, HDM_GETITEMCOUNT, 0, 0) : 1;
  const LRESULT rows = Ask(window, LVM_GETITEMCOUNT, 0, 0);
  for (LRESULT row = 0; row < rows; ++row) {
    const auto index = static_cast<WPARAM>(row);
    RECT rectangle{LVIR_BOUNDS, 0, 0, 0};
    rectangles.Ask(LVM_GETITEMRECT, index, rectangle);
    Line line;
    line.Add("selected", Ask(window, LVM_GETITEMSTATE, index, LVIS_SELECTED) != 0)
        .Add("rectangle", OnScreen(window, rectangle));
    for (int column = 0; column < columns; ++column) {
      LVITEMW record{};
      record.iSubItem = column;
      record.pszText = items.TextAddress();
      record.cchTextMax = kTextLength;
      items.Ask(LVM_GETITEMTEXTW, index, record);
      line.Add(("text" + std::to_string(column)).c_str(), items.TextAt(record.pszText));
    }
  }
}

}  // namespace driver
