// lpm_add_sub: an adder, subtractor or switchable adder/subtractor.
#include "ModulonLibrary.h"

namespace plovix::wizard {

namespace {

void describeAddSub(const SettingValues& values, OutputLanguage, DescriptionText& cnx) {
  const long long width = numberValue(values, "LPM_WIDTH");
  const std::string direction = textValue(values, "LPM_DIRECTION");
  const long long pipeline = numberValue(values, "LPM_PIPELINE");
  const Bounds bus = Bounds::bus(width);
  const Bounds bit = Bounds::bit();

  cnx.module("lpm_add_sub");
  cnx.numericConstant("LPM_WIDTH", width);
  cnx.stringConstant("LPM_DIRECTION", direction);
  cnx.stringConstant("LPM_REPRESENTATION", textValue(values, "LPM_REPRESENTATION"));
  if (pipeline > 0) cnx.numericConstant("LPM_PIPELINE", pipeline);
  cnx.stringConstant("LPM_TYPE", "LPM_ADD_SUB");

  cnx.usedPort("dataa", bus, "INPUT");
  cnx.usedPort("datab", bus, "INPUT");
  cnx.connect("@dataa", bus, "dataa", bus);
  cnx.connect("@datab", bus, "datab", bus);
  if (direction == "UNUSED") {
    cnx.usedPort("add_sub", bit, "INPUT", "VCC");
    cnx.connect("@add_sub", bit, "add_sub", bit);
  }
  if (isYes(values, "CIN")) {
    cnx.usedPort("cin", bit, "INPUT", direction == "SUB" ? "VCC" : "GND");
    cnx.connect("@cin", bit, "cin", bit);
  } else if (direction == "ADD") {
    cnx.connect("@cin", bit, "GND", bit);
  } else if (direction == "SUB") {
    cnx.connect("@cin", bit, "VCC", bit);
  } else {
    // Without a carry input, adding takes carry 0 and subtracting carry 1: the inverse of add_sub.
    cnx.connect("@cin", bit, "!add_sub", bit);
  }
  if (pipeline > 0) {
    cnx.usedPort("clock", bit, "INPUT");
    cnx.connect("@clock", bit, "clock", bit);
  }
  cnx.usedPort("result", bus, "OUTPUT");
  cnx.connect("result", bus, "@result", bus);
  if (isYes(values, "COUT")) {
    cnx.usedPort("cout", bit, "OUTPUT");
    cnx.connect("cout", bit, "@cout", bit);
  }
  if (isYes(values, "OVERFLOW")) {
    cnx.usedPort("overflow", bit, "OUTPUT");
    cnx.connect("overflow", bit, "@overflow", bit);
  }
}

}  // namespace

Modulon addSubModulon() {
  return Modulon{
      "lpm_add_sub",
      "Adder/subtractor",
      {
          numberSetting("LPM_WIDTH", "Width of the operands and the result", 1, 32, 8),
          choiceSetting("LPM_DIRECTION", "Operation (UNUSED: an add_sub input chooses)",
                        {"ADD", "SUB", "UNUSED"}, "ADD"),
          choiceSetting("LPM_REPRESENTATION", "Number representation", {"UNSIGNED", "SIGNED"}, "UNSIGNED"),
          numberSetting("LPM_PIPELINE", "Clock cycles of latency (0: combinational)", 0, 8, 0),
          yesNoSetting("CIN", "Carry input cin", false),
          yesNoSetting("COUT", "Carry output cout", false),
          yesNoSetting("OVERFLOW", "Overflow output overflow", false),
      },
      [](const SettingValues&) { return std::optional<std::string>(); },
      describeAddSub,
  };
}

}  // namespace plovix::wizard
