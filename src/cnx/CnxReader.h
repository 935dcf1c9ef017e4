// Reading a CNX file into a description: the generation and version lines, then the body statements, with
// every fault written to the error log beside the file.
#pragma once

#include <string>
#include <string_view>

#include "base/UserInterface.h"
#include "cnx/CnxDescription.h"
#include "cnx/ErrorLog.h"

namespace plovix {

// Reads one CNX file. The reader holds what reading needs (the line being read, its number, the error log);
// the description it gives holds only what the file says.
class CnxReader {
 public:
  CnxReader(UserInterface& ui, std::string cnxPath);

  // Reads the file (once). False when the file could not be read (its file error has been shown), ended
  // early, had no module, or a line was dropped (error 33 names the error log). The error log is (re)created
  // first in every case.
  bool read();

  // The same for a description's text already in memory (line ends as readTextFile gives them), as read()
  // would read it from the file: the size limits, the error log at the path's place (none without a path).
  bool readText(std::string_view text);

  // The description read: every accepted line, also after a failed read.
  const CnxDescription& description() const { return description_; }
  CnxDescription takeDescription() { return std::move(description_); }

  const std::string& errorLogPath() const;

 private:
  // Reads a text within the size limit: the line-length limit, the lines, error 33 on failure.
  bool readLimitedText(CnxErrorLog& log, std::string_view text);

  UserInterface& ui_;
  CnxDescription description_;
  std::string errorLogPath_;
};

// Deletes the CNX file at `cnxPath` and its error log, those of them that exist.
void deleteCnxWorkFiles(const std::string& cnxPath);

}  // namespace plovix
