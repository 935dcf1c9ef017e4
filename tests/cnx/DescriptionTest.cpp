// The work files beside a CNX file: the error log's path, and their deletion after a generation.
#include <gtest/gtest.h>

#include "TempDir.h"
#include "base/FileSystem.h"
#include "cnx/CnxReader.h"
#include "cnx/ErrorLog.h"

namespace plovix::testing {
namespace {

TEST(CnxWorkFilesTest, PathOfTheErrorLog) {
  EXPECT_EQ(cnxErrorLogPath("/work/dir/var.name.cnx"), "/work/dir/var.name.cnxerr");
  EXPECT_EQ(cnxErrorLogPath("rel/var"), "rel/var.cnxerr");
  EXPECT_EQ(cnxErrorLogPath(""), "");
}

TEST(CnxWorkFilesTest, DeletionRemovesTheCnxFileAndItsLogOnly) {
  TempDir temp;
  temp.write("var.cnx", "x");
  temp.write("var.cnxerr", "x");
  temp.write("var.v", "x");
  deleteCnxWorkFiles(temp.path("var.cnx"));
  EXPECT_FALSE(fileExists(temp.path("var.cnx")));
  EXPECT_FALSE(fileExists(temp.path("var.cnxerr")));
  EXPECT_TRUE(fileExists(temp.path("var.v")));
  // Missing files and an empty path are no fault.
  deleteCnxWorkFiles(temp.path("var.cnx"));
  deleteCnxWorkFiles("");
}

}  // namespace
}  // namespace plovix::testing
