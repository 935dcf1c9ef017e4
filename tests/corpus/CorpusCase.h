// Reads one description of the shared HDL test corpus (tests/corpus/<name>.cnx) the way a run reads it.
#pragma once

#include <string>

#include "TempDir.h"
#include "base/UserInterface.h"
#include "cnx/CnxReader.h"

namespace plovix::testing {

inline std::string corpusDir() {
  return std::string(PLOVIX_SOURCE_DIR) + "/tests/corpus/";
}

// The modulon name the corpus's variations are written with; the "@" ports of main_ports belong to it.
inline constexpr const char* kCorpusSignature = "pvx_counter";

// Writes a CNX text into `work` under `name` and reads it.
inline bool readCnxText(const std::string& name, const std::string& text, const TempDir& work,
                        UserInterface& ui, CnxDescription& description) {
  work.write(name + ".cnx", text);
  CnxReader reader(ui, work.path(name + ".cnx"));
  const bool read = reader.read();
  description = reader.takeDescription();
  return read;
}

// Copies the case's .cnx file into `work` (the reader writes its error log beside it) and reads it.
inline bool readCorpusCase(const std::string& name, const TempDir& work, UserInterface& ui,
                           CnxDescription& description) {
  return readCnxText(name, TempDir::readFile(corpusDir() + name + ".cnx"), work, ui, description);
}

// The cases, in the order the tests report them.
inline const char* const kCorpusCases[] = {"counter",     "two_modules", "constants", "inverted",
                                           "three_feeds", "rows_2d",     "main_ports"};

}  // namespace plovix::testing
