// Which of the network's resources are drives, and what their paths are there.
#include "tools/network_drives.h"

#include <gtest/gtest.h>

#include "tests/support/scratch_machine.h"

namespace burrowmark {
namespace {

TEST(NetworkDrives, AreSharesAndWhatHasALetter) {
  test::ScratchMachine scratch;
  LocalNetwork& network = scratch.machine.network;
  network.Connected = {{L"X: ", L" \\\\s\\x", L" c", L"p ", kDisplayShare},
                       {L"", L"\\\\s\\bare", L"", L"", kDisplayShare},
                       {L"Y:", L"\\\\s\\y", L"", L"", kDisplayGeneric},
                       {L"", L"\\\\s", L"", L"", kDisplayGeneric}};
  network.Remembered = {{L"Z:", L"\\\\s\\z", L"", L"", kDisplayShare}};
  std::vector<clsNetworkDrive> drives;
  EXPECT_EQ(EnumNetworkDrives(network, drives, false), kNetworkDone);
  EXPECT_EQ(drives.at(0).LocalName, L"Z:");
  ASSERT_EQ(EnumNetworkDrives(network, drives, true), kNetworkDone);
  ASSERT_EQ(drives.size(), 3U);
  EXPECT_EQ(drives[0].LocalName + drives[0].RemoteName + drives[0].Comment + drives[0].Provider, L"X:\\\\s\\xcp");
  const std::pair<const wchar_t*, const wchar_t*> paths[] = {
      {L"x:\\a\\b", L"\\\\s\\x\\a\\b"}, {L"Y:", L"\\\\s\\y"}, {L"C:\\a", L"C:\\a"}, {L"", L""}};
  for (const auto& [local, remote] : paths) EXPECT_EQ(GetRemoteName(local, drives), remote);
  for (const auto& [code, told] : {std::pair(kNoNetwork, kNetworkDone), std::pair(1203U, 1203U)}) {
    network.Result = code;
    EXPECT_EQ(EnumNetworkDrives(network, drives, true), told);
    EXPECT_TRUE(drives.empty());
  }
}

}  // namespace
}  // namespace burrowmark
