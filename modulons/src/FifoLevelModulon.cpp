// fifo_level: a FIFO whose used-words count feeds a comparator, so that almost_full is high from a chosen
// fill level on; two library modules wired together.
#include "ModulonLibrary.h"
#include "PluginMessages.h"

namespace plovix::wizard {

namespace {

std::optional<std::string> checkFifoLevel(const SettingValues& values) {
  const long long words = numberValue(values, "LPM_NUMWORDS");
  const long long level = numberValue(values, "LEVEL");
  if (level > words) return levelAboveDepthText("LEVEL", level, words);
  return std::nullopt;
}

void describeFifoLevel(const SettingValues& values, OutputLanguage, DescriptionText& cnx) {
  const long long width = numberValue(values, "LPM_WIDTH");
  const long long words = numberValue(values, "LPM_NUMWORDS");
  // One bit more than the words need when they are a power of two, so that the count of a full FIFO is not 0.
  const long long widthu = bitsFor(words + 1);
  const Bounds data = Bounds::bus(width);
  const Bounds count = Bounds::bus(widthu);
  const Bounds bit = Bounds::bit();

  cnx.module("scfifo", "fifo");
  cnx.module("lpm_compare", "compare");
  cnx.numericConstant("LPM_WIDTH", width, "fifo");
  cnx.numericConstant("LPM_NUMWORDS", words, "fifo");
  cnx.numericConstant("LPM_WIDTHU", widthu, "fifo");
  cnx.stringConstant("LPM_SHOWAHEAD", textValue(values, "LPM_SHOWAHEAD"), "fifo");
  cnx.stringConstant("LPM_TYPE", "scfifo", "fifo");
  cnx.numericConstant("LPM_WIDTH", widthu, "compare");
  cnx.stringConstant("LPM_REPRESENTATION", "UNSIGNED", "compare");
  cnx.stringConstant("LPM_TYPE", "LPM_COMPARE", "compare");

  for (const char* input : {"wrreq", "rdreq"}) {
    cnx.usedPort(input, bit, "INPUT", "GND");
    cnx.connect(std::string("fifo@") + input, bit, input, bit);
  }
  cnx.usedPort("data", data, "INPUT");
  cnx.connect("fifo@data", data, "data", data);
  cnx.usedPort("clock", bit, "INPUT");
  cnx.connect("fifo@clock", bit, "clock", bit);
  if (isYes(values, "ACLR")) {
    cnx.usedPort("aclr", bit, "INPUT", "GND");
    cnx.connect("fifo@aclr", bit, "aclr", bit);
  }
  cnx.usedPort("q", data, "OUTPUT");
  cnx.connect("q", data, "fifo@q", data);
  for (const char* flag : {"empty", "full"}) {
    cnx.usedPort(flag, bit, "OUTPUT");
    cnx.connect(flag, bit, std::string("fifo@") + flag, bit);
  }
  if (isYes(values, "USEDW")) {
    cnx.usedPort("usedw", count, "OUTPUT");
    cnx.connect("usedw", count, "fifo@usedw", count);
  }
  cnx.connect("compare@dataa", count, "fifo@usedw", count);
  cnx.connect("compare@datab", count, std::to_string(numberValue(values, "LEVEL")), bit);
  cnx.usedPort("almost_full", bit, "OUTPUT");
  cnx.connect("almost_full", bit, "compare@ageb", bit);
}

}  // namespace

Modulon fifoLevelModulon() {
  return Modulon{
      "fifo_level",
      "FIFO with a fill-level flag",
      {
          numberSetting("LPM_WIDTH", "Width of a word", 1, 64, 8),
          numberSetting("LPM_NUMWORDS", "Number of words the FIFO holds", 2, 65536, 16),
          numberSetting("LEVEL", "Words held from which almost_full is high", 0, 65536, 12),
          choiceSetting("LPM_SHOWAHEAD", "Show-ahead: q shows the oldest word before it is read (ON)",
                        {"OFF", "ON"}, "OFF"),
          yesNoSetting("ACLR", "Asynchronous clear input aclr", false),
          yesNoSetting("USEDW", "Output usedw, the number of words held", false),
      },
      checkFifoLevel,
      describeFifoLevel,
  };
}

}  // namespace plovix::wizard
