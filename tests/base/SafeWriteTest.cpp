// Tests of the safe writer: links, permission bits, protected targets, in-place rewrites, failed writes and
// the clean-up of what killed writers left.
#include <fcntl.h>
#include <linux/fs.h>
#include <signal.h>
#include <spawn.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>
#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "TempDir.h"
#include "base/SafeWrite.h"

extern char** environ;

namespace plovix {
namespace {

using testing::TempDir;

// The names in a directory that start with the temporary prefix.
std::vector<std::string> temporariesIn(const TempDir& dir) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(dir.dir())) {
    const std::string name = entry.path().filename().string();
    if (name.starts_with(kTemporaryPrefix)) names.push_back(name);
  }
  return names;
}

mode_t modeOf(const std::string& path) {
  struct stat info {};
  stat(path.c_str(), &info);
  return info.st_mode & 07777;
}

TEST(SafeWrite, FollowsLinksKeepsThemAndKeepsPermissionBits) {
  TempDir dir;
  dir.write("real", "old");
  chmod(dir.path("real").c_str(), 0640);
  std::filesystem::create_directory(dir.path("sub"));
  std::filesystem::create_symlink("sub/hop", dir.path("link"));
  std::filesystem::create_symlink("../real", dir.path("sub/hop"));
  std::filesystem::create_symlink("nowhere", dir.path("dangling"));
  ASSERT_EQ(replaceFile(dir.path("link"), "new"), 0);
  ASSERT_EQ(replaceFile(dir.path("dangling"), "made"), 0);
  EXPECT_TRUE(std::filesystem::is_symlink(dir.path("link")));
  EXPECT_TRUE(std::filesystem::is_symlink(dir.path("sub/hop")));
  EXPECT_EQ(dir.read("real"), "new");
  EXPECT_EQ(modeOf(dir.path("real")), 0640u);
  EXPECT_EQ(dir.read("nowhere"), "made");
  std::filesystem::create_symlink("loop", dir.path("loop"));
  EXPECT_EQ(replaceFile(dir.path("loop"), "x"), ELOOP);
  EXPECT_TRUE(temporariesIn(dir).empty());
}

// Read-only means read-only, also for root; a running program and whatever is no regular file stay as well.
TEST(SafeWrite, LeavesProtectedTargetsAlone) {
  TempDir dir;
  dir.write("readonly", "old");
  chmod(dir.path("readonly").c_str(), 0444);
  std::filesystem::create_directory(dir.path("directory"));
  mkfifo(dir.path("fifo").c_str(), 0644);
  std::filesystem::copy_file("/bin/sleep", dir.path("program"));
  chmod(dir.path("program").c_str(), 0755);
  pid_t running = -1;
  std::string program = dir.path("program");
  char seconds[] = "30";
  char* argv[] = {program.data(), seconds, nullptr};
  ASSERT_EQ(posix_spawn(&running, argv[0], nullptr, nullptr, argv, environ), 0);
  usleep(200000);
  const std::pair<const char*, int> cases[] = {
      {"readonly", EACCES}, {"directory", EISDIR}, {"fifo", EINVAL}, {"program", ETXTBSY}};
  for (const auto& [name, error] : cases) {
    EXPECT_EQ(writeProtection(dir.path(name)), error) << name;
    EXPECT_EQ(replaceFile(dir.path(name), "new"), error) << name;
  }
  kill(running, SIGKILL);
  waitpid(running, nullptr, 0);
  EXPECT_EQ(dir.read("readonly"), "old");
  EXPECT_EQ(writeProtection(dir.path("missing")), 0);
  EXPECT_TRUE(temporariesIn(dir).empty());
}

// A directory that takes no new entry: not writable for a user, immutable for root.
bool closeDirectory(const std::string& path, bool close) {
  if (geteuid() != 0) return chmod(path.c_str(), close ? 0555 : 0755) == 0;
  const int fd = open(path.c_str(), O_RDONLY | O_DIRECTORY);
  int flags = 0;
  bool done = fd >= 0 && ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0;
  flags = close ? (flags | FS_IMMUTABLE_FL) : (flags & ~FS_IMMUTABLE_FL);
  done = done && ioctl(fd, FS_IOC_SETFLAGS, &flags) == 0;
  if (fd >= 0) ::close(fd);
  return done;
}

TEST(SafeWrite, RewritesInPlaceWhereNoNewEntryCanBeMade) {
  TempDir dir;
  dir.write("closed/file", "a rather long old text");
  if (!closeDirectory(dir.path("closed"), true)) GTEST_SKIP() << "cannot close a directory here";
  const int shorter = replaceFile(dir.path("closed/file"), "short");
  const std::string afterShorter = dir.read("closed/file");
  const int longer = replaceFile(dir.path("closed/file"), std::string(100000, 'x'));
  const int fresh = replaceFile(dir.path("closed/new"), "x");
  closeDirectory(dir.path("closed"), false);
  EXPECT_EQ(shorter, 0);
  EXPECT_EQ(afterShorter, "short");
  EXPECT_EQ(longer, 0);
  EXPECT_EQ(dir.read("closed/file"), std::string(100000, 'x'));
  EXPECT_NE(fresh, 0) << "a new file needs a new entry";
}

// A write that fails half-way (here at the file-size limit) leaves the old text and no temporary file.
TEST(SafeWrite, AFailedWriteLeavesTheOldFile) {
  TempDir dir;
  dir.write("file", "old");
  struct sigaction ignore {};
  ignore.sa_handler = SIG_IGN;
  struct sigaction previous {};
  sigaction(SIGXFSZ, &ignore, &previous);
  rlimit saved{};
  getrlimit(RLIMIT_FSIZE, &saved);
  rlimit small = saved;
  small.rlim_cur = 4096;
  setrlimit(RLIMIT_FSIZE, &small);
  const int error = replaceFile(dir.path("file"), std::string(10000, 'n'));
  setrlimit(RLIMIT_FSIZE, &saved);
  sigaction(SIGXFSZ, &previous, nullptr);
  EXPECT_EQ(error, EFBIG);
  EXPECT_EQ(dir.read("file"), "old");
  EXPECT_EQ(replaceFile(dir.path("missing/file"), "x"), ENOENT);
  EXPECT_TRUE(temporariesIn(dir).empty());
}

TEST(SafeWrite, RemovesOnlyTemporariesThatKilledWritersLeft) {
  TempDir dir;
  const auto start = std::chrono::system_clock::now();
  usleep(20000);  // file times tick more coarsely than the clock
  for (const char* name :
       {".plovix-AAAAAA", ".plovix-BBBBBB", ".plovix-CCCCCC", ".plovix-long-name", "other"})
    dir.write(name, "x");
  const auto old = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
  for (const char* name : {".plovix-AAAAAA", ".plovix-BBBBBB", ".plovix-long-name", "other"})
    std::filesystem::last_write_time(dir.path(name), old);
  const int held = open(dir.path(".plovix-BBBBBB").c_str(), O_RDONLY);
  flock(held, LOCK_EX);
  removeStaleTemporaries(dir.dir(), start);
  close(held);
  EXPECT_FALSE(std::filesystem::exists(dir.path(".plovix-AAAAAA")));
  for (const char* kept : {".plovix-BBBBBB", ".plovix-CCCCCC", ".plovix-long-name", "other"})
    EXPECT_TRUE(std::filesystem::exists(dir.path(kept))) << kept;
}

}  // namespace
}  // namespace plovix
