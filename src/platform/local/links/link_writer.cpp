#include <algorithm>

#include "platform/file_system.h"
#include "platform/local/links/link_file.h"
#include "platform/local/links/link_format.h"
#include "platform/local/utf16.h"

namespace burrowmark {
namespace {

using namespace link_format;

constexpr std::size_t kLongestText = 0xFFFF;  // units that the number in front of a text can count
constexpr std::uint32_t kProviderOfShares = 0x20000;
constexpr std::uint32_t kHasNetworkType = 2;
constexpr std::uint32_t kRootOfMyComputer = 0x1F;
constexpr std::uint32_t kOrderOfMyComputer = 0x50;
constexpr std::uint32_t kOrderOfNetwork = 0x58;
constexpr std::uint32_t kFixedDriveItem = 0x2F;
constexpr std::uint32_t kShareItem = 0xC3;
constexpr std::uint32_t kFolderItem = 0x31;
constexpr std::uint32_t kFileItem = 0x32;

std::string Bytes(std::uint32_t value, std::size_t length) {
  std::string bytes;
  for (std::size_t i = 0; i < length; ++i)
    bytes += static_cast<char>(static_cast<unsigned char>(value >> 8 * i & 0xFF));
  return bytes;
}

std::string Number16(std::size_t value) { return Bytes(static_cast<std::uint32_t>(value), 2); }
std::string Number32(std::size_t value) { return Bytes(static_cast<std::uint32_t>(value), 4); }

// A text in both forms, each with its NUL.
struct BothTexts {
  BothTexts(const std::wstring& text, const SystemFacts& facts) : wide(ToUtf16Bytes(text) + Number16(0)) {
    fitsAnsi = facts.ToAnsi(text, ansi);
    ansi += '\0';
  }

  std::string ansi;
  std::string wide;
  bool fitsAnsi = false;
};

std::string Item(const std::string& content) { return Number16(content.size() + 2) + content; }

std::string RootItem(std::uint32_t order, std::string_view id) {
  return Item(Bytes(kRootOfMyComputer, 1) + Bytes(order, 1) + std::string(id));
}

std::string DriveItem(const std::wstring& root) {
  std::string content = Bytes(kFixedDriveItem, 1) + static_cast<char>(root.front()) + ":\\";
  content.resize(kDriveItemBytes - 2);
  return Item(content);
}

std::string ShareItem(const std::wstring& root, const SystemFacts& facts) {
  return Item(Bytes(kShareItem, 1) + Bytes(1, 1) + Bytes(0, 1) + BothTexts(root, facts).ansi + Number16(0));
}

std::string FileItem(const std::wstring& name, std::uint32_t attributes, const SystemFacts& facts) {
  const BothTexts texts(name, facts);
  const bool isFolder = (attributes & kFileDirectory) != 0;
  std::string content = Bytes(isFolder ? kFolderItem : kFileItem, 1) + Bytes(0, 1);
  content += Number32(0) + Number32(0);  // size, date and time, which nobody needs for the path
  content += Number16(attributes) + texts.ansi;
  if (content.size() % 2 != 0) content += '\0';
  const std::size_t extensionAt = content.size() + 2;
  const std::size_t extensionBytes = kLongNameAt + texts.wide.size() + 2;
  content += Number16(extensionBytes) + Number16(kExtensionVersion) + Number32(kExtension);
  content += Number32(0) + Number32(0) + Number16(kLongNameAt) + Number16(0);
  return Item(content + texts.wide + Number16(extensionAt));
}

std::string IdList(const WindowsPath& target, std::uint32_t attributes, const SystemFacts& facts) {
  std::string list = target.OnShare() ? RootItem(kOrderOfNetwork, kNetwork) + ShareItem(target.root, facts)
                                      : RootItem(kOrderOfMyComputer, kMyComputer) + DriveItem(target.root);
  for (std::size_t i = 0; i < target.names.size(); ++i) {
    const bool last = i + 1 == target.names.size();
    list += FileItem(target.names[i], last ? attributes : kFileDirectory, facts);
  }
  list += Number16(0);
  return Number16(list.size()) + list;
}

// The volume that the target is on: kind of drive, serial number, label.
std::string VolumeId(std::int32_t driveType, const std::string& label) {
  constexpr std::size_t kLabelAt = 16;
  return Number32(kLabelAt + label.size()) + Number32(static_cast<std::uint32_t>(driveType)) + Number32(0) +
         Number32(kLabelAt) + label;
}

std::string NetworkPlace(const BothTexts& share) {
  const std::size_t header = share.fitsAnsi ? kShortNetHeader : kWideNetHeader;
  std::string place = Number32(kHasNetworkType) + Number32(header) + Number32(0) + Number32(kProviderOfShares);
  if (!share.fitsAnsi) place += Number32(header + share.ansi.size()) + Number32(0);
  place += share.ansi + (share.fitsAnsi ? "" : share.wide);
  return Number32(place.size() + 4) + place;
}

// Header, where the target was, and the texts, which are there as Unicode too if the ANSI page lacks a character.
std::string Info(const WindowsPath& target, const LinkVolume& volume, const SystemFacts& facts) {
  const std::wstring text = target.Text();
  const bool onShare = target.OnShare();
  const BothTexts share(target.root, facts);
  const BothTexts base(onShare ? L"" : text, facts);
  const BothTexts suffix(onShare && !target.IsRoot() ? text.substr(target.root.size() + 1) : L"", facts);
  const bool wide = !base.fitsAnsi || !suffix.fitsAnsi;
  const std::string place = onShare ? NetworkPlace(share) : VolumeId(volume.type, BothTexts(volume.label, facts).ansi);
  const std::size_t header = wide ? kWideInfoHeader : kShortInfoHeader;
  const std::size_t baseAt = header + place.size();
  const std::size_t suffixAt = baseAt + (onShare ? 0 : base.ansi.size());
  const std::size_t wideBaseAt = suffixAt + suffix.ansi.size();
  const std::size_t wideSuffixAt = wideBaseAt + (onShare ? 0 : base.wide.size());
  std::string info = Number32(header) + Number32(onShare ? kInfoNetwork : kInfoLocal);
  info += Number32(onShare ? 0 : header) + Number32(onShare ? 0 : baseAt) + Number32(onShare ? header : 0);
  info += Number32(suffixAt);
  if (wide) info += Number32(onShare ? 0 : wideBaseAt) + Number32(wideSuffixAt);
  info += place + (onShare ? "" : base.ansi) + suffix.ansi;
  if (wide) info += (onShare ? "" : base.wide) + suffix.wide;
  return Number32(info.size() + 4) + info;
}

std::string Header(std::uint32_t flags, std::uint32_t attributes, std::int32_t showCommand) {
  std::string header(kStart);
  header += Number32(flags) + Number32(attributes);
  header.resize(kShowCommandAt);  // times, size and icon of the target
  header += Number32(static_cast<std::uint32_t>(showCommand));
  header.resize(kHeaderBytes);
  return header;
}

}  // namespace

std::string BuildLinkFile(const ShellLink& link, const WindowsPath& target, std::uint32_t attributes,
                          const LinkVolume& volume, const SystemFacts& facts) {
  std::uint32_t flags = kHasIdList | kHasLinkInfo | kIsUnicode;
  if (!link.description.empty()) flags |= kHasName;
  std::string file = Header(flags, attributes, link.showCommand);
  file += IdList(target, attributes, facts) + Info(target, volume, facts);
  if (!link.description.empty()) {
    const std::string text = ToUtf16Bytes(link.description).substr(0, kLongestText * 2);
    file += Number16(text.size() / 2) + text;
  }
  return file + Number32(0);  // nothing more follows
}

}  // namespace burrowmark
