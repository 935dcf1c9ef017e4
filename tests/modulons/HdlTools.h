// The HDL tools the end-to-end tests run over generated variations and the bundled models.
#pragma once

#include <string>
#include <vector>

#include "BatchRun.h"

namespace plovix::testing {

// The bundled Verilog models' folder in the build tree.
std::string verilogModels();

// Every bundled model of one language ("verilog" or "vhdl") on disk, sorted by name; for VHDL the package
// lpm_components first, as the models need it.
std::vector<std::string> modelFiles(const std::string& language);

// The command of docs/hdl-models.md that analyses every VHDL model into library lpm in workDir.
std::string ghdlLibraryCommand(const std::string& workDir);

// Icarus Verilog: compiles the files with the models as library into dir/<top>.vvp, with every warning but
// the ones about instance ports left open (the models' optional inputs); runs it with plusargs.
ToolRun icarusCompile(const TempDir& dir, const std::vector<std::string>& files, const std::string& top);
ToolRun icarusRun(const TempDir& dir, const std::string& top, const std::string& plusargs = "");

// Verilator: lints the files with the models as library; missing pins of the models' optional ports are
// meant.
ToolRun verilatorLint(const TempDir& dir, const std::vector<std::string>& files, const std::string& top);

// Yosys: reads the files, takes the models the design needs from the library, elaborates top with its
// parameters and checks that every wire has a driver (so that the inputs a variation leaves unconnected took
// their defaults).
ToolRun yosysCheck(const TempDir& dir, const std::vector<std::string>& files, const std::string& top);

// GHDL (VHDL-2008): the models go into library lpm (with package lpm_components) and, for default binding,
// into work; then the files are analysed and top elaborated. Unbound optional ports take their defaults.
ToolRun ghdlElaborate(const TempDir& dir, const std::vector<std::string>& files, const std::string& top);
// Runs top; generics are "-gNAME=VALUE" words.
ToolRun ghdlRun(const TempDir& dir, const std::string& top, const std::string& generics = "");

}  // namespace plovix::testing
