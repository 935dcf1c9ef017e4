// Tests of the host's drawing database through its C calls: instances, records, the trace, measuring, and
// reading symbol files back.
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "GioTraceCapture.h"
#include "TempDir.h"
#include "plovix_host.h"

namespace plovix {
namespace {

// A drawing made for one test and deleted when it ends.
class TestDrawing {
 public:
  TestDrawing() {
    gio_error_context error{};
    instance = gio_db_create_instance(1, &error, 0);
  }
  ~TestDrawing() { gio_db_delete_instance(instance, 0); }
  TestDrawing(const TestDrawing&) = delete;
  TestDrawing& operator=(const TestDrawing&) = delete;
  short instance = 0;
};

TEST(DrawingDatabase, RecordsAreWalkedByTypeInConnectionOrder) {
  TestDrawing d;
  ASSERT_NE(d.instance, 0);
  const short a = gio_rec_create(d.instance, 7), b = gio_rec_create(d.instance, 7);
  const short line = gio_rec_create(d.instance, 2), pending = gio_rec_create(d.instance, 7);
  EXPECT_EQ(gio_rec_create(d.instance, 9), 0);
  EXPECT_EQ(gio_rec_first(d.instance, 7), 0);
  EXPECT_EQ(gio_rec_connect(d.instance, 7, b, 0), 1);
  EXPECT_EQ(gio_rec_connect(d.instance, 2, line, 0), 1);
  EXPECT_EQ(gio_rec_connect(d.instance, 7, a, 0), 1);
  EXPECT_EQ(gio_rec_connect(d.instance, 7, a, 0), 0);     // already connected
  EXPECT_EQ(gio_rec_connect(d.instance, 3, line, 0), 0);  // a record is named with its own type
  EXPECT_EQ(gio_rec_first(d.instance, 7), b);
  EXPECT_EQ(gio_rec_next(d.instance, 7, b), a);
  EXPECT_EQ(gio_rec_next(d.instance, 7, a), 0);
  EXPECT_EQ(gio_rec_first(d.instance, 2), line);
  EXPECT_EQ(gio_rec_delete(d.instance, 7, b), 1);
  EXPECT_EQ(gio_rec_first(d.instance, 7), a);
  EXPECT_EQ(gio_rec_delete(d.instance, 7, pending), 1);
  EXPECT_EQ(gio_rec_delete(d.instance, 7, pending), 0);
  EXPECT_EQ(gio_rec_first(d.instance + 1000, 7), 0);
}

TEST(DrawingDatabase, CallsOnTheWrongRecordOrWithoutArgumentsFail) {
  TestDrawing d;
  const short text = gio_rec_create(d.instance, 7), line = gio_rec_create(d.instance, 2);
  const short arc = gio_rec_create(d.instance, 5);
  const gio_point p{1, 2};
  EXPECT_EQ(gio_text_set_text(d.instance, 2, line, "x"), 0);
  EXPECT_EQ(gio_text_set_text(d.instance, 7, line, "x"), 0);
  EXPECT_EQ(gio_text_set_text(d.instance, 7, text, nullptr), 0);
  EXPECT_EQ(gio_line_set_points(d.instance, 7, text, &p, &p), 0);
  EXPECT_EQ(gio_line_set_points(d.instance, 2, line, &p, nullptr), 0);
  EXPECT_EQ(gio_line_set_dots(d.instance, 5, arc, 1, 1), 1);
  EXPECT_EQ(gio_line_set_style(d.instance, 5, arc, 1), 0);
  EXPECT_EQ(gio_circle_set_coordinates(d.instance, arc, &p, 3), 0);
  EXPECT_EQ(gio_text_create_pinstub(d.instance, 7, text, nullptr, 0), 0);
  EXPECT_EQ(gio_db_set_sheet_size(d.instance, nullptr), 0);
  EXPECT_EQ(gio_db_set_unit_mode(0, 1), 0);
  EXPECT_STREQ(gio_db_get_drawing_name(0), "");
  EXPECT_EQ(gio_write_drawing(d.instance), 0);                            // no file name yet
  EXPECT_EQ(gio_sym_add_pin_stub_w_alt_text("", "a", 2, d.instance), 0);  // not an automatic symbol
}

TEST(DrawingDatabase, InstancesReuseTheLowestFreeHandleAndRejectUnknownKinds) {
  gio_error_context error{};
  const short first = gio_db_create_instance(1, &error, 0);
  const short second = gio_db_create_instance(1, &error, 0);
  EXPECT_EQ(error.code, 0);
  EXPECT_EQ(second, first + 1);
  EXPECT_EQ(gio_db_delete_instance(first, 0), 1);
  EXPECT_EQ(gio_db_delete_instance(first, 0), 0);
  EXPECT_EQ(gio_db_create_instance(1, &error, 0), first);
  EXPECT_EQ(gio_db_create_instance(2, &error, 0), 0);
  EXPECT_NE(error.code, 0);
  EXPECT_STRNE(error.message, "");
  gio_db_delete_instance(first, 0);
  gio_db_delete_instance(second, 0);
}

TEST(DrawingDatabase, DrawingNameIsTheFileNameWithoutDirectoryAndExtension) {
  TestDrawing d;
  const std::pair<const char*, const char*> cases[] = {
      {"/x/y/counter.sym", "counter"}, {"plain", "plain"}, {"dir.v/abc", "abc"}, {"C:\\w\\m.x.sym", "m.x"}};
  for (const auto& [file, name] : cases) {
    EXPECT_EQ(gio_db_set_drawing_name(d.instance, file), 1);
    EXPECT_STREQ(gio_db_get_drawing_name(d.instance), name) << file;
  }
}

TEST(GioTrace, QuotesTextsAndShowsAbsentPointers) {
  testing::GioTraceCapture trace;
  TestDrawing d;
  const short rec = gio_rec_create(d.instance, 7);
  gio_text_set_text(d.instance, 7, rec, "a\"b\\c\n\td\x01");
  gio_text_set_alt_text(d.instance, 7, rec, nullptr);
  gio_text_set_attr_size(d.instance, 7, rec, nullptr);
  const std::string r = std::to_string(rec), i = std::to_string(d.instance);
  const std::vector<std::string> lines = trace.take();
  ASSERT_EQ(lines.size(), 5u);
  EXPECT_EQ(lines[2], "gio_text_set_text(" + i + ", 7, " + r + ", \"a\\\"b\\\\c\\n\\td\\x01\") -> 1");
  EXPECT_EQ(lines[3], "gio_text_set_alt_text(" + i + ", 7, " + r + ", NULL) -> 0");
  EXPECT_EQ(lines[4], "gio_text_set_attr_size(" + i + ", 7, " + r + ", NULL) -> 0");
}

TEST(GioTrace, NothingIsWrittenWithoutTheVariable) {
  testing::GioTraceCapture trace;
  TestDrawing d;
  unsetenv("PLOVIX_GIO_TRACE");
  gio_rec_create(d.instance, 7);
  EXPECT_EQ(trace.take(),
            std::vector<std::string>{"gio_db_create_instance(1, ctx, 0) -> " + std::to_string(d.instance)});
}

struct Extent {
  int cx = -1, cy = -1;
  bool operator==(const Extent&) const = default;
};

Extent measure(int height, const char* text) {
  Extent e;
  sym_measure_text("Arial", height, text, &e.cx, &e.cy);
  return e;
}

// 96 dpi: 8 points are 11 pixels, lines 115% of that; digits take 0.556 of the character height.
TEST(TextMetrics, FixedResolutionAndCharacterWidths) {
  EXPECT_EQ(sym_display_pixels_per_inch(), 96);
  EXPECT_EQ(measure(-11, ""), (Extent{1, 13}));
  EXPECT_EQ(measure(-9, "12345678"), (Extent{40, 10}));
  EXPECT_EQ(measure(-11, "iiii"), (Extent{11, 13}));
  EXPECT_EQ(measure(-11, "MMMM"), (Extent{37, 13}));
  EXPECT_EQ(measure(0, "ab"), measure(-11, "ab"));   // the default font is 8 points
  EXPECT_EQ(measure(13, "ab"), measure(-11, "ab"));  // a cell height of 13 has 11-pixel characters
  EXPECT_EQ(measure(-11, nullptr), (Extent{1, 13}));
  const Extent huge = measure(-2147483647 - 1, "x");
  EXPECT_GT(huge.cx, 0);
  EXPECT_GT(huge.cy, 0);
}

// Reads `text` as a symbol file; the bad line (0 when it was read) or -errno.
int symbolFileFault(const std::string& text) {
  testing::TempDir dir;
  dir.write("s.sym", text);
  char* svg = nullptr;
  int errorNumber = 0, errorLine = 0;
  const int ok = sym_render_svg(dir.path("s.sym").c_str(), &svg, &errorNumber, &errorLine);
  sym_free_text(svg);
  if (ok) return 0;
  return errorLine > 0 ? errorLine : -errorNumber;
}

TEST(SymbolFileReading, FindsTheFirstBadLine) {
  const std::string head = "PLOVIX-SYM 1\ndrawing name=\"x\" sheet-size=10,10\n";
  EXPECT_EQ(symbolFileFault(head + "line type=2 from=0,0 to=5,0\n\n# note\nend\n"), 0);
  EXPECT_EQ(symbolFileFault("PLOVIX-SYM 1\r\nend\r\n"), 0);
  EXPECT_EQ(symbolFileFault(""), 1);
  EXPECT_EQ(symbolFileFault("PLOVIX-SYM 2\nend\n"), 1);
  EXPECT_EQ(symbolFileFault(head + "line type=2 from=0,x to=5,0\nend\n"), 3);
  EXPECT_EQ(symbolFileFault(head + "line type=7 from=0,0 to=5,0\nend\n"), 3);
  EXPECT_EQ(symbolFileFault(head + "circle centre=1,1 radius=99999999999\nend\n"), 3);
  EXPECT_EQ(symbolFileFault(head + "text text=\"open\nend\n"), 3);
  EXPECT_EQ(symbolFileFault(head + "text text=\"bad \\q escape\"\nend\n"), 3);
  EXPECT_EQ(symbolFileFault(head + "text text=\"a\"b\nend\n"), 3);
  EXPECT_EQ(symbolFileFault(head + "polygon at=1,1\nend\n"), 3);
  EXPECT_EQ(symbolFileFault(head + "circle centre\nend\n"), 3);
  EXPECT_EQ(symbolFileFault(head + "end\ncircle centre=1,1\n"), 4);
  EXPECT_EQ(symbolFileFault(head), 3);  // the end line is missing
}

// Damaged copies of a real symbol file are either read or rejected with a line number, never more.
TEST(SymbolFileReading, DamagedFilesAreReadOrRejected) {
  const std::string good =
      "PLOVIX-SYM 1\ndrawing name=\"g\" sheet-size=60,40\nline type=4 from=0,0 to=-2147483648,2147483647 "
      "style=3 width=1\narc centre=5,5 radius=-3 start=8,5 end=8,5\ncircle centre=1,1 radius=2147483647 "
      "filled=1\n"
      "text start=1,1 size=9,9 orientation=1 font-string=\",-99999999\" text=\"a\\x00b\\n\" pin=3,3\nend\n";
  ASSERT_EQ(symbolFileFault(good), 0);
  unsigned seed = 12345;
  auto nextRandom = [&seed] { return (seed = seed * 1103515245u + 12345u) >> 8; };
  const std::string noise = " =\",\\-9\nx\x7f\xff";
  for (int round = 0; round < 300; ++round) {
    std::string damaged = good;
    for (int edit = 0; edit < 3; ++edit) {
      const size_t at = nextRandom() % damaged.size();
      if (nextRandom() % 2 == 0)
        damaged[at] = noise[nextRandom() % noise.size()];
      else
        damaged.erase(at, 1 + nextRandom() % 4);
      if (damaged.empty()) break;
    }
    const int fault = symbolFileFault(damaged);
    EXPECT_GE(fault, 0) << damaged;
    EXPECT_LE(fault, 9) << damaged;
  }
}

TEST(SymbolFileReading, FileErrorsComeBackAsErrno) {
  testing::TempDir dir;
  char* svg = nullptr;
  int errorNumber = 0, errorLine = 0;
  EXPECT_EQ(sym_render_svg(dir.path("none.sym").c_str(), &svg, &errorNumber, &errorLine), 0);
  EXPECT_EQ(errorNumber, ENOENT);
  EXPECT_EQ(errorLine, 0);
  EXPECT_EQ(svg, nullptr);
  EXPECT_EQ(sym_render_svg(dir.dir().c_str(), &svg, &errorNumber, &errorLine), 0);
  EXPECT_EQ(errorNumber, EISDIR);
  EXPECT_EQ(sym_render_svg(nullptr, &svg, &errorNumber, &errorLine), 0);
}

// A link planted where a writer might put its temporary file never leads the symbol's text elsewhere, and a
// write-protected symbol file is not replaced: the call fails with errno saying why.
TEST(SymbolFileWriting, GoesThroughTheSafeWriter) {
  testing::TempDir dir;
  dir.write("victim", "precious");
  for (const std::string& planted : {"v.sym.tmp-" + std::to_string(getpid()), std::string("v.sym.tmp")})
    std::filesystem::create_symlink(dir.path("victim"), dir.path(planted));
  TestDrawing d;
  gio_db_set_drawing_name(d.instance, dir.path("v.sym").c_str());
  EXPECT_EQ(gio_write_drawing(d.instance), 1);
  EXPECT_EQ(dir.read("victim"), "precious");
  EXPECT_EQ(dir.read("v.sym").substr(0, 12), "PLOVIX-SYM 1");
  chmod(dir.path("v.sym").c_str(), 0444);
  errno = 0;
  EXPECT_EQ(gio_write_drawing(d.instance), 0);
  EXPECT_EQ(errno, EACCES);
}

}  // namespace
}  // namespace plovix
