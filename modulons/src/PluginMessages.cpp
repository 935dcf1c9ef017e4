// The plug-in's texts in one place.
#include "PluginMessages.h"

namespace plovix::wizard {

namespace {
std::string number(long long value) {
  return std::to_string(value);
}
}  // namespace

std::string numberRangeText(long long minimum, long long maximum) {
  return "a whole number from " + number(minimum) + " to " + number(maximum);
}

std::string missingModulonText(const std::string& knownModulons) {
  return "No modulon given: the command line needs -m followed by one of: " + knownModulons;
}

std::string unknownModulonText(const std::string& name, const std::string& knownModulons) {
  return "There is no modulon named \"" + name + "\"; this plug-in offers: " + knownModulons;
}

std::string missingOutputText() {
  return "No output file given: the command line needs the variation's path";
}

std::string strayArgumentText(const std::string& argument) {
  return "Unexpected argument \"" + argument + "\": extra arguments are NAME=VALUE pairs";
}

std::string unknownSettingText(const std::string& modulon, const std::string& name,
                               const std::string& known) {
  return modulon + " has no setting named \"" + name + "\"; its settings are: " + known;
}

std::string badValueText(const std::string& name, const std::string& value, const std::string& allowed) {
  return "\"" + value + "\" is not allowed for " + name + "; allowed values: " + allowed;
}

std::string cannotWriteText(const std::string& path, const std::string& reason) {
  return "Cannot write " + path + ": " + reason;
}

std::string modulusTooLargeText(long long modulus, long long width) {
  return "LPM_MODULUS=" + number(modulus) + " does not fit LPM_WIDTH=" + number(width) +
         "; allowed values: a whole number from 0 to " + number(1LL << width);
}

std::string valueTooWideText(const std::string& name, long long value, long long width) {
  return name + "=" + number(value) + " does not fit LPM_WIDTH=" + number(width) +
         "; allowed values: a whole number from 0 to " + number((1LL << width) - 1);
}

std::string tooManyDecodesText(long long decodes, long long width) {
  return "LPM_DECODES=" + number(decodes) + " does not fit LPM_WIDTH=" + number(width) +
         "; allowed values: a whole number from 1 to " + number(1LL << width);
}

std::string tooManyWordsText(long long words, long long widthad) {
  return "LPM_NUMWORDS=" + number(words) + " does not fit LPM_WIDTHAD=" + number(widthad) +
         "; allowed values: a whole number from 0 to " + number(1LL << widthad);
}

std::string noCompareOutputText() {
  return "At least one of ALB, AEB, AGB, AGEB, ANEB and ALEB must be YES";
}

std::string noShiftOutputText() {
  return "At least one of Q and SHIFTOUT must be YES";
}

std::string noBusPathText() {
  return "At least one of ENABLEDT and ENABLETR must be YES";
}

std::string productTooWideText(long long widthp, long long fullWidth) {
  return "LPM_WIDTHP=" + number(widthp) + " is wider than the product of LPM_WIDTHA and LPM_WIDTHB (" +
         number(fullWidth) + " bits); allowed values: a whole number from 0 to " + number(fullWidth);
}

std::string needsPipelineText(const std::string& name) {
  return name +
         "=YES needs LPM_PIPELINE=1 or more: without a pipeline there is no register to clock or clear";
}

std::string rotateHasNoFlagText(const std::string& name) {
  return name + "=YES needs LPM_SHIFTTYPE=LOGICAL or ARITHMETIC: a rotation loses no bits";
}

std::string flagNeedsDirectionText(const std::string& name, const std::string& directions) {
  return name + "=YES needs DIRECTION=" + directions + ": the flag is only raised by a shift that way";
}

std::string setValueTooWideText(const std::string& name, long long value, long long width) {
  return name + "=" + number(value) + " does not fit LPM_WIDTH=" + number(width) +
         "; allowed values: -1 (all ones) or a whole number from 0 to " + number((1LL << width) - 1);
}

std::string loadNeedsToggleText() {
  return "SLOAD=YES needs LPM_FFTYPE=TFF: a D flip-flop loads data at every clock edge anyway";
}

std::string missingFileText() {
  return "LPM_FILE must name the initialisation file (Intel HEX, or the plain format of hexadecimal words)";
}

std::string fileNameText() {
  return "a file name with / between folders and no backslash";
}

std::string readEnableNeedsClockText() {
  return "RDEN and RDCLKEN need LPM_RDADDRESS_CONTROL=REGISTERED or LPM_OUTDATA=REGISTERED: an unregistered "
         "read has no read clock to enable";
}

std::string levelAboveDepthText(const std::string& name, long long level, long long words) {
  return name + "=" + number(level) + " does not fit LPM_NUMWORDS=" + number(words) +
         "; allowed values: a whole number from 0 to " + number(words);
}

std::string usageText(const std::string& modulonLines) {
  return "Usage: plovix-wizard -m MODULON OUTPUT [-n] [-symbol] [NAME=VALUE ...] [-xR -yB -p2 -hTID]\n"
         "       plovix-wizard -m MODULON --describe\n"
         "       plovix-wizard --help\n"
         "\n"
         "Asks for the settings of a variation of MODULON and writes its description beside OUTPUT (the "
         "same\n"
         "name with the extension .cnx), for the plug-in manager to generate the variation's files. The\n"
         "extension of OUTPUT (.tdf, .vhd, .v) chooses the language the description is made for.\n"
         "\n"
         "Options:\n"
         "  -m, --modulon NAME  the modulon to describe (see the list below)\n"
         "  -n                  a new variation; without it the values start from the description beside "
         "OUTPUT\n"
         "  -symbol             accepted for the manager; the symbol is always described\n"
         "  NAME=VALUE          a setting's value; when values are given no questions are asked\n"
         "  -xR -yB -p2 -hTID   the manager's window corner and thread, where the dialog is placed and "
         "reports\n"
         "  --describe          print the modulon's settings as JSON on standard output and exit\n"
         "  --help              print this text and exit\n"
         "\n"
         "Exit status: 0 finished, 3 back, 2 cancelled or refused.\n"
         "\n"
         "Modulons:\n" +
         modulonLines;
}

std::string modulonLineText(const std::string& modulon, const std::string& title) {
  return "  " + modulon + std::string(modulon.size() < 18 ? 18 - modulon.size() : 1, ' ') + title + "\n";
}

std::string freeTextText() {
  return "any text on one line without double quotes";
}

std::string promptHeadingText(const std::string& modulon, const std::string& title, const std::string& path) {
  return modulon + " (" + title + ") for " + path +
         "\nPress Enter to keep the value in brackets, type < to go back, or end the input to cancel.\n";
}

std::string promptText(const std::string& name, const std::string& question, const std::string& allowed,
                       const std::string& current) {
  return name + ": " + question + " (" + allowed + ") [" + current + "]: ";
}

std::string finishPromptText() {
  return "Finish, go back or cancel? (finish, back, cancel) [finish]: ";
}

std::string cancelledText() {
  return "Cancelled: no description was written.";
}

std::string dialogTitleText(const std::string& modulon, const std::string& title) {
  return modulon + " - " + title;
}

}  // namespace plovix::wizard
