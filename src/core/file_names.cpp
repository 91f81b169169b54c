#include "core/file_names.h"

#include <algorithm>
#include <iterator>

#include "core/text.h"

namespace burrowmark {
namespace {

bool IsBadFileChar(wchar_t c) { return kBadFileChars.find(c) != std::wstring_view::npos; }

std::wstring_view WithoutTrail(std::wstring_view name) { return name.substr(0, name.find_last_not_of(L". ") + 1); }

// A device is meant by its name with any extension too.
bool IsDevice(std::wstring_view name) {
  constexpr std::wstring_view kNumbers = L"123456789\u00B9\u00B2\u00B3";
  const std::wstring text = UpperCaseText(name);
  if (text == L"CON" || text == L"PRN" || text == L"AUX" || text == L"NUL") return true;
  return text.size() == 4 && (text.starts_with(L"COM") || text.starts_with(L"LPT")) &&
         kNumbers.find(text.back()) != std::wstring_view::npos;
}

}  // namespace

bool HasBadFileChars(std::wstring_view text) { return std::any_of(text.begin(), text.end(), IsBadFileChar); }

std::wstring RemoveBadFileChars(std::wstring_view text) {
  if (!HasBadFileChars(text)) return std::wstring(text);
  std::wstring kept;
  kept.reserve(text.size());
  std::remove_copy_if(text.begin(), text.end(), std::back_inserter(kept), IsBadFileChar);
  return kept;
}

std::wstring ReplaceBadFileChars(std::wstring_view text) {
  std::wstring replaced(text);
  std::replace_if(replaced.begin(), replaced.end(), IsBadFileChar, L'-');
  return replaced;
}

std::wstring GetFileName(std::wstring_view path) {
  const std::size_t slash = path.rfind(L'\\');
  if (slash == std::wstring_view::npos) return std::wstring(path);
  if (slash + 1 == path.size()) return std::wstring(path.substr(0, 1));
  return std::wstring(path.substr(slash + 1));
}

std::wstring GetFolderName(std::wstring_view path) {
  const std::size_t slash = path.rfind(L'\\');
  if (slash == std::wstring_view::npos) return std::wstring(path);
  const std::wstring folder(path.substr(0, slash));
  return folder.ends_with(L':') ? folder + L"\\" : folder;
}

std::wstring GetFileExtension(std::wstring_view path) {
  const std::size_t dot = path.rfind(L'.');
  return dot == std::wstring_view::npos ? std::wstring() : LowerCaseText(path.substr(dot + 1));
}

std::wstring GetFileBaseName(std::wstring_view path) {
  const std::size_t dot = path.rfind(L'.');
  return dot == std::wstring_view::npos ? std::wstring(path) : LowerCaseText(path.substr(0, dot));
}

std::wstring FolderNameOf(std::wstring_view title) {
  const std::wstring_view kept = WithoutTrail(title);
  return FileNameOf(kept.empty() ? title : kept);
}

std::wstring FileNameOf(std::wstring_view title) {
  std::wstring name(title);
  if (WithoutTrail(title).empty()) return name + L"_";
  const std::wstring_view base = WithoutTrail(title.substr(0, title.find(L'.')));
  if (IsDevice(base)) name.insert(base.size(), L"_");
  return name;
}

std::wstring PathArgument(std::wstring_view text) {
  std::wstring path = Trim(text);
  if (path.size() >= 2 && path.front() == L'"' && path.back() == L'"') path = path.substr(1, path.size() - 2);
  return path;
}

}  // namespace burrowmark
