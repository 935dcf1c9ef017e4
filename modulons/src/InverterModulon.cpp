// lpm_inv: the bitwise complement of a bus.
#include "ModulonLibrary.h"

namespace plovix::wizard {

namespace {

void describeInverter(const SettingValues& values, OutputLanguage, DescriptionText& cnx) {
  const Bounds bus = Bounds::bus(numberValue(values, "LPM_WIDTH"));
  cnx.module("lpm_inv");
  cnx.numericConstant("LPM_WIDTH", numberValue(values, "LPM_WIDTH"));
  cnx.stringConstant("LPM_TYPE", "LPM_INV");
  cnx.usedPort("data", bus, "INPUT");
  cnx.connect("@data", bus, "data", bus);
  cnx.usedPort("result", bus, "OUTPUT");
  cnx.connect("result", bus, "@result", bus);
}

}  // namespace

Modulon inverterModulon() {
  return Modulon{
      "lpm_inv",
      "Inverter",
      {numberSetting("LPM_WIDTH", "Width of the data input and the result", 1, 64, 8)},
      [](const SettingValues&) { return std::optional<std::string>(); },
      describeInverter,
  };
}

}  // namespace plovix::wizard
