// Command lines of Icarus Verilog, Verilator, Yosys and GHDL for the end-to-end tests.
#include "HdlTools.h"

#include <algorithm>
#include <filesystem>

namespace plovix::testing {

namespace {

std::string words(const std::vector<std::string>& files) {
  std::string out;
  for (const std::string& file : files) out += " " + quoted(file);
  return out;
}

// Every entity of the VHDL library, the package aside, in name order.
std::string vhdlEntityFiles() {
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(vhdlModels())) {
    const std::string name = entry.path().filename().string();
    if (entry.path().extension() == ".vhd" && name != "lpm_components.vhd")
      files.push_back(entry.path().string());
  }
  std::sort(files.begin(), files.end());
  return words(files);
}

const char* const kGhdl = "ghdl -a --std=08 --workdir=ghdl -Pghdl";

}  // namespace

std::string verilogModels() {
  return modulonLibrary() + "/hdl/verilog";
}

std::string vhdlModels() {
  return modulonLibrary() + "/hdl/vhdl";
}

CommandResult icarusCompile(const TempDir& dir, const std::vector<std::string>& files,
                            const std::string& top) {
  return runIn(dir.dir(), "iverilog -Wall -Wno-portbind -o " + quoted(top + ".vvp") + " -s " + quoted(top) +
                              " -y " + quoted(verilogModels()) + words(files));
}

CommandResult icarusRun(const TempDir& dir, const std::string& top, const std::string& plusargs) {
  return runIn(dir.dir(), "vvp -n " + quoted(top + ".vvp") + " " + plusargs);
}

CommandResult verilatorLint(const TempDir& dir, const std::vector<std::string>& files,
                            const std::string& top) {
  return runIn(dir.dir(), "verilator --lint-only -Wno-PINMISSING --top-module " + quoted(top) + " -y " +
                              quoted(verilogModels()) + words(files));
}

CommandResult yosysCheck(const TempDir& dir, const std::vector<std::string>& files, const std::string& top) {
  std::string script;
  for (const std::string& file : files) script += "read_verilog " + file + "; ";
  script += "hierarchy -check -libdir " + verilogModels() + " -top " + top + "; proc";
  return runIn(dir.dir(), "yosys -q -p " + testing::quoted(script));
}

CommandResult ghdlElaborate(const TempDir& dir, const std::vector<std::string>& files,
                            const std::string& top) {
  const std::string entities = vhdlEntityFiles();
  return runIn(dir.dir(), std::string("mkdir -p ghdl && ") + kGhdl + " --work=lpm " +
                              quoted(vhdlModels() + "/lpm_components.vhd") + entities + " && " + kGhdl +
                              entities + " && " + kGhdl + words(files) +
                              " && ghdl -e --std=08 -Wno-binding --workdir=ghdl -Pghdl " + quoted(top));
}

CommandResult ghdlRun(const TempDir& dir, const std::string& top, const std::string& generics) {
  return runIn(dir.dir(),
               "ghdl -r --std=08 --workdir=ghdl -Pghdl " + quoted(top) + " --stop-time=100us " + generics);
}

}  // namespace plovix::testing
