// Drawing on the local machine: the record and the pixels.
#include <array>
#include <vector>

#include "platform/local/icon_file.h"
#include "tests/platform/local_test.h"

namespace burrowmark {
namespace {

constexpr Color kPaper = 0x00AA5500;
constexpr Color kInk = 0x00112233;
constexpr Color kWhite = 0xFFFFFF;

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
  void Ink() {
    drawing_.SetBkMode(context_, kBackgroundTransparent);
    drawing_.SetTextColor(context_, kInk | 0x80000000);
  }
  std::int32_t WidthOf(wchar_t c) { return drawing_.GetCharWidth32A(drawing_.MenuMeasureContext(kDesignDpi), c); }

  LocalDrawing& drawing_ = machine_.drawing;
  DeviceContext context_ = drawing_.OpenContext(kDesignDpi, 120, 40, kPaper);
};

TEST_F(DrawingTest, BrushesAreCountedAndDeletedOnce) {
  const BrushHandle brush = drawing_.CreateSolidBrush(kInk);
  EXPECT_EQ(drawing_.LiveBrushes(), 1U);
  EXPECT_TRUE(drawing_.DeleteObject(brush));
  EXPECT_FALSE(drawing_.DeleteObject(brush));
  EXPECT_FALSE(drawing_.DeleteObject(0));
  EXPECT_EQ(drawing_.LiveBrushes(), 0U);
  EXPECT_EQ(drawing_.FailedDeletes(), 2U);
  drawing_.FillRect(context_, {0, 0, 9, 9}, brush);
  EXPECT_EQ(Pixels().At(0, 0), kPaper) << "a brush that is gone fills nothing";
  EXPECT_FALSE(drawing_.Calls(context_).back().color);
}

TEST_F(DrawingTest, AFillEndsAheadOfItsRightAndBottomAndAtTheEdges) {
  const BrushHandle brush = drawing_.CreateSolidBrush(kInk);
  drawing_.FillRect(context_, {100, 30, 110, 32}, brush);
  EXPECT_EQ(Extent(kInk), (Rect{100, 30, 110, 32}));
  drawing_.FillRect(context_, {-5, 38, 500, 500}, brush);
  EXPECT_EQ(Extent(kInk), (Rect{0, 30, 120, 40}));
  drawing_.FillRect(context_, {50, 5, 40, 10}, brush);
  EXPECT_EQ(Extent(kInk), (Rect{0, 30, 120, 40})) << "a rectangle turned inside out is empty";
  EXPECT_TRUE(drawing_.DeleteObject(brush));
}

TEST_F(DrawingTest, TextStandsWhereItsFormatPutsIt) {
  const std::int32_t width = WidthOf(L'a') + WidthOf(L'i') + WidthOf(L'W');
  const std::int32_t height = LocalDrawing::TextHeight(kDesignDpi);
  constexpr std::uint32_t kSingleLine = 0x20;
  const Rect rect{10, 5, 110, 35};
  const std::int32_t middle = 10 + (100 - width) / 2;
  const struct {
    std::uint32_t format;
    Rect expected;
  } cases[] = {
      {0, {10, 5, 10 + width, 5 + height}},
      {kTextBottom, {10, 5, 10 + width, 5 + height}},
      {kTextBottom | kTextCentered, {middle, 5, middle + width, 5 + height}},
      {kTextBottom | kSingleLine, {10, 35 - height, 10 + width, 35}},
  };
  for (const auto& row : cases) {
    SCOPED_TRACE(row.format);
    context_ = drawing_.OpenContext(kDesignDpi, 120, 40, kPaper);
    Ink();
    drawing_.DrawTextA(context_, L"a&iW", rect, row.format);
    EXPECT_EQ(Extent(kInk), row.expected);
    const DrawCall expected{.name = "DrawTextA", .rect = rect, .color = kInk, .text = L"a&iW", .format = row.format};
    EXPECT_EQ(drawing_.Calls(context_).back(), expected);
  }
}

TEST_F(DrawingTest, TextStaysInItsRectangleAndASpaceIsEmpty) {
  Ink();
  drawing_.DrawTextA(context_, L"W W", {0, 0, 200, 4}, 0);
  EXPECT_EQ(Pixels().At(WidthOf(L'W'), 0), kPaper);
  EXPECT_EQ(Extent(kInk), (Rect{0, 0, 2 * WidthOf(L'W') + WidthOf(L' '), 4}));
}

TEST_F(DrawingTest, WithoutATransparentBackgroundTextBringsItsOwn) {
  drawing_.DrawTextA(context_, L"W W", {0, 0, 100, 30}, 0);
  EXPECT_EQ(Pixels().At(WidthOf(L'W'), 0), kWhite);
  EXPECT_EQ(Pixels().At(0, 0), 0U);
}

TEST_F(DrawingTest, AmpersandsTakeNoPlace) {
  const struct {
    const wchar_t* text;
    const wchar_t* seen;
  } cases[] = {{L"&a", L"a"}, {L"a&", L"a"}, {L"&&", L"&"}, {L"a&&b", L"a&b"}, {L"&&&a", L"&a"}, {L"&", L""}};
  for (const auto& row : cases) {
    std::int32_t width = 0;
    for (const wchar_t* c = row.seen; *c != 0; ++c) width += WidthOf(*c);
    EXPECT_EQ(drawing_.TextWidth(row.text, kDesignDpi), width) << ToUtf8(row.text);
  }
}

TEST_F(DrawingTest, CharactersHaveTheirOwnWidthsAndGrowWithTheScale) {
  EXPECT_LT(WidthOf(L'i'), WidthOf(L'a'));
  EXPECT_LT(WidthOf(L'a'), WidthOf(L'W'));
  const DeviceContext normal = drawing_.MenuMeasureContext(kDesignDpi);
  EXPECT_EQ(drawing_.MenuMeasureContext(kDesignDpi), normal);
  const std::int32_t width = drawing_.GetCharWidth32A(normal, L'W');
  const DeviceContext twice = drawing_.MenuMeasureContext(2 * kDesignDpi);
  EXPECT_EQ(drawing_.GetCharWidth32A(twice, L'W'), 2 * width);
  EXPECT_EQ(drawing_.GetCharWidth32A(normal, L'W'), 0) << "another scale has taken its place";
  EXPECT_EQ(drawing_.MenuMeasureContext(0), 0);
}

TEST_F(DrawingTest, AnIconsHandleTellsNumberAndSize) {
  const IconHandle icon = drawing_.LoadMenuIcon(13, 24);
  EXPECT_EQ(LocalDrawing::IconNumber(icon), 13);
  EXPECT_EQ(LocalDrawing::IconSize(icon), 24);
  EXPECT_EQ(drawing_.LoadMenuIcon(14, 16), 0);
  EXPECT_EQ(drawing_.LoadMenuIcon(0, 16), 0);
  EXPECT_EQ(drawing_.LoadMenuIcon(1, 0), 0);
  drawing_.IconCount = 14;
  EXPECT_NE(drawing_.LoadMenuIcon(14, 16), 0);
  EXPECT_NE(LocalDrawing::IconColor(3), LocalDrawing::IconColor(4));
}

TEST_F(DrawingTest, AnIconWithoutAFileIsABlock) {
  const IconHandle icon = drawing_.LoadMenuIcon(3, 16);
  drawing_.DrawIconEx(context_, 7, 4, icon, 16, 16, kIconNormal);
  EXPECT_EQ(Extent(LocalDrawing::IconColor(3)), (Rect{7, 4, 23, 20}));
  EXPECT_EQ(drawing_.Calls(context_).back(),
            (DrawCall{.name = "DrawIconEx", .rect = {7, 4, 23, 20}, .format = kIconNormal, .icon = icon}));
  drawing_.DrawIconEx(context_, 50, 4, icon, 16, 16, 0);
  drawing_.DrawIconEx(context_, 50, 4, 0, 16, 16, kIconNormal);
  EXPECT_EQ(Pixels().At(50, 4), kPaper);
}

// A file with one square image for each size: its top left pixel red and opaque, the next one half blue, all others
// clear.
std::string IconBytes(const std::vector<unsigned char>& sizes) {
  const auto number = [](std::size_t value, std::size_t length) {
    std::string bytes;
    for (std::size_t i = 0; i < length; ++i) bytes += static_cast<char>(value >> 8 * i & 0xFF);
    return bytes;
  };
  std::string directory = number(0, 2) + number(1, 2) + number(sizes.size(), 2);
  std::string images;
  for (const unsigned char size : sizes) {
    std::string image = number(40, 4) + number(size, 4) + number(size * 2U, 4) + number(1, 2) + number(32, 2);
    image.resize(40);
    image.resize(40 + size * (size - 1U) * 4U);
    image += number(0xFFFF0000, 4) + number(0x800000FF, 4);
    image.resize(40 + size * size * 4U);
    directory += number(size, 1) + number(size, 1) + number(0, 6) + number(image.size(), 4) +
                 number(6 + 16 * sizes.size() + images.size(), 4);
    images += image;
  }
  return directory + images;
}

TEST_F(DrawingTest, AnIconWithAFileIsDrawnOverWhatIsThere) {
  drawing_.IconFolder = folder_ / "icons";
  std::filesystem::create_directories(drawing_.IconFolder);
  std::ofstream(drawing_.IconFolder / "03-folder.ico", std::ios::binary) << IconBytes({16, 32});
  std::ofstream(drawing_.IconFolder / "04-damaged.ico", std::ios::binary) << IconBytes({16}).substr(0, 900);
  drawing_.DrawIconEx(context_, 1, 2, drawing_.LoadMenuIcon(3, 16), 16, 16, kIconNormal);
  EXPECT_EQ(Pixels().At(1, 2), 0x0000FFU);
  EXPECT_EQ(Pixels().At(2, 2), 0xD52A00U) << "half of it shines through";
  EXPECT_EQ(Pixels().At(3, 2), kPaper);
  EXPECT_EQ(Pixels().At(1, 3), kPaper);
  drawing_.DrawIconEx(context_, 50, 2, drawing_.LoadMenuIcon(3, 16), 32, 32, kIconNormal);
  EXPECT_EQ(Extent(0x0000FF), (Rect{1, 2, 52, 4})) << "twice as large";
  drawing_.DrawIconEx(context_, 90, 2, drawing_.LoadMenuIcon(4, 16), 16, 16, kIconNormal);
  EXPECT_EQ(Pixels().At(105, 17), LocalDrawing::IconColor(4));
}

TEST_F(DrawingTest, TheImageThatFitsBestIsTaken) {
  const std::string bytes = IconBytes({32, 16, 48});
  const struct {
    std::int32_t wanted;
    std::int32_t found;
  } cases[] = {{16, 16}, {20, 32}, {48, 48}, {64, 48}, {8, 16}};
  for (const auto& row : cases) EXPECT_EQ(ReadIconImage(bytes, row.wanted).size, row.found) << row.wanted;
  EXPECT_EQ(ReadIconImage("", 16).size, 0);
  for (std::size_t length = 0; length < 60; ++length) EXPECT_EQ(ReadIconImage(bytes.substr(0, length), 16).size, 0);
}

TEST_F(DrawingTest, ColoursAreWhatTheTestSays) {
  EXPECT_EQ(drawing_.GetSysColor(kColorHighlight), 0xD77800U);
  drawing_.Colors[kColorHighlight] = 1;
  EXPECT_EQ(drawing_.GetSysColor(kColorHighlight), 1U);
  EXPECT_FALSE(drawing_.IsHighContrast());
  drawing_.HighContrast = true;
  EXPECT_TRUE(drawing_.IsHighContrast());
}

}  // namespace
}  // namespace burrowmark
