// Tests of the values the application object keeps and takes from the host.
#include <gtest/gtest.h>

#include <cstdlib>

#include "entry/ManagerApp.h"

namespace plovix {
namespace {

TEST(ManagerApp, ProjectRootIsKeptWithForwardSlashes) {
  ManagerApp app;
  app.restoreDirectoryAtExit = false;
  EXPECT_EQ(app.projectDirectory, "C:/");
  EXPECT_EQ(app.corner.right, 500);
  EXPECT_EQ(app.corner.bottom, 500);
  EXPECT_FALSE(app.corner.known);
  setenv("PLOVIX_PROJECT_DIR", "\\\\srv\\proj\\", 1);
  app.fetchProjectDirectory();
  EXPECT_EQ(app.projectDirectory, "//srv/proj/");
  setenv("PLOVIX_PROJECT_DIR", "/work/p", 1);
  app.fetchProjectDirectory();
  EXPECT_EQ(app.projectDirectory, "/work/p/") << "the host always adds the trailing separator";
  unsetenv("PLOVIX_PROJECT_DIR");
}

}  // namespace
}  // namespace plovix
