// Tests of the drawn symbol: the exact calls made for each kind of symbol element.
#include <gtest/gtest.h>

#include "GioTraceCapture.h"
#include "RecordingInterface.h"
#include "symbol/SymbolBuilder.h"

namespace plovix {
namespace {

using Lines = std::vector<std::string>;

// Builds a drawn symbol "sym" from `elements`, checks the calls that open and close every drawn symbol, and
// returns the calls in between.
Lines drawnCalls(std::vector<SymbolElement> elements) {
  testing::GioTraceCapture trace;
  testing::RecordingInterface ui;
  CnxDescription d;
  d.defaultSymbolBox = false;
  d.symbolElements = std::move(elements);
  EXPECT_TRUE(SymbolBuilder(ui, trace.dir() + "sym", d).buildSymbol());
  EXPECT_TRUE(ui.boxes.empty());
  Lines lines = trace.take();
  const Lines opening = {
      "gio_db_create_instance(1, ctx, 0) -> 1",
      "gio_db_set_drawing_name(1, \"" + trace.dir() + "sym.sym\") -> 1",
      "gio_db_set_file_version(1, 6) -> 1",
      "gio_db_set_sheet_name(1, 68) -> 1",
      "gio_db_set_modified_flag(1, 0) -> 1",
      "gio_db_set_source_type(1, 2) -> 1",
      "gio_db_set_source_id(1, 0) -> 1",
      "gio_db_set_command_status(1, 0) -> 1",
      "gio_db_set_unit_mode(1, 1) -> 1",
  };
  const Lines closing = {"gio_write_drawing(1) -> 1", "gio_db_delete_instance(1, 0) -> 1"};
  if (lines.size() < opening.size() + closing.size()) {
    ADD_FAILURE() << "too few calls: " << lines.size();
    return {};
  }
  EXPECT_EQ(Lines(lines.begin(), lines.begin() + opening.size()), opening);
  EXPECT_EQ(Lines(lines.end() - closing.size(), lines.end()), closing);
  EXPECT_FALSE(trace.read("sym.sym").empty());
  return Lines(lines.begin() + opening.size(), lines.end() - closing.size());
}

SymbolElement line(int x1, int y1, int x2, int y2, std::string style, std::string width, bool isRect) {
  return {SymbolKind::kLine, SymbolLine{x1, y1, x2, y2, std::move(style), std::move(width), isRect}};
}

SymbolElement text(std::string content, int x, int y, std::string orientation, std::string font) {
  return {SymbolKind::kText,
          SymbolText{std::move(content), "", x, y, std::move(orientation), std::move(font), ""}};
}

// The calls of one segment: record `rec` of `type` from (a, b) to (c, d).
Lines segment(int type, int rec, int a, int b, int c, int d, int style, int width) {
  const std::string head = std::to_string(type) + ", " + std::to_string(rec);
  auto pt = [](int x, int y) { return "(" + std::to_string(x) + ", " + std::to_string(y) + ")"; };
  return {"gio_rec_create(1, " + std::to_string(type) + ") -> " + std::to_string(rec),
          "gio_line_set_points(1, " + head + ", " + pt(a, b) + ", " + pt(c, d) + ") -> 1",
          "gio_line_set_dots(1, " + head + ", 0, 0) -> 1",
          "gio_line_set_style(1, " + head + ", " + std::to_string(style) + ") -> 1",
          "gio_line_set_width(1, " + head + ", " + std::to_string(width) + ") -> 1",
          "gio_rec_connect(1, " + head + ", 0) -> 1"};
}

Lines joined(std::initializer_list<Lines> parts) {
  Lines all;
  for (const Lines& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

// The text routine's calls for record `rec` up to the size, all attributes as the routine sets them.
Lines textHead(int rec, const std::string& start, int textType, int orientation, const std::string& font,
               const std::string& size) {
  const std::string r = "(1, 7, " + std::to_string(rec) + ", ";
  return {"gio_rec_create(1, 7) -> " + std::to_string(rec),
          "gio_text_set_start_point" + r + start + ") -> 1",
          "gio_text_set_attr_type" + r + std::to_string(textType) + ") -> 1",
          "gio_text_set_attr_font" + r + "4) -> 1",
          "gio_text_set_attr_display" + r + "1) -> 1",
          "gio_text_set_attr_edit" + r + "0) -> 1",
          "gio_text_set_attr_color" + r + "0) -> 1",
          "gio_text_set_attr_zoom" + r + "0) -> 1",
          "gio_text_set_orientation" + r + std::to_string(orientation) + ") -> 1",
          "gio_text_set_attr_font_string" + r + "\"" + font + "\") -> 1",
          "gio_text_set_attr_size" + r + size + ") -> 1"};
}

TEST(DrawnSymbol, LinesTakeTheirRecordTypeFromTheirDirectionAndKeepTheirLook) {
  EXPECT_EQ(drawnCalls({line(0, 0, 10, 5, "", "", false), line(5, 0, 5, 9, "BUS", "THICK", false),
                        line(9, 3, 1, 3, "SOLID", "THIN", false), line(0, 0, 0, 0, "DOTTED", "", false),
                        line(1, 1, 2, 2, "dotted", "thick", false)}),
            joined({segment(4, 1, 0, 0, 10, 5, 0, 0), segment(3, 2, 5, 0, 5, 9, 5, 1),
                    segment(2, 3, 9, 3, 1, 3, 0, 0), segment(4, 4, 1, 1, 2, 2, 0, 0)}));
  const std::pair<const char*, int> styles[] = {{"DOTTED", 1}, {"DENSE", 2}, {"BROKEN", 3}, {"DASHED", 4}};
  for (const auto& [style, code] : styles)
    EXPECT_EQ(drawnCalls({line(0, 0, 10, 0, style, "", false)}), segment(2, 1, 0, 0, 10, 0, code, 0))
        << style;
}

TEST(DrawnSymbol, RectangleIsFourSidesAndAnEmptyOneIsNothing) {
  EXPECT_EQ(drawnCalls({line(10, 20, 50, 60, "DASHED", "THICK", true)}),
            joined({segment(2, 1, 10, 20, 50, 20, 4, 1), segment(3, 2, 50, 20, 50, 60, 4, 1),
                    segment(2, 3, 50, 60, 10, 60, 4, 1), segment(3, 4, 10, 60, 10, 20, 4, 1)}));
  EXPECT_EQ(drawnCalls({line(7, 7, 7, 7, "", "", true)}), Lines{});
}

TEST(DrawnSymbol, ArcAndCircle) {
  EXPECT_EQ(drawnCalls({{SymbolKind::kArc, SymbolArc{50, 50, 60, 50, 40, 50, 10}},
                        {SymbolKind::kCircle, SymbolCircle{5, 6, 3, true}},
                        {SymbolKind::kCircle, SymbolCircle{-5, -6, 2, false}}}),
            (Lines{
                "gio_rec_create(1, 5) -> 1",
                "gio_arc_set_coordinates(1, 1, (50, 50), 10, 0, 0) -> 1",
                "gio_arc_set_points(1, 1, (60, 50), (40, 50)) -> 1",
                "gio_line_set_dots(1, 5, 1, 0, 0) -> 1",
                "gio_rec_connect(1, 5, 1, 0) -> 1",
                "gio_rec_create(1, 6) -> 2",
                "gio_circle_set_coordinates(1, 2, (5, 6), 3) -> 1",
                "gio_circle_set_attr_fill(1, 2, 1) -> 1",
                "gio_rec_connect(1, 6, 2, 0) -> 1",
                "gio_rec_create(1, 6) -> 3",
                "gio_circle_set_coordinates(1, 3, (-5, -6), 2) -> 1",
                "gio_circle_set_attr_fill(1, 3, 0) -> 1",
                "gio_rec_connect(1, 6, 3, 0) -> 1",
            }));
}

// "12345678" in "Arial,7" measures 40 by 10; turned upright at (100, 100) its horizontal box starts at
// (85, 115). Nine digits measure 45 by 10, and the halves of -35 are cut toward zero.
TEST(DrawnSymbol, VerticalTextStartsWhereItsTurnedBoxBegins) {
  EXPECT_EQ(drawnCalls({text("12345678", 100, 100, "VERT", "Arial,7")}),
            joined({textHead(1, "(85, 115)", 0, 1, "Arial,7", "(40, 10)"),
                    {"gio_text_set_text(1, 7, 1, \"12345678\") -> 1",
                     "gio_obj_set_visible_status(1, 7, 1, 0) -> 1", "gio_rec_connect(1, 7, 1, 0) -> 1"}}));
  const Lines nine = drawnCalls({text("123456789", 100, 100, "VERT", "Arial,7")});
  ASSERT_GT(nine.size(), 10u);
  EXPECT_EQ(nine[1], "gio_text_set_start_point(1, 7, 1, (83, 117)) -> 1");
  EXPECT_EQ(nine[10], "gio_text_set_attr_size(1, 7, 1, (45, 10)) -> 1");
}

// A text without a font is measured with the display's default font and carries "Arial,8".
TEST(DrawnSymbol, HorizontalTextWithoutFontGetsTheDefaultFontText) {
  EXPECT_EQ(drawnCalls({text("Hi", 3, 4, "", "")}),
            joined({textHead(1, "(3, 4)", 0, 0, "Arial,8", "(10, 13)"),
                    {"gio_text_set_text(1, 7, 1, \"Hi\") -> 1", "gio_obj_set_visible_status(1, 7, 1, 0) -> 1",
                     "gio_rec_connect(1, 7, 1, 0) -> 1"}}));
}

TEST(DrawnSymbol, PinStubWithEmptyLabelShowsItsNameHidden) {
  const SymbolElement stub{SymbolKind::kPinStub, SymbolPinStub{0, 40, "IN", "clk", 12, 34, "", "", ""}};
  EXPECT_EQ(drawnCalls({stub}),
            joined({textHead(1, "(12, 34)", 2, 0, "Arial,8", "(1, 13)"),
                    {"gio_text_set_text(1, 7, 1, \"clk\") -> 1", "gio_text_set_attr_display(1, 7, 1, 0) -> 1",
                     "gio_text_set_alt_text(1, 7, 1, \"clk\") -> 1", "gio_rec_connect(1, 7, 1, 0) -> 1",
                     "gio_text_create_pinstub(1, 7, 1, (0, 40), 0) -> 1"}}));
}

TEST(DrawnSymbol, PinStubWithLabelShowsTheLabelAndKeepsTheNameAsAlternative) {
  const SymbolElement stub{SymbolKind::kPinStub,
                           SymbolPinStub{90, 40, "BIDIR", "io", 60, 34, "IO", "VERT", "Arial,10"}};
  const Lines calls = drawnCalls({stub});
  ASSERT_EQ(calls.size(), 16u);
  EXPECT_EQ(calls[2], "gio_text_set_attr_type(1, 7, 1, 4) -> 1");
  EXPECT_EQ(calls[8], "gio_text_set_orientation(1, 7, 1, 1) -> 1");
  EXPECT_EQ(Lines(calls.begin() + 11, calls.end()),
            (Lines{"gio_text_set_text(1, 7, 1, \"IO\") -> 1", "gio_obj_set_visible_status(1, 7, 1, 0) -> 1",
                   "gio_text_set_alt_text(1, 7, 1, \"io\") -> 1", "gio_rec_connect(1, 7, 1, 0) -> 1",
                   "gio_text_create_pinstub(1, 7, 1, (90, 40), 0) -> 1"}));
}

// The block's width counts the characters of its longest line; its height is one measured line per line.
TEST(DrawnSymbol, ParameterBlockJoinsItsLinesAndSkipsEmptyOnes) {
  const Lines head = {
      "gio_rec_create(1, 7) -> 1",
      "gio_text_set_start_point(1, 7, 1, (0, 0)) -> 1",
      "gio_text_set_attr_type(1, 7, 1, 55) -> 1",
      "gio_text_set_attr_font(1, 7, 1, 4) -> 1",
      "gio_text_set_attr_edit(1, 7, 1, 1) -> 1",
      "gio_text_set_attr_color(1, 7, 1, 0) -> 1",
      "gio_text_set_attr_display(1, 7, 1, 1) -> 1",
      "gio_text_set_attr_zoom(1, 7, 1, 0) -> 1",
      "gio_text_set_orientation(1, 7, 1, 0) -> 1",
  };
  EXPECT_EQ(drawnCalls({{SymbolKind::kParameter, SymbolParameter{"WIDTH=8//DEPTH=16/", ""}}}),
            joined({head,
                    {"gio_text_set_attr_font_string(1, 7, 1, \"Arial,8\") -> 1",
                     "gio_text_set_attr_size(1, 7, 1, (8, 26)) -> 1",
                     "gio_text_set_text(1, 7, 1, \"WIDTH=8\\nDEPTH=16\\n\") -> 1",
                     "gio_rec_connect(1, 7, 1, 0) -> 1"}}));
  EXPECT_EQ(drawnCalls({{SymbolKind::kParameter, SymbolParameter{"//", "Arial,12"}}}),
            joined({head,
                    {"gio_text_set_attr_font_string(1, 7, 1, \"Arial,12\") -> 1",
                     "gio_text_set_attr_size(1, 7, 1, (0, 0)) -> 1", "gio_rec_connect(1, 7, 1, 0) -> 1"}}));
  EXPECT_EQ(drawnCalls({{SymbolKind::kParameter, SymbolParameter{"", "Arial,12"}}}), Lines{});
}

// A box sets the sheet, replaces the first name text drawn before it, and names the symbol.
TEST(DrawnSymbol, BoxReplacesTheEarlierNameText) {
  const Lines calls = drawnCalls({text("a", 0, 0, "", ""),
                                  {SymbolKind::kBox, SymbolBox{200, 100, 10, 5, ""}},
                                  {SymbolKind::kBox, SymbolBox{300, 200, 20, 10, "Arial,10"}}});
  const Lines firstBox = {
      "gio_db_set_sheet_size(1, (200, 100)) -> 1", "gio_rec_first(1, 7) -> 1",
      "gio_text_get_attr_type(1, 7, 1) -> 0",      "gio_rec_next(1, 7, 1) -> 0",
      "gio_db_get_drawing_name(1) -> \"sym\"",
  };
  const Lines secondBox = {
      "gio_db_set_sheet_size(1, (300, 200)) -> 1", "gio_rec_first(1, 7) -> 1",
      "gio_text_get_attr_type(1, 7, 1) -> 0",      "gio_rec_next(1, 7, 1) -> 2",
      "gio_text_get_attr_type(1, 7, 2) -> 19",     "gio_rec_delete(1, 7, 2) -> 1",
      "gio_db_get_drawing_name(1) -> \"sym\"",
  };
  const Lines nameTail = {"gio_text_set_text(1, 7, 2, \"sym\") -> 1",
                          "gio_obj_set_visible_status(1, 7, 2, 0) -> 1", "gio_rec_connect(1, 7, 2, 0) -> 1"};
  Lines expected =
      joined({textHead(1, "(0, 0)", 0, 0, "Arial,8", "(6, 13)"),
              {"gio_text_set_text(1, 7, 1, \"a\") -> 1", "gio_obj_set_visible_status(1, 7, 1, 0) -> 1",
               "gio_rec_connect(1, 7, 1, 0) -> 1"},
              firstBox,
              textHead(2, "(10, 5)", 19, 0, "Arial,8", "(21, 13)"),
              nameTail,
              secondBox,
              textHead(3, "(20, 10)", 19, 0, "Arial,10", "(25, 15)")});
  expected.push_back("gio_text_set_text(1, 7, 3, \"sym\") -> 1");
  expected.push_back("gio_obj_set_visible_status(1, 7, 3, 0) -> 1");
  expected.push_back("gio_rec_connect(1, 7, 3, 0) -> 1");
  ASSERT_EQ(calls.size(), expected.size());
  for (size_t i = 0; i < calls.size(); ++i) EXPECT_EQ(calls[i], expected[i]) << "call " << i;
}

}  // namespace
}  // namespace plovix
