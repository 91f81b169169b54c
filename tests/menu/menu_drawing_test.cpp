#include "menu/menu_drawing.h"

#include <gtest/gtest.h>

#include "tests/support/scratch_machine.h"

namespace burrowmark {
namespace {

constexpr Color kMenuColor = 0xF0F0F0;
constexpr Color kHighlight = 0xD77800;
constexpr Color kShadow = 0xA0A0A0;
constexpr Color kLight = 0xFFFFFF;
constexpr Color kRed = 0x0000FF;
constexpr Color kPaper = 0x123456;  // what the canvas has where nothing was drawn

class MenuDrawing : public testing::Test {
 protected:
  MenuDrawing() : item_(clock_) {
    for (int number = 0; number <= 13; ++number)
      look_.MenuIcons.push_back(drawing_.LoadMenuIcon(std::max(number, 1), 16));
    look_.IconFrameAllowed = true;
    look_.SelectedState = 257;
    item_.SetCaption(L"ab");
    item_.SetIconIDDescription();
  }

  // Draws the item into a rectangle that starts at 10, 20 and reads the canvas.
  const Canvas& Draw(std::uint32_t state, std::int32_t width = 120, std::int32_t height = 19) {
    context_ = drawing_.OpenContext(look_.dpi, 400, 200, kPaper);
    drawing_.StartDrawing(context_);
    MenuItemDraw(drawing_, look_, item_,
                 {kControlMenu, item_.ID(), state, context_, {10, 20, 10 + width, 20 + height}});
    EXPECT_EQ(drawing_.LiveBrushes(), 0U);
    EXPECT_EQ(drawing_.FailedDeletes(), 0U);
    return drawing_.Pixels(context_);
  }
  const DrawCall* Call(const std::string& name) {
    for (const DrawCall& call : drawing_.Calls(context_)) {
      if (call.name == name) return &call;
    }
    return nullptr;
  }
  void MakeSeparator(const std::wstring& title) {
    item_.SetSeparator(true);
    item_.SetCaption(title);
  }

  LocalDrawing drawing_;
  LocalClock clock_;
  clsMenuItem item_;
  MenuLook look_;
  DeviceContext context_ = 0;
};

TEST_F(MenuDrawing, AnEntryIsFilledWithItsTextAndIconInPlace) {
  const Canvas& canvas = Draw(0);
  EXPECT_EQ(canvas.At(10, 20), kMenuColor);
  EXPECT_EQ(canvas.At(129, 38), kMenuColor);
  EXPECT_EQ(canvas.At(130, 38), kPaper);
  EXPECT_EQ(canvas.At(129, 39), kPaper);
  const DrawCall* text = Call("DrawTextA");
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(text->rect, (Rect{36, 22, 130, 39}));
  EXPECT_EQ(text->format, 8U);
  EXPECT_EQ(text->text, L"ab");
  EXPECT_EQ(canvas.At(36, 22), 0x000007U);  // the literal colour, at the top of its rectangle
  const DrawCall* icon = Call("DrawIconEx");
  ASSERT_NE(icon, nullptr);
  EXPECT_EQ(icon->rect, (Rect{14, 22, 30, 38}));
  EXPECT_EQ(LocalDrawing::IconNumber(icon->icon), 3);
  EXPECT_EQ(canvas.At(14, 22), LocalDrawing::IconColor(3));
  EXPECT_EQ(Call("SetBkMode")->mode, 1);
}

TEST_F(MenuDrawing, ASelectedShortcutIsRedBesideItsRaisedIcon) {
  const Canvas& canvas = Draw(257);
  EXPECT_EQ(canvas.At(33, 25), kPaper);  // between the frame and the bar, which starts at 24
  EXPECT_EQ(canvas.At(34, 20), kRed);
  EXPECT_EQ(canvas.At(129, 38), kRed);
  EXPECT_EQ(canvas.At(10, 20), kLight);
  EXPECT_EQ(canvas.At(31, 20), kLight);
  EXPECT_EQ(canvas.At(10, 37), kLight);
  EXPECT_EQ(canvas.At(32, 20), kShadow);
  EXPECT_EQ(canvas.At(32, 38), kShadow);
  EXPECT_EQ(canvas.At(10, 38), kShadow);
  EXPECT_EQ(canvas.At(11, 21), kPaper);  // inside the frame
  EXPECT_EQ(canvas.At(36, 22), 0xFFFFFFU);
}

TEST_F(MenuDrawing, TheBarStartsAtTheLeftWithoutIconsOrFrame) {
  look_.ShowIcons = false;
  EXPECT_EQ(Draw(257).At(10, 20), kRed);
  EXPECT_EQ(Call("DrawIconEx"), nullptr);
  EXPECT_EQ(Call("DrawTextA")->rect.left, 36);
  look_.ShowIcons = true;
  look_.IconFrameAllowed = false;
  EXPECT_EQ(Draw(257).At(10, 20), kRed);
  EXPECT_NE(Call("DrawIconEx"), nullptr);
}

TEST_F(MenuDrawing, GroupsAndFixedEntriesKeepTheColourOfTheSystem) {
  struct Case {
    const wchar_t* type;
    bool redBar;
    Color color;
  };
  const Case cases[] = {{MIT_PATH, true, kRed},
                        {MIT_DRIVE, true, kRed},
                        {MIT_OPENALL, true, kRed},
                        {MIT_PATH, false, kHighlight},
                        {MIT_GROUP_GENERAL, true, kHighlight},
                        {MIT_HF_SETTINGS, true, kHighlight}};
  for (const Case& row : cases) {
    item_.ItemType = row.type;
    look_.RedBar = row.redBar;
    EXPECT_EQ(Draw(257).At(100, 30), row.color) << ToUtf8(row.type) << row.redBar;
  }
}

TEST_F(MenuDrawing, OnlyTheExactStateCountsAsSelected) {
  for (const std::uint32_t state : {1U, 256U, 258U, 0x101U | 0x10U}) EXPECT_EQ(Draw(state).At(100, 30), kMenuColor);
  look_.SelectedState = 1;
  EXPECT_EQ(Draw(1).At(100, 30), kRed);
  EXPECT_EQ(Draw(257).At(100, 30), kMenuColor);
}

TEST_F(MenuDrawing, ASeparatorIsADoubleLineOverWhateverIsThere) {
  MakeSeparator(L"");
  const Canvas& canvas = Draw(0, 120, 10);
  EXPECT_EQ(canvas.At(11, 24), kPaper);
  EXPECT_EQ(canvas.At(12, 24), kShadow);
  EXPECT_EQ(canvas.At(127, 24), kShadow);
  EXPECT_EQ(canvas.At(128, 24), kPaper);
  EXPECT_EQ(canvas.At(12, 25), kLight);
  EXPECT_EQ(canvas.At(12, 26), kPaper);
  EXPECT_EQ(canvas.At(12, 23), kPaper);
  EXPECT_EQ(Call("DrawTextA"), nullptr);
}

TEST_F(MenuDrawing, ASeparatorsTitleStandsBetweenTwoStubs) {
  MakeSeparator(L"a");
  const Canvas& canvas = Draw(0, 120, 10);
  EXPECT_EQ(canvas.At(12, 24), kShadow);
  EXPECT_EQ(canvas.At(46, 25), kLight);
  EXPECT_EQ(canvas.At(47, 24), kPaper);
  EXPECT_EQ(canvas.At(92, 24), kPaper);
  EXPECT_EQ(canvas.At(93, 24), kShadow);
  EXPECT_EQ(canvas.At(127, 25), kLight);
  const DrawCall* text = Call("DrawTextA");
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(text->rect, (Rect{10, 17, 130, 33}));
  EXPECT_EQ(text->format, 9U);
}

TEST_F(MenuDrawing, AtTwiceTheResolutionEverythingIsTwiceAsLarge) {
  look_.dpi = 192;
  const Canvas& canvas = Draw(257, 240, 38);
  EXPECT_EQ(canvas.At(57, 30), kPaper);
  EXPECT_EQ(canvas.At(58, 30), kRed);
  EXPECT_EQ(canvas.At(10, 21), kLight);
  EXPECT_EQ(canvas.At(54, 56), kShadow);
  EXPECT_EQ(Call("DrawTextA")->rect, (Rect{62, 24, 250, 58}));
  EXPECT_EQ(Call("DrawIconEx")->rect, (Rect{18, 24, 50, 56}));
}

TEST_F(MenuDrawing, HighContrastTakesTheColoursOfTheUser) {
  drawing_.HighContrast = true;
  drawing_.Colors[7] = 0x00FF00;
  drawing_.Colors[14] = 0x00FFFF;
  Draw(0);
  EXPECT_EQ(Call("DrawTextA")->color, 0x00FF00U);
  Draw(257);
  EXPECT_EQ(Call("DrawTextA")->color, 0x00FFFFU);
}

TEST_F(MenuDrawing, IconsThatDoNotExistAreLeftOut) {
  for (const std::int16_t icon : {std::int16_t{0}, std::int16_t{-1}, std::int16_t{14}}) {
    item_.IconID = icon;
    Draw(0);
    EXPECT_EQ(Call("DrawIconEx"), nullptr) << icon;
  }
}

TEST_F(MenuDrawing, WidthsAreTheSumOfTheCharactersOfTheShortenedTitle) {
  MeasureRecord record;
  item_.SetCaption(std::wstring(60, L'w'));
  const std::int32_t letter = drawing_.GetCharWidth32A(drawing_.MenuMeasureContext(96), L'w');
  const std::int32_t dot = drawing_.GetCharWidth32A(drawing_.MenuMeasureContext(96), L'.');
  MeasureMenuItem(drawing_, look_, item_, record);
  EXPECT_EQ(record.itemWidth, 35 + 47 * letter + 3 * dot);
  EXPECT_EQ(record.itemHeight, 19);
  item_.SetSubMenu(true);
  MeasureMenuItem(drawing_, look_, item_, record);
  EXPECT_EQ(record.itemWidth, 65 + 47 * letter + 3 * dot);
  item_.SetSeparator(true);
  MeasureMenuItem(drawing_, look_, item_, record);
  EXPECT_EQ(record.itemWidth, 30);
  EXPECT_EQ(record.itemHeight, 10);
  look_.dpi = 144;
  MeasureMenuItem(drawing_, look_, item_, record);
  EXPECT_EQ(record.itemHeight, 15);
}

TEST_F(MenuDrawing, AControlThatIsNoMenuIsNotDrawn) {
  context_ = drawing_.OpenContext(96, 100, 100, kPaper);
  drawing_.StartDrawing(context_);
  MenuItemDraw(drawing_, look_, item_, {2, item_.ID(), 0, context_, {0, 0, 100, 19}});
  EXPECT_TRUE(drawing_.Calls(context_).empty());
}

}  // namespace
}  // namespace burrowmark
