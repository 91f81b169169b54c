#include "core/os_detection.h"

#include <algorithm>
#include <iterator>

namespace burrowmark {
namespace {

constexpr std::uint32_t kAny = 0xFFFFFFFF;

// Names from version 4 to 6 by major version, minor version and platform, the first fitting row.
struct OsName {
  std::uint32_t major;
  std::uint32_t minor;
  std::uint32_t platform;
  const wchar_t* name;
};

constexpr OsName kOsNames[] = {
    {3, kAny, kAny, L"Windows NT 3.51"},
    {4, 0, kPlatformWindows, L"Windows 95"},
    {4, 98, kPlatformWindows, L"Windows ME"},
    {4, kAny, kPlatformWindows, L"Windows 98"},
    {4, kAny, kPlatformNT, L"Windows NT 4.0"},
    {5, 0, kAny, L"Windows 2000"},
    {5, 1, kAny, L"Windows XP"},
    {5, kAny, kAny, L"Windows 2003"},
    {6, 0, kAny, L"Windows Vista"},
    {6, 1, kAny, L"Windows 7"},
    {6, 2, kAny, L"Windows 8"},
    {6, kAny, kAny, L"Windows 8.1"},
};

constexpr std::uint32_t kFirstBuildOf11 = 22000;

bool Fits(const OsName& row, const SystemVersion& version) {
  return row.major == version.major && (row.minor == kAny || row.minor == version.minor) &&
         (row.platform == kAny || row.platform == version.platform);
}

}  // namespace

OsDetection DetectOs(const SystemFacts& system) {
  SystemVersion version;
  if (!system.GetVersionExA(version)) return {};
  const bool isNT4 = version.major == 4 && version.minor == 0 && version.platform != kPlatformWindows;
  return {!(version.major > 4 || isNT4), version.major >= 5 ? kSelectedStateNew : kSelectedStateOld};
}

std::wstring GetOSName(const SystemFacts& system) {
  SystemVersion version;
  if (!system.GetVersionExA(version)) return {};
  if (version.major >= 10) return version.build < kFirstBuildOf11 ? L"Windows 10" : L"Windows 11";
  const auto* row = std::find_if(std::begin(kOsNames), std::end(kOsNames),
                                 [&version](const OsName& name) { return Fits(name, version); });
  return row == std::end(kOsNames) ? std::wstring() : row->name;
}

}  // namespace burrowmark
