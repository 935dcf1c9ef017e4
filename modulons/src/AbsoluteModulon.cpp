// lpm_abs: the absolute value of a signed bus, with an overflow flag for the most negative value.
#include "ModulonLibrary.h"

namespace plovix::wizard {

namespace {

void describeAbsolute(const SettingValues& values, OutputLanguage, DescriptionText& cnx) {
  const Bounds bus = Bounds::bus(numberValue(values, "LPM_WIDTH"));
  const Bounds bit = Bounds::bit();
  cnx.module("lpm_abs");
  cnx.numericConstant("LPM_WIDTH", numberValue(values, "LPM_WIDTH"));
  cnx.stringConstant("LPM_TYPE", "LPM_ABS");
  cnx.usedPort("data", bus, "INPUT");
  cnx.connect("@data", bus, "data", bus);
  cnx.usedPort("result", bus, "OUTPUT");
  cnx.connect("result", bus, "@result", bus);
  if (isYes(values, "OVERFLOW")) {
    cnx.usedPort("overflow", bit, "OUTPUT");
    cnx.connect("overflow", bit, "@overflow", bit);
  }
}

}  // namespace

Modulon absoluteModulon() {
  return Modulon{
      "lpm_abs",
      "Absolute value",
      {
          numberSetting("LPM_WIDTH", "Width of the signed data input and of the result", 1, 64, 8),
          yesNoSetting("OVERFLOW",
                       "Output overflow: data is the most negative value, which has no positive twin", true),
      },
      [](const SettingValues&) { return std::optional<std::string>(); },
      describeAbsolute,
  };
}

}  // namespace plovix::wizard
