// lpm_mult: a signed or unsigned multiplier with an optional pipeline.
#include "ModulonLibrary.h"
#include "PipelineSettings.h"
#include "PluginMessages.h"

namespace plovix::wizard {

namespace {

// The product's width: LPM_WIDTHP, or the full product when it is 0.
long long productWidth(const SettingValues& values) {
  const long long full = numberValue(values, "LPM_WIDTHA") + numberValue(values, "LPM_WIDTHB");
  const long long chosen = numberValue(values, "LPM_WIDTHP");
  return chosen == 0 ? full : chosen;
}

std::optional<std::string> checkMultiplier(const SettingValues& values) {
  const long long full = numberValue(values, "LPM_WIDTHA") + numberValue(values, "LPM_WIDTHB");
  if (numberValue(values, "LPM_WIDTHP") > full)
    return productTooWideText(numberValue(values, "LPM_WIDTHP"), full);
  return checkPipeline(values);
}

void describeMultiplier(const SettingValues& values, OutputLanguage, DescriptionText& cnx) {
  const Bounds a = Bounds::bus(numberValue(values, "LPM_WIDTHA"));
  const Bounds b = Bounds::bus(numberValue(values, "LPM_WIDTHB"));
  const Bounds product = Bounds::bus(productWidth(values));

  cnx.module("lpm_mult");
  cnx.numericConstant("LPM_WIDTHA", numberValue(values, "LPM_WIDTHA"));
  cnx.numericConstant("LPM_WIDTHB", numberValue(values, "LPM_WIDTHB"));
  cnx.numericConstant("LPM_WIDTHP", productWidth(values));
  cnx.stringConstant("LPM_REPRESENTATION", textValue(values, "LPM_REPRESENTATION"));
  describePipelineConstant(values, cnx);
  cnx.stringConstant("LPM_TYPE", "LPM_MULT");

  cnx.usedPort("dataa", a, "INPUT");
  cnx.usedPort("datab", b, "INPUT");
  cnx.connect("@dataa", a, "dataa", a);
  cnx.connect("@datab", b, "datab", b);
  describePipelinePorts(values, cnx);
  cnx.usedPort("result", product, "OUTPUT");
  cnx.connect("result", product, "@result", product);
}

}  // namespace

Modulon multiplierModulon() {
  std::vector<Setting> settings = {
      numberSetting("LPM_WIDTHA", "Width of the operand dataa", 1, 64, 8),
      numberSetting("LPM_WIDTHB", "Width of the operand datab", 1, 64, 8),
      numberSetting("LPM_WIDTHP",
                    "Width of the product result (0: the full product; fewer keep its top bits)", 0, 128, 0),
      choiceSetting("LPM_REPRESENTATION", "Number representation of both operands", {"UNSIGNED", "SIGNED"},
                    "UNSIGNED"),
  };
  for (Setting& setting : pipelineSettings()) settings.push_back(std::move(setting));
  return Modulon{"lpm_mult", "Multiplier", std::move(settings), checkMultiplier, describeMultiplier};
}

}  // namespace plovix::wizard
