// What the real system's messages become, and what goes out to it: of no concern to any other system.
#include <gtest/gtest.h>
#include <windows.h>

// This wants windows.h ahead of it.
#include <oleacc.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "platform/win32/handles.h"
#include "platform/win32/menus/entry_names.h"
#include "platform/win32/menus/menu_letters.h"
#include "platform/win32/win32_platform.h"
#include "platform/win32/windows/message_records.h"

namespace burrowmark {
namespace {

constexpr UINT kSelected = ODS_SELECTED | ODS_NOACCEL;
constexpr std::int32_t kDrawn = kMenuByPosition | kMenuOwnerDrawn;

class Win32Messages : public ::testing::Test {
 protected:
  ~Win32Messages() override { platform_.windows.DestroyMainWindow(window_); }

  HWND Window() const { return ToHwnd(window_); }
  void Hook(std::function<MessageResult(WindowMessage&)> hook) {
    platform_.windows.SetWindowHook(window_, std::move(hook));
  }

  static void Highlight(HMENU menu, std::int32_t position, bool on) {
    MENUITEMINFOW info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_STATE;
    info.fState = on ? MFS_HILITE : MFS_ENABLED;
    ::SetMenuItemInfoW(menu, static_cast<UINT>(position), TRUE, &info);
  }

  Win32Platform system_;
  Platform platform_ = system_.platform();
  MainWindowEvents events_;
  WindowHandle window_ = platform_.windows.CreateMainWindow(L"Contract", events_);
};

TEST_F(Win32Messages, ASelectedEntryHasOneState) {
  const struct {
    UINT from;
    UINT to;
  } rows[] = {{ODS_SELECTED, kSelected},
              {ODS_SELECTED | ODS_NOACCEL, kSelected},
              {ODS_SELECTED | ODS_FOCUS | ODS_HOTLIGHT, kSelected},
              {0, 0},
              {ODS_NOACCEL, 0},
              {ODS_GRAYED | ODS_NOACCEL, ODS_GRAYED}};
  for (const auto& row : rows) EXPECT_EQ(EntryState(row.from, kSelected), row.to) << row.from;
  EXPECT_EQ(EntryState(ODS_SELECTED | ODS_NOACCEL, ODS_SELECTED), UINT{ODS_SELECTED});
}

TEST_F(Win32Messages, AMeasuringIsAnsweredInTheSystemsRecord) {
  MEASUREITEMSTRUCT record = {};
  record.CtlType = ODT_MENU;
  record.itemID = 0xFFFF1234;  // a popup's handle may have its highest bit set
  Hook([](WindowMessage& message) {
    if (message.measure == nullptr || message.measure->itemID != static_cast<std::int32_t>(0xFFFF1234))
      return MessageResult();
    EXPECT_EQ(message.measure->controlType, kControlMenu);
    message.measure->itemWidth = 123;
    message.measure->itemHeight = 19;
    return MessageResult{true, 1};
  });
  EXPECT_EQ(::SendMessageW(Window(), WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&record)), 1);
  EXPECT_EQ(record.itemWidth, 123U);
  EXPECT_EQ(record.itemHeight, 19U);
}

TEST_F(Win32Messages, ADrawingHasTheMenusFontAndLeavesTheContextAsItWas) {
  platform_.drawing.MenuMeasureContext(192);
  const HDC context = ::CreateCompatibleDC(nullptr);
  const HGDIOBJ fontBefore = ::GetCurrentObject(context, OBJ_FONT);
  DRAWITEMSTRUCT record = {};
  record.CtlType = ODT_MENU;
  record.itemID = 60;
  record.itemState = ODS_SELECTED;
  record.hDC = context;
  record.rcItem = {1, 2, 30, 40};
  int drawn = 0;
  Hook([&](WindowMessage& message) {
    if (message.draw == nullptr) return MessageResult();
    ++drawn;
    EXPECT_EQ(message.draw->itemState, kSelected);
    EXPECT_EQ(message.draw->rect, (Rect{1, 2, 30, 40}));
    Drawing& drawing = platform_.drawing;
    EXPECT_EQ(drawing.GetTextExtentPoint32A(message.draw->context, L"W").width,
              drawing.GetTextExtentPoint32A(drawing.MenuMeasureContext(192), L"W").width);
    drawing.ExcludeClipRect(message.draw->context, {0, 0, 1, 1});
    platform_.drawing.SetTextColor(message.draw->context, 0x80000007);
    EXPECT_EQ(::GetTextColor(context), 7U);
    return MessageResult{true, 1};
  });
  ::SendMessageW(Window(), WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&record));
  EXPECT_EQ(drawn, 1);
  EXPECT_EQ(::GetCurrentObject(context, OBJ_FONT), fontBefore);
  EXPECT_EQ(::GetTextColor(context), 0U);
  EXPECT_EQ(::PtVisible(context, 0, 0), FALSE) << "what was excluded stays so, for the arrow that the system draws";
  ::DeleteDC(context);
}

TEST_F(Win32Messages, CopiedDataThatIsNoTextIsRefused) {
  int heard = 0;
  Hook([&heard](WindowMessage& message) {
    if (message.number == kMessageCopyData) ++heard;
    return MessageResult{message.number == kMessageCopyData, 7};
  });
  COPYDATASTRUCT data = {};
  data.cbData = 3;
  data.lpData = const_cast<wchar_t*>(L"ab");
  EXPECT_EQ(::SendMessageW(Window(), WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data)), 0);
  EXPECT_EQ(::SendMessageW(Window(), WM_COPYDATA, 0, 0), 0);
  EXPECT_EQ(heard, 0);
  data.cbData = 4;
  EXPECT_EQ(::SendMessageW(Window(), WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data)), 7);
}

TEST_F(Win32Messages, AHookThatThrowsHasHandledNothing) {
  int pressed = 0;
  events_.TrayMouse = [&pressed](std::uint32_t) { ++pressed; };
  events_.TaskbarCreated = [&pressed] {
    ++pressed;
    throw std::runtime_error("from an event");
  };
  Hook([](WindowMessage&) -> MessageResult { throw std::runtime_error("from a hook"); });
  ::SendMessageW(Window(), kMessageMouseMove, 1, WM_LBUTTONUP);
  EXPECT_EQ(pressed, 1);
  ::SendMessageW(Window(), ::RegisterWindowMessageW(L"TaskbarCreated"), 0, 0);
  EXPECT_EQ(pressed, 2);
  platform_.windows.Post([] { throw std::runtime_error("from work"); });
  platform_.windows.DoEvents();
}

TEST_F(Win32Messages, TheSessionsEndIsGrantedAtOnceAndToldWhenItComes) {
  int told = 0;
  events_.SessionEnding = [&told] { ++told; };
  EXPECT_EQ(::SendMessageW(Window(), WM_QUERYENDSESSION, 0, 0), TRUE);
  ::SendMessageW(Window(), WM_ENDSESSION, FALSE, 0);
  EXPECT_EQ(told, 0);
  ::SendMessageW(Window(), WM_ENDSESSION, TRUE, 0);
  EXPECT_EQ(told, 1);
}

TEST_F(Win32Messages, AWindowThatIsDestroyedAtItsCloseUnloadsAndEndsTheLoop) {
  int unloaded = 0;
  events_.Close = [this] { platform_.windows.DestroyMainWindow(window_); };
  events_.Unload = [&unloaded] { ++unloaded; };
  ::PostMessageW(Window(), WM_CLOSE, 0, 0);
  platform_.windows.RunLoop();
  EXPECT_EQ(unloaded, 1);
}

TEST_F(Win32Messages, AnotherScaleIsToldOnce) {
  std::vector<std::int32_t> told;
  events_.DpiChanged = [&told](std::int32_t dpi) { told.push_back(dpi); };
  RECT place = {};
  for (const WORD dpi : {WORD{240}, WORD{240}, WORD{120}}) {
    ::SendMessageW(Window(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&place));
  }
  EXPECT_EQ(told, (std::vector<std::int32_t>{240, 120}));
}

TEST_F(Win32Messages, AnotherHolderOfANameIsSeen) {
  Win32Platform other;
  EXPECT_TRUE(platform_.windows.ClaimInstance(L"BurrowmarkContractName"));
  EXPECT_FALSE(other.platform().windows.ClaimInstance(L"BurrowmarkContractName"));
}

// A reader takes the name from behind the mark that the system asks for.
TEST_F(Win32Messages, ADrawnEntryNamesItselfAsLongAsItIsThere) {
  Menus& menus = platform_.menus;
  const MenuHandle menu = menus.GetSubMenu(menus.GetMenu(window_), 0);
  const auto name = [menu] {
    const auto* info = reinterpret_cast<const MSAAMENUINFO*>(DataOfEntry(ToHmenu(menu), 0));
    if (info == nullptr || info->dwMSAASignature != static_cast<DWORD>(MSAA_MENU_SIG)) return std::wstring(L"none");
    return std::wstring(info->pszWText, info->cchWText);
  };
  EXPECT_EQ(name(), L"none");
  for (const std::wstring& text : {std::wstring(L"First"), std::wstring(L"Second, a longer one than the first")}) {
    menus.ModifyMenuA(menu, 0, kDrawn, 60, text);
    EXPECT_EQ(name(), text);
  }
  menus.InsertMenuA(menu, 0, kDrawn, 61, L"Third");
  EXPECT_EQ(name(), L"Third");
  menus.DeleteMenu(menu, 0, kMenuByPosition);
  EXPECT_EQ(name(), L"Second, a longer one than the first");
  menus.ModifyMenuA(menu, 0, kMenuByPosition, 60, L"Not drawn");
  EXPECT_EQ(name(), L"none");
}

TEST_F(Win32Messages, ATypedLetterGoesToTheNextEntryThatStartsWithIt) {
  Menus& menus = platform_.menus;
  const MenuHandle menu = menus.GetSubMenu(menus.GetMenu(window_), 0);
  const wchar_t* titles[] = {L"alpha", L"Beta", L"", L"\u00C9cole", L"Alps", L"&Gamma", L"&&gimel"};
  for (std::int32_t i = 0; i < 7; ++i) {
    const std::int32_t flags = i == 2 ? kDrawn | kMenuSeparator : kDrawn;
    ASSERT_TRUE(i == 0 || menus.InsertMenuA(menu, i, flags, 60 + i, titles[i]));
    ASSERT_TRUE(menus.ModifyMenuA(menu, i, flags, 60 + i, titles[i])) << "drawn, and with its text all the same";
  }
  const HMENU handle = ToHmenu(menu);
  const struct {
    std::int32_t highlighted;
    wchar_t letter;
    int found;
  } rows[] = {{-1, L'a', 0}, {-1, L'A', 0}, {0, L'a', 4},  {4, L'a', 0},     {1, L'b', 1},
              {0, L'g', 5},  {0, L'&', 6},  {0, L'z', -1}, {5, L'\u00E9', 3}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.found);
    for (std::int32_t i = 0; i < 7; ++i) Highlight(handle, i, i == row.highlighted);
    const std::optional<UINT> entry = EntryOfLetter(handle, row.letter);
    EXPECT_EQ(entry ? static_cast<int>(*entry) : -1, row.found);
    const LRESULT answer =
        ::SendMessageW(Window(), WM_MENUCHAR, MAKEWPARAM(row.letter, MF_POPUP), reinterpret_cast<LPARAM>(handle));
    EXPECT_EQ(HIWORD(answer), row.found < 0 ? MNC_IGNORE : MNC_SELECT);
    EXPECT_EQ(LOWORD(answer), row.found < 0 ? 0 : row.found);
  }
  platform_.windows.DoEvents();
}

}  // namespace
}  // namespace burrowmark
