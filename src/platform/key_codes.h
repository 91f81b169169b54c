// Keys by their code, and what is held down with them (winuser.h).
#pragma once

#include <cstdint>

namespace burrowmark {

inline constexpr std::int32_t kKeyCodeBackspace = 8;
inline constexpr std::int32_t kKeyCodeTab = 9;
inline constexpr std::int32_t kKeyCodeReturn = 13;
inline constexpr std::int32_t kKeyCodeEscape = 27;
inline constexpr std::int32_t kKeyCodeSpace = 32;
inline constexpr std::int32_t kKeyCodePageUp = 33;
inline constexpr std::int32_t kKeyCodePageDown = 34;
inline constexpr std::int32_t kKeyCodeEnd = 35;
inline constexpr std::int32_t kKeyCodeHome = 36;
inline constexpr std::int32_t kKeyCodeLeft = 37;
inline constexpr std::int32_t kKeyCodeUp = 38;
inline constexpr std::int32_t kKeyCodeRight = 39;
inline constexpr std::int32_t kKeyCodeDown = 40;
inline constexpr std::int32_t kKeyCodeInsert = 45;
inline constexpr std::int32_t kKeyCodeDelete = 46;
inline constexpr std::int32_t kKeyCodeApps = 93;  // opens a context menu
inline constexpr std::int32_t kKeyCodeF1 = 112;
inline constexpr std::int32_t kKeyCodeF2 = 113;
inline constexpr std::int32_t kKeyCodeF4 = 115;
inline constexpr std::int32_t kKeyCodeF5 = 116;
inline constexpr std::int32_t kKeyCodeF6 = 117;
inline constexpr std::int32_t kKeyCodeF10 = 121;

inline constexpr std::int32_t kShiftMask = 1;
inline constexpr std::int32_t kCtrlMask = 2;
inline constexpr std::int32_t kAltMask = 4;

}  // namespace burrowmark
