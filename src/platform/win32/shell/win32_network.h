// The networks of the real system.
#pragma once

#include "platform/network.h"

namespace burrowmark {

// Holds nothing, so that any thread may use it at any time.
class Win32Network final : public Network {
 public:
  std::uint32_t EnumResources(std::uint32_t scope, std::vector<NetworkResource>& resources) override;
  std::uint32_t EnumShares(const std::wstring& server, std::vector<NetworkResource>& shares) override;
  void WNetConnectionDialog(WindowHandle owner) override;
  void WNetDisconnectDialog(WindowHandle owner) override;
  bool WSAStartup() override;
  void WSACleanup() override;
  HostAnswer GetHostByName(const std::wstring& host, std::wstring& address) override;
  bool NetWkstaUserGetInfo(WorkstationUser& user) override;
};

}  // namespace burrowmark
