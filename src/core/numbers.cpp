#include "core/numbers.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "core/failure.h"
#include "core/text.h"

namespace burrowmark {
namespace {

int DigitValue(wchar_t c) {
  if (c >= L'0' && c <= L'9') return c - L'0';
  const wchar_t upper = UpperCase(c);
  return upper >= L'A' && upper <= L'F' ? upper - L'A' + 10 : 16;
}

std::int64_t ParseDigits(std::wstring_view digits, int base) {
  if (digits.empty()) throw ConversionFailure("a number without digits");
  std::int64_t value = 0;
  bool tooLarge = false;
  for (const wchar_t c : digits) {
    const int digit = DigitValue(c);
    if (digit >= base) throw ConversionFailure("not a digit");
    value = value * base + digit;
    if (value > std::numeric_limits<std::uint32_t>::max()) tooLarge = true;
    if (tooLarge) value = 0;  // the rest is still checked to be digits
  }
  if (tooLarge) throw OverflowFailure("a number out of range");
  return value;
}

std::int64_t ParseNumber(std::wstring_view text) {
  if (text.size() > 1 && text[0] == L'&' && UpperCase(text[1]) == L'H') {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(ParseDigits(text.substr(2), 16)));
  }
  const bool negative = !text.empty() && text[0] == L'-';
  if (negative || (!text.empty() && text[0] == L'+')) text.remove_prefix(1);
  const std::int64_t value = ParseDigits(text, 10);
  return negative ? -value : value;
}

template <typename Integer>
Integer ToInteger(std::wstring_view text) {
  const std::int64_t value = ParseNumber(TrimmedPart(text));
  if (value < std::numeric_limits<Integer>::min() || value > std::numeric_limits<Integer>::max()) {
    throw OverflowFailure("a number out of range");
  }
  return static_cast<Integer>(value);
}

// Rounds at 15 significant digits first, so that 1.005 counts as the half that a person sees in it.
double RoundHalfAway(double scaled) {
  char text[40];
  std::snprintf(text, sizeof text, "%.15g", scaled);
  return std::round(std::strtod(text, nullptr));
}

void InsertGroups(std::wstring& digits, const std::wstring& sign) {
  for (std::size_t at = digits.size(); at > 3;) {
    at -= 3;
    digits.insert(at, sign);
  }
}

}  // namespace

std::wstring DecimalText(std::int64_t value) {
  const std::string digits = std::to_string(value);
  return {digits.begin(), digits.end()};
}

std::wstring BooleanNumberText(bool value) { return value ? L"-1" : L"0"; }

std::int32_t ToInt32(std::wstring_view text) { return ToInteger<std::int32_t>(text); }

std::int16_t ToInt16(std::wstring_view text) { return ToInteger<std::int16_t>(text); }

bool ToBoolean(std::wstring_view text) {
  const std::wstring_view word = TrimmedPart(text);
  if (EqualIgnoringCase(word, L"True")) return true;
  if (EqualIgnoringCase(word, L"False")) return false;
  return ToInt32(word) != 0;
}

std::wstring FormatNumber(double value, std::wstring_view picture, const SystemFacts& system) {
  const std::size_t point = picture.find(L'.');
  const std::wstring_view whole = picture.substr(0, point);
  const std::size_t decimals = point == std::wstring_view::npos ? 0 : picture.size() - point - 1;
  const double rounded = RoundHalfAway(std::fabs(value) * std::pow(10.0, static_cast<double>(decimals)));

  char text[400];  // the largest double has 309 digits
  std::snprintf(text, sizeof text, "%.0f", rounded);
  std::wstring digits = FromUtf8(text);
  if (digits.size() <= decimals) digits.insert(0, decimals + 1 - digits.size(), L'0');
  std::wstring fraction = digits.substr(digits.size() - decimals);
  digits.erase(digits.size() - decimals);
  if (digits == L"0" && whole.find(L'0') == std::wstring_view::npos) digits.clear();
  if (whole.find(L',') != std::wstring_view::npos) InsertGroups(digits, system.GetLocaleInfoA(kLocaleThousand));
  if (decimals > 0) digits += system.GetLocaleInfoA(kLocaleDecimal) + fraction;
  return value < 0 && rounded > 0 ? L"-" + digits : digits;
}

}  // namespace burrowmark
