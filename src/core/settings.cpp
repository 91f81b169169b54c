#include "core/settings.h"

#include <span>

#include "core/failure.h"
#include "core/numbers.h"
#include "core/registry.h"
#include "core/registry_keys.h"
#include "core/text.h"

namespace burrowmark {
namespace {

constexpr RegistryKey kUser = RegistryKey::kCurrentUser;
constexpr std::size_t kStartWithSession = 0;  // ADVC
constexpr std::size_t kHotKeys = 7;           // ADVC

struct SettingGroup {
  std::wstring (*name)(std::size_t index);
  bool valueWhenMissing;
  std::span<bool> values;
};

// The three groups in the order in which they are read and written.
std::array<SettingGroup, 3> Groups(Application& app) {
  return {{{GeneralName, true, app.GC}, {AppearanceName, true, app.AC}, {AdvancedName, false, app.ADVC}}};
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

std::wstring GeneralName(std::size_t index) { return L"GC" + std::to_wstring(index); }
std::wstring AppearanceName(std::size_t index) { return L"AC" + std::to_wstring(index); }
std::wstring AdvancedName(std::size_t index) { return L"ADVC" + std::to_wstring(index); }

void LoadSettings(Application& app) {
  for (const SettingGroup& group : Groups(app)) {
    for (std::size_t i = 0; i < group.values.size(); ++i) {
      group.values[i] = LoadBoolean(app, group.name(i), group.valueWhenMissing);
    }
  }
  if (app.Os.NoLowLevelHook) app.ADVC[kHotKeys] = false;
  app.ShowTips = LoadBoolean(app, kTipValue, false);
  app.AfterInstall = LoadBoolean(app, kAfterInstallValue, false);
}

void SaveSettings(Application& app) {
  clsRegHandler registry(app.platform.registry);
  for (const SettingGroup& group : Groups(app)) {
    for (std::size_t i = 0; i < group.values.size(); ++i) {
      registry.SetKeyValue(kUser, kSettingsKey, group.name(i), BooleanNumberText(group.values[i]));
    }
  }
  if (app.ADVC[kStartWithSession]) {
    registry.SetKeyValue(kUser, kRunKey, kRunValue, app.AppCommand);
  } else {
    registry.DeleteValue(kUser, kRunKey, kRunValue);
  }
}

}  // namespace burrowmark
