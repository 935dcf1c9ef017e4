// The bundled library models read cleanly on their own: no error and no warning from Icarus Verilog (-Wall),
// Verilator (--lint-only -Wall), Yosys (read_verilog) and GHDL (VHDL-2008, in library lpm after the package).
#include <gtest/gtest.h>

#include "HdlTools.h"

namespace plovix::testing {
namespace {

struct Model {
  const char* name;
  bool verilog;  // whether the Verilog model is checked here (the older ones still declare pulled nets)
};

const Model kModels[] = {
    {"lpm_inv", true},     {"lpm_and", true},  {"lpm_or", true},     {"lpm_xor", true}, {"lpm_bustri", true},
    {"lpm_clshift", true}, {"lpm_mult", true}, {"lpm_divide", true}, {"lpm_abs", true}, {"lpm_mux", false}};

class ModelLintTest : public ::testing::TestWithParam<Model> {};

void expectSilent(const CommandResult& run, const std::string& tool) {
  EXPECT_EQ(run.exitCode, 0) << tool << "\n" << run.output;
  EXPECT_EQ(run.output, "") << tool;
}

TEST_P(ModelLintTest, ReadsWithoutWarnings) {
  const std::string name = GetParam().name;
  TempDir dir;
  if (GetParam().verilog) {
    if (!haveProgram("iverilog") || !haveProgram("verilator") || !haveProgram("yosys"))
      GTEST_SKIP() << "Icarus Verilog, Verilator or Yosys missing";
    const std::string model = quoted(verilogModels() + "/" + name + ".v");
    expectSilent(runIn(dir.dir(), "iverilog -Wall -o /dev/null " + model), "iverilog");
    expectSilent(runIn(dir.dir(), "verilator --lint-only -Wall " + model), "verilator");
    expectSilent(
        runIn(dir.dir(), "yosys -q -p " + quoted("read_verilog " + verilogModels() + "/" + name + ".v")),
        "yosys");
  }
  if (!haveProgram("ghdl")) GTEST_SKIP() << "GHDL missing";
  expectSilent(runIn(dir.dir(), "mkdir ghdl && ghdl -a --std=08 --workdir=ghdl --work=lpm " +
                                    quoted(vhdlModels() + "/lpm_components.vhd") + " " +
                                    quoted(vhdlModels() + "/" + name + ".vhd")),
               "ghdl");
}

INSTANTIATE_TEST_SUITE_P(BundledModels, ModelLintTest, ::testing::ValuesIn(kModels),
                         [](const ::testing::TestParamInfo<Model>& info) {
                           return std::string(info.param.name);
                         });

}  // namespace
}  // namespace plovix::testing
