// A modulon's settings as its plug-in describes them: name, kind, allowed values or range, default, help.
#pragma once

#include <string>
#include <vector>

#include "base/Json.h"

namespace plovix {

struct ModulonSetting {
  enum class Kind { kInteger, kChoice, kText };
  std::string name;
  Kind kind = Kind::kText;
  long long minimum = 0;            // kInteger
  long long maximum = 0;            // kInteger
  std::vector<std::string> values;  // kChoice: the allowed words, in their canonical spelling
  std::string defaultValue;         // as it would be written in a NAME=VALUE pair
  std::string help;                 // one line
};

struct ModulonSettings {
  std::string modulon;
  std::string title;
  std::vector<ModulonSetting> settings;  // in the order the plug-in asks for them
};

// The word of a kind in the describe protocol: "integer", "choice", "text".
const char* settingKindWord(ModulonSetting::Kind kind);

// Takes the settings from the object a plug-in prints when asked to describe itself. On failure gives false
// and names the first member that is missing or of the wrong type (for example "settings[2].minimum").
bool settingsFromJson(const JsonValue& json, ModulonSettings& out, std::string& badField);

// The settings as the same object.
JsonValue settingsToJson(const ModulonSettings& settings);

}  // namespace plovix
