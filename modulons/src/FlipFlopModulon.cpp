// lpm_ff: a register of D or T flip-flops with optional enable and asynchronous and synchronous clear, set
// and load.
#include "ModulonLibrary.h"
#include "PluginMessages.h"

namespace plovix::wizard {

namespace {

// The optional controls: each setting switches on the input of that name.
const std::pair<const char*, const char*> kControls[] = {{"ACLR", "aclr"},   {"ASET", "aset"},
                                                         {"ALOAD", "aload"}, {"SCLR", "sclr"},
                                                         {"SSET", "sset"},   {"SLOAD", "sload"}};

// The set value of aset or sset, when it is given and does not fit the width.
std::optional<std::string> checkSetValue(const SettingValues& values, const std::string& name) {
  const long long width = numberValue(values, "LPM_WIDTH");
  const long long value = numberValue(values, name);
  if (width < 62 && value >= (1LL << width)) return setValueTooWideText(name, value, width);
  return std::nullopt;
}

std::optional<std::string> checkFlipFlop(const SettingValues& values) {
  if (isYes(values, "SLOAD") && textValue(values, "LPM_FFTYPE") != "TFF") return loadNeedsToggleText();
  if (auto refusal = checkSetValue(values, "LPM_AVALUE")) return refusal;
  return checkSetValue(values, "LPM_SVALUE");
}

void describeFlipFlop(const SettingValues& values, OutputLanguage, DescriptionText& cnx) {
  const long long width = numberValue(values, "LPM_WIDTH");
  const Bounds bus = Bounds::bus(width);
  const Bounds bit = Bounds::bit();

  cnx.module("lpm_ff");
  cnx.numericConstant("LPM_WIDTH", width);
  cnx.stringConstant("LPM_FFTYPE", textValue(values, "LPM_FFTYPE"));
  // Without a value, set gives all ones.
  if (isYes(values, "ASET") && numberValue(values, "LPM_AVALUE") >= 0)
    cnx.numericConstant("LPM_AVALUE", numberValue(values, "LPM_AVALUE"));
  if (isYes(values, "SSET") && numberValue(values, "LPM_SVALUE") >= 0)
    cnx.numericConstant("LPM_SVALUE", numberValue(values, "LPM_SVALUE"));
  cnx.stringConstant("LPM_TYPE", "LPM_FF");

  cnx.passedInput("data", bus);
  cnx.passedInput("clock", bit);
  if (isYes(values, "ENABLE")) cnx.passedInput("enable", bit, "VCC");
  for (const auto& [setting, port] : kControls) {
    if (isYes(values, setting)) cnx.passedInput(port, bit, "GND");
  }
  cnx.passedOutput("q", bus);
}

}  // namespace

Modulon flipFlopModulon() {
  return Modulon{
      "lpm_ff",
      "Flip-flop register",
      {
          numberSetting("LPM_WIDTH", "Width of data and q", 1, 64, 8),
          choiceSetting("LPM_FFTYPE", "Flip-flop type (TFF: a data bit of 1 toggles its q bit)",
                        {"DFF", "TFF"}, "DFF"),
          yesNoSetting("ENABLE", "Clock enable input enable", false),
          yesNoSetting("ACLR", "Asynchronous clear input aclr", false),
          yesNoSetting("ASET", "Asynchronous set input aset", false),
          yesNoSetting("ALOAD", "Asynchronous load input aload (loads data)", false),
          yesNoSetting("SCLR", "Synchronous clear input sclr", false),
          yesNoSetting("SSET", "Synchronous set input sset", false),
          yesNoSetting("SLOAD", "Synchronous load input sload of a T flip-flop (loads data)", false),
          numberSetting("LPM_AVALUE", "Value aset gives (-1: all ones)", -1, 2147483647, -1),
          numberSetting("LPM_SVALUE", "Value sset gives (-1: all ones)", -1, 2147483647, -1),
      },
      checkFlipFlop,
      describeFlipFlop,
  };
}

}  // namespace plovix::wizard
