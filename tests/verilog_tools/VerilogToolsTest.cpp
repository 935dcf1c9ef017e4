// Every corpus description's generated Verilog is compiled by Icarus, linted by Verilator and read by Yosys,
// with stub modules for the sub-modules; the black box is checked with the instantiation template.
#include <gtest/gtest.h>

#include <sys/wait.h>
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "../corpus/LimitCases.h"
#include "RecordingInterface.h"
#include "TempDir.h"
#include "ToolRun.h"
#include "base/TextHelpers.h"
#include "hdl/HdlChecks.h"
#include "hdl/Netlist.h"
#include "hdl/NetlistKeys.h"
#include "hdl/VerilogFileWriter.h"

namespace plovix {
namespace {

using testing::RecordingInterface;
using testing::TempDir;

std::string stubFiles() {
  std::string files;
  for (const char* stub : {"pvx_counter", "pvx_shifter", "pvx_gate", "pvx_mux"}) {
    files += " '" + testing::corpusDir() + "stubs/" + stub + ".v'";
  }
  return files;
}

// The commands that check `files` with `top` as the top module, by tool.
std::vector<std::pair<std::string, std::string>> toolCommands(const std::string& top,
                                                              const std::string& files) {
  return {{"iverilog", "iverilog -o checked.vvp -s " + top + " " + files},
          {"verilator", "verilator --lint-only --top-module " + top + " " + files},
          {"yosys", "yosys -q -p 'read_verilog " + files + "; hierarchy -top " + top + "'"}};
}

// A module around the instantiation template that declares the *_sig nets it connects.
std::string templateBench(const CnxDescription& description, const std::string& templateText) {
  std::string text = "module bench;\n";
  auto declare = [&](const CnxUsedPort& port) {
    text += "\twire " + rangeText(port.shape.rows) + rangeText(port.shape.bits) + " " +
            toLowerText(port.name.view()) + "_sig;\n";
  };
  for (const CnxUsedPort& port : description.inputPorts) declare(port);
  for (const CnxUsedPort& port : description.outputPorts) declare(port);
  return text + templateText + "endmodule\n";
}

// Skips a test where one of the tools is missing.
template <class Param>
class WithVerilogTools : public ::testing::TestWithParam<Param> {
 protected:
  void SetUp() override {
    for (const char* tool : {"iverilog", "verilator", "yosys"}) {
      if (!testing::haveProgram(tool)) GTEST_SKIP() << tool << " is not installed";
    }
  }
};
using VerilogTools = WithVerilogTools<const char*>;

TEST_P(VerilogTools, GeneratedFilesAreReadByEveryTool) {
  const std::string name = GetParam();
  TempDir work;
  RecordingInterface ui;
  CnxDescription description;
  ASSERT_TRUE(testing::readCorpusCase(name, work, ui, description));
  const Netlist netlist = buildNetlist(description, testing::kCorpusSignature);
  const VerilogFileWriter writer(ui, work.path(name), testing::kCorpusSignature, description, netlist);
  ASSERT_TRUE(writer.writeDesignFile());
  ASSERT_TRUE(writer.writeBlackBoxFile());
  ASSERT_TRUE(writer.writeInstanceFile());
  work.write("bench.v", templateBench(description, work.read(name + "_inst.v")));

  const testing::KnownLimits limits(testing::corpusDir() + "verilog_limits.txt");
  for (const auto& [tool, command] : toolCommands(name, name + ".v" + stubFiles()))
    limits.expect(name, tool, testing::runIn(work.dir(), command));
  for (const auto& [tool, command] : toolCommands("bench", "bench.v " + name + "_bb.v")) {
    const testing::ToolRun run = testing::runIn(work.dir(), command);
    EXPECT_EQ(run.exitCode, 0) << tool << " rejects the black box with the template of " << name << ":\n"
                               << run.output;
  }
}

INSTANTIATE_TEST_SUITE_P(Corpus, VerilogTools, ::testing::ValuesIn(testing::kCorpusCases));

// The valid text of every case whose Verilog holds constructs, all of which the valid mode rewrites, is
// read by every tool, the black box with the template too.
std::vector<std::string> casesMadeValid() {
  std::vector<std::string> names;
  for (const std::string& name : testing::corpusAndLimitCases()) {
    TempDir work;
    RecordingInterface ui;
    CnxDescription description;
    if (!testing::readCnxText(name, testing::caseText(name), work, ui, description)) continue;
    const auto findings = findHdlConstructs(description, buildNetlist(description, testing::kCorpusSignature),
                                            testing::kCorpusSignature, OutputLanguage::kVerilog);
    const bool allRewritten = std::all_of(findings.begin(), findings.end(), [](const HdlFinding& f) {
      return hdlRemedy(f.construct, OutputLanguage::kVerilog) == HdlRemedy::kValidText;
    });
    if (!findings.empty() && allRewritten) names.push_back(name);
  }
  return names;
}

using VerilogValidText = WithVerilogTools<std::string>;

TEST_P(VerilogValidText, IsReadByEveryTool) {
  const std::string name = GetParam();
  TempDir work;
  RecordingInterface ui;
  CnxDescription description;
  ASSERT_TRUE(testing::readCnxText(name, testing::caseText(name), work, ui, description));
  const Netlist netlist = buildNetlist(description, testing::kCorpusSignature);
  const VerilogFileWriter writer(ui, work.path(name), testing::kCorpusSignature, description, netlist,
                                 HdlTextMode::kValid);
  ASSERT_TRUE(writer.writeDesignFile() && writer.writeBlackBoxFile() && writer.writeInstanceFile());
  work.write("bench.v", templateBench(description, work.read(name + "_inst.v")));
  for (const auto& [tool, command] : toolCommands(name, name + ".v" + stubFiles())) {
    const testing::ToolRun run = testing::runIn(work.dir(), command);
    EXPECT_EQ(run.exitCode, 0) << tool << " rejects the valid text of " << name << ":\n" << run.output;
  }
  for (const auto& [tool, command] : toolCommands("bench", "bench.v " + name + "_bb.v")) {
    EXPECT_EQ(testing::runIn(work.dir(), command).exitCode, 0)
        << tool << " rejects the valid black box of " << name;
  }
}

INSTANTIATE_TEST_SUITE_P(Cases, VerilogValidText, ::testing::ValuesIn(casesMadeValid()));

// Icarus runs the variation with the stub modules and a bench (data/<case>_sim.v) that checks what arrives at
// the outputs: the counter's wiring, the bit order of joined feeds, the constants' values.
class VerilogSimulation : public VerilogTools {};

TEST_P(VerilogSimulation, VariationsGiveTheExpectedOutputs) {
  const std::string name = GetParam();
  const std::string bench = std::string(PLOVIX_TEST_DATA_DIR) + "/" + name + "_sim.v";
  TempDir work;
  RecordingInterface ui;
  CnxDescription description;
  ASSERT_TRUE(testing::readCorpusCase(name, work, ui, description));
  const Netlist netlist = buildNetlist(description, testing::kCorpusSignature);
  const VerilogFileWriter writer(ui, work.path(name), testing::kCorpusSignature, description, netlist);
  ASSERT_TRUE(writer.writeDesignFile());
  const testing::ToolRun run =
      testing::runIn(work.dir(), "iverilog -o sim.vvp -s sim " + name + ".v" + stubFiles() + " '" + bench +
                                     "' && vvp -n sim.vvp");
  EXPECT_EQ(run.exitCode, 0) << run.output;
  EXPECT_NE(run.output.find("PASS"), std::string::npos) << run.output;
  EXPECT_EQ(run.output.find("FAIL"), std::string::npos) << run.output;
}

INSTANTIATE_TEST_SUITE_P(Corpus, VerilogSimulation, ::testing::Values("counter", "three_feeds", "constants"));

}  // namespace
}  // namespace plovix
