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

TEST_F(WindowsContract, ThereIsOneMainWindowAndItUnloadsOnce) {
  MainWindowEvents others;
  EXPECT_EQ(windows_.CreateMainWindow(L"Second", others), 0);
  windows_.DestroyMainWindow(window_);
  windows_.DestroyMainWindow(window_);
  EXPECT_EQ(heard_, Texts({"unload"}));
  EXPECT_FALSE(windows_.PostMessageA(window_, kMessageNull, 0, 0));
  EXPECT_EQ(windows_.SendMessageA(window_, kMessageNull, 0, 0), 0);
  EXPECT_EQ(windows_.SendText(window_, 1, L"text"), 0);
}

TEST_F(WindowsContract, RegisteredMessagesArePostedOrSentToTheHook) {
  const std::uint32_t number = windows_.RegisterWindowMessageA(L"!CONTRACT!ONE!");
  EXPECT_GE(number, 0xC000U);
  EXPECT_EQ(windows_.RegisterWindowMessageA(L"!CONTRACT!ONE!"), number);
  EXPECT_NE(windows_.RegisterWindowMessageA(L"!CONTRACT!TWO!"), number);
  EXPECT_EQ(windows_.SendMessageA(window_, number, 1, 2), 0);
  Hook(number, {true, 42});
  EXPECT_TRUE(windows_.PostMessageA(window_, number, 1, -2));
  EXPECT_TRUE(windows_.PostMessageA(window_, number, 3, 4));
  EXPECT_EQ(windows_.SendMessageA(window_, number, 5, 6), 42);
  EXPECT_EQ(heard_, Texts({"5 6"})) << "what is posted waits for the loop";
  windows_.DoEvents();
  EXPECT_EQ(heard_, Texts({"5 6", "1 -2", "3 4"}));
}

TEST_F(WindowsContract, AHookStandsAheadOfTheWindowAndMayTakeItselfAwayWhileItRuns) {
  const auto press = [this] { windows_.SendMessageA(window_, kMessageMouseMove, 1, kMessageRightButtonUp); };
  press();
  Hook(kMessageMouseMove, {true, 0});
  press();
  const std::string text(100, 'x');  // too long to lie within the function object itself
  windows_.SetWindowHook(window_, [this, text](WindowMessage& message) {
    if (message.number != kMessageMouseMove) return MessageResult();
    windows_.SetWindowHook(window_, {});
    Note(text);
    return MessageResult();
  });
  press();
  press();
  EXPECT_EQ(heard_, Texts({"tray 517", "1 517", text, "tray 517", "tray 517"}));
}

TEST_F(WindowsContract, ATextArrivesWholeWithItsNumber) {
  EXPECT_EQ(windows_.SendText(window_, 3, L"nobody takes it"), 0);
  Hook(kMessageCopyData, {true, 7});
  const std::wstring text = L" /ADD C:\\Caf\u00E9 \u0416" + std::wstring(100'000, L'x');
  EXPECT_EQ(windows_.SendText(window_, 3, text), 7);
  EXPECT_EQ(windows_.SendText(window_, 4, L""), 7);
  const std::string sender = std::to_string(windows_.ProcessNumber());
  EXPECT_EQ(heard_, Texts({sender + " 3" + ToUtf8(text), sender + " 4"}));
}

TEST_F(WindowsContract, PostedWorkRunsInOrderNotAtOnceAndNoneIsLost) {
  windows_.Post(Noting("first"));
  windows_.Post([this] {
    Note("second begins");
    windows_.Post(Noting("posted meanwhile"));
    windows_.DoEvents();
    Note("second ends");
  });
  windows_.Post(Noting("third"));
  EXPECT_EQ(heard_, Texts());
  windows_.DoEvents();
  EXPECT_EQ(heard_, Texts({"first", "second begins", "third", "posted meanwhile", "second ends"}));
  constexpr std::size_t kMuch = 11'000;  // more than a queue of messages holds
  for (std::size_t i = 0; i < kMuch; ++i) windows_.Post(Noting("much"));
  windows_.DoEvents();
  EXPECT_EQ(heard_.size(), 5 + kMuch);
}

TEST_F(WindowsContract, LaterWorkRunsInTheOrderOfItsTimeAndTheLoopEndsWithTheWindow) {
  windows_.PostLater(100, [this] { windows_.DestroyMainWindow(window_); });
  windows_.PostLater(40, Noting("second"));
  windows_.PostLater(0, Noting("first"));
  EXPECT_EQ(heard_, Texts());
  windows_.RunLoop();
  EXPECT_EQ(heard_, Texts({"first", "second", "unload"}));
}

}  // namespace
}  // namespace burrowmark
