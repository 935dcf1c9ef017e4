// The HDL tools the end-to-end tests run over generated variations and the bundled models.
#pragma once

#include <string>
#include <vector>

#include "BatchRun.h"

namespace plovix::testing {

// Icarus Verilog: compiles the files with the models as library into dir/<top>.vvp.
CommandResult icarusCompile(const TempDir& dir, const std::vector<std::string>& files,
                            const std::string& top);
CommandResult icarusRun(const TempDir& dir, const std::string& top);

// Verilator: lints the files with the models as library; missing pins of the models' optional ports are
// meant.
CommandResult verilatorLint(const TempDir& dir, const std::vector<std::string>& files,
                            const std::string& top);

// GHDL: the models go into library lpm (with package lpm_components) and, for default binding, into work;
// then the files are analysed and top elaborated. Unbound optional ports take their defaults.
CommandResult ghdlElaborate(const TempDir& dir, const std::vector<std::string>& files,
                            const std::string& top);
CommandResult ghdlRun(const TempDir& dir, const std::string& top);

}  // namespace plovix::testing
