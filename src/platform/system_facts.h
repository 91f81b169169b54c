// What the machine says about itself: version, folders, locale, ANSI code page, clock.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace burrowmark {

// Kinds of system that SystemVersion::platform tells apart (winnt.h).
inline constexpr std::uint32_t kPlatformWindows = 1;  // the line that started on DOS
inline constexpr std::uint32_t kPlatformNT = 2;

struct SystemVersion {
  std::uint32_t major = 0;
  std::uint32_t minor = 0;
  std::uint32_t build = 0;
  std::uint32_t platform = 0;
};

// Locale settings that GetLocaleInfoA answers (winnls.h).
inline constexpr std::int32_t kLocaleDecimal = 14;
inline constexpr std::int32_t kLocaleThousand = 15;
inline constexpr std::int32_t kLocaleTimeSeparator = 30;
inline constexpr std::int32_t kLocaleShortDate = 31;
inline constexpr std::int32_t kLocaleLongDate = 32;
inline constexpr std::int32_t kLocaleClock24 = 35;      // "1" for a 24-hour clock
inline constexpr std::int32_t kLocaleLeadingZero = 37;  // "1" for hours of two digits
inline constexpr std::int32_t kLocaleMorning = 40;
inline constexpr std::int32_t kLocaleAfternoon = 41;
inline constexpr std::int32_t kLocaleDayName1 = 42;         // Monday; the six others follow
inline constexpr std::int32_t kLocaleShortDayName1 = 49;    // the same, abbreviated
inline constexpr std::int32_t kLocaleMonthName1 = 56;       // January; the eleven others follow
inline constexpr std::int32_t kLocaleShortMonthName1 = 68;  // the same, abbreviated
inline constexpr std::int32_t kLocaleTimeFormat = 0x1003;

class SystemFacts {
 public:
  virtual ~SystemFacts() = default;

  // The true version of the system, whatever the program's manifest says. False if the system doesn't tell.
  virtual bool GetVersionExA(SystemVersion& version) const = 0;
  // Folders without a trailing backslash; empty on failure.
  virtual std::wstring GetWindowsDirectoryA() const = 0;
  virtual std::wstring GetSystemDirectoryA() const = 0;
  // The machine's name on networks; empty if it doesn't tell.
  virtual std::wstring GetComputerNameA() const = 0;
  // The user's folder for files of the moment.
  virtual std::wstring GetTempPathA() const = 0;
  // Full path of the running program.
  virtual std::wstring GetModuleFileNameA() const = 0;
  // A setting of the user's locale (LOCALE_USER_DEFAULT); empty if there is no such setting.
  virtual std::wstring GetLocaleInfoA(std::int32_t setting) const = 0;

  // Bytes of a text in the ANSI code page. False if a character isn't in the page; `bytes` then holds "?" for it.
  virtual bool ToAnsi(std::wstring_view text, std::string& bytes) const = 0;
  virtual std::wstring FromAnsi(std::string_view bytes) const = 0;
};

// A moment on the wall clock, in the user's time zone.
struct LocalTime {
  int year = 0;
  int month = 0;  // from 1
  int day = 0;    // from 1
  int hour = 0;
  int minute = 0;
  int second = 0;

  bool operator==(const LocalTime&) const = default;
};

class Clock {
 public:
  virtual ~Clock() = default;
  virtual LocalTime GetLocalTime() const = 0;
};

}  // namespace burrowmark
