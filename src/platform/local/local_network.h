// The networks of the local machine: what a test puts there, and the shares that are on its disk.
#pragma once

#include "platform/local/disk/drive_folders.h"
#include "platform/local/faults.h"
#include "platform/network.h"

namespace burrowmark {

class LocalNetwork final : public Network {
 public:
  // Both must outlive this object.
  LocalNetwork(const DriveFolders& drives, Faults& faults) : drives_(drives), faults_(faults) {}

  std::vector<NetworkResource> Connected;
  std::vector<NetworkResource> Remembered;
  std::uint32_t Result = kNetworkDone;  // of every enumeration

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

 private:
  static constexpr std::uint32_t kErrorUnexpected = 59;

  const DriveFolders& drives_;
  Faults& faults_;
};

}  // namespace burrowmark
