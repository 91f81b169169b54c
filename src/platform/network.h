// What the machine's networks offer: connected drives, and the shares of a server.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

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

// The calls may take long, and may be made by any thread. They give the system's error number where they couldn't
// begin; what fails later ends the list.
class Network {
 public:
  virtual ~Network() = default;

  // The disk resources of one of the two kinds above.
  virtual std::uint32_t EnumResources(std::uint32_t scope, std::vector<NetworkResource>& resources) = 0;
  // The disks that a server ("\\server") offers to everybody who looks.
  virtual std::uint32_t EnumShares(const std::wstring& server, std::vector<NetworkResource>& shares) = 0;
};

}  // namespace burrowmark
