// The windows about networks, over the local machine's book of drives, hosts and a user.
#include <gtest/gtest.h>

#include "platform/key_codes.h"
#include "tests/support/scratch_machine.h"
#include "tests/tools/list_window.h"
#include "tools/frm_network_drives.h"
#include "tools/frm_personal_network_info.h"

namespace burrowmark::test {
namespace {

class NetworkWindows : public ListWindowTest, protected ScratchMachine {
 protected:
  NetworkWindows() {
    for (const wchar_t letter : {L'X', L'Y', L'Z'}) {
      machine.drives.Add(letter);
      machine.drives.SetFacts(letter, {kDriveTypeRemote, {}, {}});
    }
    network_.Connected = {{L"x:", L"\\\\live\\docs", L"Papers", L"LAN", kDisplayShare},
                          {L"Y:", L"\\\\LIVE\\media", L"", L"LAN", kDisplayShare},
                          {L"Z:", L"\\\\dead\\old", L"", L"LAN", kDisplayShare},
                          {L"", L"\\\\live\\print", L"", L"LAN", kDisplayShare}};
    network_.Remembered = {{L"X:", L"\\\\live\\docs", L"", L"", kDisplayShare}};
    network_.Hosts[L"LIVE"] = L"10.0.0.9";
    machine.faults.SilentPlaces = {L"Z:"};
  }
  template <typename Window>
  void Show(const wchar_t* caption, const std::function<void()>& script) {
    Window form(app);
    machine.user.NextWindow(caption, [&](ShownWindow& window) {
      window_ = &window;
      script();
      if (window.IsOpen()) window.Press(kKeyCodeEscape);
    });
    form.Show(Modal);
  }
  void ShowDrives(const std::function<void()>& script) { Show<frmNetworkDrives>(L"Network Drives", script); }

  std::wstring Copied() {
    machine.user.NextBox(L"The data has been copied to the Clipboard.", kAnswerOk);
    window_->Press(L'C', kCtrlMask);
    return *machine.clipboard.Text;
  }
  void LetRun() { machine.windows.DoEvents(); }
  std::size_t LookUps() {
    const auto& record = machine.faults.Record();
    return static_cast<std::size_t>(std::count_if(record.begin(), record.end(),
                                                  [](const auto& call) { return call.starts_with("GetHostByName"); }));
  }

  LocalNetwork& network_ = machine.network;
};

TEST_F(NetworkWindows, DrivesComeWithWhatIsKnownAndADeadServerHoldsUpNothing) {
  ShowDrives([this] {
    LetRun();
    EXPECT_EQ(Column(0) + Column(1), L"x:|Y:|Z:|Remembered|Connected|Connected|");
    EXPECT_EQ(Column(2) + Column(3), L"\\\\live\\docs|\\\\LIVE\\media|\\\\dead\\old|live|LIVE|dead|");
    EXPECT_EQ(Column(4) + Column(5), L"10.0.0.9|10.0.0.9||Papers|||");
    EXPECT_EQ(Panels(), L"4 network drive(s)|2 connected|1 disconnected|");
    EXPECT_EQ(Rows()[1].toolTip, L"(Connected) Y: 10.0.0.9 \\\\LIVE\\media");
    EXPECT_EQ(Rows()[2].smallIcon, 0);
    EXPECT_EQ(LookUps(), 1U) << "one for the two drives";
    EXPECT_EQ(network_.OpenSockets, 0);
  });
  machine.faults.Clear();
  machine.drives.TakeMediumOut(L'Z');
  network_.Connected.clear();
  network_.Remembered.push_back({L"Z:", L"old", L"", L"", kDisplayShare});
  ShowDrives([this] {
    LetRun();
    EXPECT_EQ(Column(1) + Column(3) + Column(4), L"Remembered|Remembered|live|old|10.0.0.9|IP unknown|");
    EXPECT_EQ(Rows()[1].smallIcon, 2);
    EXPECT_EQ(Panels(), L"2 network drive(s)|1 connected|1 disconnected|");
  });
}

TEST_F(NetworkWindows, WhatFailsIsToldOnceAFill) {
  const std::tuple<std::uint32_t, bool, const wchar_t*> cases[] = {
      {1203, true, L"Error: 1203"},
      {kNoNetwork, true, nullptr},
      {kNetworkDone, false, L"Could not initialize sockets."}};
  for (const auto& [result, sockets, box] : cases) {
    network_.Result = result;
    network_.HasSockets = sockets;
    if (box != nullptr) machine.user.NextBox(box, kAnswerOk);
    ShowDrives([this] {
      LetRun();
      EXPECT_EQ(Column(0), L"");
    });
  }
}

TEST_F(NetworkWindows, DrivesAreMappedDisconnectedCopiedAndOpened) {
  network_.Person = [this](bool connects) { network_.Connected.resize(connects ? 1 : 2); };
  ShowDrives([this] {
    LetRun();
    const std::wstring header = L"Drive\tMapping\tPath\tServer\tIP Address\tComment\tProvider\t\r\n";
    const std::wstring second = L"Y:\tConnected\t\\\\LIVE\\media\tLIVE\t10.0.0.9\t\tLAN\t\r\n";
    Click(L"Y:");
    EXPECT_EQ(Copied(), header + second);
    Click(L"x:", kLeftButton, kCtrlMask);
    EXPECT_EQ(Copied().find(L"x:\t"), header.size()) << "a press with Ctrl leaves what was selected";
    machine.user.NextPopup({L"Open"});
    Click(L"Y:", kRightButton);
    EXPECT_EQ(machine.shell.Launches.back().parameters, L"Y:\\");
    window_->Press(L'D', kCtrlMask);
    EXPECT_EQ(network_.DisconnectDialogs, 1);
    EXPECT_EQ(Column(0), L"x:|Y:|");
    window_->Press(L'M', kCtrlMask);
    EXPECT_EQ(network_.ConnectionDialogs, 1);
    EXPECT_EQ(Column(0), L"x:|");
    machine.clipboard.IsHeld = true;
    machine.user.NextBox(L"couldn't be copied", kAnswerOk);
    window_->ClickButton(Get(ShownKind::kToolbar).window, L"keyCopy");
    machine.workers.Takes = 500;
    window_->Press(kKeyCodeF5);
    EXPECT_EQ(Column(0), L"") << "and it closes with that under way";
  });
  machine.windows.Advance(2000);
}

TEST_F(NetworkWindows, TheUserIsShownWithAddressesThatComeLater) {
  network_.Hosts[L"SERVER"] = L"";
  const auto look = [this](const wchar_t* values) {
    Show<frmPersonalNetworkInfo>(L"Personal Network Info", [this, values] {
      LetRun();
      EXPECT_EQ(Column(1), values);
    });
  };
  look(L"Ann|BURROW|10.0.0.7|HOME|Get host by address failed|SERVER|Non IP Address returned||Windows 10|");
  network_.User.reset();
  look(L"|BURROW|10.0.0.7||10.0.0.7||10.0.0.7||Windows 10|");
  EXPECT_EQ(LookUps(), 4U) << "the three empty names are one host";
  machine.faults.SilentPlaces = {L"\\\\"};
  look(L"|BURROW|||||||Windows 10|");
  network_.HasSockets = false;
  look(L"");
}

}  // namespace
}  // namespace burrowmark::test
