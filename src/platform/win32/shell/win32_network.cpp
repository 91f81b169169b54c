#include "platform/win32/shell/win32_network.h"

// Ahead of windows.h, which would bring an older one.
#include <winsock2.h>
// It wants that one ahead of it.
#include <ws2tcpip.h>
// These want windows.h ahead of them.
#include <lm.h>
#include <objbase.h>
#include <winnetwk.h>

#include <cstddef>

#include "platform/win32/handles.h"
#include "platform/win32/system_library.h"

namespace burrowmark {
namespace {

static_assert(kResourceConnected == RESOURCE_CONNECTED && kResourceRemembered == RESOURCE_REMEMBERED);
static_assert(kDisplayGeneric == RESOURCEDISPLAYTYPE_GENERIC && kDisplayShare == RESOURCEDISPLAYTYPE_SHARE);
static_assert(kNetworkDone == NO_ERROR && kNoNetwork == ERROR_NO_NETWORK);

constexpr DWORD kUsualRecords = 16384;  // bytes
constexpr DWORD kAsManyAsFit = 0xFFFFFFFF;

// These libraries are loaded when they are first needed: a program at rest has no use for them.
struct Calls {
  SystemLibrary library{L"mpr.dll"};
  decltype(&::WNetOpenEnumW) open = library.Find<decltype(open)>("WNetOpenEnumW");
  decltype(&::WNetEnumResourceW) next = library.Find<decltype(next)>("WNetEnumResourceW");
  decltype(&::WNetCloseEnum) close = library.Find<decltype(close)>("WNetCloseEnum");
  decltype(&::WNetConnectionDialog) connect = library.Find<decltype(connect)>("WNetConnectionDialog");
  decltype(&::WNetDisconnectDialog) disconnect = library.Find<decltype(disconnect)>("WNetDisconnectDialog");

  bool AreThere() const { return open != nullptr && next != nullptr && close != nullptr; }
};

const Calls& TheCalls() {
  static const Calls calls;
  return calls;
}

struct SocketCalls {
  SystemLibrary library{L"ws2_32.dll"};
  decltype(&::WSAStartup) start = library.Find<decltype(start)>("WSAStartup");
  decltype(&::WSACleanup) cleanUp = library.Find<decltype(cleanUp)>("WSACleanup");
  decltype(&::GetAddrInfoW) find = library.Find<decltype(find)>("GetAddrInfoW");
  decltype(&::FreeAddrInfoW) release = library.Find<decltype(release)>("FreeAddrInfoW");

  bool AreThere() const { return start != nullptr && cleanUp != nullptr && find != nullptr && release != nullptr; }
};

const SocketCalls& TheSocketCalls() {
  static const SocketCalls calls;
  return calls;
}

struct UserCalls {
  SystemLibrary library{L"netapi32.dll"};
  decltype(&::NetWkstaUserGetInfo) get = library.Find<decltype(get)>("NetWkstaUserGetInfo");
  decltype(&::NetApiBufferFree) release = library.Find<decltype(release)>("NetApiBufferFree");

  bool AreThere() const { return get != nullptr && release != nullptr; }
};

const UserCalls& TheUserCalls() {
  static const UserCalls calls;
  return calls;
}

// The dialogs are objects of the shell, which want an apartment on the thread that shows them.
class Apartment {
 public:
  Apartment() : result_(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
  ~Apartment() {
    if (SUCCEEDED(result_)) ::CoUninitialize();
  }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;

 private:
  HRESULT result_;
};

void ShowDialog(DWORD(WINAPI* call)(HWND, DWORD), WindowHandle owner) {
  const Apartment apartment;
  if (call != nullptr) call(ToHwnd(owner), RESOURCETYPE_DISK);
}

std::wstring DottedAddress(const sockaddr& address) {
  const auto* bytes = reinterpret_cast<const unsigned char*>(&reinterpret_cast<const sockaddr_in&>(address).sin_addr);
  std::wstring text;
  for (int i = 0; i < 4; ++i) text += (i > 0 ? L"." : L"") + std::to_wstring(bytes[i]);
  return text;
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

void Win32Network::WNetConnectionDialog(WindowHandle owner) { ShowDialog(TheCalls().connect, owner); }

void Win32Network::WNetDisconnectDialog(WindowHandle owner) { ShowDialog(TheCalls().disconnect, owner); }

bool Win32Network::WSAStartup() {
  WSADATA data = {};
  return TheSocketCalls().AreThere() && TheSocketCalls().start(MAKEWORD(2, 2), &data) == 0;
}

void Win32Network::WSACleanup() { TheSocketCalls().cleanUp(); }

HostAnswer Win32Network::GetHostByName(const std::wstring& host, std::wstring& address) {
  address.clear();
  ADDRINFOW* found = nullptr;
  if (TheSocketCalls().find(host.c_str(), nullptr, nullptr, &found) != 0 || found == nullptr) {
    return HostAnswer::kUnknown;
  }
  for (const ADDRINFOW* one = found; one != nullptr && address.empty(); one = one->ai_next) {
    if (one->ai_family == AF_INET) address = DottedAddress(*one->ai_addr);
  }
  TheSocketCalls().release(found);
  return address.empty() ? HostAnswer::kOtherFamily : HostAnswer::kFound;
}

bool Win32Network::NetWkstaUserGetInfo(WorkstationUser& user) {
  user = {};
  if (!TheUserCalls().AreThere()) return false;
  LPBYTE buffer = nullptr;
  if (TheUserCalls().get(nullptr, 1, &buffer) != NERR_Success || buffer == nullptr) return false;
  const auto& info = *reinterpret_cast<const WKSTA_USER_INFO_1*>(buffer);
  user = {TextOf(info.wkui1_username), TextOf(info.wkui1_logon_domain), TextOf(info.wkui1_oth_domains),
          TextOf(info.wkui1_logon_server)};
  TheUserCalls().release(buffer);
  return true;
}

}  // namespace burrowmark
