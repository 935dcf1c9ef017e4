// One value a modulon asks for: its name, its question, and the values it allows.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace plovix::wizard {

// A whole number in a range, one word of a list, or free text.
enum class SettingKind { kInteger, kChoice, kText };

struct Setting {
  std::string name;      // as written in NAME=VALUE pairs and PRIVATE: lines
  std::string question;  // what the prompt and the dialog show; one line
  SettingKind kind = SettingKind::kInteger;
  std::vector<std::string> choices;  // the allowed words of a choice
  long long minimum = 0;             // range of a whole number
  long long maximum = 0;
  std::string defaultValue;

  bool isNumber() const { return kind == SettingKind::kInteger; }
};

// A modulon's current values, by setting name.
using SettingValues = std::map<std::string, std::string>;

// The value in its canonical spelling (choices match without regard to case), or nothing when the text is
// not allowed.
std::optional<std::string> acceptValue(const Setting& setting, const std::string& text);

// "UP, DOWN, UNUSED", "a whole number from 1 to 32" or what a text may hold.
std::string allowedValuesText(const Setting& setting);

// The value of a whole-number setting (0 when absent).
long long numberValue(const SettingValues& values, const std::string& name);

}  // namespace plovix::wizard

namespace plovix::wizard {

// The kinds of settings the modulons use.
Setting numberSetting(const std::string& name, const std::string& question, long long minimum,
                      long long maximum, long long defaultValue);
Setting choiceSetting(const std::string& name, const std::string& question, std::vector<std::string> choices,
                      const std::string& defaultValue);
Setting yesNoSetting(const std::string& name, const std::string& question, bool defaultValue);
// Free text on one line, without double quotes (a CNX value cannot hold them).
Setting textSetting(const std::string& name, const std::string& question, const std::string& defaultValue);

// Whether a YES/NO setting is YES.
bool isYes(const SettingValues& values, const std::string& name);
// The text value of a setting (empty when absent).
std::string textValue(const SettingValues& values, const std::string& name);

}  // namespace plovix::wizard
