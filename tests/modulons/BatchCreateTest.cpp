// Every bundled modulon, created in every language by a batch run, and the generated files checked by the
// HDL tools together with the bundled models.
#include <gtest/gtest.h>

#include <filesystem>

#include "HdlTools.h"

namespace plovix::testing {
namespace {

struct Case {
  const char* modulon;
  const char* pluginArgs;  // chosen to switch on optional ports, constants and inverted connections
};

const Case kCases[] = {
    {"lpm_counter", "LPM_WIDTH=6 LPM_DIRECTION=UNUSED LPM_MODULUS=40 ACLR=YES SLOAD=YES CNT_EN=LOW COUT=YES"},
    {"lpm_add_sub", "LPM_WIDTH=12 LPM_DIRECTION=SUB COUT=YES OVERFLOW=YES LPM_PIPELINE=2"},
    {"lpm_compare", "LPM_WIDTH=10 LPM_REPRESENTATION=SIGNED DATAB=CONSTANT DATAB_VALUE=1000 AGEB=YES"},
    {"lpm_mux", "LPM_WIDTH=4 LPM_SIZE=3"},
    {"lpm_decode", "LPM_WIDTH=3 LPM_DECODES=6 ENABLE=YES"},
    {"lpm_constant", "LPM_WIDTH=9 LPM_CVALUE=300"},
    {"lpm_ram_dq", "LPM_WIDTH=16 LPM_WIDTHAD=4 LPM_NUMWORDS=12 LPM_OUTDATA=REGISTERED"},
    {"lpm_shiftreg", "LPM_DIRECTION=RIGHT LOAD=YES ACLR=YES SHIFTOUT=YES"},
    {"count_compare", "LPM_WIDTH=6 MATCH_VALUE=33 ACLR=YES"},
};

const char* const kLanguages[] = {"thdl", "vhdl", "verilog"};

std::string extensionFor(const std::string& language) {
  return language == "thdl" ? ".tdf" : language == "vhdl" ? ".vhd" : ".v";
}

class BatchCreateTest : public ::testing::TestWithParam<std::tuple<Case, const char*>> {};

TEST_P(BatchCreateTest, CreatesTheVariationAndTheToolsAcceptIt) {
  const Case& c = std::get<0>(GetParam());
  const std::string language = std::get<1>(GetParam());
  TempDir dir;
  std::filesystem::create_directories(dir.path("out"));
  const std::string name = "v_" + language;
  const CommandResult run =
      plovixBatch(dir, c.modulon, language, c.pluginArgs, "out/" + name + extensionFor(language));
  ASSERT_EQ(run.exitCode, 0) << run.output;
  EXPECT_EQ(run.output.find("report:"), std::string::npos) << run.output;
  EXPECT_FALSE(std::filesystem::exists(dir.path("out/" + name + ".cnx"))) << "work files are removed";

  // The multiplexer's data input is two-dimensional: its catalog entry says so, and the modulon page makes
  // every variation of it a THDL one.
  const bool twoDimensional = std::string(c.modulon) == "lpm_mux";
  const std::string extension = twoDimensional ? ".tdf" : extensionFor(language);
  const std::string design = "out/" + name + extension;
  ASSERT_TRUE(std::filesystem::exists(dir.path(design))) << run.output;
  EXPECT_TRUE(std::filesystem::exists(dir.path("out/" + name + ".inc")));
  EXPECT_EQ(std::filesystem::exists(dir.path("out/" + name + ".cmp")), !twoDimensional);
  EXPECT_TRUE(std::filesystem::exists(dir.path("out/" + name + ".sym")));
  EXPECT_NE(dir.read(design).find("modulon wizard: %" + std::string(c.modulon) + "%"), std::string::npos);
  if (twoDimensional && language != "thdl") {
    EXPECT_NE(run.output.find("create an THDL version of the modulon instead? => OK"), std::string::npos);
  }

  if (extension == ".v") {
    if (!haveProgram("iverilog") || !haveProgram("verilator"))
      GTEST_SKIP() << "Icarus Verilog or Verilator missing";
    const CommandResult icarus = icarusCompile(dir, {design}, name);
    EXPECT_EQ(icarus.exitCode, 0) << icarus.output;
    const CommandResult verilator = verilatorLint(dir, {design}, name);
    EXPECT_EQ(verilator.exitCode, 0) << verilator.output;
  } else if (extension == ".vhd") {
    if (!haveProgram("ghdl")) GTEST_SKIP() << "GHDL missing";
    const CommandResult ghdl = ghdlElaborate(dir, {design}, name);
    EXPECT_EQ(ghdl.exitCode, 0) << ghdl.output;
  }
}

std::string caseName(const ::testing::TestParamInfo<BatchCreateTest::ParamType>& info) {
  return std::string(std::get<0>(info.param).modulon) + "_" + std::get<1>(info.param);
}

INSTANTIATE_TEST_SUITE_P(AllModulons, BatchCreateTest,
                         ::testing::Combine(::testing::ValuesIn(kCases), ::testing::ValuesIn(kLanguages)),
                         caseName);

}  // namespace
}  // namespace plovix::testing
