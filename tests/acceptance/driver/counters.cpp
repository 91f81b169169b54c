// What a window's process holds of the system. Wine answers 0 to GetProcessHandleCount and GetGuiResources, so the
// things themselves are counted.
#include <windows.h>

#include <winternl.h>

#include <algorithm>

#include "remote.h"

namespace driver {
namespace {

// The table of GDI objects, which every process shows at this place of its environment block.
constexpr std::size_t kTableInBlock = 0xF8;
constexpr std::size_t kTableLength = 0x4000;
struct GdiEntry {
  std::uint64_t object;
  std::uint16_t owner[2];
  std::uint16_t generation;
  std::uint8_t type;
  std::uint8_t flags;
  std::uint64_t data;
};

std::int64_t GdiObjects(HANDLE process) {
  PROCESS_BASIC_INFORMATION facts{};
  const std::byte* table = nullptr;
  std::vector<GdiEntry> entries(kTableLength);
  if (NtQueryInformationProcess(process, ProcessBasicInformation, &facts, sizeof facts, nullptr) != 0 ||
      !ReadProcessMemory(process, reinterpret_cast<const std::byte*>(facts.PebBaseAddress) + kTableInBlock, &table,
                         sizeof table, nullptr) ||
      !ReadProcessMemory(process, table, entries.data(), entries.size() * sizeof(GdiEntry), nullptr)) {
    throw Failure("the GDI objects can't be counted");
  }
  std::int64_t count = 0;
  for (const GdiEntry& entry : entries) count += entry.type != 0 ? 1 : 0;
  return count;
}

struct HandleEntry {
  ULONG process;
  std::uint8_t type;
  std::uint8_t flags;
  std::uint16_t handle;
  void* object;
  ULONG access;
};
struct HandleTable {
  ULONG count;
  HandleEntry entries[1];
};

std::int64_t Handles(DWORD process) {
  constexpr auto kHandleInformation = static_cast<SYSTEM_INFORMATION_CLASS>(16);
  std::vector<std::uint64_t> memory(1 << 20);
  const auto size = static_cast<ULONG>(memory.size() * sizeof memory[0]);
  if (NtQuerySystemInformation(kHandleInformation, memory.data(), size, nullptr) != 0) {
    throw Failure("the handles can't be counted");
  }
  const auto* table = reinterpret_cast<const HandleTable*>(memory.data());
  return std::count_if(table->entries, table->entries + table->count,
                       [process](const HandleEntry& entry) { return entry.process == process; });
}

struct WindowCount {
  DWORD process;
  std::int64_t count;
};

BOOL CALLBACK CountWindow(HWND window, LPARAM parameter) {
  auto& windows = *reinterpret_cast<WindowCount*>(parameter);
  if (ProcessOf(window) == windows.process) ++windows.count;
  return TRUE;
}

BOOL CALLBACK CountWithChildren(HWND window, LPARAM parameter) {
  CountWindow(window, parameter);
  return EnumChildWindows(window, CountWindow, parameter), TRUE;
}

std::int64_t Windows(DWORD process) {
  WindowCount windows{process, 0};
  EnumWindows(CountWithChildren, reinterpret_cast<LPARAM>(&windows));
  EnumChildWindows(FindWindowExW(HWND_MESSAGE, nullptr, nullptr, nullptr), CountWindow,
                   reinterpret_cast<LPARAM>(&windows));
  return windows.count;
}

// A menu is known in its own process alone: every handle that there can be is tried there.
std::int64_t Menus(HWND window) {
  constexpr std::uint64_t kFirst = 0x20;
  constexpr std::uint64_t kEnd = 0x10000;
  const std::uint64_t isMenu = User32Function("IsMenu");
  std::vector<RemoteCall> calls;
  for (std::uint64_t handle = kFirst; handle < kEnd; handle += 2) calls.push_back({isMenu, {handle}});
  std::int64_t count = 0;
  for (const std::uint64_t result : CallThere(window, calls)) count += (result & 0xFFFFFFFF) != 0 ? 1 : 0;
  return count;
}

}  // namespace

void ShowCounters(Words& words) {
  const HWND window = words.Window();
  const DWORD id = ProcessOf(window);
  const Owned process(OpenProcess(PROCESS_ALL_ACCESS, FALSE, id));
  Line()
      .Add("handles", Handles(id))
      .Add("gdi", GdiObjects(process.Get()))
      .Add("windows", Windows(id))
      .Add("menus", Menus(window));
}

}  // namespace driver
