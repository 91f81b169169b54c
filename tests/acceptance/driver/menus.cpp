// The entries of an open popup menu of another process. Only that process may look into its menus, so it is made to.
#include "remote.h"

namespace driver {
namespace {

constexpr UINT kGetMenuHandle = 0x01E1;  // MN_GETHMENU
constexpr std::size_t kTextLength = 256;

struct RemoteEntry {
  MENUITEMINFOW info;
  RECT rectangle;
  wchar_t text[kTextLength];
};

std::uint64_t Number(const void* address) { return reinterpret_cast<std::uint64_t>(address); }

}  // namespace

void ListMenu(Words& words) {
  const HWND window = words.Window();
  DWORD_PTR menu = 0;
  if (ClassOf(window) != L"#32768" || !SendMessageTimeoutW(window, kGetMenuHandle, 0, 0, SMTO_NORMAL, 5000, &menu) ||
      menu == 0) {
    throw Failure("the window is no open menu");
  }
  const std::uint64_t count = CallThere(window, {{User32Function("GetMenuItemCount"), {menu}}}).at(0) & 0xFFFF;
  if (count == 0) return;
  std::vector<RemoteEntry> entries(count);
  const RemoteMemory memory(window, count * sizeof(RemoteEntry));
  std::vector<RemoteCall> calls;
  for (std::uint64_t i = 0; i < count; ++i) {
    const std::size_t at = i * sizeof(RemoteEntry);
    MENUITEMINFOW& info = entries[i].info;
    info.cbSize = sizeof info;
    info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_STRING | MIIM_SUBMENU;
    info.dwTypeData = reinterpret_cast<wchar_t*>(memory.At(at + offsetof(RemoteEntry, text)));
    info.cch = kTextLength;
    calls.push_back({User32Function("GetMenuItemInfoW"), {menu, i, TRUE, Number(memory.At(at))}});
    const std::byte* rectangle = memory.At(at + offsetof(RemoteEntry, rectangle));
    calls.push_back({User32Function("GetMenuItemRect"), {0, menu, i, Number(rectangle)}});
  }
  memory.Write(0, entries.data(), count * sizeof(RemoteEntry));
  for (const std::uint64_t done : CallThere(window, calls)) {
    if ((done & 0xFFFFFFFF) == 0) throw Failure("an entry doesn't answer");
  }
  memory.Read(0, entries.data(), count * sizeof(RemoteEntry));
  for (const RemoteEntry& entry : entries) {
    Line()
        .Add("text", entry.text)
        .Add("rectangle", entry.rectangle)
        .Add("separator", (entry.info.fType & MFT_SEPARATOR) != 0)
        .Add("selected", (entry.info.fState & MFS_HILITE) != 0)
        .Add("group", entry.info.hSubMenu != nullptr);
  }
}

}  // namespace driver
