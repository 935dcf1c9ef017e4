// Reading a CNX file into a description: the generation and version lines, then the body statements, with
// every fault written to the error log beside the file.
#pragma once

#include <string>

#include "base/UserInterface.h"
#include "cnx/CnxDescription.h"

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

  // The description read: every accepted line, also after a failed read.
  const CnxDescription& description() const { return description_; }
  CnxDescription takeDescription() { return std::move(description_); }

  const std::string& errorLogPath() const;

 private:
  UserInterface& ui_;
  CnxDescription description_;
  std::string errorLogPath_;
};

// Deletes the CNX file at `cnxPath` and its error log, those of them that exist.
void deleteCnxWorkFiles(const std::string& cnxPath);

}  // namespace plovix
