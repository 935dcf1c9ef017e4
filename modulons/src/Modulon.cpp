// Lookups on a modulon's settings.
#include "Modulon.h"

namespace plovix::wizard {

const Setting* Modulon::findSetting(const std::string& settingName) const {
  for (const Setting& setting : settings) {
    if (setting.name == settingName) return &setting;
  }
  return nullptr;
}

SettingValues Modulon::defaultValues() const {
  SettingValues values;
  for (const Setting& setting : settings) values[setting.name] = setting.defaultValue;
  return values;
}

}  // namespace plovix::wizard
