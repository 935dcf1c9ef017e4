// lpm_mux: selects one of several data words; the data input is two-dimensional in THDL and a flattened bus
// in VHDL and Verilog.
#include "ModulonLibrary.h"

namespace plovix::wizard {

namespace {

void describeMux(const SettingValues& values, OutputLanguage language, DescriptionText& cnx) {
  const long long width = numberValue(values, "LPM_WIDTH");
  const long long size = numberValue(values, "LPM_SIZE");
  const long long selectBits = bitsFor(size);
  const Bounds bit = Bounds::bit();

  cnx.module("lpm_mux");
  cnx.numericConstant("LPM_WIDTH", width);
  cnx.numericConstant("LPM_SIZE", size);
  cnx.numericConstant("LPM_WIDTHS", selectBits);
  cnx.stringConstant("LPM_TYPE", "LPM_MUX");

  const Bounds data = wordGroupBounds(language, size, width);
  cnx.usedPort("data", data, "INPUT");
  cnx.connect("@data", data, "data", data);
  cnx.usedPort("sel", Bounds::bus(selectBits), "INPUT");
  cnx.connect("@sel", Bounds::bus(selectBits), "sel", Bounds::bus(selectBits));
  if (numberValue(values, "LPM_PIPELINE") > 0) {
    cnx.numericConstant("LPM_PIPELINE", numberValue(values, "LPM_PIPELINE"));
    cnx.usedPort("clock", bit, "INPUT");
    cnx.connect("@clock", bit, "clock", bit);
  }
  cnx.usedPort("result", Bounds::bus(width), "OUTPUT");
  cnx.connect("result", Bounds::bus(width), "@result", Bounds::bus(width));
}

}  // namespace

Modulon muxModulon() {
  return Modulon{
      "lpm_mux",
      "Multiplexer",
      {
          numberSetting("LPM_WIDTH", "Width of each data word and of the result", 1, 64, 8),
          numberSetting("LPM_SIZE", "Number of data words", 2, 64, 4),
          numberSetting("LPM_PIPELINE", "Clock cycles of latency (0: combinational)", 0, 8, 0),
      },
      [](const SettingValues&) { return std::optional<std::string>(); },
      describeMux,
  };
}

}  // namespace plovix::wizard
