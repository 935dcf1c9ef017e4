// lpm_and, lpm_or, lpm_xor: one gate per bit over LPM_SIZE input words of LPM_WIDTH bits.
#include "ModulonLibrary.h"

namespace plovix::wizard {

namespace {

// The three gates differ only in their names.
Modulon gateModulon(const std::string& name, const std::string& type, const std::string& title) {
  auto describe = [name, type](const SettingValues& values, OutputLanguage language, DescriptionText& cnx) {
    const long long width = numberValue(values, "LPM_WIDTH");
    const long long size = numberValue(values, "LPM_SIZE");
    cnx.module(name);
    cnx.numericConstant("LPM_WIDTH", width);
    cnx.numericConstant("LPM_SIZE", size);
    cnx.stringConstant("LPM_TYPE", type);
    const Bounds data = wordGroupBounds(language, size, width);
    cnx.usedPort("data", data, "INPUT");
    cnx.connect("@data", data, "data", data);
    cnx.usedPort("result", Bounds::bus(width), "OUTPUT");
    cnx.connect("result", Bounds::bus(width), "@result", Bounds::bus(width));
  };
  return Modulon{
      name,
      title,
      {
          numberSetting("LPM_WIDTH", "Width of each input word and of the result", 1, 64, 8),
          numberSetting("LPM_SIZE", "Number of input words", 2, 64, 2),
      },
      [](const SettingValues&) { return std::optional<std::string>(); },
      describe,
  };
}

}  // namespace

Modulon andModulon() {
  return gateModulon("lpm_and", "LPM_AND", "AND gate");
}

Modulon orModulon() {
  return gateModulon("lpm_or", "LPM_OR", "OR gate");
}

Modulon xorModulon() {
  return gateModulon("lpm_xor", "LPM_XOR", "XOR gate");
}

}  // namespace plovix::wizard
