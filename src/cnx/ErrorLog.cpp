// The CNX error log: its banner, written when the log is (re)created, and one entry per fault found.
#include "cnx/ErrorLog.h"

#include <cerrno>

#include "base/Format.h"
#include "base/PathText.h"
#include "base/Report.h"
#include "base/TextFile.h"

namespace plovix {

namespace {

std::string errorLogBanner() {
  return formatText("%s%s%s", "*******************************************\n",
                    "**       CNX File Error Log              **\n",
                    "*******************************************\n\n");
}

// The line number is the physical line of the file: the counter already counts the line being read.
std::string errorLogEntry(int32_t lineCounter, std::string_view lineRest, std::string_view message) {
  return formatText("Line %d: %s\n\t\t%s\n\n", lineCounter - 1, std::string(lineRest).c_str(),
                    std::string(message).c_str());
}

}  // namespace

std::string cnxErrorLogPath(const std::string& cnxPath) {
  return cnxPath.empty() ? std::string() : pathWithoutExtension(cnxPath) + ".cnxerr";
}

bool CnxErrorLog::add(int32_t lineCounter, std::string_view lineRest, std::string_view message) {
  int errorNumber = 0;
  if (fresh_) {
    // A description without a path has no log to create.
    if (path_.empty()) {
      reportFileErrno(ui_, ENOENT, path_);
    } else if (writeTextFile(path_, errorLogBanner(), errorNumber)) {
      fresh_ = false;
    } else {
      reportFileErrno(ui_, errorNumber, path_);
    }
    return false;
  }
  appendTextFile(path_, errorLogEntry(lineCounter, lineRest, message), errorNumber);
  return false;
}

}  // namespace plovix
