#include "tools/tip.h"

#include <algorithm>
#include <limits>

#include "core/failure.h"
#include "core/numbers.h"
#include "core/registry.h"
#include "core/registry_keys.h"

namespace burrowmark {
namespace {

constexpr Size kClient{6735, 3300};
constexpr std::int32_t kHelpIcon = 6;
constexpr std::int32_t kIconSize = 32;
constexpr wchar_t kFile[] = L"\\TIPOFDAY.TXT";
constexpr wchar_t kCurrentTipValue[] = L"CURRTIP";

// A line ends with CR LF, CR or LF; what stands behind the last end is one only if it holds something.
std::vector<std::wstring> Lines(const std::wstring& text) {
  std::vector<std::wstring> lines;
  std::size_t start = 0;
  while (start < text.size()) {
    const std::size_t end = std::min(text.find_first_of(L"\r\n", start), text.size());
    lines.push_back(text.substr(start, end - start));
    start = end + (text.compare(end, 2, L"\r\n") == 0 ? 2 : 1);
  }
  return lines;
}

}  // namespace

frmTip::frmTip(Application& app) : ProgramForm(app, ProgramWindow::kTip, L"frmTip", kClient) {
  SetCaption(L"Tip of the Day");
  for (PictureBox* picture : {&picPage, &Picture1}) picture->SetBackColor(kColorWindow);
  Picture1.SetIcon(kHelpIcon, kIconSize);
  txtTip.SetMultiLine(true);
  txtTip.SetScrollBar(false);
  txtTip.SetReadOnly(true);
  cmdOK.SetDefault(true);
  cmdOK.SetCancel(true);
  cmdNextTip.Click = [this] { ShowNextTip(); };
  cmdPreviousTip.Click = [this] { ShowPreviousTip(); };
  cmdOK.Click = [this] { Unload(); };
  chkLoadTipsAtStartup.Click = [this] { app_.ShowTips = chkLoadTipsAtStartup.Value() == kChecked; };
}

void frmTip::Form_Load() {
  chkLoadTipsAtStartup.SetValue(app_.ShowTips ? kChecked : kUnchecked);
  current_ = 1;
  LoadCurrentTip();
  if (!LoadTips(app_.AppPath + kFile)) DisplayCurrentTip();
}

void frmTip::Form_Unload(bool&) {
  clsRegHandler registry(app_.platform.registry);
  registry.SetKeyValue(RegistryKey::kCurrentUser, kSettingsKey, kTipValue, BooleanNumberText(app_.ShowTips));
  if (tips_.empty()) return;
  registry.SetKeyValue(RegistryKey::kCurrentUser, kSettingsKey, kCurrentTipValue, DecimalText(current_));
}

void frmTip::LoadCurrentTip() {
  std::wstring text;
  clsRegHandler(app_.platform.registry).GetKeyValue(RegistryKey::kCurrentUser, kSettingsKey, kCurrentTipValue, text);
  Skip([&] { current_ = std::max<std::int16_t>(ToInt16(text), 1); });
}

bool frmTip::LoadTips(const std::wstring& fileName) {
  std::string bytes;
  if (!app_.platform.files.ReadWholeFile(fileName, bytes)) return false;
  tips_ = Lines(app_.platform.system.FromAnsi(bytes));
  if (tips_.empty()) return false;
  tips_.resize(std::min<std::size_t>(tips_.size(), std::numeric_limits<std::int16_t>::max()));
  current_ = std::min(current_, Count());
  DisplayCurrentTip();
  return true;
}

void frmTip::ShowNextTip() {
  current_ = current_ < Count() ? static_cast<std::int16_t>(current_ + 1) : std::int16_t{1};
  DisplayCurrentTip();
}

void frmTip::ShowPreviousTip() {
  current_ = current_ > 1 ? static_cast<std::int16_t>(current_ - 1) : std::max<std::int16_t>(Count(), 1);
  DisplayCurrentTip();
}

void frmTip::DisplayCurrentTip() {
  if (tips_.empty()) {
    current_ = 1;
  } else {
    txtTip.SetText(tips_[static_cast<std::size_t>(current_) - 1]);
  }
  lblTipNum.SetCaption(L"Tip " + DecimalText(current_) + L" of " + DecimalText(Count()));
}

}  // namespace burrowmark
