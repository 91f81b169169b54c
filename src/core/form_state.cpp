#include "core/form_state.h"

#include <algorithm>
#include <vector>

#include "core/failure.h"
#include "core/numbers.h"
#include "core/registry.h"
#include "core/registry_keys.h"
#include "core/text.h"

namespace burrowmark {
namespace {

enum class Keeps : std::uint8_t { kPlace, kPlaceAndSize };

struct FormKey {
  const wchar_t* form;
  const wchar_t* key;
  Keeps keeps;
};

constexpr FormKey kFormKeys[] = {
    {L"frmOrganize", L"frmOrg", Keeps::kPlaceAndSize},
    {L"frmProperties", L"frmProp", Keeps::kPlace},
    {L"frmPropertiesConfigFile", L"frmInfo", Keeps::kPlace},
    {L"frmOptions", L"frmSet", Keeps::kPlace},
    {L"frmShortcutsList", L"frmLST", Keeps::kPlaceAndSize},
    {L"frmNetworkDrives", L"frmNet", Keeps::kPlaceAndSize},
    {L"frmPersonalNetworkInfo", L"frmPersNetInfo", Keeps::kPlace},
    {L"frmFolderReport", L"frmFolderRep", Keeps::kPlace},
    {L"frmBrowseFolder", L"frmBFF", Keeps::kPlaceAndSize},
};

// None for a form that remembers nothing.
const FormKey* FindFormKey(const std::wstring& formName) {
  const auto* found = std::find_if(std::begin(kFormKeys), std::end(kFormKeys),
                                   [&formName](const FormKey& row) { return formName == row.form; });
  return found == std::end(kFormKeys) ? nullptr : found;
}

constexpr wchar_t kLeft[] = L"L";
constexpr wchar_t kTop[] = L"T";
constexpr wchar_t kWidth[] = L"W";
constexpr wchar_t kHeight[] = L"H";
constexpr wchar_t kState[] = L"S";

// The values of one form.
class FormValues {
 public:
  FormValues(Application& app, const std::wstring& formName)
      : registry_(app.platform.registry), key_(GetFormRegKey(formName)) {}

  // False if the value is missing. One that is no number is 0.
  bool Read(const wchar_t* name, std::int32_t& value) {
    std::wstring text;
    if (!registry_.GetKeyValue(RegistryKey::kCurrentUser, key_, name, text)) return false;
    text = Trim(text);
    if (text.empty()) return false;
    value = 0;
    Skip([&] { value = ToInt32(text); });
    return true;
  }
  void Write(const wchar_t* name, std::int32_t value) {
    registry_.SetKeyValue(RegistryKey::kCurrentUser, key_, name, DecimalText(value));
  }

 private:
  clsRegHandler registry_;
  std::wstring key_;
};

std::int32_t Overlap(std::int32_t start, std::int32_t length, std::int32_t otherStart, std::int32_t otherLength) {
  return std::min(start + length, otherStart + otherLength) - std::max(start, otherStart);
}

// A piece of the window's upper edge that is large enough to take hold of lies on the screen.
bool CanBeReached(const Box& window, const Box& screen) {
  constexpr std::int32_t kGrip = 600;
  return Overlap(window.left, window.width, screen.left, screen.width) >= std::min(kGrip, window.width) &&
         window.top >= screen.top - kGrip / 2 && window.top + kGrip <= screen.top + screen.height;
}

Box OnAScreen(Application& app, Box window) {
  const std::vector<Box> screens = app.platform.windows.Screens();
  if (screens.empty() || std::any_of(screens.begin(), screens.end(),
                                     [&window](const Box& screen) { return CanBeReached(window, screen); })) {
    return window;
  }
  const Box& first = screens.front();
  window.left = std::max(first.left, std::min(window.left, first.left + first.width - window.width));
  window.top = std::max(first.top, std::min(window.top, first.top + first.height - window.height));
  return window;
}

Box InTheMiddle(Application& app, const Box& window) {
  const Size screen = ScreenSize(app);
  return {(screen.width - window.width) / 2, (screen.height - window.height) / 2, window.width, window.height};
}

FormWindowState StateOf(std::int32_t value) {
  return value == static_cast<std::int32_t>(FormWindowState::kMaximized) ? FormWindowState::kMaximized
                                                                         : FormWindowState::kNormal;
}

}  // namespace

std::wstring GetFormRegKey(const std::wstring& formName) {
  const std::wstring base = std::wstring(kMainKey) + L"\\";
  const FormKey* found = FindFormKey(formName);
  return found == nullptr ? base : base + found->key;
}

Size ScreenSize(Application& app) {
  const std::vector<Box> screens = app.platform.windows.Screens();
  return screens.empty() ? Size{} : Size{screens.front().width, screens.front().height};
}

void LoadFormState(Application& app, Form& form, const Size& first) {
  const FormKey* row = FindFormKey(form.Name());
  if (row == nullptr) return;
  const bool positionOnly = row->keeps == Keeps::kPlace;
  FormValues values(app, form.Name());
  Box kept = form.Place();
  std::int32_t state = 0;
  const bool hasLeft = values.Read(kLeft, kept.left);
  const bool hasTop = values.Read(kTop, kept.top);
  const bool hasWidth = positionOnly || values.Read(kWidth, kept.width);
  const bool hasHeight = positionOnly || values.Read(kHeight, kept.height);
  const bool hasState = positionOnly || values.Read(kState, state);
  if (!(hasLeft && hasTop && hasWidth && hasHeight && hasState)) {
    Box place = form.Place();
    if (!hasWidth && first.width > 0) place.width = first.width;
    if (!hasHeight && first.height > 0) place.height = first.height;
    form.SetPlace(InTheMiddle(app, place));
    form.SetWindowState(FormWindowState::kNormal);
    return;
  }
  form.SetWindowState(StateOf(state));
  form.SetPlace(OnAScreen(app, state == 0 ? kept : form.Place()));
}

void SaveFormState(Application& app, const Form& form) {
  const FormKey* row = FindFormKey(form.Name());
  if (row == nullptr) return;
  FormValues values(app, form.Name());
  const bool normal = form.WindowState() == FormWindowState::kNormal;
  const Box& place = form.Place();
  if (normal) {
    values.Write(kLeft, place.left);
    values.Write(kTop, place.top);
  }
  if (row->keeps == Keeps::kPlace) return;
  if (normal) {
    values.Write(kWidth, place.width);
    values.Write(kHeight, place.height);
  }
  values.Write(kState, static_cast<std::int32_t>(form.WindowState()));
}

}  // namespace burrowmark
