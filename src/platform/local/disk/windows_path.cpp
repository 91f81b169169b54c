#include "platform/local/disk/windows_path.h"

#include <algorithm>
#include <iterator>

#include "platform/characters.h"

namespace burrowmark {
namespace {

constexpr std::wstring_view kSeparators = L"\\/";
constexpr std::wstring_view kForbidden = L"<>:\"|?*";
constexpr std::wstring_view kDotAndBlank = L". ";
constexpr std::size_t kLongestName = 255;

bool IsSeparator(wchar_t c) { return kSeparators.find(c) != std::wstring_view::npos; }

bool IsLetter(wchar_t c) {
  const wchar_t capital = UpperCase(c);
  return capital >= L'A' && capital <= L'Z';
}

bool CanBeName(std::wstring_view name) {
  return name.size() <= kLongestName && std::all_of(name.begin(), name.end(), [](wchar_t c) {
           return c >= L' ' && kForbidden.find(c) == std::wstring_view::npos;
         });
}

// Takes the next name and the separators behind it off the front of `rest`.
std::wstring_view TakeName(std::wstring_view& rest) {
  const std::size_t length = std::min(rest.find_first_of(kSeparators), rest.size());
  const std::wstring_view name = rest.substr(0, length);
  rest.remove_prefix(std::min(rest.find_first_not_of(kSeparators, length), rest.size()));
  return name;
}

// The system drops dots and blanks at the end of a path, and a single dot at the end of a name on the way.
std::wstring_view Trimmed(std::wstring_view name, bool last) {
  if (last) return name.substr(0, name.find_last_not_of(kDotAndBlank) + 1);
  return name.ends_with(L'.') && !name.ends_with(L"..") ? name.substr(0, name.size() - 1) : name;
}

bool TakeRoot(std::wstring_view& rest, std::wstring& root) {
  if (rest.size() >= 2 && IsLetter(rest[0]) && rest[1] == L':') {
    root = {UpperCase(rest[0]), L':'};
    rest.remove_prefix(2);
    return rest.empty() || IsSeparator(rest[0]);
  }
  if (rest.size() < 2 || !IsSeparator(rest[0]) || !IsSeparator(rest[1])) return false;
  rest.remove_prefix(2);
  const std::wstring_view server = TakeName(rest);
  const std::wstring_view share = TakeName(rest);
  root.assign(L"\\\\").append(server).append(L"\\").append(share);
  const auto isName = [](std::wstring_view name) { return !Trimmed(name, true).empty() && CanBeName(name); };
  return isName(server) && isName(share);
}

bool AddName(WindowsPath& path, std::wstring_view name, bool last) {
  if (name == L".." || name == L".") {
    if (name == L".." && !path.names.empty()) path.names.pop_back();
    path.folderOnly = path.folderOnly || last;
    return true;
  }
  name = Trimmed(name, last);
  if (name.empty()) return true;
  path.names.emplace_back(name);
  return CanBeName(name);
}

}  // namespace

WindowsPath WindowsPath::Parent() const {
  WindowsPath parent{root, names, true};
  if (!names.empty()) parent.names.pop_back();
  return parent;
}

std::wstring WindowsPath::Text() const {
  std::wstring text = root;
  for (const std::wstring& name : names) text.append(L"\\").append(name);
  return names.empty() ? text + L'\\' : text;
}

std::optional<WindowsPath> ParseWindowsPath(std::wstring_view path) {
  WindowsPath parsed;
  std::wstring_view rest = path;
  if (!TakeRoot(rest, parsed.root)) return std::nullopt;
  parsed.folderOnly = path.empty() || IsSeparator(path.back());
  rest.remove_prefix(std::min(rest.find_first_not_of(kSeparators), rest.size()));
  while (!rest.empty()) {
    const std::wstring_view name = TakeName(rest);
    if (!AddName(parsed, name, rest.empty() && !IsSeparator(path.back()))) return std::nullopt;
  }
  return parsed;
}

}  // namespace burrowmark
