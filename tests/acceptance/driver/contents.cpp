// Verbs that read tree and list views of another process. The controls answer into memory of their own process, so the
// records travel there and back.
#include <windows.h>

#include <commctrl.h>

#include "driver.h"

namespace driver {
namespace {

constexpr int kTextLength = 512;

// A block of memory in the process that owns a window.
class RemoteMemory {
 public:
  RemoteMemory(HWND window, std::size_t size) {
    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    process_ = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, id);
    if (process_ != nullptr) memory_ = VirtualAllocEx(process_, nullptr, size, MEM_COMMIT, PAGE_READWRITE);
    if (memory_ == nullptr) throw Failure("the window's process gives no memory");
  }
  RemoteMemory(const RemoteMemory&) = delete;
  RemoteMemory& operator=(const RemoteMemory&) = delete;
  ~RemoteMemory() {
    VirtualFreeEx(process_, memory_, 0, MEM_RELEASE);
    CloseHandle(process_);
  }
  std::byte* At(std::size_t offset) const { return static_cast<std::byte*>(memory_) + offset; }
  void Write(std::size_t offset, const void* data, std::size_t size) const {
    if (!WriteProcessMemory(process_, At(offset), data, size, nullptr)) throw Failure("the memory can't be written");
  }
  void Read(std::size_t offset, void* data, std::size_t size) const {
    if (!ReadProcessMemory(process_, At(offset), data, size, nullptr)) throw Failure("the memory can't be read");
  }

 private:
  HANDLE process_ = nullptr;
  void* memory_ = nullptr;
};

LRESULT Ask(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  DWORD_PTR result = 0;
  if (!SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, 5000, &result)) {
    throw Failure("the window didn't answer");
  }
  return static_cast<LRESULT>(result);
}

// A record, and behind it the buffer that its text pointer shows to.
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
  std::wstring TextOf(const wchar_t* address) const {
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

HTREEITEM NextNode(HWND window, WPARAM relation, HTREEITEM node) {
  return reinterpret_cast<HTREEITEM>(Ask(window, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(node)));
}

RECT NodeRectangle(HWND window, HTREEITEM node) {
  const RemoteMemory memory(window, sizeof(RECT));
  // The node's handle stands in the rectangle that the control fills.
  memory.Write(0, &node, sizeof(HTREEITEM));
  RECT rectangle{};
  if (Ask(window, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(memory.At(0)))) {
    memory.Read(0, &rectangle, sizeof rectangle);
    rectangle = OnScreen(window, rectangle);
  }
  return rectangle;
}

void PrintNodes(HWND window, const RemoteRecord<TVITEMW>& remote, HTREEITEM node, int depth) {
  for (; node != nullptr; node = NextNode(window, TVGN_NEXT, node)) {
    TVITEMW record{};
    record.mask = TVIF_TEXT | TVIF_STATE | TVIF_IMAGE;
    record.hItem = node;
    record.stateMask = ~0U;
    record.pszText = remote.TextAddress();
    record.cchTextMax = kTextLength;
    if (!remote.Ask(TVM_GETITEMW, 0, record)) throw Failure("a node doesn't answer");
    Line()
        .Add("depth", std::int64_t{depth})
        .Add("text", remote.TextOf(record.pszText))
        .Add("image", std::int64_t{record.iImage})
        .Add("state", std::int64_t{record.state})
        .Add("rectangle", NodeRectangle(window, node));
    PrintNodes(window, remote, NextNode(window, TVGN_CHILD, node), depth + 1);
  }
}

int ColumnCount(HWND list) {
  const auto header = reinterpret_cast<HWND>(Ask(list, LVM_GETHEADER, 0, 0));
  const int columns = header != nullptr ? static_cast<int>(Ask(header, HDM_GETITEMCOUNT, 0, 0)) : 0;
  return columns > 0 ? columns : 1;
}

std::wstring CellText(const RemoteRecord<LVITEMW>& remote, int row, int column) {
  LVITEMW record{};
  record.mask = LVIF_TEXT;
  record.iSubItem = column;
  record.pszText = remote.TextAddress();
  record.cchTextMax = kTextLength;
  remote.Ask(LVM_GETITEMTEXTW, static_cast<WPARAM>(row), record);
  return remote.TextOf(record.pszText);
}

RECT RowRectangle(HWND window, int row) {
  const RemoteMemory memory(window, sizeof(RECT));
  RECT rectangle{};
  rectangle.left = LVIR_BOUNDS;
  memory.Write(0, &rectangle, sizeof rectangle);
  if (Ask(window, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(memory.At(0)))) {
    memory.Read(0, &rectangle, sizeof rectangle);
  }
  return OnScreen(window, rectangle);
}

}  // namespace

void ListTree(Words& words) {
  const HWND window = words.Window();
  words.End();
  if (ClassOf(window) != WC_TREEVIEWW) throw Failure("the window is no tree view");
  const RemoteRecord<TVITEMW> remote(window);
  PrintNodes(window, remote, NextNode(window, TVGN_ROOT, nullptr), 0);
}

void ListList(Words& words) {
  const HWND window = words.Window();
  words.End();
  if (ClassOf(window) != WC_LISTVIEWW) throw Failure("the window is no list view");
  const RemoteRecord<LVITEMW> remote(window);
  const int rows = static_cast<int>(Ask(window, LVM_GETITEMCOUNT, 0, 0));
  const int columns = ColumnCount(window);
  for (int row = 0; row < rows; ++row) {
    Line line;
    line.Add("state", static_cast<std::int64_t>(Ask(window, LVM_GETITEMSTATE, static_cast<WPARAM>(row), 0xFFFF)))
        .Add("rectangle", RowRectangle(window, row));
    for (int column = 0; column < columns; ++column) {
      line.Add(("text" + std::to_string(column)).c_str(), CellText(remote, row, column));
    }
  }
}

}  // namespace driver
