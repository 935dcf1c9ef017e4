// plovix --describe-modulon: a modulon's catalog entry and the settings its plug-in takes, as text or JSON.
#include <algorithm>
#include <array>
#include <cstdio>

#include "RunManifest.h"
#include "Subcommands.h"
#include "base/Format.h"
#include "base/Report.h"
#include "base/TextHelpers.h"
#include "entry/DescribeModulon.h"
#include "entry/ManagerApp.h"
#include "ui/BatchHints.h"

namespace plovix {

namespace {

std::vector<std::string> aliasesOf(const CatalogEntry& entry) {
  std::vector<std::string> aliases;
  size_t start = 0;
  while (start <= entry.alias.size()) {
    const size_t comma = std::min(entry.alias.find(',', start), entry.alias.size());
    const std::string alias = trimText(entry.alias.substr(start, comma - start));
    if (!alias.empty()) aliases.push_back(alias);
    start = comma + 1;
  }
  return aliases;
}

std::string joined(const std::vector<std::string>& words, const char* separator) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : separator) + word;
  return text;
}

// The allowed values of a setting as the text form shows them.
std::string valuesText(const ModulonSetting& setting) {
  switch (setting.kind) {
    case ModulonSetting::Kind::kInteger:
      return errorMessage(Msg::kDescribeInteger, formatInt(setting.minimum), formatInt(setting.maximum));
    case ModulonSetting::Kind::kChoice:
      return errorMessage(Msg::kDescribeChoice, joined(setting.values, ", "));
    case ModulonSetting::Kind::kText:
      break;
  }
  return errorMessage(Msg::kDescribeText);
}

// The settings as aligned columns: name, values, default, help.
std::string settingsTable(const ModulonSettings& settings) {
  std::vector<std::array<std::string, 4>> rows;
  std::array<size_t, 3> widths{};
  for (const ModulonSetting& setting : settings.settings) {
    rows.push_back({setting.name, valuesText(setting),
                    errorMessage(Msg::kDescribeDefault, setting.defaultValue), setting.help});
    for (size_t column = 0; column < widths.size(); ++column)
      widths[column] = std::max(widths[column], rows.back()[column].size());
  }
  std::string table = errorMessage(Msg::kDescribeSettings) + "\n";
  for (const auto& row : rows) {
    std::string line = " ";
    for (size_t column = 0; column < widths.size(); ++column)
      line += " " + row[column] + std::string(widths[column] - row[column].size() + 1, ' ');
    table += trimRight(line + row[3]) + "\n";
  }
  return table;
}

std::string entryText(const CatalogEntry& entry, const ModulonSettings* settings) {
  const std::string title = settings != nullptr ? settings->title : std::string();
  std::string text =
      (title.empty() ? entry.name : errorMessage(Msg::kDescribeHeading, entry.name, title)) + "\n";
  const std::pair<Msg, std::string> lines[] = {{Msg::kDescribeSection, entry.section},
                                               {Msg::kDescribeAliases, joined(aliasesOf(entry), ", ")},
                                               {Msg::kDescribeAbstract, entry.abstract},
                                               {Msg::kDescribeNativeHdl, entry.nativeHdl}};
  for (const auto& [message, value] : lines)
    if (!value.empty()) text += errorMessage(message, value) + "\n";
  if (settings != nullptr) text += settingsTable(*settings);
  return text;
}

JsonValue entryJson(const CatalogEntry& entry, const ModulonSettings* settings, const std::string& error) {
  JsonValue json = JsonValue::object();
  json.add("modulon", JsonValue::ofString(entry.name));
  json.add("section", JsonValue::ofString(entry.section));
  json.add("abstract", JsonValue::ofString(entry.abstract));
  json.add("aliases", JsonValue::ofStrings(aliasesOf(entry)));
  json.add("native_hdl", JsonValue::ofString(entry.nativeHdl));
  json.add("command_line", JsonValue::ofString(entry.commandLine));
  json.add("described", JsonValue::ofBool(settings != nullptr));
  if (settings != nullptr) {
    // The plug-in's own object, without its modulon name (the entry's is above).
    JsonValue described = settingsToJson(*settings);
    for (auto& [key, value] : described.members)
      if (key != "modulon") json.add(key, std::move(value));
  }
  if (!error.empty()) json.add("error", JsonValue::ofString(error));
  return json;
}

}  // namespace

int describeModulonCommand(BatchFrontEnd& messages, const std::string& name, bool json) {
  ManagerApp& app = ManagerApp::instance();
  app.restoreDirectoryAtExit = false;
  app.run.catalog = std::make_unique<WizardCatalog>();
  app.run.catalog->load(messages);
  const WizardCatalog& catalog = *app.run.catalog;
  const CatalogEntry* entry = catalog.findEntry(catalog.resolveAlias(name));
  if (entry == nullptr) {
    const std::string text = errorMessage(Msg::kModulonNotListed, name);
    messages.report(text);
    messages.hint(unknownModulonHint(catalog, name));
    if (json) {
      JsonValue object = JsonValue::object();
      object.add("modulon", JsonValue::ofString(name));
      object.add("described", JsonValue::ofBool(false));
      object.add("error", JsonValue::ofString(text));
      printJson(object);
    }
    return 1;
  }

  ModulonSettings settings;
  std::string failure;
  const bool described = entry->describes && describeModulon(app, messages, *entry, settings, failure);
  if (!entry->describes)
    std::fprintf(stderr, "plovix: %s\n", errorMessage(Msg::kDescribeNoSettings, entry->name).c_str());
  if (!failure.empty()) messages.report(failure);
  const ModulonSettings* shown = described ? &settings : nullptr;
  bool printed = true;
  if (json) {
    printed = printJson(entryJson(*entry, shown, failure));
  } else {
    const std::string text = entryText(*entry, shown);
    printed = std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0;
  }
  return printed && failure.empty() ? 0 : 1;
}

}  // namespace plovix
