// Reading and writing the settings object of the describe protocol.
#include "entry/ModulonSettings.h"

#include "base/Format.h"

namespace plovix {

namespace {

constexpr struct {
  ModulonSetting::Kind kind;
  const char* word;
} kKindWords[] = {
    {ModulonSetting::Kind::kInteger, "integer"},
    {ModulonSetting::Kind::kChoice, "choice"},
    {ModulonSetting::Kind::kText, "text"},
};

// A string member; false when it is missing or not a string.
bool stringMember(const JsonValue& object, const char* name, std::string& out) {
  const JsonValue* value = object.member(name);
  if (value == nullptr || value->kind != JsonKind::kString) return false;
  out = value->text;
  return true;
}

bool integerMember(const JsonValue& object, const char* name, long long& out) {
  const JsonValue* value = object.member(name);
  return value != nullptr && value->integer(out);
}

// Names the member at fault; always false.
bool failAt(std::string& badField, const char* member) {
  badField = member;
  return false;
}

bool kindOfWord(const std::string& word, ModulonSetting::Kind& kind) {
  for (const auto& row : kKindWords) {
    if (word == row.word) {
      kind = row.kind;
      return true;
    }
  }
  return false;
}

// One entry of "settings"; on failure `badField` names the member after the entry's own name.
bool settingFromJson(const JsonValue& json, ModulonSetting& setting, std::string& badField) {
  std::string kind;
  if (json.kind != JsonKind::kObject) return false;
  if (!stringMember(json, "name", setting.name) || setting.name.empty()) return failAt(badField, ".name");
  if (!stringMember(json, "kind", kind) || !kindOfWord(kind, setting.kind)) return failAt(badField, ".kind");
  if (setting.kind == ModulonSetting::Kind::kInteger) {
    if (!integerMember(json, "minimum", setting.minimum)) return failAt(badField, ".minimum");
    if (!integerMember(json, "maximum", setting.maximum)) return failAt(badField, ".maximum");
  } else if (setting.kind == ModulonSetting::Kind::kChoice) {
    const JsonValue* values = json.member("values");
    if (values == nullptr || values->kind != JsonKind::kArray) return failAt(badField, ".values");
    for (const JsonValue& value : values->items) {
      if (value.kind != JsonKind::kString) return failAt(badField, ".values");
      setting.values.push_back(value.text);
    }
  }
  if (!stringMember(json, "default", setting.defaultValue)) return failAt(badField, ".default");
  if (!stringMember(json, "help", setting.help)) return failAt(badField, ".help");
  return true;
}

}  // namespace

const char* settingKindWord(ModulonSetting::Kind kind) {
  for (const auto& row : kKindWords)
    if (row.kind == kind) return row.word;
  return "text";
}

bool settingsFromJson(const JsonValue& json, ModulonSettings& out, std::string& badField) {
  ModulonSettings settings;
  if (json.kind != JsonKind::kObject) return failAt(badField, "object");
  if (!stringMember(json, "modulon", settings.modulon)) return failAt(badField, "modulon");
  const JsonValue* title = json.member("title");
  if (title != nullptr && title->kind == JsonKind::kString) settings.title = title->text;
  const JsonValue* list = json.member("settings");
  if (list == nullptr || list->kind != JsonKind::kArray) return failAt(badField, "settings");
  for (size_t i = 0; i < list->items.size(); ++i) {
    ModulonSetting setting;
    std::string member;
    if (!settingFromJson(list->items[i], setting, member)) {
      badField = formatText("settings[%zu]%s", i, member.c_str());
      return false;
    }
    settings.settings.push_back(std::move(setting));
  }
  out = std::move(settings);
  return true;
}

JsonValue settingsToJson(const ModulonSettings& settings) {
  JsonValue list = JsonValue::array();
  for (const ModulonSetting& setting : settings.settings) {
    JsonValue item = JsonValue::object();
    item.add("name", JsonValue::ofString(setting.name));
    item.add("kind", JsonValue::ofString(settingKindWord(setting.kind)));
    if (setting.kind == ModulonSetting::Kind::kInteger) {
      item.add("minimum", JsonValue::ofInteger(setting.minimum));
      item.add("maximum", JsonValue::ofInteger(setting.maximum));
    } else if (setting.kind == ModulonSetting::Kind::kChoice) {
      item.add("values", JsonValue::ofStrings(setting.values));
    }
    item.add("default", JsonValue::ofString(setting.defaultValue));
    item.add("help", JsonValue::ofString(setting.help));
    list.push(std::move(item));
  }
  JsonValue object = JsonValue::object();
  object.add("modulon", JsonValue::ofString(settings.modulon));
  object.add("title", JsonValue::ofString(settings.title));
  object.add("settings", std::move(list));
  return object;
}

}  // namespace plovix
