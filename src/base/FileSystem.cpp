// Implementation of the file-system queries on POSIX.
#include "base/FileSystem.h"

#include <dirent.h>
#include <fnmatch.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>

#include "base/PathText.h"
#include "base/Report.h"
#include "base/SafeWrite.h"

namespace plovix {

bool fileExists(const std::string& path) {
  return !path.empty() && access(path.c_str(), F_OK) == 0;
}

bool isReadable(const std::string& path) {
  return !path.empty() && access(path.c_str(), R_OK) == 0;
}

bool isWritable(const std::string& path) {
  return !path.empty() && writeProtection(path) == 0;
}

bool isDirectory(const std::string& path) {
  struct stat st {};
  return !path.empty() && stat(path.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

bool deleteFile(const std::string& path) {
  if (!fileExists(path)) return true;
  return std::remove(path.c_str()) == 0;
}

std::string currentDirectory() {
  size_t size = 1024;
  for (int attempt = 0; attempt <= 4; ++attempt, size *= 2) {
    std::string buffer(size, '\0');
    if (getcwd(buffer.data(), buffer.size()) != nullptr) {
      buffer.resize(buffer.find('\0'));
      return buffer;
    }
    if (errno != ERANGE) return {};
  }
  return {};
}

std::string fullPath(const std::string& pathIn) {
  if (pathIn.empty()) return {};
  std::string path = toForwardSlashes(pathIn);
  if (path.front() != '/') {
    const std::string cwd = currentDirectory();
    if (cwd.empty()) return {};
    path = cwd + "/" + path;
  }
  const bool trailing = path.back() == '/';
  std::vector<std::string> parts;
  size_t pos = 0;
  while (pos <= path.size()) {
    size_t next = path.find('/', pos);
    if (next == std::string::npos) next = path.size();
    std::string part = path.substr(pos, next - pos);
    if (part == "..") {
      if (!parts.empty()) parts.pop_back();
    } else if (!part.empty() && part != ".") {
      parts.push_back(std::move(part));
    }
    pos = next + 1;
  }
  std::string out;
  for (const std::string& part : parts) out += "/" + part;
  if (out.empty()) return "/";
  if (trailing) out += "/";
  return out;
}

bool changeDirectory(const std::string& path) {
  const std::string full = fullPath(path);
  return !full.empty() && chdir(full.c_str()) == 0;
}

std::string programPath() {
  size_t size = 1024;
  for (int attempt = 0; attempt <= 4; ++attempt, size *= 2) {
    std::string buffer(size, '\0');
    const ssize_t n = readlink("/proc/self/exe", buffer.data(), buffer.size());
    if (n < 0) return {};
    if (static_cast<size_t>(n) < buffer.size()) {
      buffer.resize(static_cast<size_t>(n));
      return buffer;
    }
  }
  return {};
}

std::string environmentVariable(const std::string& name) {
  const char* value = std::getenv(name.c_str());
  return value == nullptr ? std::string() : std::string(value);
}

namespace {

// Restores the working directory when it leaves scope.
class WorkingDirectoryGuard {
 public:
  WorkingDirectoryGuard() : saved_(currentDirectory()) {}
  ~WorkingDirectoryGuard() {
    if (!saved_.empty() && chdir(saved_.c_str()) != 0) {
      // Nothing more can be done; the directory was removed meanwhile.
    }
  }
  WorkingDirectoryGuard(const WorkingDirectoryGuard&) = delete;
  WorkingDirectoryGuard& operator=(const WorkingDirectoryGuard&) = delete;

 private:
  std::string saved_;
};

bool resolveHere(const std::string& path, std::string& outDirectory, std::string& outFile) {
  std::string full = fullPath(path);
  if (full.empty()) return false;
  full = toForwardSlashes(full);
  const std::string asDirectory = full.back() == '/' ? full : full + "/";
  if (chdir(asDirectory.c_str()) == 0) {
    outDirectory = asDirectory;
    return true;
  }
  if (fileExists(asDirectory) && !isReadable(asDirectory)) {
    outDirectory = asDirectory;
    return true;
  }
  const std::string parent = directoryOfPath(full);
  if (!parent.empty() && chdir(parent.c_str()) == 0) {
    outDirectory = parent;
    outFile = nameWithExtension(full);
    return true;
  }
  return false;
}

}  // namespace

bool resolvePath(UserInterface& ui, const std::string& path, std::string& outDirectory,
                 std::string& outFile) {
  outDirectory.clear();
  outFile.clear();
  WorkingDirectoryGuard guard;
  const bool ok = resolveHere(path, outDirectory, outFile);
  if (!ok) reportError(ui, Msg::kDoesNotExist, path);
  return ok;
}

bool findInDirectory(UserInterface& ui, const std::string& path, const std::string& directory,
                     std::string& outDirectory, std::string& outFile) {
  outDirectory.clear();
  outFile.clear();
  WorkingDirectoryGuard guard;
  if (!changeDirectory(directory)) return false;
  return resolvePath(ui, path, outDirectory, outFile);
}

bool matchesWildcard(const std::string& name, const std::string& pattern) {
  return fnmatch(pattern.c_str(), name.c_str(), FNM_NOESCAPE) == 0;
}

std::vector<DirectoryEntry> listDirectory(const std::string& directory, const std::string& pattern,
                                          int* errorNumber) {
  std::vector<DirectoryEntry> entries;
  if (errorNumber != nullptr) *errorNumber = 0;
  const std::string dir = directory.empty() ? std::string(".") : directory;
  DIR* handle = opendir(dir.c_str());
  if (handle == nullptr) {
    if (errorNumber != nullptr) *errorNumber = errno;
    return entries;
  }
  const std::string prefix = (dir.back() == '/' || dir.back() == '\\') ? dir : dir + "/";
  while (const dirent* entry = readdir(handle)) {
    const std::string name = entry->d_name;
    if (name == "." || name == "..") continue;
    if (!matchesWildcard(name, pattern)) continue;
    DirectoryEntry item;
    item.name = name;
    struct stat st {};
    if (stat((prefix + name).c_str(), &st) == 0) {
      item.isDirectory = S_ISDIR(st.st_mode);
      item.size = static_cast<unsigned long long>(st.st_size);
      item.modifiedTime = static_cast<long long>(st.st_mtime);
    }
    entries.push_back(std::move(item));
  }
  closedir(handle);
  std::sort(entries.begin(), entries.end(),
            [](const DirectoryEntry& a, const DirectoryEntry& b) { return a.name < b.name; });
  return entries;
}

}  // namespace plovix
