// Every bundled modulon, created and then edited in every language by batch runs, and the generated files
// checked by the HDL tools together with the bundled models.
#include <gtest/gtest.h>

#include <filesystem>

#include "HdlTools.h"

namespace plovix::testing {
namespace {

struct Case {
  const char* modulon;
  const char* pluginArgs;  // chosen to switch on optional ports, constants and inverted connections
  const char* edit;        // one NAME=VALUE pair an edit run changes
  bool wordRows;           // THDL takes its words as a two-dimensional port, so no component declaration
};

const Case kCases[] = {
    {"lpm_counter", "LPM_WIDTH=6 LPM_DIRECTION=UNUSED LPM_MODULUS=40 ACLR=YES SLOAD=YES CNT_EN=LOW COUT=YES",
     "LPM_WIDTH=7", false},
    {"lpm_add_sub", "LPM_WIDTH=12 LPM_DIRECTION=SUB COUT=YES OVERFLOW=YES LPM_PIPELINE=2", "CIN=YES", false},
    {"lpm_compare", "LPM_WIDTH=10 LPM_REPRESENTATION=SIGNED DATAB=CONSTANT DATAB_VALUE=1000 AGEB=YES",
     "DATAB=INPUT", false},
    {"lpm_mux", "LPM_WIDTH=4 LPM_SIZE=3", "LPM_PIPELINE=2", true},
    {"lpm_decode", "LPM_WIDTH=3 LPM_DECODES=6 ENABLE=YES", "LPM_DECODES=8", false},
    {"lpm_constant", "LPM_WIDTH=9 LPM_CVALUE=300", "LPM_CVALUE=7", false},
    {"lpm_ram_dq", "LPM_WIDTH=16 LPM_WIDTHAD=4 LPM_NUMWORDS=12 LPM_OUTDATA=REGISTERED", "LPM_WIDTH=8", false},
    {"lpm_shiftreg", "LPM_DIRECTION=RIGHT LOAD=YES ACLR=YES SHIFTOUT=YES", "Q=NO", false},
    {"count_compare", "LPM_WIDTH=6 MATCH_VALUE=33 ACLR=YES", "MATCH_VALUE=12", false},
    {"lpm_inv", "LPM_WIDTH=1", "LPM_WIDTH=64", false},
    {"lpm_and", "LPM_WIDTH=5 LPM_SIZE=3", "LPM_SIZE=4", true},
    {"lpm_or", "LPM_WIDTH=1 LPM_SIZE=64", "LPM_WIDTH=2", true},
    {"lpm_xor", "LPM_WIDTH=64 LPM_SIZE=2", "LPM_SIZE=3", true},
    {"lpm_bustri", "LPM_WIDTH=16", "ENABLETR=NO", false},
    {"lpm_clshift", "LPM_SHIFTTYPE=ARITHMETIC DIRECTION=INPUT OVERFLOW=YES UNDERFLOW=YES", "LPM_WIDTHDIST=4",
     false},
    {"lpm_mult", "LPM_WIDTHA=12 LPM_WIDTHB=5 LPM_REPRESENTATION=SIGNED LPM_PIPELINE=3 CLKEN=YES ACLR=YES",
     "LPM_WIDTHP=9", false},
    {"lpm_divide", "LPM_WIDTHN=64 LPM_WIDTHD=3 LPM_NREPRESENTATION=SIGNED LPM_PIPELINE=2 ACLR=YES",
     "LPM_REMAINDERPOSITIVE=FALSE", false},
    {"lpm_abs", "LPM_WIDTH=64", "OVERFLOW=NO", false},
    {"lpm_ff", "LPM_WIDTH=64 ENABLE=YES ACLR=YES ASET=YES LPM_AVALUE=5 SSET=YES SCLR=YES ALOAD=YES",
     "LPM_FFTYPE=TFF", false},
    {"lpm_latch", "LPM_WIDTH=1 ACLR=YES ASET=YES", "LPM_WIDTH=64", false},
    {"lpm_rom", "LPM_WIDTH=64 LPM_WIDTHAD=3 LPM_FILE=rom.txt", "LPM_OUTDATA=REGISTERED", false},
    {"lpm_ram_dp", "LPM_WIDTH=1 LPM_WIDTHAD=7 WRCLKEN=YES RDEN=YES RDCLKEN=YES", "LPM_OUTDATA=REGISTERED",
     false},
    {"scfifo", "LPM_WIDTH=64 LPM_NUMWORDS=5 ACLR=YES SCLR=YES USEDW=YES ALMOST_FULL_VALUE=4",
     "LPM_SHOWAHEAD=ON", false},
    {"dcfifo", "LPM_WIDTH=1 LPM_NUMWORDS=32 ACLR=YES RDFULL=YES RDUSEDW=YES WREMPTY=YES WRUSEDW=YES",
     "RDSYNC_DELAYPIPE=2", false},
    {"fifo_level", "LPM_WIDTH=12 LPM_NUMWORDS=64 LEVEL=60 USEDW=YES", "LEVEL=64", false},
};

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
  EXPECT_NE(dir.read(design).find("modulon wizard: %" + std::string(c.modulon) + "%"), std::string::npos);

  // An edit run takes the modulon from the file, changes one value and keeps the others.
  const std::string before = dir.read(design);
  const ToolRun edit = plovixBatch(dir, "", "", c.edit, design);
  ASSERT_EQ(edit.exitCode, 0) << edit.output;
  EXPECT_FALSE(hasLineStarting(edit.output, "warning:")) << edit.output;
  const std::string after = dir.read(design);
  const std::string pair = c.edit;
  EXPECT_EQ(storedValue(after, pair.substr(0, pair.find('='))), pair.substr(pair.find('=') + 1));
  EXPECT_NE(after, before);
  const std::string kept = std::string(c.pluginArgs).substr(0, std::string(c.pluginArgs).find('='));
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
  return std::string(std::get<0>(info.param).modulon) + "_" + std::get<1>(info.param);
}

INSTANTIATE_TEST_SUITE_P(AllModulons, BatchCreateTest,
                         ::testing::Combine(::testing::ValuesIn(kCases), ::testing::ValuesIn(kLanguages)),
                         caseName);

}  // namespace
}  // namespace plovix::testing
