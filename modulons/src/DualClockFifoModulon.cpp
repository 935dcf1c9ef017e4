// dcfifo: a first-in first-out memory written on one clock and read on another, with empty, full and
// used-words outputs on each side.
#include "ModulonLibrary.h"

namespace plovix::wizard {

namespace {

// The optional outputs: each setting switches on the output of that name, a bus of the used-words width or a
// flag.
struct SideOutput {
  const char* setting;
  const char* port;
  bool count;
};
const SideOutput kOutputs[] = {{"RDEMPTY", "rdempty", false}, {"RDFULL", "rdfull", false},
                               {"RDUSEDW", "rdusedw", true},  {"WREMPTY", "wrempty", false},
                               {"WRFULL", "wrfull", false},   {"WRUSEDW", "wrusedw", true}};

void describeDualClockFifo(const SettingValues& values, OutputLanguage, DescriptionText& cnx) {
  const long long width = numberValue(values, "LPM_WIDTH");
  const long long words = numberValue(values, "LPM_NUMWORDS");
  const long long widthu = bitsFor(words);
  const Bounds bit = Bounds::bit();

  cnx.module("dcfifo");
  cnx.numericConstant("LPM_WIDTH", width);
  cnx.numericConstant("LPM_NUMWORDS", words);
  cnx.numericConstant("LPM_WIDTHU", widthu);
  cnx.stringConstant("LPM_SHOWAHEAD", textValue(values, "LPM_SHOWAHEAD"));
  cnx.numericConstant("RDSYNC_DELAYPIPE", numberValue(values, "RDSYNC_DELAYPIPE"));
  cnx.numericConstant("WRSYNC_DELAYPIPE", numberValue(values, "WRSYNC_DELAYPIPE"));
  cnx.stringConstant("LPM_TYPE", "dcfifo");

  cnx.passedInput("data", Bounds::bus(width));
  cnx.passedInput("wrreq", bit, "GND");
  cnx.passedInput("wrclk", bit);
  cnx.passedInput("rdreq", bit, "GND");
  cnx.passedInput("rdclk", bit);
  if (isYes(values, "ACLR")) cnx.passedInput("aclr", bit, "GND");
  cnx.passedOutput("q", Bounds::bus(width));
  for (const SideOutput& output : kOutputs) {
    if (isYes(values, output.setting))
      cnx.passedOutput(output.port, output.count ? Bounds::bus(widthu) : bit);
  }
}

}  // namespace

Modulon dualClockFifoModulon() {
  return Modulon{
      "dcfifo",
      "FIFO with separate write and read clocks",
      {
          numberSetting("LPM_WIDTH", "Width of a word", 1, 64, 8),
          numberSetting("LPM_NUMWORDS", "Number of words the FIFO holds", 2, 65536, 16),
          choiceSetting("LPM_SHOWAHEAD", "Show-ahead: q shows the oldest word before it is read (ON)",
                        {"OFF", "ON"}, "OFF"),
          yesNoSetting("ACLR", "Asynchronous clear input aclr (both sides)", false),
          numberSetting("RDSYNC_DELAYPIPE", "Registers carrying the write position to the read side", 2, 8,
                        3),
          numberSetting("WRSYNC_DELAYPIPE", "Registers carrying the read position to the write side", 2, 8,
                        3),
          yesNoSetting("RDEMPTY", "Read-side output rdempty", true),
          yesNoSetting("RDFULL", "Read-side output rdfull", false),
          yesNoSetting("RDUSEDW", "Read-side output rdusedw, the number of words held", false),
          yesNoSetting("WREMPTY", "Write-side output wrempty", false),
          yesNoSetting("WRFULL", "Write-side output wrfull", true),
          yesNoSetting("WRUSEDW", "Write-side output wrusedw, the number of words held", false),
      },
      [](const SettingValues&) { return std::optional<std::string>(); },
      describeDualClockFifo,
  };
}

}  // namespace plovix::wizard
