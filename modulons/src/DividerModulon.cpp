// lpm_divide: quotient and remainder of a signed or unsigned division, with an optional pipeline.
#include "ModulonLibrary.h"
#include "PipelineSettings.h"

namespace plovix::wizard {

namespace {

void describeDivider(const SettingValues& values, OutputLanguage, DescriptionText& cnx) {
  const Bounds numerator = Bounds::bus(numberValue(values, "LPM_WIDTHN"));
  const Bounds denominator = Bounds::bus(numberValue(values, "LPM_WIDTHD"));

  cnx.module("lpm_divide");
  cnx.numericConstant("LPM_WIDTHN", numberValue(values, "LPM_WIDTHN"));
  cnx.numericConstant("LPM_WIDTHD", numberValue(values, "LPM_WIDTHD"));
  cnx.stringConstant("LPM_NREPRESENTATION", textValue(values, "LPM_NREPRESENTATION"));
  cnx.stringConstant("LPM_DREPRESENTATION", textValue(values, "LPM_DREPRESENTATION"));
  cnx.stringConstant("LPM_REMAINDERPOSITIVE", textValue(values, "LPM_REMAINDERPOSITIVE"));
  describePipelineConstant(values, cnx);
  cnx.stringConstant("LPM_TYPE", "LPM_DIVIDE");

  cnx.usedPort("numer", numerator, "INPUT");
  cnx.usedPort("denom", denominator, "INPUT");
  cnx.connect("@numer", numerator, "numer", numerator);
  cnx.connect("@denom", denominator, "denom", denominator);
  describePipelinePorts(values, cnx);
  cnx.usedPort("quotient", numerator, "OUTPUT");
  cnx.usedPort("remain", denominator, "OUTPUT");
  cnx.connect("quotient", numerator, "@quotient", numerator);
  cnx.connect("remain", denominator, "@remain", denominator);
}

}  // namespace

Modulon dividerModulon() {
  const std::vector<std::string> representation = {"UNSIGNED", "SIGNED"};
  std::vector<Setting> settings = {
      numberSetting("LPM_WIDTHN", "Width of the numerator numer and the quotient", 1, 64, 8),
      numberSetting("LPM_WIDTHD", "Width of the denominator denom and the remainder remain", 1, 64, 8),
      choiceSetting("LPM_NREPRESENTATION", "Number representation of the numerator", representation,
                    "UNSIGNED"),
      choiceSetting("LPM_DREPRESENTATION", "Number representation of the denominator", representation,
                    "UNSIGNED"),
      choiceSetting("LPM_REMAINDERPOSITIVE",
                    "Remainder never negative (FALSE: it takes the numerator's sign)", {"TRUE", "FALSE"},
                    "TRUE"),
  };
  for (Setting& setting : pipelineSettings()) settings.push_back(std::move(setting));
  return Modulon{"lpm_divide", "Divider", std::move(settings), checkPipeline, describeDivider};
}

}  // namespace plovix::wizard
