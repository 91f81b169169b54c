#include <algorithm>
#include <utility>

#include "platform/local/links/link_bytes.h"
#include "platform/local/links/link_file.h"
#include "platform/local/links/link_format.h"
#include "platform/local/utf16.h"

namespace burrowmark {
namespace {

using namespace link_format;

constexpr std::int32_t kShowMaximized = 3;
constexpr std::int32_t kShowMinimized = 7;

std::wstring AnsiText(std::string_view bytes, const SystemFacts& facts) {
  const std::optional<std::string_view> text = UpToNul(bytes, 1);
  return text ? facts.FromAnsi(*text) : std::wstring();
}

std::wstring WideText(std::string_view bytes) { return FromUtf16Bytes(UpToNul(bytes, 2).value_or("")); }

// A text that may also be there as Unicode, each at a place that stands in the structure; 0 is none.
std::wstring TextOf(std::string_view bytes, std::size_t offsetAt, std::size_t wideOffsetAt, bool hasWide,
                    const SystemFacts& facts) {
  const std::uint32_t wide = hasWide ? NumberAt(bytes, wideOffsetAt, 4) : 0;
  if (wide != 0) return WideText(From(bytes, wide));
  const std::uint32_t offset = NumberAt(bytes, offsetAt, 4);
  return offset == 0 ? std::wstring() : AnsiText(From(bytes, offset), facts);
}

std::wstring Joined(std::wstring folder, const std::wstring& name) {
  if (!name.empty() && !folder.ends_with(L'\\')) folder += L'\\';
  return folder + name;
}

std::wstring TargetInInfo(std::string_view info, const SystemFacts& facts) {
  const bool hasWide = NumberAt(info, kInfoHeaderSizeAt, 4) >= kWideInfoHeader;
  const std::uint32_t flags = NumberAt(info, kInfoFlagsAt, 4);
  std::wstring base;
  if ((flags & kInfoLocal) != 0) {
    base = TextOf(info, kLocalPathOffsetAt, kWideLocalPathOffsetAt, hasWide, facts);
  } else if ((flags & kInfoNetwork) != 0) {
    const std::string_view network = From(info, NumberAt(info, kNetworkOffsetAt, 4));
    const bool hasWideName = NumberAt(network, kNetNameOffsetAt, 4) > kShortNetHeader;
    base = TextOf(network, kNetNameOffsetAt, kWideNetNameOffsetAt, hasWideName, facts);
  }
  return base.empty() ? base : Joined(base, TextOf(info, kSuffixOffsetAt, kWideSuffixOffsetAt, hasWide, facts));
}

std::wstring NameInItem(std::string_view item, const SystemFacts& facts) {
  const std::size_t extensionAt = item.size() < kFileNameAt ? 0 : NumberAt(item, item.size() - 2, 2);
  const std::string_view extension = extensionAt > kFileNameAt ? From(item, extensionAt) : std::string_view();
  // Not every system puts the mark and the name's place in; without them the name is at its first place.
  const std::uint32_t mark = NumberAt(extension, kExtensionMarkAt, 4);
  if (mark == kExtension || mark == 0) {
    std::wstring name = WideText(From(extension, std::max(NumberAt(extension, kLongNameOffsetAt, 2), kLongNameAt)));
    if (!name.empty()) return name;
  }
  const std::string_view name = From(item, kFileNameAt);
  return (NumberAt(item, kKindAt, 1) & kUnicodeName) != 0 ? WideText(name) : AnsiText(name, facts);
}

// What one item adds to the path; nothing if it leads off the folders and files.
std::optional<std::wstring> StepOf(std::string_view item, bool first, const SystemFacts& facts) {
  const std::uint32_t kind = NumberAt(item, kKindAt, 1) & kKindMask;
  if (kind == kKindRoot && first) {
    const std::string_view id = From(item, kRootIdAt).substr(0, kMyComputer.size());
    return id == kMyComputer || id == kNetwork || id == kOldNetwork ? std::optional<std::wstring>(L"") : std::nullopt;
  }
  if (first) return std::nullopt;
  if (kind == kKindDrive) return AnsiText(From(item, kDriveNameAt), facts);
  if (kind == kKindShare) return AnsiText(From(item, kShareNameAt), facts);
  if (kind == kKindFile) return NameInItem(item, facts);
  return std::nullopt;
}

std::wstring TargetInIdList(std::string_view list, const SystemFacts& facts) {
  std::wstring path;
  LinkCursor items(list);
  for (bool first = true; items.IsWhole(); first = false) {
    const std::uint32_t size = items.Peek(2);
    if (size <= kKindAt) return size == 0 ? path : std::wstring();
    const std::optional<std::wstring> step = StepOf(items.Take(size), first, facts);
    if (!step || (step->empty() && !first)) return {};
    path = path.empty() ? *step : Joined(path, *step);
  }
  return {};
}

// Some writers count the NUL.
std::wstring TakeText(LinkCursor& file, bool wide, const SystemFacts& facts) {
  const std::size_t count = file.Number(2);
  const std::string_view bytes = file.Take(wide ? count * 2 : count);
  const std::wstring text = wide ? FromUtf16Bytes(bytes) : facts.FromAnsi(bytes);
  return text.substr(0, text.find(L'\0'));
}

}  // namespace

bool ReadLinkFile(std::string_view bytes, const SystemFacts& facts, ShellLink& link) {
  LinkCursor file(bytes);
  const std::string_view header = file.Take(kHeaderBytes);
  if (!header.starts_with(kStart)) return false;
  const std::uint32_t flags = NumberAt(header, kFlagsAt, 4);
  const std::string_view list = (flags & kHasIdList) != 0 ? file.Take(file.Number(2)) : std::string_view();
  std::string_view info = (flags & kHasLinkInfo) != 0 ? file.Take(file.Peek(4)) : std::string_view();
  if ((flags & kForceNoLinkInfo) != 0) info = {};
  ShellLink read;
  if ((flags & kHasName) != 0) read.description = TakeText(file, (flags & kIsUnicode) != 0, facts);
  if (!file.IsWhole()) return false;
  // The list has every character; the other text may have a question mark for one, which no path has.
  read.target = TargetInIdList(list, facts);
  if (!ParseWindowsPath(read.target)) read.target = TargetInInfo(info, facts);
  if (!ParseWindowsPath(read.target)) return false;
  const auto show = static_cast<std::int32_t>(NumberAt(header, kShowCommandAt, 4));
  read.showCommand = show == kShowMaximized || show == kShowMinimized ? show : kShowNormal;
  link = std::move(read);
  return true;
}

}  // namespace burrowmark
