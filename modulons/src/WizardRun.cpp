// The plug-in's run: arguments, presets, questions, description.
#include "WizardRun.h"

#include <cstring>

#include "ModulonLibrary.h"
#include "PluginMessages.h"
#include "PreparedDescription.h"
#include "SettingsJson.h"
#include "base/SafeWrite.h"

namespace plovix::wizard {

namespace {

// Through the manager's safe writer, so that a failed write never leaves half a description.
bool writeDescription(const std::string& path, const std::string& text, std::string& reason) {
  const int errorNumber = replaceFile(path, text);
  if (errorNumber != 0) reason = std::strerror(errorNumber);
  return errorNumber == 0;
}

void presetFromDescription(const Modulon& modulon, const std::string& cnxPath, SettingValues& values) {
  for (const PrivateValue& stored : readPrivateValues(readWholeFile(cnxPath))) {
    const Setting* setting = modulon.findSetting(stored.name);
    if (setting == nullptr) continue;
    // A stored value this version no longer allows keeps the default.
    if (const std::optional<std::string> value = acceptValue(*setting, stored.value))
      values[setting->name] = *value;
  }
}

}  // namespace

OutputLanguage languageOf(const std::string& outputPath) {
  const std::string extension = extensionOf(outputPath);
  if (extension == ".v") return OutputLanguage::kVerilog;
  if (extension == ".vhd") return OutputLanguage::kVhdl;
  return OutputLanguage::kThdl;
}

std::string modulonNamesText(const std::vector<Modulon>& modulons) {
  std::string text;
  for (const Modulon& modulon : modulons) text += (text.empty() ? "" : ", ") + modulon.name;
  return text;
}

std::string settingNamesText(const Modulon& modulon) {
  std::string text;
  for (const Setting& setting : modulon.settings) text += (text.empty() ? "" : ", ") + setting.name;
  return text;
}

std::string presetValues(const Modulon& modulon, const PluginArguments& arguments, SettingValues& values) {
  values = modulon.defaultValues();
  if (!arguments.newVariation)
    presetFromDescription(modulon, descriptionPathFor(arguments.outputPath), values);
  for (const auto& [name, text] : arguments.assignments) {
    const Setting* setting = modulon.findSetting(name);
    if (setting == nullptr) return unknownSettingText(modulon.name, name, settingNamesText(modulon));
    const std::optional<std::string> value = acceptValue(*setting, text);
    if (!value) return badValueText(name, text, allowedValuesText(*setting));
    values[setting->name] = *value;
  }
  return "";
}

std::string descriptionFor(const Modulon& modulon, const SettingValues& values, OutputLanguage language) {
  DescriptionText cnx(isYes(values, "SYMBOL_ONLY"));
  cnx.library("lpm", "lpm.lpm_components.all");
  modulon.describe(values, language, cnx);
  // The values as the user chose them, so that an edit starts from them.
  for (const Setting& setting : modulon.settings) {
    cnx.privateValue(setting.name, setting.isNumber() ? "NUMERIC" : "STRING",
                     textValue(values, setting.name));
  }
  return cnx.text();
}

int runWizard(const std::vector<std::string>& argv, const std::vector<Modulon>& modulons,
              DialogChooser& chooser, std::ostream& output, std::ostream& messages) {
  const ParsedArguments parsed = parsePluginArguments(argv);
  if (!parsed.arguments) {
    messages << parsed.error << "\n";
    return kExitCancel;
  }
  const PluginArguments& arguments = *parsed.arguments;
  if (arguments.help) {
    std::string lines;
    for (const Modulon& modulon : modulons) lines += modulonLineText(modulon.name, modulon.title);
    output << usageText(lines) << std::flush;
    return output ? kExitFinish : kExitCancel;
  }
  if (arguments.modulon.empty()) {
    messages << missingModulonText(modulonNamesText(modulons)) << "\n";
    return kExitCancel;
  }
  const Modulon* modulon = findModulon(modulons, arguments.modulon);
  if (modulon == nullptr) {
    messages << unknownModulonText(arguments.modulon, modulonNamesText(modulons)) << "\n";
    return kExitCancel;
  }
  if (arguments.describe) {
    // Only the settings table: nothing is asked and nothing is written.
    output << settingsJson(*modulon) << std::flush;
    return output ? kExitFinish : kExitCancel;
  }

  SettingValues values;
  if (const std::string refusal = presetValues(*modulon, arguments, values); !refusal.empty()) {
    messages << refusal << "\n";
    return kExitCancel;
  }
  if (ValueDialog* dialog = chooser.dialogFor(arguments)) {
    const DialogOutcome outcome = dialog->collect(*modulon, arguments, values);
    if (outcome == DialogOutcome::kBack) return kExitBack;
    if (outcome == DialogOutcome::kCancel) {
      messages << cancelledText() << "\n";
      return kExitCancel;
    }
  }
  if (const std::optional<std::string> conflict = modulon->check(values)) {
    messages << *conflict << "\n";
    return kExitCancel;
  }

  const std::string cnxPath = descriptionPathFor(arguments.outputPath);
  std::string reason;
  if (!writeDescription(cnxPath, descriptionFor(*modulon, values, languageOf(arguments.outputPath)),
                        reason)) {
    messages << cannotWriteText(cnxPath, reason) << "\n";
    return kExitCancel;
  }
  return kExitFinish;
}

}  // namespace plovix::wizard
