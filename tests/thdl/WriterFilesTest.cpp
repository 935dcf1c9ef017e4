// A failed write: reported once, and the other files still written.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "../corpus/CorpusCase.h"
#include "RecordingInterface.h"
#include "TempDir.h"
#include "base/TextFile.h"
#include "hdl/ThdlFileWriter.h"

namespace plovix {
namespace {

using plovix::testing::RecordingInterface;
using plovix::testing::TempDir;

// A target that cannot be replaced (a directory stands in its place) is reported once, and an existing file
// elsewhere is replaced whole.
TEST(WriterFiles, FailedWriteIsReportedAndLeavesOtherFiles) {
  TempDir dir;
  std::filesystem::create_directory(dir.path("count8.tdf"));
  dir.write("count8.inc", std::string(5000, 'x'));
  RecordingInterface ui;
  CnxDescription description;
  ASSERT_TRUE(testing::readCnxText("count8", TempDir::readFile(PLOVIX_TEST_DATA_DIR "/count8.cnx"), dir, ui,
                                   description));
  const ThdlFileWriter writer(ui, dir.path("count8"), "lpm_counter", description);

  EXPECT_FALSE(writer.writeDesignFile());
  ASSERT_EQ(ui.boxes.size(), 1u);
  EXPECT_EQ(ui.boxes[0], testing::reported(Msg::kUnknownFileError));
  EXPECT_TRUE(std::filesystem::is_directory(dir.path("count8.tdf")));

  EXPECT_TRUE(writer.writeCompanionFile());
  EXPECT_EQ(dir.read("count8.inc"), toTextMode(writer.buildCompanionText()));
}

TEST(WriterFiles, MissingDirectoryReportsTheFileName) {
  TempDir dir;
  RecordingInterface ui;
  CnxDescription description = testing::counterDescription();
  ThdlFileWriter writer(ui, dir.path("nowhere/count8"), "lpm_counter", description);
  EXPECT_FALSE(writer.writeInstanceFile());
  ASSERT_EQ(ui.boxes.size(), 1u);
  EXPECT_EQ(ui.boxes[0], testing::reported(Msg::kFileNotOpened, dir.path("nowhere/count8_inst.tdf")));
}

}  // namespace
}  // namespace plovix
