// Writing the settings table of a modulon as JSON.
#include "SettingsJson.h"

#include <cstdio>

namespace plovix::wizard {

namespace {

// A JSON string: quotes, backslashes and control characters escaped; other bytes (UTF-8) as they are.
std::string jsonString(const std::string& text) {
  std::string out = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') {
      out += '\\';
      out += c;
    } else if (static_cast<unsigned char>(c) < 0x20) {
      char escaped[8];
      std::snprintf(escaped, sizeof escaped, "\\u%04x", static_cast<unsigned>(static_cast<unsigned char>(c)));
      out += escaped;
    } else {
      out += c;
    }
  }
  return out + "\"";
}

const char* kindWord(SettingKind kind) {
  switch (kind) {
    case SettingKind::kInteger:
      return "integer";
    case SettingKind::kChoice:
      return "choice";
    case SettingKind::kText:
      break;
  }
  return "text";
}

std::string settingJson(const Setting& setting) {
  std::string out =
      "{\"name\": " + jsonString(setting.name) + ", \"kind\": \"" + kindWord(setting.kind) + "\"";
  if (setting.kind == SettingKind::kInteger) {
    out += ", \"minimum\": " + std::to_string(setting.minimum) +
           ", \"maximum\": " + std::to_string(setting.maximum);
  } else if (setting.kind == SettingKind::kChoice) {
    std::string values;
    for (const std::string& choice : setting.choices)
      values += (values.empty() ? "" : ", ") + jsonString(choice);
    out += ", \"values\": [" + values + "]";
  }
  return out + ", \"default\": " + jsonString(setting.defaultValue) +
         ", \"help\": " + jsonString(setting.question) + "}";
}

}  // namespace

std::string settingsJson(const Modulon& modulon) {
  std::string settings;
  for (const Setting& setting : modulon.settings) {
    settings += (settings.empty() ? "\n  " : ",\n  ") + settingJson(setting);
  }
  return "{\"modulon\": " + jsonString(modulon.name) + ",\n \"title\": " + jsonString(modulon.title) +
         ",\n \"settings\": [" + settings + "\n ]}\n";
}

}  // namespace plovix::wizard
