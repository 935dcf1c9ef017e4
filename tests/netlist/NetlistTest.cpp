// The connection netlist: shared and constant wires, inverted ends, widened ports, rows, sub-module ports.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "../corpus/CorpusCase.h"
#include "RecordingInterface.h"
#include "TempDir.h"
#include "hdl/HdlFileWriter.h"

namespace plovix {
namespace {

using testing::RecordingInterface;
using testing::TempDir;

// A writer with no texts of its own, to reach the netlist operations.
class NetlistWriter : public HdlFileWriter {
 public:
  using HdlFileWriter::HdlFileWriter;
  std::string buildDesignText() override { return {}; }
  std::string buildCompanionText() override { return {}; }
  std::string buildInstanceText() override { return {}; }
};

const char* const kHead = "GENERATION: STANDARD\nVERSION: WM1.0\n";

class NetlistTest : public ::testing::Test {
 protected:
  // Reads a description body (after the generation and version lines) and makes the writer.
  NetlistWriter& read(const std::string& body, const std::string& signature = "pvx_counter") {
    EXPECT_TRUE(testing::readCnxText("v", kHead + body, work_, ui_, description_)) << work_.read("v.cnxerr");
    writer_.emplace(ui_, work_.path("v"), signature, description_);
    return *writer_;
  }
  NetlistWriter& readCorpus(const std::string& name) {
    EXPECT_TRUE(testing::readCorpusCase(name, work_, ui_, description_));
    writer_.emplace(ui_, work_.path(name), testing::kCorpusSignature, description_);
    return *writer_;
  }
  const NetlistConnection* connectionTo(const std::string& instance, const std::string& port) {
    for (const NetlistConnection& c : writer_->connections) {
      if (c.ownInstance == instance && c.ownPort == port) return &c;
    }
    return nullptr;
  }

  TempDir work_;
  RecordingInterface ui_;
  CnxDescription description_;
  std::optional<NetlistWriter> writer_;
};

TEST_F(NetlistTest, OneDrivingSliceFeedingTwoPortsSharesOneWire) {
  NetlistWriter& w = readCorpus("two_modules");
  w.buildNetlist();
  ASSERT_EQ(w.wires.size(), 2u);
  const NetlistWire& shared = w.wires[0];
  EXPECT_EQ(shared.name, "sub_wire0");
  EXPECT_EQ(shared.sourceKey, "cnt_component.q[3:0]");
  EXPECT_EQ(shared.useCount, 2);
  EXPECT_EQ(w.wires[1].name, "sub_wire1");
  EXPECT_EQ(w.wireCounter, 2);
  EXPECT_EQ(connectionTo("shf", "data")->peerName, "sub_wire0");
  // Every driving end is now a port or a wire.
  for (const NetlistConnection& c : w.connections) {
    EXPECT_TRUE(c.peerInstance.empty() && !c.peerInverted && !c.peerIsConstant) << c.ownPort;
  }
}

TEST_F(NetlistTest, ConstantsTakeTheShapeOfTheDrivenPort) {
  NetlistWriter& w = read("MODULE: m\nCONNECT: m@d 0 0 8 0 GND 0 0 0 0\nCONNECT: m@e 0 0 8 0 GND 0 0 0 0\n");
  w.buildNetlist();
  ASSERT_EQ(w.wires.size(), 1u);
  EXPECT_EQ(w.wires[0].sourceKey, "GND[7:0]");
  EXPECT_EQ(w.wires[0].drivingPort, "GND");
  EXPECT_EQ(w.wires[0].width2, "8");
  EXPECT_TRUE(w.wires[0].isConstant);
  const CnxConnectionEnd& end = description_.connectionMap.find("m")->find("d")->front();
  EXPECT_EQ(end.peerWidth2, "8");
  EXPECT_EQ(connectionTo("m", "d")->peerRange2, "[7:0]");
}

TEST_F(NetlistTest, AnInvertedPortGetsItsOwnWireBesideThePlainUse) {
  NetlistWriter& w = read(
      "MODULE: m\nCONNECT: m@a 0 0 0 0 a 0 0 0 0\nCONNECT: m@b 0 0 0 0 !a 0 0 0 0\n"
      "CONNECT: m@c 0 0 0 0 !a 0 0 0 0\n");
  w.buildNetlist();
  ASSERT_EQ(w.wires.size(), 1u);
  EXPECT_EQ(w.wires[0].sourceText, "a");
  EXPECT_EQ(w.wires[0].sourceKey, "!a");
  EXPECT_TRUE(w.wires[0].isInverted);
  EXPECT_EQ(connectionTo("m", "a")->peerName, "a");
  EXPECT_EQ(connectionTo("m", "c")->peerName, w.wires[0].name);
}

TEST_F(NetlistTest, WithoutConnectionsOnlyTheSentinelIsThere) {
  NetlistWriter& w = read("MODULE: m\nUSED_PORT: a 0 0 0 0 INPUT NODEFVAL\n");
  w.buildNetlist();
  EXPECT_TRUE(w.wires.empty());
  ASSERT_EQ(w.connections.size(), 1u);
  EXPECT_TRUE(w.connections[0].ownPort.empty() && w.connections[0].peerName.empty());
  EXPECT_EQ(w.connections[0].ownWidth1, "0");
}

// Slices of one variation port feeding parts of a sub-module port travel on one wire of the port's width.
TEST_F(NetlistTest, SlicesOfAnInputShareOneWideWire) {
  NetlistWriter& w = read(
      "MODULE: m\nUSED_PORT: x 0 0 8 0 INPUT NODEFVAL\n"
      "CONNECT: m@d 0 0 2 2 x 0 0 4 4\nCONNECT: m@d 0 0 2 0 x 0 0 4 2\n");
  w.buildNetlist();
  ASSERT_EQ(w.wires.size(), 1u);
  EXPECT_EQ(w.wires[0].width2, "8");
  ASSERT_EQ(w.connections.size(), 3u);
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(w.connections[i].peerName, w.wires[0].name);
    EXPECT_EQ(w.connections[i].peerWidth2, "8");
    EXPECT_EQ(w.connections[i].peerRange2, "[7:0]");
  }
}

// Two rows of a two-dimensional port: a flat-side record joins the rows, a row-side record feeds the port.
TEST_F(NetlistTest, RowsOfATwoDimensionalPortArePacked) {
  NetlistWriter& w = readCorpus("rows_2d");
  w.buildNetlist();
  EXPECT_EQ(w.netlistFlag, 1);
  int flat = 0, row = 0;
  for (const NetlistConnection& c : w.connections) {
    if (c.conversionRole == kConversionFlatSide) {
      ++flat;
      EXPECT_EQ(c.ownPort, "sub_wire1 & sub_wire4");
      EXPECT_EQ(c.ownRange2, "[8:0]");
      EXPECT_EQ(c.peerName, "sub_wire2");
    } else if (c.conversionRole == kConversionRowSide) {
      ++row;
      EXPECT_EQ(c.ownInstance, "m");
      EXPECT_EQ(c.ownPort, "data");
      EXPECT_EQ(c.peerName, "sub_wire3");
      EXPECT_EQ(c.ownWidth1, "2");  // exchanged with the peer's width at the end
      EXPECT_EQ(c.peerWidth1, "0");
      EXPECT_EQ(c.peerRange1, "[1:0]");
    }
  }
  EXPECT_EQ(flat, 1);
  EXPECT_EQ(row, 1);
  // The row records themselves now assign the row wires from the variation ports.
  const NetlistConnection* first = connectionTo("", "sub_wire1");
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(first->peerName, "d1");
  ASSERT_NE(connectionTo("", "sub_wire4"), nullptr);
  EXPECT_EQ(w.wires[3].width1, "2");
  EXPECT_EQ(w.wires[3].width2, "4");
}

TEST_F(NetlistTest, NewWiresAreNumberedWithoutGaps) {
  NetlistWriter& w = read("MODULE: m\n");
  EXPECT_EQ(w.newWire("", "k", "p", "0", "0", false, false), "");
  EXPECT_EQ(w.newWire("a", "a", "a", "0", "0", false, false), "sub_wire0");
  EXPECT_EQ(w.newWire("b", "b", "b", "0", "4", false, false), "sub_wire1");
  EXPECT_EQ(w.wires.size(), 2u);
  EXPECT_EQ(w.wires[1].useCount, 1);
}

// A single bit driving a bus takes the bus's widths; inverted, the inverting wire is fed by the plain one.
TEST_F(NetlistTest, OneBitDrivingABus) {
  NetlistWriter& w = read("MODULE: m\n");
  NetlistConnection c;
  c.ownInstance = "m";
  c.ownPort = "d";
  c.ownWidth2 = "4";
  c.peerName = "a";
  EXPECT_EQ(w.wireForBitToBus(c), "sub_wire0");
  EXPECT_EQ(w.wires[0].width2, "4");
  c.peerInstance = "n";
  c.peerInverted = true;
  c.peerWidth2 = "1";
  c.peerRange2 = "[3:3]";
  EXPECT_EQ(w.wireForBitToBus(c), "sub_wire2");
  ASSERT_EQ(w.wires.size(), 3u);
  EXPECT_EQ(w.wires[1].sourceKey, "n_component.a[3:3]");
  EXPECT_EQ(w.wires[1].width2, "4");
  EXPECT_EQ(w.wires[2].sourceText, "sub_wire1[3:3]");
  EXPECT_EQ(w.wires[2].sourceKey, "!n_component.a[3:3]");
  EXPECT_EQ(w.wires[2].drivingPort, "sub_wire1");
  EXPECT_EQ(w.wires[2].width2, "1");
  EXPECT_EQ(w.wireForBitToBus(c), "sub_wire2");
  EXPECT_EQ(w.wires[2].useCount, 2);
}

TEST_F(NetlistTest, MainModuleWiresTakeThePortsWidths) {
  NetlistWriter& w = read("MODULE: m\nUSED_PORT: @q 0 0 8 0 OUTPUT NODEFVAL\n", "Pvx_Counter");
  w.newWire("x", "pvx_counter_component.q[3:0]", "q", "0", "4", false, false);
  w.newWire("y", "Pvx_Counter_component.q[3:0]", "q", "0", "4", false, false);
  EXPECT_TRUE(w.fixMainModuleWire(w.wires[0]));
  EXPECT_EQ(w.wires[0].width2, "8");
  EXPECT_EQ(w.wires[0].sourceKey, "pvx_counter_component.q[7:0]");
  EXPECT_EQ(w.wires[0].sourceText, "pvx_counter_component.q[7:0]");
  // The comparison text is lower case; a key that is not does not match.
  EXPECT_FALSE(w.fixMainModuleWire(w.wires[1]));
}

// The side index must give what a scan from the front gives, also after keys changed.
TEST_F(NetlistTest, FindWireGivesTheFirstWireWithTheKey) {
  NetlistWriter& w = read("MODULE: m\nUSED_PORT: @q 0 0 8 0 OUTPUT NODEFVAL\n");
  w.newWire("s", "pvx_counter_component.q[3:0]", "q", "0", "4", false, false);
  w.newWire("t", "pvx_counter_component.q[7:0]", "q", "0", "8", false, false);
  EXPECT_EQ(w.findWire("pvx_counter_component.q[7:0]")->name, "sub_wire1");
  ASSERT_TRUE(w.fixMainModuleWire(w.wires[0]));
  EXPECT_EQ(w.findWire("pvx_counter_component.q[7:0]")->name, "sub_wire0");
  EXPECT_EQ(w.findWire("pvx_counter_component.q[3:0]"), nullptr);
  NetlistWire appended;
  appended.sourceKey = "late";
  appended.name = "late_wire";
  w.wires.push_back(appended);
  EXPECT_EQ(w.findWire("late")->name, "late_wire");
  // A writer that empties its lists and builds again finds the new wires, not the old ones.
  w.wires.clear();
  for (const char* key : {"n0", "n1", "n2", "n3"}) w.newWire(key, key, key, "0", "0", false, false);
  ASSERT_NE(w.findWire("n0"), nullptr);
  EXPECT_EQ(w.findWire("n0")->name, "sub_wire2");
  EXPECT_EQ(w.findWire("late"), nullptr);
}

TEST_F(NetlistTest, SubModulePortsMergeDirectionsAndBounds) {
  NetlistWriter& w = read(
      "MODULE: pvx_counter a\nMODULE: pvx_counter b\n"
      "USED_PORT: io 0 0 0 0 BIDIR NODEFVAL\nUSED_PORT: @d 0 0 16 0 INPUT NODEFVAL\n"
      "CONNECT: a@d 0 0 4 4 x 0 0 4 0\nCONNECT: b@d 0 0 2 0 y 0 0 2 0\n"
      "CONNECT: z 0 0 0 0 a@d 0 0 0 0\nCONNECT: a@e 0 0 0 0 w 0 0 0 0\n"
      "CONNECT: io 0 0 0 0 b@f 0 0 0 0\n",
      "PVX_counter");
  w.buildSubModulePorts();
  ASSERT_EQ(w.subModulePorts.size(), 3u);
  const SubModulePort* d = nullptr;
  for (const SubModulePort& p : w.subModulePorts) {
    if (p.portName == "d") d = &p;
    if (p.portName == "e") {
      EXPECT_EQ(p.directionWord, "IN");
    } else if (p.portName == "f") {
      EXPECT_EQ(p.directionWord, "INOUT");  // it drives a bidirectional port
    }
    if (p.portName != "d") {
      EXPECT_TRUE(p.scalar);
    }
  }
  ASSERT_NE(d, nullptr);
  EXPECT_EQ(d->directionWord, "INOUT");  // driven and driving
  EXPECT_FALSE(d->scalar);
  // The main module's "@" port gives the widths in the end.
  EXPECT_EQ(d->width2, "16");
  EXPECT_EQ(d->low2, "0");
}

// A merge changes a stored bound only for a strictly larger width or a strictly smaller low index, so a
// symbolic low index survives a tie with a number, and building again changes nothing.
TEST_F(NetlistTest, SubModulePortBoundsKeepTheirTextOnATie) {
  NetlistWriter& w = read(
      "MODULE: pvx_reg\nMODULE: pvx_reg r2\nUSED_PORT: d 0 0 8 0 INPUT NODEFVAL\n"
      "CONNECT: @data 0 0 8 BASE d 0 0 8 0\nCONNECT: r2@data 0 0 8 0 d 0 0 8 0\n"
      "CONNECT: r2@data 0 0 4 BASE d 0 0 4 0\n");
  w.buildSubModulePorts();
  ASSERT_EQ(w.subModulePorts.size(), 1u);
  EXPECT_EQ(w.subModulePorts[0].width2, "8");
  EXPECT_EQ(w.subModulePorts[0].low2, "BASE");
  w.buildSubModulePorts();
  ASSERT_EQ(w.subModulePorts.size(), 1u);
  EXPECT_EQ(w.subModulePorts[0].low2, "BASE");
}

}  // namespace
}  // namespace plovix
