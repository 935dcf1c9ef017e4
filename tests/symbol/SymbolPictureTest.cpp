// Tests of symbol pictures: an automatic symbol, a drawn one and the bundled constant modulon's symbol
// rendered as SVG, checked to be well-formed XML with texts clear of each other and of the lines, and
// converted to PNG under <build>/test-artifacts/symbol/ for a person to look at.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <regex>
#include <sstream>

#include "../corpus/CorpusCase.h"
#include "RecordingInterface.h"
#include "TempDir.h"
#include "plovix_host.h"
#include "symbol/SymbolBuilder.h"

namespace plovix {
namespace {

std::string artifactDir() {
  const std::string dir = std::string(PLOVIX_BINARY_DIR) + "/test-artifacts/symbol/";
  std::filesystem::create_directories(dir);
  return dir;
}

// Builds the symbol `name` into the artifact directory and returns its SVG picture, also kept there.
std::string buildAndRender(const std::string& name, const CnxDescription& description) {
  testing::RecordingInterface ui;
  const std::string base = artifactDir() + name;
  std::filesystem::remove(base + ".sym");
  SymbolBuilder(ui, base, description).buildSymbol();
  char* svg = nullptr;
  int errorNumber = 0, errorLine = 0;
  if (sym_render_svg((base + ".sym").c_str(), &svg, &errorNumber, &errorLine) == 0) {
    ADD_FAILURE() << name << ": errno " << errorNumber << ", line " << errorLine;
    return {};
  }
  const std::string picture = svg;
  sym_free_text(svg);
  std::ofstream(base + ".svg", std::ios::binary) << picture;
  return picture;
}

int run(const std::string& command) {
  return std::system((command + " >/dev/null 2>&1").c_str());
}

void expectWellFormedXml(const std::string& svgPath) {
  EXPECT_EQ(
      run("python3 -c 'import sys, xml.dom.minidom; xml.dom.minidom.parse(sys.argv[1])' '" + svgPath + "'"),
      0)
      << svgPath << " is not well-formed XML";
}

void convertToPng(const std::string& base) {
  if (run("command -v rsvg-convert") != 0) GTEST_SKIP() << "rsvg-convert is not installed";
  ASSERT_EQ(run("rsvg-convert -b white -o '" + base + ".png' '" + base + ".svg'"), 0);
  EXPECT_EQ(testing::TempDir::readFile(base + ".png").substr(1, 3), "PNG");
}

size_t countOf(const std::string& text, const std::string& piece) {
  size_t count = 0;
  for (size_t at = text.find(piece); at != std::string::npos; at = text.find(piece, at + 1)) ++count;
  return count;
}

// A rectangle on the sheet; a line is one with no width or no height.
struct Box {
  int left, top, right, bottom;
};

// Whether two boxes share inner points (a line only touching a box's edge does not).
bool crosses(const Box& a, const Box& b) {
  return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

// The fields of one .sym record line: key to value, numbers and pairs as written, texts unescaped.
std::map<std::string, std::string> fieldsOf(const std::string& line) {
  static const std::regex field(R"re(([\w-]+)=("(?:[^"\\]|\\.)*"|[-\d,]+))re");
  std::map<std::string, std::string> fields;
  for (std::sregex_iterator it(line.begin(), line.end(), field), end; it != end; ++it) {
    std::string value = (*it)[2];
    if (value[0] == '"')
      value = std::regex_replace(value.substr(1, value.size() - 2), std::regex(R"(\\n)"), "\n");
    fields[(*it)[1]] = value;
  }
  return fields;
}

// Every shown horizontal text of a .sym file keeps clear of the other texts and of every line: each line of a
// text takes its measured width (the parameter block's recorded width counts characters, not pixels).
void expectTextsClear(const std::string& symPath) {
  std::vector<std::pair<std::string, Box>> texts;
  std::vector<Box> lines;
  std::istringstream in(testing::TempDir::readFile(symPath));
  for (std::string line; std::getline(in, line);) {
    auto f = fieldsOf(line);
    int x = 0, y = 0, x2 = 0, y2 = 0;
    if (line.rfind("line ", 0) == 0 &&
        std::sscanf((f["from"] + "," + f["to"]).c_str(), "%d,%d,%d,%d", &x, &y, &x2, &y2) == 4) {
      lines.push_back({std::min(x, x2), std::min(y, y2), std::max(x, x2), std::max(y, y2)});
    }
    if (line.rfind("text ", 0) != 0 || f["display"] == "0" || f["visible-status"] != "0" ||
        f["orientation"] != "0" || std::sscanf(f["start"].c_str(), "%d,%d", &x, &y) != 2)
      continue;
    const std::string& font = f["font-string"];
    const int points = std::atoi(font.substr(font.find(',') + 1).c_str());
    int width = 0, height = 0, cx = 0, cy = 0;
    std::istringstream pieces(f["text"]);
    for (std::string piece; std::getline(pieces, piece); height += cy) {
      sym_measure_text(nullptr, -((96 * points + 36) / 72), piece.c_str(), &cx, &cy);
      width = std::max(width, cx);
    }
    texts.push_back({f["text"], Box{x, y, x + width, y + height}});
  }
  ASSERT_FALSE(texts.empty()) << symPath;
  for (size_t i = 0; i < texts.size(); ++i) {
    for (size_t j = i + 1; j < texts.size(); ++j)
      EXPECT_FALSE(crosses(texts[i].second, texts[j].second)) << texts[i].first << " | " << texts[j].first;
    for (const Box& l : lines)
      EXPECT_FALSE(crosses(texts[i].second, l)) << texts[i].first << " crosses the line from " << l.left
                                                << "," << l.top << " to " << l.right << "," << l.bottom;
  }
}

TEST(SymbolPicture, AutomaticCounter) {
  testing::TempDir work;
  testing::RecordingInterface ui;
  CnxDescription d;
  testing::readCnxText("counter",
                       "GENERATION: STANDARD\nVERSION: WM1.0\n"
                       "USED_PORT: clock 0 0 0 0 INPUT NODEFVAL\nUSED_PORT: data 8 0 0 0 INPUT NODEFVAL\n"
                       "USED_PORT: sload 0 0 0 0 INPUT NODEFVAL\nUSED_PORT: q 8 0 0 0 OUTPUT NODEFVAL\n"
                       "USED_PORT: cout 0 0 0 0 OUTPUT NODEFVAL\nUSED_PORT: bus 4 0 0 0 BIDIR NODEFVAL\n"
                       "PARAMETER: WIDTH NUMERIC 8\nPARAMETER: DIRECTION STRING NODEFVAL\n",
                       work, ui, d);
  const std::string svg = buildAndRender("automatic_counter", d);
  for (const char* piece : {">automatic_counter<", ">clock<", ">data[7..0]<", ">q[7..0]<", ">bus[3..0]<"})
    EXPECT_NE(svg.find(piece), std::string::npos) << piece;
  EXPECT_NE(svg.find(">WIDTH=8</tspan><tspan"), std::string::npos);
  EXPECT_NE(svg.find(">DIRECTION=</tspan>"), std::string::npos);
  EXPECT_EQ(countOf(svg, "<rect x=\"") - 2, 6u);        // a mark per pin besides background and sheet
  EXPECT_EQ(countOf(svg, "stroke-width=\"3\""), 3u);    // the bus stubs
  EXPECT_EQ(countOf(svg, "text-anchor=\"end\">"), 3u);  // the right side's pin names end at the box
  EXPECT_EQ(countOf(svg, "font-family=\"Liberation Sans, Arial, sans-serif\""), 8u);
  expectTextsClear(artifactDir() + "automatic_counter.sym");
  expectWellFormedXml(artifactDir() + "automatic_counter.svg");
  convertToPng(artifactDir() + "automatic_counter");
}

SymbolElement element(SymbolKind kind, auto record) {
  return {kind, record};
}

// A drawn AND gate with an inverted output, a hidden reset pin, a vertical label, every line style, and
// texts that need escaping.
TEST(SymbolPicture, DrawnGate) {
  CnxDescription d;
  d.defaultSymbolBox = false;
  d.symbolElements = {
      element(SymbolKind::kBox, SymbolBox{160, 120, 84, 6, ""}),
      element(SymbolKind::kLine, SymbolLine{40, 24, 70, 24, "", "THICK", false}),
      element(SymbolKind::kLine, SymbolLine{40, 24, 40, 84, "", "THICK", false}),
      element(SymbolKind::kLine, SymbolLine{40, 84, 70, 84, "", "THICK", false}),
      element(SymbolKind::kArc, SymbolArc{70, 54, 70, 84, 70, 24, 30}),
      element(SymbolKind::kCircle, SymbolCircle{104, 54, 4, false}),
      element(SymbolKind::kCircle, SymbolCircle{150, 110, 3, true}),
      element(SymbolKind::kLine, SymbolLine{8, 40, 40, 40, "", "", false}),
      element(SymbolKind::kLine, SymbolLine{8, 68, 40, 68, "BUS", "", false}),
      element(SymbolKind::kLine, SymbolLine{108, 54, 140, 54, "", "", false}),
      element(SymbolKind::kLine, SymbolLine{4, 98, 140, 98, "DOTTED", "", false}),
      element(SymbolKind::kLine, SymbolLine{4, 102, 140, 102, "DENSE", "", false}),
      element(SymbolKind::kLine, SymbolLine{4, 106, 140, 106, "BROKEN", "", false}),
      element(SymbolKind::kLine, SymbolLine{4, 110, 140, 110, "DASHED", "", false}),
      element(SymbolKind::kLine, SymbolLine{2, 2, 156, 116, "", "", true}),
      element(SymbolKind::kPinStub, SymbolPinStub{8, 40, "IN", "a", 10, 28, "a", "", ""}),
      element(SymbolKind::kPinStub, SymbolPinStub{8, 68, "IN", "b[3..0]", 10, 56, "b[3..0]", "", ""}),
      element(SymbolKind::kPinStub, SymbolPinStub{140, 54, "OUT", "y", 130, 42, "y", "", ""}),
      element(SymbolKind::kPinStub, SymbolPinStub{150, 24, "IN", "rst", 130, 20, "", "", ""}),
      element(SymbolKind::kText, SymbolText{"& <gate> \"x\" caf\xe9\x01", "", 44, 86, "", "Arial,6", ""}),
      element(SymbolKind::kText, SymbolText{"UPRIGHT", "", 144, 62, "VERT", "Arial,7", ""}),
      element(SymbolKind::kParameter, SymbolParameter{"LPM_WIDTH=4/LPM_TYPE=AND", ""}),
  };
  const std::string svg = buildAndRender("drawn_gate", d);
  for (const char* piece : {">drawn_gate<", ">a<", ">b[3..0]<", ">y<", ">UPRIGHT<", "rotate(-90 ",
                            "<path d=\"M 70 84 A 30 30 0 0 0 70 24\"", "fill=\"black\"/>",
                            "&amp; &lt;gate&gt; &quot;x&quot; caf&#xE9;<", ">LPM_TYPE=AND</tspan>"})
    EXPECT_NE(svg.find(piece), std::string::npos) << piece;
  EXPECT_EQ(svg.find(">rst<"), std::string::npos);  // the hidden pin name is left out, its pin mark is not
  EXPECT_NE(
      svg.find(
          "<text x=\"136\" y=\"51.9\" font-size=\"11\" font-family=\"Liberation Sans, Arial, sans-serif\" "
          "text-anchor=\"end\">y<"),
      std::string::npos);
  EXPECT_EQ(countOf(svg, "<rect x=\"") - 2, 4u);
  for (const char* dashes : {"\"1 2\"", "\"1 1\"", "\"6 2 1 2\"", "\"5 3\""})
    EXPECT_EQ(countOf(svg, std::string("stroke-dasharray=") + dashes), 1u) << dashes;
  expectWellFormedXml(artifactDir() + "drawn_gate.svg");
  convertToPng(artifactDir() + "drawn_gate");
}

// The bundled constant modulon draws its own symbol: every width's texts keep clear of each other and of the
// box, and the picture of the widest is kept.
TEST(SymbolPicture, BundledConstantModulon) {
  testing::TempDir project;
  for (const auto& [width, value] : {std::pair{"1", "1"}, {"5", "17"}, {"32", "2147483647"}}) {
    const std::string command = "cd '" + project.dir() +
                                "' && env -u PLOVIX_LIB_PATH -u PLOVIX_USER_LIB_PATH '" + PLOVIX_BINARY_DIR +
                                "/cli/plovix' --batch --modulon lpm_constant --plugin-args " +
                                "'LPM_CVALUE=" + value + " LPM_WIDTH=" + width + "' constant.tdf 2>/dev/null";
    ASSERT_EQ(std::system(command.c_str()), 0) << command;
    SCOPED_TRACE(width);
    expectTextsClear(project.path("constant.sym"));
  }
  const std::string base = artifactDir() + "constant";
  std::filesystem::copy_file(project.path("constant.sym"), base + ".sym",
                             std::filesystem::copy_options::overwrite_existing);
  char* svg = nullptr;
  ASSERT_EQ(sym_render_svg((base + ".sym").c_str(), &svg, nullptr, nullptr), 1);
  std::ofstream(base + ".svg", std::ios::binary) << svg;
  sym_free_text(svg);
  convertToPng(base);
}

// The plovix command prints the same picture; it is built by its own target, so the test needs it built.
TEST(SymbolPicture, RenderSymbolCommandPrintsThePicture) {
  const std::string plovix = std::string(PLOVIX_BINARY_DIR) + "/cli/plovix";
  if (!std::filesystem::exists(plovix)) GTEST_SKIP() << "the plovix command is not built";
  testing::TempDir work;
  testing::RecordingInterface ui;
  CnxDescription d;
  testing::readCnxText(
      "command", "GENERATION: STANDARD\nVERSION: WM1.0\nUSED_PORT: a 0 0 0 0 INPUT NODEFVAL\n", work, ui, d);
  const std::string svg = buildAndRender("command", d);
  const std::string base = artifactDir() + "command";
  const std::string render =
      "'" + plovix + "' --batch --render-symbol '" + base + ".sym' > '" + base + ".out.svg'";
  EXPECT_EQ(std::system(render.c_str()), 0);
  EXPECT_EQ(testing::TempDir::readFile(base + ".out.svg"), svg);
  testing::TempDir temp;
  const std::string command = "'" + plovix + "' --batch --render-symbol '" + temp.path("none.sym") +
                              "' 2> '" + temp.path("err") + "' > '" + temp.path("out") + "'";
  EXPECT_NE(std::system(command.c_str()), 0);
  EXPECT_EQ(temp.read("out"), "");
  EXPECT_EQ(temp.read("err"), testing::reported(Msg::kFileNotOpened, temp.path("none.sym")) + "\n");
}

}  // namespace
}  // namespace plovix
