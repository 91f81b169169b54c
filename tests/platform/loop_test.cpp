// The loop of the local machine, its time, its processes and the gestures of the person at it.
#include <vector>

#include "platform/characters.h"
#include "tests/platform/local_test.h"

namespace burrowmark {
namespace {

class LoopTest : public LocalTest {
 protected:
  LoopTest() {
    events_.TrayMouse = [this](std::uint32_t message) { Note("tray " + std::to_string(message)); };
    events_.TaskbarCreated = [this] { Note("task bar"); };
    events_.SessionEnding = [this] { Note("session"); };
    events_.Unload = [this] { Note("unload"); };
  }

  void Note(const std::string& what) { heard_.push_back(what); }
  std::function<void()> Noting(const std::string& what) {
    return [this, what] { Note(what); };
  }
  void AddTrayIcon() {
    const TrayIcon icon{window_, 1, kTrayHasMessage | kTrayHasIcon | kTrayHasTip, kMessageMouseMove, 77, L"Tip"};
    ASSERT_TRUE(machine_.shell.Shell_NotifyIconA(kTrayAdd, icon));
  }

  using Texts = std::vector<std::string>;

  Texts heard_;
  MainWindowEvents events_;
  LocalWindows& windows_ = machine_.windows;
  WindowHandle window_ = windows_.CreateMainWindow(L"Test", events_);
};

TEST_F(LoopTest, WorkFallsDueInTheOrderOfItsTime) {
  windows_.PostLater(300, Noting("late"));
  windows_.PostLater(100, [this] {
    Note("early");
    windows_.PostLater(100, Noting("between"));
  });
  windows_.Advance(99);
  EXPECT_EQ(heard_, Texts());
  windows_.Advance(201);
  EXPECT_EQ(heard_, Texts({"early", "between", "late"}));
}

TEST_F(LoopTest, ALoopThatCouldNeverEndFails) {
  EXPECT_THROW(windows_.RunLoop(), std::logic_error);
  const std::function<void()> again = [&] { windows_.PostLater(1000, again); };
  windows_.Post(again);
  EXPECT_THROW(windows_.RunLoop(), std::logic_error) << "it only waits and waits";
}

TEST_F(LoopTest, GesturesReachTheMainWindowOnceTheProgramIsAtRest) {
  EXPECT_THROW(machine_.user.ClickTray(LocalUser::Button::kLeft), std::logic_error) << "there is nothing to click on";
  AddTrayIcon();
  windows_.Post([this] {
    machine_.user.MoveOverTray();
    Note("still busy");
  });
  windows_.DoEvents();
  machine_.user.ClickTray(LocalUser::Button::kRight);
  machine_.user.EndSession();
  machine_.user.LoseTaskBar();
  EXPECT_EQ(machine_.shell.Tray(), nullptr);
  machine_.user.StartTaskBar();
  EXPECT_EQ(heard_, Texts({"still busy", "tray 512", "tray 512", "tray 516", "tray 517", "session", "task bar"}));
}

TEST_F(LoopTest, SomebodyAtTheMachineKeepsTheLoopGoing) {
  int turn = 0;
  windows_.PostLater(50, Noting("later"));
  windows_.Input = [this, &turn] {
    if (++turn == 1) windows_.Advance(50);
    if (turn == 2) windows_.DestroyMainWindow(window_);
    return true;
  };
  windows_.RunLoop();
  EXPECT_EQ(heard_, Texts({"later", "unload"}));
}

TEST_F(LoopTest, AnotherProcessHasItsOwnQueueAndTheSameMachine) {
  windows_.SetWindowHook(window_, [this](WindowMessage& message) {
    Note(std::to_string(message.number) + " " + ToUtf8(message.text) + " " + std::to_string(message.lParam));
    return MessageResult{true, 42};
  });
  std::unique_ptr<LocalMachine> other = machine_.AnotherProcess();
  EXPECT_EQ(other->windows.SendText(window_, 7, L"/ADD C:\\"), 42);
  EXPECT_TRUE(other->windows.PostMessageA(window_, 1001, 0, 4));
  other->windows.DoEvents();
  EXPECT_EQ(heard_, Texts({"74 /ADD C:\\ 7"})) << "a posted message waits in the queue of the process that it is for";
  windows_.DoEvents();
  EXPECT_EQ(heard_.back(), "1001  4");
  EXPECT_EQ(other->windows.RegisterWindowMessageA(L"One"), windows_.RegisterWindowMessageA(L"One"));
  EXPECT_TRUE(other->windows.ClaimInstance(L"Name"));
  EXPECT_FALSE(windows_.ClaimInstance(L"Name"));
  MainWindowEvents events;
  const WindowHandle theirs = other->windows.CreateMainWindow(L"Other", events);
  machine_.AddFile(L"C:\\x", "content");
  EXPECT_EQ(other->BytesOf(L"C:\\x"), "content");
  other.reset();
  EXPECT_EQ(windows_.SendText(theirs, 7, L"text"), 0);
  EXPECT_TRUE(windows_.ClaimInstance(L"Name")) << "a name is claimed as long as its process runs";
}

TEST_F(LoopTest, EveryKeyGoesToTheHookAndOnToTheForeground) {
  std::vector<std::pair<std::int64_t, std::uint32_t>> seen;
  const auto note = [&seen](std::int64_t message, const KeyRecord& key) { seen.emplace_back(message, key.vkCode); };
  EXPECT_NE(machine_.keyboard.SetWindowsHookExA(kHookKeyboardLowLevel, note), 0);
  machine_.keyboard.Press(53, {kKeyControl});
  const std::vector<std::pair<std::int64_t, std::uint32_t>> expected = {
      {kMessageKeyDown, 162}, {kMessageKeyDown, 53}, {kMessageKeyUp, 53}, {kMessageKeyUp, 162}};
  EXPECT_EQ(seen, expected) << "the hook hears which of two keys it was";
  ASSERT_EQ(machine_.keyboard.Received.size(), 4U);
  EXPECT_EQ(machine_.keyboard.Received[0].vkCode, 17U);
  machine_.keyboard.Down(kKeyShift);
  EXPECT_LT(machine_.keyboard.GetKeyState(kKeyShift), 0);
}

}  // namespace
}  // namespace burrowmark
