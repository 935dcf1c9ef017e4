// Tests of text-mode reading and writing (the safe writer itself is tested in SafeWriteTest).
#include <gtest/gtest.h>

#include "TempDir.h"
#include "base/TextFile.h"

namespace plovix {
namespace {

using testing::TempDir;

TEST(TextFile, WritesCrLfAndReadsItBack) {
  TempDir temp;
  int error = 0;
  temp.write("a.txt", std::string(5000, 'x'));  // a longer file is replaced whole
  ASSERT_TRUE(writeTextFile(temp.path("a.txt"), "one\ntwo\n", error));
  EXPECT_EQ(temp.read("a.txt"), "one\r\ntwo\r\n");
  std::string text;
  ASSERT_TRUE(readTextFile(temp.path("a.txt"), text, error));
  EXPECT_EQ(text, "one\ntwo\n");
  EXPECT_EQ(splitLines("a\n\nb"), (std::vector<std::string>{"a", "", "b"}));
  EXPECT_EQ(splitLines("a\n"), (std::vector<std::string>{"a"}));
}

TEST(TextFile, AppendCreatesAndExtends) {
  TempDir temp;
  int error = 0;
  ASSERT_TRUE(appendTextFile(temp.path("log"), "a\n", error));
  ASSERT_TRUE(appendTextFile(temp.path("log"), "b\n", error));
  EXPECT_EQ(temp.read("log"), "a\r\nb\r\n");
}

}  // namespace
}  // namespace plovix
