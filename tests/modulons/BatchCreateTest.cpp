// Every bundled modulon, created and then edited in every language by batch runs, and the generated files
// checked by the HDL tools together with the bundled models.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "HdlTools.h"

namespace plovix::testing {
namespace {

// A bundled modulon with the values it is made with, the value an edit changes, and whether THDL takes its
// words as a two-dimensional port (batch_cases.txt).
struct Case {
  std::string modulon, pluginArgs, edit;
  bool wordRows = false;
};

// The cases of batch_cases.txt, in its order.
std::vector<Case> readCases() {
  std::vector<Case> cases;
  std::ifstream in(PLOVIX_SOURCE_DIR "/tests/modulons/batch_cases.txt");
  for (std::string line; std::getline(in, line);) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream words(line);
    Case c;
    std::string rows;
    words >> c.modulon >> c.edit >> rows;
    c.wordRows = rows == "rows";
    std::getline(words >> std::ws, c.pluginArgs);
    cases.push_back(c);
  }
  return cases;
}

const char* const kLanguages[] = {"thdl", "vhdl", "verilog"};

std::string extensionFor(const std::string& language) {
  return language == "thdl" ? ".tdf" : language == "vhdl" ? ".vhd" : ".v";
}

// The retrieval-info line that keeps a setting's value, or empty.
std::string storedValue(const std::string& design, const std::string& name) {
  const size_t at = design.find("Retrieval info: PRIVATE: " + name + " ");
  if (at == std::string::npos) return "";
  const size_t open = design.find('"', at);
  return design.substr(open + 1, design.find('"', open + 1) - open - 1);
}

// Whether a line of the output starts with the text (the plug-in's vendor script adds its own lines).
bool hasLineStarting(const std::string& output, const std::string& start) {
  return output.rfind(start, 0) == 0 || output.find("\n" + start) != std::string::npos;
}

class BatchCreateTest : public ::testing::TestWithParam<std::tuple<Case, const char*>> {};

TEST_P(BatchCreateTest, CreatesAndEditsTheVariationAndTheToolsAcceptIt) {
  const Case& c = std::get<0>(GetParam());
  const std::string language = std::get<1>(GetParam());
  TempDir dir;
  std::filesystem::create_directories(dir.path("out"));
  const std::string name = "v_" + language;
  const std::string design = "out/" + name + extensionFor(language);
  const ToolRun run = plovixBatch(dir, c.modulon, language, c.pluginArgs, design);
  ASSERT_EQ(run.exitCode, 0) << run.output;
  // No box, and none of the forms the writers warn about.
  EXPECT_FALSE(hasLineStarting(run.output, "report:")) << run.output;
  EXPECT_FALSE(hasLineStarting(run.output, "warning:")) << run.output;
  EXPECT_FALSE(std::filesystem::exists(dir.path("out/" + name + ".cnx"))) << "work files are removed";
  ASSERT_TRUE(std::filesystem::exists(dir.path(design))) << run.output;
  EXPECT_TRUE(std::filesystem::exists(dir.path("out/" + name + ".inc")));
  EXPECT_EQ(std::filesystem::exists(dir.path("out/" + name + ".cmp")), !(c.wordRows && language == "thdl"));
  EXPECT_TRUE(std::filesystem::exists(dir.path("out/" + name + ".sym")));
  EXPECT_NE(dir.read(design).find("modulon wizard: %" + c.modulon + "%"), std::string::npos);

  // An edit run takes the modulon from the file, changes one value and keeps the others.
  const std::string before = dir.read(design);
  const ToolRun edit = plovixBatch(dir, "", "", c.edit, design);
  ASSERT_EQ(edit.exitCode, 0) << edit.output;
  EXPECT_FALSE(hasLineStarting(edit.output, "warning:")) << edit.output;
  const std::string after = dir.read(design);
  const std::string pair = c.edit;
  EXPECT_EQ(storedValue(after, pair.substr(0, pair.find('='))), pair.substr(pair.find('=') + 1));
  EXPECT_NE(after, before);
  const std::string kept = c.pluginArgs.substr(0, c.pluginArgs.find('='));
  if (kept != pair.substr(0, pair.find('='))) {
    EXPECT_EQ(storedValue(after, kept), storedValue(before, kept));
  }
  EXPECT_FALSE(std::filesystem::exists(dir.path("out/" + name + ".cnx")));
  // A second edit with no values regenerates the same text.
  ASSERT_EQ(plovixBatch(dir, "", "", "", design).exitCode, 0);
  EXPECT_EQ(dir.read(design), after);

  dir.write("rom.txt", "0\n");  // the initialisation file of the ROM's row, which Yosys reads

  if (language == "verilog") {
    if (!haveProgram("iverilog") || !haveProgram("verilator") || !haveProgram("yosys"))
      GTEST_SKIP() << "Icarus Verilog, Verilator or Yosys missing";
    const ToolRun icarus = icarusCompile(dir, {design}, name);
    EXPECT_EQ(icarus.exitCode, 0) << icarus.output;
    EXPECT_EQ(icarus.output, "");
    const ToolRun verilator = verilatorLint(dir, {design}, name);
    EXPECT_EQ(verilator.exitCode, 0) << verilator.output;
    const ToolRun yosys = yosysCheck(dir, {design}, name);
    EXPECT_EQ(yosys.exitCode, 0) << yosys.output;
    EXPECT_EQ(yosys.output.find("Warning"), std::string::npos) << yosys.output;
  } else if (language == "vhdl") {
    if (!haveProgram("ghdl")) GTEST_SKIP() << "GHDL missing";
    const ToolRun ghdl = ghdlElaborate(dir, {design}, name);
    EXPECT_EQ(ghdl.exitCode, 0) << ghdl.output;
  }
}

std::string caseName(const ::testing::TestParamInfo<BatchCreateTest::ParamType>& info) {
  return std::get<0>(info.param).modulon + "_" + std::get<1>(info.param);
}

INSTANTIATE_TEST_SUITE_P(AllModulons, BatchCreateTest,
                         ::testing::Combine(::testing::ValuesIn(readCases()),
                                            ::testing::ValuesIn(kLanguages)),
                         caseName);

}  // namespace
}  // namespace plovix::testing
