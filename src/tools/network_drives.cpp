#include "tools/network_drives.h"

#include <algorithm>

#include "core/text.h"
#include "platform/characters.h"

namespace burrowmark {
namespace {

constexpr std::size_t kDriveLength = 2;

// Some networks don't say what it is, but a drive can be nothing else.
bool IsDrive(const NetworkResource& resource) {
  return resource.DisplayType == kDisplayShare ||
         (resource.DisplayType == kDisplayGeneric && !resource.LocalName.empty());
}

}  // namespace

std::uint32_t EnumNetworkDrives(Network& network, std::vector<clsNetworkDrive>& drives, bool connected) {
  drives.clear();
  std::vector<NetworkResource> resources;
  const std::uint32_t result = network.EnumResources(connected ? kResourceConnected : kResourceRemembered, resources);
  for (const NetworkResource& resource : resources) {
    if (!IsDrive(resource)) continue;
    drives.push_back(
        {Trim(resource.LocalName), Trim(resource.RemoteName), Trim(resource.Comment), Trim(resource.Provider)});
  }
  return result == kNoNetwork ? kNetworkDone : result;
}

std::wstring GetServerName(const std::wstring& remoteName) {
  constexpr std::wstring_view kServer = L"\\\\";
  if (!remoteName.starts_with(kServer)) return remoteName;
  return remoteName.substr(kServer.size(), remoteName.find(L'\\', kServer.size()) - kServer.size());
}

bool DriveIsReady(FileSystem& files, const std::wstring& drive) {
  std::wstring label;
  return files.DriveExists(drive) && files.GetVolumeInformationA(drive, label);
}

std::wstring GetIPFromHostName(Network& network, const std::wstring& hostName) {
  std::wstring address;
  switch (network.GetHostByName(hostName, address)) {
    case HostAnswer::kFound:
      return address;
    case HostAnswer::kOtherFamily:
      return L"Non IP Address returned";
    case HostAnswer::kUnknown:
      break;
  }
  return L"Get host by address failed";
}

std::wstring GetRemoteName(const std::wstring& localPath, const std::vector<clsNetworkDrive>& drives) {
  const std::wstring drive = localPath.substr(0, kDriveLength);
  const auto found = std::find_if(drives.begin(), drives.end(), [&drive](const clsNetworkDrive& candidate) {
    return EqualIgnoringCase(candidate.LocalName, drive);
  });
  return found == drives.end() || drive.empty() ? localPath : found->RemoteName + localPath.substr(drive.size());
}

}  // namespace burrowmark
