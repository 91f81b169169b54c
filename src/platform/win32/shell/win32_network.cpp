#include "platform/win32/shell/win32_network.h"

#include <windows.h>
// It wants windows.h ahead of it.
#include <winnetwk.h>

#include <cstddef>

#include "platform/win32/system_library.h"

namespace burrowmark {
namespace {

static_assert(kResourceConnected == RESOURCE_CONNECTED && kResourceRemembered == RESOURCE_REMEMBERED);
static_assert(kDisplayGeneric == RESOURCEDISPLAYTYPE_GENERIC && kDisplayShare == RESOURCEDISPLAYTYPE_SHARE);
static_assert(kNetworkDone == NO_ERROR && kNoNetwork == ERROR_NO_NETWORK);

constexpr DWORD kUsualRecords = 16384;  // bytes
constexpr DWORD kAsManyAsFit = 0xFFFFFFFF;

// Loaded with the first enumeration: a program at rest has no use for it.
struct Calls {
  SystemLibrary library{L"mpr.dll"};
  decltype(&::WNetOpenEnumW) open = library.Find<decltype(open)>("WNetOpenEnumW");
  decltype(&::WNetEnumResourceW) next = library.Find<decltype(next)>("WNetEnumResourceW");
  decltype(&::WNetCloseEnum) close = library.Find<decltype(close)>("WNetCloseEnum");

  bool AreThere() const { return open != nullptr && next != nullptr && close != nullptr; }
};

const Calls& TheCalls() {
  static const Calls calls;
  return calls;
}

class Enumeration {
 public:
  Enumeration(DWORD scope, NETRESOURCEW* container)
      : result_(TheCalls().open(scope, RESOURCETYPE_DISK, 0, container, &handle_)) {}
  ~Enumeration() {
    if (result_ == NO_ERROR) TheCalls().close(handle_);
  }
  Enumeration(const Enumeration&) = delete;
  Enumeration& operator=(const Enumeration&) = delete;

  DWORD Result() const { return result_; }
  // The next records, at the beginning of the buffer; none at the end. A record that doesn't fit gets a larger buffer.
  DWORD Next(std::vector<std::byte>& buffer) {
    for (;;) {
      DWORD count = kAsManyAsFit;
      auto room = static_cast<DWORD>(buffer.size());
      const DWORD result = TheCalls().next(handle_, &count, buffer.data(), &room);
      if (result == NO_ERROR) return count;
      if (result != ERROR_MORE_DATA || room <= buffer.size()) return 0;
      buffer.resize(room);
    }
  }

 private:
  HANDLE handle_ = nullptr;
  DWORD result_;
};

std::wstring TextOf(const wchar_t* text) { return text == nullptr ? L"" : text; }

std::uint32_t Collect(DWORD scope, NETRESOURCEW* container, std::vector<NetworkResource>& resources) {
  resources.clear();
  if (!TheCalls().AreThere()) return kNoNetwork;
  Enumeration enumeration(scope, container);
  std::vector<std::byte> buffer(kUsualRecords);
  while (enumeration.Result() == NO_ERROR) {
    const DWORD count = enumeration.Next(buffer);
    if (count == 0) break;
    const auto* record = reinterpret_cast<const NETRESOURCEW*>(buffer.data());
    for (DWORD i = 0; i < count; ++i, ++record) {
      resources.push_back({TextOf(record->lpLocalName), TextOf(record->lpRemoteName), TextOf(record->lpComment),
                           TextOf(record->lpProvider), record->dwDisplayType});
    }
  }
  return enumeration.Result();
}

}  // namespace

std::uint32_t Win32Network::EnumResources(std::uint32_t scope, std::vector<NetworkResource>& resources) {
  return Collect(scope, nullptr, resources);
}

std::uint32_t Win32Network::EnumShares(const std::wstring& server, std::vector<NetworkResource>& shares) {
  std::wstring name = server;
  NETRESOURCEW container = {};
  container.dwScope = RESOURCE_GLOBALNET;
  container.dwType = RESOURCETYPE_DISK;
  container.dwDisplayType = RESOURCEDISPLAYTYPE_SERVER;
  container.dwUsage = RESOURCEUSAGE_CONTAINER;
  container.lpRemoteName = name.data();
  return Collect(RESOURCE_GLOBALNET, &container, shares);
}

}  // namespace burrowmark
