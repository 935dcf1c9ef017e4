// Lookups on a modulon's settings.
#include "Modulon.h"

#include <cctype>

namespace plovix::wizard {

const Setting* Modulon::findSetting(const std::string& settingName) const {
  for (const Setting& setting : settings) {
    if (setting.name.size() != settingName.size()) continue;
    bool same = true;
    for (size_t i = 0; i < settingName.size() && same; ++i) {
      same = std::toupper(static_cast<unsigned char>(setting.name[i])) ==
             std::toupper(static_cast<unsigned char>(settingName[i]));
    }
    if (same) return &setting;
  }
  return nullptr;
}

SettingValues Modulon::defaultValues() const {
  SettingValues values;
  for (const Setting& setting : settings) values[setting.name] = setting.defaultValue;
  return values;
}

}  // namespace plovix::wizard
