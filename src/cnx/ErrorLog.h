// The CNX error log beside a CNX file: a banner, then one entry per fault the reader finds.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "base/UserInterface.h"

namespace plovix {

// The error log of the CNX file at `cnxPath`: the same path with the extension ".cnxerr".
std::string cnxErrorLogPath(const std::string& cnxPath);

class CnxErrorLog {
 public:
  CnxErrorLog(UserInterface& ui, std::string path) : ui_(ui), path_(std::move(path)) {}

  const std::string& path() const { return path_; }

  // Writes one entry; always false, so that a statement can return it as its result. The first call
  // (re)creates the log with its banner instead and writes no entry; when the log cannot be created the file
  // error is shown and the next call tries again. An entry that cannot be appended is dropped.
  bool add(int32_t lineCounter, std::string_view lineRest, std::string_view message);

 private:
  UserInterface& ui_;
  std::string path_;
  bool fresh_ = true;
};

}  // namespace plovix
