// The THDL writer's text rules and the notice that opens its include file; whole texts are golden files
// (tests/corpus/GeneratedTextTest.cpp).
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "RecordingInterface.h"
#include "base/TextFile.h"
#include "base/TextHelpers.h"
#include "hdl/ThdlFileWriter.h"

namespace plovix {
namespace {

TEST(ThdlWriter, TextRules) {
  TextPool texts;
  auto range = [&texts](const std::string& width, const std::string& low) {
    return thdlGroupRange({Bound::fromText(width, texts), Bound::fromText(low, texts)});
  };
  EXPECT_EQ(range("0", "3"), "");
  EXPECT_EQ(range("1", "3"), "[3..3]");
  EXPECT_EQ(range("8", "0"), "[7..0]");
  EXPECT_EQ(range("WIDTH", "0"), "[WIDTH-1..0]");
  EXPECT_EQ(range("08", "+2"), "[9..+2]");
  EXPECT_EQ(thdlParameterValue(ValueType::kNumeric, texts.intern("12")), "12");
  EXPECT_EQ(thdlParameterValue(ValueType::kString, Name()), "\"\"");
  EXPECT_EQ(thdlReference(Name(), texts.intern("GND")), "GND");
  EXPECT_EQ(thdlReference(texts.intern("u1"), texts.intern("q")), "u1_component.q");
}

// The notice that opens the include file: a first line, an empty line and 18 lines, each led by "--" and a
// tab.
TEST(ThdlWriter, LegalNoticeShape) {
  testing::RecordingInterface ui;
  const CnxDescription description;
  const ThdlFileWriter writer(ui, "empty", "nothing", description);
  const std::vector<std::string> lines = splitLines(writer.buildCompanionText());
  ASSERT_GE(lines.size(), 21u);
  EXPECT_EQ(lines[20], "");
  EXPECT_FALSE(startsWith(lines[21], "--"));
  for (size_t i = 0; i < 20; ++i) {
    if (i == 1) {
      EXPECT_TRUE(lines[i].empty());
    } else {
      EXPECT_TRUE(startsWith(lines[i], "--\t")) << lines[i];
    }
  }
}

}  // namespace
}  // namespace plovix
