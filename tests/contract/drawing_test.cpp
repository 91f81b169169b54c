// What drawing an entry of the menu needs.
#include <string>

#include "tests/contract/system_under_test.h"

namespace burrowmark {
namespace {

class DrawingContract : public ContractTest {
 protected:
  std::int32_t Width(std::int32_t dpi, const std::wstring& text) {
    const DeviceContext context = drawing_.MenuMeasureContext(dpi);
    std::int32_t width = 0;
    for (const wchar_t c : text) width += drawing_.GetCharWidth32A(context, c);
    return width;
  }

  Drawing& drawing_ = platform_.drawing;
};
INSTANTIATE_TEST_SUITE_P(Systems, DrawingContract, ::testing::ValuesIn(Systems()), KindName);

TEST_P(DrawingContract, SystemColoursAreColours) {
  for (const std::int32_t index : {kColorMenu, kColorMenuText, kColorHighlight, kColorShadow, kColor3DHighlight}) {
    EXPECT_LE(drawing_.GetSysColor(index), 0xFFFFFFU) << index;
  }
  EXPECT_NE(drawing_.GetSysColor(kColorMenu), drawing_.GetSysColor(kColorMenuText));
  EXPECT_FALSE(drawing_.IsHighContrast());
}

// More rounds than a process may hold brushes.
TEST_P(DrawingContract, ADeletedBrushIsFreed) {
  constexpr int kRounds = 70'000;
  for (int i = 0; i < kRounds; ++i) {
    const BrushHandle brush = drawing_.CreateSolidBrush(static_cast<Color>(i));
    ASSERT_NE(brush, 0) << "round " << i;
    ASSERT_TRUE(drawing_.DeleteObject(brush));
  }
  EXPECT_FALSE(drawing_.DeleteObject(0));
}

TEST_P(DrawingContract, EveryPrintedCharacterHasAWidth) {
  const DeviceContext context = drawing_.MenuMeasureContext(kDesignDpi);
  ASSERT_NE(context, 0);
  for (wchar_t c = L' '; c <= L'~'; ++c) EXPECT_GT(drawing_.GetCharWidth32A(context, c), 0) << static_cast<int>(c);
  EXPECT_GT(drawing_.GetCharWidth32A(context, L'\u00E9'), 0);
  EXPECT_GT(drawing_.GetCharWidth32A(context, L'\u0416'), 0);
  EXPECT_LT(drawing_.GetCharWidth32A(context, L'i'), drawing_.GetCharWidth32A(context, L'W'));
}

TEST_P(DrawingContract, WidthsFollowTheScale) {
  const std::wstring text = L"The quick brown fox jumps over the lazy dog";
  const double one = Width(96, text);
  const struct {
    std::int32_t dpi;
    double factor;
  } rows[] = {{120, 1.25}, {144, 1.5}, {192, 2}, {96, 1}};
  for (const auto& row : rows) {
    EXPECT_NEAR(Width(row.dpi, text) / one, row.factor, 0.15) << row.dpi;
    EXPECT_EQ(Width(row.dpi, text), Width(row.dpi, text)) << row.dpi;
  }
}

// More rounds than a process may hold fonts.
TEST_P(DrawingContract, ChangingScalesLeavesNothingBehind) {
  constexpr int kRounds = 20'000;
  for (int i = 0; i < kRounds; ++i) ASSERT_NE(drawing_.MenuMeasureContext(i % 2 == 0 ? 96 : 144), 0) << "round " << i;
  EXPECT_GT(Width(96, L"x"), 0);
}

TEST_P(DrawingContract, TheIconsLoadInEverySize) {
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
}

TEST_P(DrawingContract, ThereIsNoIconBeyondTheirCount) {
  for (const std::int32_t number : {-1, 0, 14, 1000}) EXPECT_EQ(drawing_.LoadMenuIcon(number, 16), 0) << number;
}

TEST_P(DrawingContract, DrawingNowhereIsNoFault) {
  const BrushHandle brush = drawing_.CreateSolidBrush(0xFF);
  drawing_.FillRect(0, {0, 0, 10, 10}, brush);
  drawing_.SetBkMode(0, kBackgroundTransparent);
  drawing_.SetTextColor(0, 0x80000007);
  drawing_.DrawTextA(0, L"text", {0, 0, 10, 10}, kTextBottom);
  drawing_.DrawIconEx(0, 0, 0, drawing_.LoadMenuIcon(1, 16), 16, 16, kIconNormal);
  EXPECT_EQ(drawing_.GetCharWidth32A(0, L'x'), 0);
  EXPECT_TRUE(drawing_.DeleteObject(brush));
}

}  // namespace
}  // namespace burrowmark
