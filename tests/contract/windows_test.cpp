// The main window, its messages and the loop.
#include <functional>
#include <string>
#include <vector>

#include "platform/characters.h"
#include "tests/contract/system_under_test.h"

namespace burrowmark {
namespace {

class WindowsContract : public ContractTest {
 protected:
  WindowsContract() {
    events_.TrayMouse = [this](std::uint32_t message) { Note("tray " + std::to_string(message)); };
    events_.Unload = [this] { Note("unload"); };
    window_ = windows_.CreateMainWindow(L"Contract", events_);
  }
  ~WindowsContract() override { windows_.DestroyMainWindow(window_); }

  void Note(const std::string& what) { heard_.push_back(what); }
  std::function<void()> Noting(const std::string& what) {
    return [this, what] { Note(what); };
  }
  // A hook that notes the messages of one number and answers with a value.
  void Hook(std::uint32_t number, MessageResult result) {
    windows_.SetWindowHook(window_, [this, number, result](WindowMessage& message) {
      if (message.number != number) return MessageResult();
      Note(std::to_string(message.wParam) + " " + std::to_string(message.lParam) + ToUtf8(message.text));
      return result;
    });
  }

  using Texts = std::vector<std::string>;

  WindowSystem& windows_ = platform_.windows;
  MainWindowEvents events_;
  Texts heard_;
  WindowHandle window_ = 0;
};
INSTANTIATE_TEST_SUITE_P(Systems, WindowsContract, ::testing::ValuesIn(Systems()), KindName);

TEST_P(WindowsContract, ARegisteredMessageHasOneNumberForItsName) {
  const std::uint32_t number = windows_.RegisterWindowMessageA(L"!CONTRACT!ONE!");
  EXPECT_GE(number, 0xC000U);
  EXPECT_LE(number, 0xFFFFU);
  EXPECT_EQ(windows_.RegisterWindowMessageA(L"!CONTRACT!ONE!"), number);
  EXPECT_NE(windows_.RegisterWindowMessageA(L"!CONTRACT!TWO!"), number);
}

TEST_P(WindowsContract, ThereIsOneMainWindowAtATime) {
  ASSERT_NE(window_, 0);
  MainWindowEvents others;
  EXPECT_EQ(windows_.CreateMainWindow(L"Second", others), 0);
  windows_.DestroyMainWindow(window_);
  window_ = windows_.CreateMainWindow(L"After the first", events_);
  EXPECT_NE(window_, 0);
}

TEST_P(WindowsContract, AWindowUnloadsOnce) {
  events_.Unload = [this] {
    Note("unload");
    windows_.DestroyMainWindow(window_);
  };
  windows_.DestroyMainWindow(window_ + 4);
  windows_.DestroyMainWindow(0);
  EXPECT_EQ(heard_, Texts());
  windows_.DestroyMainWindow(window_);
  windows_.DestroyMainWindow(window_);
  EXPECT_EQ(heard_, Texts({"unload"}));
  EXPECT_FALSE(windows_.PostMessageA(window_, kMessageNull, 0, 0));
}

TEST_P(WindowsContract, EventsThatNobodyListensToAreNoFault) {
  windows_.DestroyMainWindow(window_);
  MainWindowEvents none;
  const WindowHandle window = windows_.CreateMainWindow(L"Deaf", none);
  windows_.SendMessageA(window, kMessageMouseMove, 1, kMessageLeftButtonUp);
  windows_.DestroyMainWindow(window);
  EXPECT_EQ(heard_, Texts({"unload"}));
}

TEST_P(WindowsContract, APostedMessageWaitsForTheLoop) {
  const std::uint32_t number = windows_.RegisterWindowMessageA(L"!CONTRACT!ONE!");
  Hook(number, {});
  EXPECT_TRUE(windows_.PostMessageA(window_, number, 1, -2));
  EXPECT_TRUE(windows_.PostMessageA(window_, number, 3, 4));
  EXPECT_EQ(heard_, Texts());
  windows_.DoEvents();
  EXPECT_EQ(heard_, Texts({"1 -2", "3 4"}));
}

TEST_P(WindowsContract, ASentMessageComesBackWithTheHooksAnswer) {
  const std::uint32_t number = windows_.RegisterWindowMessageA(L"!CONTRACT!ONE!");
  EXPECT_EQ(windows_.SendMessageA(window_, number, 1, 2), 0);
  Hook(number, {true, 42});
  EXPECT_EQ(windows_.SendMessageA(window_, number, 1, 2), 42);
  Hook(number, {false, 42});
  EXPECT_EQ(windows_.SendMessageA(window_, number, 3, 4), 0) << "the window's own procedure has the last word";
  EXPECT_EQ(heard_, Texts({"1 2", "3 4"}));
}

TEST_P(WindowsContract, AHookStandsAheadOfTheWindowAndCanBeTakenAway) {
  const auto press = [this] { windows_.SendMessageA(window_, kMessageMouseMove, 1, kMessageRightButtonUp); };
  press();
  Hook(kMessageMouseMove, {true, 0});
  press();
  Hook(kMessageMouseMove, {});
  press();
  windows_.SetWindowHook(window_, {});
  press();
  EXPECT_EQ(heard_, Texts({"tray 517", "1 517", "1 517", "tray 517", "tray 517"}));
}

TEST_P(WindowsContract, AHookMayTakeItselfAwayWhileItRuns) {
  const std::string text(100, 'x');  // too long to lie within the function object itself
  windows_.SetWindowHook(window_, [this, text](WindowMessage& message) {
    if (message.number != kMessageMouseMove) return MessageResult();
    windows_.SetWindowHook(window_, {});
    Note(text);
    return MessageResult();
  });
  windows_.SendMessageA(window_, kMessageMouseMove, 1, kMessageLeftButtonUp);
  windows_.SendMessageA(window_, kMessageMouseMove, 1, kMessageLeftButtonUp);
  EXPECT_EQ(heard_, Texts({text, "tray 514", "tray 514"}));
}

TEST_P(WindowsContract, ATextArrivesWholeWithItsNumber) {
  EXPECT_EQ(windows_.SendText(window_, 3, L"nobody takes it"), 0);
  Hook(kMessageCopyData, {true, 7});
  EXPECT_EQ(windows_.SendText(window_, 3, L" /ADD C:\\Caf\u00E9 \u0416"), 7);
  EXPECT_EQ(windows_.SendText(window_, 4, L""), 7);
  const std::wstring large(100'000, L'x');
  EXPECT_EQ(windows_.SendText(window_, 5, L" " + large), 7);
  EXPECT_EQ(heard_, Texts({"0 3 /ADD C:\\Caf\xC3\xA9 \xD0\x96", "0 4", "0 5 " + ToUtf8(large)}));
}

TEST_P(WindowsContract, AWindowThatIsNotThereHearsNothing) {
  windows_.DestroyMainWindow(window_);
  for (const WindowHandle missing : {WindowHandle{0}, window_}) {
    EXPECT_FALSE(windows_.PostMessageA(missing, kMessageNull, 0, 0));
    EXPECT_EQ(windows_.SendMessageA(missing, kMessageNull, 0, 0), 0);
    EXPECT_EQ(windows_.SendText(missing, 1, L"text"), 0);
    windows_.SetForegroundWindow(missing);
  }
}

TEST_P(WindowsContract, PostedWorkRunsInOrderAndNotAtOnce) {
  windows_.Post(Noting("first"));
  windows_.Post([this] {
    Note("second");
    windows_.Post(Noting("posted meanwhile"));
  });
  windows_.Post(Noting("third"));
  EXPECT_EQ(heard_, Texts());
  windows_.DoEvents();
  EXPECT_EQ(heard_, Texts({"first", "second", "third", "posted meanwhile"}));
}

TEST_P(WindowsContract, WorkRunsInALoopThatOtherWorkRuns) {
  windows_.Post([this] {
    Note("outer begins");
    windows_.DoEvents();
    Note("outer ends");
  });
  windows_.Post(Noting("inner"));
  windows_.DoEvents();
  EXPECT_EQ(heard_, Texts({"outer begins", "inner", "outer ends"}));
}

TEST_P(WindowsContract, NoAmountOfWorkIsLost) {
  constexpr int kMuch = 20'000;  // more than a queue of messages holds
  int done = 0;
  for (int i = 0; i < kMuch; ++i) windows_.Post([&done] { ++done; });
  windows_.DoEvents();
  EXPECT_EQ(done, kMuch);
}

TEST_P(WindowsContract, LaterWorkRunsOnceInTheOrderOfItsTime) {
  windows_.PostLater(200, [this] {
    Note("last");
    windows_.DestroyMainWindow(window_);
  });
  windows_.PostLater(60, Noting("second"));
  windows_.PostLater(0, Noting("first"));
  EXPECT_EQ(heard_, Texts());
  windows_.RunLoop();
  EXPECT_EQ(heard_, Texts({"first", "second", "last", "unload"}));
}

TEST_P(WindowsContract, TheLoopEndsWithTheMainWindow) {
  windows_.Post([this] { windows_.DestroyMainWindow(window_); });
  windows_.RunLoop();
  EXPECT_EQ(heard_, Texts({"unload"}));
  windows_.RunLoop();  // there is none any more
}

TEST_P(WindowsContract, ANameIsClaimedByThisProcess) {
  const std::wstring name = L"BurrowmarkContract" + system_->Key().substr(system_->Key().rfind(L'\\') + 1);
  EXPECT_TRUE(windows_.ClaimInstance(name));
  EXPECT_TRUE(windows_.ClaimInstance(name)) << "it is ours already";
  EXPECT_TRUE(windows_.ClaimInstance(name + L"2"));
}

TEST_P(WindowsContract, TheScreenHasAScale) {
  EXPECT_GE(windows_.MouseScreenDpi(), kDesignDpi);
  EXPECT_LE(windows_.MouseScreenDpi(), 10 * kDesignDpi);
}

}  // namespace
}  // namespace burrowmark
