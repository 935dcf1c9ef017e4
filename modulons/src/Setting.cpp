// Checking a value against the values a setting allows.
#include "Setting.h"

#include <cctype>
#include <cstdlib>

#include "PluginMessages.h"

namespace plovix::wizard {

namespace {

bool sameWord(const std::string& a, const std::string& b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i) {
    if (std::toupper(static_cast<unsigned char>(a[i])) != std::toupper(static_cast<unsigned char>(b[i])))
      return false;
  }
  return true;
}

std::optional<long long> wholeNumber(const std::string& text) {
  size_t start = text.size() > 1 && text[0] == '-' ? 1 : 0;
  if (text.size() == start || text.size() - start > 12) return std::nullopt;
  for (size_t i = start; i < text.size(); ++i) {
    if (!std::isdigit(static_cast<unsigned char>(text[i]))) return std::nullopt;
  }
  return std::strtoll(text.c_str(), nullptr, 10);
}

}  // namespace

std::optional<std::string> acceptValue(const Setting& setting, const std::string& text) {
  if (setting.kind == SettingKind::kText) {
    for (const char c : text) {
      if (c == '"' || static_cast<unsigned char>(c) < 0x20 || c == 0x7f) return std::nullopt;
    }
    return text;
  }
  if (setting.isNumber()) {
    const std::optional<long long> number = wholeNumber(text);
    if (!number || *number < setting.minimum || *number > setting.maximum) return std::nullopt;
    return std::to_string(*number);
  }
  for (const std::string& choice : setting.choices) {
    if (sameWord(choice, text)) return choice;
  }
  return std::nullopt;
}

std::string allowedValuesText(const Setting& setting) {
  if (setting.kind == SettingKind::kText) return freeTextText();
  if (setting.isNumber()) return numberRangeText(setting.minimum, setting.maximum);
  std::string text;
  for (const std::string& choice : setting.choices) {
    if (!text.empty()) text += ", ";
    text += choice;
  }
  return text;
}

long long numberValue(const SettingValues& values, const std::string& name) {
  const auto found = values.find(name);
  return found == values.end() ? 0 : std::strtoll(found->second.c_str(), nullptr, 10);
}

}  // namespace plovix::wizard

namespace plovix::wizard {

Setting numberSetting(const std::string& name, const std::string& question, long long minimum,
                      long long maximum, long long defaultValue) {
  return Setting{name, question, SettingKind::kInteger, {}, minimum, maximum, std::to_string(defaultValue)};
}

Setting choiceSetting(const std::string& name, const std::string& question, std::vector<std::string> choices,
                      const std::string& defaultValue) {
  return Setting{name, question, SettingKind::kChoice, std::move(choices), 0, 0, defaultValue};
}

Setting yesNoSetting(const std::string& name, const std::string& question, bool defaultValue) {
  return choiceSetting(name, question, {"YES", "NO"}, defaultValue ? "YES" : "NO");
}

Setting textSetting(const std::string& name, const std::string& question, const std::string& defaultValue) {
  return Setting{name, question, SettingKind::kText, {}, 0, 0, defaultValue};
}

bool isYes(const SettingValues& values, const std::string& name) {
  return textValue(values, name) == "YES";
}

std::string textValue(const SettingValues& values, const std::string& name) {
  const auto found = values.find(name);
  return found == values.end() ? std::string() : found->second;
}

}  // namespace plovix::wizard
