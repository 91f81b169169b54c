// Which of the network's resources are drives, and what their paths are there.
#include "tools/network_drives.h"

#include <gtest/gtest.h>

#include "tests/support/scratch_machine.h"

namespace burrowmark {
namespace {

TEST(NetworkDrives, AreSharesAndWhatHasALetter) {
  test::ScratchMachine scratch;
  LocalNetwork& network = scratch.machine.network;
  network.Connected = {{L"X: ", L" \\\\s\\x", L"", L"", kDisplayShare},
                       {L"Y:", L"\\\\s\\y", L"", L"", kDisplayGeneric},
                       {L"", L"\\\\s", L"", L"", kDisplayGeneric}};
  std::vector<clsNetworkDrive> drives;
  EXPECT_EQ(EnumNetworkDrives(network, drives, false), kNetworkDone);
  EXPECT_TRUE(drives.empty());
  EXPECT_EQ(EnumNetworkDrives(network, drives, true), kNetworkDone);
  EXPECT_EQ(drives.size(), 2U);
  EXPECT_EQ(GetRemoteName(L"x:\\a\\b", drives), L"\\\\s\\x\\a\\b");
  EXPECT_EQ(GetRemoteName(L"C:\\a", drives), L"C:\\a");
  for (const auto& [code, told] : {std::pair(kNoNetwork, kNetworkDone), std::pair(1203U, 1203U)}) {
    network.Result = code;
    EXPECT_EQ(EnumNetworkDrives(network, drives, true), told);
  }
}

}  // namespace
}  // namespace burrowmark
