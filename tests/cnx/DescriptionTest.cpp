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
