// What stands beside windows and files: the clipboard, work on other threads, networks.
#include <algorithm>
#include <atomic>

#include "tests/contract/system_under_test.h"

namespace burrowmark {
namespace {

class BesideContract : public ContractTest {};

TEST_F(BesideContract, ATextGoesToTheClipboardAndBack) {
  Clipboard& clipboard = platform_.clipboard;
  for (const wchar_t* text : {L"C:\\D\u043E\u043C \u00E9", L"", L"one\r\ntwo\t"}) {
    ASSERT_TRUE(clipboard.SetText(text));
    EXPECT_EQ(clipboard.GetText(), text);
  }
  {
    const std::shared_ptr<void> held = system_->HoldClipboard();
    EXPECT_FALSE(clipboard.SetText(L"lost"));
    EXPECT_EQ(clipboard.GetText(), std::nullopt);
  }
  EXPECT_EQ(clipboard.GetText(), L"one\r\ntwo\t");
}

TEST_F(BesideContract, WorkIsDoneBesideTheLoopWhichHearsOfItsEnd) {
  constexpr int kTries = 500;
  std::string told;
  std::atomic<bool> worked = false;
  platform_.workers.Run([&worked] { worked = true; }, [&] { told += worked ? "done" : "too early"; });
  platform_.workers.Run([] { throw 1; }, [] {});
  EXPECT_EQ(told, "") << "not before the loop runs";
  for (int i = 0; i < kTries && told.empty(); ++i) system_->LetPass(10);
  EXPECT_EQ(told, "done");
}

TEST_F(BesideContract, AHostHasAnAddressAndTheUserAName) {
  Network& network = platform_.network;
  ASSERT_TRUE(network.WSAStartup());
  std::wstring address;
  EXPECT_EQ(network.GetHostByName(L"localhost", address), HostAnswer::kFound);
  EXPECT_EQ(address, L"127.0.0.1");
  EXPECT_EQ(network.GetHostByName(L"", address), HostAnswer::kFound) << "the machine itself";
  EXPECT_EQ(std::count(address.begin(), address.end(), L'.'), 3);
  EXPECT_EQ(network.GetHostByName(L"no host has blanks", address), HostAnswer::kUnknown);
  EXPECT_EQ(address, L"");
  network.WSACleanup();
  WorkstationUser user;
  EXPECT_TRUE(network.NetWkstaUserGetInfo(user));
  EXPECT_NE(user.UserName, L"");
  EXPECT_NE(platform_.system.GetComputerNameA(), L"");
}

TEST_F(BesideContract, NobodyWaitsForWorkLongerThanHeSaid) {
  const auto worked = std::make_shared<std::atomic<int>>(0);
  const auto work = [worked] { ++*worked; };
  EXPECT_TRUE(platform_.workers.RunWithin(20000, work));
  EXPECT_EQ(*worked, 1);
  EXPECT_FALSE(platform_.workers.RunWithin(20, system_->Slowly(work)));
  EXPECT_EQ(*worked, 1);
  system_->LetPass(600);
  EXPECT_EQ(*worked, 2) << "it goes on";
  EXPECT_FALSE(platform_.workers.RunAllWithin(20, {work, system_->Slowly(work)}));
  EXPECT_TRUE(platform_.workers.RunAllWithin(20000, {work, work}));
}

}  // namespace
}  // namespace burrowmark
