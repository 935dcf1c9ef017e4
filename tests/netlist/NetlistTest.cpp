// The connection netlist: which driving ends get wires, how wires are shared and named, constants, inverted
// ends, widened variation ports, packed rows, merged sub-module ports and the main-module widening.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include "../corpus/CorpusCase.h"
#include "CnxTexts.h"
#include "Golden.h"
#include "RecordingInterface.h"
#include "TempDir.h"
#include "hdl/MainModuleWires.h"
#include "hdl/Netlist.h"

namespace plovix {
namespace {

using testing::RecordingInterface;
using testing::TempDir;

std::string join(const std::vector<std::string>& texts) {
  std::string out;
  for (const std::string& text : texts) out += (out.empty() ? "" : " ") + text;
  return out;
}

// One line per wire: name, key, source text (when it differs), driving port, widths, uses, kind.
std::string wiresOf(const Netlist& netlist) {
  std::string out;
  for (const NetlistWire& w : netlist.wires()) {
    out += w.name.str() + " " + w.sourceKey.str();
    if (w.sourceText != w.sourceKey) out += " from " + w.sourceText.str();
    out += " port " + w.drivingPort.str() + " " + w.rowsWidth.text() + "/" + w.bitsWidth.text() + " x" +
           std::to_string(w.useCount) + (w.isConstant ? " constant" : "") +
           (w.isInverted ? " inverted" : "") + "\n";
  }
  return out;
}

// One line per connection: the driven end and its shape, what drives it with its shape and range texts.
std::string connectionsOf(const Netlist& netlist) {
  std::string out;
  for (const NetlistConnection& c : netlist.connections()) {
    out += c.ownInstance.str() + "." + c.ownPort.str() + " (" + join(testing::textsOf(c.own)) + ") <- " +
           c.peerName.str() + " (" + join(testing::textsOf(c.peer)) + ") " + c.peerRowsRange.str() +
           c.peerBitsRange.str();
    if (c.role != ConversionRole::kNone)
      out += c.role == ConversionRole::kRowSide ? " row side" : " flat side";
    out += "\n";
  }
  return out;
}

std::string subModulePortsOf(const Netlist& netlist) {
  std::string out;
  for (const SubModulePort& p : netlist.subModulePorts()) {
    out += p.moduleName.str() + "." + p.portName.str() + " " + join(testing::textsOf(p.shape)) + " " +
           subModuleDirectionWord(p.direction) + (p.scalar ? " scalar" : "") + "\n";
  }
  return out;
}

struct Built {
  CnxDescription description;
  Netlist netlist;
};

Built build(const std::string& body, const std::string& signature = "pvx_counter") {
  TempDir work;
  RecordingInterface ui;
  Built built;
  EXPECT_TRUE(
      testing::readCnxText("v", "GENERATION: STANDARD\nVERSION: WM1.0\n" + body, work, ui, built.description))
      << work.read("v.cnxerr");
  built.netlist = buildNetlist(built.description, signature);
  return built;
}

// What each kind of driving end becomes (data/*.cnx, each saying its rule; golden data/*.netlist). Wires are
// numbered in the order they are made, without gaps.
std::vector<std::string> sampleNames() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(PLOVIX_TEST_DATA_DIR)) {
    if (entry.path().extension() == ".cnx") names.push_back(entry.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

class NetlistSample : public ::testing::TestWithParam<std::string> {};

TEST_P(NetlistSample, DrivingEndsBecomeWires) {
  const std::string file = std::string(PLOVIX_TEST_DATA_DIR) + "/" + GetParam();
  const std::string cnx = TempDir::readFile(file + ".cnx");
  const Built built = build(cnx.substr(cnx.find('\n', cnx.find('\n') + 1) + 1));
  const std::string connections = connectionsOf(built.netlist);
  testing::expectGolden("-- wires\n" + wiresOf(built.netlist) + "-- connections\n" + connections +
                            "-- sub-module ports\n" + subModulePortsOf(built.netlist),
                        file + ".netlist");
  EXPECT_EQ(built.netlist.packsRows(), connections.find("flat side") != std::string::npos);
  EXPECT_EQ(built.netlist.nextWireNumber(), static_cast<int32_t>(built.netlist.wires().size()));
}

INSTANTIATE_TEST_SUITE_P(Samples, NetlistSample, ::testing::ValuesIn(sampleNames()),
                         [](const auto& info) { return info.param; });

// The index of keys gives the first wire made for a key; an adjusted netlist's keys are its own.
TEST(NetlistTest, WiresAreFoundByTheirKeys) {
  const Built built = build("MODULE: m\nCONNECT: m@a 0 0 8 0 n@q 0 0 8 0\nCONNECT: m@b 0 0 0 0 !x 0 0 0 0\n");
  ASSERT_NE(built.netlist.findWire("n_component.q[7:0]"), nullptr);
  EXPECT_EQ(built.netlist.findWire("n_component.q[7:0]")->useCount, 1);
  EXPECT_EQ(built.netlist.findWire("!x")->sourceText, "x");
  EXPECT_EQ(built.netlist.findWire("x"), nullptr);
  EXPECT_EQ(built.netlist.findWire("n_component.q"), nullptr);
}

// Ports of every instance of a module merge: a driven and driving port is INOUT, and so is a port that
// drives a bidirectional variation port; a bound changes only for a strictly larger width or a strictly
// smaller low index (so a symbolic BASE survives a tie with 0); the modulon's own "@" ports give theirs.
TEST(NetlistTest, SubModulePortsMergeOverInstances) {
  const Built built = build(
      "MODULE: pvx_counter\nMODULE: pvx_counter b\nMODULE: pvx_reg r\n"
      "USED_PORT: io 0 0 0 0 BIDIR NODEFVAL\nUSED_PORT: @d 0 0 16 0 INPUT NODEFVAL\n"
      "CONNECT: @d 0 0 4 4 x 0 0 4 0\nCONNECT: b@d 0 0 2 0 y 0 0 2 0\nCONNECT: z 0 0 0 0 @d 0 0 0 0\n"
      "CONNECT: @e 0 0 0 0 w 0 0 0 0\nCONNECT: io 0 0 0 0 b@f 0 0 0 0\n"
      "CONNECT: r@data 2 1 8 BASE v 2 0 8 0\nCONNECT: r@data 2 0 W 0 v 2 0 8 0\n",
      "PVX_counter");
  EXPECT_EQ(subModulePortsOf(built.netlist),
            "pvx_counter.d 0 0 16 0 INOUT\n"
            "pvx_counter.e 0 0 0 0 IN scalar\n"
            "pvx_counter.f 0 0 0 0 INOUT scalar\n"
            "pvx_reg.data 3 0 8 BASE IN\n");
}

TEST(NetlistTest, MainModuleWiresWidenToTheirPort) {
  const Built built =
      build("MODULE: m\nUSED_PORT: @q 0 0 8 0 OUTPUT NODEFVAL\nUSED_PORT: @r 1 0 4 0 OUTPUT x\n");
  const MainModuleWidening widening(built.description, "Pvx_Counter");
  TextPool texts;
  struct Probe {
    std::string key;
    bool widened;
    std::string widenedKey;
  };
  // The modulon's name and the port are compared in lower case with the key cut before its first "[".
  const Probe probes[] = {{"pvx_counter_component.q[3:0]", true, "pvx_counter_component.q[7:0]"},
                          {"pvx_counter_component.r", true, "pvx_counter_component.r[0:0][3:0]"},
                          {"Pvx_Counter_component.q[3:0]", false, ""},
                          {"!pvx_counter_component.q", false, ""}};
  for (const Probe& probe : probes) {
    SCOPED_TRACE(probe.key);
    NetlistWire wire;
    wire.sourceKey = texts.intern(probe.key);
    EXPECT_EQ(widening.widen(wire, texts), probe.widened);
    if (!probe.widened) continue;
    EXPECT_EQ(wire.sourceKey, probe.widenedKey);
    EXPECT_EQ(wire.sourceText, probe.widenedKey);
  }
}

}  // namespace
}  // namespace plovix
