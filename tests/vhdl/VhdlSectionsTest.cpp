// The sections of the VHDL texts on their own: the rules that the whole sample texts do not reach.
#include <gtest/gtest.h>

#include <string>

#include "../corpus/CorpusCase.h"
#include "RecordingInterface.h"
#include "TempDir.h"
#include "base/TextFile.h"
#include "hdl/VhdlFileWriter.h"
#include "hdl/VhdlTextRules.h"

namespace plovix {
namespace {

using testing::RecordingInterface;
using testing::TempDir;

const std::string kHead = "GENERATION: STANDARD\nVERSION: WM1.0\n";

// A description read from CNX text and a VHDL writer for the variation "var" signed "top".
struct Sample {
  explicit Sample(const std::string& body) {
    loaded = testing::readCnxText("var", kHead + body, work, ui, description);
  }
  TempDir work;
  RecordingInterface ui;
  CnxDescription description;
  bool loaded = false;
  VhdlFileWriter writer{ui, "/out/var", "top", description};
};

CnxUsedPort port(const std::string& direction, const std::string& w1, const std::string& w2,
                 const std::string& defaultValue) {
  CnxUsedPort p;
  p.direction = direction;
  p.width1 = w1;
  p.width2 = w2;
  p.defaultValue = defaultValue;
  return p;
}

TEST(VhdlTextRules, TypesRangesAndDefaults) {
  EXPECT_EQ(vhdlTypeText("0", "0", "0", "0"), "STD_LOGIC ");
  EXPECT_EQ(vhdlTypeText("0", "0", "8", "0"), "STD_LOGIC_VECTOR (7 DOWNTO 0)");
  EXPECT_EQ(vhdlTypeText("4", "0", "8", "0"), "STD_LOGIC_2D (3 DOWNTO 0, 7 DOWNTO 0)");
  EXPECT_EQ(vhdlTypeText("0", "9", "4", "2"), "STD_LOGIC_VECTOR (5 DOWNTO 2)");
  EXPECT_EQ(vhdlRangeText("0", "0", "WIDTH", "0"), "(WIDTH-1 DOWNTO 0)");
  EXPECT_EQ(vhdlBitVectorTypeText("8", "0"), "BIT_VECTOR (7 DOWNTO 0)");

  EXPECT_EQ(vhdlDefaultText(port("INPUT", "0", "8", "VCC")), " :=  (OTHERS => '1')");
  EXPECT_EQ(vhdlDefaultText(port("BIDIR", "0", "0", "GND")), " := '0'");
  EXPECT_EQ(vhdlDefaultText(port("INPUT", "0", "0", "5")), " := 5");
  EXPECT_EQ(vhdlDefaultText(port("INPUT", "0", "0", "NODEFVAL")), "");
  EXPECT_EQ(vhdlDefaultText(port("OUTPUT", "0", "0", "VCC")), "");

  EXPECT_EQ(vhdlDirectionWord("BIDIR"), "INOUT");
  EXPECT_EQ(vhdlDirectionWord("SIDEWAYS"), "SIDEWAYS");
  EXPECT_EQ(vhdlGenericValue({"N", "NUMERIC", "8", ""}), "8");
  EXPECT_EQ(vhdlGenericValue({"S", "STRING", "UP", ""}), "\"UP\"");
  EXPECT_EQ(vhdlIntegerOf("12"), 12);
  EXPECT_EQ(vhdlIntegerOf("12x"), 0);
}

TEST(VhdlLibraryClauses, DefaultsPackagesAndTheNoDefaultMarker) {
  Sample none("MODULE: m\n");
  ASSERT_TRUE(none.loaded);
  EXPECT_EQ(none.writer.libraryClausesText(), "LIBRARY ieee;\nUSE ieee.std_logic_1164.all;\n");

  Sample only("MODULE: m\nLIBRARY: NO_DEFAULT_LIB\n");
  ASSERT_TRUE(only.loaded);
  EXPECT_EQ(only.writer.libraryClausesText(), "");

  // Pieces of a use text are trimmed and runs of ";" give no empty clause; the marker drops the defaults
  // wherever it stands.
  Sample several(
      "MODULE: m\nLIBRARY: lpm \"lpm.a.all ;; lpm.b.all;\"\nLIBRARY: NO_DEFAULT_LIB\n"
      "LIBRARY: alt alt.c.all\n");
  ASSERT_TRUE(several.loaded);
  EXPECT_EQ(several.writer.libraryClausesText(),
            "\nLIBRARY lpm;\nUSE lpm.a.all;\nUSE lpm.b.all;\n\nLIBRARY alt;\nUSE alt.c.all;\n");
}

// Two instances of one module share a declaration whose generics are those of the first instance; each
// instance gets its own generic map, the second an empty one.
TEST(VhdlComponents, OneDeclarationPerModuleWithTheFirstInstancesGenerics) {
  Sample sample(
      "MODULE: cnt a\nMODULE: cnt b\nMODULE: reg r\n"
      "CONSTANT: WIDTH NUMERIC 4 a\nCONSTANT: Mode STRING up\nPARAMETER: depth NUMERIC 2 a\n"
      "USED_PORT: clk 0 0 0 0 INPUT NODEFVAL\n"
      "CONNECT: a@clock 0 0 0 0 clk 0 0 0 0\nCONNECT: b@clock 0 0 0 0 clk 0 0 0 0\n"
      "CONNECT: r@clock 0 0 0 0 clk 0 0 0 0\n");
  ASSERT_TRUE(sample.loaded);
  VhdlFileWriter& w = sample.writer;
  w.signalDeclarationsText();
  EXPECT_EQ(w.componentDeclarationsText(),
            "\n\n\tCOMPONENT cnt\n\tGENERIC (\n\t\twidth\t\t: NATURAL;\n\t\tmode\t\t: STRING;\n"
            "\t\tdepth\t\t: depth\n\t);\n\tPORT (\n\t\t\tclock\t: IN STD_LOGIC \n\t);\n\tEND COMPONENT;\n\n"
            "\n\n\tCOMPONENT reg\n\tGENERIC (\n\t\tmode\t\t: STRING\n\t);\n\tPORT (\n"
            "\t\t\tclock\t: IN STD_LOGIC \n\t);\n\tEND COMPONENT;\n\n");
  EXPECT_EQ(w.instancesText(),
            "\ta_component : cnt\n\tGENERIC MAP (\n\t\tWIDTH => 4,\n\t\tMode => \"up\"\n\t)\n"
            "\tPORT MAP (\n\t\tclock => clk\n\t);\n\n\n\n"
            "\tb_component : cnt\n\tGENERIC MAP (\n\t\tMode => \"up\"\n\t)\n"
            "\tPORT MAP (\n\t\tclock => clk\n\t);\n\n\n\n"
            "\tr_component : reg\n\tGENERIC MAP (\n\t\tMode => \"up\"\n\t)\n"
            "\tPORT MAP (\n\t\tclock => clk\n\t);\n\n\n\n");
}

// A port fed by several connections gets a conversion signal also when it is the instance's last port, and
// the conversion takes the next wire number.
TEST(VhdlConversions, LastPortOfAnInstanceGetsItsConversionSignal) {
  Sample sample(
      "MODULE: add u\nUSED_PORT: x 0 0 2 0 INPUT NODEFVAL\nUSED_PORT: y 0 0 1 0 INPUT NODEFVAL\n"
      "USED_PORT: s 0 0 3 0 OUTPUT NODEFVAL\n"
      "CONNECT: s 0 0 3 0 u@sum 0 0 3 0\n"
      "CONNECT: u@dataa 0 0 2 1 x 0 0 2 0\nCONNECT: u@dataa 0 0 1 0 y 0 0 1 0\n");
  ASSERT_TRUE(sample.loaded);
  VhdlFileWriter& w = sample.writer;
  const std::string signals = w.signalDeclarationsText();
  ASSERT_EQ(w.conversions.size(), 1u);
  const VhdlConversion& conversion = w.conversions[0];
  EXPECT_EQ(conversion.name, "sub_wire1");
  EXPECT_EQ(conversion.sourceText, "x(1 DOWNTO 0) & y(0 DOWNTO 0)");
  EXPECT_EQ(conversion.sourceKey, "u.dataa");
  EXPECT_EQ(conversion.width2, "3");
  EXPECT_EQ(w.wireCounter, 2);
  EXPECT_NE(signals.find("\tSIGNAL sub_wire1\t: STD_LOGIC_VECTOR (2 DOWNTO 0);\n"), std::string::npos);
  w.componentDeclarationsText();
  EXPECT_NE(w.concurrentAssignmentsText().find("\tsub_wire1    <= x(1 DOWNTO 0) & y(0 DOWNTO 0);\n"),
            std::string::npos);
  EXPECT_NE(w.instancesText().find("\t\tdataa => sub_wire1"), std::string::npos);
}

NetlistConnection variationPortFed(const std::string& port, const std::string& ownWidth2,
                                   const std::string& ownLow2, const std::string& peer,
                                   const std::string& peerWidth2, const std::string& peerLow2) {
  NetlistConnection c;
  c.ownPort = port;
  c.ownWidth2 = ownWidth2;
  c.ownLow2 = ownLow2;
  c.peerName = peer;
  c.peerWidth2 = peerWidth2;
  c.peerLow2 = peerLow2;
  return c;
}

// Assignments from hand-made connections: bit selections on either side, a repeated assignment written once,
// and sub-module ports that the first rule turns around.
TEST(VhdlAssignments, GroupedAssignmentsFromConnections) {
  Sample sample("MODULE: m\n");
  ASSERT_TRUE(sample.loaded);
  VhdlFileWriter& w = sample.writer;
  w.connections = {
      variationPortFed("y", "4", "3", "bit", "0", "0"), variationPortFed("y", "4", "2", "bus", "8", "5"),
      variationPortFed("z", "0", "0", "w", "0", "0"),   variationPortFed("z", "0", "0", "v", "0", "0"),
      variationPortFed("q", "0", "0", "bus", "8", "6"), variationPortFed("z", "0", "0", "w", "0", "0"),
      variationPortFed("z", "0", "0", "v", "0", "0")};
  NetlistConnection fed = variationPortFed("d", "2", "1", "sub_wire3", "0", "0");
  fed.ownInstance = "u";
  w.connections.push_back(fed);
  fed.conversionRole = kConversionRowSide;
  w.connections.push_back(fed);
  w.connections.push_back(NetlistConnection{});
  EXPECT_EQ(w.concurrentAssignmentsText(),
            "\ty(3)    <= bit;\n"
            "\ty    <= bus(12 DOWNTO 5);\n"
            "\tz    <= w & v;\n"
            "\tq    <= bus(6);\n"
            "\tsub_wire3(1)    <= d;\n");
}

// Constant wires: bit strings of numbers (cut and sign-extended), VCC as the inverse of zeros, single bits.
TEST(VhdlAssignments, ConstantAndInvertingWires) {
  Sample sample("MODULE: m\n");
  ASSERT_TRUE(sample.loaded);
  VhdlFileWriter& w = sample.writer;
  auto wire = [](const std::string& name, const std::string& port, const std::string& width2, bool constant) {
    NetlistWire x;
    x.name = name;
    x.drivingPort = port;
    x.width2 = width2;
    x.isConstant = constant;
    x.isInverted = !constant;
    return x;
  };
  w.wires = {wire("w0", "-1", "40", true), wire("w1", "300", "4", true), wire("w2", "VCC", "3", true),
             wire("w3", "GND", "2", true), wire("w4", "VCC", "0", true), wire("w5", "7", "0", true),
             wire("w6", "n", "0", false)};
  w.connections.push_back(NetlistConnection{});
  EXPECT_EQ(w.concurrentAssignmentsText(),
            "\tw0_bv(39 DOWNTO 0) <= \"" + std::string(40, '1') +
                "\";\n\tw0    <= To_stdlogicvector(w0_bv);\n"
                "\tw1_bv(3 DOWNTO 0) <= \"1100\";\n\tw1    <= To_stdlogicvector(w1_bv);\n"
                "\tw2_bv(2 DOWNTO 0) <= \"000\";\n\tw2    <= NOT(To_stdlogicvector(w2_bv));\n"
                "\tw3_bv(1 DOWNTO 0) <= \"00\";\n\tw3    <= To_stdlogicvector(w3_bv);\n"
                "\tw4    <= '1';\n\tw5    <= 7;\n\tw6    <= NOT(n);\n");
}

TEST(VhdlSignals, ProcedureSizedByTheLastTwoDimensionalWire) {
  Sample sample("MODULE: m\n");
  ASSERT_TRUE(sample.loaded);
  VhdlFileWriter& w = sample.writer;
  const std::string type =
      "\ttype STD_LOGIC_2D is array (NATURAL RANGE <>, NATURAL RANGE <>) of STD_LOGIC;\n\n";
  EXPECT_EQ(w.twoDimensionalProcedureText(), type);
  w.wires.resize(3);
  w.wires[0].width1 = "2";
  w.wires[0].width2 = "4";
  w.wires[1].width1 = "3";  // no second width: one column
  EXPECT_EQ(w.twoDimensionalProcedureText(),
            type +
                "\tprocedure conv_2_2d(signal signal_in\t: IN std_logic_vector(2 DOWNTO 0);\n"
                "\t\t\t\t\t\tsignal signal_out\t: OUT std_logic_2d(2 DOWNTO 0, 0 DOWNTO 0)) IS\n"
                "\tBEGIN\n\t\tFOR i IN 0 TO 2 LOOP\n\t\t\tFOR j IN 0 TO 0 LOOP\n"
                "\t\t\t\tsignal_out(i, j) <= signal_in(i * 1 + j);\n\t\t\tEND LOOP;\n\t\tEND LOOP;\n"
                "\tEND conv_2_2d;\n\n");
}

// The netlist is built again for every design text, so a second text equals the first.
TEST(VhdlDesignText, RepeatedBuildGivesTheSameText) {
  Sample sample(
      "MODULE: cnt c\nUSED_PORT: q 0 0 4 0 OUTPUT NODEFVAL\nUSED_PORT: e 0 0 0 0 INPUT NODEFVAL\n"
      "CONNECT: q 0 0 4 0 c@q 0 0 4 0\nCONNECT: c@en 0 0 0 0 !e 0 0 0 0\nCONNECT: c@d 0 0 4 0 3 0 0 0 0\n");
  ASSERT_TRUE(sample.loaded);
  const std::string first = sample.writer.designText();
  EXPECT_EQ(sample.writer.designText(), first);
  EXPECT_EQ(sample.writer.wireCounter, 3);
}

// Widths that are no numbers, negative or far too wide still give a text, and the files are named for VHDL.
TEST(VhdlDesignText, OddWidthsAndTheFilesWritten) {
  Sample sample(
      "MODULE: cnt c\nUSED_PORT: q 0 0 W 0 OUTPUT NODEFVAL\nUSED_PORT: e 0 0 -3 0 INPUT VCC\n"
      "CONNECT: q 0 0 W 0 c@q 0 0 W 0\nCONNECT: c@d 0 0 99999999999 0 5 0 0 0 0\n"
      "CONNECT: c@e 0 0 -3 0 GND 0 0 0 0\nCONNECT: c@f 7 0 x 0 e 0 0 -3 0\n");
  ASSERT_TRUE(sample.loaded);
  VhdlFileWriter writer(sample.ui, sample.work.path("odd"), "top", sample.description);
  const std::string text = writer.designText();
  EXPECT_NE(text.find("\tq\t\t: OUT STD_LOGIC_VECTOR (W-1 DOWNTO 0)"), std::string::npos);
  EXPECT_NE(text.find(" <= \"\";\n"), std::string::npos);  // a negative width gives no bits
  EXPECT_LT(text.size(), 1u << 22);                        // nor does a huge one give gigabytes

  EXPECT_TRUE(writer.writeDesignFile());
  EXPECT_TRUE(writer.writeCompanionFile());
  EXPECT_TRUE(writer.writeInstanceFile());
  EXPECT_EQ(sample.work.read("odd.cmp"), toTextMode(writer.buildCompanionText()));
  EXPECT_EQ(sample.work.read("odd_inst.vhd"), toTextMode(writer.buildInstanceText()));
  EXPECT_EQ(sample.work.read("odd.vhd").rfind(toTextMode(text), 0), 0u);
}

}  // namespace
}  // namespace plovix
