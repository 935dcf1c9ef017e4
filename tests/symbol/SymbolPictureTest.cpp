// Tests of symbol pictures: an automatic and a drawn symbol rendered as SVG, checked to be well-formed XML
// and converted to PNG under <build>/test-artifacts/symbol/ for a person to look at.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

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

CnxUsedPort port(const std::string& name, const std::string& direction, const std::string& width) {
  CnxUsedPort p;
  p.name = name;
  p.direction = direction;
  p.width1 = width;
  return p;
}

TEST(SymbolPicture, AutomaticCounter) {
  CnxDescription d;
  d.inputPorts = {port("clock", "INPUT", "0"), port("data", "INPUT", "8"), port("sload", "INPUT", "0")};
  d.outputPorts = {port("q", "OUTPUT", "8"), port("cout", "OUTPUT", "0"), port("bus", "BIDIR", "4")};
  d.parameters = {{"WIDTH", "NUMERIC", "8", ""}, {"DIRECTION", "STRING", "NODEFVAL", ""}};
  const std::string svg = buildAndRender("automatic_counter", d);
  for (const char* piece : {">automatic_counter<", ">clock<", ">data[7..0]<", ">q[7..0]<", ">bus[3..0]<"})
    EXPECT_NE(svg.find(piece), std::string::npos) << piece;
  EXPECT_NE(svg.find(">WIDTH=8</tspan><tspan"), std::string::npos);
  EXPECT_NE(svg.find(">DIRECTION=</tspan>"), std::string::npos);
  EXPECT_EQ(countOf(svg, "<rect x=\"") - 2, 6u);      // a mark per pin besides background and sheet
  EXPECT_EQ(countOf(svg, "stroke-width=\"3\""), 3u);  // the bus stubs
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
  EXPECT_EQ(countOf(svg, "<rect x=\"") - 2, 4u);
  for (const char* dashes : {"\"1 2\"", "\"1 1\"", "\"6 2 1 2\"", "\"5 3\""})
    EXPECT_EQ(countOf(svg, std::string("stroke-dasharray=") + dashes), 1u) << dashes;
  expectWellFormedXml(artifactDir() + "drawn_gate.svg");
  convertToPng(artifactDir() + "drawn_gate");
}

// The plovix command prints the same picture; it is built by its own target, so the test needs it built.
TEST(SymbolPicture, RenderSymbolCommandPrintsThePicture) {
  const std::string plovix = std::string(PLOVIX_BINARY_DIR) + "/cli/plovix";
  if (!std::filesystem::exists(plovix)) GTEST_SKIP() << "the plovix command is not built";
  CnxDescription d;
  d.inputPorts = {port("a", "INPUT", "0")};
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
