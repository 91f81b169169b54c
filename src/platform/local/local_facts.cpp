#include "platform/local/local_facts.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace burrowmark {
namespace {

struct LocaleRow {
  std::int32_t setting;
  const wchar_t* text;
};

constexpr LocaleRow kUnitedStates[] = {{kLocaleDecimal, L"."},
                                       {kLocaleThousand, L","},
                                       {kLocaleTimeSeparator, L":"},
                                       {kLocaleShortDate, L"M/d/yyyy"},
                                       {kLocaleLongDate, L"dddd, MMMM d, yyyy"},
                                       {kLocaleClock24, L"0"},
                                       {kLocaleLeadingZero, L"0"},
                                       {kLocaleMorning, L"AM"},
                                       {kLocaleAfternoon, L"PM"},
                                       {kLocaleTimeFormat, L"h:mm:ss tt"}};
constexpr std::array<const wchar_t*, 7> kDays = {L"Monday", L"Tuesday",  L"Wednesday", L"Thursday",
                                                 L"Friday", L"Saturday", L"Sunday"};
constexpr std::array<const wchar_t*, 12> kMonths = {L"January",   L"February", L"March",    L"April",
                                                    L"May",       L"June",     L"July",     L"August",
                                                    L"September", L"October",  L"November", L"December"};
constexpr std::size_t kShortName = 3;  // characters of an abbreviated name

// Windows-1252 from 0x80 to 0x9F; its other bytes have the number of their character. Bytes that the code page leaves
// undefined stand for the control character of the same number, as the system maps them.
constexpr std::array<wchar_t, 32> kPage1252 = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                               0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                               0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                               0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr unsigned kPageStart = 0x80;
constexpr unsigned kPageEnd = kPageStart + kPage1252.size();

template <std::size_t Count>
void AddNames(std::map<std::int32_t, std::wstring>& locale, const std::array<const wchar_t*, Count>& names,
              std::int32_t firstLong, std::int32_t firstShort) {
  for (const wchar_t* name : names) {
    locale[firstLong++] = name;
    locale[firstShort++] = std::wstring(name).substr(0, kShortName);
  }
}

bool IsItsOwnByte(wchar_t c) {
  const auto code = static_cast<char32_t>(c);
  return code < kPageStart || (code >= kPageEnd && code <= 0xFF);
}

}  // namespace

LocalFacts::LocalFacts() {
  for (const LocaleRow& row : kUnitedStates) Locale[row.setting] = row.text;
  AddNames(Locale, kDays, kLocaleDayName1, kLocaleShortDayName1);
  AddNames(Locale, kMonths, kLocaleMonthName1, kLocaleShortMonthName1);
}

bool LocalFacts::GetVersionExA(SystemVersion& version) const {
  if (VersionFails) return false;
  version = Version;
  return true;
}

std::wstring LocalFacts::GetLocaleInfoA(std::int32_t setting) const {
  const auto found = Locale.find(setting);
  return found == Locale.end() ? std::wstring() : found->second;
}

bool LocalFacts::ToAnsi(std::wstring_view text, std::string& bytes) const {
  bytes.clear();
  bytes.reserve(text.size());
  bool allFit = true;
  for (const wchar_t c : text) {
    if (static_cast<char32_t>(c) < kPageStart) {
      bytes += static_cast<char>(c);
      continue;
    }
    const auto* row = std::find(kPage1252.begin(), kPage1252.end(), c);
    const bool inTable = row != kPage1252.end();
    const bool fits = inTable || IsItsOwnByte(c);
    const auto code = inTable ? kPageStart + static_cast<unsigned>(std::distance(kPage1252.begin(), row))
                              : static_cast<unsigned>(fits ? c : L'?');
    bytes += static_cast<char>(static_cast<unsigned char>(code));
    allFit = allFit && fits;
  }
  return allFit;
}

std::wstring LocalFacts::FromAnsi(std::string_view bytes) const {
  std::wstring text;
  text.reserve(bytes.size());
  for (const char c : bytes) {
    const unsigned byte = static_cast<unsigned char>(c);
    text += byte >= kPageStart && byte < kPageEnd ? kPage1252[byte - kPageStart] : static_cast<wchar_t>(byte);
  }
  return text;
}

}  // namespace burrowmark
