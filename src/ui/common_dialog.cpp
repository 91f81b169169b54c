#include "ui/common_dialog.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace burrowmark {
namespace {

std::wstring TakePart(const std::wstring& text, std::size_t& at) {
  const std::size_t bar = text.find(L'|', at);
  std::wstring part = text.substr(at, bar == std::wstring::npos ? bar : bar - at);
  at = bar == std::wstring::npos ? text.size() : bar + 1;
  return part;
}

std::vector<FileFilter> FiltersOf(const std::wstring& text) {
  std::vector<FileFilter> filters;
  for (std::size_t at = 0; at < text.size();) {
    std::wstring name = TakePart(text, at);
    filters.push_back({std::move(name), at < text.size() ? TakePart(text, at) : L""});
  }
  return filters;
}

// With its dot; empty if the pattern leaves it open.
std::wstring ExtensionOf(const std::wstring& pattern) {
  const std::wstring first = pattern.substr(0, pattern.find(L';'));
  const std::size_t dot = first.rfind(L'.');
  if (dot == std::wstring::npos) return L"";
  const std::wstring extension = first.substr(dot);
  return extension.find_first_of(L"*?") == std::wstring::npos ? extension : L"";
}

bool HasExtension(const std::wstring& path) {
  const std::size_t dot = path.rfind(L'.');
  const std::size_t folder = path.find_last_of(L"\\/:");
  return dot != std::wstring::npos && (folder == std::wstring::npos || dot > folder);
}

}  // namespace

bool CommonDialog::ShowOpen() { return Show(false); }
bool CommonDialog::ShowSave() { return Show(true); }

bool CommonDialog::Show(bool save) {
  const std::vector<FileFilter> filters = FiltersOf(Filter);
  const auto answer = dialogs_.FileDialog({save, owner_.Window(), DialogTitle, filters, FilterIndex, FileName});
  if (!answer) return false;
  FileName = answer->path;
  FilterIndex = answer->filterIndex;
  const auto index = static_cast<std::size_t>(FilterIndex) - 1;
  if (save && !HasExtension(FileName) && index < filters.size()) FileName += ExtensionOf(filters[index].pattern);
  return true;
}

}  // namespace burrowmark
