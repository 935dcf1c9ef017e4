// Descriptions for the writer tests, read from CNX text as a run reads them.
#pragma once

#include <string>

#include "../corpus/CorpusCase.h"
#include "RecordingInterface.h"
#include "TempDir.h"
#include "cnx/CnxDescription.h"

namespace plovix::testing {

// The description of a CNX body (the lines after the generation and version lines). Some samples leave out
// what a complete file needs (a MODULE: line): the records read are used all the same.
inline CnxDescription descriptionOf(const std::string& body) {
  TempDir work;
  RecordingInterface ui;
  CnxDescription description;
  readCnxText("sample", "GENERATION: STANDARD\nVERSION: WM1.0\n" + body, work, ui, description);
  return description;
}

// An eight-bit counter: one lpm_counter with parameters, constants and a mix of port kinds.
inline CnxDescription counterDescription() {
  return descriptionOf(TempDir::readFile(std::string(PLOVIX_SOURCE_DIR) + "/tests/thdl/data/count8.cnx")
                           .substr(std::string("GENERATION: STANDARD\nVERSION: WM1.0\n").size()));
}

}  // namespace plovix::testing
