// Offsets, sizes and flags of shortcut files: what the reader and the writer of them must agree on.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace burrowmark::link_format {

// The header starts with its size and the number of the kind of file.
inline constexpr std::string_view kStart{"\x4C\0\0\0\x01\x14\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46", 20};
inline constexpr std::size_t kHeaderBytes = 0x4C;
inline constexpr std::size_t kFlagsAt = 0x14;
inline constexpr std::size_t kShowCommandAt = 0x3C;
inline constexpr std::uint32_t kHasIdList = 1;
inline constexpr std::uint32_t kHasLinkInfo = 2;
inline constexpr std::uint32_t kHasName = 4;
inline constexpr std::uint32_t kIsUnicode = 0x80;
inline constexpr std::uint32_t kForceNoLinkInfo = 0x100;

// The ID list: one item for each step from the desktop to the target. An item starts with its size and its kind.
inline constexpr std::size_t kKindAt = 2;
inline constexpr std::uint32_t kKindMask = 0x70;
inline constexpr std::uint32_t kKindRoot = 0x10;
inline constexpr std::uint32_t kKindDrive = 0x20;
inline constexpr std::uint32_t kKindFile = 0x30;
inline constexpr std::uint32_t kKindShare = 0x40;
inline constexpr std::uint32_t kUnicodeName = 4;  // a bit of the kind of a file's item
inline constexpr std::size_t kRootIdAt = 4;
inline constexpr std::string_view kMyComputer{"\xE0\x4F\xD0\x20\xEA\x3A\x69\x10\xA2\xD8\x08\0\x2B\x30\x30\x9D", 16};
inline constexpr std::string_view kNetwork{"\x0D\x1A\x2C\xF0\x21\xBE\x50\x43\x88\xB0\x73\x67\xFC\x96\xEF\x3C", 16};
inline constexpr std::string_view kOldNetwork{"\x60\x2C\x8D\x20\xEA\x3A\x69\x10\xA2\xD7\x08\0\x2B\x30\x30\x9D", 16};
inline constexpr std::size_t kDriveNameAt = 3;
inline constexpr std::size_t kDriveItemBytes = 25;
inline constexpr std::size_t kShareNameAt = 5;
inline constexpr std::size_t kFileNameAt = 14;
// The long name stands in an extension, whose place is the last number of the item.
inline constexpr std::uint32_t kExtension = 0xBEEF0004;
inline constexpr std::size_t kExtensionMarkAt = 4;
inline constexpr std::size_t kLongNameOffsetAt = 16;
inline constexpr std::uint32_t kExtensionVersion = 3;
inline constexpr std::uint32_t kLongNameAt = 20;  // in an extension of this version

// The link's information: where the target was, as text.
inline constexpr std::size_t kInfoHeaderSizeAt = 4;
inline constexpr std::size_t kInfoFlagsAt = 8;
inline constexpr std::size_t kLocalPathOffsetAt = 16;
inline constexpr std::size_t kNetworkOffsetAt = 20;
inline constexpr std::size_t kSuffixOffsetAt = 24;
inline constexpr std::size_t kWideLocalPathOffsetAt = 28;
inline constexpr std::size_t kWideSuffixOffsetAt = 32;
inline constexpr std::uint32_t kShortInfoHeader = 28;
inline constexpr std::uint32_t kWideInfoHeader = 36;
inline constexpr std::uint32_t kInfoLocal = 1;
inline constexpr std::uint32_t kInfoNetwork = 2;
inline constexpr std::size_t kNetNameOffsetAt = 8;
inline constexpr std::size_t kWideNetNameOffsetAt = 20;
inline constexpr std::uint32_t kShortNetHeader = 20;
inline constexpr std::uint32_t kWideNetHeader = 28;

}  // namespace burrowmark::link_format
