// The files a writer produces: names, text-mode line ends, the retrieval info, and failed writes.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "RecordingInterface.h"
#include "SampleDescriptions.h"
#include "TempDir.h"
#include "base/TextFile.h"
#include "hdl/ThdlFileWriter.h"

namespace plovix {
namespace {

using plovix::testing::RecordingInterface;
using plovix::testing::TempDir;

const std::string kCounterRetrievalInfo =
    "-- ============================================================\n"
    "-- CNX file retrieval info\n"
    "-- ============================================================\n"
    "-- Retrieval info: PARAMETER: WIDTH NUMERIC 8\n"
    "-- Retrieval info: PARAMETER: MODE STRING fast\n"
    "-- Retrieval info: CONSTANT: LPM_DIRECTION STRING UP\n"
    "-- Retrieval info: CONSTANT: LPM_SVALUE NUMERIC 3 elsewhere\n"
    "-- Retrieval info: CONSTANT: LPM_AVALUE NUMERIC 5 lpm_counter\n"
    "-- Retrieval info: PRIVATE: STYLE STRING \"slow and steady\"\n"
    "-- Retrieval info: USED_PORT: clock 0 0 0 0 INPUT NODEFVAL\n"
    "-- Retrieval info: USED_PORT: cnt_en 0 0 0 0 INPUT VCC\n"
    "-- Retrieval info: USED_PORT: data 8 0 0 0 INPUT GND\n"
    "-- Retrieval info: USED_PORT: q 8 0 0 0 OUTPUT NODEFVAL\n"
    "-- Retrieval info: USED_PORT: cout 0 0 0 0 OUTPUT GND\n"
    "-- Retrieval info: CONNECT: lpm_counter@clock 0 0 0 0 clock 0 0 0 0\n"
    "-- Retrieval info: CONNECT: @cnt_en 0 0 0 0 cnt_en 0 0 0 0\n"
    "-- Retrieval info: CONNECT: lpm_counter@data 8 0 0 0 data 8 0 0 0\n"
    "-- Retrieval info: CONNECT: q 8 0 0 0 lpm_counter@q 8 0 0 0\n"
    "-- Retrieval info: CONNECT: cout 0 0 0 0 @cout 0 0 0 0\n";

// The design file ends with the retrieval info, all stored with CRLF line ends.
TEST(WriterFiles, DesignFileCarriesRetrievalInfo) {
  TempDir dir;
  std::filesystem::copy_file(PLOVIX_TEST_DATA_DIR "/count8.cnx", dir.path("count8.cnx"));
  RecordingInterface ui;
  CnxDescription description;
  ASSERT_TRUE(testing::readCnxText("count8", dir.read("count8.cnx"), dir, ui, description));
  // The file is read once: the block comes from what was read, even when the file is gone.
  std::filesystem::remove(dir.path("count8.cnx"));
  const ThdlFileWriter writer(ui, dir.path("count8"), "lpm_counter", description);

  EXPECT_TRUE(writer.writeDesignFile());
  EXPECT_EQ(dir.read("count8.tdf"), toTextMode(writer.designText() + kCounterRetrievalInfo));
  EXPECT_TRUE(writer.writeCompanionFile());
  EXPECT_EQ(dir.read("count8.inc"), toTextMode(writer.buildCompanionText()));
  EXPECT_TRUE(writer.writeInstanceFile());
  EXPECT_EQ(dir.read("count8_inst.tdf"), toTextMode(writer.buildInstanceText()));
  EXPECT_TRUE(ui.boxes.empty());
}

// A target that cannot be replaced (a directory stands in its place) is reported once, and an existing file
// elsewhere is replaced whole.
TEST(WriterFiles, FailedWriteIsReportedAndLeavesOtherFiles) {
  TempDir dir;
  std::filesystem::create_directory(dir.path("count8.tdf"));
  dir.write("count8.inc", std::string(5000, 'x'));
  RecordingInterface ui;
  const CnxDescription description = testing::counterDescription();
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
