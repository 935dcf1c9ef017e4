// Reading a CNX file into the description: the generation and version lines, then the body statements.
#include <unordered_set>

#include "base/Messages.h"
#include "base/Report.h"
#include "base/TextFile.h"
#include "cnx/CnxLineReader.h"
#include "cnx/CnxStatements.h"

namespace plovix {

namespace {

// Every statement of a WM1.0 body; a dropped line makes the result false but reading goes on.
bool readBody(CnxOperands& in, TextLineCursor& lines) {
  CnxDescription& d = in.description();
  CnxEndFiler filer(d.connectionMap);
  bool result = true;
  while (readCnxLine(d, lines)) {
    if (d.lineRest.empty()) continue;
    in.take();
    if (in.token().compare(0, 2, "//") == 0) continue;
    if (!readCnxStatement(in, filer)) result = false;
  }
  filer.finish();
  if (d.modules.empty()) return in.fail(Msg::kCnxNoModuleName);
  std::unordered_set<std::string> known(d.moduleNames.begin(), d.moduleNames.end());
  for (const CnxModule& module : d.modules) {
    if (known.insert(module.moduleName).second) d.moduleNames.push_back(module.moduleName);
  }
  return result;
}

// The generation line, the version line and the body; false at the first fault of the first two lines.
bool readLines(CnxOperands& in, TextLineCursor& lines) {
  CnxDescription& d = in.description();
  if (!readCnxLine(d, lines)) return in.fail(Msg::kCnxUnexpectedEnd);
  d.generationMode = takeGenerationMode(d);
  if (d.generationMode == "INVALID") return in.fail(Msg::kCnxNoGenerationMode);
  if (!readCnxLine(d, lines)) return in.fail(Msg::kCnxUnexpectedEnd);
  d.version = takeHeaderValue(d, "VERSION:", {"WM1.0", "WM2.0"}, kVersionUnknown);
  if (d.version == kVersionUnknown) return in.fail(Msg::kCnxUnknownVersionNumber);
  // Only the WM1.0 body has a reader; a WM2.0 file fails without a log entry.
  if (d.version != "WM1.0") return false;
  return readBody(in, lines);
}

}  // namespace

bool CnxDescription::readDescription(UserInterface& ui) {
  reset();
  logError(ui, {});
  std::string text;
  int errorNumber = 0;
  if (!readTextFile(cnxPath, text, errorNumber)) {
    reportFileErrno(ui, errorNumber, cnxPath);
    return false;
  }
  CnxOperands in(*this, ui);
  TextLineCursor lines(text);
  const bool result = readLines(in, lines);
  if (!result) reportError(ui, Msg::kCnxFormatError, errorLogPath);
  return result;
}

}  // namespace plovix
