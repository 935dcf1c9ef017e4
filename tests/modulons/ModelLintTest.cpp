// Every bundled model on disk read by each HDL tool the way docs/hdl-models.md says, without an error or a
// warning: each Verilog model on its own by Icarus Verilog (-Wall), Verilator (--lint-only -Wall) and Yosys
// (read_verilog); the whole VHDL library by GHDL (VHDL-2008, into library lpm after the package).
#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "HdlTools.h"

namespace plovix::testing {
namespace {

struct Tool {
  const char* program;
  // The command that reads one Verilog model; nullptr for GHDL, which reads the whole VHDL library at once.
  std::string (*readModel)(const std::string& model);
};

const Tool kTools[] = {
    {"iverilog", [](const std::string& model) { return "iverilog -Wall -o /dev/null " + quoted(model); }},
    {"verilator", [](const std::string& model) { return "verilator --lint-only -Wall " + quoted(model); }},
    {"yosys", [](const std::string& model) { return "yosys -q -p " + quoted("read_verilog " + model); }},
    {"ghdl", nullptr},
};

void PrintTo(const Tool& tool, std::ostream* out) {
  *out << tool.program;
}

class ModelLintTest : public ::testing::TestWithParam<Tool> {};

TEST_P(ModelLintTest, ReadsEveryModelWithoutAWord) {
  const Tool& tool = GetParam();
  if (!haveProgram(tool.program)) GTEST_SKIP() << tool.program << " missing";
  TempDir dir;
  if (tool.readModel == nullptr) {
    const ToolRun read = runIn(dir.dir(), ghdlLibraryCommand(dir.dir()));
    EXPECT_EQ(read.exitCode, 0) << read.output;
    EXPECT_EQ(read.output, "");
    return;
  }
  for (const std::string& model : modelFiles("verilog")) {
    const ToolRun read = runIn(dir.dir(), tool.readModel(model));
    EXPECT_EQ(read.exitCode, 0) << model << "\n" << read.output;
    EXPECT_EQ(read.output, "") << model;
  }
}

INSTANTIATE_TEST_SUITE_P(Tools, ModelLintTest, ::testing::ValuesIn(kTools),
                         [](const ::testing::TestParamInfo<Tool>& info) { return info.param.program; });

// Each library module has a model in both languages.
TEST(ModelLintTest, EveryModuleInBothLanguages) {
  std::set<std::string> verilog, vhdl;
  for (const std::string& model : modelFiles("verilog")) verilog.insert(std::filesystem::path(model).stem());
  for (const std::string& model : modelFiles("vhdl")) vhdl.insert(std::filesystem::path(model).stem());
  vhdl.erase("lpm_components");
  ASSERT_FALSE(verilog.empty());
  EXPECT_EQ(verilog, vhdl);
}

}  // namespace
}  // namespace plovix::testing
