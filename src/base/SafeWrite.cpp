// Implementation of the safe writer: the final target, the temporary file, the in-place rewrite, the
// clean-up.
#include "base/SafeWrite.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace plovix {

namespace {

// A file descriptor closed when it goes.
class Descriptor {
 public:
  explicit Descriptor(int fd = -1) : fd_(fd) {}
  ~Descriptor() {
    if (fd_ >= 0) ::close(fd_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int get() const { return fd_; }
  bool valid() const { return fd_ >= 0; }
  void reset(int fd) {
    if (fd_ >= 0) ::close(fd_);
    fd_ = fd;
  }

 private:
  int fd_;
};

// Links in a chain beyond this count are a loop, as the kernel counts them.
constexpr int kMaxLinks = 40;

// The directory part of a path, with its trailing "/"; empty for a bare name.
std::string directoryPart(const std::string& path) {
  const size_t slash = path.rfind('/');
  return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

// The final target of a chain of symbolic links (the path itself when it is none, also when it does not
// exist). 0 or errno.
int finalTarget(const std::string& path, std::string& target) {
  target = path;
  for (int hops = 0; hops <= kMaxLinks; ++hops) {
    struct stat info {};
    if (::lstat(target.c_str(), &info) != 0) return errno == ENOENT ? 0 : errno;
    if (!S_ISLNK(info.st_mode)) return 0;
    std::string link(4096, '\0');
    const ssize_t size = ::readlink(target.c_str(), link.data(), link.size());
    if (size < 0) return errno;
    if (static_cast<size_t>(size) == link.size()) return ENAMETOOLONG;
    link.resize(static_cast<size_t>(size));
    target = !link.empty() && link[0] == '/' ? link : directoryPart(target) + link;
  }
  return ELOOP;
}

int writeAll(int fd, std::string_view bytes, off_t offset = -1) {
  while (!bytes.empty()) {
    const ssize_t n = offset < 0 ? ::write(fd, bytes.data(), bytes.size())
                                 : ::pwrite(fd, bytes.data(), bytes.size(), offset);
    if (n < 0) {
      if (errno == EINTR) continue;
      return errno;
    }
    if (n == 0) return EIO;
    bytes.remove_prefix(static_cast<size_t>(n));
    if (offset >= 0) offset += n;
  }
  return 0;
}

// The process's umask, read without changing it (the kernel shows it since 4.7), else by setting it back.
mode_t currentUmask() {
  if (std::FILE* status = std::fopen("/proc/self/status", "re")) {
    char line[256];
    unsigned mask = 0;
    bool found = false;
    while (!found && std::fgets(line, sizeof line, status) != nullptr)
      found = std::sscanf(line, "Umask: %o", &mask) == 1;
    std::fclose(status);
    if (found) return static_cast<mode_t>(mask & 0777);
  }
  const mode_t mask = ::umask(022);
  ::umask(mask);
  return mask;
}

// Gives the new file the existing file's owner and group where allowed, then its permission bits (a change
// of owner clears the set-id bits, so the mode comes last).
void takeOverAttributes(int fd, const struct stat* existing) {
  if (existing == nullptr) {
    ::fchmod(fd, 0666 & ~currentUmask());
    return;
  }
  const uid_t owner = ::geteuid() == 0 ? existing->st_uid : static_cast<uid_t>(-1);
  if (::fchown(fd, owner, existing->st_gid) != 0) {
    // Another group than the writer's is kept only where the system allows it.
  }
  ::fchmod(fd, existing->st_mode & 07777);
}

// Directories entered by the rename are made durable too; a failure there loses nothing already written.
void syncDirectory(const std::string& directory) {
  const Descriptor fd(
      ::open(directory.empty() ? "." : directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (fd.valid()) ::fsync(fd.get());
}

// When a failed mkstemp means that the directory takes no new entry while the file may still be written.
bool noNewEntry(int errorNumber) {
  return errorNumber == EACCES || errorNumber == EPERM || errorNumber == ENOSPC || errorNumber == EDQUOT;
}

// Rewrites an open file in place: the space is reserved first, so that a full disk fails before any byte
// of the old contents is overwritten.
int rewriteInPlace(int fd, std::string_view bytes) {
  struct stat info {};
  if (::fstat(fd, &info) != 0) return errno;
  const auto size = static_cast<off_t>(bytes.size());
  if (size > info.st_size) {
    const int reserved = ::posix_fallocate(fd, 0, size);
    if (reserved != 0 && reserved != EOPNOTSUPP && reserved != EINVAL) return reserved;
  }
  if (const int e = writeAll(fd, bytes, 0)) return e;
  if (::ftruncate(fd, size) != 0) return errno;
  return ::fsync(fd) == 0 ? 0 : errno;
}

// Opens an existing regular file for writing without changing it; the descriptor is invalid and
// `errorNumber` says why when it may not be written.
int openExisting(const std::string& target, const struct stat& info, Descriptor& fd) {
  if (S_ISDIR(info.st_mode)) return EISDIR;
  if (!S_ISREG(info.st_mode)) return EINVAL;
  if ((info.st_mode & 0222) == 0) return EACCES;
  const int opened = ::open(target.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
  if (opened < 0) return errno;
  fd.reset(opened);
  return 0;
}

}  // namespace

int writeProtection(const std::string& path) {
  std::string target;
  if (const int e = finalTarget(path, target)) return e;
  struct stat info {};
  if (::stat(target.c_str(), &info) != 0) return errno == ENOENT ? 0 : errno;
  Descriptor fd;
  return openExisting(target, info, fd);
}

int replaceFile(const std::string& path, std::string_view bytes) {
  std::string target;
  if (const int e = finalTarget(path, target)) return e;
  struct stat existing {};
  const bool exists = ::stat(target.c_str(), &existing) == 0;
  if (!exists && errno != ENOENT) return errno;
  // The probe that the target may be written; it also serves the in-place rewrite.
  Descriptor old;
  if (exists) {
    if (const int e = openExisting(target, existing, old)) return e;
  }

  const std::string directory = directoryPart(target);
  std::string temporary = directory + std::string(kTemporaryPrefix) + "XXXXXX";
  const Descriptor fd(::mkostemp(temporary.data(), O_CLOEXEC));
  if (!fd.valid()) {
    const int e = errno;
    return exists && noNewEntry(e) ? rewriteInPlace(old.get(), bytes) : e;
  }
  // Held until the rename, so that no clean-up takes the file for one a killed writer left.
  ::flock(fd.get(), LOCK_EX);
  int e = writeAll(fd.get(), bytes);
  if (e == 0) {
    takeOverAttributes(fd.get(), exists ? &existing : nullptr);
    if (::fsync(fd.get()) != 0) e = errno;
  }
  if (e == 0 && ::rename(temporary.c_str(), target.c_str()) != 0) e = errno;
  if (e != 0) {
    ::unlink(temporary.c_str());
    return e;
  }
  syncDirectory(directory);
  return 0;
}

int appendToFile(const std::string& path, std::string_view bytes) {
  std::string target;
  if (const int e = finalTarget(path, target)) return e;
  const Descriptor fd(
      ::open(target.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NOCTTY, 0666));
  if (!fd.valid()) return errno;
  return writeAll(fd.get(), bytes);
}

void removeStaleTemporaries(const std::string& directory, std::chrono::system_clock::time_point since) {
  const Descriptor dirFd(
      ::open(directory.empty() ? "." : directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!dirFd.valid()) return;
  DIR* listing = ::fdopendir(::dup(dirFd.get()));
  if (listing == nullptr) return;
  const size_t nameLength = kTemporaryPrefix.size() + 6;
  while (const dirent* entry = ::readdir(listing)) {
    const std::string_view name(entry->d_name);
    if (name.size() != nameLength || name.substr(0, kTemporaryPrefix.size()) != kTemporaryPrefix) continue;
    const Descriptor fd(
        ::openat(dirFd.get(), entry->d_name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    struct stat info {};
    if (!fd.valid() || ::fstat(fd.get(), &info) != 0 || !S_ISREG(info.st_mode)) continue;
    const auto changed =
        std::chrono::system_clock::time_point(std::chrono::duration_cast<std::chrono::system_clock::duration>(
            std::chrono::seconds(info.st_mtim.tv_sec) + std::chrono::nanoseconds(info.st_mtim.tv_nsec)));
    if (info.st_uid != ::geteuid() || changed >= since) continue;
    if (::flock(fd.get(), LOCK_EX | LOCK_NB) != 0) continue;  // its writer is still at work
    ::unlinkat(dirFd.get(), entry->d_name, 0);
  }
  ::closedir(listing);
}

}  // namespace plovix
