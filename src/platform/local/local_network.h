// The networks of the local machine: what a test puts there, and the shares that are on its disk.
#pragma once

#include <functional>
#include <map>
#include <optional>

#include "platform/local/disk/drive_folders.h"
#include "platform/local/faults.h"
#include "platform/local/folded.h"
#include "platform/network.h"

namespace burrowmark {

class LocalNetwork final : public Network {
 public:
  // Both must outlive this object.
  LocalNetwork(const DriveFolders& drives, Faults& faults) : drives_(drives), faults_(faults) {}

  std::vector<NetworkResource> Connected;
  std::vector<NetworkResource> Remembered;
  std::uint32_t Result = kNetworkDone;  // of every enumeration
  // Addresses by name in capitals, that of the machine itself by an empty one; an empty address is none of four
  // numbers.
  std::map<std::wstring, std::wstring> Hosts{{L"", L"10.0.0.7"}, {L"LOCALHOST", L"127.0.0.1"}};
  bool HasSockets = true;
  std::int32_t OpenSockets = 0;  // started and not yet cleaned up
  std::optional<WorkstationUser> User = WorkstationUser{L"Ann", L"HOME", L"", L"SERVER"};
  // What a person does in the dialogs, and how often each came up.
  std::function<void(bool connects)> Person;
  std::int32_t ConnectionDialogs = 0;
  std::int32_t DisconnectDialogs = 0;

  std::uint32_t EnumResources(std::uint32_t scope, std::vector<NetworkResource>& resources) override {
    resources.clear();
    if (faults_.Strikes("EnumResources", std::to_wstring(scope))) return kErrorUnexpected;
    if (Result == kNetworkDone) resources = scope == kResourceConnected ? Connected : Remembered;
    return Result;
  }
  std::uint32_t EnumShares(const std::wstring& server, std::vector<NetworkResource>& shares) override {
    shares.clear();
    if (faults_.Strikes("EnumShares", server)) return kErrorUnexpected;
    if (Result != kNetworkDone) return Result;
    for (const std::wstring& share : drives_.SharesOf(server)) {
      shares.push_back({{}, server + L"\\" + share, {}, {}, kDisplayShare});
    }
    return shares.empty() ? kErrorUnexpected : kNetworkDone;
  }

  void WNetConnectionDialog(WindowHandle) override {
    ++ConnectionDialogs;
    if (Person) Person(true);
  }
  void WNetDisconnectDialog(WindowHandle) override {
    ++DisconnectDialogs;
    if (Person) Person(false);
  }
  bool WSAStartup() override {
    if (HasSockets) ++OpenSockets;
    return HasSockets;
  }
  void WSACleanup() override { --OpenSockets; }
  // A server that is away never answers to its name.
  HostAnswer GetHostByName(const std::wstring& host, std::wstring& address) override {
    address.clear();
    const auto found = Hosts.find(Folded(host));
    if (faults_.Strikes("GetHostByName", L"\\\\" + host) || OpenSockets == 0 || found == Hosts.end()) {
      return HostAnswer::kUnknown;
    }
    address = found->second;
    return address.empty() ? HostAnswer::kOtherFamily : HostAnswer::kFound;
  }
  bool NetWkstaUserGetInfo(WorkstationUser& user) override {
    user = User.value_or(WorkstationUser());
    return User.has_value();
  }

 private:
  static constexpr std::uint32_t kErrorUnexpected = 59;

  const DriveFolders& drives_;
  Faults& faults_;
};

}  // namespace burrowmark
