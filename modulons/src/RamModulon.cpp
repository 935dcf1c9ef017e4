// lpm_ram_dq: a single-port memory with registered or direct inputs and output.
#include "ModulonLibrary.h"
#include "PluginMessages.h"

namespace plovix::wizard {

namespace {

std::optional<std::string> checkRam(const SettingValues& values) {
  const long long widthad = numberValue(values, "LPM_WIDTHAD");
  const long long words = numberValue(values, "LPM_NUMWORDS");
  if (words > (1LL << widthad)) return tooManyWordsText(words, widthad);
  return std::nullopt;
}

void describeRam(const SettingValues& values, OutputLanguage, DescriptionText& cnx) {
  const long long width = numberValue(values, "LPM_WIDTH");
  const long long widthad = numberValue(values, "LPM_WIDTHAD");
  const long long words =
      numberValue(values, "LPM_NUMWORDS") == 0 ? (1LL << widthad) : numberValue(values, "LPM_NUMWORDS");
  const bool inputsRegistered = textValue(values, "LPM_INDATA") == "REGISTERED" ||
                                textValue(values, "LPM_ADDRESS_CONTROL") == "REGISTERED";
  const bool outputRegistered = textValue(values, "LPM_OUTDATA") == "REGISTERED";
  const Bounds bit = Bounds::bit();

  cnx.module("lpm_ram_dq");
  cnx.numericConstant("LPM_WIDTH", width);
  cnx.numericConstant("LPM_WIDTHAD", widthad);
  cnx.numericConstant("LPM_NUMWORDS", words);
  cnx.stringConstant("LPM_INDATA", textValue(values, "LPM_INDATA"));
  cnx.stringConstant("LPM_ADDRESS_CONTROL", textValue(values, "LPM_ADDRESS_CONTROL"));
  cnx.stringConstant("LPM_OUTDATA", textValue(values, "LPM_OUTDATA"));
  cnx.stringConstant("LPM_TYPE", "LPM_RAM_DQ");

  cnx.usedPort("data", Bounds::bus(width), "INPUT");
  cnx.usedPort("address", Bounds::bus(widthad), "INPUT");
  cnx.usedPort("we", bit, "INPUT", "GND");
  cnx.connect("@data", Bounds::bus(width), "data", Bounds::bus(width));
  cnx.connect("@address", Bounds::bus(widthad), "address", Bounds::bus(widthad));
  cnx.connect("@we", bit, "we", bit);
  if (inputsRegistered) {
    cnx.usedPort("inclock", bit, "INPUT");
    cnx.connect("@inclock", bit, "inclock", bit);
  }
  if (outputRegistered) {
    cnx.usedPort("outclock", bit, "INPUT");
    cnx.connect("@outclock", bit, "outclock", bit);
  }
  cnx.usedPort("q", Bounds::bus(width), "OUTPUT");
  cnx.connect("q", Bounds::bus(width), "@q", Bounds::bus(width));
}

}  // namespace

Modulon ramModulon() {
  const std::vector<std::string> timing = {"REGISTERED", "UNREGISTERED"};
  return Modulon{
      "lpm_ram_dq",
      "Single-port RAM",
      {
          numberSetting("LPM_WIDTH", "Width of a memory word", 1, 64, 8),
          numberSetting("LPM_WIDTHAD", "Width of the address", 1, 16, 5),
          numberSetting("LPM_NUMWORDS", "Number of words (0: every address)", 0, 65536, 0),
          choiceSetting("LPM_INDATA", "Data input taken at the inclock edge", timing, "REGISTERED"),
          choiceSetting("LPM_ADDRESS_CONTROL", "Address and write enable taken at the inclock edge", timing,
                        "REGISTERED"),
          choiceSetting("LPM_OUTDATA", "Output q taken at the outclock edge", timing, "UNREGISTERED"),
      },
      checkRam,
      describeRam,
  };
}

}  // namespace plovix::wizard
