// Command lines of Icarus Verilog, Verilator and GHDL for the end-to-end tests.
#include "HdlTools.h"

namespace plovix::testing {

namespace {

std::string words(const std::vector<std::string>& files) {
  std::string out;
  for (const std::string& file : files) out += " " + quoted(file);
  return out;
}

std::string verilogModels() {
  return modulonLibrary() + "/hdl/verilog";
}

std::string vhdlModels() {
  const std::string dir = modulonLibrary() + "/hdl/vhdl/";
  std::string out;
  for (const char* name : {"lpm_counter", "lpm_add_sub", "lpm_compare", "lpm_mux", "lpm_decode",
                           "lpm_constant", "lpm_ram_dq", "lpm_shiftreg"}) {
    out += " " + quoted(dir + name + ".vhd");
  }
  return out;
}

}  // namespace

CommandResult icarusCompile(const TempDir& dir, const std::vector<std::string>& files,
                            const std::string& top) {
  return runIn(dir.dir(), "iverilog -o " + quoted(top + ".vvp") + " -s " + quoted(top) + " -y " +
                              quoted(verilogModels()) + words(files));
}

CommandResult icarusRun(const TempDir& dir, const std::string& top) {
  return runIn(dir.dir(), "vvp -n " + quoted(top + ".vvp"));
}

CommandResult verilatorLint(const TempDir& dir, const std::vector<std::string>& files,
                            const std::string& top) {
  return runIn(dir.dir(), "verilator --lint-only -Wno-PINMISSING --top-module " + quoted(top) + " -y " +
                              quoted(verilogModels()) + words(files));
}

CommandResult ghdlElaborate(const TempDir& dir, const std::vector<std::string>& files,
                            const std::string& top) {
  const std::string lib = " --workdir=ghdl -Pghdl";
  return runIn(dir.dir(), "mkdir -p ghdl && ghdl -a" + lib + " --work=lpm " +
                              quoted(modulonLibrary() + "/hdl/vhdl/lpm_components.vhd") + vhdlModels() +
                              " && ghdl -a" + lib + vhdlModels() + " && ghdl -a" + lib + words(files) +
                              " && ghdl -e -Wno-binding" + lib + " " + quoted(top));
}

CommandResult ghdlRun(const TempDir& dir, const std::string& top) {
  return runIn(dir.dir(), "ghdl -r --workdir=ghdl -Pghdl " + quoted(top) + " --stop-time=100us");
}

}  // namespace plovix::testing
