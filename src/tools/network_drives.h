// The network drives of the user: those that are connected, and those that the system remembers.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/file_system.h"
#include "platform/network.h"

namespace burrowmark {

// Texts without blanks around them.
struct clsNetworkDrive {
  std::wstring LocalName;  // "X:"; empty for a connection without a drive
  std::wstring RemoteName;
  std::wstring Comment;
  std::wstring Provider;
};

// Fills the list with the drives that are connected, or that are remembered. May take long, and may run on any thread.
// The system's error number where that couldn't begin, and then the list is empty; no network at all is no error.
std::uint32_t EnumNetworkDrives(Network& network, std::vector<clsNetworkDrive>& drives, bool connected);

// The server part of a remote name; the whole text where it isn't one of a server.
std::wstring GetServerName(const std::wstring& remoteName);

// False for a drive that the machine hasn't got, or that doesn't answer. May take long, and may run on any thread, as
// all that follow.
bool DriveIsReady(FileSystem& files, const std::wstring& drive);

// Hosts can be looked up while this lives, if it is ready.
class Sockets {
 public:
  explicit Sockets(Network& network) : network_(network), ready_(network.WSAStartup()) {}
  ~Sockets() {
    if (ready_) network_.WSACleanup();
  }
  Sockets(const Sockets&) = delete;
  Sockets& operator=(const Sockets&) = delete;

  bool Ready() const { return ready_; }

 private:
  Network& network_;
  bool ready_;
};

// The address of a host, or what went wrong, in the words that are shown in its place. An empty name is this machine.
std::wstring GetIPFromHostName(Network& network, const std::wstring& hostName);

// A path on one of these drives as a path on its server; any other as it is.
std::wstring GetRemoteName(const std::wstring& localPath, const std::vector<clsNetworkDrive>& drives);

}  // namespace burrowmark
