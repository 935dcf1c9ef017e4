// Tests of path splitting, full paths, resolving typed paths and directory listings.
#include <gtest/gtest.h>
#include <unistd.h>

#include "RecordingInterface.h"
#include "TempDir.h"
#include "base/FileSystem.h"
#include "base/PathText.h"

namespace plovix {
namespace {

using testing::RecordingInterface;
using testing::TempDir;

TEST(SplitPath, PartsJoinBackToThePath) {
  const std::string path = "C:\\work/designs\\count8.vhd";
  EXPECT_EQ(splitPath(path, PathPart::kDrive), "C:");
  EXPECT_EQ(splitPath(path, PathPart::kDirectory), "\\work/designs\\");
  EXPECT_EQ(splitPath(path, PathPart::kBaseName), "count8");
  EXPECT_EQ(splitPath(path, PathPart::kExtension), ".vhd");
  EXPECT_EQ(directoryOfPath(path) + nameWithExtension(path), path);
  EXPECT_EQ(pathWithoutExtension("/a/b.c/d.tdf"), "/a/b.c/d");
}

TEST(SplitPath, EdgeCases) {
  EXPECT_EQ(splitPath("count8.tdf ", PathPart::kExtension), ".tdf");  // trimmed copy
  EXPECT_EQ(splitPath("/dir/noext", PathPart::kExtension), "");
  EXPECT_EQ(splitPath("/dir/noext", PathPart::kBaseName), "noext");
  EXPECT_EQ(splitPath("rel/x.v", PathPart::kDirectory), "rel/");
  EXPECT_EQ(splitPath("x.v", PathPart::kDirectory), "");
  EXPECT_EQ(splitPath("/dir.d/", PathPart::kExtension), "");
  EXPECT_EQ(splitPath("   ", PathPart::kBaseName), "");
  EXPECT_EQ(splitPath("a.b.c", PathPart::kExtension), ".c");
  EXPECT_EQ(splitPath("/home/u/x.v", PathPart::kDrive), "");
}

TEST(RootOfPath, NetworkHostOrDriveInCapitals) {
  EXPECT_EQ(rootOfPath("\\\\server\\share\\x"), "\\\\server");
  EXPECT_EQ(rootOfPath("c:/work"), "C:");
  EXPECT_EQ(rootOfPath("/work"), "");
}

TEST(FullPath, JoinsAndNormalisesLexically) {
  TempDir temp;
  ASSERT_EQ(chdir(temp.dir().c_str()), 0);
  const std::string cwd = currentDirectory();
  EXPECT_EQ(fullPath("a/./b/../c.v"), cwd + "/a/c.v");
  EXPECT_EQ(fullPath("sub/"), cwd + "/sub/");
  EXPECT_EQ(fullPath("/x/../../y"), "/y");
  EXPECT_EQ(fullPath("a\\b"), cwd + "/a/b");
  EXPECT_EQ(fullPath(""), "");
}

class ResolvePathTest : public ::testing::Test {
 protected:
  void SetUp() override {
    temp.write("designs/count8.tdf", "x");
    ASSERT_EQ(chdir(temp.dir().c_str()), 0);
    before = currentDirectory();
  }
  void TearDown() override {
    EXPECT_EQ(currentDirectory(), before) << "the working directory must be restored";
  }
  TempDir temp;
  RecordingInterface ui;
  std::string before;
  std::string dir, file;
};

TEST_F(ResolvePathTest, DirectoryWithoutTrailingSlashGetsOne) {
  ASSERT_TRUE(resolvePath(ui, temp.path("designs"), dir, file));
  EXPECT_EQ(dir, temp.path("designs/"));
  EXPECT_EQ(file, "");
}

TEST_F(ResolvePathTest, MissingFileInExistingDirectory) {
  ASSERT_TRUE(resolvePath(ui, "designs/new.vhd", dir, file));
  EXPECT_EQ(dir, temp.path("designs/"));
  EXPECT_EQ(file, "new.vhd");
  EXPECT_TRUE(ui.boxes.empty());
}

TEST_F(ResolvePathTest, MissingDirectoryReportsError21) {
  EXPECT_FALSE(resolvePath(ui, "nowhere/x.v", dir, file));
  ASSERT_EQ(ui.boxes.size(), 1u);
  EXPECT_EQ(ui.boxes[0], testing::reported(Msg::kDoesNotExist, "nowhere/x.v"));
  EXPECT_EQ(dir, "");
}

TEST_F(ResolvePathTest, FindInDirectoryIsRelativeToThatDirectory) {
  ASSERT_TRUE(findInDirectory(ui, "count8.tdf", temp.path("designs"), dir, file));
  EXPECT_EQ(dir, temp.path("designs/"));
  EXPECT_EQ(file, "count8.tdf");
  EXPECT_FALSE(findInDirectory(ui, "count8.tdf", temp.path("missing"), dir, file));
  EXPECT_TRUE(ui.boxes.empty()) << "an unenterable directory gives no message";
}

TEST(ListDirectory, SortedByNameAndFilteredByPattern) {
  TempDir temp;
  temp.write("b.v", "");
  temp.write("a.vhd", "");
  temp.write("C.v", "");
  temp.write("sub/x", "");
  std::vector<std::string> names;
  for (const DirectoryEntry& e : listDirectory(temp.dir(), "*.v")) names.push_back(e.name);
  EXPECT_EQ(names, (std::vector<std::string>{"C.v", "b.v"}));
  const auto all = listDirectory(temp.dir());
  ASSERT_EQ(all.size(), 4u);
  EXPECT_TRUE(all[3].isDirectory);
  int error = 0;
  EXPECT_TRUE(listDirectory(temp.path("none"), "*", &error).empty());
  EXPECT_NE(error, 0);
}

TEST(DeleteFile, MissingFileCountsAsDeleted) {
  TempDir temp;
  EXPECT_TRUE(deleteFile(temp.path("none")));
  temp.write("x", "1");
  EXPECT_TRUE(deleteFile(temp.path("x")));
  EXPECT_FALSE(fileExists(temp.path("x")));
}

}  // namespace
}  // namespace plovix
