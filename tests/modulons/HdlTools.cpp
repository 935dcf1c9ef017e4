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

const char* const kGhdl = "ghdl -a --std=08";

}  // namespace

std::string verilogModels() {
  return modulonLibrary() + "/hdl/verilog";
}

std::vector<std::string> modelFiles(const std::string& language) {
  const std::string extension = language == "vhdl" ? ".vhd" : ".v";
  const std::string package = modulonLibrary() + "/hdl/vhdl/lpm_components.vhd";
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(modulonLibrary() + "/hdl/" + language)) {
    if (entry.path().extension() == extension && entry.path() != package) files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  if (language == "vhdl") files.insert(files.begin(), package);
  return files;
}

std::string ghdlLibraryCommand(const std::string& workDir) {
  return std::string(kGhdl) + " --work=lpm --workdir=" + quoted(workDir) + words(modelFiles("vhdl"));
}

ToolRun icarusCompile(const TempDir& dir, const std::vector<std::string>& files, const std::string& top) {
  return runIn(dir.dir(), "iverilog -Wall -Wno-portbind -o " + quoted(top + ".vvp") + " -s " + quoted(top) +
                              " -y " + quoted(verilogModels()) + words(files));
}

ToolRun icarusRun(const TempDir& dir, const std::string& top, const std::string& plusargs) {
  return runIn(dir.dir(), "vvp -n " + quoted(top + ".vvp") + " " + plusargs);
}

ToolRun verilatorLint(const TempDir& dir, const std::vector<std::string>& files, const std::string& top) {
  return runIn(dir.dir(), "verilator --lint-only -Wno-PINMISSING --top-module " + quoted(top) + " -y " +
                              quoted(verilogModels()) + words(files));
}

ToolRun yosysCheck(const TempDir& dir, const std::vector<std::string>& files, const std::string& top) {
  std::string script;
  for (const std::string& file : files) script += "read_verilog " + file + "; ";
  script += "hierarchy -check -libdir " + verilogModels() + " -top " + top + "; proc; flatten; check -assert";
  // proc notes each register with several asynchronous controls (a clear, a set, a load): it is built from
  // Yosys's general set/reset flip-flop; that note is not a warning here (docs/hdl-models.md).
  return runIn(dir.dir(),
               "yosys -q -w " + testing::quoted("Complex async reset") + " -p " + testing::quoted(script));
}

ToolRun ghdlElaborate(const TempDir& dir, const std::vector<std::string>& files, const std::string& top) {
  std::vector<std::string> entities = modelFiles("vhdl");
  entities.erase(entities.begin());
  const std::string lib = " --workdir=ghdl -Pghdl";
  return runIn(dir.dir(), "mkdir -p ghdl && " + ghdlLibraryCommand("ghdl") + " && " + kGhdl + lib +
                              words(entities) + " && " + kGhdl + lib + words(files) +
                              " && ghdl -e --std=08 -Wno-binding" + lib + " " + quoted(top));
}

ToolRun ghdlRun(const TempDir& dir, const std::string& top, const std::string& generics) {
  return runIn(dir.dir(),
               "ghdl -r --std=08 --workdir=ghdl -Pghdl " + quoted(top) + " --stop-time=100us " + generics);
}

}  // namespace plovix::testing
