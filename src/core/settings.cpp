#include "core/settings.h"

#include <array>
#include <span>

#include "core/failure.h"
#include "core/numbers.h"
#include "core/registry.h"
#include "core/registry_keys.h"
#include "core/text.h"

namespace burrowmark {
namespace {

constexpr RegistryKey kUser = RegistryKey::kCurrentUser;

struct SettingGroup {
  const wchar_t* prefix;
  bool valueWhenMissing;
  std::span<bool> values;
};

constexpr wchar_t kGeneralPrefix[] = L"GC";
constexpr wchar_t kAppearancePrefix[] = L"AC";
constexpr wchar_t kAdvancedPrefix[] = L"ADVC";

// The three groups in the order in which they are read and written.
std::array<SettingGroup, 3> Groups(Application& app) {
  return {{{kGeneralPrefix, true, app.GC.All()},
           {kAppearancePrefix, true, app.AC.All()},
           {kAdvancedPrefix, false, app.ADVC.All()}}};
}

std::wstring NameAt(const wchar_t* prefix, std::size_t index) { return prefix + std::to_wstring(index); }

template <typename Name>
std::wstring NameOf(const wchar_t* prefix, Name setting) {
  return NameAt(prefix, static_cast<std::size_t>(setting));
}

bool LoadBoolean(Application& app, const std::wstring& name, bool valueWhenMissing) {
  std::wstring text;
  const bool found = clsRegHandler(app.platform.registry).GetKeyValue(kUser, kSettingsKey, name, text);
  text = Trim(text);
  bool value = valueWhenMissing;
  if (found && !text.empty()) Skip([&] { value = ToBoolean(text); });
  return value;
}

}  // namespace

std::wstring SettingName(General setting) { return NameOf(kGeneralPrefix, setting); }
std::wstring SettingName(Appearance setting) { return NameOf(kAppearancePrefix, setting); }
std::wstring SettingName(Advanced setting) { return NameOf(kAdvancedPrefix, setting); }

void LoadSettings(Application& app) {
  for (const SettingGroup& group : Groups(app)) {
    for (std::size_t i = 0; i < group.values.size(); ++i) {
      group.values[i] = LoadBoolean(app, NameAt(group.prefix, i), group.valueWhenMissing);
    }
  }
  if (app.Os.NoLowLevelHook) app.ADVC[Advanced::kHotKeys] = false;
  app.ShowTips = LoadBoolean(app, kTipValue, false);
  app.AfterInstall = LoadBoolean(app, kAfterInstallValue, false);
}

void SaveSettings(Application& app) {
  clsRegHandler registry(app.platform.registry);
  for (const SettingGroup& group : Groups(app)) {
    for (std::size_t i = 0; i < group.values.size(); ++i) {
      registry.SetKeyValue(kUser, kSettingsKey, NameAt(group.prefix, i), BooleanNumberText(group.values[i]));
    }
  }
  if (app.ADVC[Advanced::kStartWithSession]) {
    registry.SetKeyValue(kUser, kRunKey, kRunValue, app.AppCommand);
  } else {
    registry.DeleteValue(kUser, kRunKey, kRunValue);
  }
}

void SaveSetting(Application& app, Appearance setting) {
  clsRegHandler(app.platform.registry)
      .SetKeyValue(kUser, kSettingsKey, SettingName(setting), BooleanNumberText(app.AC[setting]));
}

}  // namespace burrowmark
