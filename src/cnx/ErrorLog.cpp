// The CNX error log: its banner, written when the log is (re)created, and one entry per fault found.
#include <cerrno>

#include "base/Format.h"
#include "base/Report.h"
#include "base/TextFile.h"
#include "cnx/CnxDescription.h"

namespace plovix {

namespace {

std::string errorLogBanner() {
  return formatText("%s%s%s", "*******************************************\n",
                    "**       CNX File Error Log              **\n",
                    "*******************************************\n\n");
}

// The line number is the physical line of the file: the counter already counts the line being read.
std::string errorLogEntry(int32_t lineCounter, const std::string& lineRest, const std::string& message) {
  return formatText("Line %d: %s\n\t\t%s\n\n", lineCounter - 1, lineRest.c_str(), message.c_str());
}

}  // namespace

bool CnxDescription::logError(UserInterface& ui, const std::string& message) {
  int errorNumber = 0;
  if (errorLogFresh) {
    // A description without a path has no log to create.
    if (errorLogPath.empty()) {
      reportFileErrno(ui, ENOENT, errorLogPath);
    } else if (writeTextFile(errorLogPath, errorLogBanner(), errorNumber)) {
      errorLogFresh = false;
    } else {
      reportFileErrno(ui, errorNumber, errorLogPath);
    }
    return false;
  }
  // An entry that cannot be appended is dropped.
  appendTextFile(errorLogPath, errorLogEntry(lineCounter, lineRest, message), errorNumber);
  return false;
}

}  // namespace plovix
