// The network drives of the user: those that are connected, and those that the system remembers.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

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

// A path on one of these drives as a path on its server; any other as it is.
std::wstring GetRemoteName(const std::wstring& localPath, const std::vector<clsNetworkDrive>& drives);

}  // namespace burrowmark
