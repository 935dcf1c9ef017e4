// The description's life outside reading: reset, the work-file paths and their deletion.
#include <gtest/gtest.h>

#include "TempDir.h"
#include "base/FileSystem.h"
#include "cnx/CnxDescription.h"

namespace plovix::testing {
namespace {

TEST(CnxDescriptionTest, PathsOfTheCnxFileAndItsLog) {
  CnxDescription d("/work/dir/var.name.cnx");
  EXPECT_EQ(d.cnxPath, "/work/dir/var.name.cnx");
  EXPECT_EQ(d.errorLogPath, "/work/dir/var.name.cnxerr");
  d.setCnxPath("rel/var");
  EXPECT_EQ(d.errorLogPath, "rel/var.cnxerr");
  d.setCnxPath("");
  EXPECT_EQ(d.cnxPath, "");
  EXPECT_EQ(d.errorLogPath, "");
}

TEST(CnxDescriptionTest, ResetRestoresTheReadingStateButKeepsPathsAndRecords) {
  CnxDescription d("a.cnx");
  d.commentLeader = "//";
  d.defaultSymbolBox = false;
  d.errorLogFresh = false;
  d.uses2D = true;
  d.version = "WM1.0";
  d.mainModuleName = "m";
  d.generationMode = "SYMBOL_ONLY";
  d.token = "t";
  d.lineRest = "r";
  d.lineCounter = 9;
  d.emptyQuoted = true;
  d.modules.push_back({"m", "m", ""});
  d.reset();
  EXPECT_TRUE(d.defaultSymbolBox);
  EXPECT_TRUE(d.errorLogFresh);
  EXPECT_FALSE(d.uses2D);
  EXPECT_EQ(d.version, "CNX_VERSION_UNKNOWN");
  EXPECT_EQ(d.mainModuleName, "");
  EXPECT_EQ(d.generationMode, "STANDARD");
  EXPECT_EQ(d.token, "");
  EXPECT_EQ(d.lineRest, "");
  EXPECT_EQ(d.lineCounter, 1);
  EXPECT_FALSE(d.emptyQuoted);
  EXPECT_EQ(d.cnxPath, "a.cnx");
  EXPECT_EQ(d.commentLeader, "//");
  EXPECT_EQ(d.modules.size(), 1u);
}

TEST(CnxDescriptionTest, DeleteWorkFilesRemovesTheCnxFileAndItsLogOnly) {
  TempDir temp;
  temp.write("var.cnx", "x");
  temp.write("var.cnxerr", "x");
  temp.write("var.v", "x");
  CnxDescription d(temp.path("var.cnx"));
  d.deleteWorkFiles();
  EXPECT_FALSE(fileExists(temp.path("var.cnx")));
  EXPECT_FALSE(fileExists(temp.path("var.cnxerr")));
  EXPECT_TRUE(fileExists(temp.path("var.v")));
  // Missing files and an empty path are no fault.
  d.deleteWorkFiles();
  CnxDescription none;
  none.deleteWorkFiles();
}

}  // namespace
}  // namespace plovix::testing
