// Every VHDL case's generated files are analysed and elaborated by GHDL, with stub entities for the library
// modules: the design file, the component declaration inside a package, the template inside a test bench.
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <utility>

#include "../corpus/LimitCases.h"
#include "../vhdl/VhdlCases.h"
#include "ToolRun.h"
#include "hdl/HdlChecks.h"
#include "hdl/VhdlTextRules.h"

namespace plovix {
namespace {

namespace fs = std::filesystem;
using testing::TempDir;
using testing::VhdlCase;

const std::string kGhdl = "ghdl";
const std::string kStandard = " --std=93c";

// Analyses the stubs: a file named after a library of the description goes into that library, every other
// one into the work library.
std::string stubCommands(const CnxDescription& description) {
  std::string commands = "true";
  for (const auto& entry : fs::directory_iterator(testing::corpusDir() + "stubs")) {
    if (entry.path().extension() != ".vhd") continue;
    std::string library = "work";
    for (const CnxLibrary& named : description.libraries) {
      if (named.name == entry.path().stem().string()) library = named.name.str();
    }
    commands +=
        " && " + kGhdl + " -a" + kStandard + " --work=" + library + " '" + entry.path().string() + "'";
  }
  return commands;
}

// A package holding the component declaration file, under the design's library clauses.
std::string companionPackage(const VhdlFileWriter& writer, const std::string& name) {
  return writer.libraryClausesText() + "\nPACKAGE " + name + "_components IS\n" +
         writer.buildCompanionText() + "END " + name + "_components;\n";
}

// A test bench that declares the *_sig signals of the template and the component, and holds the template.
std::string templateBench(const VhdlFileWriter& writer, const CnxDescription& description) {
  std::string signals;
  for (const auto* ports : {&description.inputPorts, &description.outputPorts}) {
    for (const CnxUsedPort& port : *ports) {
      signals += "\tSIGNAL " + port.name.str() + "_sig : " + vhdlTypeText(port.shape) + ";\n";
    }
  }
  return writer.libraryClausesText() + "\nENTITY bench IS\nEND bench;\n\nARCHITECTURE check OF bench IS\n" +
         writer.buildCompanionText() + signals + "BEGIN\n" + writer.buildInstanceText() + "END check;\n";
}

class VhdlTools : public ::testing::TestWithParam<std::string> {
 protected:
  void SetUp() override {
    if (!testing::haveProgram(kGhdl)) GTEST_SKIP() << kGhdl << " is not installed";
  }

  // Runs one step; a step listed as a known limit must fail with its message, any other must pass.
  bool step(const TempDir& dir, const std::string& name, const std::string& stepName,
            const std::string& command) {
    return limits_.expect(name, stepName, testing::runIn(dir.dir(), command));
  }

  const testing::KnownLimits limits_{std::string(PLOVIX_SOURCE_DIR) + "/tests/vhdl_tools/vhdl_limits.txt"};
};

TEST_P(VhdlTools, GeneratedFilesAreAcceptedByGhdl) {
  const std::string name = GetParam();
  VhdlCase sample(name);
  ASSERT_TRUE(sample.loaded);
  const TempDir& dir = sample.work;
  const VhdlFileWriter writer(sample.ui, dir.path(name), sample.writer->signatureName(), sample.description,
                              sample.netlist);
  ASSERT_TRUE(writer.writeDesignFile());
  dir.write("companion.vhd", companionPackage(writer, name));
  dir.write("bench.vhd", templateBench(writer, sample.description));

  const std::string analyse = kGhdl + " -a" + kStandard + " ";
  ASSERT_TRUE(step(dir, name, "stubs", stubCommands(sample.description)));
  const bool analysed = step(dir, name, "analyse", analyse + name + ".vhd");
  const bool elaborated = analysed && step(dir, name, "elaborate", kGhdl + " -e" + kStandard + " " + name);
  step(dir, name, "companion", analyse + "companion.vhd");
  const bool benched = step(dir, name, "template", analyse + "bench.vhd");
  if (elaborated && benched) step(dir, name, "bench", kGhdl + " -e" + kStandard + " bench");
}

INSTANTIATE_TEST_SUITE_P(Cases, VhdlTools, ::testing::ValuesIn(testing::allVhdlCases()));

// The corpus and limits cases whose VHDL holds constructs, all of which the valid mode rewrites.
std::vector<std::string> casesMadeValid() {
  std::vector<std::string> names;
  for (const std::string& name : testing::corpusAndLimitCases()) {
    TempDir work;
    testing::RecordingInterface ui;
    CnxDescription description;
    if (!testing::readCnxText(name, testing::caseText(name), work, ui, description)) continue;
    const auto findings = findHdlConstructs(description, buildNetlist(description, testing::kCorpusSignature),
                                            testing::kCorpusSignature, OutputLanguage::kVhdl);
    const bool allRewritten = std::all_of(findings.begin(), findings.end(), [](const HdlFinding& f) {
      return hdlRemedy(f.construct, OutputLanguage::kVhdl) == HdlRemedy::kValidText;
    });
    if (!findings.empty() && allRewritten) names.push_back(name);
  }
  return names;
}

class VhdlValidText : public VhdlTools {};

// Their valid text passes every step: design, elaboration, component declaration, template.
TEST_P(VhdlValidText, IsAcceptedByGhdl) {
  const std::string name = GetParam();
  TempDir dir;
  testing::RecordingInterface ui;
  CnxDescription description;
  ASSERT_TRUE(testing::readCnxText(name, testing::caseText(name), dir, ui, description));
  const Netlist netlist = buildNetlist(description, testing::kCorpusSignature);
  const VhdlFileWriter writer(ui, dir.path(name), testing::kCorpusSignature, description, netlist,
                              HdlTextMode::kValid);
  ASSERT_TRUE(writer.writeDesignFile());
  dir.write("companion.vhd", companionPackage(writer, name));
  dir.write("bench.vhd", templateBench(writer, description));
  const std::string analyse = kGhdl + " -a" + kStandard + " ";
  const std::string elaborate = kGhdl + " -e" + kStandard + " ";
  for (const std::string& command : {stubCommands(description), analyse + name + ".vhd", elaborate + name,
                                     analyse + "companion.vhd", analyse + "bench.vhd", elaborate + "bench"}) {
    const testing::ToolRun run = testing::runIn(dir.dir(), command);
    EXPECT_EQ(run.exitCode, 0) << command << ":\n" << run.output;
  }
}

INSTANTIATE_TEST_SUITE_P(Cases, VhdlValidText, ::testing::ValuesIn(casesMadeValid()));

}  // namespace
}  // namespace plovix
