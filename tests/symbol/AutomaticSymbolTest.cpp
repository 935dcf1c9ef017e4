// Tests of the automatic symbol: the calls the builder makes, the pin names and parameter text it hands
// over, and the symbol file the drawing library lays out.
#include <gtest/gtest.h>

#include "../corpus/CorpusCase.h"
#include "GioTraceCapture.h"
#include "RecordingInterface.h"
#include "symbol/AutomaticSymbol.h"
#include "symbol/SymbolBuilder.h"

namespace plovix {
namespace {

using Lines = std::vector<std::string>;

// The description of a CNX body; the samples have no MODULE: line, which the symbol does not need.
CnxDescription descriptionOf(const std::string& body) {
  testing::TempDir work;
  testing::RecordingInterface ui;
  CnxDescription d;
  testing::readCnxText("v", "GENERATION: STANDARD\nVERSION: WM1.0\n" + body, work, ui, d);
  return d;
}

// A register: data[7..0] in, q[7..0] out, WIDTH=8 and a DIRECTION without a default.
CnxDescription registerDescription() {
  return descriptionOf(
      "USED_PORT: data 8 0 0 0 INPUT NODEFVAL\nUSED_PORT: q 8 0 0 0 OUTPUT NODEFVAL\n"
      "PARAMETER: WIDTH NUMERIC 8\nPARAMETER: DIRECTION NUMERIC NODEFVAL\n");
}

TEST(AutomaticSymbol, RegisterGivesItsPinsInOrderAndTheParameterText) {
  testing::GioTraceCapture trace;
  testing::RecordingInterface ui;
  const CnxDescription d = registerDescription();
  EXPECT_TRUE(SymbolBuilder(ui, trace.dir() + "reg8", d).buildSymbol());
  EXPECT_EQ(trace.take(), (Lines{
                              "gio_sym_auto_gen_begin(ctx, \"" + trace.dir() + "reg8.sym\", 0) -> 1",
                              "gio_sym_add_pin_stub_w_alt_text(\"\", \"data[7..0]\", 2, 1) -> 1",
                              "gio_sym_add_pin_stub_w_alt_text(\"\", \"q[7..0]\", 3, 1) -> 1",
                              "gio_sym_auto_gen_sym_w_params_w_alt_text(1, \"WIDTH=8\\nDIRECTION=\") -> 1",
                          }));
  EXPECT_TRUE(ui.boxes.empty());
  EXPECT_NE(trace.read("reg8.sym").find("text=\"data[7..0]\""), std::string::npos);
}

TEST(AutomaticSymbol, PinNamesCarryBothRangesAndTypesFollowTheDirection) {
  testing::GioTraceCapture trace;
  testing::RecordingInterface ui;
  const CnxDescription d = descriptionOf(
      "USED_PORT: clk 0 0 0 0 INPUT NODEFVAL CLOCK\nUSED_PORT: m 4 2 3 0 INPUT NODEFVAL\n"
      "USED_PORT: io 2 1 0 0 BIDIR NODEFVAL\nUSED_PORT: y 0 0 WIDTH 0 OUTPUT NODEFVAL\n"
      "USED_PORT: @inner 0 0 0 0 INPUT NODEFVAL\n");
  SymbolBuilder(ui, trace.dir() + "mix", d).buildSymbol();
  const Lines lines = trace.take();
  ASSERT_EQ(lines.size(), 6u);
  EXPECT_EQ(lines[1], "gio_sym_add_pin_stub_w_alt_text(\"CLOCK\", \"clk\", 2, 1) -> 1");
  EXPECT_EQ(lines[2], "gio_sym_add_pin_stub_w_alt_text(\"\", \"m[5..2][2..0]\", 2, 1) -> 1");
  EXPECT_EQ(lines[3], "gio_sym_add_pin_stub_w_alt_text(\"\", \"io[2..1]\", 4, 1) -> 1");
  EXPECT_EQ(lines[4], "gio_sym_add_pin_stub_w_alt_text(\"\", \"y[WIDTH-1..0]\", 3, 1) -> 1");
  EXPECT_EQ(lines[5], "gio_sym_auto_gen_sym_w_params_w_alt_text(1, \"\") -> 1");
}

TEST(AutomaticSymbol, ParameterText) {
  EXPECT_EQ(parameterTextOf(CnxDescription{}), "");
  EXPECT_EQ(parameterTextOf(descriptionOf("PARAMETER: A NUMERIC\nPARAMETER: B NUMERIC nodefval\n")),
            "A=\nB=nodefval");
}

// A directory that does not exist makes the drawing library report an error; the instance is given back and
// the remaining calls go to instance 0, which writes nothing.
TEST(AutomaticSymbol, ErrorWhileStartingLeavesNoInstanceAndNoFile) {
  testing::GioTraceCapture trace;
  testing::RecordingInterface ui;
  const CnxDescription d = registerDescription();
  EXPECT_FALSE(SymbolBuilder(ui, trace.dir() + "missing/reg8", d).buildSymbol());
  const Lines lines = trace.take();
  ASSERT_EQ(lines.size(), 5u);
  EXPECT_EQ(lines[1], "gio_db_delete_instance(1, 0) -> 1");
  EXPECT_EQ(lines[2], "gio_sym_add_pin_stub_w_alt_text(\"\", \"data[7..0]\", 2, 0) -> 0");
  EXPECT_EQ(lines[4], "gio_sym_auto_gen_sym_w_params_w_alt_text(0, \"WIDTH=8\\nDIRECTION=\") -> 0");
  EXPECT_TRUE(ui.boxes.empty());
}

// The layout at "Arial,8" (11-pixel characters, 13-pixel lines): the name above the box, the input's stub on
// the left and the output's on the right of a 112 by 32 box at (32, 32), the parameters below it.
TEST(AutomaticSymbol, LayoutPlacesPinsBoxAndParameters) {
  testing::GioTraceCapture trace;
  testing::RecordingInterface ui;
  const CnxDescription d = registerDescription();
  SymbolBuilder(ui, trace.dir() + "reg8", d).buildSymbol();
  const std::string sym = trace.read("reg8.sym");
  const char* expected[] = {
      "drawing kind=1 name=\"reg8\" version=6 sheet-name=68 modified=0 source-type=2 source-id=0 "
      "command-status=0 unit-mode=1 sheet-size=176,106\n",
      "line type=2 from=32,32 to=144,32 dots=0,0 style=0 width=1\n",
      "line type=3 from=144,32 to=144,64 dots=0,0 style=0 width=1\n",
      "line type=2 from=8,48 to=32,48 dots=0,0 style=5 width=0\n",
      "text start=38,42 size=47,13 type=2 ",
      "text=\"data[7..0]\" alt-text=\"\" pin=8,48\n",
      "line type=2 from=168,48 to=144,48 dots=0,0 style=5 width=0\n",
      "text start=107,42 size=31,13 type=3 ",
      "text=\"q[7..0]\" alt-text=\"\" pin=168,48\n",
      "text start=32,72 size=63,26 type=55 font=4 display=1 edit=1 ",
      "text=\"WIDTH=8\\nDIRECTION=\"",
  };
  for (const char* piece : expected) EXPECT_NE(sym.find(piece), std::string::npos) << piece << "\n" << sym;
  EXPECT_EQ(sym.rfind("PLOVIX-SYM 1\n", 0), 0u);
  EXPECT_EQ(sym.substr(sym.size() - 4), "end\n");
}

}  // namespace
}  // namespace plovix
