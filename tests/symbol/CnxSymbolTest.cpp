// Symbols of descriptions read from CNX texts: the reader's records reach the builder unchanged.
#include <gtest/gtest.h>

#include <algorithm>

#include "GioTraceCapture.h"
#include "RecordingInterface.h"
#include "cnx/CnxReader.h"
#include "symbol/SymbolBuilder.h"

namespace plovix {
namespace {

using Lines = std::vector<std::string>;

// Reads `cnx` and builds its symbol "var"; the traced calls.
Lines symbolCallsOf(testing::GioTraceCapture& trace, const std::string& cnx) {
  testing::TempDir temp;
  temp.write("var.cnx", cnx);
  testing::RecordingInterface ui;
  CnxReader reader(ui, temp.path("var.cnx"));
  EXPECT_TRUE(reader.read()) << (ui.boxes.empty() ? "" : ui.boxes.front());
  const CnxDescription description = reader.takeDescription();
  EXPECT_TRUE(SymbolBuilder(ui, trace.dir() + "var", description).buildSymbol());
  return trace.take();
}

bool has(const Lines& lines, const std::string& line) {
  return std::find(lines.begin(), lines.end(), line) != lines.end();
}

TEST(CnxSymbol, PortsReadFromTheDescriptionBecomeTheAutomaticPins) {
  testing::GioTraceCapture trace;
  const Lines calls = symbolCallsOf(trace,
                                    "GENERATION: STANDARD\nVERSION: WM1.0\nMODULE: pvx_counter\n"
                                    "PARAMETER: WIDTH NUMERIC 8\n"
                                    "USED_PORT: clock 0 0 0 0 INPUT NODEFVAL\n"
                                    "USED_PORT: q 0 0 8 0 OUTPUT NODEFVAL\n");
  ASSERT_EQ(calls.size(), 4u);
  EXPECT_EQ(calls[1], "gio_sym_add_pin_stub_w_alt_text(\"\", \"clock\", 2, 1) -> 1");
  EXPECT_EQ(calls[2], "gio_sym_add_pin_stub_w_alt_text(\"\", \"q[7..0]\", 3, 1) -> 1");
  EXPECT_EQ(calls[3], "gio_sym_auto_gen_sym_w_params_w_alt_text(1, \"WIDTH=8\") -> 1");
}

// The label given as "" is empty: the pin's name becomes the hidden text. A label left out is the name.
TEST(CnxSymbol, SymbolLinesDrawTheSymbolWithHiddenAndShownPinNames) {
  testing::GioTraceCapture trace;
  const Lines calls = symbolCallsOf(trace,
                                    "GENERATION: STANDARD\nVERSION: WM1.0\nMODULE: m\n"
                                    "SYMBOL: RECT 16 16 80 64\n"
                                    "SYMBOL: PINSTUB 0 32 IN rst 18 26 \"\"\n"
                                    "SYMBOL: PINSTUB 96 32 OUT q 60 26\n"
                                    "SYMBOL: BOX 96 80 16 0\n");
  EXPECT_TRUE(has(calls, "gio_text_set_text(1, 7, 5, \"rst\") -> 1"));
  EXPECT_TRUE(has(calls, "gio_text_set_attr_display(1, 7, 5, 0) -> 1"));
  EXPECT_TRUE(has(calls, "gio_text_set_alt_text(1, 7, 5, \"rst\") -> 1"));
  EXPECT_TRUE(has(calls, "gio_text_set_text(1, 7, 6, \"q\") -> 1"));
  EXPECT_TRUE(has(calls, "gio_obj_set_visible_status(1, 7, 6, 0) -> 1"));
  EXPECT_TRUE(has(calls, "gio_text_create_pinstub(1, 7, 6, (96, 32), 0) -> 1"));
  EXPECT_TRUE(has(calls, "gio_db_set_sheet_size(1, (96, 80)) -> 1"));
  EXPECT_TRUE(has(calls, "gio_text_set_text(1, 7, 7, \"var\") -> 1"));
  const std::string sym = trace.read("var.sym");
  EXPECT_NE(sym.find("display=0 edit=0 color=0 zoom=0 orientation=0 visible-status=0 font-string=\"Arial,8\" "
                     "text=\"rst\" alt-text=\"rst\" pin=0,32\n"),
            std::string::npos)
      << sym;
}

}  // namespace
}  // namespace plovix
