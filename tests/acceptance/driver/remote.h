// Memory and calls in the process that owns a window.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "driver.h"

namespace driver {

// A handle that closes itself.
class Owned {
 public:
  explicit Owned(HANDLE handle) : handle_(handle) {}
  Owned(const Owned&) = delete;
  Owned& operator=(const Owned&) = delete;
  ~Owned() { CloseHandle(handle_); }
  HANDLE Get() const { return handle_; }

 private:
  HANDLE handle_;
};

DWORD ProcessOf(HWND window);

// A block of memory there.
class RemoteMemory {
 public:
  RemoteMemory(HWND window, std::size_t size, DWORD protection = PAGE_READWRITE);
  RemoteMemory(const RemoteMemory&) = delete;
  RemoteMemory& operator=(const RemoteMemory&) = delete;
  ~RemoteMemory() { VirtualFreeEx(process_.Get(), memory_, 0, MEM_RELEASE); }
  std::byte* At(std::size_t offset) const { return static_cast<std::byte*>(memory_) + offset; }
  void Write(std::size_t offset, const void* data, std::size_t size) const;
  void Read(std::size_t offset, void* data, std::size_t size) const;
  HANDLE Process() const { return process_.Get(); }

 private:
  Owned process_;
  void* memory_ = nullptr;
};

// One call of a function of user32; the result takes the function's place.
struct RemoteCall {
  std::uint64_t functionOrResult;
  std::array<std::uint64_t, 4> arguments;
};

std::uint64_t User32Function(const char* name);

// Makes the calls there, in a thread of their own, and gives their results.
std::vector<std::uint64_t> CallThere(HWND window, const std::vector<RemoteCall>& calls);

}  // namespace driver
