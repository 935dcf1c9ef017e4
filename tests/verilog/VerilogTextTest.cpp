// The Verilog writer's value rules and the files it writes; whole texts are golden files
// (tests/corpus/GeneratedTextTest.cpp).
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
