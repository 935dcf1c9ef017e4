// The Verilog writer's texts: the expected files of the corpus, the value rules, and the files it writes.
#include <gtest/gtest.h>

#include <string>

#include "../corpus/CorpusCase.h"
#include "RecordingInterface.h"
#include "TempDir.h"
#include "hdl/Netlist.h"
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
  const Netlist netlist = buildNetlist(description, testing::kCorpusSignature);
  const VerilogFileWriter writer(ui, work.path(name), testing::kCorpusSignature, description, netlist);
  const std::string design = writer.buildDesignText();
  EXPECT_EQ(design, expectedText(name + ".v"));
  EXPECT_EQ(writer.buildBlackBoxText(), expectedText(name + "_bb.v"));
  EXPECT_EQ(writer.buildInstanceText(), expectedText(name + "_inst.v"));
  EXPECT_EQ(writer.buildCompanionText(), "");
  // The text depends on its inputs only.
  EXPECT_EQ(writer.buildDesignText(), design);
  EXPECT_TRUE(ui.boxes.empty());
}

INSTANTIATE_TEST_SUITE_P(Corpus, CorpusTexts, ::testing::ValuesIn(testing::kCorpusCases));

TEST(VerilogValues, ConstantsTakeTheWidthOfTheirWire) {
  TextPool texts;
  auto value = [&texts](const std::string& constant, const std::string& width) {
    return verilogConstantValue(texts.intern(constant), Bound::fromText(width, texts));
  };
  EXPECT_EQ(value("VCC", "0"), "1'H1");
  EXPECT_EQ(value("VCC", "8"), "8'H1");
  EXPECT_EQ(value("GND", "8"), "8'H0");
  EXPECT_EQ(value("5", "8"), "8'H05");
  EXPECT_EQ(value("-1", "8"), "8'HFF");
  EXPECT_EQ(value("300", "4"), "4'HC");
  EXPECT_EQ(value("5", "0"), "1'H5");  // one digit, as the width asks
  // A width that is not a decimal number counts as 0.
  EXPECT_EQ(value("GND", "WIDTH"), "0'H0");
  // Widths beyond any device keep the number but not millions of padding digits.
  EXPECT_EQ(value("5", "99999999999").substr(0, 14), "1215752191'H00");
  EXPECT_EQ(value("5", "99999999999").size(), 262144u + 12);
}

TEST(VerilogValues, ParametersDirectionsAndWidths) {
  TextPool texts;
  EXPECT_EQ(verilogParameterValue(ValueType::kNumeric, texts.intern("12")), "12");
  EXPECT_EQ(verilogParameterValue(ValueType::kString, texts.intern("a\\b\\\\c")), "\"a\\\\b\\\\\\\\c\"");
  EXPECT_EQ(verilogParameterValue(ValueType::kString, Name()), "\"\"");
  EXPECT_STREQ(verilogDirectionWord(PortDirection::kInput), "input");
  EXPECT_STREQ(verilogDirectionWord(PortDirection::kOutput), "output");
  EXPECT_STREQ(verilogDirectionWord(PortDirection::kBidir), "inout");
  EXPECT_EQ(verilogWidthNumber(Bound::fromText("16", texts)), 16);
  EXPECT_EQ(verilogWidthNumber(Bound::fromText("-016", texts)), -16);
  EXPECT_EQ(verilogWidthNumber(Bound::fromText("8x", texts)), 0);
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
  const Netlist netlist = buildNetlist(description, "pvx_counter");
  const VerilogFileWriter writer(ui, work.path("Mixed"), "pvx_counter", description, netlist);
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
  const Netlist netlist = buildNetlist(description, testing::kCorpusSignature);
  const VerilogFileWriter writer(ui, work.path("count8"), testing::kCorpusSignature, description, netlist);
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
  const Netlist netlist = buildNetlist(description, testing::kCorpusSignature);
  const VerilogFileWriter writer(ui, work.path("missing/count8"), testing::kCorpusSignature, description,
                                 netlist);
  EXPECT_FALSE(writer.writeBlackBoxFile());
  ASSERT_EQ(ui.boxes.size(), 1u);
  EXPECT_EQ(ui.boxes[0], testing::reported(Msg::kFileNotOpened, work.path("missing/count8_bb.v")));
}

}  // namespace
}  // namespace plovix
