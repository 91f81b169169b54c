// Drawing on the local machine: the record and the pixels that tests look at.
#include "tests/platform/local_test.h"

namespace burrowmark {
namespace {

constexpr Color kPaper = 0x00AA5500;
constexpr Color kInk = 0x00112233;

class DrawingTest : public LocalTest {
 protected:
  const Canvas& Pixels() const { return machine_.drawing.Pixels(context_); }
  // The smallest rectangle with all pixels of a colour.
  Rect Extent(Color color) const {
    Rect found{Pixels().width, Pixels().height, 0, 0};
    for (std::int32_t y = 0; y < Pixels().height; ++y) {
      for (std::int32_t x = 0; x < Pixels().width; ++x) {
        if (Pixels().At(x, y) != color) continue;
        found = {std::min(found.left, x), std::min(found.top, y), std::max(found.right, x + 1),
                 std::max(found.bottom, y + 1)};
      }
    }
    return found;
  }

  LocalDrawing& drawing_ = machine_.drawing;
  DeviceContext context_ = drawing_.OpenContext(kDesignDpi, 120, 40, kPaper);
};

TEST_F(DrawingTest, AFillEndsAheadOfItsRightAndBottomAndAtTheEdges) {
  const BrushHandle brush = drawing_.CreateSolidBrush(kInk);
  drawing_.FillRect(context_, {100, 30, 110, 32}, brush);
  EXPECT_EQ(Extent(kInk), (Rect{100, 30, 110, 32}));
  drawing_.FillRect(context_, {-5, 38, 500, 500}, brush);
  EXPECT_EQ(Extent(kInk), (Rect{0, 30, 120, 40}));
  EXPECT_EQ(drawing_.LiveBrushes(), 1U);
  EXPECT_TRUE(drawing_.DeleteObject(brush));
  EXPECT_FALSE(drawing_.DeleteObject(brush));
  EXPECT_EQ(drawing_.LiveBrushes(), 0U);
  EXPECT_EQ(drawing_.FailedDeletes(), 1U);
  drawing_.FillRect(context_, {0, 0, 9, 9}, brush);
  EXPECT_EQ(Pixels().At(0, 0), kPaper) << "a brush that is gone fills nothing";
}

TEST_F(DrawingTest, TextStandsWhereItsFormatPutsIt) {
  const auto [width, height] = drawing_.GetTextExtentPoint32A(drawing_.MenuMeasureContext(kDesignDpi), L"aiW");
  constexpr std::uint32_t kSingleLine = 0x20;
  const Rect rect{10, 5, 110, 35};
  const std::int32_t middle = 10 + (100 - width) / 2;
  const std::pair<std::uint32_t, Rect> rows[] = {
      {kTextBottom, {10, 5, 10 + width, 5 + height}},
      {kTextBottom | kTextCentered, {middle, 5, middle + width, 5 + height}},
      {kTextBottom | kSingleLine, {10, 35 - height, 10 + width, 35}},
  };
  for (const auto& [format, expected] : rows) {
    context_ = drawing_.OpenContext(kDesignDpi, 120, 40, kPaper);
    drawing_.SetBkMode(context_, kBackgroundTransparent);
    drawing_.SetTextColor(context_, kInk);
    drawing_.DrawTextA(context_, L"a&iW", rect, format);
    EXPECT_EQ(Extent(kInk), expected) << format;
    const DrawCall call{.name = "DrawTextA", .rect = rect, .color = kInk, .text = L"a&iW", .format = format};
    EXPECT_EQ(drawing_.Calls(context_).back(), call);
  }
}

TEST_F(DrawingTest, AnIconIsABlockOfItsOwnColour) {
  const IconHandle icon = drawing_.LoadMenuIcon(3, 16);
  EXPECT_EQ(LocalDrawing::IconNumber(icon), 3);
  EXPECT_NE(LocalDrawing::IconColor(3), LocalDrawing::IconColor(4));
  drawing_.DrawIconEx(context_, 7, 4, icon, 16, 16, kIconNormal);
  EXPECT_EQ(Extent(LocalDrawing::IconColor(3)), (Rect{7, 4, 23, 20}));
  EXPECT_EQ(drawing_.Calls(context_).back(),
            (DrawCall{.name = "DrawIconEx", .rect = {7, 4, 23, 20}, .format = kIconNormal, .icon = icon}));
}

}  // namespace
}  // namespace burrowmark
