#include "remote.h"

namespace driver {
namespace {

// Walks the calls behind a count: rcx points to both.
constexpr unsigned char kWalkCalls[] = {
    0x53, 0x56,              // push rbx; push rsi
    0x48, 0x83, 0xEC, 0x28,  // sub rsp, 28h
    0x48, 0x8D, 0x59, 0x08,  // lea rbx, [rcx+8]
    0x48, 0x8B, 0x31,        // mov rsi, [rcx]
    0x48, 0x8B, 0x4B, 0x08,  // next: mov rcx, [rbx+8]
    0x48, 0x8B, 0x53, 0x10,  // mov rdx, [rbx+10h]
    0x4C, 0x8B, 0x43, 0x18,  // mov r8, [rbx+18h]
    0x4C, 0x8B, 0x4B, 0x20,  // mov r9, [rbx+20h]
    0xFF, 0x13,              // call [rbx]
    0x48, 0x89, 0x03,        // mov [rbx], rax
    0x48, 0x83, 0xC3, 0x28,  // add rbx, 28h
    0x48, 0xFF, 0xCE,        // dec rsi
    0x75, 0xE2,              // jnz next
    0x48, 0x83, 0xC4, 0x28,  // add rsp, 28h
    0x5E, 0x5B, 0xC3,        // pop rsi; pop rbx; ret
};
constexpr std::size_t kCountAt = 64;
static_assert(sizeof kWalkCalls <= kCountAt && sizeof(RemoteCall) == 0x28);

}  // namespace

DWORD ProcessOf(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return process;
}

RemoteMemory::RemoteMemory(HWND window, std::size_t size, DWORD protection)
    : process_(OpenProcess(PROCESS_ALL_ACCESS, FALSE, ProcessOf(window))) {
  if (process_.Get() != nullptr) memory_ = VirtualAllocEx(process_.Get(), nullptr, size, MEM_COMMIT, protection);
  if (memory_ == nullptr) throw Failure("the window's process gives no memory");
}

void RemoteMemory::Write(std::size_t offset, const void* data, std::size_t size) const {
  if (!WriteProcessMemory(Process(), At(offset), data, size, nullptr)) throw Failure("the memory can't be written");
}

void RemoteMemory::Read(std::size_t offset, void* data, std::size_t size) const {
  if (!ReadProcessMemory(Process(), At(offset), data, size, nullptr)) throw Failure("the memory can't be read");
}

std::uint64_t User32Function(const char* name) {
  // The system's libraries lie at the same addresses in every process.
  return reinterpret_cast<std::uint64_t>(GetProcAddress(GetModuleHandleW(L"user32.dll"), name));
}

std::vector<std::uint64_t> CallThere(HWND window, const std::vector<RemoteCall>& calls) {
  const std::uint64_t count = calls.size();
  if (count == 0) return {};
  const std::size_t callsAt = kCountAt + sizeof count;
  const std::size_t callsSize = calls.size() * sizeof(RemoteCall);
  const RemoteMemory memory(window, callsAt + callsSize, PAGE_EXECUTE_READWRITE);
  memory.Write(0, kWalkCalls, sizeof kWalkCalls);
  memory.Write(kCountAt, &count, sizeof count);
  memory.Write(callsAt, calls.data(), callsSize);
  const auto start = reinterpret_cast<LPTHREAD_START_ROUTINE>(memory.At(0));
  const Owned thread(CreateRemoteThread(memory.Process(), nullptr, 0, start, memory.At(kCountAt), 0, nullptr));
  // Without an end the memory is still in use, and freeing it would crash the program: better to end the driver.
  if (WaitForSingleObject(thread.Get(), 10'000) != WAIT_OBJECT_0) ExitProcess(3);
  std::vector<RemoteCall> done(calls.size());
  memory.Read(callsAt, done.data(), callsSize);
  std::vector<std::uint64_t> results;
  results.reserve(done.size());
  for (const RemoteCall& call : done) results.push_back(call.functionOrResult);
  return results;
}

}  // namespace driver
