// The sections of the VHDL texts on their own: the rules that the whole sample texts (golden files of
// tests/corpus/GeneratedTextTest.cpp) do not reach.
#include <gtest/gtest.h>

#include <string>

#include "../corpus/CorpusCase.h"
#include "RecordingInterface.h"
#include "TempDir.h"
#include "base/TextFile.h"
#include "hdl/Netlist.h"
#include "hdl/VhdlFileWriter.h"
#include "hdl/VhdlTextRules.h"

namespace plovix {
namespace {

using testing::RecordingInterface;
using testing::TempDir;

const std::string kHead = "GENERATION: STANDARD\nVERSION: WM1.0\n";

// A description read from CNX text, its netlist and a VHDL writer for the variation "var" signed "top".
struct Sample {
  explicit Sample(const std::string& body) {
    loaded = testing::readCnxText("var", kHead + body, work, ui, description);
    netlist = buildNetlist(description, "top");
  }
  TempDir work;
  RecordingInterface ui;
  CnxDescription description;
  bool loaded = false;
  Netlist netlist;
  VhdlFileWriter writer{ui, "/out/var", "top", description, netlist};
};

// A shape from its four values as written; the texts other than plain numbers go to `texts`.
Shape shape(TextPool& texts, const std::string& w1, const std::string& l1, const std::string& w2,
            const std::string& l2) {
  return Shape{{Bound::fromText(w1, texts), Bound::fromText(l1, texts)},
               {Bound::fromText(w2, texts), Bound::fromText(l2, texts)}};
}

CnxUsedPort port(PortDirection direction, const std::string& w2, DefaultKind kind, const std::string& value,
                 TextPool& texts) {
  CnxUsedPort p;
  p.direction = direction;
  p.shape = shape(texts, "0", "0", w2, "0");
  p.defaultValue = {kind, texts.intern(value)};
  return p;
}

TEST(VhdlTextRules, TypesRangesAndDefaults) {
  TextPool texts;
  EXPECT_EQ(vhdlTypeText(shape(texts, "0", "0", "0", "0")), "STD_LOGIC ");
  EXPECT_EQ(vhdlTypeText(shape(texts, "0", "0", "8", "0")), "STD_LOGIC_VECTOR (7 DOWNTO 0)");
  EXPECT_EQ(vhdlTypeText(shape(texts, "4", "0", "8", "0")), "STD_LOGIC_2D (3 DOWNTO 0, 7 DOWNTO 0)");
  EXPECT_EQ(vhdlTypeText(shape(texts, "0", "9", "4", "2")), "STD_LOGIC_VECTOR (5 DOWNTO 2)");
  EXPECT_EQ(vhdlRangeText(shape(texts, "0", "0", "WIDTH", "0")), "(WIDTH-1 DOWNTO 0)");
  // Odd numbers are repeated as written.
  EXPECT_EQ(vhdlRangeText(shape(texts, "0", "0", "08", "+1")), "(8 DOWNTO +1)");
  EXPECT_EQ(vhdlBitVectorTypeText(shape(texts, "0", "0", "8", "0").bits), "BIT_VECTOR (7 DOWNTO 0)");

  EXPECT_EQ(vhdlDefaultText(port(PortDirection::kInput, "8", DefaultKind::kPower, "VCC", texts)),
            " :=  (OTHERS => '1')");
  EXPECT_EQ(vhdlDefaultText(port(PortDirection::kBidir, "0", DefaultKind::kGround, "GND", texts)), " := '0'");
  EXPECT_EQ(vhdlDefaultText(port(PortDirection::kInput, "0", DefaultKind::kOther, "5", texts)), " := 5");
  EXPECT_EQ(vhdlDefaultText(port(PortDirection::kInput, "0", DefaultKind::kNone, "NODEFVAL", texts)), "");
  EXPECT_EQ(vhdlDefaultText(port(PortDirection::kOutput, "0", DefaultKind::kPower, "VCC", texts)), "");

  EXPECT_STREQ(vhdlDirectionWord(PortDirection::kBidir), "INOUT");
  EXPECT_EQ(vhdlGenericValue({texts.intern("N"), ValueType::kNumeric, texts.intern("8"), {}}), "8");
  EXPECT_EQ(vhdlGenericValue({texts.intern("S"), ValueType::kString, texts.intern("UP"), {}}), "\"UP\"");
  EXPECT_EQ(vhdlIntegerOf(Bound::ofValue(12)), 12);
  EXPECT_EQ(vhdlIntegerOf(Bound::fromText("12x", texts)), 0);
}

// Hand-made netlists for the rules that whole descriptions reach only in odd corners.
struct HandMade {
  TextPool& texts;
  Netlist::Parts parts;

  Name name(const std::string& text) { return texts.intern(text); }

  void fedVariationPort(const std::string& port, const std::string& ownWidth2, const std::string& ownLow2,
                        const std::string& peer, const std::string& peerWidth2, const std::string& peerLow2,
                        const std::string& instance = "", ConversionRole role = ConversionRole::kNone) {
    NetlistConnection c;
    c.ownInstance = name(instance);
    c.ownPort = name(port);
    c.own = shape(texts, "0", "0", ownWidth2, ownLow2);
    c.peerName = name(peer);
    c.peer = shape(texts, "0", "0", peerWidth2, peerLow2);
    c.role = role;
    parts.connections.push_back(c);
  }
  void wire(const std::string& wireName, const std::string& port, const std::string& width2, bool constant,
            const std::string& width1 = "0") {
    NetlistWire w;
    w.name = name(wireName);
    w.drivingPort = name(port);
    w.rowsWidth = Bound::fromText(width1, texts);
    w.bitsWidth = Bound::fromText(width2, texts);
    w.isConstant = constant;
    w.isInverted = !constant;
    parts.wires.push_back(w);
  }
  VhdlNetlist signals() const {
    return VhdlNetlist{Netlist(parts), std::vector<bool>(parts.wires.size(), true), {}};
  }
};

// Assignments from hand-made connections: bit selections on either side, a repeated assignment written once,
// and sub-module ports that the first rule turns around.
TEST(VhdlAssignments, GroupedAssignmentsFromConnections) {
  Sample sample("MODULE: m\n");
  ASSERT_TRUE(sample.loaded);
  TextPool texts;
  HandMade made{texts, {}};
  made.fedVariationPort("y", "4", "3", "bit", "0", "0");
  made.fedVariationPort("y", "4", "2", "bus", "8", "5");
  made.fedVariationPort("z", "0", "0", "w", "0", "0");
  made.fedVariationPort("z", "0", "0", "v", "0", "0");
  made.fedVariationPort("q", "0", "0", "bus", "8", "6");
  made.fedVariationPort("z", "0", "0", "w", "0", "0");
  made.fedVariationPort("z", "0", "0", "v", "0", "0");
  made.fedVariationPort("d", "2", "1", "sub_wire3", "0", "0", "u");
  made.fedVariationPort("d", "2", "1", "sub_wire3", "0", "0", "u", ConversionRole::kRowSide);
  EXPECT_EQ(sample.writer.concurrentAssignmentsText(made.signals()),
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
  TextPool texts;
  HandMade made{texts, {}};
  made.wire("w0", "-1", "40", true);
  made.wire("w1", "300", "4", true);
  made.wire("w2", "VCC", "3", true);
  made.wire("w3", "GND", "2", true);
  made.wire("w4", "VCC", "0", true);
  made.wire("w5", "7", "0", true);
  made.wire("w6", "n", "0", false);
  EXPECT_EQ(sample.writer.concurrentAssignmentsText(made.signals()),
            "\tw0_bv(39 DOWNTO 0) <= \"" + std::string(40, '1') +
                "\";\n\tw0    <= To_stdlogicvector(w0_bv);\n"
                "\tw1_bv(3 DOWNTO 0) <= \"1100\";\n\tw1    <= To_stdlogicvector(w1_bv);\n"
                "\tw2_bv(2 DOWNTO 0) <= \"000\";\n\tw2    <= NOT(To_stdlogicvector(w2_bv));\n"
                "\tw3_bv(1 DOWNTO 0) <= \"00\";\n\tw3    <= To_stdlogicvector(w3_bv);\n"
                "\tw4    <= '1';\n\tw5    <= 7;\n\tw6    <= NOT(n);\n");
}

TEST(VhdlSignals, ProcedureSizedByTheLastTwoDimensionalWire) {
  const std::string type =
      "\ttype STD_LOGIC_2D is array (NATURAL RANGE <>, NATURAL RANGE <>) of STD_LOGIC;\n\n";
  Sample sample("MODULE: m\n");
  ASSERT_TRUE(sample.loaded);
  EXPECT_EQ(sample.writer.twoDimensionalProcedureText(), type);
  TextPool texts;
  HandMade made{texts, {}};
  made.wire("a", "a", "4", false, "2");
  made.wire("b", "b", "0", false, "3");  // no second width: one column
  made.wire("c", "c", "4", false);
  const Netlist netlist(made.parts);
  const VhdlFileWriter writer(sample.ui, "/out/var", "top", sample.description, netlist);
  EXPECT_EQ(writer.twoDimensionalProcedureText(),
            type +
                "\tprocedure conv_2_2d(signal signal_in\t: IN std_logic_vector(2 DOWNTO 0);\n"
                "\t\t\t\t\t\tsignal signal_out\t: OUT std_logic_2d(2 DOWNTO 0, 0 DOWNTO 0)) IS\n"
                "\tBEGIN\n\t\tFOR i IN 0 TO 2 LOOP\n\t\t\tFOR j IN 0 TO 0 LOOP\n"
                "\t\t\t\tsignal_out(i, j) <= signal_in(i * 1 + j);\n\t\t\tEND LOOP;\n\t\tEND LOOP;\n"
                "\tEND conv_2_2d;\n\n");
}

// Widths that are no numbers, negative or far too wide still give a text, and the files are named for VHDL.
TEST(VhdlDesignText, OddWidthsAndTheFilesWritten) {
  Sample sample(
      "MODULE: cnt c\nUSED_PORT: q 0 0 W 0 OUTPUT NODEFVAL\nUSED_PORT: e 0 0 -3 0 INPUT VCC\n"
      "CONNECT: q 0 0 W 0 c@q 0 0 W 0\nCONNECT: c@d 0 0 99999999999 0 5 0 0 0 0\n"
      "CONNECT: c@e 0 0 -3 0 GND 0 0 0 0\nCONNECT: c@f 7 0 x 0 e 0 0 -3 0\n");
  ASSERT_TRUE(sample.loaded);
  const VhdlFileWriter writer(sample.ui, sample.work.path("odd"), "top", sample.description, sample.netlist);
  const std::string text = writer.designText();
  EXPECT_NE(text.find("\tq\t\t: OUT STD_LOGIC_VECTOR (W-1 DOWNTO 0)"), std::string::npos);
  EXPECT_NE(text.find(" <= \"\";\n"), std::string::npos);  // a negative width gives no bits
  EXPECT_LT(text.size(), 1u << 22);                        // nor does a huge one give gigabytes
  EXPECT_EQ(writer.designText(), text);                    // the text depends on its inputs only

  EXPECT_TRUE(writer.writeDesignFile());
  EXPECT_TRUE(writer.writeCompanionFile());
  EXPECT_TRUE(writer.writeInstanceFile());
  EXPECT_EQ(sample.work.read("odd.cmp"), toTextMode(writer.buildCompanionText()));
  EXPECT_EQ(sample.work.read("odd_inst.vhd"), toTextMode(writer.buildInstanceText()));
  EXPECT_EQ(sample.work.read("odd.vhd").rfind(toTextMode(text), 0), 0u);
}

}  // namespace
}  // namespace plovix
