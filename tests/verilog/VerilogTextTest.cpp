// The Verilog writer's texts: the expected files of the corpus, the value rules, and the files it writes.
#include <gtest/gtest.h>

#include <string>

#include "../corpus/CorpusCase.h"
#include "RecordingInterface.h"
#include "TempDir.h"
#include "hdl/VerilogFileWriter.h"

namespace plovix {
namespace {

using testing::RecordingInterface;
using testing::TempDir;

std::string expectedText(const std::string& file) {
  return TempDir::readFile(std::string(PLOVIX_TEST_DATA_DIR) + "/" + file);
}

class CorpusTexts : public ::testing::TestWithParam<const char*> {};

TEST_P(CorpusTexts, DesignBlackBoxAndTemplateMatchTheExpectedFiles) {
  const std::string name = GetParam();
  TempDir work;
  RecordingInterface ui;
  CnxDescription description;
  ASSERT_TRUE(testing::readCorpusCase(name, work, ui, description)) << work.read(name + ".cnxerr");
  VerilogFileWriter writer(ui, work.path(name), testing::kCorpusSignature, description);
  const std::string design = writer.buildDesignText();
  EXPECT_EQ(design, expectedText(name + ".v"));
  EXPECT_EQ(writer.buildBlackBoxText(), expectedText(name + "_bb.v"));
  EXPECT_EQ(writer.buildInstanceText(), expectedText(name + "_inst.v"));
  EXPECT_EQ(writer.buildCompanionText(), "");
  // The netlist is made afresh for every build, so the text does not change when built again.
  EXPECT_EQ(writer.buildDesignText(), design);
  EXPECT_TRUE(ui.boxes.empty());
}

INSTANTIATE_TEST_SUITE_P(Corpus, CorpusTexts, ::testing::ValuesIn(testing::kCorpusCases));

TEST(VerilogValues, ConstantsTakeTheWidthOfTheirWire) {
  EXPECT_EQ(verilogConstantValue("VCC", "0"), "1'H1");
  EXPECT_EQ(verilogConstantValue("VCC", "8"), "8'H1");
  EXPECT_EQ(verilogConstantValue("GND", "8"), "8'H0");
  EXPECT_EQ(verilogConstantValue("5", "8"), "8'H05");
  EXPECT_EQ(verilogConstantValue("-1", "8"), "8'HFF");
  EXPECT_EQ(verilogConstantValue("300", "4"), "4'HC");
  EXPECT_EQ(verilogConstantValue("5", "0"), "1'H5");  // one digit, as the width asks
  // A width that is not a decimal number counts as 0.
  EXPECT_EQ(verilogConstantValue("GND", "WIDTH"), "0'H0");
  // Widths beyond any device keep the number but not millions of padding digits.
  EXPECT_EQ(verilogConstantValue("5", "99999999999").substr(0, 14), "1215752191'H00");
  EXPECT_EQ(verilogConstantValue("5", "99999999999").size(), 262144u + 12);
}

TEST(VerilogValues, ParametersDirectionsAndWidths) {
  EXPECT_EQ(verilogParameterValue("NUMERIC", "12"), "12");
  EXPECT_EQ(verilogParameterValue("STRING", "a\\b\\\\c"), "\"a\\\\b\\\\\\\\c\"");
  EXPECT_EQ(verilogParameterValue("STRING", ""), "\"\"");
  EXPECT_EQ(verilogDirectionWord("INPUT"), "input");
  EXPECT_EQ(verilogDirectionWord("OUTPUT"), "output");
  EXPECT_EQ(verilogDirectionWord("BIDIR"), "inout");
  EXPECT_EQ(verilogDirectionWord("other"), "other");
  EXPECT_EQ(verilogWidthNumber("16"), 16);
  EXPECT_EQ(verilogWidthNumber("8x"), 0);
}

// Two instances: parameters and constants go to the instance they target or, without a target, to every one;
// names are lower-cased where they are printed, except the module and instance names.
TEST(VerilogInstances, SettingsFollowTheirTargets) {
  TempDir work;
  RecordingInterface ui;
  CnxDescription description;
  ASSERT_TRUE(testing::readCnxText("Mixed", R"(GENERATION: STANDARD
VERSION: WM1.0
MODULE: Pvx_Counter Low
MODULE: pvx_counter high
PARAMETER: Width NUMERIC 8
PARAMETER: Only STRING x high
CONSTANT: Start NUMERIC 3 Low
CONSTANT: Name STRING "n"
USED_PORT: Clock 0 0 0 0 INPUT NODEFVAL
USED_PORT: Q 0 0 4 0 OUTPUT NODEFVAL
CONNECT: Low@clock 0 0 0 0 Clock 0 0 0 0
CONNECT: high@clock 0 0 0 0 Clock 0 0 0 0
CONNECT: Q 0 0 4 0 Low@q 0 0 4 0
)",
                                   work, ui, description));
  VerilogFileWriter writer(ui, work.path("Mixed"), "pvx_counter", description);
  const std::string text = writer.buildDesignText();
  EXPECT_NE(text.find("module Mixed (\n\tclock,\n\tq);\n\n\tinput\t  clock;\n\toutput\t[3:0]  q;\n\n"
                      "\tparameter\n\t\tWidth = 8,\n\t\tOnly = \"x\";\n\n"),
            std::string::npos)
      << text;
  EXPECT_NE(text.find("\twire [3:0] q = sub_wire0[3:0];\n"), std::string::npos) << text;
  EXPECT_NE(text.find("\n\tpvx_counter\tLow_component (\n\t\t\t\t.clock (clock),\n\t\t\t\t.q (sub_wire0));\n"
                      "\tdefparam\n\t\tLow_component.width = width,\n\t\tLow_component.start = 3,\n"
                      "\t\tLow_component.name = \"n\";\n\n"),
            std::string::npos)
      << text;
  EXPECT_NE(text.find("\n\tpvx_counter\thigh_component (\n\t\t\t\t.clock (clock));\n\tdefparam\n"
                      "\t\thigh_component.width = width,\n\t\thigh_component.only = only,\n"
                      "\t\thigh_component.name = \"n\";\n\n"),
            std::string::npos)
      << text;
}

TEST(VerilogFiles, BlackBoxAndTemplateAreWrittenBesideTheDesign) {
  TempDir work;
  RecordingInterface ui;
  CnxDescription description;
  ASSERT_TRUE(testing::readCorpusCase("counter", work, ui, description));
  VerilogFileWriter writer(ui, work.path("count8"), testing::kCorpusSignature, description);
  ASSERT_TRUE(writer.writeBlackBoxFile());
  ASSERT_TRUE(writer.writeInstanceFile());
  const std::string blackBox = work.read("count8_bb.v");
  EXPECT_NE(blackBox.find("\r\nmodule count8 (\r\n\tclock,\r\n\tq);\r\n"), std::string::npos);
  EXPECT_EQ(blackBox.find("modulon wizard:"), std::string::npos);
  EXPECT_EQ(work.read("count8_inst.v"),
            "count8\tcount8_inst (\r\n\t.clock ( clock_sig ),\r\n\t.q ( q_sig )\r\n\t);\r\n");
  EXPECT_TRUE(ui.boxes.empty());
}

TEST(VerilogFiles, AnUnwritableBlackBoxIsReportedWithItsName) {
  TempDir work;
  RecordingInterface ui;
  CnxDescription description;
  ASSERT_TRUE(testing::readCorpusCase("counter", work, ui, description));
  VerilogFileWriter writer(ui, work.path("missing/count8"), testing::kCorpusSignature, description);
  EXPECT_FALSE(writer.writeBlackBoxFile());
  ASSERT_EQ(ui.boxes.size(), 1u);
  EXPECT_EQ(ui.boxes[0], testing::reported(Msg::kFileNotOpened, work.path("missing/count8_bb.v")));
}

}  // namespace
}  // namespace plovix
