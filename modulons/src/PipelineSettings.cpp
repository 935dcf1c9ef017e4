// The pipeline settings and the ports they add.
#include "PipelineSettings.h"

#include "PluginMessages.h"

namespace plovix::wizard {

std::vector<Setting> pipelineSettings() {
  return {
      numberSetting("LPM_PIPELINE", "Clock cycles of latency (0: combinational)", 0, 8, 0),
      yesNoSetting("CLKEN", "Clock enable input clken of the pipeline", false),
      yesNoSetting("ACLR", "Asynchronous clear input aclr of the pipeline", false),
  };
}

std::optional<std::string> checkPipeline(const SettingValues& values) {
  if (numberValue(values, "LPM_PIPELINE") > 0) return std::nullopt;
  for (const char* name : {"CLKEN", "ACLR"}) {
    if (isYes(values, name)) return needsPipelineText(name);
  }
  return std::nullopt;
}

void describePipelineConstant(const SettingValues& values, DescriptionText& cnx) {
  const long long pipeline = numberValue(values, "LPM_PIPELINE");
  if (pipeline > 0) cnx.numericConstant("LPM_PIPELINE", pipeline);
}

void describePipelinePorts(const SettingValues& values, DescriptionText& cnx) {
  if (numberValue(values, "LPM_PIPELINE") == 0) return;
  const Bounds bit = Bounds::bit();
  cnx.usedPort("clock", bit, "INPUT");
  cnx.connect("@clock", bit, "clock", bit);
  if (isYes(values, "CLKEN")) {
    cnx.usedPort("clken", bit, "INPUT", "VCC");
    cnx.connect("@clken", bit, "clken", bit);
  }
  if (isYes(values, "ACLR")) {
    cnx.usedPort("aclr", bit, "INPUT", "GND");
    cnx.connect("@aclr", bit, "aclr", bit);
  }
}

}  // namespace plovix::wizard
