// How bars and lists stand on the real system: of no concern to any other system.
#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <vector>

#include "platform/win32/handles.h"
#include "platform/win32/win32_platform.h"
#include "ui/form.h"
#include "ui/list_view.h"
#include "ui/status_bar.h"
#include "ui/toolbar.h"

namespace burrowmark {
namespace {

constexpr std::int32_t kNoSuchIcon = 999;

class Win32Bars : public ::testing::Test {
 protected:
  Win32Bars() {
    form_.SetBorder(FormBorder::kSizable);
    form_.Show();
    bar_.AlignTop(form_.Client());
  }
  ~Win32Bars() override { platform_.windows.DoEvents(); }

  // Those of the panels, with the bar as wide as told, in pixels.
  std::vector<int> EdgesIn(std::int32_t width) {
    status_.SetPlace({0, 0, ToTwips(width, kDesignDpi), 300});
    std::vector<int> edges(status_.Panels().size());
    ::SendMessageW(ToHwnd(status_.Window()), SB_GETPARTS, edges.size(), reinterpret_cast<LPARAM>(edges.data()));
    return edges;
  }

  Win32Platform system_;
  Platform platform_ = system_.platform();
  Form form_{platform_.windows, L"frmBars", Size{6000, 3000}};
  Toolbar bar_{form_,
               L"tlb",
               {{L"one", ToolbarButtonStyle::kButton, L"One", L"The first", 1, true, {}},
                {L"two", ToolbarButtonStyle::kDropDown, L"Two", L"The second", 2, true, {{L"a", L"Entry"}}}}};
  StatusBar status_{form_, L"stb", {{L"First", 0, 1500}, {L"Spring", 0, 0}, {L"Last", 0, 750}}};
  ListView list_{form_, L"lvw", Box{0, 600, 3000, 1500}};
};

TEST_F(Win32Bars, OnePanelTakesWhatTheOthersLeave) {
  EXPECT_EQ(EdgesIn(400), (std::vector<int>{100, 350, -1}));
  EXPECT_EQ(EdgesIn(300), (std::vector<int>{100, 250, -1}));
  EXPECT_EQ(EdgesIn(120), (std::vector<int>{100, 100, -1}));
}

TEST_F(Win32Bars, ImagesHaveTheSizeOfTheScaleAndTheirOwnPlaces) {
  bar_.SetImages({16, {kNoSuchIcon, 2}}, {16, {3, 4}});
  RECT rect = {};
  ::GetWindowRect(ToHwnd(form_.Window()), &rect);
  ::SendMessageW(ToHwnd(form_.Window()), WM_DPICHANGED, MAKEWPARAM(192, 192), reinterpret_cast<LPARAM>(&rect));
  for (const UINT message : {UINT{TB_GETIMAGELIST}, UINT{TB_GETDISABLEDIMAGELIST}}) {
    const auto list = reinterpret_cast<HIMAGELIST>(::SendMessageW(ToHwnd(bar_.Window()), message, 0, 0));
    int width = 0;
    int height = 0;
    ::ImageList_GetIconSize(list, &width, &height);
    EXPECT_EQ((Size{width, height}), (Size{32, 32}));
    EXPECT_EQ(::ImageList_GetImageCount(list), 3) << "an empty one ahead of them";
  }
}

// A button has its name for screen readers without a row of texts too.
TEST_F(Win32Bars, AButtonWithoutTextIsCalledByItsTip) {
  bar_.SetButtonText(0, L"", L"The first");
  bar_.SetButtonText(1, L"", L"The second");
  wchar_t text[20] = {};
  ::SendMessageW(ToHwnd(bar_.Window()), TB_GETBUTTONTEXTW, 1, reinterpret_cast<LPARAM>(text));
  EXPECT_STREQ(text, L"The first");
  EXPECT_EQ(::SendMessageW(ToHwnd(bar_.Window()), TB_GETTEXTROWS, 0, 0), 0);
}

// The user's colours are told to windows of the first level alone.
TEST_F(Win32Bars, AListFollowsTheUsersColours) {
  constexpr INT kElement = COLOR_WINDOW;
  const COLORREF before = ::GetSysColor(kElement);
  const COLORREF other = RGB(10, 20, 30);
  ::SetSysColors(1, &kElement, &other);
  platform_.windows.DoEvents();
  EXPECT_EQ(static_cast<COLORREF>(::SendMessageW(ToHwnd(list_.Window()), LVM_GETBKCOLOR, 0, 0)), other);
  ::SetSysColors(1, &kElement, &before);
  platform_.windows.DoEvents();
}

TEST_F(Win32Bars, ATipIsAskedForAndCut) {
  wchar_t text[6] = {};
  NMTBGETINFOTIPW tip = {{ToHwnd(bar_.Window()), 0, static_cast<UINT>(TBN_GETINFOTIPW)}, text, 6, 2, 0};
  ::SendMessageW(ToHwnd(form_.Window()), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&tip));
  EXPECT_EQ(std::wstring(text), L"The s");
}

TEST_F(Win32Bars, AFormMayGoWhileTheMenuOfAButtonIsOpen) {
  bar_.ButtonMenuClick = [](const std::wstring&) { FAIL() << "its form has gone"; };
  constexpr std::int32_t kSoon = 100;
  platform_.windows.PostLater(kSoon, [this] { form_.Unload(); });
  platform_.windows.PostLater(2 * kSoon, [] { ::EndMenu(); });
  NMTOOLBARW dropDown = {};
  dropDown.hdr = {ToHwnd(bar_.Window()), 0, static_cast<UINT>(TBN_DROPDOWN)};
  dropDown.iItem = 2;
  ::SendMessageW(ToHwnd(form_.Window()), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&dropDown));
  EXPECT_FALSE(form_.Loaded());
}

}  // namespace
}  // namespace burrowmark
