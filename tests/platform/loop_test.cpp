// The loop of the local machine, its time, its processes and the gestures of the person at it.
#include <vector>

#include "tests/platform/local_test.h"

namespace burrowmark {
namespace {

class LoopTest : public LocalTest {
 protected:
  LoopTest() {
    events_.TrayMouse = [this](std::uint32_t message) { Note("tray " + std::to_string(message)); };
    events_.TaskbarCreated = [this] { Note("task bar"); };
    events_.DpiChanged = [this](std::int32_t dpi) { Note("dpi " + std::to_string(dpi)); };
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

TEST_F(LoopTest, MessagesAndWorkRunInTheOrderInWhichTheyCame) {
  windows_.SetWindowHook(window_, [this](WindowMessage& message) {
    Note("message " + std::to_string(message.wParam));
    if (message.wParam == 1) windows_.Post(Noting("posted meanwhile"));
    return MessageResult();
  });
  windows_.Post(Noting("work"));
  EXPECT_TRUE(windows_.PostMessageA(window_, kMessageCommand, 1, 0));
  EXPECT_TRUE(windows_.PostMessageA(window_, kMessageCommand, 2, 0));
  EXPECT_FALSE(windows_.PostMessageA(window_ + 1, kMessageCommand, 3, 0));
  EXPECT_FALSE(windows_.PostMessageA(0, kMessageCommand, 3, 0));
  EXPECT_EQ(heard_, Texts());
  windows_.DoEvents();
  EXPECT_EQ(heard_, Texts({"work", "message 1", "message 2", "posted meanwhile"}));
}

TEST_F(LoopTest, WorkFallsDueInTheOrderOfItsTime) {
  windows_.PostLater(300, Noting("late"));
  windows_.PostLater(100, [this] {
    Note("early");
    windows_.PostLater(100, Noting("between"));
  });
  windows_.Advance(99);
  EXPECT_EQ(heard_, Texts());
  windows_.Advance(1);
  EXPECT_EQ(heard_, Texts({"early"}));
  windows_.Advance(200);
  EXPECT_EQ(heard_, Texts({"early", "between", "late"}));
  windows_.Advance(1000);
  EXPECT_EQ(heard_.size(), 3U) << "once";
}

TEST_F(LoopTest, TheLoopRunsUntilTheWindowIsGone) {
  windows_.PostLater(5000, [this] { windows_.DestroyMainWindow(window_); });
  windows_.Post(Noting("work"));
  windows_.RunLoop();
  EXPECT_EQ(heard_, Texts({"work", "unload"}));
  EXPECT_EQ(windows_.Main(), 0);
  EXPECT_FALSE(windows_.PostMessageA(window_, kMessageNull, 0, 0));
  windows_.RunLoop();
}

TEST_F(LoopTest, ALoopThatCouldNeverEndFails) {
  EXPECT_THROW(windows_.RunLoop(), std::logic_error);
  const std::function<void()> again = [&] { windows_.PostLater(1000, again); };
  windows_.Post(again);
  EXPECT_THROW(windows_.RunLoop(), std::logic_error) << "it only waits and waits";
}

TEST_F(LoopTest, SomebodyAtTheMachineKeepsTheLoopGoing) {
  AddTrayIcon();
  int turn = 0;
  windows_.PostLater(50, Noting("later"));
  windows_.Input = [this, &turn] {
    if (++turn == 1) machine_.user.MoveOverTray();
    if (turn == 2) windows_.Advance(50);
    if (turn == 3) windows_.DestroyMainWindow(window_);
    return true;
  };
  windows_.RunLoop();
  EXPECT_EQ(heard_, Texts({"tray 512", "later", "unload"}));
}

TEST_F(LoopTest, OnlyOneMainWindowAndItsCreationCanFail) {
  EXPECT_EQ(windows_.CreateMainWindow(L"Second", events_), 0);
  windows_.DestroyMainWindow(window_);
  machine_.uiFaults.FailCall(1);
  EXPECT_EQ(windows_.CreateMainWindow(L"Third", events_), 0);
  const WindowHandle next = windows_.CreateMainWindow(L"Fourth", events_);
  EXPECT_NE(next, 0);
  EXPECT_NE(next, window_) << "a message for the old one must not reach the new one";
  EXPECT_EQ(windows_.Title(), L"Fourth");
}

TEST_F(LoopTest, AHookThatHandlesAMessageKeepsItFromTheWindow) {
  AddTrayIcon();
  windows_.SetWindowHook(window_, [this](WindowMessage& message) {
    Note("hook " + std::to_string(message.lParam));
    windows_.SetWindowHook(window_, {});
    return MessageResult{true, 5};
  });
  machine_.user.MoveOverTray();
  machine_.user.MoveOverTray();
  EXPECT_EQ(heard_, Texts({"hook 512", "tray 512"}));
}

TEST_F(LoopTest, GesturesReachTheMainWindow) {
  EXPECT_THROW(machine_.user.ClickTray(LocalUser::Button::kLeft), std::logic_error) << "there is nothing to click on";
  AddTrayIcon();
  const struct {
    std::function<void(LocalUser&)> gesture;
    Texts heard;
  } cases[] = {
      {[](LocalUser& user) { user.ClickTray(LocalUser::Button::kRight); }, {"tray 512", "tray 516", "tray 517"}},
      {[](LocalUser& user) { user.ClickTray(LocalUser::Button::kLeft); }, {"tray 512", "tray 513", "tray 514"}},
      {[](LocalUser& user) { user.DoubleClickTray(LocalUser::Button::kLeft); },
       {"tray 512", "tray 513", "tray 514", "tray 515", "tray 514"}},
      {[](LocalUser& user) { user.ChangeDpi(144); }, {"dpi 144"}},
      {[](LocalUser& user) { user.TryToEndSession(); }, {}},
      {[](LocalUser& user) { user.EndSession(); }, {"session"}},
      {[](LocalUser& user) { user.LoseTaskBar(); }, {}},
      {[](LocalUser& user) { user.StartTaskBar(); }, {"task bar"}},
  };
  for (const auto& row : cases) {
    heard_.clear();
    row.gesture(machine_.user);
    EXPECT_EQ(heard_, row.heard) << "case " << &row - cases;
  }
  EXPECT_EQ(windows_.MouseScreenDpi(), 144);
  EXPECT_EQ(machine_.shell.Tray(), nullptr) << "a new task bar starts without icons";
}

TEST_F(LoopTest, AGestureWaitsWhileTheProgramIsBusy) {
  AddTrayIcon();
  windows_.Post([this] {
    machine_.user.MoveOverTray();
    Note("still busy");
  });
  windows_.DoEvents();
  EXPECT_EQ(heard_, Texts({"still busy", "tray 512"}));
}

class ProcessesTest : public LoopTest {
 protected:
  ProcessesTest() {
    windows_.SetWindowHook(window_, [this](WindowMessage& message) {
      Note(std::to_string(message.number) + " " + ToUtf8(message.text) + " " + std::to_string(message.lParam));
      return MessageResult{true, 42};
    });
  }
  std::unique_ptr<LocalMachine> other_ = machine_.AnotherProcess();
};

TEST_F(ProcessesTest, AProcessReachesTheWindowOfAnother) {
  EXPECT_EQ(other_->windows.SendText(window_, 7, L"/ADD C:\\"), 42);
  EXPECT_EQ(other_->windows.SendMessageA(window_, 1000, 0, 3), 42);
  EXPECT_EQ(heard_, Texts({"74 /ADD C:\\ 7", "1000  3"}));
  EXPECT_TRUE(other_->windows.PostMessageA(window_, 1001, 0, 4));
  other_->windows.DoEvents();
  EXPECT_EQ(heard_.size(), 2U) << "a posted message waits in the queue of the process that it is for";
  windows_.DoEvents();
  EXPECT_EQ(heard_.back(), "1001  4");
}

TEST_F(ProcessesTest, WhatIsGoneCannotBeReached) {
  MainWindowEvents events;
  const WindowHandle theirs = other_->windows.CreateMainWindow(L"Other", events);
  EXPECT_NE(theirs, window_);
  EXPECT_TRUE(windows_.PostMessageA(theirs, 1000, 0, 0));
  other_.reset();
  EXPECT_FALSE(windows_.PostMessageA(theirs, 1000, 0, 0));
  EXPECT_EQ(windows_.SendText(theirs, 7, L"text"), 0);
  EXPECT_EQ(windows_.SendMessageA(theirs, 1000, 0, 0), 0);
}

TEST_F(ProcessesTest, ANameBelongsToOneProcessAsLongAsItRuns) {
  EXPECT_TRUE(other_->windows.ClaimInstance(L"Name"));
  EXPECT_TRUE(other_->windows.ClaimInstance(L"Name"));
  EXPECT_FALSE(windows_.ClaimInstance(L"Name"));
  EXPECT_TRUE(windows_.ClaimInstance(L"Another name"));
  other_.reset();
  EXPECT_TRUE(windows_.ClaimInstance(L"Name"));
}

TEST_F(ProcessesTest, MessageNumbersGoByNameInAllProcesses) {
  const std::uint32_t one = windows_.RegisterWindowMessageA(L"One");
  const std::uint32_t two = other_->windows.RegisterWindowMessageA(L"Two");
  EXPECT_GE(one, 0xC000U);
  EXPECT_NE(one, two);
  EXPECT_EQ(other_->windows.RegisterWindowMessageA(L"ONE"), one);
  EXPECT_EQ(windows_.RegisterWindowMessageA(L"Two"), two);
  EXPECT_EQ(windows_.RegisterWindowMessageA(L""), 0U);
}

TEST_F(ProcessesTest, TheForegroundIsOneForAll) {
  other_->windows.SetForegroundWindow(window_);
  EXPECT_EQ(windows_.Foreground(), window_);
  windows_.SetForegroundWindow(window_ + 100);
  EXPECT_EQ(windows_.Foreground(), window_);
}

TEST_F(ProcessesTest, AnotherProcessSeesTheSameDisk) {
  machine_.AddFile(L"C:\\x", "content");
  EXPECT_EQ(other_->BytesOf(L"C:\\x"), "content");
  EXPECT_EQ(other_->faults.Calls(), 0U);
}

}  // namespace
}  // namespace burrowmark
