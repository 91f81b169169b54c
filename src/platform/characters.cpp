#include "platform/characters.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace burrowmark {
namespace {

// Small letters `first`, `first` + `step` ... `last`, and what is added to each to get its capital.
struct CaseRange {
  std::uint16_t first;
  std::uint16_t last;
  std::uint8_t step;
  std::int32_t toUpper;
};

// Simple upper-case mappings of the Unicode character database (UnicodeData.txt, field 12), basic plane.
// clang-format off
constexpr CaseRange kCaseRanges[] = {
    {0x0061, 0x007A, 1, -32},
    {0x00E0, 0x00F6, 1, -32},
    {0x00F8, 0x00FE, 1, -32},
    {0x00FF, 0x00FF, 1, 121},
    {0x0101, 0x012F, 2, -1},
    {0x0133, 0x0137, 2, -1},
    {0x013A, 0x0148, 2, -1},
    {0x014B, 0x0177, 2, -1},
    {0x017A, 0x017E, 2, -1},
    {0x0180, 0x0180, 1, 195},
    {0x0183, 0x0185, 2, -1},
    {0x0188, 0x0188, 1, -1},
    {0x018C, 0x018C, 1, -1},
    {0x0192, 0x0192, 1, -1},
    {0x0195, 0x0195, 1, 97},
    {0x0199, 0x0199, 1, -1},
    {0x019A, 0x019A, 1, 163},
    {0x019E, 0x019E, 1, 130},
    {0x01A1, 0x01A5, 2, -1},
    {0x01A8, 0x01A8, 1, -1},
    {0x01AD, 0x01AD, 1, -1},
    {0x01B0, 0x01B0, 1, -1},
    {0x01B4, 0x01B6, 2, -1},
    {0x01B9, 0x01B9, 1, -1},
    {0x01BD, 0x01BD, 1, -1},
    {0x01BF, 0x01BF, 1, 56},
    {0x01C5, 0x01C5, 1, -1},
    {0x01C6, 0x01C6, 1, -2},
    {0x01C8, 0x01C8, 1, -1},
    {0x01C9, 0x01C9, 1, -2},
    {0x01CB, 0x01CB, 1, -1},
    {0x01CC, 0x01CC, 1, -2},
    {0x01CE, 0x01DC, 2, -1},
    {0x01DD, 0x01DD, 1, -79},
    {0x01DF, 0x01EF, 2, -1},
    {0x01F2, 0x01F2, 1, -1},
    {0x01F3, 0x01F3, 1, -2},
    {0x01F5, 0x01F5, 1, -1},
    {0x01F9, 0x021F, 2, -1},
    {0x0223, 0x0233, 2, -1},
    {0x023C, 0x023C, 1, -1},
    {0x023F, 0x0240, 1, 10815},
    {0x0242, 0x0242, 1, -1},
    {0x0247, 0x024F, 2, -1},
    {0x0250, 0x0250, 1, 10783},
    {0x0251, 0x0251, 1, 10780},
    {0x0252, 0x0252, 1, 10782},
    {0x0253, 0x0253, 1, -210},
    {0x0254, 0x0254, 1, -206},
    {0x0256, 0x0257, 1, -205},
    {0x0259, 0x0259, 1, -202},
    {0x025B, 0x025B, 1, -203},
    {0x025C, 0x025C, 1, 42319},
    {0x0260, 0x0260, 1, -205},
    {0x0261, 0x0261, 1, 42315},
    {0x0263, 0x0263, 1, -207},
    {0x0265, 0x0265, 1, 42280},
    {0x0266, 0x0266, 1, 42308},
    {0x0268, 0x0268, 1, -209},
    {0x0269, 0x0269, 1, -211},
    {0x026A, 0x026A, 1, 42308},
    {0x026B, 0x026B, 1, 10743},
    {0x026C, 0x026C, 1, 42305},
    {0x026F, 0x026F, 1, -211},
    {0x0271, 0x0271, 1, 10749},
    {0x0272, 0x0272, 1, -213},
    {0x0275, 0x0275, 1, -214},
    {0x027D, 0x027D, 1, 10727},
    {0x0280, 0x0280, 1, -218},
    {0x0282, 0x0282, 1, 42307},
    {0x0283, 0x0283, 1, -218},
    {0x0287, 0x0287, 1, 42282},
    {0x0288, 0x0288, 1, -218},
    {0x0289, 0x0289, 1, -69},
    {0x028A, 0x028B, 1, -217},
    {0x028C, 0x028C, 1, -71},
    {0x0292, 0x0292, 1, -219},
    {0x029D, 0x029D, 1, 42261},
    {0x029E, 0x029E, 1, 42258},
    {0x0371, 0x0373, 2, -1},
    {0x0377, 0x0377, 1, -1},
    {0x037B, 0x037D, 1, 130},
    {0x03AC, 0x03AC, 1, -38},
    {0x03AD, 0x03AF, 1, -37},
    {0x03B1, 0x03C1, 1, -32},
    {0x03C2, 0x03C2, 1, -31},
    {0x03C3, 0x03CB, 1, -32},
    {0x03CC, 0x03CC, 1, -64},
    {0x03CD, 0x03CE, 1, -63},
    {0x03D0, 0x03D0, 1, -62},
    {0x03D1, 0x03D1, 1, -57},
    {0x03D5, 0x03D5, 1, -47},
    {0x03D6, 0x03D6, 1, -54},
    {0x03D7, 0x03D7, 1, -8},
    {0x03D9, 0x03EF, 2, -1},
    {0x03F0, 0x03F0, 1, -86},
    {0x03F1, 0x03F1, 1, -80},
    {0x03F2, 0x03F2, 1, 7},
    {0x03F3, 0x03F3, 1, -116},
    {0x03F5, 0x03F5, 1, -96},
    {0x03F8, 0x03F8, 1, -1},
    {0x03FB, 0x03FB, 1, -1},
    {0x0430, 0x044F, 1, -32},
    {0x0450, 0x045F, 1, -80},
    {0x0461, 0x0481, 2, -1},
    {0x048B, 0x04BF, 2, -1},
    {0x04C2, 0x04CE, 2, -1},
    {0x04CF, 0x04CF, 1, -15},
    {0x04D1, 0x052F, 2, -1},
    {0x0561, 0x0586, 1, -48},
    {0x10D0, 0x10FA, 1, 3008},
    {0x10FD, 0x10FF, 1, 3008},
    {0x13F8, 0x13FD, 1, -8},
    {0x1C80, 0x1C80, 1, -6254},
    {0x1C81, 0x1C81, 1, -6253},
    {0x1C82, 0x1C82, 1, -6244},
    {0x1C83, 0x1C84, 1, -6242},
    {0x1C85, 0x1C85, 1, -6243},
    {0x1C86, 0x1C86, 1, -6236},
    {0x1C87, 0x1C87, 1, -6181},
    {0x1C88, 0x1C88, 1, 35266},
    {0x1D79, 0x1D79, 1, 35332},
    {0x1D7D, 0x1D7D, 1, 3814},
    {0x1D8E, 0x1D8E, 1, 35384},
    {0x1E01, 0x1E95, 2, -1},
    {0x1EA1, 0x1EFF, 2, -1},
    {0x1F00, 0x1F07, 1, 8},
    {0x1F10, 0x1F15, 1, 8},
    {0x1F20, 0x1F27, 1, 8},
    {0x1F30, 0x1F37, 1, 8},
    {0x1F40, 0x1F45, 1, 8},
    {0x1F51, 0x1F57, 2, 8},
    {0x1F60, 0x1F67, 1, 8},
    {0x1F70, 0x1F71, 1, 74},
    {0x1F72, 0x1F75, 1, 86},
    {0x1F76, 0x1F77, 1, 100},
    {0x1F78, 0x1F79, 1, 128},
    {0x1F7A, 0x1F7B, 1, 112},
    {0x1F7C, 0x1F7D, 1, 126},
    {0x1FB0, 0x1FB1, 1, 8},
    {0x1FD0, 0x1FD1, 1, 8},
    {0x1FE0, 0x1FE1, 1, 8},
    {0x1FE5, 0x1FE5, 1, 7},
    {0x214E, 0x214E, 1, -28},
    {0x2170, 0x217F, 1, -16},
    {0x2184, 0x2184, 1, -1},
    {0x24D0, 0x24E9, 1, -26},
    {0x2C30, 0x2C5F, 1, -48},
    {0x2C61, 0x2C61, 1, -1},
    {0x2C65, 0x2C65, 1, -10795},
    {0x2C66, 0x2C66, 1, -10792},
    {0x2C68, 0x2C6C, 2, -1},
    {0x2C73, 0x2C73, 1, -1},
    {0x2C76, 0x2C76, 1, -1},
    {0x2C81, 0x2CE3, 2, -1},
    {0x2CEC, 0x2CEE, 2, -1},
    {0x2CF3, 0x2CF3, 1, -1},
    {0x2D00, 0x2D25, 1, -7264},
    {0x2D27, 0x2D27, 1, -7264},
    {0x2D2D, 0x2D2D, 1, -7264},
    {0xA641, 0xA66D, 2, -1},
    {0xA681, 0xA69B, 2, -1},
    {0xA723, 0xA72F, 2, -1},
    {0xA733, 0xA76F, 2, -1},
    {0xA77A, 0xA77C, 2, -1},
    {0xA77F, 0xA787, 2, -1},
    {0xA78C, 0xA78C, 1, -1},
    {0xA791, 0xA793, 2, -1},
    {0xA794, 0xA794, 1, 48},
    {0xA797, 0xA7A9, 2, -1},
    {0xA7B5, 0xA7C3, 2, -1},
    {0xA7C8, 0xA7CA, 2, -1},
    {0xA7D1, 0xA7D1, 1, -1},
    {0xA7D7, 0xA7D9, 2, -1},
    {0xA7F6, 0xA7F6, 1, -1},
    {0xAB53, 0xAB53, 1, -928},
    {0xAB70, 0xABBF, 1, -38864},
    {0xFF41, 0xFF5A, 1, -32},
};
// clang-format on

constexpr char32_t kReplacement = 0xFFFD;
constexpr bool kWideIs16Bits = sizeof(wchar_t) == 2;

constexpr bool IsHighSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDBFF; }
constexpr bool IsLowSurrogate(char32_t c) { return c >= 0xDC00 && c <= 0xDFFF; }

void AppendUtf8(std::string& out, char32_t c) {
  const auto put = [&out](char32_t byte) { out.push_back(static_cast<char>(static_cast<unsigned char>(byte))); };
  if (c < 0x80) {
    put(c);
  } else if (c < 0x800) {
    put(0xC0 | (c >> 6));
    put(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    put(0xE0 | (c >> 12));
    put(0x80 | ((c >> 6) & 0x3F));
    put(0x80 | (c & 0x3F));
  } else {
    put(0xF0 | (c >> 18));
    put(0x80 | ((c >> 12) & 0x3F));
    put(0x80 | ((c >> 6) & 0x3F));
    put(0x80 | (c & 0x3F));
  }
}

void AppendWide(std::wstring& out, char32_t c) {
  if (kWideIs16Bits && c >= 0x10000) {
    out.push_back(static_cast<wchar_t>(0xD800 + ((c - 0x10000) >> 10)));
    out.push_back(static_cast<wchar_t>(0xDC00 + ((c - 0x10000) & 0x3FF)));
  } else {
    out.push_back(static_cast<wchar_t>(c));
  }
}

// How many bytes follow a lead byte, and the bounds of the first of them (Unicode standard, table 3-7).
struct LeadByte {
  int following = -1;
  unsigned char low = 0x80;
  unsigned char high = 0xBF;
};

LeadByte ClassifyLead(unsigned char lead) {
  if (lead < 0x80) return {0};
  if (lead < 0xC2 || lead > 0xF4) return {};
  if (lead < 0xE0) return {1};
  if (lead < 0xF0) {
    return {2, static_cast<unsigned char>(lead == 0xE0 ? 0xA0 : 0x80),
            static_cast<unsigned char>(lead == 0xED ? 0x9F : 0xBF)};
  }
  return {3, static_cast<unsigned char>(lead == 0xF0 ? 0x90 : 0x80),
          static_cast<unsigned char>(lead == 0xF4 ? 0x8F : 0xBF)};
}

// Takes one character, or one run that isn't any, off the front of `bytes` at `at`.
char32_t TakeUtf8(std::string_view bytes, std::size_t& at) {
  const auto lead = static_cast<unsigned char>(bytes[at++]);
  LeadByte kind = ClassifyLead(lead);
  if (kind.following < 0) return kReplacement;
  if (kind.following == 0) return lead;
  char32_t c = lead & (0x3FU >> kind.following);
  for (int i = 0; i < kind.following; ++i) {
    if (at == bytes.size()) return kReplacement;
    const auto next = static_cast<unsigned char>(bytes[at]);
    if (next < kind.low || next > kind.high) return kReplacement;
    kind.low = 0x80;
    kind.high = 0xBF;
    c = (c << 6) | (next & 0x3FU);
    ++at;
  }
  return c;
}

}  // namespace

wchar_t UpperCase(wchar_t character) {
  const auto c = static_cast<char32_t>(character);
  if (c < 0x80) return c >= 'a' && c <= 'z' ? static_cast<wchar_t>(c - 32) : character;
  if (c > 0xFFFF) return character;
  const auto* range = std::lower_bound(std::begin(kCaseRanges), std::end(kCaseRanges), c,
                                       [](const CaseRange& row, std::uint32_t value) { return row.last < value; });
  if (range == std::end(kCaseRanges) || c < range->first || (c - range->first) % range->step != 0) return character;
  return static_cast<wchar_t>(static_cast<std::int32_t>(c) + range->toUpper);
}

wchar_t LowerCase(wchar_t character) {
  const auto c = static_cast<std::int32_t>(static_cast<char32_t>(character));
  if (c < 0x80) return c >= 'A' && c <= 'Z' ? static_cast<wchar_t>(c + 32) : character;
  for (const CaseRange& range : kCaseRanges) {
    const std::int32_t small = c - range.toUpper;
    if (small >= range.first && small <= range.last && (small - range.first) % range.step == 0) {
      return static_cast<wchar_t>(small);
    }
  }
  return character;
}

std::string ToUtf8(std::wstring_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    auto c = static_cast<char32_t>(text[i]);
    if (kWideIs16Bits && IsHighSurrogate(c) && i + 1 < text.size() &&
        IsLowSurrogate(static_cast<char32_t>(text[i + 1]))) {
      c = 0x10000 + ((c - 0xD800) << 10) + (static_cast<char32_t>(text[++i]) - 0xDC00);
    } else if (IsHighSurrogate(c) || IsLowSurrogate(c) || c > 0x10FFFF) {
      c = kReplacement;
    }
    AppendUtf8(out, c);
  }
  return out;
}

std::wstring FromUtf8(std::string_view bytes) {
  std::wstring out;
  out.reserve(bytes.size());
  for (std::size_t at = 0; at < bytes.size();) AppendWide(out, TakeUtf8(bytes, at));
  return out;
}

bool EqualIgnoringCase(std::wstring_view left, std::wstring_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](wchar_t a, wchar_t b) { return a == b || UpperCase(a) == UpperCase(b); });
}

bool LessIgnoringCase(std::wstring_view left, std::wstring_view right) {
  return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end(),
                                      [](wchar_t a, wchar_t b) { return a != b && UpperCase(a) < UpperCase(b); });
}

}  // namespace burrowmark
