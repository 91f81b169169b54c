// What the machine's networks offer: connected drives, the shares of a server, addresses of hosts, and the user.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/window_handle.h"

namespace burrowmark {

// Which resources an enumeration is about, and what a resource is (winnetwk.h).
inline constexpr std::uint32_t kResourceConnected = 1;
inline constexpr std::uint32_t kResourceRemembered = 3;
inline constexpr std::uint32_t kDisplayGeneric = 0;
inline constexpr std::uint32_t kDisplayShare = 3;

// Results (winerror.h).
inline constexpr std::uint32_t kNetworkDone = 0;
inline constexpr std::uint32_t kNoNetwork = 1222;  // the machine has none

// Texts that the network doesn't tell are empty.
struct NetworkResource {
  std::wstring LocalName;   // of a drive: "X:"
  std::wstring RemoteName;  // mostly "\\server\share"
  std::wstring Comment;
  std::wstring Provider;
  std::uint32_t DisplayType = kDisplayGeneric;
};

enum class HostAnswer : std::uint8_t {
  kFound,
  kUnknown,
  kOtherFamily,  // it has addresses, but none of four numbers
};

struct WorkstationUser {
  std::wstring UserName;
  std::wstring LogonDomain;
  std::wstring OtherDomains;
  std::wstring LogonServer;
};

// The calls may take long, and may be made by any thread. Enumerations give the system's error number where they
// couldn't begin; what fails later ends the list.
class Network {
 public:
  virtual ~Network() = default;

  // The disk resources of one of the two kinds above.
  virtual std::uint32_t EnumResources(std::uint32_t scope, std::vector<NetworkResource>& resources) = 0;
  // The disks that a server ("\\server") offers to everybody who looks.
  virtual std::uint32_t EnumShares(const std::wstring& server, std::vector<NetworkResource>& shares) = 0;

  // The system's own dialogs over a window, to connect a drive and to disconnect one. They return when they are gone.
  virtual void WNetConnectionDialog(WindowHandle owner) = 0;
  virtual void WNetDisconnectDialog(WindowHandle owner) = 0;

  // Hosts are looked up between these two. False: that can't be done, and the second isn't called.
  virtual bool WSAStartup() = 0;
  virtual void WSACleanup() = 0;
  // The first address of a host, "127.0.0.1"; of this machine for an empty name.
  virtual HostAnswer GetHostByName(const std::wstring& host, std::wstring& address) = 0;

  // Who is logged on here; false, and nothing, where the system doesn't tell.
  virtual bool NetWkstaUserGetInfo(WorkstationUser& user) = 0;
};

}  // namespace burrowmark
