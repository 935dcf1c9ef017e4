// Reading one variation with the HDL tools that are installed: the findings and which tools rejected it.
#pragma once

#include <string>
#include <vector>

#include "lint/LintFinding.h"

namespace plovix {

struct LintSettings {
  std::vector<std::string> libraryDirectories;  // modulon libraries whose hdl/ folders hold module models
  int timeoutMs = 120000;                       // per tool run
};

struct LintReport {
  std::vector<LintFinding> findings;
  std::vector<std::string> toolsRun;    // the tools that read the file
  std::vector<std::string> rejectedBy;  // the tools that rejected it
  std::string problem;                  // why the file was not read at all (a message); empty otherwise
};

// The tools of the file's language, by its extension: .vhd GHDL; .v Icarus Verilog, Verilator, Yosys.
std::vector<std::string> lintToolsOfLanguage(const std::string& path);

// Those of them that are on PATH.
std::vector<std::string> installedLintTools(const std::string& path);

// Reads the variation at `path` with each installed tool of its language, in a scratch directory, without a
// shell and without a display, each run within the time limit. The library modules it instantiates come
// from the libraries' models (hdl/vhdl/NAME.vhd, hdl/verilog/NAME.v); any other sub-module from a design
// file of its own beside the variation (NAME.vhd, NAME.v or the black box NAME_bb.v), else from a stub made
// from its declaration (NAME.cmp beside the variation or the component declaration in the design file) or,
// in Verilog, from its instance.
LintReport lintVariation(const std::string& path, const LintSettings& settings);

}  // namespace plovix
