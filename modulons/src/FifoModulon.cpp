// scfifo: a first-in first-out memory on one clock, with empty, full, almost full, almost empty and
// used-words outputs.
#include "ModulonLibrary.h"
#include "PluginMessages.h"

namespace plovix::wizard {

namespace {

std::optional<std::string> checkFifo(const SettingValues& values) {
  const long long words = numberValue(values, "LPM_NUMWORDS");
  for (const char* level : {"ALMOST_FULL_VALUE", "ALMOST_EMPTY_VALUE"}) {
    if (numberValue(values, level) > words)
      return levelAboveDepthText(level, numberValue(values, level), words);
  }
  return std::nullopt;
}

void describeFifo(const SettingValues& values, OutputLanguage, DescriptionText& cnx) {
  const long long width = numberValue(values, "LPM_WIDTH");
  const long long words = numberValue(values, "LPM_NUMWORDS");
  const long long widthu = bitsFor(words);
  const long long almostFull = numberValue(values, "ALMOST_FULL_VALUE");
  const long long almostEmpty = numberValue(values, "ALMOST_EMPTY_VALUE");
  const Bounds bit = Bounds::bit();

  cnx.module("scfifo");
  cnx.numericConstant("LPM_WIDTH", width);
  cnx.numericConstant("LPM_NUMWORDS", words);
  cnx.numericConstant("LPM_WIDTHU", widthu);
  cnx.stringConstant("LPM_SHOWAHEAD", textValue(values, "LPM_SHOWAHEAD"));
  if (almostFull > 0) cnx.numericConstant("ALMOST_FULL_VALUE", almostFull);
  if (almostEmpty > 0) cnx.numericConstant("ALMOST_EMPTY_VALUE", almostEmpty);
  cnx.stringConstant("LPM_TYPE", "scfifo");

  cnx.passedInput("data", Bounds::bus(width));
  cnx.passedInput("wrreq", bit, "GND");
  cnx.passedInput("rdreq", bit, "GND");
  cnx.passedInput("clock", bit);
  if (isYes(values, "ACLR")) cnx.passedInput("aclr", bit, "GND");
  if (isYes(values, "SCLR")) cnx.passedInput("sclr", bit, "GND");
  cnx.passedOutput("q", Bounds::bus(width));
  if (isYes(values, "EMPTY")) cnx.passedOutput("empty", bit);
  if (isYes(values, "FULL")) cnx.passedOutput("full", bit);
  if (isYes(values, "USEDW")) cnx.passedOutput("usedw", Bounds::bus(widthu));
  if (almostFull > 0) cnx.passedOutput("almost_full", bit);
  if (almostEmpty > 0) cnx.passedOutput("almost_empty", bit);
}

}  // namespace

Modulon fifoModulon() {
  return Modulon{
      "scfifo",
      "FIFO on one clock",
      {
          numberSetting("LPM_WIDTH", "Width of a word", 1, 64, 8),
          numberSetting("LPM_NUMWORDS", "Number of words the FIFO holds", 2, 65536, 16),
          choiceSetting("LPM_SHOWAHEAD", "Show-ahead: q shows the oldest word before it is read (ON)",
                        {"OFF", "ON"}, "OFF"),
          yesNoSetting("ACLR", "Asynchronous clear input aclr", false),
          yesNoSetting("SCLR", "Synchronous clear input sclr", false),
          yesNoSetting("EMPTY", "Output empty", true),
          yesNoSetting("FULL", "Output full", true),
          yesNoSetting("USEDW",
                       "Output usedw, the number of words held (0 again when a FIFO of 2**n words is "
                       "full)",
                       false),
          numberSetting("ALMOST_FULL_VALUE", "Words held from which almost_full is high (0: no such output)",
                        0, 65536, 0),
          numberSetting("ALMOST_EMPTY_VALUE",
                        "Words held below which almost_empty is high (0: no such output)", 0, 65536, 0),
      },
      checkFifo,
      describeFifo,
  };
}

}  // namespace plovix::wizard
