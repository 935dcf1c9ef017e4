// Tests of symbol pictures: an automatic symbol, a drawn one (golden SVG files) and the bundled constant
// modulon's symbol rendered as SVG, checked to be well-formed XML with texts clear of each other and of the
// lines, and converted to PNG under <build>/test-artifacts/symbol/ for a person to look at.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <regex>
#include <sstream>

#include "../corpus/CorpusCase.h"
#include "Golden.h"
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

// An automatic symbol and a drawn gate (data/<name>.cnx) rendered: the picture is a golden file, and the
// automatic symbol's texts keep clear of each other and of the lines.
class SamplePicture : public ::testing::TestWithParam<const char*> {};

TEST_P(SamplePicture, MatchesTheGoldenPicture) {
  const std::string name = GetParam();
  testing::TempDir work;
  testing::RecordingInterface ui;
  CnxDescription d;
  ASSERT_TRUE(testing::readCnxText(
      name, testing::TempDir::readFile(std::string(PLOVIX_TEST_DATA_DIR) + "/" + name + ".cnx"), work, ui,
      d));
  testing::expectGolden(buildAndRender(name, d), std::string(PLOVIX_TEST_DATA_DIR) + "/" + name + ".svg");
  if (d.defaultSymbolBox) expectTextsClear(artifactDir() + name + ".sym");
  expectWellFormedXml(artifactDir() + name + ".svg");
  convertToPng(artifactDir() + name);
}

INSTANTIATE_TEST_SUITE_P(Samples, SamplePicture, ::testing::Values("automatic_counter", "drawn_gate"));

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

// The plovix command prints the same picture (its failures are the batch runs' test); it is built by its own
// target, so the test needs it built.
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
}

}  // namespace
}  // namespace plovix
