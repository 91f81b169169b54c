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
    EXPECT_EQ(drawing_.LiveBrushes() + drawing_.FailedDeletes(), 0U);
    return drawing_.Pixels(context_);
  }
  // The last call of a name; none is a call without one.
  DrawCall Call(const std::string& name) {
    DrawCall found;
    for (const DrawCall& call : drawing_.Calls(context_)) {
      if (call.name == name) found = call;
    }
    return found;
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
  EXPECT_EQ(canvas.At(36, 22), 0x000007U);  // the literal colour, at the top of its rectangle
  const DrawCall text = Call("DrawTextA");
  EXPECT_EQ(text.rect, (Rect{36, 22, 130, 39}));
  EXPECT_EQ(text.format, 8U);
  EXPECT_EQ(text.text, L"ab");
  const DrawCall icon = Call("DrawIconEx");
  EXPECT_EQ(icon.rect, (Rect{14, 22, 30, 38}));
  EXPECT_EQ(LocalDrawing::IconNumber(icon.icon), 3);
  EXPECT_EQ(Call("SetBkMode").mode, 1);
  item_.SetCaption(L"R&D");
  Draw(0);
  EXPECT_EQ(Call("DrawTextA").text, L"R&&D") << "of which one is seen";
  for (const std::int16_t none : {std::int16_t{0}, std::int16_t{-1}, std::int16_t{14}}) {
    item_.IconID = none;
    Draw(0);
    EXPECT_EQ(Call("DrawIconEx").name, "") << none;
  }
}

TEST_F(MenuDrawing, ASelectedShortcutIsRedBesideItsRaisedIcon) {
  const Canvas& canvas = Draw(257);
  const std::tuple<std::int32_t, std::int32_t, Color> cases[] = {
      {33, 25, kPaper},  // between the frame and the bar, which starts at 24
      {34, 20, kRed},    {129, 38, kRed},   {10, 20, kLight},  {31, 20, kLight}, {10, 37, kLight},
      {32, 20, kShadow}, {32, 38, kShadow}, {10, 38, kShadow}, {11, 21, kPaper},  // inside the frame
      {36, 22, kLight}};
  for (const auto& [x, y, color] : cases) EXPECT_EQ(canvas.At(x, y), color) << x << ' ' << y;
  drawing_.Colors[kColor3DHighlight] = kMenuColor;
  EXPECT_EQ(Draw(257).At(10, 20), kRed);
  EXPECT_EQ(Call("DrawIconEx").name, "DrawIconEx");
  look_.ShowIcons = false;
  drawing_.Colors[kColor3DHighlight] = kLight;
  EXPECT_EQ(Draw(257).At(10, 20), kRed);
  EXPECT_EQ(Call("DrawIconEx").name, "");
  EXPECT_EQ(Call("DrawTextA").rect.left, 36);
}

TEST_F(MenuDrawing, TheBarsColourGoesByTheTypeAndTheExactState) {
  for (const wchar_t* type : {MIT_PATH, MIT_DRIVE, MIT_OPENALL, MIT_GROUP_GENERAL, MIT_HF_SETTINGS}) {
    item_.ItemType = type;
    const bool opens = item_.ItemType != MIT_GROUP_GENERAL && item_.ItemType != MIT_HF_SETTINGS;
    for (const bool redBar : {true, false}) {
      look_.RedBar = redBar;
      EXPECT_EQ(Draw(257).At(100, 30), redBar && opens ? kRed : kHighlight) << ToUtf8(type) << redBar;
    }
  }
  for (const std::uint32_t state : {0U, 1U, 256U, 257U | 16U}) EXPECT_EQ(Draw(state).At(100, 30), kMenuColor) << state;
  look_.SelectedState = 1;
  EXPECT_EQ(Draw(1).At(100, 30), kHighlight);
}

TEST_F(MenuDrawing, ASeparatorIsADoubleLineAroundItsTitle) {
  for (const wchar_t* title : {L"", L"a"}) {
    item_.SetSeparator(true);
    item_.SetCaption(title);
    const Canvas& canvas = Draw(0, 120, 10);
    for (std::int32_t x = 11; x <= 128; x += *title != 0 && x == 47 ? 45 : 1) {  // past the title
      const bool line = x > 11 && x < 128 && (*title == L'\0' || x < 47 || x > 92);
      EXPECT_EQ(canvas.At(x, 23), kPaper);
      EXPECT_EQ(canvas.At(x, 24), line ? kShadow : kPaper) << x;
      EXPECT_EQ(canvas.At(x, 25), line ? kLight : kPaper) << x;
      EXPECT_EQ(canvas.At(x, 26), kPaper);
    }
  }
  EXPECT_EQ(Call("DrawTextA").rect, (Rect{10, 17, 130, 33}));
  EXPECT_EQ(Call("DrawTextA").format, 9U);
}

TEST_F(MenuDrawing, AtTwiceTheResolutionEverythingIsTwiceAsLarge) {
  look_.dpi = 192;
  const Canvas& canvas = Draw(257, 240, 38);
  EXPECT_EQ(canvas.At(57, 30), kPaper);
  EXPECT_EQ(canvas.At(58, 30), kRed);
  EXPECT_EQ(canvas.At(54, 56), kShadow);
  EXPECT_EQ(Call("DrawTextA").rect, (Rect{62, 24, 250, 58}));
  EXPECT_EQ(Call("DrawIconEx").rect, (Rect{18, 24, 50, 56}));
}

TEST_F(MenuDrawing, HighContrastTakesTheColoursOfTheUser) {
  drawing_.HighContrast = true;
  drawing_.Colors[7] = 0x00FF00;
  drawing_.Colors[14] = 0x00FFFF;
  Draw(0);
  EXPECT_EQ(Call("DrawTextA").color, 0x00FF00U);
  EXPECT_EQ(Draw(257).At(100, 30), kHighlight) << "no red";
  EXPECT_EQ(Call("DrawTextA").color, 0x00FFFFU);
}

TEST_F(MenuDrawing, TheDarkPairIsLightOnDarkWithAnArrowThatIsSeen) {
  look_.Dark = true;
  item_.SetSubMenu(true);
  const Canvas& canvas = Draw(0);
  EXPECT_EQ(canvas.At(10, 20), 0x2B2B2BU);
  EXPECT_EQ(Call("DrawTextA").color, 0xFFFFFFU);
  EXPECT_EQ(canvas.At(118, 29), 0xFFFFFFU);
  EXPECT_EQ(Call("ExcludeClipRect").rect, (Rect{10, 20, 130, 39})) << "the system's arrow is kept away";
  EXPECT_EQ(Draw(257).At(100, 30), kHighlight);
}

TEST_F(MenuDrawing, WidthsAreTheSumOfTheCharactersOfTheShortenedTitle) {
  item_.SetCaption(std::wstring(60, L'w'));
  const DeviceContext context = drawing_.MenuMeasureContext(96);
  const std::int32_t text = drawing_.GetTextExtentPoint32A(context, std::wstring(47, L'w') + L"...").width;
  const auto sizeIs = [this](std::int32_t width, std::int32_t height) {
    MeasureRecord record;
    MeasureMenuItem(drawing_, look_, item_, record);
    EXPECT_EQ(record.itemWidth, width);
    EXPECT_EQ(record.itemHeight, height);
  };
  sizeIs(35 + text, 19);
  item_.SetSubMenu(true);
  sizeIs(65 + text, 19);
  item_.SetSeparator(true);
  sizeIs(30, 10);
  look_.dpi = 144;
  sizeIs(45, 15);
  item_.SetSeparator(false);
  item_.SetSubMenu(false);
  item_.SetCaption(L"");
  drawing_.MenuFontHeight = 30;
  sizeIs(53, 45 + 6);  // the height of large letters and some room
}

}  // namespace
}  // namespace burrowmark
