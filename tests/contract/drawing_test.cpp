// What drawing an entry of the menu needs.
#include <string>

#include "tests/contract/system_under_test.h"

namespace burrowmark {
namespace {

class DrawingContract : public ContractTest {
 protected:
  std::int32_t Width(std::int32_t dpi, const std::wstring& text) {
    return drawing_.GetTextExtentPoint32A(drawing_.MenuMeasureContext(dpi), text).width;
  }

  Drawing& drawing_ = platform_.drawing;
};

TEST_F(DrawingContract, ColoursAreTheSystemsAndABrushIsFreedOnce) {
  for (const std::int32_t index : {kColorMenu, kColorMenuText, kColorHighlight, kColorShadow, kColor3DHighlight}) {
    EXPECT_LE(drawing_.GetSysColor(index), 0xFFFFFFU) << index;
  }
  EXPECT_NE(drawing_.GetSysColor(kColorMenu), drawing_.GetSysColor(kColorMenuText));
  EXPECT_FALSE(drawing_.IsHighContrast());
  const BrushHandle brush = drawing_.CreateSolidBrush(0x112233);
  ASSERT_NE(brush, 0);
  EXPECT_TRUE(drawing_.DeleteObject(brush));
  EXPECT_FALSE(drawing_.DeleteObject(0));
}

TEST_F(DrawingContract, EveryPrintedCharacterHasAWidthThatFollowsTheScale) {
  for (wchar_t c = L' '; c <= L'~'; ++c) EXPECT_GT(Width(kDesignDpi, {c}), 0) << static_cast<int>(c);
  for (const wchar_t c : {L'\u00E9', L'\u0416'}) EXPECT_GT(Width(kDesignDpi, {c}), 0);
  EXPECT_LT(Width(kDesignDpi, L"i"), Width(kDesignDpi, L"W"));
  const std::wstring text = L"The quick brown fox jumps over the lazy dog";
  const double one = Width(96, text);
  for (const std::int32_t dpi : {120, 144, 192, 96}) EXPECT_NEAR(Width(dpi, text) / one, dpi / 96.0, 0.15) << dpi;
  EXPECT_EQ(Width(kDesignDpi, L"A & B"), Width(kDesignDpi, L"A ") + Width(kDesignDpi, L"& B"));
  const DeviceContext context = drawing_.MenuMeasureContext(192);
  EXPECT_GT(drawing_.GetTextExtentPoint32A(context, L"a").height, 20);
  EXPECT_EQ(drawing_.GetTextExtentPoint32A(context, L"\u4E2D").height,
            drawing_.GetTextExtentPoint32A(context, L"a").height);
}

TEST_F(DrawingContract, TheIconsLoadInEverySize) {
  ASSERT_EQ(drawing_.MenuIconCount(), 13);
  for (const std::int32_t size : {16, 20, 24, 32, 48}) {
    for (std::int32_t number = 1; number <= 13; ++number) {
      const IconHandle icon = drawing_.LoadMenuIcon(number, size);
      EXPECT_NE(icon, 0) << number << " in " << size;
      EXPECT_EQ(drawing_.LoadMenuIcon(number, size), icon) << number << " in " << size;
    }
  }
  EXPECT_NE(drawing_.LoadMenuIcon(1, 16), drawing_.LoadMenuIcon(1, 32));
  EXPECT_NE(drawing_.LoadMenuIcon(1, 16), drawing_.LoadMenuIcon(2, 16));
  for (const std::int32_t number : {0, 14}) EXPECT_EQ(drawing_.LoadMenuIcon(number, 16), 0) << number;
}

}  // namespace
}  // namespace burrowmark
