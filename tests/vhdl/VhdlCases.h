// The descriptions the VHDL tests generate from: the shared corpus and a few of this folder's own.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "../corpus/CorpusCase.h"
#include "RecordingInterface.h"
#include "TempDir.h"
#include "cnx/CnxDescription.h"
#include "hdl/Netlist.h"
#include "hdl/VhdlFileWriter.h"

namespace plovix::testing {

// Cases of this folder (tests/vhdl/data/<name>.cnx): library clauses with a package, port defaults, a
// number driving a single bit, a port fed by three slices whose full width an "@" line declares, slices of
// a main-module port declared whole with "@".
inline const char* const kVhdlOwnCases[] = {"library_counter", "number_bit", "declared_slices",
                                            "main_slices"};

inline std::string vhdlCaseFile(const std::string& name) {
  for (const char* own : kVhdlOwnCases) {
    if (name == own) return std::string(PLOVIX_SOURCE_DIR) + "/tests/vhdl/data/" + name + ".cnx";
  }
  return corpusDir() + name + ".cnx";
}

// Every case, corpus first.
inline std::vector<std::string> allVhdlCases() {
  std::vector<std::string> names(std::begin(kCorpusCases), std::end(kCorpusCases));
  names.insert(names.end(), std::begin(kVhdlOwnCases), std::end(kVhdlOwnCases));
  return names;
}

// A case's description, read the way a run reads it, and a VHDL writer for a variation of the case's name,
// signed with the corpus's modulon, or for the folder's own cases with their main module.
struct VhdlCase {
  explicit VhdlCase(const std::string& name) {
    const std::string file = vhdlCaseFile(name);
    loaded = readCnxText(name, TempDir::readFile(file), work, ui, description);
    const bool corpus = file.rfind(corpusDir(), 0) == 0;
    const std::string signature = corpus ? kCorpusSignature : description.mainModuleName.str();
    netlist = buildNetlist(description, signature);
    writer = std::make_unique<VhdlFileWriter>(ui, "/variations/" + name, signature, description, netlist);
  }

  TempDir work;
  RecordingInterface ui;
  CnxDescription description;
  bool loaded = false;
  Netlist netlist;
  std::unique_ptr<VhdlFileWriter> writer;
};

}  // namespace plovix::testing
