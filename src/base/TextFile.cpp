// Implementation of text-mode file reading and atomic writing.
#include "base/TextFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "base/PathText.h"

namespace plovix {

std::string toTextMode(std::string_view text) {
  std::string out;
  out.reserve(text.size() + text.size() / 32);
  for (char c : text) {
    if (c == '\n') out += '\r';
    out += c;
  }
  return out;
}

std::string fromTextMode(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size());
  for (size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') continue;
    out += bytes[i];
  }
  return out;
}

bool readFileBytes(const std::string& path, std::string& bytes, int& errorNumber) {
  bytes.clear();
  errorNumber = 0;
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (file == nullptr) {
    errorNumber = errno;
    return false;
  }
  // Room for the whole file at once, so that a large file is not copied while it grows.
  struct stat status {};
  if (fstat(fileno(file), &status) == 0 && status.st_size > 0)
    bytes.reserve(static_cast<size_t>(status.st_size));
  char buffer[65536];
  size_t n = 0;
  while ((n = std::fread(buffer, 1, sizeof buffer, file)) > 0) bytes.append(buffer, n);
  const bool failed = std::ferror(file) != 0;
  const int readError = errno;
  std::fclose(file);
  if (failed) {
    errorNumber = readError == 0 ? EIO : readError;
    return false;
  }
  return true;
}

bool readTextFile(const std::string& path, std::string& text, int& errorNumber) {
  if (!readFileBytes(path, text, errorNumber)) return false;
  // Each "\r\n" made "\n" in place, without a copy.
  size_t kept = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
    text[kept++] = text[i];
  }
  text.resize(kept);
  return true;
}

std::vector<std::string> splitLines(std::string_view text) {
  std::vector<std::string> lines;
  size_t pos = 0;
  while (pos < text.size()) {
    size_t end = text.find('\n', pos);
    if (end == std::string_view::npos) end = text.size();
    lines.emplace_back(text.substr(pos, end - pos));
    pos = end + 1;
  }
  return lines;
}

namespace {

bool writeAll(int fd, std::string_view bytes, int& errorNumber) {
  while (!bytes.empty()) {
    const ssize_t n = ::write(fd, bytes.data(), bytes.size());
    if (n < 0) {
      if (errno == EINTR) continue;
      errorNumber = errno;
      return false;
    }
    bytes.remove_prefix(static_cast<size_t>(n));
  }
  return true;
}

}  // namespace

bool writeTextFile(const std::string& path, std::string_view text, int& errorNumber) {
  return writeFileBytes(path, toTextMode(text), errorNumber);
}

bool writeFileBytes(const std::string& path, std::string_view bytes, int& errorNumber) {
  errorNumber = 0;
  // Refuse what the target itself would refuse, so that a read-only file is never replaced.
  if (access(path.c_str(), F_OK) == 0 && access(path.c_str(), W_OK) != 0) {
    errorNumber = errno;
    return false;
  }
  struct stat targetInfo {};
  const bool targetExists = stat(path.c_str(), &targetInfo) == 0;
  if (targetExists && S_ISDIR(targetInfo.st_mode)) {
    errorNumber = EISDIR;
    return false;
  }
  std::string temp = directoryOfPath(path) + "." + nameWithExtension(path) + ".XXXXXX";
  int fd = mkstemp(temp.data());
  if (fd < 0) {
    errorNumber = errno;
    return false;
  }
  const bool ok = writeAll(fd, bytes, errorNumber);
  if (ok) {
    const mode_t mode = targetExists ? (targetInfo.st_mode & 07777) : [] {
      const mode_t mask = umask(0);
      umask(mask);
      return static_cast<mode_t>(0666 & ~mask);
    }();
    fchmod(fd, mode);
  }
  if (::close(fd) != 0 && ok) errorNumber = errno;
  if (!ok || errorNumber != 0 || std::rename(temp.c_str(), path.c_str()) != 0) {
    if (errorNumber == 0) errorNumber = errno;
    ::unlink(temp.c_str());
    return false;
  }
  return true;
}

bool appendTextFile(const std::string& path, std::string_view text, int& errorNumber) {
  errorNumber = 0;
  const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
  if (fd < 0) {
    errorNumber = errno;
    return false;
  }
  const bool ok = writeAll(fd, toTextMode(text), errorNumber);
  ::close(fd);
  return ok;
}

}  // namespace plovix
